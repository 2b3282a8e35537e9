#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/SteppingFileManager.h"

#include <cmath>
#include <fstream>
#include <functional>
#include <limits>
#include <utility>

namespace CleaningTests {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::SteppingFileManager;

/// With a plain Trash: what the service decides, and what it hands to the Trash.
class CleaningServiceTest : public CleaningTest {
protected:
    CleaningServiceTest() { useFakeTrash(); }

    static constexpr std::string_view kThreeItems =
        "home/Caches/\n    a size=10\n    b/\n        x size=5000\n    c size=20";
};

TEST_F(CleaningServiceTest, GivesAnEmptyResultForNoCandidates)
{
    scan();
    EXPECT_EQ(clean({}), CleanResult());
}

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

TEST_F(CleaningServiceTest, MovesEachCandidateAndTellsWhereItIs)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    ASSERT_THAT(candidates, SizeIs(3));
    const auto result = clean(candidates);
    ASSERT_THAT(result.cleanedItems, SizeIs(3));
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_FALSE(result.wasCancelled);
    for (std::size_t index = 0; index < 3; ++index) {
        const auto& cleaned = result.cleanedItems[index];
        EXPECT_EQ(cleaned.candidate, candidates[index]);
        ASSERT_TRUE(cleaned.destinationURL);
        EXPECT_TRUE(exists(*cleaned.destinationURL));
        EXPECT_FALSE(exists(cleaned.candidate.url));
        EXPECT_EQ(cleaned.restoreSourceRootURL->path(), m_fakeTrash->folder().path());
        EXPECT_TRUE(cleaned.restoreSourceIdentity);
        EXPECT_EQ(
            cleaned.restoreSourceIdentity, FileResourceIdentity::captureIfAvailable(*cleaned.destinationURL, m_posix));
    }
}

TEST_F(CleaningServiceTest, RecordsNoPlaceForAMoveThatToldNone)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    m_fakeTrash->behaviour.tellsPlace = false;
    const auto result = clean(candidates);
    ASSERT_THAT(result.cleanedItems, SizeIs(1));
    EXPECT_FALSE(result.cleanedItems[0].destinationURL);
    EXPECT_FALSE(result.cleanedItems[0].restoreSourceRootURL);
    EXPECT_FALSE(result.cleanedItems[0].restoreSourceIdentity);
}

TEST_F(CleaningServiceTest, RecordsAnIdentityAsItIsAfterTheMove)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    m_fakeTrash->behaviour.afterMove = [this] { m_tree.setAge("home/Bin/a", 5); };
    const auto result = clean(candidates);
    ASSERT_THAT(result.cleanedItems, SizeIs(1));
    EXPECT_NE(result.cleanedItems[0].restoreSourceIdentity, candidates[0].resourceIdentity);
}

TEST_F(CleaningServiceTest, DeletesPermanentlyThroughTheTrashAndRecordsNoPlace)
{
    m_tree.add(kThreeItems);
    const auto result = clean(scan(), CleaningMode::deletePermanently);
    ASSERT_THAT(result.cleanedItems, SizeIs(3));
    EXPECT_THAT(names(item("")), IsEmpty());
    EXPECT_THAT(names(m_fakeTrash->folder()), IsEmpty());
    EXPECT_FALSE(result.cleanedItems[0].destinationURL);
    EXPECT_FALSE(result.cleanedItems[0].restoreSourceRootURL);
    EXPECT_FALSE(result.cleanedItems[0].restoreSourceIdentity);
}

TEST_F(CleaningServiceTest, TiesTheMoveToTheLiveRootAndTheScannedIdentity)
{
    m_tree.add("home/Caches/a size=10\nhome/Caches/b size=10");
    const auto candidates = scan();
    ASSERT_THAT(clean(candidates).cleanedItems, SizeIs(2));
    const auto& anchor = m_fakeTrash->itemAnchors().at(0);
    const auto root = m_posix.attributes(item(""));
    EXPECT_EQ(anchor.root.url.path(), path(""));
    EXPECT_EQ(anchor.root.systemNumber, root->systemNumber);
    EXPECT_EQ(anchor.root.systemFileNumber, root->systemFileNumber);
    EXPECT_EQ(anchor.item, candidates[0].url);
    EXPECT_TRUE(anchor.isConfirmed(m_posix.fingerprintReadings(m_tree.url("home/Bin/a"))));
    EXPECT_FALSE(anchor.isConfirmed(m_posix.fingerprintReadings(m_tree.url("home/Bin/b"))));
    EXPECT_FALSE(anchor.isConfirmed(m_posix.fingerprintReadings(m_tree.url("home/Bin/none"))));
}

