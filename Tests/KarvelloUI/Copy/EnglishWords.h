#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"

#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The words of a text that are English where another language is meant. In the languages that do not write with Latin
/// letters it is every word that is no name; in the others it is the words that only English has, which no English
/// sentence does without.
[[nodiscard]] std::vector<std::string_view> englishWordsIn(std::string_view text, AppLanguage language);

} // namespace KarvelloUI
