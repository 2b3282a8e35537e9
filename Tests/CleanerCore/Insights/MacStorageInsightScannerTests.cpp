#include "Tests/CleanerCore/Insights/InsightFixture.h"

#include <fmt/format.h>

namespace InsightTests {

using CleanerCore::CleanupSafety;
using CleanerCore::FileInsightKind;

TEST_F(InsightTest, OfAHomeWithoutTheFoldersIsEmpty)
{
    m_tree.add("home/Elsewhere/big size=1M");
    const auto report = scan();
    EXPECT_THAT(report.heatmapItems, IsEmpty());
    EXPECT_THAT(report.largeFiles, IsEmpty());
    EXPECT_THAT(report.downloadFiles, IsEmpty());
    EXPECT_THAT(report.securityFindings, IsEmpty());
    EXPECT_THAT(report.skippedItems, IsEmpty());
    EXPECT_FALSE(report.isTruncated);
    EXPECT_EQ(report.scannedAt, m_tree.now());
}

TEST_F(InsightTest, LooksAtTheFoldersOfMacOSInTheirOrder)
{
    m_tree.add(R"(
        home/Library/Developer/
        home/Library/"Application Support"/
        home/Library/Caches/
        home/Music/
        home/Pictures/
        home/Movies/
        home/Documents/
        home/Desktop/
        home/Downloads/
        home/Videos/
    )");
    m_tree.remove("home/Movies");
    m_tree.add("home/Movies text=\"no folder\"");
    std::vector<std::string> roots;
    const auto report = scan([&](const auto& progress) {
        if (roots.empty() || roots.back() != progress.root.lastPathComponent()) {
            roots.emplace_back(progress.root.lastPathComponent());
        }
    });
    EXPECT_THAT(roots,
        ElementsAre("Downloads", "Desktop", "Documents", "Pictures", "Music", "Application Support", "Developer"));
    EXPECT_EQ(report.heatmapItems.size(), 7U);
    EXPECT_EQ(bar(report, "~/Library/Application Support").id, m_tree.path("home/Library/Application Support"));
}

TEST_F(InsightTest, ListsAFileOfExactlyTheMinimumAndNoneBelow)
{
    m_limits.minimumLargeFileBytes = 2 * kPage;
    m_tree.add(R"(
        home/Documents/
            enough size=8K
            less   size=4K
            sparse size=1G sparse
    )");
    const auto report = scan();
    EXPECT_THAT(names(report.largeFiles), ElementsAre("enough"));
    const auto& insight = report.largeFiles.front();
    EXPECT_EQ(insight.id, "largeFile:" + m_tree.path("home/Documents/enough"));
    EXPECT_EQ(insight.sizeBytes, 2 * kPage);
    EXPECT_EQ(insight.detail, "Large file");
    EXPECT_EQ(insight.safety, CleanupSafety::caution);
    ASSERT_TRUE(insight.resourceIdentity);
    EXPECT_EQ(insight.resourceIdentity->fileSize, 2 * kPage);
    EXPECT_EQ(bar(report, "~/Documents").sizeBytes, 3 * kPage);
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 3);
}

TEST_F(InsightTest, CompareTheMinimumToTheByte)
{
    m_limits.minimumLargeFileBytes = kPage + 1;
    m_tree.add("home/Documents/page size=4K");
    EXPECT_THAT(scan().largeFiles, IsEmpty());
    m_limits.minimumLargeFileBytes = kPage;
    EXPECT_THAT(names(scan().largeFiles), ElementsAre("page"));
}

TEST_F(InsightTest, PassesOverWhatWasModifiedAfterTheCutoff)
{
    m_limits.minimumLargeFileBytes = kPage;
    m_tree.add(R"(
        home/Documents/
            at-cutoff    size=4K age=86400s
            second-later size=4K age=86399s
            small-new    size=0 text="" age=1s
            old          size=4K age=9d
    )");
    const auto report = scan();
    EXPECT_THAT(names(report.largeFiles), UnorderedElementsAre("at-cutoff", "old"));
    EXPECT_THAT(skipped(report), ElementsAre("Documents/second-later: Recently modified"));
    EXPECT_FALSE(report.isTruncated);
}

