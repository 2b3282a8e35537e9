#include "Platform/Linux/TreeRemoval.h"

#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/syscall.h>

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
    EXPECT_EQ(contentsOf(m_tree.path("outside/precious")), "p");
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
        EXPECT_EQ(remove("tree"), EXDEV);
        EXPECT_EQ(contentsOf(m_tree.path("tree/a/b/mounted/precious")), "p");
    });
    EXPECT_EQ(contentsOf(m_tree.path("elsewhere/precious")), "p");
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

TEST_F(TreeRemoval, SaysWhichCallFailed)
{
    struct Fault {
        TestSupport::SystemCalls calls;
        std::size_t before = 0;
    };
    constexpr TestSupport::SystemCalls upward{.number = SYS_openat, .argument = 2, .mask = O_PATH, .value = O_PATH};
    for (const auto& fault : {Fault{.calls = {.number = SYS_unlinkat}}, Fault{.calls = {.number = SYS_openat2}},
             Fault{.calls = {.number = SYS_openat2}, .before = 1}, Fault{.calls = {.number = SYS_statx}},
             Fault{.calls = {.number = SYS_statx}, .before = 1}, Fault{.calls = {.number = SYS_getdents64}},
             Fault{.calls = upward, .before = 1}, Fault{.calls = {.number = SYS_statx}, .before = 3}}) {
        m_tree.add("tree/folder/kept/");
        TestSupport::answerSystemCalls(fault.calls, TestSupport::failingOnce(ENOMEM, fault.before),
            [&] { EXPECT_EQ(remove("tree"), ENOMEM) << fault.calls.number << ' ' << fault.before; });
        EXPECT_TRUE(stands(m_tree.path("tree/folder"))) << fault.calls.number << ' ' << fault.before;
        m_tree.remove("tree");
    }
}

/// Reads the listing that is waited for, without the types of its entries.
std::int64_t listWithoutTypes(const TestSupport::PendingSystemCall& call)
{
    auto* const buffer = call.pointer<char>(1);
    const auto count = getdents64(static_cast<int>(call.arguments[0]), buffer, call.arguments[2]);
    for (ssize_t offset = 0; offset < count;) {
        auto* const entry = reinterpret_cast<dirent64*>(buffer + offset);
        entry->d_type = DT_UNKNOWN;
        offset += entry->d_reclen;
    }
    return count;
}

TEST_F(TreeRemoval, RemovesATreeWhoseListingTellsNoTypes)
{
    m_tree.add(R"(
        tree/a/b/file size=1
        tree/a/link -> ..
        tree/file size=1
    )");
    TestSupport::answerSystemCalls({.number = SYS_getdents64}, listWithoutTypes, [&] { EXPECT_EQ(remove("tree"), 0); });
    EXPECT_FALSE(stands(m_tree.path("tree")));
}

TEST_F(TreeRemoval, StopsAtAFileThatStaysWhoseListingTellsNoTypes)
{
    m_tree.add(R"(
        tree/locked/file size=1
        tree/locked/ mode=555
    )");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [&] {
        TestSupport::answerSystemCalls(
            {.number = SYS_getdents64}, listWithoutTypes, [&] { EXPECT_EQ(remove("tree"), EACCES); });
    });
    EXPECT_TRUE(stands(m_tree.path("tree/locked/file")));
}

TEST_F(TreeRemoval, TakesTheErrorOfAnEarlierCallForNone)
{
    m_tree.add("tree/a/b/file size=1");
    TestSupport::inChildProcess([&] {
        TestSupport::failSystemCall({.number = SYS_openat2}, ENOSYS);
        EXPECT_EQ(remove("tree"), 0);
    });
    EXPECT_FALSE(stands(m_tree.path("tree")));
}

TEST_F(TreeRemoval, RemovesNothingWhereItsFolderWasMovedTo)
{
    m_tree.add(R"(
        tree/folder/file size=1
        elsewhere/
    )");
    constexpr TestSupport::SystemCalls upward{.number = SYS_openat, .argument = 2, .mask = O_PATH, .value = O_PATH};
    const auto moveFirst = [&](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        if (call.text(1) == "..") {
            std::filesystem::rename(m_tree.path("tree/folder"), m_tree.path("elsewhere/folder"));
        }
        return std::nullopt;
    };
    TestSupport::answerSystemCalls(upward, moveFirst, [&] { EXPECT_EQ(remove("tree"), ESTALE); });
    EXPECT_TRUE(stands(m_tree.path("elsewhere/folder")));
}

} // namespace
