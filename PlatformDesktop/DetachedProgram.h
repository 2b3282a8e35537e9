#pragma once

#include <string>
#include <vector>

namespace PlatformDesktop::DetachedProgram {

/// The folders of a search path such as PATH, the absolute ones.
[[nodiscard]] std::vector<std::string> foldersOf(const std::string& searchPath);

/// Starts a program that goes on by itself, without a shell: the first word is an absolute path or the name of a file in
/// one of the folders, the others are its arguments. It gets nothing to read, and what it prints is lost. False: it
/// could not be started.
[[nodiscard]] bool start(const std::vector<std::string>& words, const std::vector<std::string>& folders);

} // namespace PlatformDesktop::DetachedProgram
