#include "Tests/CleanerCore/Insights/DuplicateFinderFixture.h"
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

namespace CleanerCore::DuplicateTests {

using testing::ElementsAre;
using testing::IsEmpty;

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

} // namespace CleanerCore::DuplicateTests
