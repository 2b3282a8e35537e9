#pragma once

#include "CleanerCore/Export/ReportExportRedactionContext.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloCLI/TerminalText.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// A skipped item as a table shows it.
struct SkippedRow {
    /// Tables that are not verbose show none.
    enum class Paths : std::uint8_t { shown, leftOut };

    /// With a `redaction`, the tokens of an export stand in place of paths.
    static SkippedRow of(const CleanerCore::SkippedItem& item, const HomePathAbbreviation& abbreviation, Paths paths,
        CleanerCore::ReportExportRedactionContext* redaction);

    std::string reason;
    TerminalText path;
};

/// Skipped items gathered by reason, the most frequent reason first, equally frequent ones as they were met. Sentences
/// that differ only in the name that they quote are one reason.
class SkippedSummary {
public:
    struct Group {
        TerminalText reason;
        std::vector<const SkippedRow*> rows = {};
    };

    /// `rows` must outlive the summary.
    explicit SkippedSummary(std::span<const SkippedRow> rows);

    [[nodiscard]] std::size_t count() const { return m_count; }

    /// How often each reason was met, at most `mostReasons` of them and a line on the rest; each line ends in "\n".
    [[nodiscard]] std::string countsByReason(std::size_t columns, std::size_t mostReasons) const;
    /// Every reason with every path.
    [[nodiscard]] std::string everyItem(std::size_t columns) const;

private:
    /// The groups from `shown` on.
    [[nodiscard]] std::size_t itemsBehind(std::size_t shown) const;

    std::vector<Group> m_groups;
    std::size_t m_count = 0;
};

} // namespace KarvelloCLI
