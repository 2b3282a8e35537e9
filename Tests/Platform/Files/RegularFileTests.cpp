#include "Platform/Files/RegularFile.h"
#include "Tests/Support/TemporaryTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace Platform {
namespace {

using TestSupport::TemporaryTree;

std::string textOf(ReadableFile& file, std::int64_t offset, std::size_t length)
{
    std::vector<std::byte> buffer(length);
    const auto count = file.read(offset, buffer);
    return count ? std::string(reinterpret_cast<const char*>(buffer.data()), *count) : "failed";
}

TEST(RegularFile, ReadsPiecesAndEndsWhereTheFileDoes)
{
    const TemporaryTree tree("file text=\"hello, file\"");
    for (const auto plan : {ReadingPlan::samples, ReadingPlan::wholeFile}) {
        const auto file = openRegularFile(tree.url("file"), plan);
        ASSERT_TRUE(file);
        EXPECT_EQ((*file)->stateAtOpening().size, 11);
        EXPECT_EQ(textOf(**file, 0, 5), "hello");
        EXPECT_EQ(textOf(**file, 7, 100), "file");
        EXPECT_EQ(textOf(**file, 100, 5), "");
    }
}

TEST(RegularFile, ReadsLargeFilesByEitherPlan)
{
    const TemporaryTree tree;
    std::string contents(20U << 20U, '\0');
    for (std::size_t index = 0; index < contents.size(); ++index) {
        contents[index] = static_cast<char>(index >> 8U);
    }
    std::ofstream(tree.path("file"), std::ios::binary) << contents;
    // Out of the cache, as far as the system goes along, so that the ways from the disk are taken, too.
    const int descriptor = open(tree.path("file").c_str(), O_RDONLY | O_CLOEXEC);
    fsync(descriptor);
    posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
    close(descriptor);
    for (const auto plan : {ReadingPlan::samples, ReadingPlan::wholeFile, ReadingPlan::wholeFile}) {
        const auto file = openRegularFile(tree.url("file"), plan);
        ASSERT_TRUE(file);
        constexpr std::size_t piece = 300'000;
        for (std::size_t offset = 0; offset < contents.size(); offset += piece) {
            ASSERT_EQ(textOf(**file, static_cast<std::int64_t>(offset), piece), contents.substr(offset, piece));
        }
    }
}

TEST(RegularFile, RefusesWhatIsNoRegularFile)
{
    const TemporaryTree tree("file size=1\nfolder/\nlink -> file\npipe fifo\ndoor socket");
    for (const auto* const name : {"folder", "link", "pipe", "door"}) {
        const auto file = openRegularFile(tree.url(name), ReadingPlan::samples);
        ASSERT_FALSE(file) << name;
        EXPECT_EQ(file.error().kind, FileErrorKind::notRegularFile) << name;
    }
    EXPECT_EQ(openRegularFile(FileURL("/dev/null"), ReadingPlan::samples).error().kind, FileErrorKind::notRegularFile);
    EXPECT_EQ(openRegularFile(tree.url("none"), ReadingPlan::samples).error().kind, FileErrorKind::noSuchFile);
}

TEST(RegularFile, SaysInWordsWhatItRefuses)
{
    const TemporaryTree tree("pipe fifo");
    EXPECT_EQ(openRegularFile(tree.url("pipe"), ReadingPlan::samples).error().localizedDescription(),
        "The file “pipe” couldn’t be opened because it isn’t a regular file.");
    const FileError changed{.kind = FileErrorKind::contentsChanged, .operation = FileOperation::read, .path = "/x"};
    EXPECT_EQ(changed.localizedDescription(), "The file “x” couldn’t be opened because its contents are changing.");
}

/// A FIFO and a file trade places all the time. As soon as somebody had the FIFO open for reading, opening it for
/// writing without waiting would succeed.
TEST(RegularFile, NeverOpensAFIFOThatIsSwappedIn)
{
    const TemporaryTree tree("item size=10\npipe fifo");
    std::atomic<bool> isOver = false;
    std::atomic<int> swaps = 0;
    std::atomic<int> readersSeen = 0;
    {
        const std::jthread swapper([&] {
            while (!isOver) {
                renameat2(AT_FDCWD, tree.path("item").c_str(), AT_FDCWD, tree.path("pipe").c_str(), RENAME_EXCHANGE);
                ++swaps;
            }
        });
        const std::jthread writer([&] {
            while (!isOver) {
                for (const auto* const name : {"item", "pipe"}) {
                    const int descriptor =
                        open(tree.path(name).c_str(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
                    struct stat found{};
                    if (descriptor >= 0 && fstat(descriptor, &found) == 0 && S_ISFIFO(found.st_mode)) {
                        ++readersSeen;
                    }
                    close(descriptor);
                }
            }
        });
        int opened = 0;
        int refused = 0;
        for (int round = 0; round < 500'000 && (opened < 2'000 || refused < 2'000 || swaps < 2'000); ++round) {
            const auto file = openRegularFile(tree.url("item"), ReadingPlan::samples);
            opened += file ? 1 : 0;
            refused += !file && file.error().kind == FileErrorKind::notRegularFile ? 1 : 0;
        }
        isOver = true;
        EXPECT_GT(opened, 0);
        EXPECT_GT(refused, 0);
    }
    EXPECT_EQ(readersSeen, 0);
}

TEST(RegularFile, LeavesTheAccessTimeAlone)
{
    const TemporaryTree tree("file size=10");
    // Older than the modification: where access times are kept at all, reading would set it.
    const std::array<timespec, 2> times{
        timespec{.tv_sec = 1'000, .tv_nsec = 0}, timespec{.tv_sec = 2'000, .tv_nsec = 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, tree.path("file").c_str(), times.data(), 0), 0);
    {
        const auto file = openRegularFile(tree.url("file"), ReadingPlan::wholeFile);
        ASSERT_TRUE(file);
        EXPECT_EQ(textOf(**file, 0, 10).size(), 10U);
    }
    struct stat found{};
    ASSERT_EQ(stat(tree.path("file").c_str(), &found), 0);
    EXPECT_EQ(found.st_atim.tv_sec, 1'000);
}

TEST(RegularFile, ShowsEveryChange)
{
    const TemporaryTree tree("file size=10");
    const auto file = openRegularFile(tree.url("file"), ReadingPlan::wholeFile);
    ASSERT_TRUE(file);
    EXPECT_EQ((*file)->currentState(), (*file)->stateAtOpening());
    std::ofstream(tree.path("file"), std::ios::app) << "more";
    const auto grown = (*file)->currentState();
    ASSERT_TRUE(grown);
    EXPECT_NE(*grown, (*file)->stateAtOpening());
    std::filesystem::permissions(tree.path("file"), std::filesystem::perms::owner_read);
    EXPECT_NE((*file)->currentState(), grown);
    std::filesystem::remove(tree.path("file"));
    ASSERT_FALSE((*file)->currentState());
    EXPECT_EQ((*file)->currentState().error().kind, FileErrorKind::noSuchFile);
}

} // namespace
} // namespace Platform
