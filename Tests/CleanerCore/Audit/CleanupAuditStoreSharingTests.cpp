#include "CleanerCore/Audit/CleanupAuditStore.h"

#include "Platform/Files/FileLock.h"
#include "Tests/CleanerCore/Audit/AuditFixture.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FaultyFileManager.h"

#include <chrono>
#include <thread>

namespace CleanerCore {

namespace {

using namespace AuditTests;
using std::chrono::steady_clock;

/// How a test keeps the stores of several processes from taking turns.
enum class Turns { taken, prevented };

class CleanupAuditStoreSharingTest : public AuditStoreTest {
protected:
    /// Two processes append `count` entries each, as fast as they can, and keep the newest `limit`. Gives what the log
    /// holds in the end.
    Entries appendFromTwoProcesses(Turns turns, int count, std::int64_t limit)
    {
        m_tree.remove("Karvello");
        m_tree.add(turns == Turns::taken ? "Karvello/" : "Karvello/cleanup-audit-log.json.lock/");
        TestSupport::inTwoProcesses([&](int number) {
            for (int step = 0; step < count; ++step) {
                m_store.append(entry(2.0 * (count - step) + number, 1), limit);
            }
        });
        return strictEntries(log());
    }

    FileURL m_lock = m_tree.url("Karvello/cleanup-audit-log.json.lock");
};

} // namespace

TEST_F(CleanupAuditStoreSharingTest, LosesNoEntryOfTwoProcesses)
{
    EXPECT_EQ(appendFromTwoProcesses(Turns::taken, 200, 1000).size(), 400);
    EXPECT_TRUE(namesBesideLog().empty());
}

TEST_F(CleanupAuditStoreSharingTest, WouldLoseEntriesOfTwoProcessesWithoutTakingTurns)
{
    EXPECT_LT(appendFromTwoProcesses(Turns::prevented, 200, 1000).size(), 400);
}

TEST_F(CleanupAuditStoreSharingTest, KeepsTheNewestOfTwoProcessesUpToTheLimit)
{
    const auto entries = appendFromTwoProcesses(Turns::taken, 200, CleanupAuditStore::defaultLimit);
    ASSERT_EQ(entries.size(), 100);
    for (int age = 2; age < 102; ++age) {
        EXPECT_EQ(entries[static_cast<std::size_t>(age - 2)].occurredAt, entry(age).occurredAt);
    }
}

TEST_F(CleanupAuditStoreSharingTest, LosesNoEntryOfSeveralThreadsWithStoresOfTheirOwn)
{
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([this, thread] {
                const CleanupAuditStore store(m_fileManager, m_log);
                for (int step = 0; step < 20; ++step) {
                    store.append(entry(step + 0.1 * thread));
                    EXPECT_FALSE(store.loadEntries().empty());
                }
            });
        }
    }
    EXPECT_EQ(m_store.loadEntries().size(), 80);
}

TEST_F(CleanupAuditStoreSharingTest, GoesOnWithoutItsTurnAfterABoundedWait)
{
    const auto first = entry(1);
    m_store.append(first);
    const auto held = Platform::FileLock::acquire(m_lock, std::chrono::milliseconds(0));
    ASSERT_TRUE(held);
    const auto start = steady_clock::now();
    const auto added = entry(0);
    EXPECT_EQ(m_store.append(added), (Entries{added, first}));
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(strictEntries(log()), (Entries{added, first}));
}

TEST_F(CleanupAuditStoreSharingTest, LoadsButDoesNotTidyWithoutItsTurn)
{
    auto old = entry();
    old.samplePaths = {"/a"};
    const auto bytes = encoded(Entries{old});
    setLog(bytes);
    {
        const auto held = Platform::FileLock::acquire(m_lock, std::chrono::milliseconds(0));
        ASSERT_TRUE(held);
        const auto loaded = m_store.loadEntries();
        ASSERT_EQ(loaded.size(), 1);
        EXPECT_TRUE(loaded[0].samplePaths.empty());
        EXPECT_EQ(log(), bytes);
    }
    EXPECT_EQ(m_store.loadEntries().size(), 1);
    EXPECT_NE(log(), bytes);
}

TEST_F(CleanupAuditStoreSharingTest, WaitsForNobodyWhereNothingIsToBeTidied)
{
    m_store.append(entry());
    const auto held = Platform::FileLock::acquire(m_lock, std::chrono::milliseconds(0));
    ASSERT_TRUE(held);
    const auto start = steady_clock::now();
    EXPECT_EQ(m_store.loadEntries().size(), 1);
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(1));
}

TEST_F(CleanupAuditStoreSharingTest, KeepsAnEntryThatAnotherProcessAddsWhileItWaitsToTidy)
{
    auto old = entry(1);
    old.samplePaths = {"/a"};
    setLog(encoded(Entries{old}));
    auto held = Platform::FileLock::acquire(m_lock, std::chrono::milliseconds(0));
    ASSERT_TRUE(held);
    std::jthread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        setContent(m_log, encoded(Entries{entry(0), old}));
        held = std::unexpected(Platform::FileLockFailure::busy);
    });
    EXPECT_EQ(m_store.loadEntries().size(), 2);
    EXPECT_EQ(strictEntries(log()).size(), 2);
}

TEST_F(CleanupAuditStoreSharingTest, LeavesNoLockBesideALogThatItOnlyLoads)
{
    setLog(encoded(Entries{entry()}));
    EXPECT_EQ(m_store.loadEntries().size(), 1);
    EXPECT_FALSE(std::filesystem::exists(m_lock.path()));
}

TEST_F(CleanupAuditStoreSharingTest, DoesNotFollowALinkInPlaceOfTheLock)
{
    m_tree.add("Karvello/cleanup-audit-log.json.lock -> ../victim");
    const auto added = entry();
    EXPECT_EQ(m_store.append(added), Entries{added});
    EXPECT_EQ(strictEntries(log()), Entries{added});
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("victim")));
}

TEST_F(CleanupAuditStoreSharingTest, TidiesAlsoWhereNoLockCanBeMade)
{
    m_tree.add("Karvello/cleanup-audit-log.json.lock -> ../victim");
    auto old = entry();
    old.failureReasons = {"Could not move /home/ada/secret"};
    setLog(encoded(Entries{old}));
    EXPECT_EQ(m_store.loadEntries().size(), 1);
    EXPECT_EQ(log().find("secret"), std::string::npos);
}

} // namespace CleanerCore
