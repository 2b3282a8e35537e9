#include "Platform/Linux/TrashFolder.h"

#include "Platform/Files/OpenFolder.h"
#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/syscall.h>

namespace {

using namespace TrashTests;
using Platform::MissingTrash;
using testing::ElementsAre;

constexpr std::string_view kOurs = "[Trash Info]\nPath=/x\nDeletionDate=2026-01-01T00:00:00\nX-Karvello=1\n";
constexpr std::string_view kForeign = "[Trash Info]\nPath=/x\nDeletionDate=2026-01-01T00:00:00\n";

class TrashFolder : public testing::Test {
protected:
    [[nodiscard]] std::expected<std::shared_ptr<Platform::TrashFolder>, int> open(
        MissingTrash missing = MissingTrash::make, const std::optional<FileURL>& base = std::nullopt) const
    {
        return Platform::TrashFolder::open(m_tree.url("data/Trash/"), base, missing);
    }

    [[nodiscard]] std::string info(std::string_view name = {}) const
    {
        return m_tree.path("data/Trash/info") + (name.empty() ? "" : "/") + std::string(name);
    }

    TemporaryTree m_tree{"data/"};
};

TEST_F(TrashFolder, IsMadeOnlyWhenAskedFor)
{
    EXPECT_EQ(open(MissingTrash::refuse).error(), ENOENT);
    EXPECT_FALSE(stands(m_tree.path("data/Trash")));
    ASSERT_TRUE(open());
    EXPECT_THAT(names(m_tree.path("data/Trash")), ElementsAre("files", "info"));
    EXPECT_TRUE(open(MissingTrash::refuse));
}

TEST_F(TrashFolder, IsNotOpenedInPartWithoutBeingAskedToMakeIt)
{
    m_tree.add("data/Trash/files/");
    EXPECT_EQ(open(MissingTrash::refuse).error(), ENOENT);
    EXPECT_FALSE(stands(info()));
}

TEST_F(TrashFolder, MakesNoFolderAboveItWithoutBeingAskedTo)
{
    const auto missing = m_tree.url("other/share/Trash/");
    EXPECT_EQ(Platform::TrashFolder::open(missing, std::nullopt, MissingTrash::refuse).error(), ENOENT);
    EXPECT_FALSE(stands(m_tree.path("other")));
}

TEST_F(TrashFolder, LeavesAnEmptyFolderAloneThatIsNotSafeToUse)
{
    m_tree.add("data/Trash/");
    ASSERT_EQ(chmod(m_tree.path("data/Trash").c_str(), 0777), 0);
    EXPECT_EQ(open().error(), EPERM);
    EXPECT_TRUE(stands(m_tree.path("data/Trash")));
}

TEST_F(TrashFolder, NeverReplacesARecord)
{
    const auto trash = open();
    ASSERT_TRUE(trash);
    EXPECT_EQ((*trash)->addRecord("a", FileURL("/first")), 0);
    const auto before = contentsOf(info("a.trashinfo"));
    EXPECT_EQ((*trash)->addRecord("a", FileURL("/second")), EEXIST);
    EXPECT_EQ(contentsOf(info("a.trashinfo")), before);
    EXPECT_THAT(names(info()), ElementsAre("a.trashinfo"));
}

TEST_F(TrashFolder, ReadsBackWhereAnItemWas)
{
    const auto trash = open();
    ASSERT_TRUE(trash);
    EXPECT_EQ((*trash)->addRecord("a", FileURL("/home/me/100%\n")), 0);
    EXPECT_EQ((*trash)->recordedURL("a"), FileURL("/home/me/100%\n"));
    EXPECT_EQ((*trash)->recordedURL("b").error(), ENOENT);
    EXPECT_EQ((*trash)->removeRecord("a"), 0);
    EXPECT_EQ((*trash)->removeRecord("a"), ENOENT);
}

TEST_F(TrashFolder, CountsRelativePathsFromTheTopOfItsVolume)
{
    const auto trash = open(MissingTrash::make, m_tree.root());
    ASSERT_TRUE(trash);
    EXPECT_EQ((*trash)->addRecord("a", m_tree.url("sub/a")), 0);
    EXPECT_TRUE(contentsOf(info("a.trashinfo")).starts_with("[Trash Info]\nPath=sub/a\n"));
    EXPECT_EQ((*trash)->recordedURL("a"), m_tree.url("sub/a"));
    EXPECT_EQ((*trash)->addRecord("b", FileURL("/elsewhere/b")), EXDEV);
    EXPECT_EQ((*trash)->addRecord("c", m_tree.root()), EXDEV);
}

TEST_F(TrashFolder, ReadsRecordsOfOtherPrograms)
{
    m_tree.add(R"(
        data/Trash/files/
        data/Trash/info/relative.trashinfo text="[Trash Info]\nPath=sub/a\n"
        data/Trash/info/absolute.trashinfo text="[Trash Info]\nPath=/b\n"
        data/Trash/info/upward.trashinfo text="[Trash Info]\nPath=../../../../../c\n"
        data/Trash/info/folder.trashinfo/
        data/Trash/info/pipe.trashinfo fifo
        data/Trash/info/link.trashinfo -> absolute.trashinfo
    )");
    write(info("huge.trashinfo"), std::string(kForeign) + std::string(20'000, 'x'));
    const auto trash = open();
    ASSERT_TRUE(trash);
    EXPECT_EQ((*trash)->recordedURL("relative"), m_tree.url("data/sub/a"));
    EXPECT_EQ((*trash)->recordedURL("absolute"), FileURL("/b"));
    EXPECT_EQ((*trash)->recordedURL("upward"), FileURL("/c"));
    EXPECT_EQ((*trash)->recordedURL("folder").error(), EINVAL);
    EXPECT_EQ((*trash)->recordedURL("pipe").error(), EINVAL);
    EXPECT_EQ((*trash)->recordedURL("link").error(), ELOOP);
    EXPECT_EQ((*trash)->recordedURL("huge").error(), EFBIG);
}

TEST_F(TrashFolder, TakesItsOwnLeftoversAwayAndNothingElse)
{
    m_tree.add(R"(
        data/Trash/files/present size=1
        data/Trash/files/dangling -> nowhere
        data/Trash/info/.karvello-0123456789abcdef.tmp size=5
        data/Trash/info/other.tmp size=5
    )");
    for (const auto* name : {"gone", "present", "dangling"}) {
        write(info(name) + ".trashinfo", kOurs);
    }
    write(info("foreign.trashinfo"), kForeign);
    write(info("empty.trashinfo"), "");
    for (const auto* name : {"notarecord", "nor this record", "short"}) {
        write(info(name), kOurs);
    }
    ASSERT_TRUE(open());
    EXPECT_THAT(names(info()),
        ElementsAre("dangling.trashinfo", "empty.trashinfo", "foreign.trashinfo", "nor this record", "notarecord",
            "other.tmp", "present.trashinfo", "short"));
}

TEST_F(TrashFolder, TidiesNotWhileAnotherProcessIsMoving)
{
    const auto first = open();
    ASSERT_TRUE(first);
    {
        const auto use = Platform::TrashFolder::use(*first);
        const auto another = Platform::TrashFolder::use(*first);
        ASSERT_TRUE(use && another);
        write(info("onitsway.trashinfo"), kOurs);
        TestSupport::inChildProcess([&] {
            ASSERT_TRUE(open());
            EXPECT_TRUE(stands(info("onitsway.trashinfo")));
        });
        EXPECT_TRUE(stands(info("onitsway.trashinfo")));
    }
    ASSERT_TRUE(open());
    EXPECT_FALSE(stands(info("onitsway.trashinfo")));
}

TEST_F(TrashFolder, StaysProtectedUntilTheLastUseEnds)
{
    const auto trash = open();
    ASSERT_TRUE(trash);
    const auto last = Platform::TrashFolder::use(*trash);
    {
        const auto first = Platform::TrashFolder::use(*trash);
        ASSERT_TRUE(first && last);
    }
    write(info("onitsway.trashinfo"), kOurs);
    ASSERT_TRUE(open());
    EXPECT_TRUE(stands(info("onitsway.trashinfo")));
}

TEST_F(TrashFolder, IsNotUsedWhileAnotherProcessKeepsTidying)
{
    const auto trash = open();
    ASSERT_TRUE(trash);
    const auto tidying = Platform::openFolder(info().c_str());
    ASSERT_TRUE(tidying);
    ASSERT_EQ(flock(tidying->get(), LOCK_EX), 0);
    EXPECT_EQ(Platform::TrashFolder::use(*trash).error(), EWOULDBLOCK);
    ASSERT_EQ(flock(tidying->get(), LOCK_UN), 0);
    EXPECT_TRUE(Platform::TrashFolder::use(*trash));
}

TEST_F(TrashFolder, NoticesThatItWasTakenAway)
{
    const auto trash = open();
    ASSERT_TRUE(trash);
    EXPECT_TRUE((*trash)->isStillInPlace());
    std::filesystem::rename(info(), m_tree.path("data/info"));
    EXPECT_FALSE((*trash)->isStillInPlace());
    std::filesystem::create_directory(info());
    EXPECT_FALSE((*trash)->isStillInPlace());
}

TEST_F(TrashFolder, KeepsEveryRecordWhereALookFails)
{
    m_tree.add(R"(
        data/Trash/files/present size=1
        data/Trash/info/
    )");
    for (const auto* name : {"gone", "present"}) {
        write(info(name) + ".trashinfo", kOurs);
    }
    ASSERT_EQ(chmod(m_tree.path("data/Trash/files").c_str(), 0700), 0);
    // Three folders are opened to use them, then each of the two to list it.
    constexpr TestSupport::SystemCalls openings{.number = SYS_openat2};
    constexpr TestSupport::SystemCalls listings{.number = SYS_getdents64};
    for (const auto& [calls, before] : {std::pair(openings, 3), std::pair(openings, 4), std::pair(listings, 0)}) {
        const auto fault = TestSupport::failingOnce(EMFILE, static_cast<std::size_t>(before));
        TestSupport::answerSystemCalls(calls, fault, [&] { EXPECT_TRUE(open()); });
        EXPECT_THAT(names(info()), ElementsAre("gone.trashinfo", "present.trashinfo")) << calls.number << ' ' << before;
    }
    // The folder of items is listed only after that of records was listed to its end.
    const auto failOfItems = [](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        const auto link = "/proc/self/fd/" + std::to_string(call.arguments[0]);
        return std::filesystem::read_symlink(link).filename() == "files" ? std::optional<std::int64_t>(-EIO)
                                                                         : std::nullopt;
    };
    TestSupport::answerSystemCalls(listings, failOfItems, [&] { EXPECT_TRUE(open()); });
    EXPECT_THAT(names(info()), ElementsAre("gone.trashinfo", "present.trashinfo"));
    // Whether an item is there cannot be told.
    constexpr TestSupport::SystemCalls looksAtNames{
        .number = SYS_statx, .argument = 2, .mask = AT_EMPTY_PATH, .value = 0};
    TestSupport::answerSystemCalls(
        looksAtNames, [](const auto&) { return std::optional<std::int64_t>(-EIO); }, [&] { EXPECT_TRUE(open()); });
    EXPECT_THAT(names(info()), ElementsAre("gone.trashinfo", "present.trashinfo"));
    EXPECT_TRUE(open());
    EXPECT_THAT(names(info()), ElementsAre("present.trashinfo"));
}

TEST_F(TrashFolder, TakesAwayAFolderThatItMadeAndMayNotUse)
{
    constexpr TestSupport::SystemCalls looksAtFolders{
        .number = SYS_newfstatat, .argument = 3, .mask = AT_EMPTY_PATH, .value = AT_EMPTY_PATH};
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall(looksAtFolders, EIO);
        EXPECT_EQ(open().error(), EIO);
    });
    EXPECT_FALSE(stands(m_tree.path("data/Trash")));
}

TEST_F(TrashFolder, SaysWhyTheFolderAboveItCannotBeMade)
{
    const auto missing = m_tree.url("other/share/Trash/");
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall({.number = SYS_mkdir}, EROFS);
        EXPECT_EQ(Platform::TrashFolder::open(missing, std::nullopt, MissingTrash::make).error(), EROFS);
    });
}

