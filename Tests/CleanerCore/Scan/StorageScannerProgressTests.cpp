#include "Tests/CleanerCore/Scan/ScanFixture.h"

#include <chrono>
#include <fmt/format.h>
#include <random>
#include <thread>

namespace {

using namespace ScanTests;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::string described(const StorageScanProgress& call)
{
    return fmt::format("{} locations {}/{} items {} here {}/{} found {} skipped {} at {}",
        call.currentURL ? call.currentURL->absoluteString() : "nothing", call.completedLocations, call.totalLocations,
        call.completedItems, call.completedItemsInCurrentLocation, call.totalItemsInCurrentLocation.value_or(-1),
        call.foundCandidates, call.skippedItems, call.fractionCompleted);
}

class StorageScannerProgress : public StorageScannerTest {
protected:
    struct Account {
        ScanReport report;
        std::vector<StorageScanProgress> calls;
    };

    /// Empty if the two are the same, else the first place where they part.
    static std::string difference(const Account& left, const Account& right)
    {
        for (std::size_t index = 0; index < std::max(left.calls.size(), right.calls.size()); ++index) {
            const auto at = [index](const Account& account) {
                return index < account.calls.size() ? described(account.calls[index]) : std::string("no call");
            };
            if (at(left) != at(right)) {
                return fmt::format("call {}:\n{}\n{}", index + 1, at(left), at(right));
            }
        }
        if (left.report.candidates != right.report.candidates) {
            return "other candidates";
        }
        return left.report.skippedItems == right.report.skippedItems ? "" : "other skipped items";
    }

    /// Scans and asks for a stop at the call with this number, counted from 1; 0 for no stop.
    Account scanStoppingAt(std::size_t call, const std::vector<ScanLocation>& locations)
    {
        std::stop_source source;
        Account account;
        account.report = scan(
            locations,
            [&](const StorageScanProgress& progress) {
                account.calls.push_back(progress);
                if (account.calls.size() == call) {
                    source.request_stop();
                }
            },
            source.get_token());
        return account;
    }

