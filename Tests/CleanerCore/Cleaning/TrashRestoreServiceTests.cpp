#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Tests/Support/AlteringFileManager.h"
#include "Tests/Support/FaultyFileManager.h"

#include <cerrno>
#include <fstream>

namespace CleaningTests {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;

/// With a plain Trash: one folder, `Caches/a`, was cleaned and is to go back.
class TrashRestoreServiceTest : public CleaningTest {
protected:
    TrashRestoreServiceTest()
    {
        useFakeTrash();
        m_tree.add("home/Caches/a/\n    x size=10\nhome/Caches/b size=10");
        m_items = clean(scan()).cleanedItems;
        if (m_items.size() == 2) {
            m_item = m_items[0];
        }
    }

    [[nodiscard]] FileURL trashed() const { return m_tree.url("home/Bin/a"); }

    /// Refused for this reason, and nothing moved or was asked to.
    void expectKept(Kind kind, const FileURL& url)
    {
        expectRefused(restore({m_item}), kind, url);
        EXPECT_TRUE(m_fakeTrash->restoreAnchors().empty());
    }

    std::vector<CleanedItem> m_items;
    CleanedItem m_item;
};

TEST_F(TrashRestoreServiceTest, GivesAnEmptyResultForNoItems)
{
    EXPECT_EQ(restore({}), RestoreResult());
}

TEST_F(TrashRestoreServiceTest, IsCancelledByAStopEvenWithoutItems)
{
    std::stop_source source;
    source.request_stop();
    EXPECT_TRUE(restore({}, source.get_token()).wasCancelled);
    const auto result = restore(m_items, source.get_token());
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_THAT(result.restoredItems, IsEmpty());
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_THAT(names(m_fakeTrash->folder()), ElementsAre("a", "b"));
}

TEST_F(TrashRestoreServiceTest, PutsItemsBackWhereTheyWere)
{
    const auto result = restore(m_items);
    ASSERT_THAT(result.restoredItems, SizeIs(2));
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_FALSE(result.wasCancelled);
    EXPECT_EQ(result.restoredItems[0].cleanedItem, m_items[0]);
    EXPECT_EQ(result.restoredItems[0].restoredURL, m_items[0].candidate.url);
    EXPECT_THAT(names(item("")), ElementsAre("a", "b"));
    EXPECT_TRUE(exists(path("a/x")));
    EXPECT_THAT(names(m_fakeTrash->folder()), IsEmpty());
}

TEST_F(TrashRestoreServiceTest, TellsOfEachItemThatWasDealtWith)
{
    m_tree.add("home/Caches/a size=1");
    m_progress.clear();
    EXPECT_THAT(restore(m_items).failedItems, SizeIs(1));
    EXPECT_THAT(m_progress, ElementsAre(Pair(1, 2), Pair(2, 2)));
}

TEST_F(TrashRestoreServiceTest, StopsBetweenTwoItemsAndKeepsWhatWasDone)
{
    std::stop_source source;
    m_fakeTrash->behaviour.afterMove = [&] { source.request_stop(); };
    const auto result = restore(m_items, source.get_token());
    EXPECT_THAT(result.restoredItems, SizeIs(1));
    EXPECT_THAT(result.failedItems, IsEmpty());
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_THAT(names(m_fakeTrash->folder()), ElementsAre("b"));
}

TEST_F(TrashRestoreServiceTest, IsCancelledByAStopDuringTheLastMove)
{
    std::stop_source source;
    m_fakeTrash->behaviour.afterMove = [&] { source.request_stop(); };
    const auto result = restore({m_item}, source.get_token());
    EXPECT_THAT(result.restoredItems, SizeIs(1));
    EXPECT_TRUE(result.wasCancelled);
}

TEST_F(TrashRestoreServiceTest, TiesTheMoveToTheLiveRootAndTheTrashedIdentity)
{
    ASSERT_THAT(restore(m_items).restoredItems, SizeIs(2));
    const auto& anchor = m_fakeTrash->restoreAnchors().at(0);
    const auto root = m_posix.attributes(item(""));
    EXPECT_EQ(anchor.root.url.path(), path(""));
    EXPECT_EQ(anchor.root.systemNumber, root->systemNumber);
    EXPECT_EQ(anchor.root.systemFileNumber, root->systemFileNumber);
    EXPECT_EQ(anchor.destination, m_item.candidate.url);
    EXPECT_EQ(anchor.trashedItem, *m_item.destinationURL);
    EXPECT_TRUE(anchor.isConfirmed(m_posix.fingerprintReadings(item("a"))));
    EXPECT_FALSE(anchor.isConfirmed(m_posix.fingerprintReadings(item("b"))));
}

TEST_F(TrashRestoreServiceTest, RefusesAnItemWithoutAPlaceInTheTrashByItsOldPath)
{
    m_item.destinationURL.reset();
    const auto result = restore({m_item});
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason,
        "Could not restore because the trashed item is missing: " + m_item.candidate.url.path());
    EXPECT_EQ(result.failedItems[0].cleanedItem, m_item);
}

