#pragma once

#include <span>
#include <string_view>

namespace KarvelloUI {

/// An English sentence or pattern with its translation; a text to be replaced with its replacement.
struct TranslationRow {
    std::string_view english;
    std::string_view translation; // of no data at all where nobody has translated the row yet
};

/// The rows of one language, as its file in `Translations` has them. They live as long as the program.
struct TranslationRows {
    std::span<const TranslationRow> manualExact;
    std::span<const TranslationRow> exact;
    std::span<const TranslationRow> manualTemplate;
    std::span<const TranslationRow> generatedTemplate;
    std::span<const TranslationRow> postProcess;
};

TranslationRows japaneseRows();
TranslationRows simplifiedChineseRows();
TranslationRows traditionalChineseRows();
TranslationRows spanishRows();
TranslationRows frenchRows();
TranslationRows germanRows();

} // namespace KarvelloUI
