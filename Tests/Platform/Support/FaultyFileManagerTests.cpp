#include "Tests/Support/FaultyFileManager.h"

#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <cerrno>
#include <set>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Platform::EnumerationErrorAnswer;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;
using testing::Contains;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using TestSupport::FaultDuration;
using TestSupport::FileManagerCall;
using TestSupport::TemporaryTree;

class FaultyFileManager : public testing::Test {
protected:
    using Paths = std::multiset<std::string>;

    struct Walk {
        Paths paths;
        Paths failedPaths;
        std::vector<FileError> errors;
    };

    Walk walk(EnumerationErrorAnswer answer = EnumerationErrorAnswer::goOn)
    {
        Walk result;
        const auto enumerator = faulty.enumerator(tree.root(), {}, [&](const FileURL& url, const FileError& error) {
            result.failedPaths.insert(relative(url));
            result.errors.push_back(error);
            return answer;
        });
        while (enumerator->next()) {
            result.paths.insert(relative(enumerator->url()));
        }
        return result;
    }

    [[nodiscard]] std::string relative(const FileURL& url) const
    {
        return url.path() == tree.root().path() ? "" : url.path().substr(tree.root().path().size() + 1);
    }

    TemporaryTree tree{R"(
        a/
            one
            two
            deep/three
        b/
            four
    )"};
    Platform::PosixFileManager real;
    TestSupport::FaultyFileManager faulty{real};
};

TEST_F(FaultyFileManager, WithoutFaultsDoesWhatTheRealOneDoes)
{
    const auto result = walk();
    EXPECT_THAT(result.paths, UnorderedElementsAre("a", "a/one", "a/two", "a/deep", "a/deep/three", "b", "b/four"));
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(faulty.existence(tree.url("a/one")), Platform::Existence::file);
    EXPECT_TRUE(faulty.resourceValues(tree.url("a")));
    EXPECT_TRUE(faulty.identityValues(tree.url("a")));
    EXPECT_TRUE(faulty.attributes(tree.url("a")));
    EXPECT_EQ(faulty.contentsOfDirectory(tree.url("a/"))->size(), 3U);
    EXPECT_TRUE(faulty.writeAtomically("words", tree.url("new")));
    EXPECT_EQ(faulty.existence(tree.url("new")), Platform::Existence::file);
    EXPECT_EQ(faulty.failureCount(), 0U);
}

TEST_F(FaultyFileManager, FailsTheNthCallOnce)
{
    faulty.fail({.call = FileManagerCall::attributes, .systemError = EIO, .nth = 2});
    EXPECT_TRUE(faulty.attributes(tree.url("a")));
    const auto second = faulty.attributes(tree.url("b"));
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error().kind, FileErrorKind::inputOutput);
    EXPECT_EQ(second.error().path, tree.path("b"));
    EXPECT_TRUE(faulty.attributes(tree.url("b")));
    EXPECT_EQ(faulty.count(FileManagerCall::attributes), 3U);
    EXPECT_EQ(faulty.failureCount(), 1U);
}

TEST_F(FaultyFileManager, FailsEveryCallFromTheNthOn)
{
    faulty.fail({.call = FileManagerCall::resourceValues,
        .systemError = EACCES,
        .nth = 2,
        .duration = FaultDuration::fromThenOn});
    EXPECT_TRUE(faulty.resourceValues(tree.url("a")));
    EXPECT_FALSE(faulty.resourceValues(tree.url("a")));
    EXPECT_FALSE(faulty.resourceValues(tree.url("b")));
}

TEST_F(FaultyFileManager, FailsOnlyCallsForThePathOfTheFault)
{
    faulty.fail({.call = FileManagerCall::identityValues, .systemError = EIO, .path = tree.path("b")});
    EXPECT_TRUE(faulty.identityValues(tree.url("a")));
    EXPECT_FALSE(faulty.identityValues(tree.url("b")));
}

TEST_F(FaultyFileManager, GivesEachCallItsOwnFormOfFailure)
{
    for (const auto call : {FileManagerCall::existence, FileManagerCall::volumeSupportsCaseSensitiveNames,
             FileManagerCall::makeEnumerator, FileManagerCall::contentsOfDirectory,
             FileManagerCall::resolvingSymbolicLinks, FileManagerCall::writeAtomically}) {
        faulty.fail({.call = call, .systemError = EIO});
    }
    tree.add("link -> a");
    EXPECT_EQ(faulty.existence(tree.url("a")), Platform::Existence::missing);
    EXPECT_FALSE(faulty.volumeSupportsCaseSensitiveNames(tree.root()));
    EXPECT_EQ(faulty.enumerator(tree.root(), {}, {}), nullptr);
    EXPECT_FALSE(faulty.contentsOfDirectory(tree.root()));
    EXPECT_EQ(faulty.resolvingSymbolicLinks(tree.url("link")), tree.url("link"));
    const auto written = faulty.writeAtomically("x", tree.url("new"));
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().operation, Platform::FileOperation::write);
    EXPECT_EQ(real.existence(tree.url("new")), Platform::Existence::missing);
    EXPECT_EQ(faulty.failureCount(), 6U);
}

