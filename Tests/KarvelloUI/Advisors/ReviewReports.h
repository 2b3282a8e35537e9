#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Scan/ScanReport.h"

#include <cstdint>
#include <string>
#include <vector>

namespace KarvelloUI {

inline constexpr std::int64_t kMiB = 1024 * 1024;
inline constexpr std::int64_t kGiB = 1024 * kMiB;

/// A cleanup report with one candidate of each size.
[[nodiscard]] inline CleanerCore::ScanReport cleanupReportOf(const std::vector<std::int64_t>& sizes)
{
    std::vector<CleanerCore::CleanupCandidate> candidates;
    for (const std::int64_t size : sizes) {
        candidates.emplace_back(CleanerCore::CleanupCandidate::Fields{
            .url = Platform::FileURL("/home/ada/.cache/" + std::to_string(candidates.size())), .sizeBytes = size});
    }
    return {{}, std::move(candidates), {}};
}

/// The sizes of what an insight report lists; each duplicate is a group of two.
struct InsightSizes {
    std::vector<std::int64_t> largeFiles = {};
    std::vector<std::int64_t> downloads = {};
    std::vector<std::int64_t> duplicates = {};
};

[[nodiscard]] inline std::vector<CleanerCore::FileInsight> insightsOf(
    const std::vector<std::int64_t>& sizes, const std::string& folder)
{
    std::vector<CleanerCore::FileInsight> files;
    for (const std::int64_t size : sizes) {
        files.emplace_back(CleanerCore::FileInsight::Fields{
            .url = Platform::FileURL("/home/ada/" + folder + "/" + std::to_string(files.size())),
            .sizeBytes = size,
            .detail = ""});
    }
    return files;
}

[[nodiscard]] inline CleanerCore::MacStorageInsightReport insightReportOf(const InsightSizes& sizes)
{
    CleanerCore::MacStorageInsightReport::Fields fields{.scannedAt = {},
        .largeFiles = insightsOf(sizes.largeFiles, "Videos"),
        .downloadFiles = insightsOf(sizes.downloads, "Downloads")};
    for (const std::int64_t size : sizes.duplicates) {
        fields.duplicateGroups.emplace_back(
            std::string(64, 'a'), size, insightsOf({size, size}, "Copies" + std::to_string(size)));
    }
    return CleanerCore::MacStorageInsightReport(std::move(fields));
}

/// Items that a scan could not read, and as many that it would not touch.
[[nodiscard]] inline std::vector<CleanerCore::SkippedItem> blockedItems(int count)
{
    std::vector<CleanerCore::SkippedItem> items;
    for (int index = 0; index < count; ++index) {
        items.push_back({Platform::FileURL("/home/ada/locked"), "Operation not permitted"});
        items.push_back({Platform::FileURL("/home/ada/young"), "Modified recently"});
    }
    return items;
}

} // namespace KarvelloUI
