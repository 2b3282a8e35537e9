#include "Tests/CleanerCore/Insights/InsightFixture.h"

#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/SteppingFileManager.h"

#include <cerrno>
#include <filesystem>
#include <fmt/format.h>
#include <random>

namespace InsightTests {

using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::SteppingFileManager;

class InsightBudgets : public InsightTest {
protected:
    InsightBudgets() { m_limits.maximumVisitedItemsPerRoot = 128; }
};

TEST_F(InsightBudgets, AllowExactlyTheirVisits)
{
    m_tree.add("home/Documents/f count=128 size=4K");
    auto report = scan();
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 128);
    EXPECT_FALSE(bar(report, "~/Documents").isTruncated);
    EXPECT_FALSE(report.isTruncated);
    m_tree.add("home/Documents/g size=4K");
    report = scan();
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 128);
    EXPECT_EQ(bar(report, "~/Documents").sizeBytes, 128 * kPage);
    EXPECT_TRUE(bar(report, "~/Documents").isTruncated);
    EXPECT_TRUE(report.isTruncated);
}

TEST_F(InsightBudgets, CountLinksAmongTheVisits)
{
    std::string links;
    for (int index = 0; index < 127; ++index) {
        links += fmt::format("home/Pictures/l{} -> nowhere\n", index);
    }
    m_tree.add(links + "home/Pictures/file size=4K");
    auto report = scan();
    EXPECT_FALSE(bar(report, "~/Pictures").isTruncated);
    EXPECT_EQ(bar(report, "~/Pictures").itemCount, 1);
    m_tree.add("home/Pictures/one-more -> nowhere");
    EXPECT_TRUE(bar(scan(), "~/Pictures").isTruncated);
}

TEST_F(InsightBudgets, StandForEachRootByItself)
{
    m_tree.add(
        "home/Documents/f count=100 size=4K\nhome/Downloads/f count=100 size=4K\nhome/Music/f count=200 size=4K");
    const auto report = scan();
    EXPECT_FALSE(bar(report, "~/Documents").isTruncated);
    EXPECT_FALSE(bar(report, "~/Downloads").isTruncated);
    EXPECT_TRUE(bar(report, "~/Music").isTruncated);
}

TEST_F(InsightBudgets, AreSharedByThePackagesOfAllRoots)
{
    m_tree.add(R"(
        home/Downloads/A.app/f count=100 size=4K
        home/Desktop/B.app/f   count=28  size=4K
        home/Documents/C.app/f count=3   size=4K
        home/Documents/E.app/
        home/Pictures/D.app/f  count=3   size=4K
    )");
    const auto report = scan();
    EXPECT_EQ(bar(report, "~/Downloads").itemCount, 101);
    EXPECT_EQ(bar(report, "~/Desktop").itemCount, 29);
    EXPECT_FALSE(bar(report, "~/Desktop").isTruncated);
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 2);
    EXPECT_EQ(bar(report, "~/Documents").sizeBytes, 0);
    EXPECT_TRUE(bar(report, "~/Documents").isTruncated);
    EXPECT_EQ(bar(report, "~/Pictures").itemCount, 1);
    EXPECT_TRUE(bar(report, "~/Pictures").isTruncated);
    EXPECT_TRUE(report.isTruncated);
    EXPECT_EQ(report.securityFindings.size(), 5U);
}

TEST_F(InsightBudgets, CutAPackageWhereTheyEnd)
{
    m_tree.add("home/Downloads/A.app/f count=100 size=4K\nhome/Desktop/B.app/f count=29 size=4K");
    const auto report = scan();
    EXPECT_EQ(bar(report, "~/Desktop").itemCount, 29);
    EXPECT_EQ(bar(report, "~/Desktop").sizeBytes, 28 * kPage);
    EXPECT_TRUE(bar(report, "~/Desktop").isTruncated);
}

TEST_F(InsightBudgets, AreSpentOnceForAPackageThatTwoRootsHold)
{
    m_tree.add("home/Work/in/A.app/f count=100 size=4K\nhome/Work/in/z.bundle/f count=28 size=4K");
    m_options.roots = {m_tree.url("home/Work/"), m_tree.url("home/Work/in/")};
    const auto report = scan();
    EXPECT_EQ(bar(report, "~/Work").itemCount, 131);
    EXPECT_EQ(bar(report, "~/Work/in").itemCount, 130);
    EXPECT_FALSE(report.isTruncated);
}

