#include "KarvelloUI/Sessions/CandidateIndex.h"

#include "Platform/Base/CheckedMath.h"
#include "Platform/Base/RawValue.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <utility>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCandidate;

template <Platform::RawRepresentable Value>
std::vector<Value> occurring(const std::vector<CleanupCandidate>& candidates, Value CleanupCandidate::* member)
{
    std::array<bool, Platform::allCases<Value>().size()> occurs{};
    for (const auto& candidate : candidates) {
        occurs[static_cast<std::size_t>(candidate.*member)] = true;
    }
    std::vector<Value> values;
    std::ranges::copy_if(Platform::allCases<Value>(), std::back_inserter(values),
        [&occurs](Value value) { return occurs[static_cast<std::size_t>(value)]; });
    return values;
}

std::vector<CleanupCategorySummary> summarized(const std::vector<CleanupCandidate>& candidates)
{
    std::array<std::int64_t, Platform::allCases<CleanerCore::CleanupCategory>().size()> bytes{};
    for (const auto& candidate : candidates) {
        auto& sum = bytes[static_cast<std::size_t>(candidate.category)];
        sum = Platform::checkedAdd(sum, candidate.sizeBytes);
    }
    std::vector<CleanupCategorySummary> summaries;
    for (const auto category : occurring(candidates, &CleanupCandidate::category)) {
        summaries.push_back({.category = category, .bytes = bytes[static_cast<std::size_t>(category)]});
    }
    std::ranges::stable_sort(summaries, std::greater(), &CleanupCategorySummary::bytes);
    return summaries;
}

} // namespace

CandidateIndex::CandidateIndex(CleanerCore::ScanReport report)
    : m_report(std::move(report))
    , m_categorySummaries(summarized(m_report.candidates))
    , m_searchKeys(m_report.candidates)
{
    m_positions.reserve(size());
    for (std::uint32_t position = 0; const auto& candidate : m_report.candidates) {
        m_positions.emplace(candidate.id, position++);
    }
}

std::optional<std::uint32_t> CandidateIndex::position(std::string_view id) const
{
    const auto found = m_positions.find(id);
    return found == m_positions.end() ? std::nullopt : std::optional(found->second);
}

const CleanupCandidate* CandidateIndex::candidate(std::string_view id) const
{
    const auto found = position(id);
    return found ? &m_report.candidates[*found] : nullptr;
}

std::vector<CleanerCore::CleanupCategory> CandidateIndex::availableCategories() const
{
    return occurring(m_report.candidates, &CleanupCandidate::category);
}

std::vector<CleanerCore::CleanupSafety> CandidateIndex::availableSafetyLevels() const
{
    return occurring(m_report.candidates, &CleanupCandidate::safety);
}

CleanerCore::ScanReport CandidateIndex::reportWithout(const std::unordered_set<std::string>& ids) const
{
    std::vector<CleanupCandidate> rest;
    rest.reserve(size());
    std::ranges::copy_if(m_report.candidates, std::back_inserter(rest),
        [&ids](const CleanupCandidate& candidate) { return !ids.contains(candidate.id); });
    return {m_report.scannedAt, std::move(rest), m_report.skippedItems};
}

} // namespace KarvelloUI
