#pragma once

#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloUI/Sessions/CandidateSearchKeys.h"
#include "KarvelloUI/Sessions/CleanupCategorySummary.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace KarvelloUI {

/// A report, and what is looked up in it. Immutable and shared; for a large report it is made off the main thread.
/// Candidates are told by their position in the report or by their id, which no two share.
class CandidateIndex {
public:
    CandidateIndex() = default;
    explicit CandidateIndex(CleanerCore::ScanReport report);
    CandidateIndex(const CandidateIndex&) = delete;
    CandidateIndex& operator=(const CandidateIndex&) = delete;

    [[nodiscard]] const CleanerCore::ScanReport& report() const { return m_report; }
    [[nodiscard]] const std::vector<CleanerCore::CleanupCandidate>& candidates() const { return m_report.candidates; }
    [[nodiscard]] std::size_t size() const { return m_report.candidates.size(); }

    [[nodiscard]] std::optional<std::uint32_t> position(std::string_view id) const;
    /// Nothing for an unknown id.
    [[nodiscard]] const CleanerCore::CleanupCandidate* candidate(std::string_view id) const;

    /// The one with the most bytes first, those with as many in the order of the categories.
    [[nodiscard]] const std::vector<CleanupCategorySummary>& categorySummaries() const { return m_categorySummaries; }
    /// Those that occur, in the order of their declaration.
    [[nodiscard]] std::vector<CleanerCore::CleanupCategory> availableCategories() const;
    [[nodiscard]] std::vector<CleanerCore::CleanupSafety> availableSafetyLevels() const;

    [[nodiscard]] const CandidateSearchKeys& searchKeys() const { return m_searchKeys; }

    /// The report without these candidates, with the same date and skipped items.
    [[nodiscard]] CleanerCore::ScanReport reportWithout(const std::unordered_set<std::string>& ids) const;

private:
    CleanerCore::ScanReport m_report;
    /// The ids are those of `m_report`, which does not move.
    std::unordered_map<std::string_view, std::uint32_t> m_positions;
    std::vector<CleanupCategorySummary> m_categorySummaries;
    CandidateSearchKeys m_searchKeys;
};

} // namespace KarvelloUI
