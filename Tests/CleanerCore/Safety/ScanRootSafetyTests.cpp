#include "CleanerCore/Safety/ScanRootSafety.h"

#include "CleanerCore/Safety/DefaultProtectedPaths.h"
#include "Tests/CleanerCore/Safety/SystemTest.h"

#include <algorithm>
#include <cerrno>
#include <gmock/gmock.h>

namespace SafetyTests {

using namespace CleanerCore;

using testing::Contains;
using testing::Not;
using ScanRootSafetyTest = SystemTest;

TEST_F(ScanRootSafetyTest, AllowsAnOrdinaryFolderOfTheHomeAsAScanRoot)
{
    EXPECT_TRUE(root("/Users/a/Library/Caches"));
    EXPECT_TRUE(root("/home/u/.cache/pip", "/home/u"));
    EXPECT_TRUE(root("/data", "/Users/a"));
}

TEST_F(ScanRootSafetyTest, RefusesTheHomeItselfAsAScanRoot)
{
    expectNotAllowed("/Users/a");
    expectNotAllowed("/home/u", "/home/u");
    expectNotAllowed("/data", "/data");
}

TEST_F(ScanRootSafetyTest, RefusesTheFolderOfHomesAndOtherPersonsHomes)
{
    for (const std::string_view path : {"/Users", "/Users/b", "/Users/b/Library/Caches"}) {
        expectNotAllowed(path);
        expectNotAllowed(path, "/home/u");
        expectNotAllowed(path, "/Users/Shared/stuff");
    }
    for (const std::string_view path : {"/home", "/home/v", "/home/v/.cache/pip"}) {
        expectNotAllowed(path, "/home/u");
        expectNotAllowed(path, "/Users/a");
        expectNotAllowed(path, "/root");
    }
}

TEST_F(ScanRootSafetyTest, RefusesWhatAllPersonsShare)
{
    expectNotAllowed("/Users/Shared");
    expectNotAllowed("/Users/Shared/stuff");
}

TEST_F(ScanRootSafetyTest, TreatsTheResolvedFolderOfHomesLikeTheFolderItself)
{
    TemporaryTree other("var/home/u/.cache/pip/x\nvar/home/v/.cache/x\nhome -> var/home\n");
    const RootedFileManager linked(posix, other.root());
    const auto judge = [&](std::string_view path) {
        return SafePathPolicy::validateScanRoot(FileURL::folder(path), FileURL::folder("/home/u"), linked).has_value();
    };
    EXPECT_TRUE(judge("/var/home/u/.cache/pip"));
    EXPECT_FALSE(judge("/var/home/v/.cache"));
    EXPECT_FALSE(judge("/var/home"));
    EXPECT_FALSE(judge("/home/u/.cache/pip")) << "a link stands in the path";
}

TEST_F(ScanRootSafetyTest, RefusesARootThatIsHoldsOrLiesInAProtectedPath)
{
    for (const std::string_view path : {"/", "/System", "/System/x", "/Library", "/Library/Caches", "/usr",
             "/usr/local/share", "/private", "/private/etc", "/var", "/var/lib"}) {
        expectNotAllowed(path);
    }
}

TEST_F(ScanRootSafetyTest, RefusesTheSystemFoldersOfLinux)
{
    for (const std::string_view path : {"/opt", "/opt/tool", "/mnt/disk/data", "/media", "/media/disk", "/srv", "/boot",
             "/var/lib", "/root/.cache/pip"}) {
        expectNotAllowed(path, "/home/u");
    }
}

TEST_F(ScanRootSafetyTest, AllowsRootsInTheHomeOfRootForRootAlone)
{
    EXPECT_TRUE(root("/root/.cache/pip", "/root"));
    EXPECT_TRUE(root("/root/.cache/pip", "/root/.cache"));
    expectNotAllowed("/root", "/root");
    expectNotAllowed("/root/.cache/pip", "/rooted");
}

TEST_F(ScanRootSafetyTest, KnowsTheHomeOfRootBehindALink)
{
    const TemporaryTree other("var/roothome/.cache/pip/x\nroot -> var/roothome\n");
    const RootedFileManager linked(posix, other.root());
    const auto judge = [&](std::string_view home) {
        return SafePathPolicy::validateScanRoot(
            FileURL::folder("/var/roothome/.cache/pip"), FileURL::folder(home), linked)
            .has_value();
    };
    EXPECT_TRUE(judge("/root"));
    EXPECT_TRUE(judge("/var/roothome"));
    EXPECT_FALSE(judge("/home/u"));
}

TEST_F(ScanRootSafetyTest, RefusesARootThatIsALinkOrIsReachedThroughOne)
{
    expectNotAllowed("/Users/a/linked");
    expectError(root("/Users/a/linked/Caches"), Kind::pathNotAllowed, "/Users/a/Library/Caches");
}

TEST_F(ScanRootSafetyTest, RefusesARootThatIsMissingNoFolderOrUserData)
{
    expectNotAllowed("/Users/a/Nothing");
    expectNotAllowed("/Users/a/Library/Caches/app/data");
    expectNotAllowed("/Users/a/Library/Mail");
}

TEST_F(ScanRootSafetyTest, RefusesARootWhoseAttributesCannotBeRead)
{
    faulty.fail({.call = FileManagerCall::resourceValues,
        .systemError = EACCES,
        .duration = FaultDuration::once,
        .path = tree.path("Users/a/Library")});
    expectNotAllowed("/Users/a/Library/Caches");
    EXPECT_EQ(faulty.failureCount(), 1U);
    EXPECT_TRUE(root("/Users/a/Library/Caches"));
}

TEST_F(ScanRootSafetyTest, ListsProtectedPathsWithTheirResolvedFormsLongestFirst)
{
    const auto paths = defaultProtectedPaths("/Users/a", files);
    for (const std::string path : {"/", "/System", "/Library", "/Applications", "/bin", "/sbin", "/usr", "/etc", "/dev",
             "/Volumes", "/Users/Shared", "/private/etc", "/private/tmp", "/private/var/db", "/private/var/root",
             "/private/var/vm", "/private/var/log", "/usr/bin", "/boot", "/opt", "/srv", "/root", "/lib", "/lib32",
             "/lib64", "/libx32", "/proc", "/sys", "/run", "/snap", "/nix", "/var/lib", "/var/log", "/var/cache",
             "/var/spool", "/var/mail", "/mnt", "/media"}) {
        EXPECT_EQ(std::count(paths.begin(), paths.end(), path), 1) << path;
    }
    EXPECT_TRUE(std::is_sorted(paths.begin(), paths.end(),
        [](const std::string& left, const std::string& right) { return left.size() > right.size(); }));
    EXPECT_THAT(paths, Not(Contains("/tmp")));
    EXPECT_THAT(paths, Not(Contains("/home")));
    EXPECT_THAT(defaultProtectedPaths("/root", files), Not(Contains("/root")));
    EXPECT_THAT(protectedSharedFolders(files), testing::ElementsAre("/var/tmp", "/tmp"));
}

TEST_F(ScanRootSafetyTest, ListsAPathThatIsNoLinkByItself)
{
    const TemporaryTree empty("folder/");
    const RootedFileManager withoutLinks(posix, empty.root());
    EXPECT_THAT(defaultProtectedPaths("/Users/a", withoutLinks), Contains("/private/etc"));
}

TEST_F(ScanRootSafetyTest, LeavesTheHomeOfRootToRootAlsoWhereItIsALink)
{
    const TemporaryTree linked("data/root/\nroot -> data/root");
    const RootedFileManager withLink(posix, linked.root());
    for (const std::string_view home : {"/root", "/data/root"}) {
        EXPECT_THAT(defaultProtectedPaths(home, withLink), Not(Contains("/root"))) << home;
        EXPECT_THAT(defaultProtectedPaths(home, withLink), Not(Contains("/data/root"))) << home;
    }
    EXPECT_THAT(defaultProtectedPaths("/home/u", withLink), testing::IsSupersetOf({"/root", "/data/root"}));
}

TEST_F(ScanRootSafetyTest, RefusesOtherPersonsHomesWhereTheFolderOfHomesIsALink)
{
    const TemporaryTree linked("data/homes/u/.cache/pip/x\ndata/homes/v/.cache/pip/x\nhome -> data/homes");
    const RootedFileManager withLink(posix, linked.root());
    const ScanRootSafety safety(FileURL::folder("/home/u"), withLink);
    EXPECT_TRUE(safety.isScanRootSafe(FileURL::folder("/data/homes/u/.cache/pip"), withLink));
    EXPECT_FALSE(safety.isScanRootSafe(FileURL::folder("/data/homes/v/.cache/pip"), withLink));
    EXPECT_FALSE(safety.isScanRootSafe(FileURL::folder("/data/homes"), withLink));
}

TEST_F(ScanRootSafetyTest, TakesEveryHomeForAnotherPersonsWhereOnesOwnHoldsThemAll)
{
    const UsersFolder users{"/Users", "/Users/Shared"};
    for (const std::string_view home : {"/Users", "/"}) {
        EXPECT_TRUE(isUnsafeUsersRoot("/Users/b/Caches", home, users, NameComparison::caseSensitive)) << home;
    }
}

TEST_F(ScanRootSafetyTest, TellsOtherPersonsHomesFromOnesOwn)
{
    const UsersFolder users{"/Users", "/Users/Shared"};
    const auto isUnsafe = [&](std::string_view root, std::string_view home,
                              NameComparison comparison = NameComparison::caseSensitive) {
        return isUnsafeUsersRoot(root, home, users, comparison);
    };
    EXPECT_TRUE(isUnsafe("/Users", "/Users/a"));
    EXPECT_FALSE(isUnsafe("/data", "/Users/a"));
    EXPECT_FALSE(isUnsafe("/Usersx/a", "/Users/a"));
    EXPECT_TRUE(isUnsafe("/Users/Shared", "/Users/a"));
    EXPECT_TRUE(isUnsafe("/Users/Shared/x", "/Users/Shared/x"));
    EXPECT_TRUE(isUnsafe("/Users/a/x", "/home/a"));
    EXPECT_TRUE(isUnsafe("/Users/a/x", "/Users/Shared"));
    EXPECT_TRUE(isUnsafe("/Users/a/x", "/Users/Shared/a"));
    EXPECT_FALSE(isUnsafe("/Users/a", "/Users/a"));
    EXPECT_FALSE(isUnsafe("/Users/a/x", "/Users/a"));
    EXPECT_TRUE(isUnsafe("/Users/ab", "/Users/a"));
    EXPECT_TRUE(isUnsafe("/Users/b/x", "/Users/a"));
    EXPECT_TRUE(isUnsafe("/users/b", "/users/a", NameComparison::caseInsensitive));
    EXPECT_FALSE(isUnsafe("/users/b", "/users/a"));
    EXPECT_FALSE(isUnsafeUsersRoot("/home/a/x", "/home/a", {"/home", std::nullopt}, NameComparison::caseSensitive));
}

} // namespace SafetyTests
