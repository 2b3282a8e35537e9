#include "CleanerCore/Insights/ContentComparison.h"
#include "CleanerCore/Insights/DuplicateFinder.h"
#include "Tests/CleanerCore/Insights/DuplicateTestLimits.h"
#include "Tests/CleanerCore/Insights/FilesInMemory.h"
#include "Tests/Support/WatchedFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fmt/format.h>
#include <limits>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace CleanerCore {
namespace {

using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t kMebibyte = 1'048'576;
constexpr std::size_t kPiece = ContentComparison::kPieceBytes;
// Behind the first sample.
constexpr std::size_t kFingerprintEnd = 65'536;

std::string bytes(std::size_t count, unsigned seed = 0)
{
    std::string text(count, '\0');
    auto value = seed * 2'654'435'761U + 1;
    for (auto& character : text) {
        value = value * 1'664'525U + 1'013'904'223U;
        character = static_cast<char>(value >> 24U);
    }
    return text;
}

std::string changedAt(std::string contents, std::size_t offset)
{
    contents[offset] = static_cast<char>(contents[offset] ^ 1);
    return contents;
}

class DuplicateFinderTest : public testing::Test {
protected:
    void add(std::string_view path, std::string contents)
    {
        m_records.push_back(m_files.add(path, std::move(contents)));
    }

    DuplicateSearchResult find(const Platform::FileManager& files, unsigned jobs = 2, const std::stop_token& stop = {})
    {
        return DuplicateFinder(m_limits, files, jobs).find(m_records, m_skipped, stop);
    }
    DuplicateSearchResult find() { return find(m_files); }

    static std::vector<std::string> pathsOf(const DuplicateFileGroup& group)
    {
        std::vector<std::string> paths;
        for (const auto& file : group.files) {
            paths.push_back(file.url.path());
        }
        return paths;
    }
    [[nodiscard]] std::vector<std::string> skips() const
    {
        std::vector<std::string> lines;
        for (const auto& item : m_skipped) {
            lines.push_back(item.url.path() + ": " + item.reason);
        }
        return lines;
    }

