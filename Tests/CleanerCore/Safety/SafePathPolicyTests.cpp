#include "Tests/CleanerCore/Safety/SystemTest.h"

#include <cerrno>

namespace SafetyTests {

using namespace CleanerCore;

using SafePathPolicyTest = SystemTest;

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

TEST_F(SafePathPolicyTest, ChecksTheWayToTheRootAnew)
{
    const auto own = policy({"/Users/a/Library/Caches"});
    faulty.fail({.call = FileManagerCall::resourceValues, .systemError = EACCES, .path = tree.path("Users/a")});
    expectError(own.validate(FileURL("/Users/a/Library/Caches/app"), files), Kind::unreadableAttributes, "/Users/a");
    EXPECT_TRUE(own.validate(FileURL("/Users/a/Library/Caches/app"), files));
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

} // namespace SafetyTests
