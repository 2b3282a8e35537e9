#include "CleanerCore/Insights/ContentComparison.h"
#include "CleanerCore/Insights/DuplicateFinder.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/CleanerCore/Insights/DuplicateTestLimits.h"
#include "Tests/Support/TemporaryTree.h"
#include "Tests/Support/WatchedFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace CleanerCore {
namespace {

using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kPiece = static_cast<std::int64_t>(ContentComparison::kPieceBytes);
constexpr const char* kChanging = "because its contents are changing.";

/// Three equal files of five pieces on the disk, and something that happens to the second while they are read.
class DuplicateFinderOnDisk : public testing::Test {
protected:
    DuplicateFinderOnDisk()
    {
        for (const auto* const name : {"a", "b", "c"}) {
            std::ofstream(m_tree.path(name), std::ios::binary) << std::string(5 * kPiece, 'x');
        }
    }

    void addRecord(std::string_view name)
    {
        const auto url = m_tree.url(name);
        struct stat found{};
        ASSERT_EQ(lstat(url.path().c_str(), &found), 0);
        FileRecord record(url);
        record.logicalSizeBytes = found.st_size;
        record.allocatedSizeBytes = found.st_blocks * 512;
        record.lastModified = Platform::Date{0};
        record.fileNumber = found.st_ino;
        record.deviceNumber = found.st_dev;
        m_records.push_back(std::move(record));
    }
    void addRecords()
    {
        for (const auto* const name : {"a", "b", "c"}) {
            addRecord(name);
        }
    }

    /// `act` is called once, before the second file is read at `offset` in the course of the comparison.
    DuplicateSearchResult findWhile(std::int64_t offset, const std::function<void()>& act)
    {
        bool isDone = false;
        const TestSupport::WatchedFiles files(
            m_fileManager, {.beforeReading = [&](const FileURL& url, std::int64_t at, std::size_t length) {
                if (!isDone && url == m_tree.url("b") && at == offset && std::cmp_equal(length, kPiece)) {
                    isDone = true;
                    act();
                }
                return 0;
            }});
        auto result = find(files);
        EXPECT_TRUE(isDone);
        return result;
    }
    DuplicateSearchResult find(const Platform::FileManager& files)
    {
        return DuplicateFinder(m_limits, files, 1).find(m_records, m_skipped);
    }

    void expectOnlyTheOthers(const DuplicateSearchResult& result, std::string_view reason)
    {
        ASSERT_EQ(result.groups.size(), 1U);
        EXPECT_THAT(namesOf(result.groups.front()), ElementsAre("a", "c"));
        EXPECT_EQ(result.groups.front().files.front().detail, "Duplicate set · 2 copies");
        EXPECT_FALSE(result.isTruncated);
        ASSERT_EQ(m_skipped.size(), 1U);
        EXPECT_EQ(m_skipped.front().url, m_tree.url("b"));
        EXPECT_THAT(m_skipped.front().reason, testing::HasSubstr(reason));
    }
    static std::vector<std::string> namesOf(const DuplicateFileGroup& group)
    {
        std::vector<std::string> names;
        for (const auto& file : group.files) {
            names.push_back(file.displayName);
        }
        return names;
    }