TEST_F(CleaningServiceTest, TiesTheMoveOfACandidateWithoutAnIdentityToWhatStoodThereBeforeTheWalk)
{
    m_tree.add("home/Caches/a/\n    x size=10\nhome/Caches/other/\n    y size=10");
    scan();
    const CleanupCandidate candidate({.url = item("a/")});
    bool isSwapped = false;
    const SteppingFileManager stepping(m_posix, [&](std::size_t, FileManagerCall call) {
        if (call == FileManagerCall::nextEntry && !std::exchange(isSwapped, true)) {
            std::filesystem::rename(path("a"), path("mine"));
            std::filesystem::rename(path("other"), path("a"));
        }
    });
    m_fileManager = &stepping;
    expectRefused(clean({candidate}), Kind::cleanupCandidateChanged, item("a"));
    EXPECT_TRUE(isSwapped);
    EXPECT_TRUE(exists(path("a/y")));
}

TEST_F(CleaningServiceTest, RefusesACandidateOfWhichNothingCanBeTold)
{
    m_tree.add("home/Caches/a size=10");
    scan();
    FaultyFileManager faulty(m_posix);
    using enum FileManagerCall;
    for (const auto call : {identityValues, attributes}) {
        faulty.fail({.call = call, .systemError = EIO, .duration = FaultDuration::fromThenOn, .path = path("a")});
    }
    m_fileManager = &faulty;
    expectRefused(clean({CleanupCandidate({.url = item("a")})}), Kind::unreadableAttributes, item("a"));
    EXPECT_TRUE(m_fakeTrash->itemAnchors().empty());
}

TEST_F(CleaningServiceTest, RefusesAScannedCandidateOfWhichNothingCanBeToldAnyMore)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    FaultyFileManager faulty(m_posix);
    using enum FileManagerCall;
    for (const auto call : {identityValues, attributes}) {
        faulty.fail({.call = call, .systemError = EIO, .duration = FaultDuration::fromThenOn, .path = path("a")});
    }
    m_fileManager = &faulty;
    expectRefused(clean(candidates), Kind::unreadableAttributes, item("a"));
}

TEST_F(CleaningServiceTest, RefusesACandidateWhoseIdAndPathDoNotAgreeBeforeItLooksAtAnything)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    auto otherPath = candidates[0];
    otherPath.url = candidates[1].url;
    auto otherCategory = candidates[0];
    otherCategory.category = CleanupCategory::userLogs;
    const SteppingFileManager stepping(m_posix, [](std::size_t, FileManagerCall) {});
    m_fileManager = &stepping;
    expectRefused(clean({otherPath}), Kind::pathNotAllowed, candidates[1].url);
    const auto looksForNoCandidate = stepping.count();
    expectRefused(clean({otherCategory}), Kind::pathNotAllowed, candidates[0].url);
    EXPECT_EQ(stepping.count(), 2 * looksForNoCandidate);
    static_cast<void>(clean({}));
    EXPECT_EQ(stepping.count(), 3 * looksForNoCandidate);
    EXPECT_THAT(names(item("")), ElementsAre("a", "b", "c"));
}

TEST_F(CleaningServiceTest, RefusesANoTouchPathAsOutsideOfTheScope)
{
    m_tree.add("home/Caches/P.photoslibrary/\n    x size=10");
    scan();
    const CleanupCandidate forged({.url = item("P.photoslibrary/"), .category = CleanupCategory::userCaches});
    expectRefused(clean({forged}), Kind::pathNotAllowed, forged.url);
}

