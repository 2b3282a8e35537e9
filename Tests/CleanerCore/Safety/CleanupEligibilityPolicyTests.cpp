#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"

#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/ForwardingFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using CleanerCore::CleanupEligibilityPolicy;
using CleanerCore::ScanLocation;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::TemporaryTree;

class CleanupEligibilityPolicyTest : public testing::Test {
protected:
    [[nodiscard]] ScanLocation location(std::string_view root, bool includesHiddenFiles = false) const
    {
        return ScanLocation({.rootURL = m_tree.url(root), .includesHiddenFiles = includesHiddenFiles});
    }

    [[nodiscard]] CleanupEligibilityPolicy policy(
        const std::vector<ScanLocation>& locations, std::int64_t maximum = 100) const
    {
        return CleanupEligibilityPolicy(locations, m_posix, maximum, m_tree.url("home/"));
    }

    [[nodiscard]] std::vector<std::string> rootPaths(const CleanupEligibilityPolicy& policy) const
    {
        std::vector<std::string> paths;
        for (const auto& root : policy.roots()) {
            paths.push_back(root.path.substr(m_tree.root().path().size() + 1));
        }
        return paths;
    }

    /// Another folder of the same name and content, with another identity.
    void replaceFolder(std::string_view relativePath)
    {
        const auto path = m_tree.path(relativePath);
        std::filesystem::rename(path, path + ".old");
        std::filesystem::copy(path + ".old", path, std::filesystem::copy_options::recursive);
    }

    TemporaryTree m_tree{R"(
home/Caches/
    item/file     text="x"
    inner/
        deep      text="x"
home/Logs/
    log           text="x"
home/link -> Caches
home/.ssh/
home/file         text="x"
)"};
    Platform::PosixFileManager m_posix;
};

TEST_F(CleanupEligibilityPolicyTest, KeepsTheRootsInTheirOrderWithTheRulesOfTheirLocations)
{
    ScanLocation hidden = location("home/Logs/", true);
    ScanLocation packages = location("home/Caches/");
    packages.includesPackageDescendants = true;
    const auto eligibility = policy({hidden, packages}, 7);
    ASSERT_THAT(rootPaths(eligibility), ElementsAre("home/Logs", "home/Caches"));
    const CleanerCore::CleanupValidationOptions first{
        .includesHiddenFiles = true, .includesPackageDescendants = false, .maximumDescendantItems = 7};
    const CleanerCore::CleanupValidationOptions second{
        .includesHiddenFiles = false, .includesPackageDescendants = true, .maximumDescendantItems = 7};
    EXPECT_EQ(eligibility.roots()[0].validationOptions, first);
    EXPECT_EQ(eligibility.roots()[1].validationOptions, second);
    const auto attributes = m_posix.attributes(m_tree.url("home/Logs/"));
    EXPECT_EQ(eligibility.roots()[0].identity.fileNumber, attributes->systemFileNumber);
    EXPECT_EQ(eligibility.roots()[0].identity.systemNumber, attributes->systemNumber);
}

TEST_F(CleanupEligibilityPolicyTest, DropsRootsThatAreNoSoundFolders)
{
    EXPECT_THAT(
        rootPaths(policy({location("home/missing/"), location("home/file"), location("home/link/"), location("home/"),
            location("home/.ssh/"), ScanLocation({.rootURL = FileURL()}), location("home/Logs/")})),
        ElementsAre("home/Logs"));
}

TEST_F(CleanupEligibilityPolicyTest, DropsARootWhoseNumbersCannotBeRead)
{
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::attributes, .systemError = EIO, .path = m_tree.path("home/Logs")});
    const CleanupEligibilityPolicy eligibility(
        std::vector{location("home/Logs/"), location("home/Caches/")}, faulty, 100, m_tree.url("home/"));
    EXPECT_EQ(faulty.failureCount(), 1U);
    EXPECT_THAT(rootPaths(eligibility), ElementsAre("home/Caches"));
}

