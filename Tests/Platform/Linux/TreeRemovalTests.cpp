#include "Platform/Linux/TreeRemoval.h"

#include "Tests/Platform/Linux/TrashFixture.h"

#include <cerrno>
#include <fcntl.h>

namespace {

using namespace TrashTests;
using testing::ElementsAre;

class TreeRemoval : public testing::Test {
protected:
    int remove(const char* name)
    {
        const Platform::FileDescriptor top(open(m_tree.root().path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        return Platform::removeTree(top.get(), name);
    }

    TemporaryTree m_tree;
};

TEST_F(TreeRemoval, RemovesAFileALinkAndAPipe)
{
    m_tree.add(R"(
        kept size=1
        file size=1
        link -> kept
        pipe fifo
    )");
    EXPECT_EQ(remove("file"), 0);
    EXPECT_EQ(remove("link"), 0);
    EXPECT_EQ(remove("pipe"), 0);
    EXPECT_THAT(names(m_tree.root().path()), ElementsAre("kept"));
}

TEST_F(TreeRemoval, SaysThatNothingIsThere)
{
    EXPECT_EQ(remove("missing"), ENOENT);
}

TEST_F(TreeRemoval, RemovesATreeWithEveryKindOfItem)
{
    m_tree.add(R"(
        tree/
            .hidden size=1
            many/
                part count=3000 size=0
            wide/
                a/x/y size=1
                b/
                c/x/y/z size=1
            pipe fifo
            door socket
            "a name with \xFF and \n" size=1
            readonly mode=400
    )");
    EXPECT_EQ(remove("tree"), 0);
    EXPECT_THAT(names(m_tree.root().path()), ElementsAre());
}

TEST_F(TreeRemoval, IsNotLimitedByDepthOrDescriptors)
{
    m_tree.add("tree/deep/ levels=1500");
    EXPECT_EQ(remove("tree"), 0);
    EXPECT_THAT(names(m_tree.root().path()), ElementsAre());
}

TEST_F(TreeRemoval, LeavesAloneWhatALinkInsideLeadsTo)
{
    m_tree.add(R"(
        outside/precious text="p"
        tree/folder/up -> ../../outside
        tree/folder/file -> ../../outside/precious
        tree/folder/twin => outside/precious
    )");
    EXPECT_EQ(remove("tree"), 0);
    EXPECT_EQ(contents(m_tree.path("outside/precious")), "p");
    EXPECT_THAT(names(m_tree.root().path()), ElementsAre("outside"));
}

TEST_F(TreeRemoval, EntersNoOtherVolumeAndKeepsTheRestInItsPlace)
{
    m_tree.add(R"(
        elsewhere/precious text="p"
        tree/a/b/mounted/
        tree/a/b/kept/x/ age=1d
    )");
    TestSupport::inMountNamespace([&] {
        TestSupport::bindMount(m_tree.path("elsewhere"), m_tree.path("tree/a/b/mounted"));
        EXPECT_NE(remove("tree"), 0);
        EXPECT_EQ(contents(m_tree.path("tree/a/b/mounted/precious")), "p");
    });
    EXPECT_EQ(contents(m_tree.path("elsewhere/precious")), "p");
    EXPECT_TRUE(stands(m_tree.path("tree/a/b")));
}

TEST_F(TreeRemoval, StopsAtAFolderThatMayNotBeEmptied)
{
    m_tree.add(R"(
        tree/locked/file size=1
        tree/locked/ mode=555
    )");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [&] {
        EXPECT_EQ(remove("tree"), EACCES);
        EXPECT_TRUE(stands(m_tree.path("tree/locked/file")));
    });
}

} // namespace
