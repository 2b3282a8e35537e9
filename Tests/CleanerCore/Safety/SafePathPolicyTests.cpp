#include "CleanerCore/Safety/SafePathPolicy.h"

#include "CleanerCore/Safety/DefaultProtectedPaths.h"
#include "CleanerCore/Safety/RealUserHome.h"
#include "CleanerCore/Safety/ScanRootSafety.h"
#include "CleanerCore/Safety/SymbolicLinkComponents.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/RootedFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace CleanerCore {
namespace {

using Kind = CleaningError::Kind;
using Platform::FileURL;
using testing::Contains;
using testing::Not;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::RootedFileManager;
using TestSupport::TemporaryTree;

constexpr std::string_view kSystem = R"(
Users/a/Library/Caches/app/data
Users/a/Library/Caches/way -> ../Elsewhere
Users/a/Library/Caches/broken -> nowhere
Users/a/Library/Elsewhere/thing
Users/a/Library/Logs/
Users/a/linked -> Library
Users/a/Library/Mail/x
Users/b/Library/Caches/x
Users/Shared/stuff/x
System/x
Library/Caches/x
usr/local/share/x
home/u/.cache/pip/x
home/v/.cache/pip/x
root/.cache/pip/x
opt/tool/x
mnt/disk/data/x
media/disk/x
srv/x
boot/x
var/lib/x
var/tmp/mine/x
var/own/x
tmp/mine/x
data/x
private/etc/x
etc -> private/etc
bin -> usr/bin
usr/bin/
)";

/// A file system of its own, with the folders of both kinds of systems.
class SafePathPolicyTest : public testing::Test {
protected:
    std::expected<void, CleaningError> root(std::string_view path, std::string_view home = "/Users/a") const
    {
        return SafePathPolicy::validateScanRoot(FileURL::folder(path), FileURL::folder(home), files);
    }

    SafePathPolicy policy(std::vector<std::string_view> roots, std::string_view home = "/Users/a") const
    {
        std::vector<FileURL> urls;
        for (const auto path : roots) {
            urls.push_back(FileURL::folder(path));
        }
        return SafePathPolicy(urls, FileURL::folder(home), files);
    }

    void expectNotAllowed(std::string_view path, std::string_view home = "/Users/a") const
    {
        const auto verdict = root(path, home);
        ASSERT_FALSE(verdict.has_value()) << path;
        EXPECT_EQ(verdict.error().kind, Kind::pathNotAllowed) << path;
    }

    static void expectError(const std::expected<void, CleaningError>& verdict, Kind kind, std::string_view path)
    {
        ASSERT_FALSE(verdict.has_value()) << path;
        EXPECT_EQ(verdict.error(), (CleaningError{kind, std::string(path)}));
    }

    TemporaryTree tree{kSystem};
    Platform::PosixFileManager posix;
    FaultyFileManager faulty{posix};
    RootedFileManager files{faulty, tree.root()};
};

TEST_F(SafePathPolicyTest, AllowsAnOrdinaryFolderOfTheHomeAsAScanRoot)
{
    EXPECT_TRUE(root("/Users/a/Library/Caches"));
    EXPECT_TRUE(root("/home/u/.cache/pip", "/home/u"));
    EXPECT_TRUE(root("/data", "/Users/a"));
}

TEST_F(SafePathPolicyTest, RefusesTheHomeItselfAsAScanRoot)
{
    expectNotAllowed("/Users/a");
    expectNotAllowed("/home/u", "/home/u");
    expectNotAllowed("/data", "/data");
}

TEST_F(SafePathPolicyTest, RefusesTheFolderOfHomesAndOtherPersonsHomes)
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

TEST_F(SafePathPolicyTest, RefusesWhatAllPersonsShare)
{
    expectNotAllowed("/Users/Shared");
    expectNotAllowed("/Users/Shared/stuff");
}

TEST_F(SafePathPolicyTest, TreatsTheResolvedFolderOfHomesLikeTheFolderItself)
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

TEST_F(SafePathPolicyTest, RefusesARootThatIsHoldsOrLiesInAProtectedPath)
{
    for (const std::string_view path : {"/", "/System", "/System/x", "/Library", "/Library/Caches", "/usr",
             "/usr/local/share", "/private", "/private/etc", "/var", "/var/lib"}) {
        expectNotAllowed(path);
    }
}

