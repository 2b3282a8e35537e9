#pragma once

// Written by the build. Naming it keeps the linker from leaving the module's types out of a static library.
void qml_register_types_Karvello_Screens_Home(); // NOLINT(readability-identifier-naming)

namespace KarvelloUI {

/// Whoever makes a model of this module can import its screens and panels.
inline void keepHomeModule()
{
    [[maybe_unused]] static const volatile auto kept = &qml_register_types_Karvello_Screens_Home;
}

} // namespace KarvelloUI
