#include "KarvelloUI/Sessions/InsightIndex.h"

#include <utility>

namespace KarvelloUI {

using CleanerCore::FileInsight;
using CleanerCore::MacStorageInsightReport;
using Platform::FileURL;

InsightIndex::InsightIndex(MacStorageInsightReport report)
    : m_report(std::move(report))
{
    using enum MacInsightFileSection;
    for (const auto section : {largeFiles, downloads, duplicates, security}) {
        for (const auto* const file : files(section)) {
            m_fileByID.insert_or_assign(file->id, file);
        }
    }
    for (const auto& finding : m_report.securityFindings) {
        m_blockedCleanupPaths.insert(finding.url.path());
    }
    for (const auto& group : m_report.duplicateGroups) {
        if (const auto* const keeper = group.keeper()) {
            m_blockedCleanupPaths.insert(keeper->url.path());
        }
    }
}

InsightIndex::InsightIndex(
    MacStorageInsightReport report, const ActiveScan& scanned, const Platform::FileManager& fileManager)
    : InsightIndex(std::move(report))
{
    std::vector<FileURL> urls;
    urls.reserve(m_fileByID.size());
    for (const auto& [id, file] : m_fileByID) {
        urls.push_back(file->url);
    }
    const auto cleanable = cleanablePaths(urls, scanned, fileManager);
    for (const auto& [id, file] : m_fileByID) {
        if (cleanable.contains(file->url.path())) {
            m_selectableFileIDs.emplace(id);
        }
    }
}

const FileInsight* InsightIndex::file(std::string_view id) const
{
    const auto found = m_fileByID.find(id);
    return found == m_fileByID.end() ? nullptr : found->second;
}

InsightIndex::Files InsightIndex::files(MacInsightFileSection section) const
{
    Files files;
    const auto add = [&](const std::vector<FileInsight>& list) {
        for (const auto& file : list) {
            files.push_back(&file);
        }
    };
    switch (section) {
    case MacInsightFileSection::largeFiles:
        add(m_report.largeFiles);
        break;
    case MacInsightFileSection::downloads:
        add(m_report.downloadFiles);
        break;
    case MacInsightFileSection::duplicates:
        for (const auto& group : m_report.duplicateGroups) {
            add(group.files);
        }
        break;
    case MacInsightFileSection::security:
        add(m_report.securityFindings);
        break;
    }
    return files;
}

InsightIndex::Paths InsightIndex::cleanablePaths(
    std::span<const FileInsight> files, const ActiveScan& scanned, const Platform::FileManager& fileManager) const
{
    std::vector<FileURL> urls;
    urls.reserve(files.size());
    for (const auto& file : files) {
        urls.push_back(file.url);
    }
    return cleanablePaths(urls, scanned, fileManager);
}

InsightIndex::Paths InsightIndex::cleanablePaths(
    std::span<const FileURL> urls, const ActiveScan& scanned, const Platform::FileManager& fileManager) const
{
    auto paths = scanned.cleanupEligibilityPolicy.allowedPaths(urls, fileManager);
    std::erase_if(paths, [this](const std::string& path) { return m_blockedCleanupPaths.contains(path); });
    return paths;
}

} // namespace KarvelloUI