    std::vector<ScanLocation> busyHome()
    {
        m_tree.add(R"(
            home/Caches/a size=10
            home/Caches/big/
                part count=140 size=1
            home/Caches/big/sub/
                part count=140 size=1
            home/Caches/young size=10 age=1h
            home/Caches/link -> a
            home/Caches/locked/Keychains.photoslibrary/
            home/Caches/empty/
            home/Logs/
                log count=80 size=10
            home/Logs/older/
                log count=129 size=10
            home/None/file
        )");
        return {location(m_tree.url("home/Caches/")), location(m_tree.url("home/missing/")),
            location(m_tree.url("home/Logs/")),
            location(m_tree.url("home/None/"), {.depth = ScanDepth::directoryItself})};
    }
};

TEST_F(StorageScannerProgress, TellsOfAnEmptyListOfLocations)
{
    const auto account = scanStoppingAt(0, {});
    StorageScanProgress finished;
    finished.fractionCompleted = 1;
    EXPECT_THAT(account.calls, ElementsAre(StorageScanProgress::empty(), finished));
    EXPECT_THAT(account.report.candidates, IsEmpty());
    EXPECT_THAT(account.report.skippedItems, IsEmpty());
}

TEST_F(StorageScannerProgress, TellsOfEachStepInOrder)
{
    m_tree.add("home/Caches/folder/data size=10");
    const auto root = m_tree.url("home/Caches/");
    const auto account = scanStoppingAt(0, {location(root), location(m_tree.url("home/missing/"))});

    StorageScanProgress atRoot;
    atRoot.currentURL = root;
    atRoot.totalLocations = 2;
    auto begun = atRoot;
    begun.currentURL = m_tree.url("home/Caches/folder/");
    begun.completedItemsInCurrentLocation = 1;
    auto walking = begun;
    walking.currentURL = m_tree.url("home/Caches/folder/data");
    auto done = begun;
    done.completedItems = 1;
    done.foundCandidates = 1;
    auto rootDone = done;
    rootDone.currentURL = root;
    rootDone.totalItemsInCurrentLocation = 1;
    rootDone.completedLocations = 1;
    rootDone.fractionCompleted = 0.5;
    auto atMissing = rootDone;
    atMissing.currentURL = m_tree.url("home/missing/");
    atMissing.completedItemsInCurrentLocation = 0;
    atMissing.totalItemsInCurrentLocation.reset();
    auto missingDone = atMissing;
    missingDone.completedLocations = 2;
    missingDone.totalItemsInCurrentLocation = 0;
    missingDone.skippedItems = 1;
    missingDone.fractionCompleted = 1;
    auto finished = missingDone;
    finished.currentURL.reset();
    finished.totalItemsInCurrentLocation.reset();
    EXPECT_THAT(account.calls,
        ElementsAre(
            StorageScanProgress::empty(), atRoot, begun, walking, done, rootDone, atMissing, missingDone, finished));
}

TEST_F(StorageScannerProgress, TellsOfTheFirstDescendantAndOfEveryHundredAndTwentyEighth)
{
    m_tree.add(R"(
        home/Caches/folder/
            part count=300 size=1
    )");
    const auto account = scanStoppingAt(0, {location(m_tree.url("home/Caches/"))});
    EXPECT_THAT(account.calls, SizeIs(4 + 3 + 2)) << "1, 128 and 256 between the child's two reports";
}

TEST_F(StorageScannerProgress, KeepsTheEarlierCandidatesWhenStoppedBetweenTwoChildren)
{
    m_tree.add(R"(
        home/Caches/a size=10
        home/Caches/b size=10
        home/Caches/c size=10
    )");
    const std::vector locations{location(m_tree.url("home/Caches/"))};
    const auto whole = scanStoppingAt(0, locations);
    ASSERT_THAT(whole.report.candidates, SizeIs(3));
    const auto stopped = scanStoppingAt(4, locations);
    EXPECT_THAT(stopped.report.candidates, SizeIs(1)) << "the fourth call ends the first child";
    EXPECT_EQ(stopped.calls.back().totalItemsInCurrentLocation, 1);
    for (const auto& call : stopped.calls) {
        EXPECT_TRUE(call.currentURL.has_value() || call == StorageScanProgress::empty()) << "no report of the end";
    }
}

TEST_F(StorageScannerProgress, GivesTheSameAccountForEveryNumberOfJobs)
{
    const auto locations = busyHome();
    const auto sequential = scanStoppingAt(0, locations);
    ASSERT_GT(sequential.calls.size(), 180U);
    for (const unsigned jobs : {2U, 3U, 8U}) {
        m_configuration.jobs = jobs;
        for (int round = 0; round < 5; ++round) {
            const auto parallel = scanStoppingAt(0, locations);
            EXPECT_EQ(difference(parallel, sequential), "") << jobs;
        }
    }
}

TEST_F(StorageScannerProgress, GivesTheSameAccountWhereverItIsStopped)
{
    const auto locations = busyHome();
    m_configuration.inventoryProgressItemInterval = 10;
    const auto whole = scanStoppingAt(0, locations);
    for (std::size_t call = 1; call <= whole.calls.size(); ++call) {
        m_configuration.jobs = 1;
        const auto sequential = scanStoppingAt(call, locations);
        m_configuration.jobs = 3;
        const auto parallel = scanStoppingAt(call, locations);
        ASSERT_EQ(difference(parallel, sequential), "") << "stopped at call " << call;
    }
}

TEST_F(StorageScannerProgress, IsTheSameForRandomTrees)
{
    std::mt19937 random(20'260'711);
    for (int round = 0; round < 12; ++round) {
        std::string layout;
        for (int item = 0; item < 120; ++item) {
            const auto child = random() % 20;
            const auto folder = random() % 3;
            layout += fmt::format("home/R{}/c{}/f{}/i{} size={} age={}h\n", round, child, folder, item,
                random() % 3 * 5000, random() % 60);
        }
        m_tree.add(layout);
        const std::vector locations{location(m_tree.url(fmt::format("home/R{}/", round)))};
        m_configuration.jobs = 1;
        const auto sequential = scanStoppingAt(0, locations);
        m_configuration.jobs = 2;
        const auto parallel = scanStoppingAt(0, locations);
        ASSERT_EQ(difference(parallel, sequential), "");
    }
}

TEST_F(StorageScannerProgress, StopsFromAnotherThreadAndLeavesATrueAccount)
{
    const auto locations = busyHome();
    m_configuration.jobs = 4;
    const auto whole = scanStoppingAt(0, locations);
    for (int delay = 0; delay < 40; ++delay) {
        std::stop_source source;
        const std::jthread stopper([&] {
            std::this_thread::sleep_for(std::chrono::microseconds(delay * 50));
            source.request_stop();
        });
        const auto report = scan(locations, {}, source.get_token());
        for (const auto& candidate : report.candidates) {
            EXPECT_THAT(whole.report.candidates, testing::Contains(candidate));
        }
        for (const auto& skipped : report.skippedItems) {
            EXPECT_THAT(whole.report.skippedItems, testing::Contains(skipped));
        }
    }
}

TEST_F(StorageScannerProgress, ReportsNothingWhenStoppedBeforeItBegan)
{
    m_tree.add("home/Caches/a size=10");
    for (const unsigned jobs : {1U, 2U}) {
        m_configuration.jobs = jobs;
        std::stop_source source;
        source.request_stop();
        const auto report = scan(LocationRules{}, {}, source.get_token());
        EXPECT_THAT(report.candidates, IsEmpty());
        EXPECT_THAT(report.skippedItems, IsEmpty());
    }
}

} // namespace
