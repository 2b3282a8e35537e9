#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FailingSystemCall.h"
#include "Tests/Support/FileContents.h"
#include "Tests/Support/TemporaryTree.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace {

using Platform::Existence;
using Platform::FileErrorKind;
using Platform::FileType;
using Platform::FileURL;
using Platform::PosixFileManager;
using testing::UnorderedElementsAre;
using TestSupport::TemporaryTree;

std::size_t entryCount(const std::string& folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

class PosixFileManagerTests : public testing::Test {
protected:
    PosixFileManager m_fileManager;
};

TEST_F(PosixFileManagerTests, TellsWhatStandsAtAPathAndFollowsLinks)
{
    const TemporaryTree tree(R"(
        folder/
        file
        toFolder -> folder
        nowhere -> missing
    )");
    EXPECT_EQ(m_fileManager.existence(tree.url("folder")), Existence::directory);
    EXPECT_EQ(m_fileManager.existence(tree.url("file")), Existence::file);
    EXPECT_EQ(m_fileManager.existence(tree.url("toFolder")), Existence::directory);
    EXPECT_EQ(m_fileManager.existence(tree.url("nowhere")), Existence::missing);
    EXPECT_EQ(m_fileManager.existence(tree.url("file/below")), Existence::missing);
}

TEST_F(PosixFileManagerTests, ReadsTheValuesOfEachKindOfItem)
{
    const TemporaryTree tree(R"(
        folder/
        file size=5000 age=3d
        link -> file
        pipe fifo
        door socket
    )");
    const auto folder = m_fileManager.resourceValues(tree.url("folder"));
    EXPECT_EQ(folder->isDirectory, true);
    EXPECT_EQ(folder->isRegularFile, false);

    const auto file = m_fileManager.resourceValues(tree.url("file"));
    EXPECT_EQ(file->isRegularFile, true);
    EXPECT_EQ(file->fileSize, 5000);
    EXPECT_GE(file->totalFileAllocatedSize, 5000);
    EXPECT_EQ(*file->totalFileAllocatedSize % 512, 0);
    EXPECT_NEAR(tree.now().secondsSince(*file->contentModificationDate), 3 * 86400, 0.001);

    const auto link = m_fileManager.resourceValues(tree.url("link"));
    EXPECT_EQ(link->isSymbolicLink, true);
    EXPECT_EQ(link->isRegularFile, false);

    for (const char* special : {"pipe", "door"}) {
        const auto values = m_fileManager.resourceValues(tree.url(special));
        EXPECT_EQ(values->isDirectory, false) << special;
        EXPECT_EQ(values->isRegularFile, false) << special;
        EXPECT_EQ(values->isSymbolicLink, false) << special;
    }
}

TEST_F(PosixFileManagerTests, CountsASparseFileByWhatItOccupies)
{
    const TemporaryTree tree("sparse size=1G sparse");
    const auto values = m_fileManager.resourceValues(tree.url("sparse"));
    EXPECT_EQ(values->fileSize, std::int64_t{1} << 30);
    EXPECT_LT(*values->totalFileAllocatedSize, 1 << 20);
}

TEST_F(PosixFileManagerTests, ReadsDatesBefore1970AndInTheFuture)
{
    const TemporaryTree tree(R"(
        old age=30000d
        future age=-40000d
    )");
    const auto old = m_fileManager.resourceValues(tree.url("old"));
    const auto future = m_fileManager.resourceValues(tree.url("future"));
    EXPECT_NEAR(tree.now().secondsSince(*old->contentModificationDate), 30000 * 86400.0, 0.001);
    EXPECT_LT(old->contentModificationDate->secondsSince1970(), 0);
    EXPECT_NEAR(tree.now().secondsSince(*future->contentModificationDate), -40000 * 86400.0, 0.001);
}

TEST_F(PosixFileManagerTests, NamesTheItemThatCannotBeRead)
{
    const TemporaryTree tree;
    const auto missing = m_fileManager.resourceValues(tree.url("missing"));
    ASSERT_FALSE(missing.has_value());
    EXPECT_EQ(missing.error().kind, FileErrorKind::noSuchFile);
    EXPECT_EQ(
        missing.error().localizedDescription(), "The file “missing” couldn’t be opened because there is no such file.");
}

TEST_F(PosixFileManagerTests, GivesTheSameIdentityByPathAndByReference)
{
    const TemporaryTree tree("file size=10");
    const auto items = m_fileManager.enumerator(tree.root(), {}, {});
    ASSERT_TRUE(items->next());
    const auto byReference = m_fileManager.identityValues(items->reference());
    const auto byPath = m_fileManager.identityValues(tree.url("file"));
    ASSERT_TRUE(byReference && byPath);
    ASSERT_TRUE(byPath->fileResourceIdentifier.has_value());
    EXPECT_EQ(byReference->fileResourceIdentifier, byPath->fileResourceIdentifier);
    ASSERT_TRUE(byPath->volumeIdentifier.has_value());
    EXPECT_EQ(byReference->volumeIdentifier, byPath->volumeIdentifier);
}

TEST_F(PosixFileManagerTests, TellsARecreatedFileFromTheOneBefore)
{
    TemporaryTree tree("file size=10 age=5d");
    const auto before = m_fileManager.identityValues(tree.url("file"));
    const auto attributesBefore = m_fileManager.attributes(tree.url("file"));
    tree.remove("file");
    tree.add("file size=10 age=5d");
    const auto after = m_fileManager.identityValues(tree.url("file"));
    const auto attributesAfter = m_fileManager.attributes(tree.url("file"));
    EXPECT_NE(before->fileResourceIdentifier, after->fileResourceIdentifier);
    EXPECT_NE(attributesBefore->creationDate, attributesAfter->creationDate);
}

TEST_F(PosixFileManagerTests, ReadsTheAttributesOfALinkNotOfItsTarget)
{
    const TemporaryTree tree(R"(
        file
        link -> file
    )");
    const auto link = m_fileManager.attributes(tree.url("link"));
    const auto file = m_fileManager.attributes(tree.url("file"));
    EXPECT_EQ(link->type, FileType::symbolicLink);
    EXPECT_EQ(file->type, FileType::regular);
    EXPECT_NE(link->systemFileNumber, file->systemFileNumber);
    EXPECT_EQ(link->systemNumber, file->systemNumber);
}

TEST_F(PosixFileManagerTests, ListsAFolderWithItsHiddenEntries)
{
    const TemporaryTree tree(R"(
        .hidden
        folder/deeper
        file
    )");
    const auto found = m_fileManager.contentsOfDirectory(tree.root());
    ASSERT_TRUE(found.has_value());
    EXPECT_THAT(*found, UnorderedElementsAre(tree.url(".hidden"), tree.url("folder/"), tree.url("file")));
}

TEST_F(PosixFileManagerTests, SaysWhyAFolderCannotBeListed)
{
    const TemporaryTree tree("file");
    const auto missing = m_fileManager.contentsOfDirectory(tree.url("missing"));
    ASSERT_FALSE(missing.has_value());
    EXPECT_EQ(missing.error().kind, FileErrorKind::noSuchFile);
    const auto file = m_fileManager.contentsOfDirectory(tree.url("file"));
    ASSERT_FALSE(file.has_value());
    EXPECT_EQ(file.error().kind, FileErrorKind::notDirectory);
}

TEST_F(PosixFileManagerTests, MakesNoEnumeratorForWhatIsNoFolder)
{
    const TemporaryTree tree(R"(
        file
        folder/
        link -> folder
    )");
    for (const char* name : {"file", "link", "missing"}) {
        EXPECT_EQ(m_fileManager.enumerator(tree.url(name), {}, {}), nullptr) << name;
    }
}

TEST_F(PosixFileManagerTests, ResolvesLinksAsFarAsThePathGoes)
{
    const TemporaryTree tree(R"(
        real/inner/
        link -> real
        loop -> loop
    )");
    EXPECT_EQ(m_fileManager.resolvingSymbolicLinks(tree.url("link/inner")).path(), tree.path("real/inner"));
    EXPECT_EQ(m_fileManager.resolvingSymbolicLinks(tree.url("link/none/below")).path(), tree.path("real/none/below"));
    EXPECT_EQ(m_fileManager.resolvingSymbolicLinks(tree.url("loop/x")).path(), tree.path("loop/x"));
    EXPECT_EQ(m_fileManager.resolvingSymbolicLinks(FileURL("/")).path(), "/");
}

TEST_F(PosixFileManagerTests, KnowsThatTheTemporaryFolderTellsCaseApart)
{
    const TemporaryTree tree(R"(
        name
        folder/
    )");
    struct stat found{};
    ASSERT_NE(stat(tree.path("NAME").c_str(), &found), 0) << "the test needs a case-sensitive temporary folder";
    EXPECT_TRUE(m_fileManager.volumeSupportsCaseSensitiveNames(tree.url("folder")));
}

TEST_F(PosixFileManagerTests, CountsWhatItDoesNotKnowAsCaseInsensitive)
{
    EXPECT_FALSE(m_fileManager.volumeSupportsCaseSensitiveNames(FileURL::folder("/proc")));
    const TemporaryTree tree;
    EXPECT_FALSE(m_fileManager.volumeSupportsCaseSensitiveNames(tree.url("missing")));
}

TEST_F(PosixFileManagerTests, ReplacesAFileWhole)
{
    const TemporaryTree tree(R"(
        file text="old" mode=640
    )");
    ASSERT_TRUE(m_fileManager.writeAtomically("new contents", tree.url("file")));
    EXPECT_EQ(TestSupport::contentsOf(tree.path("file")), "new contents");
    EXPECT_EQ(entryCount(tree.root().path()), 1U);
    struct stat found{};
    ASSERT_EQ(stat(tree.path("file").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777U, 0640U);
}

TEST_F(PosixFileManagerTests, WritesANewFileAndLeavesALinksTargetAlone)
{
    const TemporaryTree tree(R"(
        target text="keep"
        link -> target
    )");
    ASSERT_TRUE(m_fileManager.writeAtomically("", tree.url("new")));
    EXPECT_EQ(TestSupport::contentsOf(tree.path("new")), "");
    ASSERT_TRUE(m_fileManager.writeAtomically("x", tree.url("link")));
    EXPECT_EQ(TestSupport::contentsOf(tree.path("link")), "x");
    EXPECT_EQ(TestSupport::contentsOf(tree.path("target")), "keep");
}

TEST_F(PosixFileManagerTests, LeavesNothingBehindWhenAWriteFails)
{
    const TemporaryTree tree(R"(
        folder/kept
    )");
    const auto intoFolder = m_fileManager.writeAtomically("x", tree.url("folder"));
    ASSERT_FALSE(intoFolder.has_value());
    EXPECT_EQ(entryCount(tree.root().path()), 1U);
    EXPECT_EQ(m_fileManager.existence(tree.url("folder/kept")), Existence::file);

    const auto missing = m_fileManager.writeAtomically("x", tree.url("none/file"));
    ASSERT_FALSE(missing.has_value());
    EXPECT_EQ(
        missing.error().localizedDescription(), "The file “file” couldn’t be saved because its folder doesn’t exist.");
}

TEST_F(PosixFileManagerTests, KeepsTheOldFileWhereTheNewOneCannotBeMadeDurable)
{
    const TemporaryTree tree(R"(file text="old")");
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall({.number = SYS_fsync}, EIO);
        EXPECT_FALSE(m_fileManager.writeAtomically("new", tree.url("file")));
    });
    EXPECT_EQ(TestSupport::contentsOf(tree.path("file")), "old");
    EXPECT_EQ(entryCount(tree.root().path()), 1U);
}

