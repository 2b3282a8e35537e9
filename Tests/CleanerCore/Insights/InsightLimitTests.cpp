#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <vector>

using namespace CleanerCore;

namespace {

/// The limits that a scan of a small home tells of.
std::vector<InsightLimit> limitsMet(const InsightConfiguration& configuration, InsightAnalyses analyses = {})
{
    const TestSupport::TemporaryTree tree("home/Downloads/\n"
                                          "    a text=twins\n"
                                          "    b text=twins\n"
                                          "    new size=8K age=1m\n"
                                          "    small count=200 size=1");
    const Platform::PosixFileManager fileManager;
    std::vector<InsightLimit> limits;
    const MacStorageInsightScanner scanner(tree.url("home/"), fileManager, configuration,
        {.analyses = analyses, .jobs = 1, .limitHandler = [&](InsightLimit limit) { limits.push_back(limit); }});
    const auto report = scanner.scan(tree.now());
    EXPECT_EQ(report.isTruncated, !limits.empty());
    return limits;
}

InsightConfiguration configuration()
{
    auto limits = InsightConfiguration::standard();
    limits.minimumDuplicateFileBytes = 2;
    return limits;
}

} // namespace

TEST(InsightLimit, IsToldOfWhereItWasMetAndOnlyThere)
{
    using enum InsightLimit;
    using Limits = std::vector<InsightLimit>;
    EXPECT_EQ(limitsMet(configuration()), Limits{});

    auto visitsOnly = configuration();
    visitsOnly.maximumVisitedItemsPerRoot = 128;
    EXPECT_EQ(limitsMet(visitsOnly), Limits{visits});

    auto recentOnly = configuration();
    recentOnly.maximumRecentReviewSkippedItems = 0;
    EXPECT_EQ(limitsMet(recentOnly), Limits{recentFiles});
    EXPECT_EQ(limitsMet(recentOnly, {.largeFiles = false, .downloads = false}), Limits{});

    auto duplicatesOnly = configuration();
    duplicatesOnly.maximumDuplicateHashFiles = 1;
    EXPECT_EQ(limitsMet(duplicatesOnly), Limits{duplicates});
    EXPECT_EQ(limitsMet(duplicatesOnly, {.duplicates = false}), Limits{});

    auto both = duplicatesOnly;
    both.maximumRecentReviewSkippedItems = 0;
    EXPECT_EQ(limitsMet(both), (Limits{recentFiles, duplicates}));
}
