#include "KarvelloUI/Sessions/CandidateListProjection.h"

#include "Platform/Base/Text.h"
#include "Platform/Base/TextFolding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ranges>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;

std::vector<std::string> foldedWords(std::string_view text)
{
    std::vector<std::string> words;
    while (!text.empty()) {
        auto rest = text;
        auto word = text.substr(0, 0);
        while (!rest.empty() && !Platform::Text::isUnicodeWhitespace(Platform::Text::takeScalar(rest))) {
            word = text.substr(0, text.size() - rest.size());
        }
        if (!word.empty()) {
            words.push_back(Platform::Text::foldedForSearch(word));
        }
        text = rest;
    }
    return words;
}

/// Where one word occurs. The shared texts are looked through once, not once for each candidate.
class WordSearch {
public:
    WordSearch(std::string word, const CandidateSearchTexts& texts)
        : m_word(std::move(word))
    {
        const auto holdsWord = [this](const std::string& text) { return text.contains(m_word); };
        std::ranges::transform(texts.categories, m_isInCategory.begin(), holdsWord);
        std::ranges::transform(texts.safetyLevels, m_isInSafety.begin(), holdsWord);
        m_isInContext.reserve(texts.contexts.size());
        for (const auto& context : texts.contexts) {
            m_isInContext.push_back(holdsWord(context));
        }
    }

    [[nodiscard]] bool matches(
        const CleanupCandidate& candidate, const CandidateSearchKeys& keys, std::size_t position) const
    {
        const auto context = keys.context(position);
        return m_isInCategory[static_cast<std::size_t>(candidate.category)]
            || m_isInSafety[static_cast<std::size_t>(candidate.safety)]
            || (context != CandidateSearchKeys::kNoContext && m_isInContext[context])
            || keys.key(position).contains(m_word);
    }

private:
    std::string m_word;
    std::array<bool, Platform::allCases<CleanupCategory>().size()> m_isInCategory{};
    std::array<bool, Platform::allCases<CleanupSafety>().size()> m_isInSafety{};
    std::vector<bool> m_isInContext;
};

/// All words, each somewhere.
class Search {
public:
    Search(std::string_view searchText, const CandidateSearchTexts& texts)
    {
        for (auto& word : foldedWords(searchText)) {
            m_words.emplace_back(std::move(word), texts);
        }
    }

    [[nodiscard]] bool matches(
        const CleanupCandidate& candidate, const CandidateSearchKeys& keys, std::size_t position) const
    {
        return std::ranges::all_of(
            m_words, [&](const WordSearch& word) { return word.matches(candidate, keys, position); });
    }

private:
    std::vector<WordSearch> m_words;
};

template <typename Value>
bool passes(const std::optional<Value>& filter, Value value)
{
    return !filter || *filter == value;
}

/// The sections of one grouping before they are filled, one for each value of the enumeration.
template <Platform::RawRepresentable Value>
std::vector<CandidateListSection> emptySections(std::string_view prefix, std::span<const std::string> titles)
{
    std::vector<CandidateListSection> sections;
    for (const auto value : Platform::allCases<Value>()) {
        sections.push_back({.id = std::string(prefix).append(Platform::rawValue(value)),
            .title = titles[static_cast<std::size_t>(value)],
            .candidates = {}});
    }
    return sections;
}

std::vector<CandidateListSection> emptySections(CandidateListGroupingMode mode, const CandidateSearchTexts& texts)
{
    switch (mode) {
    case CandidateListGroupingMode::flat:
        break;
    case CandidateListGroupingMode::category:
        return emptySections<CleanupCategory>("category.", texts.categoryNames);
    case CandidateListGroupingMode::safety:
        return emptySections<CleanupSafety>("safety.", texts.safetyNames);
    }
    return {{.id = "flat.all", .title = "", .candidates = {}}};
}

std::size_t sectionIndex(CandidateListGroupingMode mode, const CleanupCandidate& candidate)
{
    switch (mode) {
    case CandidateListGroupingMode::flat:
        break;
    case CandidateListGroupingMode::category:
        return static_cast<std::size_t>(candidate.category);
    case CandidateListGroupingMode::safety:
        return static_cast<std::size_t>(candidate.safety);
    }
    return 0;
}

} // namespace

namespace CandidateListProjection {

std::vector<CandidateListSection> sections(std::span<const CleanupCandidate> candidates,
    const CandidateSearchKeys& keys, const CandidateSearchTexts& texts, const CandidateListFilters& filters)
{
    const Search search(filters.searchText, texts);
    auto sections = emptySections(filters.groupingMode, texts);
    for (std::size_t position = 0; position < candidates.size(); ++position) {
        const auto& candidate = candidates[position];
        if (passes(filters.category, candidate.category) && passes(filters.safety, candidate.safety)
            && search.matches(candidate, keys, position)) {
            sections[sectionIndex(filters.groupingMode, candidate)].candidates.push_back(
                static_cast<std::uint32_t>(position));
        }
    }
    std::erase_if(sections, [](const CandidateListSection& section) { return section.candidates.empty(); });
    return sections;
}

std::vector<CandidateListSection> sections(std::span<const CleanupCandidate> candidates,
    const CandidateListFilters& filters, const CandidateListTextProvider& textProvider)
{
    const CandidateSearchKeys keys(candidates);
    return sections(candidates, keys, CandidateSearchTexts(keys, textProvider), filters);
}

bool matchesSearch(
    const CleanupCandidate& candidate, std::string_view searchText, const CandidateListTextProvider& textProvider)
{
    const CandidateSearchKeys keys({&candidate, 1});
    return Search(searchText, CandidateSearchTexts(keys, textProvider)).matches(candidate, keys, 0);
}

} // namespace CandidateListProjection

} // namespace KarvelloUI