TEST_F(PosixFileManagerTests, KeepsTheOldFileWhereTheNewOneCannotBeWritten)
{
    const TemporaryTree tree(R"(file text="old")");
    TestSupport::answerSystemCalls({.number = SYS_write}, TestSupport::failingOnce(ENOSPC), [&] {
        const auto written = m_fileManager.writeAtomically("new", tree.url("file"));
        ASSERT_FALSE(written.has_value());
        EXPECT_EQ(written.error().kind, FileErrorKind::outOfSpace);
    });
    EXPECT_EQ(TestSupport::contentsOf(tree.path("file")), "old");
    EXPECT_EQ(entryCount(tree.root().path()), 1U);
}

TEST_F(PosixFileManagerTests, NeedsNoFolderThatCanBeMadeDurableButSaysWhenItFails)
{
    const TemporaryTree tree(R"(file text="old")");
    for (const int systemError : {EINVAL, EIO}) {
        TestSupport::answerSystemCalls({.number = SYS_fsync}, TestSupport::failingOnce(systemError, 1), [&] {
            EXPECT_EQ(m_fileManager.writeAtomically("new", tree.url("file")).has_value(), systemError == EINVAL);
        });
    }
}

/// Those that make a new file.
constexpr TestSupport::SystemCalls kNewFiles{.number = SYS_openat, .argument = 2, .mask = O_EXCL, .value = O_EXCL};

