#pragma once

#include "CleanerCore/Export/ReportExportRedactionContext.h"
#include "CleanerCore/Scan/CleanupScanMode.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloCLI/CandidateRows.h"
#include "KarvelloCLI/Ink.h"
#include "KarvelloCLI/SkippedSummary.h"
#include "KarvelloCLI/TerminalText.h"
#include "Platform/Base/FileURL.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

/// What a scan was asked to look at, for the words around its result.
struct ScanSubject {
    Platform::FileURL home;
    /// Absent: the home was not scanned.
    std::optional<CleanerCore::CleanupScanMode> mode;
    /// The folders that the user named.
    std::vector<Platform::FileURL> folders;
    /// Whether hidden files in them were left out.
    bool leavesOutHiddenFiles = true;
    /// None of what was asked for may be scanned, or exists.
    bool isRefused = false;
    bool isIncomplete = false;
};

/// A report for reading: candidates by safety, largest first; then what was skipped, by reason; then the totals. It
/// fits the given columns, from 40 on, and holds no control character but line feeds and its own colours.
class ScanTable {
public:
    /// How much of a group, and how many reasons, a table that is not verbose shows.
    static constexpr std::size_t kShownCandidates = 20;
    static constexpr std::size_t kShownReasons = 12;
    /// Of what a group does not show one by one, in how many folders it is summed up.
    static constexpr std::size_t kShownFolders = 4;

    struct Settings {
        std::size_t columns = 100;
        bool usesColor = false;
        bool isVerbose = false;
        /// Tokens stand for paths and names. They are numbered in the order of the report, as in its exports.
        bool isRedacted = false;
    };

    ScanTable(const CleanerCore::ScanReport& report, const ScanSubject& subject, Settings settings);

    [[nodiscard]] std::string text() const;

private:
    /// The candidates from `first` to before `last`, which are of one safety; the first of them have rows.
    struct Group {
        std::size_t first = 0;
        std::size_t last = 0;
        std::vector<CandidateRow> rows = {};
    };

    void makeGroups(CleanerCore::ReportExportRedactionContext& redaction);
    void makeSkippedRows(CleanerCore::ReportExportRedactionContext& redaction);
    [[nodiscard]] CandidateRow row(
        const CleanerCore::CleanupCandidate& candidate, std::string_view name, std::string_view path) const;
    [[nodiscard]] std::string size(std::int64_t bytes) const;
    [[nodiscard]] std::string heading() const;
    [[nodiscard]] std::string candidates() const;
    [[nodiscard]] std::string lines(const Group& group, const CandidateColumns& columns) const;
    [[nodiscard]] std::string rest(
        std::span<const CleanerCore::CleanupCandidate> candidates, const CandidateColumns& columns) const;
    [[nodiscard]] std::string skipped() const;
    [[nodiscard]] std::string totals() const;
    [[nodiscard]] std::string nothingFound() const;
    [[nodiscard]] std::string ending() const;
    [[nodiscard]] std::string paragraph(std::string_view words, std::optional<Ink> ink = std::nullopt) const;

    const CleanerCore::ScanReport& m_report;
    const ScanSubject& m_subject;
    Settings m_settings;
    Painter m_painter;
    HomePathAbbreviation m_paths;
    std::vector<Group> m_groups;
    std::vector<SkippedRow> m_skippedRows;
};

} // namespace KarvelloCLI
