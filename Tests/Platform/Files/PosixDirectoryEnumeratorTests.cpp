#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <vector>

namespace {

using Platform::EnumerationErrorAnswer;
using Platform::EnumerationOptions;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;
using Platform::PosixFileManager;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using TestSupport::TemporaryTree;

struct Walk {
    std::vector<std::string> paths;
    std::vector<FileError> errors;
    std::size_t deepestLevel = 0;
};

Walk walk(const FileURL& root, EnumerationOptions options = {})
{
    const PosixFileManager fileManager;
    Walk found;
    const auto items = fileManager.enumerator(root, options, [&](const FileURL&, const FileError& error) {
        found.errors.push_back(error);
        return EnumerationErrorAnswer::goOn;
    });
    while (items->next()) {
        found.paths.push_back(items->url().path().substr(root.path().size() + 1));
        found.deepestLevel = std::max(found.deepestLevel, items->level());
    }
    return found;
}

/// Leaves room for so many more open descriptors for as long as it lives.
class OpenFileLimit {
public:
    explicit OpenFileLimit(std::size_t furtherDescriptors)
    {
        std::vector<Platform::FileDescriptor> taken;
        for (std::size_t count = 0; count <= furtherDescriptors; ++count) {
            taken.emplace_back(open("/dev/null", O_RDONLY | O_CLOEXEC));
        }
        getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit lowered{.rlim_cur = static_cast<rlim_t>(taken.back().get()), .rlim_max = m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &lowered);
    }
    OpenFileLimit(const OpenFileLimit&) = delete;
    OpenFileLimit& operator=(const OpenFileLimit&) = delete;
    ~OpenFileLimit() { setrlimit(RLIMIT_NOFILE, &m_before); }

private:
    rlimit m_before{};
};

TEST(PosixDirectoryEnumerator, GivesEveryItemOnceAndFoldersBeforeTheirContents)
{
    const TemporaryTree tree(R"(
        a/b/file
        a/other
        top
        empty/
    )");
    const auto found = walk(tree.root());
    EXPECT_THAT(found.paths, UnorderedElementsAre("a", "a/b", "a/b/file", "a/other", "top", "empty"));
    const auto position = [&](const char* path) { return std::ranges::find(found.paths, path) - found.paths.begin(); };
    EXPECT_LT(position("a"), position("a/b"));
    EXPECT_LT(position("a/b"), position("a/b/file"));
    EXPECT_EQ(found.deepestLevel, 3U);
    EXPECT_THAT(found.errors, IsEmpty());
}

TEST(PosixDirectoryEnumerator, LeavesOutHiddenItemsWithAllTheyHold)
{
    const TemporaryTree tree(R"(
        .hidden/inside
        shown/.also
        shown/file
    )");
    EXPECT_THAT(walk(tree.root(), {.skipsHiddenFiles = true}).paths, UnorderedElementsAre("shown", "shown/file"));
}

TEST(PosixDirectoryEnumerator, ShowsAPackageButNotItsContents)
{
    const TemporaryTree tree(R"(
        Tool.APP/Contents/file
        plain.app.folder/file
        file.app
    )");
    EXPECT_THAT(walk(tree.root(), {.skipsPackageDescendants = true}).paths,
        UnorderedElementsAre("Tool.APP", "plain.app.folder", "plain.app.folder/file", "file.app"));
}

TEST(PosixDirectoryEnumerator, StaysOnTheFirstLevelWhenAsked)
{
    const TemporaryTree tree("a/b/c");
    EXPECT_THAT(walk(tree.root(), {.skipsSubdirectoryDescendants = true}).paths, ElementsAre("a"));
}

TEST(PosixDirectoryEnumerator, DoesNotFollowLinksAndEndsOnCycles)
{
    const TemporaryTree tree(R"(
        folder/file
        folder/up -> ..
        self -> self
        toFolder -> folder
    )");
    EXPECT_THAT(
        walk(tree.root()).paths, UnorderedElementsAre("folder", "folder/file", "folder/up", "self", "toFolder"));
}

TEST(PosixDirectoryEnumerator, DoesNotEnterASkippedFolder)
{
    const TemporaryTree tree(R"(
        a/inside
        b/inside
    )");
    const PosixFileManager fileManager;
    const auto items = fileManager.enumerator(tree.root(), {}, {});
    std::vector<std::string> names;
    while (items->next()) {
        names.emplace_back(items->name());
        if (items->name() == "a") {
            items->skipDescendants();
        }
    }
    EXPECT_THAT(names, UnorderedElementsAre("a", "b", "inside"));
}

TEST(PosixDirectoryEnumerator, HandsAFoldersContextToItsEntries)
{
    const TemporaryTree tree(R"(
        a/x/deep
        b/y
        c
    )");
    const PosixFileManager fileManager;
    const auto items = fileManager.enumerator(tree.root(), {}, {});
    std::map<std::string, std::uint64_t, std::less<>> contexts;
    const std::map<std::string, std::uint64_t, std::less<>> given{{"a", 7}, {"x", ~std::uint64_t{0}}};
    while (items->next()) {
        const std::string name(items->name());
        contexts[name] = items->folderContext();
        if (const auto context = given.find(name); context != given.end()) {
            items->setContextOfDescendants(context->second);
        }
    }
    const std::map<std::string, std::uint64_t, std::less<>> expected{
        {"a", 0}, {"b", 0}, {"c", 0}, {"x", 7}, {"y", 0}, {"deep", ~std::uint64_t{0}}};
    EXPECT_EQ(contexts, expected);
}

TEST(PosixDirectoryEnumerator, WalksTenThousandLevelsWithAFewOpenFolders)
{
    const TemporaryTree tree(R"(
        deep/ levels=10000
            file
    )");
    const OpenFileLimit limit(4);
    const PosixFileManager fileManager;
    const auto items = fileManager.enumerator(tree.root(), {}, [](const FileURL&, const FileError& error) {
        ADD_FAILURE() << error.localizedDescription();
        return EnumerationErrorAnswer::goOn;
    });
    std::size_t count = 0;
    while (items->next()) {
        EXPECT_EQ(items->level(), ++count);
    }
    EXPECT_EQ(count, 10'001U);
}

/// Two subfolders on each level, one of them going on: the walk has to come back to each of the levels.
std::string combLayout(int levels)
{
    std::string layout;
    std::string path;
    for (int level = 0; level < levels; ++level) {
        for (const char* name : {"a", "b", "c"}) {
            layout += fmt::format("{}{}/leaf{}\n", path, name, level);
        }
        path += "b/";
    }
    return layout;
}

TEST(PosixDirectoryEnumerator, ComesBackToFoldersThatItHadToClose)
{
    constexpr int kLevels = 300;
    const TemporaryTree tree(combLayout(kLevels));
    const OpenFileLimit limit(20);
    const auto found = walk(tree.root());
    EXPECT_EQ(found.paths.size(), std::size_t{6} * kLevels);
    EXPECT_EQ(std::set(found.paths.begin(), found.paths.end()).size(), found.paths.size());
    EXPECT_THAT(found.errors, IsEmpty());
}

TEST(PosixDirectoryEnumerator, GetsByWithVeryFewDescriptors)
{
    constexpr int kLevels = 60;
    const TemporaryTree tree(combLayout(kLevels));
    const OpenFileLimit limit(4);
    const auto found = walk(tree.root());
    EXPECT_EQ(found.paths.size(), std::size_t{6} * kLevels);
    EXPECT_THAT(found.errors, IsEmpty());
}

TEST(PosixDirectoryEnumerator, ReportsAFolderThatItCannotOpenForWantOfDescriptors)
{
    const TemporaryTree tree("folder/file");
    const PosixFileManager fileManager;
    std::vector<FileError> errors;
    const auto items = fileManager.enumerator(tree.root(), {}, [&](const FileURL&, const FileError& error) {
        errors.push_back(error);
        return EnumerationErrorAnswer::goOn;
    });
    std::vector<std::string> names;
    {
        const OpenFileLimit limit(0);
        while (items->next()) {
            names.emplace_back(items->name());
        }
    }
    EXPECT_THAT(names, ElementsAre("folder"));
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].kind, FileErrorKind::tooManyOpenFiles);
    EXPECT_EQ(errors[0].path, tree.path("folder"));
}

