#include "Platform/Linux/AnchoredFolder.h"

#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <sys/syscall.h>

namespace {

using namespace TrashTests;

class AnchoredFolder : public TrashTest {
protected:
    [[nodiscard]] auto folderOf(std::string_view path) const
    {
        return Platform::openFolderOfItem(m_root, m_tree.url(path), Platform::FileOperation::trash);
    }

    [[nodiscard]] FileErrorKind errorOf(std::string_view path) const
    {
        const auto folder = folderOf(path);
        EXPECT_FALSE(folder);
        return folder ? FileErrorKind::unknown : folder.error().kind;
    }

    Platform::FolderAnchor m_root = root();
};

TEST_F(AnchoredFolder, IsTheRootForAnItemDirectlyInIt)
{
    const auto folder = folderOf("home/Caches/data");
    ASSERT_TRUE(folder);
    EXPECT_EQ((*folder)->url(), m_tree.url("home/Caches/"));
    EXPECT_EQ((*folder)->status().fileNumber, m_root.systemFileNumber);
}

TEST_F(AnchoredFolder, IsTheFolderThatHoldsADeeperItem)
{
    m_tree.add("home/Caches/a/b/data size=1");
    const auto folder = folderOf("home/Caches/a/b/data");
    ASSERT_TRUE(folder);
    EXPECT_EQ((*folder)->url(), m_tree.url("home/Caches/a/b/"));
    EXPECT_TRUE(Platform::readItemStatus((*folder)->descriptor(), "data", Platform::StatusDetail::walk));
}

TEST_F(AnchoredFolder, NeedsTheItemStrictlyBelowTheRoot)
{
    EXPECT_EQ(errorOf("home/Caches"), FileErrorKind::itemChanged);
    EXPECT_EQ(errorOf("home/CachesToo"), FileErrorKind::itemChanged);
    EXPECT_EQ(errorOf("home/other/data"), FileErrorKind::itemChanged);
    EXPECT_EQ(errorOf("home/Caches/../other"), FileErrorKind::itemChanged);
}

TEST_F(AnchoredFolder, NeedsTheRootThatWasProved)
{
    m_root.systemFileNumber += 1;
    EXPECT_EQ(errorOf("home/Caches/data"), FileErrorKind::itemChanged);
    m_root = root();
    m_root.systemNumber += 1;
    EXPECT_EQ(errorOf("home/Caches/data"), FileErrorKind::itemChanged);
}

TEST_F(AnchoredFolder, FollowsNoLinkAtTheRootNorBelowIt)
{
    m_tree.add(R"(
        home/Caches/a/b/data size=1
        home/Caches/link -> a
        home/Caches/up -> ..
        home/linked -> Caches
    )");
    EXPECT_EQ(errorOf("home/Caches/link/data"), FileErrorKind::notDirectory);
    EXPECT_EQ(errorOf("home/Caches/link/b/data"), FileErrorKind::tooManySymbolicLinks);
    EXPECT_EQ(errorOf("home/Caches/up/Caches/data"), FileErrorKind::tooManySymbolicLinks);
    m_root.url = m_tree.url("home/linked/");
    EXPECT_EQ(errorOf("home/linked/data"), FileErrorKind::notDirectory);
}

TEST_F(AnchoredFolder, EntersNoOtherVolume)
{
    m_tree.add(R"(
        home/Caches/mounted/
        home/elsewhere/data size=1
    )");
    TestSupport::inMountNamespace([&] {
        TestSupport::bindMount(m_tree.path("home/elsewhere"), m_tree.path("home/Caches/mounted"));
        EXPECT_EQ(errorOf("home/Caches/mounted/data"), FileErrorKind::crossesVolume);
    });
}

TEST_F(AnchoredFolder, SaysThatTheFolderIsGone)
{
    EXPECT_EQ(errorOf("home/Caches/gone/data"), FileErrorKind::noSuchFile);
    const auto error = folderOf("home/Caches/gone/data").error();
    EXPECT_EQ(error.operation, Platform::FileOperation::trash);
    EXPECT_EQ(error.path, m_tree.path("home/Caches/gone/data"));
}

TEST_F(AnchoredFolder, NeedsARootThatTellsWhichItIs)
{
    TestSupport::answerSystemCalls({.number = SYS_statx}, TestSupport::failingOnce(EACCES),
        [&] { EXPECT_EQ(errorOf("home/Caches/data"), FileErrorKind::noPermission); });
}

} // namespace