    FilesInMemory m_files;
    std::vector<FileRecord> m_records;
    std::vector<SkippedItem> m_skipped;
    InsightConfiguration m_limits = duplicateTestLimits();
};

TEST_F(DuplicateFinderTest, FindsNothingAmongNothing)
{
    const auto result = find();
    EXPECT_THAT(result.groups, IsEmpty());
    EXPECT_FALSE(result.isTruncated);
}

TEST_F(DuplicateFinderTest, MakesTheInsightsOfAGroup)
{
    add("/home/a/Downloads/x", "abc");
    add("/home/a/Documents/x", "abc");
    m_records[0].allocatedSizeBytes = 8192;
    m_records[1].lastModified = std::nullopt;
    const auto result = find();
    ASSERT_EQ(result.groups.size(), 1U);
    const auto& group = result.groups.front();
    EXPECT_EQ(group.id, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(group.sizeBytes, 3);
    EXPECT_EQ(group.wastedBytes(), 8192);
    EXPECT_THAT(pathsOf(group), ElementsAre("/home/a/Documents/x", "/home/a/Downloads/x"));
    for (const auto& file : group.files) {
        EXPECT_EQ(file.kind, FileInsightKind::duplicate);
        EXPECT_EQ(file.detail, "Duplicate set · 2 copies");
        EXPECT_EQ(file.safety, CleanupSafety::caution);
        EXPECT_EQ(file.resourceIdentity->fileSize, 3);
    }
    EXPECT_THAT(m_skipped, IsEmpty());
}

TEST_F(DuplicateFinderTest, TellsFilesApartThatDifferInTheirLastByteOnly)
{
    const auto contents = bytes(3 * kPiece + 5);
    add("/a", contents);
    add("/b", changedAt(contents, contents.size() - 1));
    EXPECT_THAT(find().groups, IsEmpty());
    EXPECT_THAT(m_skipped, IsEmpty());
}

TEST_F(DuplicateFinderTest, CountsFilesThatDifferInTheirLastByteAgainstTheBudget)
{
    const auto contents = bytes(200'000);
    add("/a", contents);
    add("/b", changedAt(contents, contents.size() - 1));
    add("/c", "equal");
    add("/d", "equal");
    m_limits.maximumDuplicateHashFiles = 4;
    EXPECT_EQ(find().groups.size(), 1U);
    m_limits.maximumDuplicateHashFiles = 3;
    const auto result = find();
    EXPECT_THAT(result.groups, IsEmpty());
    EXPECT_TRUE(result.isTruncated);
}

TEST_F(DuplicateFinderTest, TellsFilesApartThatDifferInTheMiddle)
{
    const auto contents = bytes(4 * kPiece);
    add("/a", contents);
    add("/b", changedAt(contents, contents.size() / 2 + 50'000));
    add("/c", contents);
    add("/d", changedAt(contents, contents.size() / 2 + 50'000));
    add("/e", changedAt(contents, kPiece + 1));
    const auto result = find();
    ASSERT_EQ(result.groups.size(), 2U);
    EXPECT_THAT((std::set{pathsOf(result.groups[0]), pathsOf(result.groups[1])}),
        ElementsAre(std::vector<std::string>{"/a", "/c"}, std::vector<std::string>{"/b", "/d"}));
    EXPECT_LT(result.groups[0].id, result.groups[1].id);
}

TEST_F(DuplicateFinderTest, DoesNotReadTheRestOfWhatIsLikeNoOther)
{
    const auto contents = bytes(16 * kPiece);
    add("/a", contents);
    add("/b", changedAt(contents, kFingerprintEnd));
    const TestSupport::WatchedFiles files(m_files, {});
    EXPECT_THAT(find(files).groups, IsEmpty());
    EXPECT_LT(files.bytesRead(), static_cast<std::int64_t>(4 * kPiece));
}

TEST_F(DuplicateFinderTest, GivesUpAtFilesThatAreTooLargeForTheBudget)
{
    m_limits.maximumDuplicateFullHashBytesPerFile = kMebibyte;
    const auto large = bytes(static_cast<std::size_t>(kMebibyte) + 1);
    add("/large1", large);
    add("/large2", large);
    add("/small1", "small");
    add("/small2", "small");
    const auto result = find();
    EXPECT_THAT(result.groups, IsEmpty());
    EXPECT_TRUE(result.isTruncated);
    EXPECT_THAT(
        skips(), ElementsAre("/large1: Duplicate hash budget exceeded", "/large2: Duplicate hash budget exceeded"));
}

TEST_F(DuplicateFinderTest, GoesOnBehindFilesThatAreTooLargeButHaveNoCompanion)
{
    m_limits.maximumDuplicateFullHashBytesPerFile = kMebibyte;
    const auto large = bytes(static_cast<std::size_t>(kMebibyte) + 1);
    add("/large1", large);
    add("/large2", changedAt(large, 0));
    add("/small1", "small");
    add("/small2", "small");
    const auto result = find();
    EXPECT_EQ(result.groups.size(), 1U);
    EXPECT_FALSE(result.isTruncated);
    EXPECT_THAT(m_skipped, IsEmpty());
}

TEST_F(DuplicateFinderTest, EndsWhereTheBytesOfTheBudgetDoButKeepsWhatItFound)
{
    m_limits.maximumDuplicateHashBytes = 3 * 600'000;
    const auto contents = bytes(600'000);
    for (const auto* const path : {"/a", "/b", "/c", "/d"}) {
        add(path, contents);
    }
    add("/small1", "small");
    add("/small2", "small");
    const auto result = find();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_THAT(pathsOf(result.groups.front()), ElementsAre("/a", "/b", "/c"));
    EXPECT_EQ(result.groups.front().files.front().detail, "Duplicate set · 3 copies");
    EXPECT_TRUE(result.isTruncated);
    EXPECT_THAT(m_skipped, IsEmpty());
}

TEST_F(DuplicateFinderTest, ExaminesTheFirst250OfASizeInReviewOrderAndEndsThere)
{
    for (int number = 0; number < 300; ++number) {
        add(fmt::format("/{:03}", number), "contents");
        // The later the name, the more the file holds on the disk.
        m_records.back().allocatedSizeBytes = 4096 * (number + 1);
    }
    add("/small1", "small");
    add("/small2", "small");
    const auto result = find();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().files.size(), 250U);
    EXPECT_THAT(pathsOf(result.groups.front()), testing::Not(testing::Contains("/049")));
    EXPECT_THAT(pathsOf(result.groups.front()), testing::Contains("/050"));
    EXPECT_TRUE(result.isTruncated);
}

TEST_F(DuplicateFinderTest, CutsTheListOfGroupsWithoutCallingItTruncated)
{
    m_limits.maximumResultCount = 20;
    for (int number = 0; number < 90; ++number) {
        const auto contents = bytes(static_cast<std::size_t>(100 + number));
        add(fmt::format("/{}a", number), contents);
        add(fmt::format("/{}b", number), contents);
        m_records.back().allocatedSizeBytes = m_records[m_records.size() - 2].allocatedSizeBytes = number % 30;
    }
    const auto result = find();
    EXPECT_FALSE(result.isTruncated);
    ASSERT_EQ(result.groups.size(), 20U);
    EXPECT_EQ(result.groups[0].wastedBytes(), 29);
    // Of equal ones the larger files come first, as they were found.
    EXPECT_THAT((std::vector{result.groups[0].sizeBytes, result.groups[1].sizeBytes, result.groups[2].sizeBytes}),
        ElementsAre(189, 159, 129));
}

TEST_F(DuplicateFinderTest, LeavesOutWhatIsTooSmallOrAFolder)
{
    m_limits.minimumDuplicateFileBytes = 4;
    add("/a", "123");
    add("/b", "123");
    add("/c", "1234");
    add("/d", "1234");
    add("/folder", "1234");
    m_records.back().isDirectory = true;
    const auto result = find();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_THAT(pathsOf(result.groups.front()), ElementsAre("/c", "/d"));
}

TEST_F(DuplicateFinderTest, DecidesBySizeOfContentsAndCountsAllocatedBytes)
{
    add("/a", "same");
    add("/b", "same");
    add("/c", "other");
    m_records[0].allocatedSizeBytes = 1;
    m_records[1].allocatedSizeBytes = 2;
    m_records[2].allocatedSizeBytes = 1;
    const auto result = find();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().sizeBytes, 4);
    EXPECT_EQ(result.groups.front().wastedBytes(), 2);
}

TEST_F(DuplicateFinderTest, HoldsEachFileOnceUnderTheFirstOfItsNames)
{
    add("/z", "contents");
    m_records.push_back(m_files.add("/b", "contents", m_records[0].fileNumber));
    m_records.push_back(m_files.add("/c", "contents", m_records[0].fileNumber));
    EXPECT_THAT(find().groups, IsEmpty());
    add("/y", "contents");
    m_limits.maximumDuplicateHashFiles = 2;
    const auto result = find();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_THAT(pathsOf(result.groups.front()), ElementsAre("/b", "/y"));
    EXPECT_FALSE(result.isTruncated);
}

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

TEST_F(DuplicateFinderTest, AnswersAStopSoonThoughEachReadIsSlow)
{
    const auto contents = bytes(64 * kPiece);
    for (const auto* const path : {"/a", "/b", "/c"}) {
        add(path, contents);
    }
    std::stop_source source;
    const TestSupport::WatchedFiles files(m_files, {.beforeReading = [](const FileURL&, auto, auto) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        return 0;
    }});
    std::chrono::steady_clock::time_point stoppedAt;
    const std::jthread stopper([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        stoppedAt = std::chrono::steady_clock::now();
        source.request_stop();
    });
    EXPECT_THAT(find(files, 2, source.get_token()).groups, IsEmpty());
    EXPECT_LT(std::chrono::steady_clock::now() - stoppedAt, std::chrono::milliseconds(200));
}

} // namespace
} // namespace CleanerCore