class InsightFaults : public InsightTest, public testing::WithParamInterface<unsigned> {
protected:
    InsightFaults() { m_options.jobs = GetParam(); }

    MacStorageInsightReport scanWith(TestSupport::Fault fault)
    {
        FaultyFileManager faulty(m_posix);
        faulty.fail(std::move(fault));
        m_fileManager = &faulty;
        auto report = scan();
        EXPECT_GT(faulty.failureCount(), 0U);
        m_fileManager = &m_posix;
        return report;
    }
};

INSTANTIATE_TEST_SUITE_P(Jobs, InsightFaults, testing::Values(1U, 2U));

TEST_P(InsightFaults, TellOfAFolderThatCannotBeOpened)
{
    m_tree.add("home/Documents/a size=4K\nhome/Documents/locked/b size=4K\nhome/Documents/c/d size=4K");
    m_tree.add("home/Documents/locked/ mode=000");
    if (std::filesystem::exists(m_tree.path("home/Documents/locked/b"))) {
        m_tree.add("home/Documents/locked/ mode=755");
        FaultyFileManager faulty(m_posix);
        faulty.fail(
            {.call = FileManagerCall::listFolder, .systemError = EACCES, .path = m_tree.path("home/Documents/locked")});
        m_fileManager = &faulty;
        const auto report = scan();
        EXPECT_EQ(faulty.failureCount(), 1U);
        EXPECT_THAT(skipped(report),
            ElementsAre("Documents/locked: The file “locked” couldn’t be opened because you "
                        "don’t have permission to view it."));
        EXPECT_EQ(bar(report, "~/Documents").itemCount, 4);
        m_fileManager = &m_posix;
        return;
    }
    const auto report = scan();
    EXPECT_THAT(skipped(report),
        ElementsAre("Documents/locked: The file “locked” couldn’t be opened because you don’t "
                    "have permission to view it."));
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 4);
    EXPECT_FALSE(report.isTruncated);
}

TEST_P(InsightFaults, TellOfAnItemThatCannotBeLookedAt)
{
    m_tree.add("home/Documents/a size=4K\nhome/Documents/b size=4K");
    const auto report = scanWith(
        {.call = FileManagerCall::entryResourceValues, .systemError = EIO, .path = m_tree.path("home/Documents/a")});
    EXPECT_THAT(skipped(report),
        ElementsAre("Documents/a: The file “a” couldn’t be opened because the volume reported a read error."));
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 1);
}

TEST_P(InsightFaults, EnterAFolderThatCannotBeLookedAt)
{
    m_tree.add("home/Documents/a/inner size=4K");
    const auto report = scanWith(
        {.call = FileManagerCall::entryResourceValues, .systemError = EIO, .path = m_tree.path("home/Documents/a")});
    EXPECT_EQ(report.skippedItems.size(), 1U);
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 1);
    EXPECT_THAT(names(report.largeFiles), ElementsAre("inner"));
}

TEST_P(InsightFaults, TellOfARootThatCannotBeEnumerated)
{
    m_tree.add("home/Documents/a size=4K\nhome/Music/a size=4K");
    const auto report = scanWith(
        {.call = FileManagerCall::makeEnumerator, .systemError = EMFILE, .path = m_tree.path("home/Documents")});
    EXPECT_THAT(skipped(report), ElementsAre("Documents: Could not enumerate folder"));
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 0);
    EXPECT_FALSE(report.isTruncated);
    EXPECT_EQ(bar(report, "~/Music").itemCount, 1);
}

TEST_P(InsightFaults, TellOfAPackageThatCannotBeEnumerated)
{
    m_tree.add("home/Documents/A.app/f size=4K");
    const auto report = scanWith(
        {.call = FileManagerCall::makeEnumerator, .systemError = EMFILE, .path = m_tree.path("home/Documents/A.app")});
    EXPECT_THAT(skipped(report), ElementsAre("Documents/A.app: Could not enumerate package"));
    EXPECT_EQ(bar(report, "~/Documents").itemCount, 1);
    EXPECT_FALSE(report.isTruncated);
    EXPECT_EQ(report.securityFindings.size(), 1U);
}

