#pragma once

#include <optional>
#include <string_view>

/// Which names are worth a look: what installs, runs or configures something, and what calls itself a tool for getting
/// around protections. Only names are judged; no file is opened.
namespace CleanerCore::SecurityReview {

/// Why an item of this name is a finding; nothing if it is none. The text lives as long as the program.
[[nodiscard]] std::optional<std::string_view> reviewDetail(std::string_view name);

/// What decides who gets onto a full list: higher first, at least 1. Only for a name that has a detail.
[[nodiscard]] int reviewPriority(std::string_view name);

/// Whether one of the words between the characters that are neither letters nor numbers is, as a whole, one of those
/// that such tools are called by. `lowercasedName` may hold bytes that are no text; they separate words.
[[nodiscard]] bool suspiciousFilenamePattern(std::string_view lowercasedName);

} // namespace CleanerCore::SecurityReview
