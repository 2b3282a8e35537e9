#include "Platform/Linux/MountTable.h"

#include "Platform/Linux/MountWatch.h"
#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/syscall.h>

namespace {

using namespace TrashTests;

class MountTable : public testing::Test {
protected:
    std::expected<Platform::MountTable, int> read(std::string_view mountInfo, std::string_view fileSystems = {})
    {
        write(m_tree.path("mountinfo"), mountInfo);
        write(m_tree.path("fstab"), fileSystems);
        return Platform::MountTable::read(m_tree.path("mountinfo").c_str(), m_tree.path("fstab").c_str());
    }

    TemporaryTree m_tree;
};

TEST_F(MountTable, ReadsNumbersPlacesAndOptions)
{
    const auto table = read("21 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw,discard\n"
                            "30 21 0:25 /sub/dir /mnt/a\\040b\\012c rw,nosuid - tmpfs tmpfs rw\n");
    ASSERT_TRUE(table);
    const auto* const mount = table->find(30);
    ASSERT_NE(mount, nullptr);
    EXPECT_EQ(mount->path, "/mnt/a b\nc");
    EXPECT_EQ(mount->root, "/sub/dir");
    EXPECT_EQ(mount->fileSystemType, "tmpfs");
    EXPECT_TRUE(mount->hasOption("nosuid"));
    EXPECT_FALSE(mount->hasOption("no"));
    EXPECT_FALSE(mount->hasOption("suid"));
    EXPECT_EQ(table->find(31), nullptr);
}

TEST_F(MountTable, FindsWhatIsMountedAtOrBelowAPath)
{
    const auto table =
        read("21 1 254:0 / / rw - ext4 /dev/vda rw\n30 21 0:25 / /home/me/app/sub rw - tmpfs tmpfs rw\n");
    ASSERT_TRUE(table);
    EXPECT_TRUE(table->hasMountAtOrBelow("/home/me/app"));
    EXPECT_TRUE(table->hasMountAtOrBelow("/home/me/app/sub"));
    EXPECT_FALSE(table->hasMountAtOrBelow("/home/me/app/su"));
    EXPECT_FALSE(table->hasMountAtOrBelow("/home/me/ap"));
    EXPECT_FALSE(table->hasMountAtOrBelow("/home/me/app/sub/below"));
}

TEST_F(MountTable, TakesOptionsForProgramsFromTheTableOfFileSystems)
{
    const auto table = read("30 21 0:25 / /mnt/a rw - tmpfs tmpfs rw\n31 21 0:26 / /mnt/b rw - tmpfs tmpfs rw\n",
        "# comment\n/dev/sda1 /mnt/a ext4 defaults,x-gvfs-notrash 0 2\n");
    ASSERT_TRUE(table);
    EXPECT_TRUE(table->find(30)->hasOption("x-gvfs-notrash"));
    EXPECT_FALSE(table->find(31)->hasOption("x-gvfs-notrash"));
}

TEST_F(MountTable, IsNotReadWhereTheSystemDoesNotTell)
{
    EXPECT_EQ(read("").error(), EIO);
    EXPECT_EQ(Platform::MountTable::read(m_tree.path("missing").c_str()).error(), ENOENT);
}

TEST_F(MountTable, NeedsNoTableOfFileSystems)
{
    EXPECT_TRUE(Platform::MountTable::read(Platform::MountTable::kOfThisProcess, m_tree.path("missing").c_str()));
}

TEST_F(MountTable, KnowsTheMountOfAnOpenFolder)
{
    const auto table = Platform::MountTable::read();
    const auto status = Platform::readItemStatus(AT_FDCWD, m_tree.root().path().c_str(), Platform::StatusDetail::walk);
    ASSERT_TRUE(table && status);
    const auto* const mount = table->find(status->mountNumber);
    ASSERT_NE(mount, nullptr);
    EXPECT_TRUE(m_tree.root().path().starts_with(mount->path));
}

using MountWatch = MountTable;

TEST_F(MountWatch, ReadsTheTableAgainOnlyAfterAChange)
{
    m_tree.add("mounted/");
    TestSupport::inMountNamespace([&] {
        Platform::MountWatch watch;
        const auto first = watch.current();
        ASSERT_TRUE(first);
        EXPECT_FALSE((*first)->hasMountAtOrBelow(m_tree.path("mounted")));
        EXPECT_EQ(*watch.current(), *first);
        TestSupport::mountTemporaryFileSystem(m_tree.path("mounted"));
        const auto second = watch.current();
        ASSERT_TRUE(second);
        EXPECT_TRUE((*second)->hasMountAtOrBelow(m_tree.path("mounted")));
        EXPECT_EQ(*watch.current(), *second);
    });
}

TEST_F(MountWatch, SaysWhyTheTableCannotBeReadAndReadsItLater)
{
    // The table is opened once to hear of changes, and each time that it is read.
    for (const std::size_t before : {0U, 1U}) {
        TestSupport::answerSystemCalls({.number = SYS_openat}, TestSupport::failingOnce(EMFILE, before), [&] {
            Platform::MountWatch watch;
            EXPECT_EQ(watch.current().error(), EMFILE);
            EXPECT_TRUE(watch.current());
        });
    }
}

} // namespace
