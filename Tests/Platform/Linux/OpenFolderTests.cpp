#include "Platform/Files/OpenFolder.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FailingSystemCall.h"
#include "Tests/Support/TemporaryTree.h"

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace {

using Platform::openFolder;
using Platform::openFolderIn;
using TestSupport::TemporaryTree;

void expectFoldersOfOneVolume(const TemporaryTree& tree)
{
    const auto top = openFolder(tree.root().path().c_str());
    ASSERT_TRUE(top);
    EXPECT_TRUE(openFolderIn(top->get(), "folder"));
    EXPECT_EQ(openFolderIn(top->get(), "link").error(), ENOTDIR);
    EXPECT_EQ(openFolderIn(top->get(), "missing").error(), ENOENT);
    const auto root = openFolder("/");
    ASSERT_TRUE(root);
    EXPECT_EQ(openFolderIn(root->get(), "proc").error(), EXDEV);
}

TEST(OpenFolder, EntersNeitherLinksNorVolumesWithoutOpenat2)
{
    const TemporaryTree tree("folder/\nlink -> folder");
    for (const int systemError : {ENOSYS, EPERM}) {
        TestSupport::inChildProcess([&] {
            TestSupport::failSystemCall({.number = SYS_openat2}, systemError);
            expectFoldersOfOneVolume(tree);
        });
    }
}

TEST(OpenFolder, EntersAMountOfItsOwnVolumeWithNoneOfItsWays)
{
    const TemporaryTree tree("folder/\nbound/");
    TestSupport::inMountNamespace([&] {
        TestSupport::bindMount(tree.path("folder"), tree.path("bound"));
        const auto top = openFolder(tree.root().path().c_str());
        ASSERT_TRUE(top);
        EXPECT_EQ(openFolderIn(top->get(), "bound").error(), EXDEV);
        TestSupport::failSystemCall({.number = SYS_openat2}, ENOSYS);
        EXPECT_EQ(openFolderIn(top->get(), "bound").error(), EXDEV);
    });
}

TEST(OpenFolder, FollowsNoLink)
{
    const TemporaryTree tree("folder/\nlink -> folder");
    const auto top = openFolder(tree.root().path().c_str());
    ASSERT_TRUE(top);
    EXPECT_TRUE(openFolderIn(top->get(), "folder"));
    EXPECT_FALSE(openFolderIn(top->get(), "link"));
    EXPECT_FALSE(openFolderIn(top->get(), "link/."));
}

TEST(OpenFolder, OpensAFolderOfAnotherUser)
{
    const TemporaryTree tree("folder/");
    TestSupport::asOrdinaryUser(tree.root().path(), [] {
        EXPECT_TRUE(openFolder("/"));
        const auto root = openFolder("/");
        ASSERT_TRUE(root);
        EXPECT_TRUE(openFolderIn(root->get(), "usr"));
    });
}

TEST(OpenFolder, AsksOnceWhateverTheLastCallSaid)
{
    const TemporaryTree tree("folder/");
    std::size_t calls = 0;
    const auto count = [&](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        calls = call.before + 1;
        return std::nullopt;
    };
    const auto path = tree.path("folder");
    TestSupport::answerSystemCalls({.number = SYS_openat}, count, [&] {
        errno = EPERM;
        EXPECT_TRUE(openFolder(path.c_str()));
    });
    EXPECT_EQ(calls, 1U);
    TestSupport::answerSystemCalls(
        {.number = SYS_openat}, count, [&] { EXPECT_EQ(openFolder("/missing").error(), ENOENT); });
    EXPECT_EQ(calls, 1U);
}

TEST(OpenFolder, NeedsBothFoldersToTellWhereTheyAreWithoutOpenat2)
{
    const TemporaryTree tree("folder/");
    const auto top = openFolder(tree.root().path().c_str());
    ASSERT_TRUE(top);
    for (const std::size_t before : {0U, 1U}) {
        TestSupport::answerSystemCalls({.number = SYS_statx}, TestSupport::failingOnce(ENOMEM, before), [&] {
            TestSupport::failSystemCall({.number = SYS_openat2}, ENOSYS);
            EXPECT_EQ(openFolderIn(top->get(), "folder").error(), ENOMEM);
        });
    }
}

TEST(OpenFolder, TellsVolumesApartByTheirDeviceWhereMountsHaveNoNumbers)
{
    const auto root = openFolder("/");
    ASSERT_TRUE(root);
    const auto withoutMountNumber = [](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        auto* const found = call.pointer<struct statx>(4);
        const int result = statx(static_cast<int>(call.arguments[0]), call.pointer<const char>(1),
            static_cast<int>(call.arguments[2]), static_cast<unsigned>(call.arguments[3]), found);
        found->stx_mask &= ~static_cast<std::uint32_t>(STATX_MNT_ID);
        return result;
    };
    TestSupport::answerSystemCalls({.number = SYS_statx}, withoutMountNumber, [&] {
        TestSupport::failSystemCall({.number = SYS_openat2}, ENOSYS);
        EXPECT_EQ(openFolderIn(root->get(), "proc").error(), EXDEV);
        EXPECT_TRUE(openFolderIn(root->get(), "usr"));
    });
}

} // namespace