TEST(PosixDirectoryEnumerator, ReportsAFolderThatVanishedAndGoesOn)
{
    TemporaryTree tree(R"(
        gone/file
        kept/file
    )");
    const PosixFileManager fileManager;
    std::vector<FileError> errors;
    const auto items = fileManager.enumerator(tree.root(), {}, [&](const FileURL&, const FileError& error) {
        errors.push_back(error);
        return EnumerationErrorAnswer::goOn;
    });
    std::vector<std::string> paths;
    bool removed = false;
    while (items->next()) {
        paths.push_back(items->url().path());
        if (!std::exchange(removed, true)) {
            tree.remove("gone");
        }
    }
    EXPECT_THAT(paths, testing::Contains(tree.path("kept/file")));
    EXPECT_THAT(paths, testing::Not(testing::Contains(tree.path("gone/file"))));
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].kind, FileErrorKind::noSuchFile);
    EXPECT_EQ(errors[0].localizedDescription(), "The file “gone” couldn’t be opened because there is no such file.");
}

TEST(PosixDirectoryEnumerator, SaysThatAnEntryVanishedBetweenListingAndLook)
{
    TemporaryTree tree("file");
    const PosixFileManager fileManager;
    const auto items = fileManager.enumerator(tree.root(), {}, {});
    ASSERT_TRUE(items->next());
    tree.remove("file");
    const auto& values = items->resourceValues();
    ASSERT_FALSE(values.has_value());
    EXPECT_EQ(values.error().kind, FileErrorKind::noSuchFile);
    EXPECT_EQ(values.error().path, tree.path("file"));
}