/// Those that `use` makes.
constexpr TestSupport::SystemCalls kSharedLocks{.number = SYS_flock, .argument = 1, .mask = LOCK_SH, .value = LOCK_SH};

TEST_F(TrashFolder, WaitsForTheEndOfTidyingAndOfAnInterruption)
{
    const auto trash = open();
    ASSERT_TRUE(trash);
    for (const int systemError : {EWOULDBLOCK, EINTR}) {
        TestSupport::answerSystemCalls(kSharedLocks, TestSupport::failingOnce(systemError),
            [&] { EXPECT_TRUE(Platform::TrashFolder::use(*trash)); });
    }
}

TEST_F(TrashFolder, IsNotUsedWhereTheVolumeKnowsNoLocks)
{
    const auto trash = open();
    ASSERT_TRUE(trash);
    TestSupport::answerSystemCalls(kSharedLocks, TestSupport::failingOnce(ENOLCK),
        [&] { EXPECT_EQ(Platform::TrashFolder::use(*trash).error(), ENOLCK); });
}

TEST_F(TrashFolder, NoticesAnotherVolumeWhoseFoldersHaveTheSameNumbers)
{
    TestSupport::inMountNamespace([&] {
        const auto numbers = [&] {
            std::vector<ino_t> found;
            for (const auto& folder : {m_tree.path("data/Trash/files"), info()}) {
                struct stat status{};
                EXPECT_EQ(stat(folder.c_str(), &status), 0);
                found.push_back(status.st_ino);
            }
            return found;
        };
        TestSupport::mountTemporaryFileSystem(m_tree.path("data"));
        const auto trash = open();
        ASSERT_TRUE(trash);
        const auto before = numbers();
        TestSupport::mountTemporaryFileSystem(m_tree.path("data"));
        ASSERT_TRUE(open());
        EXPECT_EQ(numbers(), before) << "new file systems of memory number their folders alike";
        EXPECT_FALSE((*trash)->isStillInPlace());
    });
}

} // namespace