TEST_F(TrashRestoreServiceTest, RefusesAnItemWhoseRootWasReplaced)
{
    std::filesystem::rename(path(""), m_tree.path("home/Old"));
    std::filesystem::create_directory(path(""));
    expectKept(Kind::pathNotAllowed, item("a"));
    EXPECT_TRUE(exists(trashed()));
}

TEST_F(TrashRestoreServiceTest, RefusesAPlaceOutsideOfTheScan)
{
    m_item.candidate = CleanupCandidate({.url = m_tree.url("home/Documents/a")});
    expectKept(Kind::pathNotAllowed, m_item.candidate.url);
}

TEST_F(TrashRestoreServiceTest, RefusesANoTouchPlace)
{
    m_item.candidate = CleanupCandidate({.url = item("P.photoslibrary")});
    expectKept(Kind::pathNotAllowed, m_item.candidate.url);
}

TEST_F(TrashRestoreServiceTest, RefusesAPlaceInARootThatIsNoLocationOfTheRestore)
{
    m_tree.add("home/Logs/");
    m_locations = {location("home/Logs/")};
    expectKept(Kind::pathNotAllowed, item("a"));
}

TEST_F(TrashRestoreServiceTest, RefusesAPlaceWhoseParentIsGoneAndMakesNoFolder)
{
    m_item.candidate = CleanupCandidate({.url = item("gone/a")});
    expectKept(Kind::unreadableAttributes, item("gone"));
    EXPECT_FALSE(exists(path("gone")));
}

TEST_F(TrashRestoreServiceTest, RefusesAPlaceBehindALink)
{
    m_tree.add("home/Caches/real/\nhome/Caches/link -> real");
    m_item.candidate = CleanupCandidate({.url = item("link/a")});
    expectKept(Kind::symbolicLink, item("link"));
}

TEST_F(TrashRestoreServiceTest, RefusesAnItemThatHasLeftTheTrash)
{
    m_tree.remove("home/Bin/a");
    expectKept(Kind::restoreDestinationMissing, trashed());
}

TEST_F(TrashRestoreServiceTest, RefusesALinkInTheTrash)
{
    for (const auto* const target : {"b", "nowhere"}) {
        m_tree.remove("home/Bin/a");
        std::filesystem::create_symlink(target, trashed().path());
        expectKept(Kind::symbolicLink, trashed());
    }
}

TEST_F(TrashRestoreServiceTest, SeesALinkInTheTrashThatItCannotReadAsAResource)
{
    m_tree.remove("home/Bin/a");
    std::filesystem::create_symlink("b", trashed().path());
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::resourceValues,
        .systemError = EIO,
        .duration = FaultDuration::fromThenOn,
        .path = trashed().path()});
    m_fileManager = &faulty;
    expectKept(Kind::symbolicLink, trashed());
}

TEST_F(TrashRestoreServiceTest, SeesALinkInTheTrashThatDoesNotTellSoAsAResource)
{
    m_tree.remove("home/Bin/a");
    std::filesystem::create_symlink("b", trashed().path());
    const TestSupport::AlteringFileManager withoutLinks(
        m_posix, [](const Platform::ItemReference& item, Platform::ResourceValues& values) {
            if (item.url().lastPathComponent() == "a") {
                values.isSymbolicLink.reset();
            }
        });
    m_fileManager = &withoutLinks;
    expectKept(Kind::symbolicLink, trashed());
}

