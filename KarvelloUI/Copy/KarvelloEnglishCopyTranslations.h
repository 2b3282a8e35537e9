#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Copy/CopyTranslationTables.h"
#include "KarvelloUI/Copy/TranslationRows.h"

#include <optional>
#include <string>
#include <string_view>

/// The tables of the six languages, each built once, at its first use. For any thread.
namespace KarvelloUI::KarvelloEnglishCopyTranslations {

/// The rows of a language as they are written; nothing for Korean and English, which have none.
[[nodiscard]] std::optional<TranslationRows> rows(AppLanguage language);
/// The language's tables, or null for Korean and English.
[[nodiscard]] const CopyTranslationTables* tables(AppLanguage language);

/// `CopyTranslationTables::translate` and `postProcess`; the text itself for a language without tables.
[[nodiscard]] std::string translate(std::string_view text, AppLanguage language);
[[nodiscard]] std::string postProcess(std::string_view text, AppLanguage language);

} // namespace KarvelloUI::KarvelloEnglishCopyTranslations