TEST_F(SafePathPolicyTest, RefusesTheSystemFoldersOfLinux)
{
    for (const std::string_view path : {"/opt", "/opt/tool", "/mnt/disk/data", "/media", "/media/disk", "/srv", "/boot",
             "/var/lib", "/root/.cache/pip"}) {
        expectNotAllowed(path, "/home/u");
    }
}

TEST_F(SafePathPolicyTest, AllowsRootsInTheHomeOfRootForRootAlone)
{
    EXPECT_TRUE(root("/root/.cache/pip", "/root"));
    EXPECT_TRUE(root("/root/.cache/pip", "/root/.cache"));
    expectNotAllowed("/root", "/root");
    expectNotAllowed("/root/.cache/pip", "/rooted");
}

TEST_F(SafePathPolicyTest, ProtectsFoldersOfTemporaryItemsButNotWhatLiesInThem)
{
    expectNotAllowed("/tmp");
    expectNotAllowed("/var/tmp");
    EXPECT_TRUE(root("/tmp/mine"));
    EXPECT_TRUE(root("/var/tmp/mine"));
    const auto own = policy({"/tmp/mine"});
    EXPECT_TRUE(own.validate(FileURL("/tmp/mine/x"), files));
    expectError(own.validate(FileURL("/tmp"), files), Kind::criticalPath, "/tmp");
}

TEST_F(SafePathPolicyTest, RefusesARootThatIsALinkOrIsReachedThroughOne)
{
    expectNotAllowed("/Users/a/linked");
    expectError(root("/Users/a/linked/Caches"), Kind::pathNotAllowed, "/Users/a/Library/Caches");
}

TEST_F(SafePathPolicyTest, RefusesARootThatIsMissingNoFolderOrUserData)
{
    expectNotAllowed("/Users/a/Nothing");
    expectNotAllowed("/Users/a/Library/Caches/app/data");
    expectNotAllowed("/Users/a/Library/Mail");
}

TEST_F(SafePathPolicyTest, RefusesARootWhoseAttributesCannotBeRead)
{
    faulty.fail({.call = FileManagerCall::resourceValues,
        .systemError = EACCES,
        .duration = FaultDuration::once,
        .path = tree.path("Users/a/Library")});
    expectNotAllowed("/Users/a/Library/Caches");
    EXPECT_EQ(faulty.failureCount(), 1U);
    EXPECT_TRUE(root("/Users/a/Library/Caches"));
}

TEST_F(SafePathPolicyTest, LeavesOutBadRootsWithoutAWord)
{
    const auto own = policy({"/Users/b", "/Users/a/Library/Logs", "/nowhere", "/Users/a", "/Users/a/Library/Caches"});
    ASSERT_EQ(own.allowedRoots().size(), 2U);
    EXPECT_EQ(own.allowedRoots()[0].rawPath, "/Users/a/Library/Logs");
    EXPECT_EQ(own.allowedRoots()[1].resolvedPathKey, "/Users/a/Library/Caches");
    EXPECT_EQ(own.homePathKey(), "/Users/a");
    expectError(policy({}).validate(FileURL("/Users/a/Library/Caches/app"), files), Kind::pathNotAllowed,
        "/Users/a/Library/Caches/app");
}

TEST_F(SafePathPolicyTest, ValidatesChildrenOfARootButNotTheRoot)
{
    const auto own = policy({"/Users/a/Library/Caches"});
    EXPECT_TRUE(own.validate(FileURL("/Users/a/Library/Caches/app"), files));
    EXPECT_TRUE(own.validate(FileURL("/Users/a/Library/Caches/app/data"), files));
    expectError(
        own.validate(FileURL("/Users/a/Library/Caches"), files), Kind::pathNotAllowed, "/Users/a/Library/Caches");
    expectError(own.validate(FileURL("/Users/a/Library/Logs"), files), Kind::pathNotAllowed, "/Users/a/Library/Logs");
}

