#include "Tests/Support/TemporaryTree.h"

#include "Platform/Files/OpenFolder.h"
#include "Tests/Support/FileContents.h"
#include "Tests/Support/TreeLayout.h"

#include <cmath>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

namespace {

struct stat statusOf(const std::string& path)
{
    struct stat status{};
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path << ": " << std::strerror(errno);
    return status;
}

bool exists(const std::string& path)
{
    struct stat status{};
    return lstat(path.c_str(), &status) == 0;
}

constexpr auto kNow = Platform::Date::fromUnixTime(1'750'000'000, 250'000'000);

double ageOf(const TemporaryTree& tree, std::string_view relativePath)
{
    const auto time = statusOf(tree.path(relativePath)).st_mtim;
    return tree.now().secondsSince(Platform::Date::fromUnixTime(time.tv_sec, static_cast<std::uint32_t>(time.tv_nsec)));
}

} // namespace

TEST(TemporaryTree, LiesInAFolderOfItsOwnWithoutSymbolicLinksInItsPath)
{
    const TemporaryTree first;
    const TemporaryTree second;
    EXPECT_NE(first.root(), second.root());
    EXPECT_TRUE(S_ISDIR(statusOf(first.root().path()).st_mode));
    EXPECT_EQ(std::filesystem::canonical(first.root().path()), first.root().path());
}

TEST(TemporaryTree, MakesFilesWithTheirContents)
{
    const TemporaryTree tree(R"(
        a/b/
            sized   size=70000
            words   text="two\nlines"
        a/empty
        big/        # comment
            sparse.img size=64M sparse
    )");
    EXPECT_EQ(statusOf(tree.path("a/b/sized")).st_size, 70000);
    EXPECT_EQ(contentsOf(tree.path("a/b/sized")), std::string(70000, 'k'));
    EXPECT_EQ(contentsOf(tree.path("a/b/words")), "two\nlines");
    EXPECT_EQ(statusOf(tree.path("a/empty")).st_size, 0);
    EXPECT_EQ(statusOf(tree.path("big/sparse.img")).st_size, 64 * 1024 * 1024);
    EXPECT_LT(statusOf(tree.path("big/sparse.img")).st_blocks, 1024);
}

TEST(TemporaryTree, MakesLinksPipesAndSockets)
{
    const TemporaryTree tree(R"(
        file size=3
        link -> "no where"
        sub/twin => file
        pipe fifo
        door socket
    )");
    EXPECT_EQ(std::filesystem::read_symlink(tree.path("link")), "no where");
    EXPECT_EQ(statusOf(tree.path("sub/twin")).st_ino, statusOf(tree.path("file")).st_ino);
    EXPECT_TRUE(S_ISFIFO(statusOf(tree.path("pipe")).st_mode));
    EXPECT_TRUE(S_ISSOCK(statusOf(tree.path("door")).st_mode));
}

TEST(TemporaryTree, SetsTheAgesOfAllItemsWhenTheTreeIsComplete)
{
    const TemporaryTree tree(R"(
        folder/ age=2h
            young  age=0.5
            future age=-1d
            old    age=30000d
            link -> young age=3m
            inner/
                file
    )",
        kNow);
    EXPECT_NEAR(ageOf(tree, "folder"), 7200, 1e-6);
    EXPECT_NEAR(ageOf(tree, "folder/young"), 0.5, 1e-6);
    EXPECT_NEAR(ageOf(tree, "folder/future"), -86400, 1e-6);
    EXPECT_NEAR(ageOf(tree, "folder/old"), 30000 * 86400.0, 1e-6);
    EXPECT_LT(statusOf(tree.path("folder/old")).st_mtim.tv_sec, 0);
    EXPECT_NEAR(ageOf(tree, "folder/link"), 180, 1e-6);
    EXPECT_NEAR(ageOf(tree, "folder/inner"), TemporaryTree::kDefaultAge, 1e-6);
    EXPECT_NEAR(ageOf(tree, ""), TemporaryTree::kDefaultAge, 1e-6);
}

TEST(TemporaryTree, SetsThePermissions)
{
    const TemporaryTree tree(R"(
        locked/ mode=000
            inside/file size=1
        script mode=4755
    )");
    EXPECT_EQ(statusOf(tree.path("locked")).st_mode & 07777U, 0U);
    EXPECT_EQ(statusOf(tree.path("script")).st_mode & 07777U, 04755U);
}

