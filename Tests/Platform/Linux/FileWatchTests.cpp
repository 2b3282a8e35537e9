#include "Platform/Linux/FileWatch.h"

#include "Platform/Files/AtomicFile.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FailingSystemCall.h"
#include "Tests/Support/TemporaryTree.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <poll.h>
#include <string>
#include <sys/syscall.h>

namespace Platform {

namespace {

class FileWatchTest : public testing::Test {
protected:
    void write(std::string_view path, std::string_view text = "x") const
    {
        ASSERT_TRUE(replaceFile(m_tree.url(path), text, WriteDurability::leftToSystem));
    }
    void makeFolder(std::string_view path) const { std::filesystem::create_directories(m_tree.path(path)); }

    [[nodiscard]] static bool isReadable(const FileWatch& watch)
    {
        pollfd waiting{.fd = watch.descriptor(), .events = POLLIN, .revents = 0};
        return poll(&waiting, 1, 0) == 1;
    }

    TestSupport::TemporaryTree m_tree{"config/"};
};

} // namespace

TEST_F(FileWatchTest, NoticesEachWayInWhichAFileChanges)
{
    FileWatch watch(m_tree.url("config/file"));
    EXPECT_FALSE(isReadable(watch));
    EXPECT_FALSE(watch.takeChanges());
    const auto path = m_tree.path("config/file");
    const auto noticed = [&] { return isReadable(watch) && watch.takeChanges() && !isReadable(watch); };
    write("config/file");
    EXPECT_TRUE(noticed()) << "replaced";
    std::ofstream(path, std::ios::app) << "more";
    EXPECT_TRUE(noticed()) << "written in place";
    std::filesystem::permissions(path, std::filesystem::perms(0400));
    EXPECT_TRUE(noticed()) << "other permissions";
    std::filesystem::rename(path, m_tree.path("config/other"));
    EXPECT_TRUE(noticed()) << "renamed";
    std::filesystem::create_hard_link(m_tree.path("config/other"), path);
    EXPECT_TRUE(noticed()) << "linked";
    std::filesystem::remove(path);
    EXPECT_TRUE(noticed()) << "removed";
    EXPECT_FALSE(watch.takeChanges());
}

TEST_F(FileWatchTest, PassesOverTheNeighboursOfTheFile)
{
    FileWatch watch(m_tree.url("config/file"));
    write("config/file.lock");
    write("config/fil");
    makeFolder("config/folder");
    EXPECT_TRUE(isReadable(watch));
    EXPECT_FALSE(watch.takeChanges());
    EXPECT_FALSE(isReadable(watch));
}

TEST_F(FileWatchTest, NoticesAFileWhoseFoldersAreMadeLater)
{
    FileWatch watch(m_tree.url("config/a/b/file"));
    makeFolder("config/a");
    EXPECT_TRUE(watch.takeChanges());
    makeFolder("config/a/b");
    EXPECT_TRUE(watch.takeChanges());
    write("config/a/b/file");
    EXPECT_TRUE(watch.takeChanges());
    write("config/a/b/file", "y");
    EXPECT_TRUE(watch.takeChanges());
}

TEST_F(FileWatchTest, NoticesAFileWhoseFoldersAreMadeAllAtOnce)
{
    FileWatch watch(m_tree.url("config/a/b/file"));
    makeFolder("config/a/b");
    write("config/a/b/file");
    EXPECT_TRUE(watch.takeChanges());
    write("config/a/b/file", "y");
    EXPECT_TRUE(watch.takeChanges());
}

TEST_F(FileWatchTest, GoesOnWhereTheFolderIsTakenAwayAndMadeAnew)
{
    makeFolder("config/a");
    write("config/a/file");
    FileWatch watch(m_tree.url("config/a/file"));
    std::filesystem::remove_all(m_tree.path("config/a"));
    EXPECT_TRUE(watch.takeChanges());
    makeFolder("config/a");
    EXPECT_TRUE(watch.takeChanges());
    write("config/a/file");
    EXPECT_TRUE(watch.takeChanges());
    std::filesystem::rename(m_tree.path("config/a"), m_tree.path("config/b"));
    EXPECT_TRUE(watch.takeChanges());
    write("config/b/file", "y");
    EXPECT_FALSE(watch.takeChanges());
}

TEST_F(FileWatchTest, NoticesAFileAfterMoreEventsThanTheSystemKeeps)
{
    FileWatch watch(m_tree.url("config/file"));
    int limit = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> limit;
    ASSERT_GT(limit, 0);
    const auto one = m_tree.path("config/1");
    const auto two = m_tree.path("config/2");
    write("config/1");
    for (int round = 0; round < limit / 2 + 2; ++round) {
        std::filesystem::rename(round % 2 == 0 ? one : two, round % 2 == 0 ? two : one);
    }
    write("config/file");
    EXPECT_TRUE(watch.takeChanges());
    write("config/file", "y");
    EXPECT_TRUE(watch.takeChanges());
}

TEST_F(FileWatchTest, HasNothingToPollWhereTheSystemGivesNoWatch)
{
    for (const long call : {SYS_inotify_init1, SYS_inotify_add_watch}) {
        TestSupport::inChildProcess([&] {
            TestSupport::failSystemCall({.number = call}, call == SYS_inotify_init1 ? EMFILE : ENOSPC);
            FileWatch watch(m_tree.url("config/file"));
            EXPECT_EQ(watch.descriptor(), -1);
            EXPECT_FALSE(watch.takeChanges());
        });
    }
}

} // namespace Platform
