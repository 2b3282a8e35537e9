#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/CleanupSafety.h"
#include "CleanerCore/Scan/CleanupScanMode.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace CleanerCore {

namespace {

std::vector<CleanupScanMode> list(std::span<const CleanupScanMode> modes)
{
    return {modes.begin(), modes.end()};
}

} // namespace

TEST(CleanupSafety, HasNamesAndAnOrder)
{
    std::vector<std::string_view> names;
    std::vector<int> priorities;
    for (const auto safety : Platform::allCases<CleanupSafety>()) {
        names.push_back(displayName(safety));
        priorities.push_back(sortPriority(safety));
    }
    EXPECT_EQ(names, (std::vector<std::string_view>{"Safe", "Caution", "Manual Review"}));
    EXPECT_EQ(priorities, (std::vector{0, 1, 2}));
    EXPECT_EQ(Platform::rawValue(CleanupSafety::manualReview), "manualReview");
}

TEST(CleanupCategory, HasADisplayNameForEachCase)
{
    std::vector<std::string_view> names;
    for (const auto category : Platform::allCases<CleanupCategory>()) {
        names.push_back(displayName(category));
    }
    EXPECT_EQ(names,
        (std::vector<std::string_view>{"User Caches", "User Logs", "Xcode DerivedData", "Simulator Caches",
            "This App's Caches", "App Container Caches", "Group Container Caches", "Xcode DeviceSupport",
            "Developer Tool Caches", "Package Manager Caches", "Build Archives", "Temporary Files", "Custom Folder"}));
}

TEST(CleanupCategory, ExplainsEachCaseInItsOwnSentences)
{
    std::set<std::string_view> explanations;
    for (const auto category : Platform::allCases<CleanupCategory>()) {
        EXPECT_TRUE(explanation(category).ends_with('.'));
        explanations.insert(explanation(category));
    }
    EXPECT_EQ(explanations.size(), 13U);
    EXPECT_EQ(explanation(CleanupCategory::userLogs),
        "Diagnostic logs in the current user's Library/Logs folder. Useful for debugging, but often safe to archive or "
        "remove.");
    EXPECT_EQ(explanation(CleanupCategory::xcodeDeviceSupport),
        "DeviceSupport files used by Xcode for physical-device debugging. They can often be regenerated or "
        "re-downloaded, but "
        "removal may slow the next device debugging setup.");
    EXPECT_EQ(explanation(CleanupCategory::customFolder),
        "A user-selected folder. Review contents carefully before cleaning.");
}

TEST(CleanupCategory, AsksForManualReviewInFourCases)
{
    std::vector<CleanupCategory> reviewed;
    for (const auto category : Platform::allCases<CleanupCategory>()) {
        if (requiresManualReviewByDefault(category)) {
            reviewed.push_back(category);
        }
    }
    EXPECT_EQ(reviewed,
        (std::vector{CleanupCategory::developerToolCaches, CleanupCategory::packageManagerCaches,
            CleanupCategory::buildArchives, CleanupCategory::customFolder}));
}

TEST(CleanupRecommendationReason, IsOneForEachCategory)
{
    EXPECT_EQ(recommendationReason(CleanupCategory::userCaches), CleanupRecommendationReason::regenerableUserCache);
    EXPECT_EQ(
        recommendationReason(CleanupCategory::groupContainerCaches), CleanupRecommendationReason::sharedContainerCache);
    EXPECT_EQ(recommendationReason(CleanupCategory::customFolder), CleanupRecommendationReason::userSelectedFolder);
    std::set<CleanupRecommendationReason> reasons;
    for (const auto category : Platform::allCases<CleanupCategory>()) {
        reasons.insert(recommendationReason(category));
    }
    EXPECT_EQ(reasons.size(), Platform::allCases<CleanupRecommendationReason>().size());
}

TEST(CleanupScanMode, OffersTheDirectModeOnlyInADirectDistribution)
{
    const std::vector guarded{CleanupScanMode::standard, CleanupScanMode::aggressive};
    const std::vector all{CleanupScanMode::standard, CleanupScanMode::aggressive, CleanupScanMode::direct};
    EXPECT_EQ(list(appStoreModes()), guarded);
    EXPECT_EQ(list(directDistributionModes()), all);
    EXPECT_EQ(list(availableModes(false)), guarded);
    EXPECT_EQ(list(availableModes(true)), all);
}

TEST(CleanupScanMode, FallsBackToStandardWhereAModeIsNotAvailable)
{
    EXPECT_EQ(sanitized(CleanupScanMode::direct, false), CleanupScanMode::standard);
    EXPECT_EQ(sanitized(CleanupScanMode::aggressive, false), CleanupScanMode::aggressive);
    EXPECT_EQ(sanitized(CleanupScanMode::standard, false), CleanupScanMode::standard);
    for (const auto mode : Platform::allCases<CleanupScanMode>()) {
        EXPECT_EQ(sanitized(mode, true), mode);
    }
}

} // namespace CleanerCore