TEST_F(TrashRestoreServiceTest, DoesNotTakeAFileForALinkThatItCannotReadAsAResource)
{
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::resourceValues,
        .systemError = EIO,
        .duration = FaultDuration::fromThenOn,
        .path = trashed().path()});
    m_fileManager = &faulty;
    expectKept(Kind::unreadableAttributes, trashed());
}

TEST_F(TrashRestoreServiceTest, RefusesAnItemOutsideOfEveryTrashEvenIfItsRecordPointsThere)
{
    m_tree.add("home/Documents/a size=10");
    const auto letter = m_tree.url("home/Documents/a");
    m_item.destinationURL = letter;
    m_item.restoreSourceRootURL = letter.deletingLastPathComponent();
    m_item.restoreSourceIdentity = FileResourceIdentity::captureIfAvailable(letter, m_posix);
    expectKept(Kind::pathNotAllowed, letter);
}

TEST_F(TrashRestoreServiceTest, RefusesEverythingWhereThereIsNoTrash)
{
    const auto result = restore({m_item}, {}, std::vector<FileURL>());
    expectRefused(result, Kind::pathNotAllowed, trashed());
}

TEST_F(TrashRestoreServiceTest, TakesTheGivenTrashFoldersInPlaceOfTheSystems)
{
    m_tree.add("home/OtherBin/");
    expectRefused(restore({m_item}, {}, std::vector{m_tree.url("home/OtherBin/")}), Kind::pathNotAllowed, trashed());
    EXPECT_THAT(restore({m_item}, {}, std::vector{m_tree.url("home/Bin/")}).restoredItems, SizeIs(1));
}

TEST_F(TrashRestoreServiceTest, RefusesATrashFolderThatIsALink)
{
    std::filesystem::rename(m_tree.path("home/Bin"), m_tree.path("home/Moved"));
    std::filesystem::create_directory_symlink("Moved", m_tree.path("home/Bin"));
    expectKept(Kind::pathNotAllowed, m_tree.url("home/Moved/a"));
}

TEST_F(TrashRestoreServiceTest, RefusesProtectedUserDataInTheTrash)
{
    m_tree.add("home/Bin/P.photoslibrary/");
    m_item.destinationURL = m_tree.url("home/Bin/P.photoslibrary/");
    expectKept(Kind::protectedUserData, *m_item.destinationURL);
}

TEST_F(TrashRestoreServiceTest, RefusesAnItemThatWasCleanedWithoutATrashedIdentity)
{
    m_item.restoreSourceIdentity.reset();
    expectKept(Kind::missingRestoreSourceIdentity, trashed());
}

TEST_F(TrashRestoreServiceTest, RefusesAnItemOfWhichNothingCanBeTold)
{
    FaultyFileManager faulty(m_posix);
    for (const auto call : {FileManagerCall::identityValues, FileManagerCall::attributes}) {
        faulty.fail(
            {.call = call, .systemError = EIO, .duration = FaultDuration::fromThenOn, .path = trashed().path()});
    }
    m_fileManager = &faulty;
    expectKept(Kind::unreadableAttributes, trashed());
}

TEST_F(TrashRestoreServiceTest, RefusesAnotherItemOfTheSameNameInTheTrash)
{
    m_tree.remove("home/Bin/a");
    m_tree.add("home/Bin/a/\n    x size=10");
    expectKept(Kind::restoreSourceChanged, trashed());
    EXPECT_TRUE(exists(trashed()));
}

TEST_F(TrashRestoreServiceTest, RefusesAnItemThatChangedInTheTrash)
{
    std::ofstream(m_tree.path("home/Bin/a/new")) << "x";
    expectKept(Kind::restoreSourceChanged, trashed());
}

TEST_F(TrashRestoreServiceTest, KeepsTheItemInTheTrashWhereSomethingStandsAtItsOldPlace)
{
    std::ofstream(path("a")) << "newer";
    expectKept(Kind::restoreDestinationExists, item("a"));
    EXPECT_TRUE(exists(trashed()));
    std::filesystem::remove(path("a"));
    std::filesystem::create_symlink("nowhere", path("a"));
    expectKept(Kind::restoreDestinationExists, item("a"));
    EXPECT_TRUE(exists(trashed()));
}