TEST_F(PosixFileManagerTests, WritesUnderAnotherNameWhereOneIsTaken)
{
    const TemporaryTree tree;
    TestSupport::answerSystemCalls(kNewFiles, TestSupport::failingOnce(EEXIST),
        [&] { EXPECT_TRUE(m_fileManager.writeAtomically("new", tree.url("file"))); });
    EXPECT_EQ(TestSupport::contentsOf(tree.path("file")), "new");
    EXPECT_EQ(entryCount(tree.root().path()), 1U);
}

TEST_F(PosixFileManagerTests, TriesNoOtherNameWhereTheFolderRefusesFiles)
{
    const TemporaryTree tree;
    TestSupport::answerSystemCalls(kNewFiles, TestSupport::failingOnce(EROFS), [&] {
        const auto written = m_fileManager.writeAtomically("new", tree.url("file"));
        ASSERT_FALSE(written.has_value());
        EXPECT_EQ(written.error().kind, FileErrorKind::readOnlyVolume);
    });
    EXPECT_EQ(entryCount(tree.root().path()), 0U);
}

TEST_F(PosixFileManagerTests, GivesWhatReplacesALinkNotThePermissionsOfTheLink)
{
    const TemporaryTree tree("link -> target");
    ASSERT_TRUE(m_fileManager.writeAtomically("x", tree.url("link")));
    struct stat found{};
    ASSERT_EQ(stat(tree.path("link").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0111U, 0U);
}

} // namespace
