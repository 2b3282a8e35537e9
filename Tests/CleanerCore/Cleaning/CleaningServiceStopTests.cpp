#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Tests/Support/SteppingFileManager.h"

#include <functional>
#include <utility>

namespace CleaningTests {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;
using TestSupport::FileManagerCall;
using TestSupport::SteppingFileManager;

TEST_F(CleaningServiceTest, GivesAnEmptyCancelledResultAndTouchesNothingWhenItWasStoppedBefore)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    std::stop_source source;
    source.request_stop();
    const auto result = clean(candidates, CleaningMode::moveToTrash, source.get_token());
    EXPECT_THAT(result.cleanedItems, IsEmpty());
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_THAT(m_fakeTrash->itemAnchors(), IsEmpty());
    EXPECT_THAT(names(item("")), ElementsAre("a", "b", "c"));
}

TEST_F(CleaningServiceTest, JudgesNoCandidateWhenItWasStoppedBefore)
{
    m_tree.add(kThreeItems);
    auto forged = scan().at(0);
    forged.category = CleanupCategory::userLogs;
    std::stop_source source;
    source.request_stop();
    const auto result = clean({forged}, CleaningMode::moveToTrash, source.get_token());
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_TRUE(result.wasCancelled);
}

TEST_F(CleaningServiceTest, KeepsWhatWasDoneBeforeAStopAndLeavesTheRestOutOfTheResult)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    std::stop_source source;
    m_fakeTrash->behaviour.afterMove = [&] { source.request_stop(); };
    const auto result = clean(candidates, CleaningMode::moveToTrash, source.get_token());
    EXPECT_THAT(result.cleanedItems, SizeIs(1));
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_THAT(names(item("")), ElementsAre("b", "c"));
}

TEST_F(CleaningServiceTest, IsNotCancelledByAStopDuringTheLastMove)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    std::stop_source source;
    m_fakeTrash->behaviour.beforeMove = [&] { source.request_stop(); };
    const auto result = clean(candidates, CleaningMode::moveToTrash, source.get_token());
    EXPECT_THAT(result.cleanedItems, SizeIs(1));
    EXPECT_FALSE(result.wasCancelled);
}

TEST_F(CleaningServiceTest, TellsOfEachItemThatWasDealtWith)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    std::filesystem::remove_all(path("b"));
    EXPECT_THAT(clean(candidates).failedItems, SizeIs(1));
    EXPECT_THAT(m_progress, ElementsAre(Pair(1, 3), Pair(2, 3), Pair(3, 3)));
}

TEST_F(CleaningServiceTest, SettlesOnceAfterAllMoves)
{
    m_tree.add(kThreeItems);
    const auto result = clean(scan());
    EXPECT_THAT(result.cleanedItems, SizeIs(3));
    EXPECT_THAT(m_fakeTrash->settleCalls(), ElementsAre(3));
}

TEST_F(CleaningServiceTest, SettlesAlsoAfterAStop)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    std::stop_source source;
    m_fakeTrash->behaviour.afterMove = [&] { source.request_stop(); };
    EXPECT_TRUE(clean(candidates, CleaningMode::moveToTrash, source.get_token()).wasCancelled);
    EXPECT_THAT(m_fakeTrash->settleCalls(), ElementsAre(1));
}

TEST_F(CleaningServiceTest, ReportsItemsAsMovedAlsoWhereSettlingFails)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    m_fakeTrash->behaviour.settleFailure = Platform::FileErrorKind::inputOutput;
    const auto result = clean(candidates);
    EXPECT_THAT(result.cleanedItems, SizeIs(3));
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_THAT(names(m_fakeTrash->folder()), ElementsAre("a", "b", "c"));
}

/// Acts once, at the first call of this kind after a walk.
SteppingFileManager::Step afterWalk(FileManagerCall wanted, std::function<void()> action)
{
    return [wanted, action = std::move(action), hasWalked = false](std::size_t, FileManagerCall call) mutable {
        hasWalked = hasWalked || call == FileManagerCall::nextEntry;
        if (hasWalked && call == wanted && action) {
            std::exchange(action, nullptr)();
        }
    };
}

class CleaningServiceAfterWalkTest : public CleaningServiceTest {
protected:
    CleaningServiceAfterWalkTest()
    {
        m_tree.add("home/Caches/a/\n    x size=10");
        m_candidates = scan();
    }

    /// The same folder, by way of a link.
    void makeRootALink()
    {
        std::filesystem::rename(path(""), m_tree.path("home/Moved"));
        std::filesystem::create_directory_symlink("Moved", path(""));
    }

    CleanResult cleanActing(FileManagerCall when, std::function<void()> action)
    {
        const SteppingFileManager stepping(m_posix, afterWalk(when, std::move(action)));
        m_fileManager = &stepping;
        auto result = clean(m_candidates, CleaningMode::moveToTrash, m_source.get_token());
        m_fileManager = &m_posix;
        return result;
    }

    std::vector<CleanupCandidate> m_candidates;
    std::stop_source m_source;
};

TEST_F(CleaningServiceAfterWalkTest, ValidatesThePathAgain)
{
    const auto result = cleanActing(FileManagerCall::identityValues, [this] { makeRootALink(); });
    expectRefused(result, Kind::pathNotAllowed, m_tree.url("home/Moved/a"));
    EXPECT_THAT(m_fakeTrash->itemAnchors(), IsEmpty());
}

TEST_F(CleaningServiceAfterWalkTest, HonoursAStopBeforeItValidatesThePathAgain)
{
    const auto result = cleanActing(FileManagerCall::identityValues, [this] {
        m_source.request_stop();
        makeRootALink();
    });
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_THAT(result.failedItems, IsEmpty());
}

TEST_F(CleaningServiceAfterWalkTest, HonoursAStopWhileThePathIsValidatedAgain)
{
    const auto result = cleanActing(FileManagerCall::resolvingSymbolicLinks, [this] { m_source.request_stop(); });
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_THAT(m_fakeTrash->itemAnchors(), IsEmpty());
    EXPECT_TRUE(exists(path("a")));
}

} // namespace CleaningTests
