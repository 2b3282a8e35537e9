#include "KarvelloCLI/InsightRows.h"

#include "CleanerCore/Export/MacInsightSection.h"
#include "KarvelloCLI/Words.h"

#include <optional>

namespace KarvelloCLI {

namespace {

using CleanerCore::FileInsight;

namespace Section = CleanerCore::MacInsightSection;

/// Names things in the order of the export, whose numbers run on through what is not shown.
class Namer {
public:
    Namer(const TextStyle& style, bool isRedacted, Platform::Date scannedAt)
        : m_style(style)
        , m_scannedAt(scannedAt)
    {
        if (isRedacted) {
            m_redaction.emplace();
        }
    }

    TerminalText folder(const CleanerCore::StorageMapItem& item)
    {
        if (m_redaction) {
            std::ignore = m_redaction->path(item.url.path(), Section::heatmap);
            return TerminalText(m_redaction->name(item.displayName, Section::heatmap));
        }
        return TerminalText(item.displayName);
    }

    std::vector<CandidateRow> files(std::span<const FileInsight> files, std::string_view section, std::size_t shown)
    {
        std::vector<CandidateRow> rows;
        for (const FileInsight& file : files) {
            const bool isShown = rows.size() < shown;
            if (m_redaction) {
                const std::string path = m_redaction->path(file.url.path(), section);
                const std::string name = m_redaction->name(file.displayName, section);
                if (isShown) {
                    rows.push_back(row(file, name, path, path));
                }
            } else if (isShown) {
                rows.push_back(row(file, file.displayName, m_style.paths.abbreviate(file.url.path()),
                    m_style.paths.abbreviate(file.parentPath)));
            } else {
                break;
            }
        }
        return rows;
    }

    SkippedRow skipped(const CleanerCore::SkippedItem& item)
    {
        const auto paths = m_style.isVerbose ? SkippedRow::Paths::shown : SkippedRow::Paths::leftOut;
        return SkippedRow::of(item, m_style.paths, paths, m_redaction ? &*m_redaction : nullptr);
    }

private:
    CandidateRow row(
        const FileInsight& file, std::string_view name, std::string_view path, std::string_view place) const
    {
        CandidateRow row;
        row.size = TerminalText(m_style.size(file.sizeBytes));
        row.age = TerminalText(file.lastModified ? shortAge(m_scannedAt.secondsSince(*file.lastModified)) : "-");
        row.name = TerminalText(name);
        row.place = TerminalText(place);
        row.path = TerminalText(path);
        return row;
    }

    const TextStyle& m_style;
    Platform::Date m_scannedAt;
    /// Absent: nothing is hidden.
    std::optional<CleanerCore::ReportExportRedactionContext> m_redaction;
};

} // namespace

InsightRows::InsightRows(const CleanerCore::MacStorageInsightReport& report, const TextStyle& style, bool isRedacted)
{
    const auto unlessVerbose = [&style](std::size_t most) { return style.isVerbose ? SIZE_MAX : most; };
    Namer namer(style, isRedacted, report.scannedAt);
    for (const auto& item : report.heatmapItems) {
        folders.push_back(namer.folder(item));
    }
    largeFiles = namer.files(report.largeFiles, Section::largeFiles, unlessVerbose(kShownFiles));
    downloads = namer.files(report.downloadFiles, Section::downloads, unlessVerbose(kShownFiles));
    for (const auto& group : report.duplicateGroups) {
        auto rows = namer.files(group.files, Section::duplicates, unlessVerbose(kShownCopies));
        if (groups.size() < unlessVerbose(kShownGroups)) {
            groups.push_back(std::move(rows));
        }
    }
    // They are shown by kind, so the first ones need not be those that are shown.
    findings = namer.files(report.securityFindings, Section::security, SIZE_MAX);
    skipped.reserve(report.skippedItems.size());
    for (const auto& item : report.skippedItems) {
        skipped.push_back(namer.skipped(item));
    }
}

} // namespace KarvelloCLI
