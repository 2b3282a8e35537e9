#include "Platform/Files/FolderTrail.h"

#include "Platform/Files/OpenFolder.h"
#include "Tests/Platform/Linux/TrashFixture.h"
#include "Tests/Support/FailingSystemCall.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/syscall.h>

namespace {

using namespace TrashTests;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Le;
using testing::Not;
using testing::Pair;
using testing::SizeIs;

class FolderTrail : public testing::Test {
protected:
    struct Walk {
        std::vector<std::string> entered;
        /// The folders that were not entered, or not to their end, with the error.
        std::vector<std::pair<std::string, int>> failures;
    };

    [[nodiscard]] std::shared_ptr<const Platform::FolderHandle> rootFolder() const
    {
        return std::make_shared<const Platform::FolderHandle>(
            *Platform::openFolder(m_tree.root().path().c_str()), m_tree.root());
    }

    /// Enters every folder of the tree, and does `inEach` there.
    Walk walk(const std::function<void(const std::string& path)>& inEach = {}) const
    {
        Walk found;
        Platform::FolderTrail trail(rootFolder());
        const auto below = [&](const std::string& path) { return path.substr(m_tree.root().path().size() + 1); };
        while (true) {
            for (const auto& name : names(trail.path())) {
                trail.remember(name, 0);
            }
            auto entered = trail.enterNext();
            for (; !entered; entered = trail.enterNext()) {
                found.failures.emplace_back(below(entered.error().url.path()), entered.error().systemError);
            }
            if (!*entered) {
                return found;
            }
            found.entered.push_back(below(trail.path()));
            if (inEach) {
                inEach(found.entered.back());
            }
        }
    }

    /// A folder in a folder and so on, each with another one beside it: the walk comes back to all levels, and cannot keep
    /// the upper ones open. The path of a level, counted from 0.
    static std::string level(int number)
    {
        std::string path = "a0";
        for (int above = 1; above <= number; ++above) {
            path += fmt::format("/a{}", above);
        }
        return path;
    }
    static constexpr int kLevels = 20;
    void addLevels()
    {
        for (int number = 0; number < kLevels; ++number) {
            m_tree.add(fmt::format("{0}/\n{0}/b{1}/", level(number), number + 1));
        }
    }

    TemporaryTree m_tree;
};

TEST_F(FolderTrail, SharesTheFolderThatItStartedFrom)
{
    const auto root = rootFolder();
    const Platform::FolderTrail trail(root);
    EXPECT_EQ(trail.sharedFolder(), root);
}

TEST_F(FolderTrail, NamesTheFoldersBelowTheRootFolder)
{
    Platform::FolderTrail trail(
        std::make_shared<const Platform::FolderHandle>(*Platform::openFolder("/"), FileURL("/")));
    trail.remember("usr", 0);
    ASSERT_TRUE(trail.enterNext());
    EXPECT_EQ(trail.path(), "/usr");
}

TEST_F(FolderTrail, OpensEachFolderOnce)
{
    m_tree.add("a/b/");
    m_tree.add("file size=1");
    std::size_t calls = 0;
    const auto count = [&](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        calls = call.before + 1;
        return std::nullopt;
    };
    TestSupport::answerSystemCalls({.number = SYS_openat2}, count, [&] {
        const auto found = walk();
        EXPECT_THAT(found.entered, ElementsAre("a", "a/b"));
        EXPECT_THAT(found.failures, ElementsAre(Pair("file", ENOTDIR)));
    });
    EXPECT_EQ(calls, 3U);
}

TEST_F(FolderTrail, KeepsNoFolderOpenThatItHasNothingLeftIn)
{
    m_tree.add("deep/ levels=10");
    std::vector<std::size_t> counts;
    walk([&](const auto&) { counts.push_back(names("/proc/self/fd").size()); });
    ASSERT_THAT(counts, SizeIs(10));
    EXPECT_THAT(counts, Each(Le(counts[0])));
}

TEST_F(FolderTrail, ClosesFoldersForWantOfDescriptorsAndComesBackToThem)
{
    m_tree.add(R"(
        folder/in/deep/
        folder/other/
    )");
    for (const int systemError : {EMFILE, ENFILE}) {
        TestSupport::answerSystemCalls({.number = SYS_openat2}, TestSupport::failingOnce(systemError, 2), [&] {
            const auto found = walk();
            EXPECT_THAT(found.entered, ElementsAre("folder", "folder/in", "folder/in/deep", "folder/other"));
            EXPECT_THAT(found.failures, IsEmpty());
        });
    }
}

TEST_F(FolderTrail, ComesBackToLevelsThatItCouldNotKeepOpen)
{
    addLevels();
    const auto found = walk();
    EXPECT_THAT(found.entered, SizeIs(2 * kLevels));
    EXPECT_THAT(found.failures, IsEmpty());
}

TEST_F(FolderTrail, SaysWhyItCannotComeBack)
{
    addLevels();
    constexpr TestSupport::SystemCalls upward{.number = SYS_openat, .argument = 2, .mask = O_PATH, .value = O_PATH};
    for (const std::size_t before : {0U, 1U}) {
        TestSupport::answerSystemCalls(upward, TestSupport::failingOnce(EIO, before),
            [&] { EXPECT_THAT(walk().failures, Contains(Pair(level(3), EIO))); });
    }
}

TEST_F(FolderTrail, DoesNotComeBackToAFolderThatDoesNotTellWhichItIs)
{
    addLevels();
    std::size_t looks = 0;
    const auto count = [&](const TestSupport::PendingSystemCall& call) -> std::optional<std::int64_t> {
        looks = call.before + 1;
        return std::nullopt;
    };
    TestSupport::answerSystemCalls({.number = SYS_statx}, count, [&] { walk(); });
    // The root, each folder when it is closed and each when it is found again.
    ASSERT_EQ(looks, 9U);
    TestSupport::answerSystemCalls({.number = SYS_statx}, TestSupport::failingOnce(EIO, 5),
        [&] { EXPECT_THAT(walk().failures, Contains(Pair(level(3), EIO))); });
    TestSupport::answerSystemCalls({.number = SYS_statx}, TestSupport::failingOnce(EIO, 1),
        [&] { EXPECT_THAT(walk().failures, ElementsAre(Pair(level(0), ENOENT))); });
}

TEST_F(FolderTrail, DoesNotTakeAnotherFolderForTheOneThatItLeft)
{
    addLevels();
    m_tree.add("elsewhere/b2/");
    const auto found = walk([&](const std::string& path) {
        if (path == level(kLevels - 1)) {
            std::filesystem::rename(m_tree.path(level(2)), m_tree.path("elsewhere/a2"));
        }
    });
    EXPECT_THAT(found.failures, Contains(Pair(level(1), ENOENT)));
    EXPECT_THAT(found.entered, Not(Contains(level(1) + "/b2")));
}

} // namespace
