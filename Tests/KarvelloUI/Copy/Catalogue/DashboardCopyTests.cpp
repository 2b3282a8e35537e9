#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <gtest/gtest.h>
#include <vector>

namespace KarvelloUI {
namespace {

TEST(DashboardCopy, NamesTheSections)
{
    std::vector<std::string> titles;
    for (const MacDashboardSection section : Platform::allCases<MacDashboardSection>()) {
        titles.push_back(kEnglish.macDashboardSectionTitle(section));
    }
    EXPECT_EQ(titles,
        (std::vector<std::string>{"Live Dashboard", "Cleanup Review", "Review & Evidence", "Storage Map", "Large Files",
            "Downloads", "Duplicates", "Installer Review", "System Pulse", "CPU Analysis", "Memory Analysis",
            "iOS Guide", "Settings"}));
}

TEST(DashboardCopy, SaysWhatTheHomeScreenKnows)
{
    EXPECT_EQ(kEnglish.dashboardHomeScanSummaryBody(HomeScanState::needsAccess),
        "System status is already visible. Grant home access, then scan to find cleanup candidates.");
    EXPECT_EQ(kEnglish.dashboardHomeScanSummaryBody(HomeScanState::scanned),
        "Home shows only the numbers. Review per-item reasons and paths in Cleanup Review.");
    EXPECT_EQ(kEnglish.dashboardAccessButtonTitle(false), "Grant Access");
    EXPECT_EQ(kKorean.dashboardAccessButtonTitle(true), "접근 권한 변경");
}

TEST(DashboardCopy, CountsNoProjectsAsNoEvidence)
{
    EXPECT_EQ(kEnglish.dashboardReviewEvidenceProjectSummary(0, 1536), "No project scan evidence yet");
    EXPECT_EQ(kEnglish.dashboardReviewEvidenceProjectSummary(1, 1536), "1.5 KB · review before Trash move");
}

TEST(DashboardCopy, TellsBothBuildsWhatAccessTheyNeed)
{
    EXPECT_EQ(kEnglish.macOnboardingEyebrow(), "First-run setup");
    EXPECT_EQ(kEnglish.macOnboardingTitle(), "Review what will be cleaned before anything moves.");
    EXPECT_EQ(kEnglish.macOnboardingScanFirstBody(),
        "The app does not clean on launch. It lists paths, sizes, and safety context before you choose anything.");
    EXPECT_EQ(kEnglish.macOnboardingAccessTitle(false), "User-selected access");
    EXPECT_EQ(kEnglish.macOnboardingAccessTitle(true), "Direct app: Full Disk Access recommended");
    EXPECT_NE(kEnglish.macOnboardingAccessBody(true), kEnglish.macOnboardingAccessBody(false));
    EXPECT_EQ(kEnglish.macOnboardingPrimaryButton(true), "Start Scan");
    EXPECT_EQ(kEnglish.macOnboardingPrimaryButton(false), "Grant Access and Start Scan");
}

TEST(DashboardCopy, PutsThePathBelowWhatFinderDid)
{
    EXPECT_EQ(kEnglish.finderItemMissingTitle(), "Opened Parent Folder");
    EXPECT_EQ(
        kEnglish.finderItemMissingMessage("~/a"), "The item no longer exists, so the parent folder was opened.\n~/a");
    EXPECT_EQ(kEnglish.finderRevealFailedTitle(), "Could Not Open in Finder");
    EXPECT_EQ(kEnglish.finderRevealFailedMessage("~/a"), "Finder could not open this item.\n~/a");
    EXPECT_EQ(kKorean.finderRevealFailedMessage("~/{}\xff"), "Finder에서 이 항목을 열 수 없습니다.\n~/{}\xff");
}

} // namespace
} // namespace KarvelloUI
