#include "Tests/CleanerCore/Insights/DuplicateFinderFixture.h"
#include "Tests/Support/WatchedFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <fmt/format.h>
#include <limits>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace CleanerCore::DuplicateTests {

using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(DuplicateFinderTest, DropsExactlyTheFileThatCannotBeOpened)
{
    for (const auto* const path : {"/a", "/b", "/c"}) {
        add(path, bytes(300'000));
    }
    const TestSupport::WatchedFiles files(
        m_files, {.beforeOpening = [](const FileURL& url) { return url.path() == "/a" ? EACCES : 0; }});
    const auto result = find(files);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_THAT(pathsOf(result.groups.front()), ElementsAre("/b", "/c"));
    EXPECT_THAT(
        skips(), ElementsAre("/a: The file “a” couldn’t be opened because you don’t have permission to view it."));
}

TEST_F(DuplicateFinderTest, LetsTheOthersGoOnWhereTheFirstFileFailsHalfway)
{
    const auto contents = bytes(5 * kPiece);
    for (const auto* const path : {"/a", "/b", "/c"}) {
        add(path, contents);
    }
    const TestSupport::WatchedFiles files(m_files, {.beforeReading = [](const FileURL& url, std::int64_t offset, auto) {
        return url.path() == "/a" && offset == 3 * static_cast<std::int64_t>(kPiece) ? EIO : 0;
    }});
    const auto result = find(files);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_THAT(pathsOf(result.groups.front()), ElementsAre("/b", "/c"));
    EXPECT_EQ(result.groups.front().id, Platform::hexDigest(Platform::SHA256::of(std::as_bytes(std::span(contents)))));
    EXPECT_EQ(m_skipped.size(), 1U);
}

TEST_F(DuplicateFinderTest, JudgesAHundredThousandFilesOfOneSizeByTheFirstFew)
{
    for (int number = 0; number < 100'000; ++number) {
        add(fmt::format("/folder/{}", number), "x");
    }
    const TestSupport::WatchedFiles files(m_files, {});
    const auto result = find(files);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().files.size(), 250U);
    EXPECT_TRUE(result.isTruncated);
    EXPECT_EQ(files.openings(), 250U);
}

TEST_F(DuplicateFinderTest, HoldsFewFilesOpenHoweverManyCopiesThereAre)
{
    m_limits.maximumResultCount = 5'000;
    const auto contents = bytes(kPiece + 1);
    const FileRecord first = m_files.add("/0", contents);
    m_records.push_back(first);
    for (int number = 1; number < 1'200; ++number) {
        // The number of a file of its own, so that each is another one.
        m_records.push_back(m_files.add(fmt::format("/{}", number), contents));
    }
    const TestSupport::WatchedFiles files(m_files, {});
    const auto result = find(files);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().files.size(), 1'200U);
    EXPECT_LT(files.mostOpenFiles(), 300U);
    EXPECT_LE(files.longestRead(), static_cast<std::size_t>(kMebibyte));
    EXPECT_THAT(m_skipped, IsEmpty());
}

TEST_F(DuplicateFinderTest, DoesNotReadFilesOfEightExbibytes)
{
    m_limits = InsightConfiguration::standard();
    constexpr auto size = std::numeric_limits<std::int64_t>::max();
    m_records.push_back(m_files.add("/a", "", std::nullopt, size));
    m_records.push_back(m_files.add("/b", "", std::nullopt, size));
    const TestSupport::WatchedFiles files(m_files, {});
    const auto result = find(files);
    EXPECT_THAT(result.groups, IsEmpty());
    EXPECT_TRUE(result.isTruncated);
    EXPECT_THAT(skips(), ElementsAre("/a: Duplicate hash budget exceeded", "/b: Duplicate hash budget exceeded"));
    EXPECT_EQ(files.bytesRead(), 4 * 65'536);
}

TEST_F(DuplicateFinderTest, TellsHowMuchItReadOnTheCallingThread)
{
    const auto contents = bytes(10 * kPiece);
    add("/a", contents);
    add("/b", contents);
    std::vector<std::int64_t> told;
    std::set<std::thread::id> threads;
    const auto onProgress = [&](std::int64_t count) {
        told.push_back(count);
        threads.insert(std::this_thread::get_id());
    };
    static_cast<void>(DuplicateFinder(m_limits, m_files, 2, onProgress).find(m_records, m_skipped));
    EXPECT_THAT(threads, ElementsAre(std::this_thread::get_id()));
    ASSERT_FALSE(told.empty());
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_EQ(told.back(), static_cast<std::int64_t>(2 * contents.size() + 6 * 65'536));
}

/// A search that is stopped at the n-th read, for every n.
TEST_F(DuplicateFinderTest, KeepsWhatWasFoundBeforeAStopAtAnyRead)
{
    const auto large = bytes(3 * kPiece, 1);
    const auto medium = bytes(2 * kPiece, 2);
    add("/large1", large);
    add("/large2", large);
    add("/medium1", medium);
    add("/medium2", medium);
    add("/small1", "small");
    add("/small2", "small");
    std::set<std::size_t> groupCounts;
    for (int stopAt = 1;; ++stopAt) {
        std::stop_source source;
        int reads = 0;
        std::mutex lock;
        const TestSupport::WatchedFiles files(m_files, {.beforeReading = [&](const FileURL&, auto, auto) {
            const std::scoped_lock guard(lock);
            if (++reads == stopAt) {
                source.request_stop();
            }
            return 0;
        }});
        const auto result = find(files, 1, source.get_token());
        EXPECT_FALSE(result.isTruncated);
        EXPECT_THAT(m_skipped, IsEmpty());
        groupCounts.insert(result.groups.size());
        if (!result.groups.empty()) {
            EXPECT_THAT(pathsOf(result.groups.front()), testing::Contains("/large1"));
        }
        if (!source.stop_requested()) {
            EXPECT_EQ(result.groups.size(), 3U);
            break;
        }
        // No more than the pieces that were being read.
        EXPECT_LE(reads, stopAt + 1);
    }
    EXPECT_THAT(groupCounts, testing::IsSupersetOf({0U, 1U, 3U}));
}

TEST_F(DuplicateFinderTest, ReadsNothingWhenItIsStoppedBeforehand)
{
    add("/a", "same");
    add("/b", "same");
    std::stop_source source;
    source.request_stop();
    const TestSupport::WatchedFiles files(m_files, {});
    const auto result = find(files, 2, source.get_token());
    EXPECT_THAT(result.groups, IsEmpty());
    EXPECT_FALSE(result.isTruncated);
    EXPECT_EQ(files.openings(), 0U);
}

TEST_F(DuplicateFinderTest, BeginsNoReadAfterAStop)
{
    const auto contents = bytes(64 * kPiece);
    for (const auto* const path : {"/a", "/b", "/c"}) {
        add(path, contents);
    }
    constexpr unsigned kJobs = 2;
    std::stop_source source;
    std::atomic<int> reads = 0;
    std::atomic<int> readsAfterStop = 0;
    const TestSupport::WatchedFiles files(m_files, {.beforeReading = [&](const FileURL&, auto, auto) {
        readsAfterStop += source.stop_requested() ? 1 : 0;
        if (++reads == 20) {
            source.request_stop();
        }
        return 0;
    }});
    EXPECT_THAT(find(files, kJobs, source.get_token()).groups, IsEmpty());
    EXPECT_GE(reads, 20);
    // The other thread may have looked for a stop just before.
    EXPECT_LT(readsAfterStop, static_cast<int>(kJobs));
}

} // namespace CleanerCore::DuplicateTests
