#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Platform/Files/FileDescriptor.h"
#include "Tests/Support/ChildProcess.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

namespace CleaningTests {

using testing::IsEmpty;
using testing::SizeIs;

/// With the desktop's Trash: items that the system does not let go of. Nothing is lost, and the reason is clear.
class CleaningServicePermissionTest : public CleaningTest {
protected:
    /// The one candidate stays where it is, for this reason of the system.
    void expectKept(const CleanResult& result, const std::string& reason) const
    {
        EXPECT_THAT(result.cleanedItems, IsEmpty());
        ASSERT_THAT(result.failedItems, SizeIs(1));
        EXPECT_EQ(result.failedItems[0].reason, reason);
        EXPECT_TRUE(exists(result.failedItems[0].candidate.url));
        EXPECT_THAT(names(trashFolder()), IsEmpty());
        expectSoundTrash();
    }

    [[nodiscard]] static int setImmutable(const std::string& path, bool isImmutable)
    {
        const Platform::FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
        int flags = 0;
        if (!file.isOpen() || ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0) {
            return errno;
        }
        flags = isImmutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
        return ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0 ? 0 : errno;
    }
};

TEST_F(CleaningServicePermissionTest, KeepsAnImmutableItemInWords)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    if (const int error = setImmutable(path("a"), true); error != 0) {
        GTEST_SKIP() << "this file system, or this user, has no immutable files: " << error;
    }
    const auto result = clean(candidates);
    EXPECT_EQ(setImmutable(path("a"), false), 0);
    expectKept(result, "The file “a” couldn’t be moved to the Trash because you don’t have permission.");
    EXPECT_THAT(clean(candidates).cleanedItems, SizeIs(1));
}

TEST_F(CleaningServicePermissionTest, KeepsAnItemInAFolderWithoutWritePermissionInWords)
{
    m_tree.add("home/Caches/a size=10");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [this] {
        const auto candidates = scan();
        std::filesystem::permissions(path(""), std::filesystem::perms(0555));
        expectKept(clean(candidates), "The file “a” couldn’t be moved to the Trash because you don’t have permission.");
        std::filesystem::permissions(path(""), std::filesystem::perms(0755));
        EXPECT_THAT(clean(candidates).cleanedItems, SizeIs(1));
    });
}

TEST_F(CleaningServicePermissionTest, KeepsAFolderWithAnUnreadableFolderInside)
{
    m_tree.add("home/Caches/a/\n    x size=10\n    locked/\n        y");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [this] {
        const auto candidates = scan();
        std::filesystem::permissions(path("a/locked"), std::filesystem::perms(0));
        const auto result = clean(candidates);
        std::filesystem::permissions(path("a/locked"), std::filesystem::perms(0755));
        expectKept(result, words(Kind::unreadableAttributes, item("a/locked")));
    });
}

TEST_F(CleaningServicePermissionTest, PutsNothingBackIntoAFolderWithoutWritePermission)
{
    m_tree.add("home/Caches/a size=10");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [this] {
        const auto cleaned = clean(scan());
        ASSERT_THAT(cleaned.cleanedItems, SizeIs(1));
        std::filesystem::permissions(path(""), std::filesystem::perms(0555));
        const auto result = restore(cleaned.cleanedItems);
        std::filesystem::permissions(path(""), std::filesystem::perms(0755));
        ASSERT_THAT(result.failedItems, SizeIs(1));
        EXPECT_EQ(result.failedItems[0].reason, "The file “a” couldn’t be put back because you don’t have permission.");
        EXPECT_THAT(names(trashFolder()), SizeIs(1));
        expectSoundTrash();
        EXPECT_THAT(restore(cleaned.cleanedItems).restoredItems, SizeIs(1));
    });
}

TEST_F(CleaningServicePermissionTest, KeepsAnItemWithAMountInside)
{
    m_tree.add("home/Caches/a/\n    x size=10\n    deep/disk/");
    TestSupport::inMountNamespace([this] {
        const auto candidates = scan();
        ASSERT_THAT(candidates, SizeIs(1));
        TestSupport::mountTemporaryFileSystem(path("a/deep/disk"));
        expectKept(clean(candidates), words(Kind::protectedUserData, item("a/deep/disk")));
    });
}

TEST_F(CleaningServicePermissionTest, KeepsAnItemWithAFileMountedOverOneInside)
{
    m_tree.add("home/Caches/a/\n    x size=10\nhome/letter size=10");
    TestSupport::inMountNamespace([this] {
        const auto candidates = scan();
        TestSupport::bindMount(m_tree.path("home/letter"), path("a/x"));
        expectKept(clean(candidates), words(Kind::protectedUserData, item("a/x")));
    });
}

TEST_F(CleaningServicePermissionTest, KeepsAnItemThatIsAMountItself)
{
    m_tree.add("home/Caches/a/\n    x size=10");
    TestSupport::inMountNamespace([this] {
        auto candidates = scan();
        TestSupport::bindMount(path("a"), path("a"));
        expectKept(clean(candidates), words(Kind::protectedUserData, item("a")));
    });
}

} // namespace CleaningTests
