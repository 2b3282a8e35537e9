#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/SteppingFileManager.h"
#include "Tests/Support/UnsettledTrash.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <thread>

namespace CleaningTests {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::SteppingFileManager;
using TestSupport::UnsettledTrash;

/// With the desktop's Trash and three cleaned items: each is in exactly one place at the end, and the result says where.
class TrashRestoreServiceFaultTest : public CleaningTest {
protected:
    TrashRestoreServiceFaultTest() { m_trash = &m_unsettled; }

    void begin()
    {
        for (const auto* const folder : {"home/Caches", "home/.local/share/Trash"}) {
            if (exists(m_tree.path(folder))) {
                m_tree.remove(folder);
            }
        }
        m_tree.add("home/Caches/\n    a size=10\n    b/\n        x size=5000\n    c size=20");
        m_fileManager = &m_posix;
        m_items = clean(scan()).cleanedItems;
        ASSERT_THAT(m_items, SizeIs(3));
    }

    void expectTruth(const RestoreResult& result, const std::string& round) const
    {
        std::vector<std::string> restored;
        for (const auto& item : result.restoredItems) {
            restored.emplace_back(item.restoredURL.lastPathComponent());
        }
        EXPECT_EQ(names(item("")), restored) << round;
        EXPECT_EQ(names(trashFolder()).size(), m_items.size() - restored.size()) << round;
        if (!result.wasCancelled) {
            EXPECT_EQ(result.restoredItems.size() + result.failedItems.size(), m_items.size()) << round;
        }
        expectSoundTrash();
    }

    std::vector<CleanedItem> m_items;
    UnsettledTrash m_unsettled{m_linuxTrash};
};

TEST_F(TrashRestoreServiceFaultTest, PutsItemsBackFromTheTrashOfTheDesktop)
{
    begin();
    EXPECT_THAT(names(trashFolder()), ElementsAre("a", "b", "c"));
    const auto result = restore(m_items);
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_THAT(names(item("")), ElementsAre("a", "b", "c"));
    EXPECT_TRUE(exists(path("b/x")));
    EXPECT_THAT(names(trashFolder()), IsEmpty());
    expectSoundTrash();
}

TEST_F(TrashRestoreServiceFaultTest, PutsBackADatabaseThatWasTakenFromTheCachesOfALibrary)
{
    m_tree.add("home/Library/Caches/app/\nhome/Library/Caches/app/Cache.db size=10");
    const auto candidates = scan({location("home/Library/Caches/app/")});
    const auto cleaned = clean(candidates);
    ASSERT_THAT(cleaned.cleanedItems, SizeIs(1));
    const auto result = restore(cleaned.cleanedItems);
    EXPECT_THAT(result.restoredItems, SizeIs(1));
    EXPECT_THAT(result.failedItems, IsEmpty());
}

TEST_F(TrashRestoreServiceFaultTest, RefusesAnItemWhoseRecordAnotherProgramTookAway)
{
    begin();
    std::filesystem::remove(m_tree.path("home/.local/share/Trash/info/b.trashinfo"));
    const auto result = restore({m_items.at(1)});
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason,
        "The file “b” couldn’t be put back because the Trash has no record that says where it was.");
    EXPECT_THAT(names(trashFolder()), ElementsAre("a", "b", "c"));
}

TEST_F(TrashRestoreServiceFaultTest, RefusesAnItemThatIsNoLongerInTheTrash)
{
    begin();
    m_tree.remove("home/.local/share/Trash/files/a");
    expectRefused(restore({m_items.at(0)}), Kind::restoreDestinationMissing, *m_items[0].destinationURL);
}

TEST_F(TrashRestoreServiceFaultTest, TellsTheTruthWhateverCallFailsOnceOrFromThenOn)
{
    constexpr std::array calls{FileManagerCall::existence, FileManagerCall::resourceValues,
        FileManagerCall::identityValues, FileManagerCall::attributes, FileManagerCall::volumeSupportsCaseSensitiveNames,
        FileManagerCall::resolvingSymbolicLinks};
    std::size_t rounds = 0;
    for (const auto call : calls) {
        for (const auto duration : {FaultDuration::once, FaultDuration::fromThenOn}) {
            for (std::size_t nth = 1;; ++nth) {
                begin();
                FaultyFileManager faulty(m_posix);
                faulty.fail({.call = call, .systemError = EIO, .nth = nth, .duration = duration});
                m_fileManager = &faulty;
                const auto result = restore(m_items);
                if (faulty.failureCount() == 0) {
                    break;
                }
                ++rounds;
                expectTruth(result, "call " + std::to_string(static_cast<int>(call)) + ", nth " + std::to_string(nth));
            }
        }
    }
    EXPECT_GT(rounds, 100U);
}

TEST_F(TrashRestoreServiceFaultTest, TellsTheTruthWhereverItIsStopped)
{
    std::size_t step = 0;
    for (bool wasReached = true; wasReached;) {
        ++step;
        begin();
        std::stop_source source;
        const SteppingFileManager stepping(m_posix, [&](std::size_t number, FileManagerCall) {
            if (number == step) {
                source.request_stop();
            }
        });
        m_fileManager = &stepping;
        const auto result = restore(m_items, source.get_token());
        wasReached = stepping.count() >= step;
        EXPECT_EQ(result.wasCancelled, wasReached);
        EXPECT_THAT(result.failedItems, IsEmpty()) << step;
        expectTruth(result, "stop before step " + std::to_string(step));
    }
    EXPECT_GT(step, 50U);
}

TEST_F(TrashRestoreServiceFaultTest, NeverOverwritesWhatAppearsAtAnyStep)
{
    std::size_t step = 0;
    for (bool wasReached = true; wasReached;) {
        ++step;
        begin();
        bool appeared = false;
        const SteppingFileManager stepping(m_posix, [&](std::size_t number, FileManagerCall) {
            if (number == step && !exists(path("a"))) {
                std::ofstream(path("a")) << "newer";
                appeared = true;
            }
        });
        m_fileManager = &stepping;
        const auto result = restore({m_items.at(0)});
        wasReached = stepping.count() >= step;
        if (appeared) {
            expectRefused(result, Kind::restoreDestinationExists, item("a"));
            EXPECT_EQ(std::filesystem::file_size(path("a")), 5U) << step;
            EXPECT_THAT(names(trashFolder()), ElementsAre("a", "b", "c")) << step;
        } else {
            EXPECT_THAT(result.restoredItems, SizeIs(1)) << step;
        }
        expectSoundTrash();
    }
    EXPECT_GT(step, 20U);
}

TEST_F(TrashRestoreServiceFaultTest, TwoServicesThatRestoreTheSameItemsPutEachBackOnce)
{
    for (int round = 0; round < 20; ++round) {
        begin();
        Platform::LinuxTrash otherTrash(m_posix, m_tree.url("home/.local/share/"));
        UnsettledTrash otherUnsettled(otherTrash);
        RestoreResult first;
        RestoreResult second;
        {
            const std::jthread other([&] {
                second =
                    TrashRestoreService(m_posix, otherUnsettled).restore(m_items, m_locations, *m_policy, {}, home());
            });
            first = restore(m_items);
        }
        EXPECT_EQ(first.restoredItems.size() + second.restoredItems.size(), 3U);
        EXPECT_EQ(first.failedItems.size() + second.failedItems.size(), 3U);
        EXPECT_THAT(names(item("")), ElementsAre("a", "b", "c"));
        EXPECT_THAT(names(trashFolder()), IsEmpty());
        expectSoundTrash();
    }
}

} // namespace CleaningTests
