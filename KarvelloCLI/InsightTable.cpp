#include "KarvelloCLI/InsightTable.h"

#include "KarvelloCLI/DuplicateLines.h"
#include "KarvelloCLI/FolderNames.h"
#include "KarvelloCLI/InsightLimits.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/SizeMapChart.h"
#include "KarvelloCLI/StatusTexts.h"
#include "KarvelloCLI/Words.h"
#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <utility>

namespace KarvelloCLI {

namespace {

using CleanerCore::FileInsight;

/// How many reasons of skipped items a table that is not verbose shows.
constexpr std::size_t kShownReasons = 12;
/// How many findings of one sort it shows.
constexpr std::size_t kShownFindings = 10;

template <typename Items>
std::int64_t saturatingTotal(const Items& items)
{
    std::int64_t sum = 0;
    for (const auto& item : items) {
        sum = Platform::saturatingAdd(sum, item.sizeBytes);
    }
    return sum;
}

/// The rows that a table may show of its lists.
std::vector<const CandidateRow*> listed(const InsightRows& rows)
{
    std::vector<const CandidateRow*> all;
    for (const auto* const list : {&rows.largeFiles, &rows.downloads, &rows.findings}) {
        for (const CandidateRow& row : *list) {
            all.push_back(&row);
        }
    }
    return all;
}

/// Findings of one sort, by their places in the report.
struct Sort {
    std::string_view detail;
    std::vector<std::size_t> findings = {};
};

/// The sort of the largest finding first.
std::vector<Sort> sortsOf(std::span<const FileInsight> findings)
{
    std::vector<Sort> sorts;
    for (std::size_t index = 0; index < findings.size(); ++index) {
        auto sort = std::ranges::find(sorts, findings[index].detail, &Sort::detail);
        if (sort == sorts.end()) {
            sort = sorts.insert(sorts.end(), Sort{findings[index].detail});
        }
        sort->findings.push_back(index);
    }
    return sorts;
}

} // namespace

InsightTable::InsightTable(
    const CleanerCore::MacStorageInsightReport& report, const InsightSubject& subject, Settings settings)
    : m_report(report)
    , m_subject(subject)
    , m_settings(std::move(settings))
    , m_rows(report, m_settings.style, m_settings.isRedacted)
    , m_columns(listed(m_rows), m_settings.style.columns, m_settings.style.painter,
          m_settings.isRedacted ? say("Path") : say("Folder"))
{
}

std::string InsightTable::text() const
{
    std::vector<std::string> sections;
    if (m_subject.hasNothingToLookAt) {
        sections.push_back(nothing());
    } else {
        const auto add = [&](InsightPart part, std::string section) {
            if (m_subject.wants(part)) {
                sections.push_back(std::move(section));
            }
        };
        add(InsightPart::map, map());
        add(InsightPart::large, largeFiles());
        add(InsightPart::downloads, downloads());
        add(InsightPart::duplicates, duplicates());
        add(InsightPart::security, findings());
    }
    for (auto section :
        {&InsightTable::machine, &InsightTable::skipped, &InsightTable::cutShort, &InsightTable::ending}) {
        sections.push_back((this->*section)());
    }
    std::string text = heading();
    for (const std::string& section : sections) {
        if (!section.empty()) {
            text += '\n';
            text += section;
        }
    }
    return text;
}

std::string InsightTable::title(std::string_view words, std::string_view rest, Ink ink) const
{
    const TextStyle& style = m_settings.style;
    std::string text = style.paragraph(say("{}: {}", words, rest));
    // The words themselves may go on in the next line where it is very narrow.
    return text.starts_with(words) ? style.painter(ink, words) + text.substr(words.size()) : text;
}

std::string InsightTable::heading() const
{
    const TextStyle& style = m_settings.style;
    std::vector<std::string> places;
    if (m_subject.looksAtHome) {
        places.push_back(m_settings.isRedacted ? say("the home folder") : TerminalText(m_subject.home.path()).string());
    }
    for (const std::string& name : folderNames(m_subject.folders, style.paths, m_settings.isRedacted)) {
        places.push_back(TerminalText(name).string());
    }
    std::string text =
        style.paragraph(say("Insights of {}: {}", joined(places), localTime(m_report.scannedAt)), 0, Ink::title);
    if (m_subject.isIncomplete) {
        text += style.paragraph(say("Incomplete: interrupted. This is what was found until then."), 0, Ink::warning);
    }
    return text;
}

std::string InsightTable::nothing() const
{
    const TextStyle& style = m_settings.style;
    return m_subject.isRefused
        ? style.paragraph(say("Nothing was looked at."))
        : style.paragraph(say("This home has none of the usual folders, such as Downloads or Documents."))
            + style.paragraph(say("--root DIR looks at a folder of your own."));
}

std::string InsightTable::map() const
{
    const auto& folders = m_report.heatmapItems;
    if (folders.empty()) {
        return title(say("Size map"), say("no folder was looked at"));
    }
    const bool isLowerBound = std::ranges::any_of(folders, &CleanerCore::StorageMapItem::isTruncated);
    const std::string bytes = size(saturatingTotal(folders));
    return title(say("Size map"),
               say("{}, {}", counted(folders.size(), "{} folder", "{} folders"),
                   isLowerBound ? say("at least {}", bytes) : bytes))
        + sizeMapChart(folders, m_rows.folders, m_settings.style, m_settings.glyphs);
}

std::string InsightTable::largeFiles() const
{
    const std::string words = say("Large files, {} and more", size(m_subject.configuration.minimumLargeFileBytes));
    return fileList(words, m_report.largeFiles, m_rows.largeFiles);
}

std::string InsightTable::downloads() const
{
    const bool isOfAnyAge = m_subject.configuration.minimumReviewFileAge <= 0;
    return fileList(isOfAnyAge ? say("Downloads") : say("Older downloads"), m_report.downloadFiles, m_rows.downloads);
}

std::string InsightTable::fileList(std::string_view words, Files files, Rows rows) const
{
    if (files.empty()) {
        return title(words, say("none"));
    }
    std::string text =
        title(words, say("{}, {}", fileCount(files.size()), size(saturatingTotal(files)))) + m_columns.header() + '\n';
    for (const CandidateRow& row : rows) {
        text += m_columns.line(row) + '\n';
    }
    const Files more = files.subspan(rows.size());
    return text
        + rest(saturatingTotal(more), more.empty() ? "" : counted(more.size(), "in {} more file", "in {} more files"));
}

std::string InsightTable::rest(std::int64_t bytes, std::string_view words) const
{
    return words.empty() ? std::string() : m_columns.summaryLine(TerminalText(size(bytes)), TerminalText(words)) + '\n';
}

std::string InsightTable::duplicates() const
{
    const std::string words = say("Duplicates, {} and more", size(m_subject.configuration.minimumDuplicateFileBytes));
    const auto& groups = m_report.duplicateGroups;
    if (groups.empty()) {
        return title(words, say("none"));
    }
    std::size_t files = 0;
    for (const auto& group : groups) {
        files += group.files.size();
    }
    return title(words,
               say("{}, {}; the extra copies hold {}", counted(groups.size(), "{} set", "{} sets"), fileCount(files),
                   size(m_report.duplicateWastedBytes())))
        + duplicateLines(groups, m_rows.groups, m_settings.style);
}

std::string InsightTable::findings() const
{
    const std::string words = say("Installers and scripts");
    const Files findings = m_report.securityFindings;
    if (findings.empty()) {
        return title(words, say("none"));
    }
    std::string text =
        title(words, say("{}, {}, by name alone", itemCount(findings.size()), size(saturatingTotal(findings))))
        + m_columns.header() + '\n';
    for (const Sort& sort : sortsOf(findings)) {
        const std::size_t shown =
            m_settings.style.isVerbose ? sort.findings.size() : std::min(sort.findings.size(), kShownFindings);
        const std::size_t more = sort.findings.size() - shown;
        std::string lines;
        std::int64_t bytes = 0;
        std::int64_t shownBytes = 0;
        for (std::size_t place = 0; place < sort.findings.size(); ++place) {
            const std::size_t index = sort.findings[place];
            bytes = Platform::saturatingAdd(bytes, findings[index].sizeBytes);
            if (place < shown) {
                shownBytes = bytes;
                lines += m_columns.line(m_rows.findings[index]) + '\n';
            }
        }
        text += title(sayReason(sort.detail), say("{}, {}", itemCount(sort.findings.size()), size(bytes)),
                    Ink::manualReview)
            + lines + rest(bytes - shownBytes, more == 0 ? "" : counted(more, "in {} more item", "in {} more items"));
    }
    return text;
}

std::string InsightTable::machine() const
{
    return m_subject.only ? std::string()
                          : title(say("System"), machineWords(m_report.systemSnapshot, m_settings.style));
}

std::string InsightTable::skipped() const
{
    if (m_rows.skipped.empty()) {
        return {};
    }
    const SkippedSummary summary(m_rows.skipped);
    const std::size_t columns = m_settings.style.columns;
    return title(catalogue().skippedTitle(), itemCount(summary.count()))
        + (m_settings.style.isVerbose ? summary.everyItem(columns) : summary.countsByReason(columns, kShownReasons));
}

std::string InsightTable::cutShort() const
{
    const std::vector<std::string> sentences = limitSentences(m_report, m_subject, m_settings.style);
    if (sentences.empty()) {
        return {};
    }
    std::string text = m_settings.style.painter(Ink::warning, say("Cut short")) + "\n";
    for (const std::string& sentence : sentences) {
        text += m_settings.style.paragraph(sentence, 2);
    }
    return text;
}

std::string InsightTable::ending() const
{
    const auto showsLess = [](const auto& files, const auto& rows) { return rows.size() < files.size(); };
    const auto hidesCopies = [&] {
        for (std::size_t index = 0; index < m_rows.groups.size(); ++index) {
            if (showsLess(m_report.duplicateGroups[index].files, m_rows.groups[index])) {
                return true;
            }
        }
        return showsLess(m_report.duplicateGroups, m_rows.groups);
    };
    const auto hidesFindings = [&] {
        return std::ranges::any_of(
            sortsOf(m_report.securityFindings), [](const Sort& sort) { return sort.findings.size() > kShownFindings; });
    };
    const bool verboseTellsMore = !m_settings.style.isVerbose
        && (!m_rows.skipped.empty() || showsLess(m_report.largeFiles, m_rows.largeFiles)
            || showsLess(m_report.downloadFiles, m_rows.downloads) || hidesCopies() || hidesFindings());
    return m_settings.style.paragraph(verboseTellsMore ? say("Nothing was changed on disk. --verbose lists every item.")
                                                       : say("Nothing was changed on disk."),
        0, Ink::quiet);
}

} // namespace KarvelloCLI