TEST_F(InsightTest, NamesARecentFileOnceForBothLists)
{
    m_limits.minimumLargeFileBytes = 2 * kPage;
    m_tree.add(R"(
        home/Downloads/
            small text="x" age=1h
            new   size=8K age=1h
            old   text="x"
    )");
    const auto report = scan();
    EXPECT_THAT(report.largeFiles, IsEmpty());
    EXPECT_THAT(names(report.downloadFiles), ElementsAre("old"));
    EXPECT_EQ(report.downloadFiles.front().kind, FileInsightKind::download);
    EXPECT_EQ(report.downloadFiles.front().detail, "Downloads item");
    EXPECT_THAT(skipped(report), ElementsAre("Downloads/new: Recently modified", "Downloads/small: Recently modified"));
}

TEST_F(InsightTest, SkipsNothingAsRecentWithoutAnAge)
{
    m_limits.minimumReviewFileAge = 0;
    m_tree.add("home/Downloads/new size=4K age=-1h");
    const auto report = scan();
    EXPECT_THAT(names(report.largeFiles), ElementsAre("new"));
    EXPECT_THAT(names(report.downloadFiles), ElementsAre("new"));
    EXPECT_THAT(report.skippedItems, IsEmpty());
}

TEST_F(InsightTest, TellsByItsFlagWhatTheListOfRecentFilesLeavesOut)
{
    m_tree.add("home/Downloads/new count=5 size=4K age=1h");
    for (const auto maximum : {0, 4, 5}) {
        m_limits.maximumRecentReviewSkippedItems = maximum;
        const auto report = scan();
        EXPECT_EQ(report.skippedItems.size(), static_cast<std::size_t>(maximum));
        EXPECT_EQ(report.isTruncated, maximum < 5) << maximum;
    }
}

TEST_F(InsightTest, KeepsTheBestOfMoreFilesThanAListHolds)
{
    m_limits.maximumResultCount = 20;
    m_tree.add("home/Documents/f count=30 size=4K\nhome/Documents/huge size=8K\nhome/Documents/older size=4K age=90d");
    const auto report = scan();
    ASSERT_EQ(report.largeFiles.size(), 20U);
    EXPECT_EQ(report.largeFiles[0].displayName, "huge");
    EXPECT_EQ(report.largeFiles[1].displayName, "older");
    EXPECT_EQ(report.largeFiles[2].displayName, "f0");
    EXPECT_EQ(report.largeFiles[3].displayName, "f1");
    EXPECT_EQ(report.largeFiles[4].displayName, "f10");
    EXPECT_FALSE(report.isTruncated);
}

TEST_F(InsightTest, TakesAnApplicationForOneItem)
{
    m_tree.add(R"(
        home/Documents/Editor.app/Contents/
            binary size=64K
            Inner.framework/lib size=4K
            .hidden size=4K
            link -> binary
        home/Documents/Data.bundle/file size=8K
    )");
    const auto report = scan();
    EXPECT_THAT(report.largeFiles, IsEmpty());
    ASSERT_THAT(names(report.securityFindings), ElementsAre("Editor.app"));
    const auto& finding = report.securityFindings.front();
    EXPECT_EQ(finding.detail, "Application bundle");
    EXPECT_EQ(finding.sizeBytes, 17 * kPage);
    EXPECT_EQ(finding.safety, CleanupSafety::manualReview);
    EXPECT_EQ(finding.url, m_tree.url("home/Documents/Editor.app/"));
    // Editor.app, Contents, binary, Inner.framework, lib; Data.bundle, file.
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 7);
    EXPECT_EQ(bar(report, "~/Documents").sizeBytes, 19 * kPage);
}

TEST_F(InsightTest, TakesAFolderOfASuspiciousNameForAPackage)
{
    m_tree.add("home/Downloads/keygen/sub/file size=4K\nhome/Downloads/crack.txt size=4K");
    const auto report = scan();
    ASSERT_THAT(names(report.securityFindings), ElementsAre("keygen"));
    EXPECT_EQ(report.securityFindings.front().detail, "Suspicious filename pattern");
    EXPECT_EQ(report.securityFindings.front().sizeBytes, kPage);
    EXPECT_THAT(names(report.downloadFiles), ElementsAre("crack.txt"));
}

