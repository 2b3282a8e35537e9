#pragma once

#include <span>
#include <string_view>

namespace KarvelloUI {

/// A file of texts that is part of the program.
struct BundledText {
    std::string_view languageCode;
    std::string_view contents; // of a Localizable.strings
};

/// The Localizable.strings of `Resources`.
std::span<const BundledText> bundledTexts();

} // namespace KarvelloUI
