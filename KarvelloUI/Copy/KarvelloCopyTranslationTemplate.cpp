#include "KarvelloUI/Copy/KarvelloCopyTranslationTemplate.h"

#include "KarvelloUI/Copy/ReplaceAll.h"

#include <cstddef>
#include <fmt/format.h>

namespace KarvelloUI {

namespace {

/// Placeholders in the parts themselves can make a text grow without end.
constexpr std::size_t kMaximumTranslation = 64 * 1024; // bytes

} // namespace

KarvelloCopyTranslationTemplate::KarvelloCopyTranslationTemplate(
    std::string_view englishPattern, std::string_view translatedReplacement)
    : pattern(englishPattern)
    , replacement(translatedReplacement)
    , regex(SentencePattern::shared(pattern))
{
}

std::expected<std::optional<std::string>, MatchBudgetExhausted> KarvelloCopyTranslationTemplate::translation(
    MatchableSentence& sentence, MatchBudget& budget) const
{
    if (!regex) {
        return std::nullopt;
    }
    const auto match = regex->firstMatch(sentence, budget);
    if (!match) {
        return std::unexpected(match.error());
    }
    if (!*match) {
        return std::nullopt;
    }
    std::string text = replacement;
    for (std::size_t index = 0; const auto& part : **match) {
        if (part && !replaceAll(text, fmt::format("{{{}}}", index), *part, kMaximumTranslation)) {
            return std::unexpected(MatchBudgetExhausted{});
        }
        ++index;
    }
    return text;
}

} // namespace KarvelloUI
