#include "Platform/Files/OpenFolder.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/TemporaryTree.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using Platform::openFolder;
using Platform::openFolderIn;
using TestSupport::TemporaryTree;

/// From now on this process finds no openat2(2), as on an old kernel or in a sandbox.
void forbidOpenat2(unsigned systemError)
{
    std::array<sock_filter, 4> program{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | systemError),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog filter{.len = program.size(), .filter = program.data()};
    ASSERT_EQ(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    ASSERT_EQ(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter), 0);
    ASSERT_EQ(syscall(SYS_openat2, AT_FDCWD, "/", nullptr, 0), -1);
    ASSERT_EQ(errno, static_cast<int>(systemError));
}

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
    for (const unsigned systemError : {unsigned{ENOSYS}, unsigned{EPERM}}) {
        TestSupport::inChildProcess([&] {
            forbidOpenat2(systemError);
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
        forbidOpenat2(ENOSYS);
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