TEST_P(InsightFaults, TellOfItemsAsTheyAriseAndOfFoldersAtTheEndOfTheirRoot)
{
    m_tree.add(
        "home/Documents/p/a size=4K\nhome/Documents/q/b size=4K\nhome/Documents/r/c size=4K\nhome/Music/m size=4K");
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::listFolder, .systemError = EIO, .path = m_tree.path("home/Documents/p")});
    faulty.fail(
        {.call = FileManagerCall::entryResourceValues, .systemError = EIO, .path = m_tree.path("home/Documents/q/b")});
    faulty.fail(
        {.call = FileManagerCall::entryResourceValues, .systemError = EIO, .path = m_tree.path("home/Music/m")});
    m_fileManager = &faulty;
    const auto report = scan();
    m_fileManager = &m_posix;
    EXPECT_EQ(faulty.failureCount(), 3U);
    const auto text = " couldn’t be opened because the volume reported a read error.";
    EXPECT_THAT(skipped(report),
        ElementsAre(std::string("Documents/q/b: The file “b”") + text, std::string("Documents/p: The file “p”") + text,
            std::string("Music/m: The file “m”") + text));
}

TEST_F(InsightTest, SurvivesAFolderThatVanishesAtEachStep)
{
    for (std::size_t at = 1; at < 200; ++at) {
        m_tree.add("home/Documents/a/b/c size=4K\nhome/Documents/X.app/d/e size=4K\nhome/Documents/z size=4K");
        SteppingFileManager stepping(m_posix, [&](std::size_t number, FileManagerCall) {
            if (number == at) {
                m_tree.remove("home/Documents/a");
                m_tree.remove("home/Documents/X.app");
            }
        });
        m_fileManager = &stepping;
        const auto report = scan();
        m_fileManager = &m_posix;
        EXPECT_LE(bar(report, "~/Documents").itemCount, 7);
        EXPECT_GE(bar(report, "~/Documents").itemCount, 1);
        EXPECT_FALSE(report.isTruncated);
        if (at > stepping.count()) {
            return;
        }
        m_tree.remove("home/Documents");
    }
    FAIL() << "the scan has more steps than were tried";
}

TEST_F(InsightTest, StopsAtEachStep)
{
    m_tree.add("home/Documents/a/b size=4K\nhome/Documents/X.app/d size=4K\nhome/Music/m size=4K");
    const auto whole = scan();
    for (std::size_t at = 1; at < 200; ++at) {
        std::stop_source source;
        std::size_t stepsAfter = 0;
        SteppingFileManager stepping(m_posix, [&](std::size_t number, FileManagerCall call) {
            if (number == at) {
                source.request_stop();
            } else if (number > at && call == FileManagerCall::nextEntry) {
                ++stepsAfter;
            }
        });
        m_fileManager = &stepping;
        const auto report = scan({}, source.get_token());
        m_fileManager = &m_posix;
        EXPECT_EQ(stepsAfter, 0U) << at;
        EXPECT_FALSE(report.isTruncated);
        EXPECT_LE(report.heatmapItems.size(), whole.heatmapItems.size());
        for (const auto& item : report.heatmapItems) {
            EXPECT_LE(item.itemCount, bar(whole, item.displayName).itemCount);
        }
        if (at > stepping.count()) {
            EXPECT_EQ(report, whole);
            return;
        }
    }
    FAIL() << "the scan has more steps than were tried";
}

TEST_F(InsightTest, KeepsWhatItHadWhenItStopped)
{
    m_tree.add("home/Documents/f count=2000 size=4K");
    std::stop_source source;
    const auto report = scan(
        [&](const auto& progress) {
            if (progress.visitedItems >= 1000) {
                source.request_stop();
            }
        },
        source.get_token());
    EXPECT_GE(bar(report, "~/Documents").itemCount, 1000);
    EXPECT_LT(bar(report, "~/Documents").itemCount, 2000);
    EXPECT_FALSE(report.isTruncated);
    EXPECT_FALSE(report.largeFiles.empty());
}

} // namespace InsightTests
