#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Copy/Texts/EnglishTexts.h"

#include <span>
#include <string_view>

namespace KarvelloUI::Copy {

/// Every text in one language, each in its English place.
[[nodiscard]] std::span<const std::string_view> textsIn(AppLanguage language);

} // namespace KarvelloUI::Copy
