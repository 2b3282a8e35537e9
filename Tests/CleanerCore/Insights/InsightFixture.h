#pragma once

#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/Days.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace InsightTests {

using CleanerCore::FileInsight;
using CleanerCore::InsightConfiguration;
using CleanerCore::MacStorageInsightReport;
using CleanerCore::MacStorageInsightScanner;
using CleanerCore::SkippedItem;
using CleanerCore::StorageMapItem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using TestSupport::TemporaryTree;

inline constexpr std::int64_t kPage = 4'096;

/// Limits under which small files count.
inline InsightConfiguration::Fields smallLimits()
{
    return {
        .minimumLargeFileBytes = kPage,
        .minimumDuplicateFileBytes = std::int64_t{1} << 40,
        .minimumReviewFileAge = TestSupport::kDay,
        .maximumVisitedItemsPerRoot = 8'000,
        .maximumResultCount = 250,
        .maximumRecentReviewSkippedItems = 250,
        .maximumDuplicateHashFiles = 500,
        .maximumDuplicateFullHashBytesPerFile = 1 << 29,
        .maximumDuplicateHashBytes = 1 << 30,
    };
}

/// A home in the layout of macOS.
class InsightTest : public testing::Test {
protected:
    MacStorageInsightReport scan(
        const MacStorageInsightScanner::ProgressHandler& handler = {}, const std::stop_token& stop = {}) const
    {
        return scanner().scan(m_tree.now(), handler, stop);
    }

    [[nodiscard]] MacStorageInsightScanner scanner() const
    {
        return {m_tree.url("home/"), *m_fileManager, InsightConfiguration(m_limits), m_options};
    }

    [[nodiscard]] static std::vector<std::string> names(const std::vector<FileInsight>& insights)
    {
        std::vector<std::string> names;
        for (const auto& insight : insights) {
            names.push_back(insight.displayName);
        }
        return names;
    }

    /// "path: reason" of each skipped item, the path counted from the home.
    [[nodiscard]] std::vector<std::string> skipped(const MacStorageInsightReport& report) const
    {
        const auto home = m_tree.path("home");
        std::vector<std::string> lines;
        for (const auto& item : report.skippedItems) {
            const auto& path = item.url.path();
            const auto below = path.starts_with(home + "/") ? path.substr(home.size() + 1) : path;
            lines.push_back(below + ": " + item.reason);
        }
        return lines;
    }

    [[nodiscard]] static StorageMapItem bar(const MacStorageInsightReport& report, std::string_view displayName)
    {
        const auto found = std::ranges::find(report.heatmapItems, displayName, &StorageMapItem::displayName);
        EXPECT_NE(found, report.heatmapItems.end()) << displayName;
        return found == report.heatmapItems.end() ? StorageMapItem() : *found;
    }

    TemporaryTree m_tree{"home/Library/"};
    Platform::PosixFileManager m_posix;
    const Platform::FileManager* m_fileManager = &m_posix;
    InsightConfiguration::Fields m_limits = smallLimits();
    MacStorageInsightScanner::Options m_options{
        .currentSnapshot = [] { return CleanerCore::SystemResourceSnapshot(); }, .jobs = 1};
};

} // namespace InsightTests
