# How every target of the project is compiled: one language level, one set of warnings, one place for programs.

option(KARVELLO_WERROR "Treat warnings as errors" OFF)
option(KARVELLO_LTO "Optimise across source files" OFF)
option(KARVELLO_TOGETHER "Compile tests, and what is generated from screens, several files at once" ON)
option(KARVELLO_FUZZ "Build the fuzzers; needs clang" OFF)
set(KARVELLO_SANITIZE "" CACHE STRING "Comma-separated sanitizers, for example address,undefined")

set(CMAKE_CXX_STANDARD 23)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(KARVELLO_LTO)
  set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
endif()

add_library(karvello_options INTERFACE)
target_include_directories(karvello_options INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_options(karvello_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # The no-touch tables are compiled at compile time, and clang counts the steps more strictly than g++.
  target_compile_options(karvello_options INTERFACE -fconstexpr-steps=50000000)
endif()
if(KARVELLO_WERROR)
  target_compile_options(karvello_options INTERFACE -Werror)
endif()
if(KARVELLO_SANITIZE)
  target_compile_options(karvello_options INTERFACE
    -fsanitize=${KARVELLO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    # Qt asks it of whatever uses Qt. Headers that were made ready without it would be left aside there.
    -fPIC
    # This check opens a pipe to look at memory, and takes a process without free descriptors for a broken one.
    -fno-sanitize=vptr)
  target_link_options(karvello_options INTERFACE -fsanitize=${KARVELLO_SANITIZE})
endif()
if(KARVELLO_FUZZ)
  target_compile_options(karvello_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The builds that only run under a sanitizer compile what the development build has compiled file by file: they take
# several source files at once and common headers ready-made, which would hide a missing include there.
function(karvello_compile_quickly name)
  if(KARVELLO_SANITIZE)
    karvello_compile_together(${name})
    target_precompile_headers(${name} PRIVATE ${ARGN}
      <algorithm> <chrono> <expected> <functional> <map> <memory> <mutex> <optional> <string> <thread> <vector>)
  endif()
endfunction()

# Much of the time of a compiler goes into headers and templates that the files of one target share.
function(karvello_compile_together name)
  set_target_properties(${name} PROPERTIES UNITY_BUILD ${KARVELLO_TOGETHER} UNITY_BUILD_BATCH_SIZE 8)
  # It warns of what a header keeps for itself, and takes the files for headers.
  target_compile_options(${name} PRIVATE -Wno-subobject-linkage)
endfunction()

# A layer: every source file below the given folders, as one static library that sees only what it links.
function(karvello_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 LAYER "" "" "FOLDERS;LINKS")
  set(sources "")
  foreach(folder IN LISTS LAYER_FOLDERS)
    file(GLOB found CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h")
    list(APPEND sources ${found})
  endforeach()
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC karvello_options ${LAYER_LINKS})
  karvello_compile_quickly(${name} <fmt/format.h>)
endfunction()

# A layer of objects that screens observe.
function(karvello_qt_layer name)
  karvello_layer(${name} ${ARGN})
  # Qt 6.4's moc takes the start of <concepts> for an error; defining its guard leaves the header out.
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOMOC_MOC_OPTIONS "-D_GLIBCXX_CONCEPTS")
  target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
  # CMake 3.25 looks through the headers again when one of them changes, and not when one comes or goes.
  get_target_property(sources ${name} SOURCES)
  set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}_sources.txt")
  set(known "")
  if(EXISTS "${list}")
    file(READ "${list}" known)
  endif()
  if(NOT known STREQUAL "${sources}")
    file(WRITE "${list}" "${sources}")
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/timestamp")
  endif()
endfunction()

# The screens of a layer as a QML module: every .qml file of its folder, and the drawings below `icons`. Files of the build's
# own making are compiled without our warnings. `DEPENDS` names the modules whose types its own types have.
function(karvello_qml_module name)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "URI;FOLDER" "DEPENDS")
  file(GLOB screens RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" CONFIGURE_DEPENDS "${MODULE_FOLDER}/*.qml")
  file(GLOB drawings RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" CONFIGURE_DEPENDS "${MODULE_FOLDER}/icons/*.svg")
  foreach(file IN LISTS screens drawings)
    string(REPLACE "${MODULE_FOLDER}/" "" alias "${file}")
    set_source_files_properties("${file}" PROPERTIES QT_RESOURCE_ALIAS "${alias}")
  endforeach()
  string(REPLACE "." "/" path "${MODULE_URI}")
  # For the library that Qt makes of the compiled screens.
  set(CMAKE_UNITY_BUILD ${KARVELLO_TOGETHER})
  set(CMAKE_UNITY_BUILD_BATCH_SIZE 16)
  qt_add_qml_module(${name}
    URI ${MODULE_URI}
    VERSION 1.0
    OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml/${path}"
    IMPORT_PATH "${CMAKE_BINARY_DIR}/qml"
    RESOURCE_PREFIX /qt/qml
    NO_PLUGIN
    DEPENDENCIES QtQuick ${MODULE_DEPENDS}
    QML_FILES ${screens}
    RESOURCES ${drawings})
  get_target_property(sources ${name} SOURCES)
  list(FILTER sources INCLUDE REGEX "^${CMAKE_CURRENT_BINARY_DIR}/.*\\.cpp$")
  set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
  # The registration that the build writes includes headers by their bare names.
  target_include_directories(${name} PRIVATE "${MODULE_FOLDER}")
  # Nobody calls it, so the linker would leave the module's types out of a static library.
  string(REPLACE "." "_" registration "qml_register_types_${MODULE_URI}")
  string(LENGTH "${registration}" length)
  target_link_options(${name} INTERFACE "LINKER:--undefined=_Z${length}${registration}v")
endfunction()

# The texts that a layer has of its own, in the folder `Texts` beside it: in all languages they become a header with the
# English ones, against which each use is checked, and constants.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
function(karvello_own_texts name)
  cmake_parse_arguments(PARSE_ARGV 1 TEXTS "" "FOLDER" "")
  set(folder "${CMAKE_CURRENT_SOURCE_DIR}")
  set(output "${CMAKE_CURRENT_BINARY_DIR}")
  if(TEXTS_FOLDER)
    string(APPEND folder "/${TEXTS_FOLDER}")
    string(APPEND output "/${TEXTS_FOLDER}")
  endif()
  cmake_path(RELATIVE_PATH folder BASE_DIRECTORY "${CMAKE_SOURCE_DIR}" OUTPUT_VARIABLE owner)
  file(GLOB own CONFIGURE_DEPENDS "${folder}/Texts/*.txt")
  file(GLOB others CONFIGURE_DEPENDS "${folder}/Texts/Others/*.txt")
  set(generated "${output}/Texts/EnglishTexts.h" "${output}/Texts/TextTables.cpp")
  set(translations "${CMAKE_SOURCE_DIR}/KarvelloUI/Copy/Translations")
  add_custom_command(OUTPUT ${generated}
    COMMAND Python3::Interpreter "${translations}/generate" texts ${owner} ${generated} ${own} -- ${others}
    DEPENDS "${translations}/generate" "${translations}/tables.py" ${own} ${others}
    VERBATIM)
  target_sources(${name} PRIVATE ${generated})
  # What reads the sources without building them needs the header too.
  add_custom_target(${name}Texts DEPENDS ${generated})
  add_dependencies(${name} ${name}Texts)
  target_include_directories(${name} PUBLIC "${CMAKE_BINARY_DIR}")
endfunction()