TEST_F(SafePathPolicyTest, RefusesAChildReachedThroughALinkInsideTheRoot)
{
    const auto own = policy({"/Users/a/Library/Caches", "/Users/a/Library/Elsewhere"});
    expectError(own.validate(FileURL("/Users/a/Library/Caches/way/thing"), files), Kind::pathNotAllowed,
        "/Users/a/Library/Elsewhere/thing");
    const auto wide = policy({"/Users/a/Library"});
    expectError(wide.validate(FileURL("/Users/a/Library/Caches/way/thing"), files), Kind::symbolicLink,
        "/Users/a/Library/Caches/way");
    expectError(wide.validate(FileURL("/Users/a/Library/Caches/way"), files), Kind::symbolicLink,
        "/Users/a/Library/Caches/way");
    expectError(wide.validate(FileURL("/Users/a/Library/Caches/broken"), files), Kind::symbolicLink,
        "/Users/a/Library/Caches/broken");
}

TEST_F(SafePathPolicyTest, RefusesTheHomeUserDataAndProtectedPathsInThisOrder)
{
    const auto own = policy({"/Users/a/Library"});
    expectError(own.validate(FileURL("/Users/a"), files), Kind::criticalPath, "/Users/a");
    expectError(
        own.validate(FileURL("/Users/a/Library/Mail/x"), files), Kind::protectedUserData, "/Users/a/Library/Mail/x");
    expectError(own.validate(FileURL("/System/Library/Mail"), files), Kind::protectedUserData, "/System/Library/Mail");
    expectError(own.validate(FileURL("/System/x"), files), Kind::criticalPath, "/System/x");
    expectError(own.validate(FileURL("/"), files), Kind::criticalPath, "/");
    expectError(own.validate(FileURL("/etc/x"), files), Kind::criticalPath, "/private/etc/x");
}

TEST_F(SafePathPolicyTest, NamesAProtectedPathInsideARootCritical)
{
    // The root is swapped for a link to a protected folder after the policy was made.
    const auto own = policy({"/var/own"});
    ASSERT_EQ(own.allowedRoots().size(), 1U);
    tree.remove("var/own");
    tree.add("var/own -> lib\n");
    expectError(own.validate(FileURL("/var/own/x"), files), Kind::criticalPath, "/var/lib/x");
}

TEST_F(SafePathPolicyTest, ComparesByTheRuleOfTheRootsVolume)
{
    const auto sensitive = policy({"/Users/a/Library/Caches"});
    EXPECT_FALSE(sensitive.usesCaseInsensitivePathComparison());
    expectError(sensitive.validate(FileURL("/users/a/library/caches/X"), files), Kind::pathNotAllowed,
        "/users/a/library/caches/X");

    faulty.fail({.call = FileManagerCall::volumeSupportsCaseSensitiveNames,
        .systemError = EIO,
        .duration = FaultDuration::fromThenOn});
    const auto insensitive = policy({"/Users/a/Library/Caches"});
    EXPECT_TRUE(insensitive.usesCaseInsensitivePathComparison());
    EXPECT_EQ(insensitive.homePathKey(), "/users/a");
    ASSERT_EQ(insensitive.allowedRoots().size(), 1U);
    EXPECT_EQ(insensitive.allowedRoots()[0].resolvedPathKey, "/users/a/library/caches");
    // The root matches; what is refused is that this volume, which does tell case apart, has no such folder.
    expectError(insensitive.validate(FileURL("/users/a/library/caches/X"), files), Kind::unreadableAttributes,
        "/users/a/library/caches/X");
    expectError(insensitive.validate(FileURL("/USERS/a"), files), Kind::criticalPath, "/USERS/a");
    expectError(insensitive.validate(FileURL("/system/x"), files), Kind::criticalPath, "/system/x");
}

TEST_F(SafePathPolicyTest, PassesOnThatAnAttributeCouldNotBeRead)
{
    const auto own = policy({"/Users/a/Library/Caches"});
    faulty.fail(
        {.call = FileManagerCall::resourceValues, .systemError = EIO, .path = tree.path("Users/a/Library/Caches/app")});
    expectError(own.validate(FileURL("/Users/a/Library/Caches/app/data"), files), Kind::unreadableAttributes,
        "/Users/a/Library/Caches/app");
}