TEST_F(CleaningServiceTest, RefusesWhatLiesInNoRootOfTheScan)
{
    m_tree.add("home/Caches/a size=10\nhome/Documents/letter size=10");
    scan();
    for (const auto& url : {m_tree.url("home/Documents/letter"), item(""), m_tree.url("home/")}) {
        expectRefused(clean({CleanupCandidate({.url = url})}), Kind::pathNotAllowed, url);
    }
}

TEST_F(CleaningServiceTest, RefusesWhatLiesInARootOfThePolicyThatIsNoLocationOfTheClean)
{
    m_tree.add("home/Caches/a size=10\nhome/Logs/");
    const auto candidates = scan();
    m_locations = {location("home/Logs/")};
    expectRefused(clean(candidates), Kind::pathNotAllowed, item("a"));
}

TEST_F(CleaningServiceTest, RefusesEverythingInARootThatWasReplaced)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    std::filesystem::rename(path(""), m_tree.path("home/Caches.old"));
    std::filesystem::create_directory(path(""));
    for (const auto& name : {"a", "b", "c"}) {
        std::filesystem::rename(m_tree.path("home/Caches.old/" + std::string(name)), path(name));
    }
    const auto result = clean(candidates);
    EXPECT_THAT(result.cleanedItems, IsEmpty());
    ASSERT_THAT(result.failedItems, SizeIs(3));
    for (const auto& failed : result.failedItems) {
        EXPECT_EQ(failed.reason, words(Kind::pathNotAllowed, failed.candidate.url));
    }
}

TEST_F(CleaningServiceTest, RefusesAProtectedPathFoundInsideByItsOwnPath)
{
    m_tree.add("home/Caches/a/\n    x size=10");
    const auto candidates = scan();
    m_tree.add("home/Caches/a/.hidden/P.photoslibrary/");
    expectRefused(clean(candidates), Kind::protectedUserData, item("a/.hidden/P.photoslibrary"));
}

TEST_F(CleaningServiceTest, UsesTheRulesOfTheRootThatHoldsTheCandidate)
{
    m_tree.add("home/Caches/a/ age=9h\n    x size=10 age=9h\n    .h age=9h\nhome/Logs/b/ age=9h\n    x size=10 "
               "age=9h\n    .h age=9h");
    const auto candidates = scan({location("home/Caches/"), location("home/Logs/", {.includesHiddenFiles = true})});
    ASSERT_THAT(candidates, SizeIs(2));
    m_tree.setAge("home/Caches/a/.h", 60);
    m_tree.setAge("home/Logs/b/.h", 60);
    const auto result = clean(candidates);
    ASSERT_THAT(result.cleanedItems, SizeIs(1));
    EXPECT_EQ(result.cleanedItems[0].candidate.displayName, "a");
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason, words(Kind::cleanupCandidateRecentlyModified, m_tree.url("home/Logs/b")));
}

TEST_F(CleaningServiceTest, RefusesMoreDescendantsThanTheLimit)
{
    m_tree.add("home/Caches/a/\n    x size=1\n    .hidden count=1000");
    const auto candidates = scan();
    ASSERT_THAT(candidates, SizeIs(1));
    expectRefused(clean(candidates), Kind::cleanupValidationItemLimitExceeded, item("a"));
}

TEST_F(CleaningServiceTest, AllowsADateThatIsOffByLessThanOneSecondInEitherDirection)
{
    for (const double difference : {-1.1, -0.9, 0.9, 1.1}) {
        m_tree.add("home/Caches/a size=10");
        auto candidates = scan();
        candidates.at(0).lastModified = candidates[0].lastModified->addingSeconds(difference);
        const auto result = clean(candidates);
        if (std::abs(difference) < 1) {
            EXPECT_THAT(result.cleanedItems, SizeIs(1)) << difference;
            m_tree.remove("home/Bin/a");
        } else {
            expectRefused(result, Kind::cleanupCandidateRecentlyModified, item("a"));
            m_tree.remove("home/Caches/a");
        }
    }
}

TEST_F(CleaningServiceTest, RefusesADateThatIsNoNumber)
{
    m_tree.add("home/Caches/a size=10");
    auto candidates = scan();
    candidates.at(0).lastModified = Platform::Date{std::numeric_limits<double>::quiet_NaN()};
    expectRefused(clean(candidates), Kind::cleanupCandidateRecentlyModified, item("a"));
}

