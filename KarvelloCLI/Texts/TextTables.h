#pragma once

#include "KarvelloCLI/Texts/EnglishTexts.h"
#include "KarvelloUI/Copy/AppLanguage.h"

#include <span>
#include <string_view>

namespace KarvelloCLI {

/// Every text in one language, each in its English place.
[[nodiscard]] std::span<const std::string_view> textsIn(KarvelloUI::AppLanguage language);

} // namespace KarvelloCLI