TEST_F(InsightTest, FindsAFreshInstallerAtOnce)
{
    m_tree.add("home/Downloads/SETUP.PKG size=4K age=0s");
    const auto report = scan();
    EXPECT_THAT(names(report.securityFindings), ElementsAre("SETUP.PKG"));
    EXPECT_THAT(skipped(report), ElementsAre("Downloads/SETUP.PKG: Recently modified"));
}

TEST_F(InsightTest, LetsPriorityDecideWhoGetsOntoAFullList)
{
    m_limits.maximumResultCount = 20;
    m_tree.add(R"(
        home/Documents/
            big     size=4M
            link    count=1
        home/Documents/w/
    )");
    std::string layout;
    for (int index = 0; index < 15; ++index) {
        layout += fmt::format("home/Documents/p{}.pkg text=x\nhome/Documents/m{}.webloc size=64K\n", index, index);
    }
    layout += "home/Documents/q.mobileconfig text=x\n";
    m_tree.add(layout);
    const auto report = scan();
    ASSERT_EQ(report.securityFindings.size(), 20U);
    EXPECT_EQ(std::ranges::count(report.securityFindings, "Installer package", &FileInsight::detail), 15);
    EXPECT_EQ(std::ranges::count(report.securityFindings, "Configuration profile", &FileInsight::detail), 1);
    // By size, whatever the priority.
    EXPECT_EQ(report.securityFindings.front().detail, "Web shortcut");
    EXPECT_FALSE(report.isTruncated);
}

TEST_F(InsightTest, CountsNoHiddenFiles)
{
    m_tree.add("home/Documents/.hidden size=1M\nhome/Documents/.folder/file size=1M\nhome/Documents/seen size=4K");
    const auto report = scan();
    EXPECT_THAT(names(report.largeFiles), ElementsAre("seen"));
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 1);
}

TEST_F(InsightTest, FollowsNoLink)
{
    m_tree.add(R"(
        elsewhere/big size=1M
        home/Documents/file -> ../../elsewhere/big
        home/Documents/folder -> ../../elsewhere
        home/Documents/keygen -> ../../elsewhere
    )");
    const auto report = scan();
    EXPECT_THAT(report.largeFiles, IsEmpty());
    EXPECT_THAT(report.securityFindings, IsEmpty());
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 0);
    EXPECT_EQ(bar(report, "~/Documents").sizeBytes, 0);
}

TEST_F(InsightTest, CountsWhatIsNoFileButKeepsNoRecordOfIt)
{
    m_tree.add("home/Downloads/pipe.pkg fifo\nhome/Downloads/empty.pkg text=\"\"\nhome/Downloads/socket.sh socket");
    const auto report = scan();
    EXPECT_EQ(bar(report, "~/Downloads").itemCount, 3);
    EXPECT_THAT(report.downloadFiles, IsEmpty());
    EXPECT_THAT(report.securityFindings, IsEmpty());
}

TEST_F(InsightTest, CountsEachNameOfAFile)
{
    m_tree.add("home/Documents/one size=8K\nhome/Documents/two => home/Documents/one");
    const auto report = scan();
    EXPECT_EQ(bar(report, "~/Documents").sizeBytes, 4 * kPage);
    EXPECT_EQ(report.largeFiles.size(), 2U);
}

TEST_F(InsightTest, TakesNamesThatAreNoText)
{
    m_tree.add("home/Downloads/\"a\\xFF\\n\" size=4K\nhome/Downloads/\"\\xFE crack.zip\" "
               "size=4K\nhome/Downloads/\"n\"*255 size=4K");
    const auto report = scan();
    EXPECT_THAT(names(report.largeFiles), UnorderedElementsAre("a\xFF\n", "\xFE crack.zip", std::string(255, 'n')));
    EXPECT_THAT(names(report.securityFindings), ElementsAre("\xFE crack.zip"));
    EXPECT_EQ(
        report.securityFindings.front().id, "securitySignal:" + m_tree.path("home/Downloads") + "///xFE crack.zip");
}

