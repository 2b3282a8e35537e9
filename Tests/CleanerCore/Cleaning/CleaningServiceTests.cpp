#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Tests/Support/ForwardingFileManager.h"
#include "Tests/Support/SteppingFileManager.h"

#include <filesystem>
#include <fstream>
#include <utility>

namespace CleaningTests {

using testing::IsEmpty;
using testing::SizeIs;
using TestSupport::FileManagerCall;
using TestSupport::SteppingFileManager;

TEST_F(CleaningServiceTest, GivesAnEmptyResultForNoCandidates)
{
    scan();
    EXPECT_EQ(clean({}), CleanResult());
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

TEST_F(CleaningServiceTest, CannotVerifyWhatStandsThereAfterwardsAndTellsNothing)
{
    class Hiding final : public TestSupport::ForwardingFileManager {
    public:
        using ForwardingFileManager::ForwardingFileManager;
        bool hides = false;
        [[nodiscard]] Platform::FingerprintReadings fingerprintReadings(
            const Platform::ItemReference& reference) const override
        {
            const std::unexpected failure(Platform::FileError{});
            return hides ? Platform::FingerprintReadings{failure, failure} : inner().fingerprintReadings(reference);
        }
    };
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    Hiding hiding(m_posix);
    m_fileManager = &hiding;
    m_fakeTrash->behaviour.afterMove = [&] {
        std::ofstream(path("a")) << "new";
        hiding.hides = true;
    };
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

} // namespace CleaningTests
