#include "Platform/Files/WholeFile.h"

#include "Platform/Files/OpenFolder.h"
#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace TrashTests;
using testing::ElementsAre;
using testing::IsEmpty;

class WholeFile : public testing::Test {
protected:
    int add(const char* name, std::string_view bytes)
    {
        return Platform::addWholeFile(m_folder.get(), name, bytes, 0600);
    }
    auto read(const char* name, std::size_t maximum = 1000)
    {
        return Platform::readWholeFile(m_folder.get(), name, maximum);
    }

    TemporaryTree m_tree;
    Platform::FileDescriptor m_folder = *Platform::openFolder(m_tree.root().path().c_str());
};

TEST_F(WholeFile, IsThereWithAllItsBytes)
{
    const std::string bytes(200'000, 'b');
    EXPECT_EQ(add("file", bytes), 0);
    EXPECT_EQ(contentsOf(m_tree.path("file")), bytes);
    EXPECT_EQ(modeOf(m_tree.path("file")), 0600U);
    EXPECT_EQ(read("file", 200'000), bytes);
    EXPECT_EQ(add("empty", ""), 0);
    EXPECT_EQ(read("empty"), "");
}

TEST_F(WholeFile, ReplacesNothing)
{
    m_tree.add(R"(
        file text="old"
        folder/
        link -> nowhere
    )");
    for (const auto* name : {"file", "folder", "link"}) {
        EXPECT_EQ(add(name, "new"), EEXIST) << name;
    }
    EXPECT_EQ(contentsOf(m_tree.path("file")), "old");
    EXPECT_THAT(names(m_tree.root().path()), ElementsAre("file", "folder", "link"));
}

TEST_F(WholeFile, LeavesNothingWhereTheVolumeIsFull)
{
    m_tree.add("volume/");
    TestSupport::inMountNamespace([&] {
        TestSupport::mountTemporaryFileSystem(m_tree.path("volume"), "size=64k");
        const auto folder = Platform::openFolder(m_tree.path("volume").c_str());
        EXPECT_EQ(Platform::addWholeFile(folder->get(), "file", std::string(200'000, 'b'), 0600), ENOSPC);
        EXPECT_THAT(names(m_tree.path("volume")), IsEmpty());
    });
}

TEST_F(WholeFile, IsReadOnlyIfItIsARegularFileOfBoundedSize)
{
    m_tree.add(R"(
        file text="12345"
        folder/
        pipe fifo
        link -> file
    )");
    EXPECT_EQ(read("file", 5), "12345");
    EXPECT_EQ(read("file", 4).error(), EFBIG);
    EXPECT_EQ(read("folder").error(), EINVAL);
    EXPECT_EQ(read("pipe").error(), EINVAL);
    EXPECT_EQ(read("link").error(), ELOOP);
    EXPECT_EQ(read("missing").error(), ENOENT);
    EXPECT_EQ(Platform::readWholeFile(AT_FDCWD, "/dev/zero", 10).error(), EINVAL);
}

TEST_F(WholeFile, TellsTheNamesOfUnfinishedFiles)
{
    EXPECT_TRUE(Platform::isUnfinishedFile(".karvello-0123456789abcdef.tmp"));
    EXPECT_FALSE(Platform::isUnfinishedFile("karvello-0123.tmp"));
    EXPECT_FALSE(Platform::isUnfinishedFile(".karvello-0123.trashinfo"));
}

TEST_F(WholeFile, WritesAllOrSaysWhyNot)
{
    int ends[2] = {-1, -1};
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    const Platform::FileDescriptor reader(ends[0]);
    const Platform::FileDescriptor writer(ends[1]);
    EXPECT_EQ(Platform::writeAll(writer.get(), "abc"), 0);
    std::string text(3, ' ');
    EXPECT_EQ(::read(reader.get(), text.data(), text.size()), 3);
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(Platform::writeAll(reader.get(), "abc"), EBADF);
    const Platform::FileDescriptor full(open("/dev/full", O_WRONLY | O_CLOEXEC));
    EXPECT_EQ(Platform::writeAll(full.get(), "abc"), ENOSPC);
}

/// Fail where the volume knows no files without a name.
constexpr TestSupport::SystemCalls kNamelessFiles{
    .number = SYS_openat, .argument = 2, .mask = O_TMPFILE & ~O_DIRECTORY, .value = O_TMPFILE & ~O_DIRECTORY};

TEST_F(WholeFile, IsThereWithAllItsBytesWhereEveryFileHasAName)
{
    for (const int systemError : {EOPNOTSUPP, EISDIR}) {
        m_tree.remove("file");
        TestSupport::inChildProcess([&] {
            TestSupport::failSystemCall(kNamelessFiles, systemError);
            EXPECT_EQ(add("file", "first"), 0);
            EXPECT_EQ(add("file", "second"), EEXIST);
        });
        EXPECT_EQ(contentsOf(m_tree.path("file")), "first");
        EXPECT_THAT(names(m_tree.root().path()), ElementsAre("file"));
    }
}

TEST_F(WholeFile, IsNotMadeWhereTheVolumeRefusesIt)
{
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall(kNamelessFiles, EROFS);
        EXPECT_EQ(add("file", "bytes"), EROFS);
    });
    EXPECT_THAT(names(m_tree.root().path()), IsEmpty());
}

TEST_F(WholeFile, LeavesNothingUnfinishedWhereEveryFileHasAName)
{
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall(kNamelessFiles, EOPNOTSUPP);
        TestSupport::failSystemCall({.number = SYS_renameat2}, EIO);
        EXPECT_EQ(add("file", "bytes"), EIO);
    });
    EXPECT_THAT(names(m_tree.root().path()), IsEmpty());
}

TEST_F(WholeFile, GivesUpOnACallThatIsInterruptedForEver)
{
    write(m_tree.path("file"), "old");
    TestSupport::inChildProcess([&] {
        const Platform::FileDescriptor file(open(m_tree.path("file").c_str(), O_WRONLY | O_CLOEXEC));
        TestSupport::failSystemCall(TestSupport::callsOn(SYS_write, file.get()), EINTR);
        EXPECT_EQ(Platform::writeAll(file.get(), "new"), EINTR);
        TestSupport::failSystemCall({.number = SYS_read}, EINTR);
        EXPECT_EQ(read("file").error(), EINTR);
    });
    EXPECT_EQ(contentsOf(m_tree.path("file")), "old");
}

TEST_F(WholeFile, GoesOnAfterAnInterruption)
{
    TestSupport::answerSystemCalls(
        {.number = SYS_write}, TestSupport::failingOnce(EINTR), [&] { EXPECT_EQ(add("file", "bytes"), 0); });
    TestSupport::answerSystemCalls(
        {.number = SYS_read}, TestSupport::failingOnce(EINTR), [&] { EXPECT_EQ(read("file"), "bytes"); });
}

TEST_F(WholeFile, TakesNoOtherFailureForAnInterruption)
{
    write(m_tree.path("file"), "bytes");
    TestSupport::answerSystemCalls(
        {.number = SYS_write}, TestSupport::failingOnce(EIO), [&] { EXPECT_EQ(add("new", "bytes"), EIO); });
    TestSupport::answerSystemCalls(
        {.number = SYS_read}, TestSupport::failingOnce(EIO), [&] { EXPECT_EQ(read("file").error(), EIO); });
    EXPECT_THAT(names(m_tree.root().path()), ElementsAre("file"));
}

TEST_F(WholeFile, DoesNotWaitForAVolumeThatTakesNothing)
{
    const auto takeNothing = [](const TestSupport::PendingSystemCall& call) {
        return call.before < 10 ? std::optional<std::int64_t>(0) : std::nullopt;
    };
    TestSupport::answerSystemCalls({.number = SYS_write}, takeNothing, [&] { EXPECT_EQ(add("file", "bytes"), EIO); });
    EXPECT_THAT(names(m_tree.root().path()), IsEmpty());
}

TEST_F(WholeFile, SaysWhyNotWhereNoFileCanBeMade)
{
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall(kNamelessFiles, EOPNOTSUPP);
        TestSupport::failSystemCall({.number = SYS_openat, .argument = 2, .mask = O_EXCL, .value = O_EXCL}, EDQUOT);
        EXPECT_EQ(add("file", "bytes"), EDQUOT);
    });
}

TEST_F(WholeFile, DoesNotStandThereInPartWhereEveryFileHasAName)
{
    TestSupport::answerSystemCalls({.number = SYS_write}, TestSupport::failingOnce(ENOSPC), [&] {
        TestSupport::failSystemCall(kNamelessFiles, EOPNOTSUPP);
        EXPECT_EQ(add("file", "bytes"), ENOSPC);
    });
    EXPECT_THAT(names(m_tree.root().path()), IsEmpty());
}

} // namespace