TEST_F(InsightTest, CountsWhatASparseFileOccupies)
{
    m_tree.add("home/Downloads/sparse size=8000G sparse\nhome/Downloads/real size=4K");
    m_limits.minimumDuplicateFileBytes = 1;
    const auto report = scan();
    EXPECT_EQ(bar(report, "~/Downloads").sizeBytes, kPage);
    ASSERT_THAT(names(report.downloadFiles), ElementsAre("real", "sparse"));
    EXPECT_EQ(report.downloadFiles.back().sizeBytes, 0);
}

TEST_F(InsightTest, FindsDuplicatesAcrossRoots)
{
    m_limits.minimumDuplicateFileBytes = 4;
    m_tree.add(R"(
        home/Documents/a text="same"
        home/Downloads/b text="same"
        home/Downloads/c text="else"
        home/Music/a => home/Documents/a
    )");
    const auto report = scan();
    ASSERT_EQ(report.duplicateGroups.size(), 1U);
    EXPECT_EQ(report.duplicateGroups.front().sizeBytes, 4);
    EXPECT_EQ(names(report.duplicateGroups.front().files).back(), "b");
    EXPECT_EQ(report.duplicateGroups.front().files.size(), 2U);
    m_options.analyses.duplicates = false;
    EXPECT_THAT(scan().duplicateGroups, IsEmpty());
}

TEST_F(InsightTest, TellsThatTheSearchForDuplicatesWasCut)
{
    m_limits.minimumDuplicateFileBytes = 4;
    m_limits.maximumDuplicateHashFiles = 1;
    m_tree.add("home/Documents/a count=3 text=same");
    EXPECT_TRUE(scan().isTruncated);
}

TEST_F(InsightTest, MakesOnlyTheListsThatAreAskedFor)
{
    m_tree.add("home/Downloads/SETUP.PKG size=4K\nhome/Downloads/new size=4K age=1s");
    m_options.analyses = {.largeFiles = false, .downloads = false, .duplicates = false, .securityFindings = true};
    const auto report = scan();
    EXPECT_THAT(report.largeFiles, IsEmpty());
    EXPECT_THAT(report.downloadFiles, IsEmpty());
    EXPECT_THAT(names(report.securityFindings), ElementsAre("SETUP.PKG"));
    EXPECT_THAT(report.skippedItems, IsEmpty());
}

TEST_F(InsightTest, ScansOtherRootsOnlyIfTheyAreSafe)
{
    m_tree.add("home/Work/file size=4K\nhome/link -> Work");
    m_options.roots = {m_tree.url("home/Work/"), m_tree.url("home/"), m_tree.url("home/link/"),
        m_tree.url("home/missing/"), Platform::FileURL::folder("/etc")};
    const auto report = scan();
    EXPECT_EQ(bar(report, "~/Work").itemCount, 1);
    ASSERT_EQ(report.heatmapItems.size(), 5U);
    ASSERT_EQ(report.skippedItems.size(), 4U);
    for (const auto& item : report.skippedItems) {
        EXPECT_THAT(item.reason, testing::StartsWith("Path is outside the active scan scope: "));
        EXPECT_EQ(bar(report, scanner().displayName(item.url)).itemCount, 0);
    }
}

TEST_F(InsightTest, KeepsAFileOnceWhereRootsLieInEachOther)
{
    m_tree.add("home/Work/a size=4K\nhome/Work/in/b size=4K\nhome/Work/in/X.app/c size=8K");
    m_options.roots = {m_tree.url("home/Work/"), m_tree.url("home/Work/in/")};
    const auto report = scan();
    EXPECT_THAT(names(report.largeFiles), UnorderedElementsAre("a", "b"));
    EXPECT_THAT(names(report.securityFindings), ElementsAre("X.app"));
    EXPECT_EQ(bar(report, "~/Work").sizeBytes, 4 * kPage);
    EXPECT_EQ(bar(report, "~/Work/in").sizeBytes, 3 * kPage);
}

TEST_F(InsightTest, NamesFoldersFromTheHome)
{
    const auto made = scanner();
    EXPECT_EQ(made.displayName(m_tree.url("home/")), "~");
    EXPECT_EQ(made.displayName(m_tree.url("home/a/b")), "~/a/b");
    EXPECT_EQ(made.displayName(m_tree.url("homestead")), m_tree.path("homestead"));
}

} // namespace InsightTests