TEST_F(FaultyFileManager, AFailedListingHidesTheFolderAndIsReported)
{
    faulty.fail({.call = FileManagerCall::listFolder, .systemError = EACCES, .path = tree.path("a")});
    const auto result = walk();
    EXPECT_THAT(result.paths, UnorderedElementsAre("a", "b", "b/four"));
    EXPECT_THAT(result.failedPaths, UnorderedElementsAre("a"));
    EXPECT_EQ(result.errors.front().kind, FileErrorKind::noPermission);
}

TEST_F(FaultyFileManager, TheFirstListingIsThatOfTheWalkedFolder)
{
    faulty.fail({.call = FileManagerCall::listFolder, .systemError = EIO});
    const auto result = walk();
    EXPECT_THAT(result.paths, IsEmpty());
    EXPECT_THAT(result.failedPaths, UnorderedElementsAre(""));
}

TEST_F(FaultyFileManager, AFailedStepBreaksTheListingOfOneFolderOff)
{
    faulty.fail({.call = FileManagerCall::nextEntry, .systemError = EIO, .nth = 2, .path = tree.path("a")});
    const auto result = walk();
    EXPECT_THAT(result.failedPaths, UnorderedElementsAre("a"));
    EXPECT_THAT(result.paths, Contains("b/four"));
    const auto isEntryOfA = [](const std::string& path) { return path.starts_with("a/") && path != "a/deep/three"; };
    EXPECT_EQ(std::ranges::count_if(result.paths, isEntryOfA), 1);
}

TEST_F(FaultyFileManager, TheAnswerStopEndsTheWalk)
{
    faulty.fail({.call = FileManagerCall::listFolder, .systemError = EIO, .nth = 2});
    const auto result = walk(EnumerationErrorAnswer::stop);
    EXPECT_THAT(result.paths, UnorderedElementsAre("a", "b"));
    EXPECT_EQ(result.errors.size(), 1U);
}

TEST_F(FaultyFileManager, AnEntryWhoseLookFailsKeepsItsErrorUntilTheNextEntry)
{
    faulty.fail({.call = FileManagerCall::entryResourceValues, .systemError = ENOENT});
    const auto enumerator = faulty.enumerator(tree.root(), {}, {});
    ASSERT_TRUE(enumerator->next());
    ASSERT_FALSE(enumerator->resourceValues());
    EXPECT_EQ(enumerator->resourceValues().error().kind, FileErrorKind::noSuchFile);
    ASSERT_TRUE(enumerator->next());
    EXPECT_TRUE(enumerator->resourceValues());
    EXPECT_EQ(faulty.count(FileManagerCall::entryResourceValues), 2U);
}

TEST_F(FaultyFileManager, PassesWhatTheCallerSaysToTheWalk)
{
    const auto enumerator = faulty.enumerator(tree.root(), {}, {});
    Paths paths;
    while (enumerator->next()) {
        paths.insert(relative(enumerator->url()));
        if (enumerator->name() == "a") {
            enumerator->skipDescendants();
        }
        if (enumerator->name() == "b") {
            enumerator->setContextOfDescendants(7);
        }
        EXPECT_EQ(enumerator->folderContext(), enumerator->name() == "four" ? 7U : 0U);
        EXPECT_EQ(enumerator->level(), enumerator->name() == "four" ? 2U : 1U);
        EXPECT_EQ(enumerator->reference().url().path(), enumerator->url().path());
    }
    EXPECT_THAT(paths, UnorderedElementsAre("a", "b", "b/four"));
}

TEST_F(FaultyFileManager, RecordsCallsWithTheirPathsWhenAsked)
{
    faulty.recordCalls();
    walk();
    EXPECT_TRUE(faulty.attributes(tree.url("a/one")));
    std::multiset<std::string> listed;
    for (const auto& call : faulty.calls()) {
        if (call.call == FileManagerCall::listFolder) {
            listed.insert(call.path.substr(tree.root().path().size()));
        }
    }
    EXPECT_THAT(listed, UnorderedElementsAre("", "/a", "/a/deep", "/b"));
    EXPECT_EQ(faulty.calls().back().path, tree.path("a/one"));
}

TEST_F(FaultyFileManager, CountsCallsOfSeveralThreads)
{
    faulty.fail({.call = FileManagerCall::existence, .systemError = EIO, .nth = 500});
    const auto ask = [&] {
        for (int call = 0; call < 500; ++call) {
            static_cast<void>(faulty.existence(tree.url("a")));
        }
    };
    std::thread other(ask);
    ask();
    other.join();
    EXPECT_EQ(faulty.count(FileManagerCall::existence), 1000U);
    EXPECT_EQ(faulty.failureCount(), 1U);
}

} // namespace