    Platform::PosixFileManager m_fileManager;
    TestSupport::TemporaryTree m_tree;
    InsightConfiguration m_limits = duplicateTestLimits();
    std::vector<FileRecord> m_records;
    std::vector<SkippedItem> m_skipped;
};

TEST_F(DuplicateFinderOnDisk, FindsEqualFiles)
{
    addRecords();
    const auto result = find(m_fileManager);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_THAT(namesOf(result.groups.front()), ElementsAre("a", "b", "c"));
    EXPECT_TRUE(result.groups.front().files.front().resourceIdentity);
    EXPECT_THAT(m_skipped, IsEmpty());
}

TEST_F(DuplicateFinderOnDisk, DropsAFileThatShrinksWhileItIsRead)
{
    addRecords();
    expectOnlyTheOthers(
        findWhile(2 * kPiece, [&] { std::filesystem::resize_file(m_tree.path("b"), 2 * kPiece + 1); }), kChanging);
}

TEST_F(DuplicateFinderOnDisk, DropsAFileThatGrowsWhileItIsRead)
{
    addRecords();
    expectOnlyTheOthers(
        findWhile(2 * kPiece, [&] { std::ofstream(m_tree.path("b"), std::ios::app) << "more"; }), kChanging);
}

TEST_F(DuplicateFinderOnDisk, DropsAFileThatChangesWhereItWasReadAlready)
{
    addRecords();
    expectOnlyTheOthers(findWhile(3 * kPiece,
                            [&] {
                                std::fstream file(m_tree.path("b"), std::ios::in | std::ios::out | std::ios::binary);
                                file << "changed";
                            }),
        kChanging);
}

TEST_F(DuplicateFinderOnDisk, DropsAFileThatVanishesWhileItIsRead)
{
    addRecords();
    expectOnlyTheOthers(
        findWhile(3 * kPiece, [&] { std::filesystem::remove(m_tree.path("b")); }), "because there is no such file.");
}

TEST_F(DuplicateFinderOnDisk, DropsAFileWhosePlaceAnotherTakesBeforeItIsCompared)
{
    addRecords();
    int openings = 0;
    const TestSupport::WatchedFiles files(m_fileManager, {.beforeOpening = [&](const FileURL& url) {
        if (url == m_tree.url("b") && ++openings == 2) {
            std::filesystem::copy_file(m_tree.path("b"), m_tree.path("other"));
            std::filesystem::rename(m_tree.path("other"), m_tree.path("b"));
        }
        return 0;
    }});
    expectOnlyTheOthers(find(files), "because another item has taken its place.");
}

TEST_F(DuplicateFinderOnDisk, DropsAFileThatChangesAfterItWasHashed)
{
    addRecords();
    const TestSupport::WatchedFiles files(m_fileManager, {.beforeLastLook = [&](const FileURL& url) {
        if (url == m_tree.url("b")) {
            std::ofstream(m_tree.path("b"), std::ios::app) << "more";
        }
    }});
    expectOnlyTheOthers(find(files), kChanging);
}

TEST_F(DuplicateFinderOnDisk, DropsAFileThatVanishesAfterItWasHashed)
{
    addRecords();
    const TestSupport::WatchedFiles files(m_fileManager, {.beforeLastLook = [&](const FileURL& url) {
        if (url == m_tree.url("b")) {
            std::filesystem::remove(m_tree.path("b"));
        }
    }});
    expectOnlyTheOthers(find(files), "because there is no such file.");
}

TEST_F(DuplicateFinderOnDisk, DropsAFileThatHasAnotherSizeThanTheWalkMet)
{
    addRecords();
    std::ofstream(m_tree.path("b"), std::ios::app) << "more";
    expectOnlyTheOthers(find(m_fileManager), kChanging);
}

TEST_F(DuplicateFinderOnDisk, DropsAnotherFileThanTheWalkMet)
{
    addRecords();
    m_records[1].fileNumber += 1'000'000;
    expectOnlyTheOthers(find(m_fileManager), "because another item has taken its place.");
}

TEST_F(DuplicateFinderOnDisk, DropsASmallFileThatChangesWhileItIsRead)
{
    for (const auto* const name : {"a", "b", "c"}) {
        std::ofstream(m_tree.path(name), std::ios::binary | std::ios::trunc) << "small";
    }
    addRecords();
    const TestSupport::WatchedFiles files(m_fileManager, {.beforeReading = [&](const FileURL& url, auto, auto) {
        if (url == m_tree.url("b")) {
            std::filesystem::permissions(m_tree.path("b"), std::filesystem::perms::owner_read);
        }
        return 0;
    }});
    expectOnlyTheOthers(find(files), kChanging);
}

TEST_F(DuplicateFinderOnDisk, NeverOpensAFIFOThatTakesAFilesPlace)
{
    addRecords();
    const TestSupport::WatchedFiles files(m_fileManager, {.beforeOpening = [&](const FileURL& url) {
        if (url == m_tree.url("b")) {
            std::filesystem::remove(m_tree.path("b"));
            EXPECT_EQ(mkfifo(m_tree.path("b").c_str(), 0600), 0);
        }
        return 0;
    }});
    expectOnlyTheOthers(find(files), "because it isn’t a regular file.");
}

TEST_F(DuplicateFinderOnDisk, HoldsTheNamesOfOneFileOnce)
{
    std::filesystem::remove(m_tree.path("b"));
    std::filesystem::create_hard_link(m_tree.path("a"), m_tree.path("b"));
    addRecords();
    const auto result = find(m_fileManager);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_THAT(namesOf(result.groups.front()), ElementsAre("a", "c"));
    EXPECT_THAT(m_skipped, IsEmpty());
}

TEST_F(DuplicateFinderOnDisk, ReadsSparseFilesAsTheZerosThatTheyAre)
{
    for (const auto* const name : {"hole1", "hole2"}) {
        std::ofstream(m_tree.path(name)).close();
        std::filesystem::resize_file(m_tree.path(name), 3 * kPiece + 7);
        addRecord(name);
    }
    const auto result = find(m_fileManager);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().sizeBytes, 3 * kPiece + 7);
    EXPECT_EQ(result.groups.front().wastedBytes(), 0);
}

TEST_F(DuplicateFinderOnDisk, ComparesMoreCopiesThanAProcessMayOpen)
{
    m_limits.maximumResultCount = 5'000;
    constexpr int copies = 400;
    const std::string contents(static_cast<std::size_t>(kPiece) + 1, 'y');
    for (int number = 0; number < copies; ++number) {
        const auto name = fmt::format("copy{}", number);
        std::ofstream(m_tree.path(name), std::ios::binary) << contents;
        addRecord(name);
    }
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    rlimit few = before;
    few.rlim_cur = 350;
    setrlimit(RLIMIT_NOFILE, &few);
    const auto result = find(m_fileManager);
    setrlimit(RLIMIT_NOFILE, &before);
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().files.size(), static_cast<std::size_t>(copies));
    EXPECT_THAT(m_skipped, IsEmpty());
}

} // namespace
} // namespace CleanerCore
