#include "KarvelloCLI/ScanTable.h"

#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "KarvelloCLI/FolderNames.h"
#include "KarvelloCLI/OwnerNote.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/Words.h"
#include "Platform/Base/CheckedMath.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>
#include <tuple>
#include <unordered_map>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupSafety;

constexpr std::string_view kCandidateLabel = "cleanup-candidate";

std::int64_t checkedTotal(std::span<const CleanupCandidate> candidates)
{
    std::int64_t sum = 0;
    for (const CleanupCandidate& candidate : candidates) {
        sum = Platform::checkedAdd(sum, candidate.sizeBytes);
    }
    return sum;
}

} // namespace

ScanTable::ScanTable(const CleanerCore::ScanReport& report, const ScanSubject& subject, Settings settings)
    : m_report(report)
    , m_subject(subject)
    , m_settings(settings)
    , m_painter(m_settings.usesColor)
    , m_paths(subject.home)
{
    CleanerCore::ReportExportRedactionContext redaction;
    makeGroups(redaction);
    makeSkippedRows(redaction);
}

void ScanTable::makeGroups(CleanerCore::ReportExportRedactionContext& redaction)
{
    for (std::size_t index = 0; index < m_report.candidates.size(); ++index) {
        const CleanupCandidate& candidate = m_report.candidates[index];
        if (m_groups.empty() || m_report.candidates[m_groups.back().first].safety != candidate.safety) {
            m_groups.push_back({.first = index});
        }
        Group& group = m_groups.back();
        group.last = index + 1;
        const bool isShown = m_settings.isVerbose || group.rows.size() < kShownCandidates;
        if (m_settings.isRedacted) {
            // Also for what is not shown: the numbers run through the whole report.
            const std::string path = redaction.path(candidate.url.path(), kCandidateLabel);
            const std::string name = redaction.name(candidate.displayName, kCandidateLabel);
            if (isShown) {
                group.rows.push_back(row(candidate, name, path));
            }
        } else if (isShown) {
            group.rows.push_back(row(candidate, candidate.displayName, m_paths.abbreviate(candidate.url.path())));
        }
    }
}

CandidateRow ScanTable::row(const CleanupCandidate& candidate, std::string_view name, std::string_view path) const
{
    CandidateRow row;
    row.isMarked = candidate.isSelectedByDefault;
    row.size = TerminalText(size(candidate.sizeBytes));
    row.age =
        TerminalText(candidate.lastModified ? shortAge(m_report.scannedAt.secondsSince(*candidate.lastModified)) : "-");
    row.name = TerminalText(name);
    row.kind = TerminalText(sayReason(displayName(candidate.category)));
    row.path = TerminalText(path);
    row.note = TerminalText(
        ownerNote(candidate.appCacheContext, m_settings.isRedacted ? OwnerName::hidden : OwnerName::shown));
    row.place = m_settings.isRedacted
        ? row.path
        : TerminalText(m_paths.abbreviate(candidate.url.deletingLastPathComponent().path()));
    return row;
}

void ScanTable::makeSkippedRows(CleanerCore::ReportExportRedactionContext& redaction)
{
    m_skippedRows.reserve(m_report.skippedItems.size());
    const auto paths = m_settings.isVerbose ? SkippedRow::Paths::shown : SkippedRow::Paths::leftOut;
    for (const CleanerCore::SkippedItem& item : m_report.skippedItems) {
        m_skippedRows.push_back(SkippedRow::of(item, m_paths, paths, m_settings.isRedacted ? &redaction : nullptr));
    }
}

std::string ScanTable::size(std::int64_t bytes) const
{
    return sizeWords(bytes);
}

std::string ScanTable::text() const
{
    std::string text = heading();
    for (const std::string& section :
        {m_report.candidates.empty() ? nothingFound() : candidates(), skipped(), totals(), ending()}) {
        if (!section.empty()) {
            text += '\n';
            text += section;
        }
    }
    return text;
}

std::string ScanTable::paragraph(std::string_view words, std::optional<Ink> ink) const
{
    std::string text;
    for (const TerminalText& line : TerminalText(words).wrapped(m_settings.columns)) {
        text += (ink ? m_painter(*ink, line.string()) : line.string()) + "\n";
    }
    return text;
}

std::string ScanTable::heading() const
{
    std::vector<std::string> places;
    if (m_subject.mode) {
        // "~" for the folder that everything else is shown against would say nothing.
        const std::string home = m_settings.isRedacted ? say("the home folder") : m_subject.home.path();
        places.push_back(say("{} (mode {})", home, Platform::rawValue(*m_subject.mode)));
    }
    for (std::string& name : folderNames(m_subject.folders, m_paths, m_settings.isRedacted)) {
        places.push_back(std::move(name));
    }
    std::string text = paragraph(say("Scan of {}: {}", joined(places), localTime(m_report.scannedAt)), Ink::title);
    if (m_subject.isIncomplete) {
        text += paragraph(say("Incomplete: interrupted. This is what was found until then."), Ink::warning);
    }
    return text;
}

std::string ScanTable::candidates() const
{
    std::vector<const CandidateRow*> rows;
    for (const Group& group : m_groups) {
        for (const CandidateRow& row : group.rows) {
            rows.push_back(&row);
        }
    }
    // One set of columns for all groups, so that sizes stand under sizes from top to bottom.
    const CandidateColumns columns(
        rows, m_settings.columns, m_painter, m_settings.isRedacted ? say("Path") : say("Folder"));
    std::string text = columns.header() + '\n';
    for (const Group& group : m_groups) {
        text += '\n';
        text += lines(group, columns);
    }
    return text;
}