TEST(TemporaryTree, MakesNamesOfAnyBytes)
{
    const TemporaryTree tree(R"(
        .hidden size=1
        "bad\xFF\xfe" size=1
        "new\nline"
        "esc\e[31m"
        "sp ace"/"quo\"te"
        "x"*255
        "é"*127.
    )");
    EXPECT_TRUE(exists(tree.path(".hidden")));
    EXPECT_TRUE(exists(tree.path("bad\xFF\xFE")));
    EXPECT_TRUE(exists(tree.path("new\nline")));
    EXPECT_TRUE(exists(tree.path("esc\x1b[31m")));
    EXPECT_TRUE(exists(tree.path("sp ace/quo\"te")));
    EXPECT_TRUE(exists(tree.path(std::string(255, 'x'))));
}

TEST(TemporaryTree, MakesManyFilesAndDeepTreesAndRemovesThem)
{
    std::string root;
    {
        const TemporaryTree tree(R"(
            deep/ levels=10000 age=40d
                bottom size=1
            many/
                part count=300
        )");
        root = tree.root().path();
        EXPECT_TRUE(exists(tree.path("many/part0")));
        EXPECT_TRUE(exists(tree.path("many/part299")));
        EXPECT_FALSE(exists(tree.path("many/part300")));
        EXPECT_NEAR(ageOf(tree, "deep/deep/deep"), 40 * 86400.0, 1e-6);
        auto folder = Platform::openFolder(root.c_str());
        ASSERT_TRUE(folder);
        std::size_t levels = 0;
        while (auto below = Platform::openFolderIn(folder->get(), "deep")) {
            folder = std::move(below);
            ++levels;
        }
        EXPECT_EQ(levels, 10000U);
        EXPECT_EQ(faccessat(folder->get(), "bottom", F_OK, 0), 0);
    }
    EXPECT_FALSE(exists(root));
}

TEST(TemporaryTree, RemovesFoldersWithoutPermissions)
{
    std::string root;
    {
        const TemporaryTree tree(R"(
            outer/ mode=000
                inner/ mode=000
                    "bad\xFF" mode=000
                pipe fifo
                empty/ mode=000
        )");
        root = tree.root().path();
    }
    EXPECT_FALSE(exists(root));
}

TEST(TemporaryTree, NeverRemovesWhatALinkLeadsTo)
{
    const TemporaryTree kept("file size=1");
    {
        const TemporaryTree tree("link -> \"" + kept.root().path() + "\"");
        EXPECT_TRUE(exists(tree.path("link/file")));
    }
    EXPECT_TRUE(exists(kept.path("file")));
}

TEST(TemporaryTree, AddsToFoldersAndKeepsTheirAgeAndPermissions)
{
    TemporaryTree tree("folder/ age=5d mode=500\n  first", kNow);
    tree.add("folder/second age=1s");
    EXPECT_NEAR(ageOf(tree, "folder"), 5 * 86400.0, 1e-6);
    EXPECT_EQ(statusOf(tree.path("folder")).st_mode & 07777U, 0500U);
    EXPECT_NEAR(ageOf(tree, "folder/second"), 1, 1e-6);
    tree.setAge("folder/", 7);
    EXPECT_NEAR(ageOf(tree, "folder"), 7, 1e-6);
    tree.remove("folder");
    EXPECT_FALSE(exists(tree.path("folder")));
}

TEST(TemporaryTree, ComesBackToAFolderThatTheLayoutLeft)
{
    const TemporaryTree tree(R"(
        a/ age=2h
            one
        b/
            two
        a/three
    )",
        kNow);
    EXPECT_TRUE(exists(tree.path("a/one")));
    EXPECT_TRUE(exists(tree.path("a/three")));
    EXPECT_NEAR(ageOf(tree, "a"), 7200, 1e-6);
}

TEST(TemporaryTree, FailsTheTestForALayoutThatCannotBeRead)
{
    EXPECT_NONFATAL_FAILURE(TemporaryTree("a size=many"), "layout line 1: no number: size=many");
    EXPECT_NONFATAL_FAILURE(TemporaryTree("file\n    inside"), "layout line 2: it is indented");
    EXPECT_NONFATAL_FAILURE(TemporaryTree("same\nsame"), "could not make \"same\"");
}

TEST(TreeLayout, RefusesWhatItDoesNotUnderstand)
{
    for (const auto* text : {"a colour=red", "a \"b", "\"a\\q\"", "\"a\\x4\"", "a//b", "/a", "a mode=9",
             "a mode=", "a size=-1", "a size=3X", "a size=3KK", "a ->", "a wild", "\"\"", "\"a\\x00b\""}) {
        EXPECT_FALSE(parseLayout(text)) << text;
    }
}

TEST(TreeLayout, ReadsBlankLinesAndCommentsAsNothing)
{
    const auto items = parseLayout("\n   \n# words\n  # more\n");
    ASSERT_TRUE(items);
    EXPECT_TRUE(items->empty());
}

} // namespace TestSupport
