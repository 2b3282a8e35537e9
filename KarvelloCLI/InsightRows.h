#pragma once

#include "CleanerCore/Export/ReportExportRedactionContext.h"
#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "KarvelloCLI/CandidateRows.h"
#include "KarvelloCLI/SkippedSummary.h"
#include "KarvelloCLI/TerminalText.h"
#include "KarvelloCLI/TextStyle.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

/// A report's items as a table names them: by their paths, or by the tokens of the report's redacted CSV export.
struct InsightRows {
    /// How many files of a list, sets of duplicates, and copies of a set a table that is not verbose shows.
    static constexpr std::size_t kShownFiles = 20;
    static constexpr std::size_t kShownGroups = 10;
    static constexpr std::size_t kShownCopies = 6;

    InsightRows(const CleanerCore::MacStorageInsightReport& report, const TextStyle& style, bool isRedacted);

    /// One for each folder of the map, in its order.
    std::vector<TerminalText> folders;
    /// The first files of each list, in its order; of the findings as many as the table may need.
    std::vector<CandidateRow> largeFiles;
    std::vector<CandidateRow> downloads;
    std::vector<CandidateRow> findings;
    /// The first copies of the first groups, keepers first.
    std::vector<std::vector<CandidateRow>> groups;
    std::vector<SkippedRow> skipped;
};

} // namespace KarvelloCLI