TEST_F(TrashRestoreServiceTest, GivesTheReasonOfTheFirstCheckThatFails)
{
    // Everything is wrong at first; each round puts one thing right.
    const auto good = m_item;
    std::ofstream(path("a")) << "newer";
    m_tree.add("home/Documents/a size=10\nhome/link -> nowhere");
    m_item.destinationURL.reset();
    m_item.restoreSourceIdentity.reset();
    m_item.candidate = CleanupCandidate({.url = m_tree.url("home/Documents/gone/a")});
    expectKept(Kind::restoreDestinationMissing, m_item.candidate.url);
    m_item.destinationURL = m_tree.url("home/Documents/missing");
    expectKept(Kind::pathNotAllowed, m_item.candidate.url);
    m_item.candidate = CleanupCandidate({.url = item("gone/a")});
    expectKept(Kind::unreadableAttributes, item("gone"));
    m_item.candidate = good.candidate;
    expectKept(Kind::restoreDestinationMissing, *m_item.destinationURL);
    m_item.destinationURL = m_tree.url("home/link");
    expectKept(Kind::symbolicLink, *m_item.destinationURL);
    m_item.destinationURL = m_tree.url("home/Documents/a");
    expectKept(Kind::pathNotAllowed, *m_item.destinationURL);
    m_item.destinationURL = good.destinationURL;
    expectKept(Kind::missingRestoreSourceIdentity, trashed());
    m_item.restoreSourceIdentity = good.candidate.resourceIdentity;
    m_item.restoreSourceIdentity->fileSize = 123;
    expectKept(Kind::restoreSourceChanged, trashed());
    m_item.restoreSourceIdentity = good.restoreSourceIdentity;
    expectKept(Kind::restoreDestinationExists, item("a"));
    std::filesystem::remove(path("a"));
    EXPECT_THAT(restore({m_item}).restoredItems, SizeIs(1));
}

TEST_F(TrashRestoreServiceTest, TellsTheTrashsFailuresInItsOwnWordsOrInThoseOfTheRules)
{
    m_fakeTrash->behaviour.restoreFailure = Platform::FileErrorKind::itemChanged;
    expectRefused(restore({m_item}), Kind::restoreSourceChanged, trashed());
    m_fakeTrash->behaviour.restoreFailure = Platform::FileErrorKind::fileExists;
    expectRefused(restore({m_item}), Kind::restoreDestinationExists, item("a"));
    m_fakeTrash->behaviour.restoreFailure = Platform::FileErrorKind::readOnlyVolume;
    const auto result = restore({m_item});
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason, "The file “a” couldn’t be put back because the volume is read only.");
}

TEST_F(TrashRestoreServiceTest, NeverOverwritesWhatAppearsAtTheLastMoment)
{
    m_fakeTrash->behaviour.beforeMove = [this] { std::ofstream(path("a")) << "newer"; };
    expectRefused(restore({m_item}), Kind::restoreDestinationExists, item("a"));
    EXPECT_TRUE(exists(trashed()));
}

TEST_F(TrashRestoreServiceTest, GoesOnWithTheNextItemAfterARefusal)
{
    m_tree.remove("home/Bin/a");
    const auto result = restore(m_items);
    EXPECT_THAT(result.failedItems, SizeIs(1));
    ASSERT_THAT(result.restoredItems, SizeIs(1));
    EXPECT_EQ(result.restoredItems[0].restoredURL.path(), path("b"));
}

TEST_F(TrashRestoreServiceTest, SettlesOnceAfterAllMovesAlsoAfterAStopAndWhereItFails)
{
    const auto before = m_fakeTrash->settleCalls().size();
    std::stop_source source;
    m_fakeTrash->behaviour.afterMove = [&] { source.request_stop(); };
    EXPECT_THAT(restore({m_items[0], m_items[1]}, source.get_token()).restoredItems, SizeIs(1));
    ASSERT_EQ(m_fakeTrash->settleCalls().size(), before + 1);
    EXPECT_EQ(m_fakeTrash->settleCalls().back(), 3U);
    m_fakeTrash->behaviour.settleFailure = Platform::FileErrorKind::inputOutput;
    EXPECT_THAT(restore({m_items[1]}).restoredItems, SizeIs(1));
    EXPECT_EQ(m_fakeTrash->settleCalls().size(), before + 2);
}

} // namespace CleaningTests
