#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "KarvelloCLI/Bar.h"
#include "KarvelloCLI/CandidateRows.h"
#include "KarvelloCLI/InsightRows.h"
#include "KarvelloCLI/InsightSubject.h"
#include "KarvelloCLI/TextStyle.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

/// An insight report for reading: the size map, the lists of files, duplicates, findings, the machine, what was skipped
/// and what was cut short. It fits the given columns, from 40 on, and holds no control character but line feeds and its
/// own colours.
class InsightTable {
public:
    struct Settings {
        TextStyle style;
        /// Tokens stand for paths and names, as in the report's redacted CSV export.
        bool isRedacted = false;
        BarGlyphs glyphs = BarGlyphs::blocks;
    };

    /// Both must outlive the table.
    InsightTable(const CleanerCore::MacStorageInsightReport& report, const InsightSubject& subject, Settings settings);

    [[nodiscard]] std::string text() const;

private:
    using Files = std::span<const CleanerCore::FileInsight>;
    using Rows = std::span<const CandidateRow>;

    [[nodiscard]] std::string heading() const;
    [[nodiscard]] std::string nothing() const;
    [[nodiscard]] std::string map() const;
    [[nodiscard]] std::string largeFiles() const;
    [[nodiscard]] std::string downloads() const;
    [[nodiscard]] std::string duplicates() const;
    [[nodiscard]] std::string findings() const;
    [[nodiscard]] std::string machine() const;
    [[nodiscard]] std::string skipped() const;
    [[nodiscard]] std::string cutShort() const;
    [[nodiscard]] std::string ending() const;

    [[nodiscard]] std::string fileList(std::string_view title, Files files, Rows rows) const;
    [[nodiscard]] std::string rest(std::int64_t bytes, std::string_view words) const;
    [[nodiscard]] std::string title(std::string_view words, std::string_view rest, Ink ink = Ink::title) const;
    [[nodiscard]] std::string size(std::int64_t bytes) const { return m_settings.style.size(bytes); }

    const CleanerCore::MacStorageInsightReport& m_report;
    const InsightSubject& m_subject;
    Settings m_settings;
    InsightRows m_rows;
    /// One set of columns for all lists, so that sizes stand under sizes from top to bottom.
    CandidateColumns m_columns;
};

} // namespace KarvelloCLI
