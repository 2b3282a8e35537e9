#include "KarvelloCLI/ScanPlan.h"

#include "KarvelloCLI/WorkingDirectory.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace KarvelloCLI;
using CleanerCore::CleanupScanMode;
using Platform::FileURL;
using TestSupport::TemporaryTree;

namespace {

struct ScanPlanTest : testing::Test {
    ScanPlan plan(const ScanOptions& options) const
    {
        auto made = ScanPlan::make(options, tree.root(), tree.url("home/"), {}, files);
        EXPECT_TRUE(made) << made.error();
        return made.value_or(ScanPlan{});
    }

    Platform::PosixFileManager files;
    TemporaryTree tree{
        "home/\n    .cache/pip/http-v2/\n        blob size=1K\n    Downloads/\nother/\nreal/\n    .cache/pip/x/\n"
        "link -> real"};
};

} // namespace

TEST(AbsoluteFolder, CountsFromTheWorkingDirectory)
{
    const FileURL here = FileURL::folder("/home/ada/work");
    EXPECT_EQ(absoluteFolder("x", here), FileURL::folder("/home/ada/work/x"));
    EXPECT_EQ(absoluteFolder("../x/", here), FileURL::folder("/home/ada/x"));
    EXPECT_EQ(absoluteFolder(".", here), here);
    EXPECT_EQ(absoluteFolder("/srv//x/", here), FileURL::folder("/srv/x"));
    EXPECT_EQ(absoluteFolder("~", here), FileURL::folder("/home/ada/work/~")) << "the shell knows tildes, not we";
}

TEST_F(ScanPlanTest, IsOfTheHomeInStandardModeWithoutOptions)
{
    const ScanPlan plan = this->plan({});
    EXPECT_EQ(plan.subject.mode, CleanupScanMode::standard);
    EXPECT_EQ(plan.subject.home, tree.url("home/"));
    EXPECT_TRUE(std::ranges::any_of(
        plan.locations, [&](const auto& location) { return location.rootURL == tree.url("home/.cache/pip/"); }));
}

TEST_F(ScanPlanTest, APlainRootIsForReviewAndNeverSelected)
{
    ScanOptions options;
    options.roots = {"other"};
    options.minimumAge = 60;
    options.includesHiddenFiles = true;
    const ScanPlan plan = this->plan(options);
    ASSERT_EQ(plan.locations.size(), 1U);
    const CleanerCore::ScanLocation& location = plan.locations.front();
    EXPECT_EQ(location.rootURL, tree.url("other/"));
    EXPECT_EQ(location.category, CleanerCore::CleanupCategory::customFolder);
    EXPECT_EQ(location.safety, CleanerCore::CleanupSafety::manualReview);
    EXPECT_FALSE(location.isSelectedByDefault);
    EXPECT_EQ(location.minimumModificationAge, 60);
    EXPECT_TRUE(location.includesHiddenFiles);
    EXPECT_FALSE(location.includesPackageDescendants);
    EXPECT_FALSE(plan.subject.mode);
}

TEST_F(ScanPlanTest, AnAddedFolderHoldsBackWhatIsYoungWhateverTheOptionsOfRoots)
{
    ScanOptions options;
    options.folders = {"other"};
    options.roots = {"real"};
    options.minimumAge = 5;
    options.includesHiddenFiles = true;
    const ScanPlan plan = this->plan(options);
    ASSERT_EQ(plan.locations.size(), 2U);
    EXPECT_EQ(plan.locations[0].rootURL, tree.url("other/"));
    EXPECT_EQ(plan.locations[0].minimumModificationAge, 86400);
    EXPECT_FALSE(plan.locations[0].includesHiddenFiles);
    EXPECT_FALSE(plan.locations[0].isSelectedByDefault);
    EXPECT_EQ(plan.locations[0].safety, CleanerCore::CleanupSafety::manualReview);
}

TEST_F(ScanPlanTest, ARefusedFolderIsKeptWithItsReason)
{
    ScanOptions options;
    options.folders = {"/", "missing", "other"};
    const ScanPlan plan = this->plan(options);
    EXPECT_EQ(plan.locations.size(), 1U);
    ASSERT_EQ(plan.refusedFolders.size(), 2U);
    EXPECT_EQ(plan.refusedFolders[0].reason, "Selected folder is too broad or protected for cleanup scanning: /");
    EXPECT_EQ(plan.refusedFolders[1].reason, "Selected item is not an accessible folder: " + tree.path("missing"));
    EXPECT_EQ(plan.subject.folders.size(), 3U);
}

TEST_F(ScanPlanTest, AFolderNamedTwiceIsOne)
{
    ScanOptions options;
    options.roots = {"other", "./other/", tree.path("other")};
    EXPECT_EQ(plan(options).locations.size(), 1U);
}

TEST_F(ScanPlanTest, AHomeBehindALinkIsScannedByItsRealPath)
{
    ScanOptions options;
    options.home = "link";
    const ScanPlan plan = this->plan(options);
    EXPECT_EQ(plan.subject.home, tree.url("real/"));
    EXPECT_TRUE(std::ranges::any_of(
        plan.locations, [&](const auto& location) { return location.rootURL == tree.url("real/.cache/pip/"); }));
}

TEST_F(ScanPlanTest, AHomeThatIsNoFolderIsAnError)
{
    ScanOptions options;
    options.home = "missing";
    const auto made = ScanPlan::make(options, tree.root(), tree.url("home/"), {}, files);
    ASSERT_FALSE(made);
    EXPECT_THAT(made.error(), testing::HasSubstr(tree.path("missing")));
}

TEST_F(ScanPlanTest, TellsOfEachFolderThatCountsTwice)
{
    ScanOptions options;
    options.mode = CleanupScanMode::standard;
    options.roots = {"home/.cache", "home/.cache/pip/http-v2", "other"};
    const std::vector<std::string> sentences = plan(options).overlaps();
    ASSERT_FALSE(sentences.empty());
    for (const std::string& sentence : sentences) {
        EXPECT_THAT(sentence, testing::HasSubstr(".cache"));
    }
    options.roots = {"other"};
    EXPECT_THAT(plan(options).overlaps(), testing::IsEmpty());
}