TEST_F(CleanupEligibilityPolicyTest, DropsARootThatDoesNotTellThatItIsAFolderAndWhichOne)
{
    /// Leaves one attribute of every item out.
    class Silent final : public TestSupport::ForwardingFileManager {
    public:
        Silent(const Platform::FileManager& inner, int left)
            : ForwardingFileManager(inner)
            , m_left(left)
        {
        }
        [[nodiscard]] std::expected<Platform::FileAttributes, Platform::FileError> attributes(
            const Platform::ItemReference& item) const override
        {
            auto attributes = ForwardingFileManager::attributes(item);
            if (attributes && m_left == 0) {
                attributes->type = Platform::FileType::other;
            } else if (attributes && m_left == 1) {
                attributes->systemNumber.reset();
            } else if (attributes && m_left == 2) {
                attributes->systemFileNumber.reset();
            }
            return attributes;
        }

    private:
        int m_left;
    };
    const std::vector locations{location("home/Logs/")};
    const auto sound = policy(locations);
    for (const int left : {0, 1, 2, 3}) {
        const Silent silent(m_posix, left);
        const CleanupEligibilityPolicy eligibility(locations, silent, 100, m_tree.url("home/"));
        EXPECT_EQ(eligibility.roots().size(), left == 3 ? 1U : 0U) << left;
        EXPECT_EQ(sound.allows(m_tree.url("home/Logs/log"), silent), left == 3) << left;
    }
}

TEST_F(CleanupEligibilityPolicyTest, StoresAMaximumOf0As1)
{
    EXPECT_EQ(policy({location("home/Logs/")}, 0).roots().at(0).validationOptions.maximumDescendantItems, 1);
    EXPECT_EQ(policy({location("home/Logs/")}, -5).roots().at(0).validationOptions.maximumDescendantItems, 1);
}

TEST_F(CleanupEligibilityPolicyTest, AllowsWhatLiesInARootButNotTheRootItself)
{
    const auto eligibility = policy({location("home/Caches/")});
    EXPECT_TRUE(eligibility.allows(m_tree.url("home/Caches/item/"), m_posix));
    EXPECT_TRUE(eligibility.allows(m_tree.url("home/Caches/item/file"), m_posix));
    EXPECT_FALSE(eligibility.allows(m_tree.url("home/Caches/"), m_posix));
    EXPECT_FALSE(eligibility.allows(m_tree.url("home/CachesToo"), m_posix));
    EXPECT_FALSE(eligibility.allows(m_tree.url("home/Logs/log"), m_posix));
}

TEST_F(CleanupEligibilityPolicyTest, ComparesPathsExactlyInCase)
{
    EXPECT_FALSE(policy({location("home/Caches/")}).allows(m_tree.url("home/caches/item"), m_posix));
}

TEST_F(CleanupEligibilityPolicyTest, RefusesANoTouchPathInALiveRoot)
{
    const auto eligibility = policy({location("home/Caches/")});
    const auto url = m_tree.url("home/Caches/Pictures.photoslibrary/");
    EXPECT_FALSE(eligibility.allows(url, m_posix));
    EXPECT_FALSE(eligibility.eligibleRoot(url, m_posix));
    EXPECT_THAT(eligibility.allowedPaths(std::vector{url}, m_posix), IsEmpty());
    EXPECT_TRUE(eligibility.mostSpecificLiveRoot(url.path(), m_posix));
}

TEST_F(CleanupEligibilityPolicyTest, GivesTheDeeperOfTwoNestedRootsWithItsOptions)
{
    for (const bool deeperFirst : {false, true}) {
        std::vector locations{location("home/Caches/", false), location("home/Caches/inner/", true)};
        if (deeperFirst) {
            std::ranges::reverse(locations);
        }
        const auto eligibility = policy(locations);
        const auto deep = eligibility.mostSpecificLiveRoot(m_tree.path("home/Caches/inner/deep"), m_posix);
        ASSERT_TRUE(deep);
        EXPECT_EQ(deep->path, m_tree.path("home/Caches/inner"));
        EXPECT_TRUE(deep->validationOptions.includesHiddenFiles);
        const auto beside = eligibility.mostSpecificLiveRoot(m_tree.path("home/Caches/inner"), m_posix);
        ASSERT_TRUE(beside);
        EXPECT_EQ(beside->path, m_tree.path("home/Caches"));
    }
}

