#include "CleanerCore/Insights/RemovedFiles.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace CleanerCore {

namespace {

using Paths = std::set<std::string, std::less<>>;

/// The sizes of the files that go, by path: a file that stands in two lists counts once.
std::map<std::string, std::int64_t> removedSizes(const MacStorageInsightReport& report, const Paths& paths)
{
    std::map<std::string, std::int64_t> sizes;
    const auto collect = [&](const std::vector<FileInsight>& files) {
        for (const auto& file : files) {
            if (paths.contains(file.url.path())) {
                sizes.emplace(file.url.path(), file.sizeBytes);
            }
        }
    };
    collect(report.largeFiles);
    collect(report.downloadFiles);
    for (const auto& group : report.duplicateGroups) {
        collect(group.files);
    }
    collect(report.securityFindings);
    return sizes;
}

StorageMapItem without(const StorageMapItem& item, const std::map<std::string, std::int64_t>& removed)
{
    std::int64_t bytes = 0;
    std::int64_t count = 0;
    const std::string prefix = item.url.path() + '/';
    for (auto file = removed.lower_bound(prefix); file != removed.end() && file->first.starts_with(prefix); ++file) {
        bytes = Platform::saturatingAdd(bytes, file->second);
        ++count;
    }
    return StorageMapItem({.url = item.url,
        .displayName = item.displayName,
        .sizeBytes = std::max<std::int64_t>(item.sizeBytes - bytes, 0),
        .itemCount = std::max<std::int64_t>(item.itemCount - count, 0),
        .isTruncated = item.isTruncated});
}

} // namespace

MacStorageInsightReport removingFiles(MacStorageInsightReport report, const Paths& paths)
{
    if (paths.empty()) {
        return report;
    }
    const auto removed = removedSizes(report, paths);
    for (auto& item : report.heatmapItems) {
        item = without(item, removed);
    }
    const auto isRemoved = [&](const FileInsight& file) { return paths.contains(file.url.path()); };
    std::vector<DuplicateFileGroup> groups;
    for (auto& group : report.duplicateGroups) {
        std::erase_if(group.files, isRemoved);
        if (group.files.size() > 1) {
            groups.emplace_back(std::move(group.id), group.sizeBytes, std::move(group.files));
        }
    }
    report.duplicateGroups = std::move(groups);
    std::erase_if(report.largeFiles, isRemoved);
    std::erase_if(report.downloadFiles, isRemoved);
    std::erase_if(report.securityFindings, isRemoved);
    return report;
}

} // namespace CleanerCore