TEST(PosixDirectoryEnumerator, StopsWhenTheHandlerSaysSo)
{
    TemporaryTree tree(R"(
        a/file
        b/file
        c/file
    )");
    const PosixFileManager fileManager;
    int errors = 0;
    const auto items = fileManager.enumerator(tree.root(), {}, [&](const FileURL&, const FileError&) {
        ++errors;
        return EnumerationErrorAnswer::stop;
    });
    ASSERT_TRUE(items->next());
    for (const char* name : {"a", "b", "c"}) {
        tree.remove(name);
    }
    int later = 0;
    while (items->next()) {
        ++later;
    }
    EXPECT_EQ(later, 2);
    EXPECT_EQ(errors, 1);
    EXPECT_FALSE(items->next());
}

TEST(PosixDirectoryEnumerator, KeepsNamesAsBytes)
{
    const TemporaryTree tree(R"(
        "not \xFF UTF-8"
        "line\nbreak"
        "\e[31mred"
        "x"*255
    )");
    const auto found = walk(tree.root());
    EXPECT_THAT(
        found.paths, UnorderedElementsAre("not \xFF UTF-8", "line\nbreak", "\x1b[31mred", std::string(255, 'x')));
}

TEST(PosixDirectoryEnumerator, LeavesAccessTimesAlone)
{
    const TemporaryTree tree("folder/file age=40d");
    const auto accessTime = [&](const char* path) {
        struct stat found{};
        EXPECT_EQ(stat(tree.path(path).c_str(), &found), 0);
        return std::pair(found.st_atim.tv_sec, found.st_atim.tv_nsec);
    };
    const auto folderBefore = accessTime("folder");
    const auto fileBefore = accessTime("folder/file");
    EXPECT_EQ(walk(tree.root()).paths.size(), 2U);
    EXPECT_EQ(accessTime("folder"), folderBefore);
    EXPECT_EQ(accessTime("folder/file"), fileBefore);
}

TEST(PosixDirectoryEnumerator, GivesReferencesThatOutliveTheWalk)
{
    const TemporaryTree tree(R"(
        a/file size=10
    )");
    const PosixFileManager fileManager;
    std::vector<Platform::ItemReference> references;
    {
        const auto items = fileManager.enumerator(tree.root(), {}, {});
        while (items->next()) {
            references.push_back(items->reference());
        }
    }
    ASSERT_EQ(references.size(), 2U);
    EXPECT_EQ(references[0].url(), tree.url("a/"));
    EXPECT_EQ(references[1].url(), tree.url("a/file"));
    const auto values = fileManager.resourceValues(references[1]);
    ASSERT_TRUE(values.has_value());
    EXPECT_EQ(values->fileSize, 10);
}

} // namespace
