#include "Platform/Files/OpenFolder.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FailingSystemCall.h"
#include "Tests/Support/TemporaryTree.h"

#include <cerrno>
#include <gtest/gtest.h>
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
            TestSupport::failSystemCall({.number = SYS_openat2, .systemError = systemError});
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
        TestSupport::failSystemCall({.number = SYS_openat2, .systemError = ENOSYS});
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

} // namespace
