#pragma once

#include "KarvelloUI/Copy/SentencePattern.h"

#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// Sentences of one shape in another language.
struct KarvelloCopyTranslationTemplate {
    KarvelloCopyTranslationTemplate(std::string_view englishPattern, std::string_view translatedReplacement);

    std::string pattern;                          // an expression over the whole English sentence
    std::string replacement;                      // with {0}, {1}... for what the groups catch
    std::shared_ptr<const SentencePattern> regex; // none if the pattern is no expression: then the row never matches

    /// The sentence in the other language, or nothing if it has another shape. The parts are put in one after another, so
    /// a "{1}" in the first part is replaced with the second part. The placeholder of a group that took no part stays.
    [[nodiscard]] std::expected<std::optional<std::string>, MatchBudgetExhausted> translation(
        MatchableSentence& sentence, MatchBudget& budget) const;
};

} // namespace KarvelloUI