TEST_F(CleanupEligibilityPolicyTest, FallsBackToTheOuterRootWhenTheInnerIsNoLongerLive)
{
    const auto eligibility = policy({location("home/Caches/"), location("home/Caches/inner/", true)});
    replaceFolder("home/Caches/inner");
    const auto root = eligibility.mostSpecificLiveRoot(m_tree.path("home/Caches/inner/deep"), m_posix);
    ASSERT_TRUE(root);
    EXPECT_EQ(root->path, m_tree.path("home/Caches"));
}

TEST_F(CleanupEligibilityPolicyTest, TakesTheFirstOfTwoRootsAtOnePath)
{
    const auto eligibility = policy({location("home/Caches/", true), location("home/Caches/", false)});
    const auto root = eligibility.mostSpecificLiveRoot(m_tree.path("home/Caches/item"), m_posix);
    ASSERT_TRUE(root);
    EXPECT_TRUE(root->validationOptions.includesHiddenFiles);
}

TEST_F(CleanupEligibilityPolicyTest, AllowsNothingInARootThatWasReplacedByAFolderOfTheSameName)
{
    const auto eligibility = policy({location("home/Caches/"), location("home/Logs/")});
    replaceFolder("home/Caches");
    EXPECT_FALSE(eligibility.allows(m_tree.url("home/Caches/item/"), m_posix));
    EXPECT_FALSE(eligibility.allows(m_tree.url("home/Caches/inner/deep"), m_posix));
    EXPECT_TRUE(eligibility.allows(m_tree.url("home/Logs/log"), m_posix));
    EXPECT_THAT(
        eligibility.allowedPaths(std::vector{m_tree.url("home/Caches/item/"), m_tree.url("home/Logs/log")}, m_posix),
        ElementsAre(m_tree.path("home/Logs/log")));
}

TEST_F(CleanupEligibilityPolicyTest, AllowsNothingInARootThatBecameALinkToItself)
{
    const auto eligibility = policy({location("home/Caches/")});
    const auto path = m_tree.path("home/Caches");
    std::filesystem::rename(path, path + ".moved");
    std::filesystem::create_directory_symlink("Caches.moved", path);
    EXPECT_FALSE(eligibility.allows(m_tree.url("home/Caches/item/"), m_posix));
}

TEST_F(CleanupEligibilityPolicyTest, AllowsNothingInARootThatIsGone)
{
    const auto eligibility = policy({location("home/Logs/")});
    m_tree.remove("home/Logs");
    EXPECT_FALSE(eligibility.allows(m_tree.url("home/Logs/log"), m_posix));
}

TEST_F(CleanupEligibilityPolicyTest, AllowsNothingWhileARootCannotBeLookedAt)
{
    const auto eligibility = policy({location("home/Caches/")});
    for (const auto call : {FileManagerCall::existence, FileManagerCall::attributes}) {
        FaultyFileManager faulty(m_posix);
        faulty.fail({.call = call, .systemError = EACCES});
        EXPECT_FALSE(eligibility.allows(m_tree.url("home/Caches/item/"), faulty));
        EXPECT_EQ(faulty.failureCount(), 1U);
    }
}

TEST_F(CleanupEligibilityPolicyTest, GivesTheAllowedPathsLookingAtEachRootOnce)
{
    const auto eligibility = policy({location("home/Caches/"), location("home/Caches/inner/"), location("home/Logs/")});
    const std::vector urls{m_tree.url("home/Logs/log"), m_tree.url("home/Caches/inner/deep"),
        m_tree.url("home/Caches/inner/"), m_tree.url("home/Caches/"), m_tree.url("home/file"),
        m_tree.url("home/Caches/item/")};
    const FaultyFileManager counting(m_posix);
    EXPECT_THAT(eligibility.allowedPaths(urls, counting),
        ElementsAre(m_tree.path("home/Caches/inner"), m_tree.path("home/Caches/inner/deep"),
            m_tree.path("home/Caches/item"), m_tree.path("home/Logs/log")));
    EXPECT_EQ(counting.count(FileManagerCall::attributes), 3U);
}

TEST_F(CleanupEligibilityPolicyTest, GivesNoAllowedPathsForNoURLsAndWithoutRoots)
{
    EXPECT_THAT(policy({location("home/Logs/")}).allowedPaths({}, m_posix), IsEmpty());
    EXPECT_THAT(policy({}).allowedPaths(std::vector{m_tree.url("home/Logs/log")}, m_posix), IsEmpty());
}

} // namespace