TEST_F(SafePathPolicyTest, AcceptsAMissingItemAsARestoreDestinationWhereItsParentStands)
{
    const auto own = policy({"/Users/a/Library/Caches"});
    EXPECT_TRUE(own.validateRestoreDestination(FileURL("/Users/a/Library/Caches/gone"), files));
    EXPECT_TRUE(own.validateRestoreDestination(FileURL("/Users/a/Library/Caches/app/gone"), files));
    EXPECT_TRUE(own.validateRestoreDestination(FileURL("/Users/a/Library/Caches/x.backup"), files))
        << "user data may come back";
    expectError(own.validateRestoreDestination(FileURL("/Users/a/Library/Caches/none/gone"), files),
        Kind::unreadableAttributes, "/Users/a/Library/Caches/none");
    expectError(own.validateRestoreDestination(FileURL("/Users/a/Library/Caches/app/data/x"), files),
        Kind::unreadableAttributes, "/Users/a/Library/Caches/app/data");
}

TEST_F(SafePathPolicyTest, RefusesRestoreDestinationsThatAreCriticalOutsideOrBehindALink)
{
    const auto own = policy({"/Users/a/Library"});
    expectError(own.validateRestoreDestination(FileURL("/Users/a"), files), Kind::criticalPath, "/Users/a");
    expectError(own.validateRestoreDestination(FileURL("/System/x"), files), Kind::criticalPath, "/System/x");
    expectError(own.validateRestoreDestination(FileURL("/Users/a/x"), files), Kind::pathNotAllowed, "/Users/a/x");
    expectError(
        own.validateRestoreDestination(FileURL("/Users/a/Library"), files), Kind::pathNotAllowed, "/Users/a/Library");
    expectError(own.validateRestoreDestination(FileURL("/Users/a/Library/Caches/way/x"), files), Kind::symbolicLink,
        "/Users/a/Library/Caches/way");
}

TEST_F(SafePathPolicyTest, RefusesARootThatBecameALinkAfterThePolicyWasMade)
{
    const auto own = policy({"/Users/a/Library/Caches"});
    tree.remove("Users/a/Library/Caches");
    tree.add("Users/a/Library/Other/Caches/x\nUsers/a/Library/Caches -> Other/Caches\n");
    expectError(own.validate(FileURL("/Users/a/Library/Caches/x"), files), Kind::pathNotAllowed,
        "/Users/a/Library/Other/Caches/x");
}

TEST_F(SafePathPolicyTest, ListsProtectedPathsWithTheirResolvedFormsLongestFirst)
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

TEST(ScanRootSafety, ToldOfUsersJudgesByItsSixSteps)
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

TEST_F(SafePathPolicyTest, LooksForLinksOnlyBelowTheGivenParent)
{
    const auto reject = [&](std::string_view path, std::optional<std::string_view> parent,
                            NameComparison comparison = NameComparison::caseSensitive) {
        return rejectSymbolicLinkComponents(FileURL(path), parent, files, comparison);
    };
    EXPECT_TRUE(reject("/", std::nullopt));
    EXPECT_TRUE(reject("/Users/a/Library/Caches/app/data", std::nullopt));
    EXPECT_TRUE(reject("/Users/a/linked/Caches/app", "/Users/a/linked"));
    EXPECT_TRUE(reject("/Users/a/linked", "/Users/a/linked"));
    expectError(reject("/Users/a/linked/Caches/app", "/Users/a"), Kind::symbolicLink, "/Users/a/linked");
    expectError(reject("/Users/a/linked/Caches/app", std::nullopt), Kind::symbolicLink, "/Users/a/linked");
    expectError(reject("/Users/a/linked/Caches", "/Users/b"), Kind::pathNotAllowed, "/Users/a/Library/Caches");
    expectError(reject("/Users/a/missing/x", std::nullopt), Kind::unreadableAttributes, "/Users/a/missing");
    EXPECT_TRUE(reject("/Users/a/linked/Caches", "/USERS/A/Linked", NameComparison::caseInsensitive));
    expectError(reject("/Users/a/linked/Caches", "/USERS/A/Linked"), Kind::pathNotAllowed, "/Users/a/Library/Caches");
}

TEST(RealUserHome, IsTakenFromAPathBelowUsers)
{
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/Users/a/Library/Containers/x/Data"), FileURL::folder("/Users/a"));
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/Users/a"), FileURL::folder("/Users/a"));
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/Users"), std::nullopt);
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/users/a"), std::nullopt);
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/home/a"), std::nullopt);
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/x/Users/a"), std::nullopt);
}

} // namespace
} // namespace CleanerCore
