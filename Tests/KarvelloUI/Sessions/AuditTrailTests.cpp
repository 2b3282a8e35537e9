#include "KarvelloUI/Sessions/AuditTrail.h"

#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/ManualExecutor.h"
#include "Tests/Support/TemporaryTree.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditStore;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AuditTrailTest : public testing::Test {
protected:
    static CleanupAuditEntry entry(int number, double date)
    {
        return {.id = *Platform::UUID::fromString(fmt::format("00000000-0000-4000-8000-{:012X}", number)),
            .occurredAt = Platform::Date{date},
            .mode = CleanerCore::CleaningMode::moveToTrash,
            .samplePaths = {"/home/someone/secret"}};
    }

    std::unique_ptr<AuditTrail> makeTrail()
    {
        return std::make_unique<AuditTrail>(store, executor, [this] { ++changes; });
    }

    void settle()
    {
        executor.runAll();
        loop.handleEvents();
    }

    static std::vector<double> dates(const std::vector<CleanupAuditEntry>& entries)
    {
        std::vector<double> dates;
        for (const auto& entry : entries) {
            dates.push_back(entry.occurredAt.secondsSinceReferenceDate);
        }
        return dates;
    }

    TestSupport::EventLoop loop;
    TestSupport::ManualExecutor executor;
    TestSupport::TemporaryTree tree;
    Platform::PosixFileManager files;
    CleanupAuditStore store{files, tree.url("Karvello/log.json")};
    int changes = 0;
};

} // namespace

TEST_F(AuditTrailTest, ShowsTheLogOnceItIsRead)
{
    store.append(entry(1, 5));
    store.append(entry(2, 6));
    const auto trail = makeTrail();
    EXPECT_THAT(trail->entries(), IsEmpty());
    EXPECT_FALSE(trail->isLoaded());
    settle();
    EXPECT_THAT(dates(trail->entries()), ElementsAre(6, 5));
    EXPECT_TRUE(trail->isLoaded());
    EXPECT_EQ(changes, 1);
}

TEST_F(AuditTrailTest, IsLoadedWithoutALog)
{
    const auto trail = makeTrail();
    settle();
    EXPECT_THAT(trail->entries(), IsEmpty());
    EXPECT_TRUE(trail->isLoaded());
}

TEST_F(AuditTrailTest, ShowsWhatIsRecordedBeforeItIsWrittenAndWithoutPaths)
{
    const auto trail = makeTrail();
    settle();
    trail->record(entry(1, 5));
    ASSERT_THAT(trail->entries(), SizeIs(1));
    EXPECT_EQ(trail->entries().front(), entry(1, 5).storageSafeForAuditPersistence());
    EXPECT_THAT(store.loadEntries(), IsEmpty());
    settle();
    EXPECT_EQ(trail->entries(), store.loadEntries());
    EXPECT_THAT(dates(trail->entries()), ElementsAre(5));
}

TEST_F(AuditTrailTest, KeepsWhatIsRecordedWhileTheLogIsRead)
{
    store.append(entry(1, 5));
    const auto trail = makeTrail();
    executor.runAll();
    trail->record(entry(2, 4));
    loop.handleEvents();
    EXPECT_THAT(dates(trail->entries()), ElementsAre(5, 4));
    settle();
    EXPECT_THAT(dates(trail->entries()), ElementsAre(5, 4));
    EXPECT_EQ(trail->entries(), store.loadEntries());
}

TEST_F(AuditTrailTest, KeepsWhatIsRecordedWhileAnotherIsWritten)
{
    const auto trail = makeTrail();
    settle();
    trail->record(entry(1, 5));
    executor.runAll();
    trail->record(entry(2, 6));
    loop.handleEvents();
    EXPECT_THAT(dates(trail->entries()), ElementsAre(6, 5));
    settle();
    EXPECT_EQ(trail->entries(), store.loadEntries());
}

TEST_F(AuditTrailTest, TakesUpWhatAnotherSessionWrote)
{
    const auto trail = makeTrail();
    settle();
    store.append(entry(9, 9));
    trail->record(entry(1, 5));
    settle();
    EXPECT_THAT(dates(trail->entries()), ElementsAre(9, 5));
}

TEST_F(AuditTrailTest, WritesThoughItsSessionHasGone)
{
    auto trail = makeTrail();
    settle();
    trail->record(entry(1, 5));
    trail.reset();
    changes = 0;
    settle();
    EXPECT_THAT(dates(store.loadEntries()), ElementsAre(5));
    EXPECT_EQ(changes, 0);
}

TEST_F(AuditTrailTest, NeverShowsMoreThanAHundred)
{
    const auto trail = makeTrail();
    settle();
    for (int number = 1; number <= 101; ++number) {
        trail->record(entry(number, number));
    }
    EXPECT_THAT(trail->entries(), SizeIs(100));
    settle();
    EXPECT_THAT(trail->entries(), SizeIs(100));
    EXPECT_EQ(dates(trail->entries()).back(), 2);
}

} // namespace KarvelloUI
