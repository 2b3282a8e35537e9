#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unicode/regex.h>
#include <unicode/unistr.h>
#include <vector>

namespace KarvelloUI {

/// A sentence as expressions see it: in UTF-16, with the way back to its bytes. A byte that is part of no character
/// counts as one character, and comes back as it was. The bytes outlive this.
class MatchableSentence {
public:
    explicit MatchableSentence(std::string_view text)
        : m_text(text)
    {
    }

    [[nodiscard]] std::string_view text() const { return m_text; }
    /// Made at the first call: most sentences are known without it.
    [[nodiscard]] const icu::UnicodeString& units();
    /// The bytes between two places in `units()`.
    [[nodiscard]] std::string_view bytes(std::int32_t start, std::int32_t end) const;

private:
    std::string_view m_text;
    std::optional<icu::UnicodeString> m_units;
    std::vector<std::uint32_t> m_offsets; // of the byte at which each unit begins, and of the end
};

/// The steps that the search for one sentence may take over all expressions, so that no name can make it slow.
struct MatchBudget {
    int ticks = 20; // of 10,000 steps of ICU each, about a tenth of a millisecond
};
struct MatchBudgetExhausted {};

/// The parts that the groups caught, in order; none for a group that took no part.
using CapturedParts = std::vector<std::optional<std::string_view>>;

/// A compiled expression over a whole sentence. Immutable, so any number of threads may match with it.
class SentencePattern {
public:
    /// Nothing if the expression is none.
    static std::shared_ptr<const SentencePattern> compile(std::string_view pattern);
    /// The same, compiled once for all that ask: six languages have the same patterns. It lives as long as the program, and
    /// each thread keeps one matcher for it.
    static std::shared_ptr<const SentencePattern> shared(const std::string& pattern);

    /// The parts of the first match, or nothing without one. The parts live as long as the bytes of the sentence.
    [[nodiscard]] std::expected<std::optional<CapturedParts>, MatchBudgetExhausted> firstMatch(
        MatchableSentence& sentence, MatchBudget& budget) const;

private:
    explicit SentencePattern(std::unique_ptr<icu::RegexPattern> expression, std::string_view pattern);
    static std::shared_ptr<SentencePattern> compiledExpression(std::string_view pattern);
    [[nodiscard]] bool mayMatch(std::string_view text) const;
    /// The matcher of this thread for a shared expression, or a new one in `own`; nothing where ICU fails.
    [[nodiscard]] icu::RegexMatcher* matcher(std::unique_ptr<icu::RegexMatcher>& own) const;

    std::unique_ptr<icu::RegexPattern> m_expression;
    /// What every match begins with, then what it holds between its parts, in this order; empty for an expression of
    /// another form than the tables have.
    std::vector<std::string> m_literals;
    bool m_isShared = false;
};

} // namespace KarvelloUI
