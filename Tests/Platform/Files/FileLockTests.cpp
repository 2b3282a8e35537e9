#include "Platform/Files/FileLock.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FailingSystemCall.h"
#include "Tests/Support/TemporaryTree.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace Platform {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class FileLockTest : public testing::Test {
protected:
    [[nodiscard]] std::optional<FileLockFailure> failure(milliseconds wait = milliseconds(0)) const
    {
        const auto lock = FileLock::acquire(m_url, wait);
        return lock ? std::nullopt : std::optional(lock.error());
    }

    TestSupport::TemporaryTree m_tree;
    FileURL m_url = m_tree.url("lock");
};

} // namespace

TEST_F(FileLockTest, MakesTheFileForItsUserAlone)
{
    EXPECT_EQ(failure(), std::nullopt);
    struct stat found{};
    ASSERT_EQ(stat(m_url.path().c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777U, 0600U);
}

TEST_F(FileLockTest, KeepsAnotherHolderOutUntilItEnds)
{
    {
        const auto lock = FileLock::acquire(m_url, milliseconds(0));
        ASSERT_TRUE(lock);
        EXPECT_EQ(failure(), FileLockFailure::busy);
    }
    EXPECT_EQ(failure(), std::nullopt);
}

TEST_F(FileLockTest, WaitsAsLongAsItIsTold)
{
    const auto lock = FileLock::acquire(m_url, milliseconds(0));
    ASSERT_TRUE(lock);
    const auto start = steady_clock::now();
    EXPECT_EQ(failure(milliseconds(50)), FileLockFailure::busy);
    EXPECT_GE(steady_clock::now() - start, milliseconds(50));
}

TEST_F(FileLockTest, IsTakenOnceTheOtherHolderEnds)
{
    std::optional lock = FileLock::acquire(m_url, milliseconds(0));
    ASSERT_TRUE(lock->has_value());
    std::jthread other([&] {
        std::this_thread::sleep_for(milliseconds(50));
        lock.reset();
    });
    EXPECT_EQ(failure(milliseconds(10'000)), std::nullopt);
}

TEST_F(FileLockTest, ComesSoonToOneWhoWaitsWhileAnotherTakesItAgainAndAgain)
{
    for (int round = 0; round < 10; ++round) {
        std::optional lock = FileLock::acquire(m_url, milliseconds(0));
        ASSERT_TRUE(lock->has_value());
        std::atomic<bool> hasComeToOther = false;
        const std::jthread other([&] {
            EXPECT_EQ(failure(milliseconds(60'000)), std::nullopt);
            hasComeToOther = true;
        });
        int times = 0;
        for (; !hasComeToOther; ++times) {
            std::this_thread::sleep_for(milliseconds(2));
            lock.reset();
            lock.emplace(FileLock::acquire(m_url, milliseconds(60'000)));
        }
        EXPECT_LT(times, 20);
    }
}

TEST_F(FileLockTest, EndsWithTheProcessThatHeldIt)
{
    const auto child = fork();
    if (child == 0) {
        const auto lock = FileLock::acquire(m_url, milliseconds(0));
        std::_Exit(lock ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(failure(), std::nullopt);
}

TEST_F(FileLockTest, LocksTheFileThatHasTheNameAndNotOneThatHadIt)
{
    const auto lock = FileLock::acquire(m_url, milliseconds(0));
    ASSERT_TRUE(lock);
    m_tree.remove("lock");
    const auto second = FileLock::acquire(m_url, milliseconds(0));
    ASSERT_TRUE(second);
    EXPECT_EQ(failure(), FileLockFailure::busy);
}

TEST_F(FileLockTest, MakesNoFolder)
{
    m_url = m_tree.url("missing/lock");
    EXPECT_EQ(failure(), FileLockFailure::unavailable);
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("missing")));
}

TEST_F(FileLockTest, TakesNothingButARegularFile)
{
    for (const std::string_view layout : {"lock -> target", "lock/", "lock fifo", "lock socket"}) {
        m_tree.add(layout);
        EXPECT_EQ(failure(), FileLockFailure::unavailable) << layout;
        m_tree.remove("lock");
    }
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("target")));
}

TEST_F(FileLockTest, IsUnavailableWhereTheVolumeKnowsNoLocks)
{
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall({.number = SYS_flock}, ENOLCK);
        EXPECT_EQ(failure(milliseconds(5'000)), FileLockFailure::unavailable);
    });
}

TEST_F(FileLockTest, WaitsOnAfterAnInterruption)
{
    TestSupport::answerSystemCalls({.number = SYS_flock}, TestSupport::failingOnce(EINTR),
        [&] { EXPECT_EQ(failure(milliseconds(10'000)), std::nullopt); });
}

TEST_F(FileLockTest, IsNotTakenOnAFileThatLostItsNameMeanwhile)
{
    const auto replaceFirst = [&](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        if (call.before == 0) {
            std::filesystem::rename(m_tree.path("lock"), m_tree.path("old"));
            m_tree.add("lock size=0");
        }
        return std::nullopt;
    };
    TestSupport::answerSystemCalls({.number = SYS_flock}, replaceFirst, [&] {
        const auto lock = FileLock::acquire(m_url, milliseconds(10'000));
        ASSERT_TRUE(lock);
        EXPECT_EQ(failure(), FileLockFailure::busy);
    });
}

TEST_F(FileLockTest, IsNotTakenOnTheFileOfThatNumberOnAnotherVolume)
{
    m_tree.add("volume/");
    m_url = m_tree.url("volume/lock");
    TestSupport::inMountNamespace([&] {
        const auto mountWithLock = [&] {
            TestSupport::mountTemporaryFileSystem(m_tree.path("volume"));
            std::ofstream(m_url.path()).flush();
            struct stat found{};
            EXPECT_EQ(stat(m_url.path().c_str(), &found), 0);
            return found.st_ino;
        };
        const auto number = mountWithLock();
        const auto coverFirst = [&](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
            if (call.before == 0) {
                EXPECT_EQ(mountWithLock(), number) << "new file systems of memory number their files alike";
            }
            return std::nullopt;
        };
        TestSupport::answerSystemCalls({.number = SYS_flock}, coverFirst, [&] {
            const auto lock = FileLock::acquire(m_url, milliseconds(10'000));
            ASSERT_TRUE(lock);
            EXPECT_EQ(failure(), FileLockFailure::busy);
        });
    });
}

TEST_F(FileLockTest, GivesUpInTimeWhereTheNameNeverStays)
{
    const auto takeAway = [&](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        if (call.before < 5) {
            m_tree.remove("lock");
        }
        return std::nullopt;
    };
    TestSupport::answerSystemCalls(
        {.number = SYS_flock}, takeAway, [&] { EXPECT_EQ(failure(), FileLockFailure::busy); });
}

} // namespace Platform