TEST_F(CleaningServiceTest, ComparesTheDateAlsoForACandidateWithoutAnIdentity)
{
    m_tree.add("home/Caches/a size=10");
    auto candidates = scan();
    candidates.at(0).resourceIdentity.reset();
    m_tree.setAge("home/Caches/a", 60);
    expectRefused(clean(candidates), Kind::cleanupCandidateRecentlyModified, item("a"));
}

TEST_F(CleaningServiceTest, CleansACandidateWithNeitherStoredValue)
{
    m_tree.add("home/Caches/a size=10");
    scan();
    EXPECT_THAT(clean({CleanupCandidate({.url = item("a")})}).cleanedItems, SizeIs(1));
}

TEST_F(CleaningServiceTest, GivesTheTrashsOwnWordsForItsFailures)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    m_fakeTrash->behaviour.failure = Platform::FileErrorKind::outOfSpace;
    const auto trashed = clean(candidates);
    ASSERT_THAT(trashed.failedItems, SizeIs(1));
    EXPECT_EQ(trashed.failedItems[0].reason,
        "The file “a” couldn’t be moved to the Trash because the volume is out of space.");
    const auto removed = clean(candidates, CleaningMode::deletePermanently);
    ASSERT_THAT(removed.failedItems, SizeIs(1));
    EXPECT_EQ(removed.failedItems[0].reason, "The file “a” couldn’t be removed because the volume is out of space.");
}

TEST_F(CleaningServiceTest, SaysThatTheItemChangedWhenTheTrashFoundAnotherOne)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    m_fakeTrash->behaviour.failure = Platform::FileErrorKind::itemChanged;
    for (const auto mode : {CleaningMode::moveToTrash, CleaningMode::deletePermanently}) {
        expectRefused(clean(candidates, mode), Kind::cleanupCandidateChanged, item("a"));
    }
}

TEST_F(CleaningServiceTest, CountsAFolderThatAnApplicationMadeAnewAsSuccess)
{
    m_tree.add("home/Caches/a/\n    x size=10");
    const auto candidates = scan();
    m_fakeTrash->behaviour.afterMove = [this] { std::filesystem::create_directory(path("a")); };
    EXPECT_THAT(clean(candidates).cleanedItems, SizeIs(1));
}

TEST_F(CleaningServiceTest, CannotVerifyWhatStandsThereAfterwardsForACandidateWithoutAnIdentity)
{
    m_tree.add("home/Caches/a size=10");
    auto candidates = scan();
    candidates.at(0).resourceIdentity.reset();
    m_fakeTrash->behaviour.afterMove = [this] { std::ofstream(path("a")) << "new"; };
    expectRefused(clean(candidates), Kind::cleanupPostOperationVerificationFailed, item("a"));
}

TEST_F(CleaningServiceTest, ReportsAMoveThatDidNotHappen)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    m_fakeTrash->behaviour.pretends = true;
    for (const auto mode : {CleaningMode::moveToTrash, CleaningMode::deletePermanently}) {
        expectRefused(clean(candidates, mode), Kind::cleanupPostOperationVerificationFailed, item("a"));
    }
    EXPECT_TRUE(exists(path("a")));
}

TEST_F(CleaningServiceTest, GoesOnWithTheNextCandidateAfterARefusal)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    m_tree.setAge("home/Caches/b/x", 60);
    const auto result = clean(candidates);
    ASSERT_THAT(result.cleanedItems, SizeIs(2));
    EXPECT_EQ(result.cleanedItems[0].candidate.displayName, "a");
    EXPECT_EQ(result.cleanedItems[1].candidate.displayName, "c");
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].candidate, candidates[1]);
    EXPECT_EQ(result.failedItems[0].reason, words(Kind::cleanupCandidateRecentlyModified, item("b")));
}

TEST_F(CleaningServiceTest, RefusesTheSameCandidateTheSecondTime)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    const auto result = clean({candidates.at(0), candidates.at(0)});
    EXPECT_THAT(result.cleanedItems, SizeIs(1));
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason, words(Kind::unreadableAttributes, item("a")));
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

} // namespace CleaningTests