std::string ScanTable::lines(const Group& group, const CandidateColumns& columns) const
{
    const std::span candidates = std::span(m_report.candidates).subspan(group.first, group.last - group.first);
    const CleanupSafety safety = candidates.front().safety;
    std::string text = say("{}: {}", m_painter(inkOf(safety), sayReason(displayName(safety))),
                           say("{}, {}", itemCount(candidates.size()), size(checkedTotal(candidates))))
        + '\n';
    for (const CandidateRow& row : group.rows) {
        text += columns.line(row);
        text += '\n';
        if (row.note.columns() > 0) {
            text += columns.summaryLine(TerminalText(), row.note);
            text += '\n';
        }
    }
    return text + rest(candidates.subspan(group.rows.size()), columns);
}

std::string ScanTable::rest(std::span<const CleanupCandidate> candidates, const CandidateColumns& columns) const
{
    if (candidates.empty()) {
        return {};
    }
    const auto line = [&](std::int64_t bytes, std::string_view words) {
        return columns.summaryLine(TerminalText(size(bytes)), TerminalText(words)) + '\n';
    };
    const std::int64_t bytes = checkedTotal(candidates);
    std::string text = line(bytes, counted(candidates.size(), "in {} more item", "in {} more items"));
    if (m_settings.isRedacted) {
        return text;
    }

    struct Folder {
        std::string path;
        std::int64_t bytes = 0;
        std::size_t items = 0;
    };
    std::unordered_map<std::string, Folder> folderOfPath;
    for (const CleanupCandidate& candidate : candidates) {
        const Platform::FileURL parent = candidate.url.deletingLastPathComponent();
        Folder& folder = folderOfPath[parent.path()];
        folder.path = parent.path();
        folder.bytes = Platform::checkedAdd(folder.bytes, candidate.sizeBytes);
        ++folder.items;
    }
    std::vector<Folder> folders;
    folders.reserve(folderOfPath.size());
    for (auto& [path, folder] : folderOfPath) {
        folders.push_back(std::move(folder));
    }
    const std::size_t shown = std::min(folders.size(), kShownFolders);
    std::ranges::partial_sort(folders, folders.begin() + static_cast<std::ptrdiff_t>(shown), std::ranges::greater{},
        [](const Folder& folder) { return std::tie(folder.bytes, folder.path); });
    for (const Folder& folder : std::span(folders).first(shown)) {
        text += line(folder.bytes, "  " + say("{} in {}", itemCount(folder.items), m_paths.abbreviate(folder.path)));
    }
    return text;
}

std::string ScanTable::skipped() const
{
    if (m_skippedRows.empty()) {
        return {};
    }
    const SkippedSummary summary(m_skippedRows);
    return say("{}: {}", m_painter(Ink::title, catalogue().skippedTitle()), itemCount(summary.count())) + '\n'
        + (m_settings.isVerbose ? summary.everyItem(m_settings.columns)
                                : summary.countsByReason(m_settings.columns, kShownReasons));
}

std::string ScanTable::totals() const
{
    if (m_report.candidates.empty()) {
        return {};
    }
    std::int64_t selectedBytes = 0;
    std::size_t selectedCount = 0;
    for (const CleanupCandidate& candidate : m_report.candidates) {
        if (candidate.isSelectedByDefault) {
            selectedBytes = Platform::checkedAdd(selectedBytes, candidate.sizeBytes);
            ++selectedCount;
        }
    }
    const TerminalText reclaimable(size(m_report.reclaimableBytes()));
    const TerminalText preselected(size(selectedBytes));
    const TerminalText all(catalogue().reclaimableTitle());
    const TerminalText chosen(say("Preselected"));
    const std::size_t width = std::max(reclaimable.columns(), preselected.columns());
    const std::size_t labelWidth = selectedCount > 0 ? std::max(all.columns(), chosen.columns()) : all.columns();
    std::string text = fmt::format("  {}  {}  {}\n", m_painter(Ink::title, all.paddedRight(labelWidth)),
        reclaimable.paddedLeft(width), itemCount(m_report.candidates.size()));
    if (selectedCount > 0) {
        text += fmt::format("{} {}  {}  {}\n", m_painter(Ink::safe, "*"), chosen.paddedRight(labelWidth),
            preselected.paddedLeft(width), itemCount(selectedCount));
    }
    return text;
}

std::string ScanTable::nothingFound() const
{
    if (m_subject.isRefused) {
        return paragraph(say("Nothing was scanned."));
    }
    std::string text = paragraph(say("Nothing to clean up was found."));
    const auto young = std::ranges::count(m_report.skippedItems,
        CleanerCore::StorageScannerSkipReason::recentlyModified, &CleanerCore::SkippedItem::reason);
    if (young > 0) {
        text += paragraph(counted(static_cast<std::size_t>(young), "{} item changed recently and may still be in use.",
            "{} items changed recently and may still be in use."));
    }
    if (m_subject.mode && *m_subject.mode != CleanerCore::CleanupScanMode::direct) {
        text += paragraph(say("--mode direct looks in more places, and --folder DIR in one of your own."));
    } else if (m_subject.folders.empty()) {
        text += paragraph(say("--folder DIR looks in a folder of your own."));
    } else if (m_subject.leavesOutHiddenFiles) {
        text += paragraph(say("With --root DIR --hidden, hidden files count too."));
    }
    return text;
}

std::string ScanTable::ending() const
{
    const auto isCut = [](const Group& group) { return group.rows.size() < group.last - group.first; };
    const bool verboseTellsMore =
        !m_settings.isVerbose && (!m_skippedRows.empty() || std::ranges::any_of(m_groups, isCut));
    return paragraph(verboseTellsMore ? say("Nothing was changed on disk. --verbose lists every item.")
                                      : say("Nothing was changed on disk."),
        Ink::quiet);
}

} // namespace KarvelloCLI
