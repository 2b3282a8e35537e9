#include "KarvelloUI/Copy/SentencePattern.h"

#include "Platform/Base/Text.h"

#include <cctype>
#include <map>
#include <mutex>
#include <unordered_map>

namespace KarvelloUI {

namespace {

constexpr std::int32_t kStackLimit = 1 << 20; // bytes

/// The literals of "^literal(.+?)literal(.*?)literal$", in which "\" makes a literal of what is no letter or digit and
/// "\n" is a line feed. Nothing for any other expression.
std::optional<std::vector<std::string>> literalsOf(std::string_view pattern)
{
    constexpr std::size_t groupLength = 5;
    constexpr std::string_view special = "^$.[]{}()*+?|";
    if (pattern.size() < 2 || !pattern.starts_with('^') || !pattern.ends_with('$') || pattern.ends_with("\\$")) {
        return std::nullopt;
    }
    std::vector<std::string> literals(1);
    for (auto rest = pattern.substr(1, pattern.size() - 2); !rest.empty();) {
        if (rest.starts_with("(.+?)") || rest.starts_with("(.*?)")) {
            literals.emplace_back();
            rest.remove_prefix(groupLength);
            continue;
        }
        const bool isEscaped = rest.size() > 1 && rest.front() == '\\';
        rest.remove_prefix(isEscaped ? 1 : 0);
        const char character = rest.front();
        const bool isLineFeed = isEscaped && character == 'n';
        const bool isUnknown = isEscaped ? !isLineFeed && std::isalnum(static_cast<unsigned char>(character)) != 0
                                         : character == '\\' || special.find(character) != std::string_view::npos;
        if (isUnknown) {
            return std::nullopt;
        }
        literals.back() += isLineFeed ? '\n' : character;
        rest.remove_prefix(1);
    }
    return literals;
}

struct BudgetMeter {
    MatchBudget& budget;

    /// ICU calls it once a tick; false ends the match.
    static UBool U_CALLCONV spend(const void* meter, std::int32_t /*ticks*/)
    {
        return --static_cast<const BudgetMeter*>(meter)->budget.ticks > 0;
    }
};

} // namespace

const icu::UnicodeString& MatchableSentence::units()
{
    if (!m_units) {
        m_units.emplace();
        m_offsets.reserve(m_text.size() + 1);
        for (std::string_view rest = m_text; !rest.empty();) {
            const auto offset = static_cast<std::uint32_t>(m_text.size() - rest.size());
            m_units->append(static_cast<UChar32>(Platform::Text::takeScalar(rest)));
            m_offsets.resize(static_cast<std::size_t>(m_units->length()), offset);
        }
        m_offsets.push_back(static_cast<std::uint32_t>(m_text.size()));
    }
    return *m_units;
}

std::string_view MatchableSentence::bytes(std::int32_t start, std::int32_t end) const
{
    const std::size_t first = m_offsets[static_cast<std::size_t>(start)];
    return m_text.substr(first, m_offsets[static_cast<std::size_t>(end)] - first);
}

SentencePattern::SentencePattern(std::unique_ptr<icu::RegexPattern> expression, std::string_view pattern)
    : m_expression(std::move(expression))
    , m_literals(literalsOf(pattern).value_or(std::vector<std::string>()))
{
}

std::shared_ptr<const SentencePattern> SentencePattern::compile(std::string_view pattern)
{
    return compiledExpression(pattern);
}

std::shared_ptr<SentencePattern> SentencePattern::compiledExpression(std::string_view pattern)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto source =
        icu::UnicodeString::fromUTF8(icu::StringPiece(pattern.data(), static_cast<int>(pattern.size())));
    std::unique_ptr<icu::RegexPattern> expression(icu::RegexPattern::compile(source, 0, status));
    if (U_FAILURE(status) || !expression) {
        return nullptr;
    }
    return std::shared_ptr<SentencePattern>(new SentencePattern(std::move(expression), pattern));
}

std::shared_ptr<const SentencePattern> SentencePattern::shared(const std::string& pattern)
{
    static std::mutex mutex;
    static std::map<std::string, std::shared_ptr<const SentencePattern>> patterns;
    const std::scoped_lock lock(mutex);
    const auto [entry, isNew] = patterns.try_emplace(pattern);
    if (isNew) {
        if (const auto compiled = compiledExpression(pattern)) {
            compiled->m_isShared = true;
            entry->second = compiled;
        }
    }
    return entry->second;
}

icu::RegexMatcher* SentencePattern::matcher(std::unique_ptr<icu::RegexMatcher>& own) const
{
    // A shared expression is never destroyed, so its address is its name for good.
    thread_local std::unordered_map<const SentencePattern*, std::unique_ptr<icu::RegexMatcher>> matchersOfThread;
    auto& matcher = m_isShared ? matchersOfThread[this] : own;
    if (!matcher) {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::RegexMatcher> made(m_expression->matcher(status));
        if (U_SUCCESS(status)) {
            made->setStackLimit(kStackLimit, status);
        }
        if (U_FAILURE(status)) {
            return nullptr;
        }
        matcher = std::move(made);
    }
    return matcher.get();
}

bool SentencePattern::mayMatch(std::string_view text) const
{
    if (m_literals.empty()) {
        return true;
    }
    if (!text.starts_with(m_literals.front())) {
        return false;
    }
    for (std::size_t position = 0; const std::string& literal : m_literals) {
        position = text.find(literal, position);
        if (position == std::string_view::npos) {
            return false;
        }
        position += literal.size();
    }
    return true;
}

std::expected<std::optional<CapturedParts>, MatchBudgetExhausted> SentencePattern::firstMatch(
    MatchableSentence& sentence, MatchBudget& budget) const
{
    if (!mayMatch(sentence.text())) {
        return std::nullopt;
    }
    std::unique_ptr<icu::RegexMatcher> own;
    icu::RegexMatcher* const matcher = this->matcher(own);
    if (matcher == nullptr) {
        return std::unexpected(MatchBudgetExhausted{});
    }
    UErrorCode status = U_ZERO_ERROR;
    const BudgetMeter meter{budget};
    matcher->reset(sentence.units());
    matcher->setMatchCallback(BudgetMeter::spend, &meter, status);
    const bool isMatch = U_SUCCESS(status) && matcher->find(status);
    // What ICU cannot finish within its bounds stops the search, like a budget that is used up.
    if (U_FAILURE(status)) {
        return std::unexpected(MatchBudgetExhausted{});
    }
    if (!isMatch) {
        return std::nullopt;
    }
    CapturedParts parts;
    for (std::int32_t group = 1; group <= matcher->groupCount(); ++group) {
        const std::int32_t start = matcher->start(group, status);
        const std::int32_t end = matcher->end(group, status);
        parts.push_back(start < 0 ? std::nullopt : std::optional(sentence.bytes(start, end)));
    }
    return parts;
}

} // namespace KarvelloUI
