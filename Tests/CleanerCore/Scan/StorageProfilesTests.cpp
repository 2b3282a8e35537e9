#include "CleanerCore/Scan/StorageProfiles.h"

#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/Days.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace CleanerCore {
namespace {

using Platform::FileURL;
using testing::ElementsAre;
using TestSupport::kDay;

/// A home of macOS.
class StorageProfilesTest : public testing::Test {
protected:
    std::vector<ScanLocation> locations(
        CleanupScanMode mode, bool includesDirectDistribution = true, const std::stop_token& stop = {}) const
    {
        return StorageProfiles::macOSLocations(mode, tree.url("home/"), files, includesDirectDistribution, stop);
    }

    /// The roots from `first` on, relative to the home.
    std::vector<std::string> roots(const std::vector<ScanLocation>& all, std::size_t first = 0) const
    {
        std::vector<std::string> paths;
        for (std::size_t index = first; index < all.size(); ++index) {
            paths.push_back(all[index].rootURL.path().substr(tree.path("home/").size() + 1));
        }
        return paths;
    }

    static ScanLocation find(const std::vector<ScanLocation>& all, std::string_view displayName)
    {
        const auto found = std::find_if(
            all.begin(), all.end(), [&](const ScanLocation& one) { return one.displayName == displayName; });
        EXPECT_NE(found, all.end()) << displayName;
        return found == all.end() ? ScanLocation() : *found;
    }

    TestSupport::TemporaryTree tree{"home/Library/\noutside/registry/cache/x\noutside/git/checkouts/x\n"};
    Platform::PosixFileManager posix;
    TestSupport::FaultyFileManager files{posix};
};

TEST_F(StorageProfilesTest, HasFourStandardLocationsInOrder)
{
    const auto home = FileURL::folder("/Users/a");
    const auto make = [&](std::string_view path, CleanupCategory category, std::string_view name, bool isSelected,
                          CleanupSafety safety) {
        return ScanLocation({
            .rootURL = home.appending(path, Platform::DirectoryHint::isFolder),
            .category = category,
            .displayName = std::string(name),
            .depth = ScanDepth::immediateChildren,
            .isSelectedByDefault = isSelected,
            .safety = safety,
            .minimumModificationAge = kDay,
        });
    };
    EXPECT_THAT(StorageProfiles::macOSDefaultLocations(home),
        ElementsAre(make("Library/Caches", CleanupCategory::userCaches, "~/Library/Caches", true, CleanupSafety::safe),
            make("Library/Logs", CleanupCategory::userLogs, "~/Library/Logs", true, CleanupSafety::safe),
            make("Library/Developer/Xcode/DerivedData", CleanupCategory::xcodeDerivedData, "Xcode DerivedData", false,
                CleanupSafety::caution),
            make("Library/Developer/CoreSimulator/Caches", CleanupCategory::simulatorCaches, "Simulator Caches", false,
                CleanupSafety::caution)));
}

TEST_F(StorageProfilesTest, FallsBackToTheStandardListWhereAModeIsNotAvailable)
{
    tree.add("home/.npm/_cacache/x\n");
    const auto standard = StorageProfiles::macOSDefaultLocations(tree.url("home/"));
    EXPECT_EQ(locations(CleanupScanMode::direct, false), standard);
    EXPECT_EQ(locations(CleanupScanMode::standard, true), standard);
    EXPECT_NE(locations(CleanupScanMode::aggressive, false), standard);
}

TEST_F(StorageProfilesTest, RebuildsTheStandardLocationsForAnAggressiveScan)
{
    const auto all = locations(CleanupScanMode::aggressive);
    const auto standard = locations(CleanupScanMode::standard);
    ASSERT_EQ(all.size(), 5U);
    for (std::size_t index = 0; index < standard.size(); ++index) {
        EXPECT_EQ(all[index].rootURL, standard[index].rootURL);
        EXPECT_EQ(all[index].category, standard[index].category);
        EXPECT_EQ(all[index].displayName, standard[index].displayName);
        EXPECT_EQ(all[index].safety, CleanupSafety::caution);
        EXPECT_EQ(all[index].minimumModificationAge, 0);
        EXPECT_FALSE(all[index].isSelectedByDefault);
        EXPECT_TRUE(all[index].includesHiddenFiles);
        EXPECT_TRUE(all[index].includesPackageDescendants);
    }
    EXPECT_EQ(all[4],
        ScanLocation({
            .rootURL = tree.url("home/Library/Developer/Xcode/iOS DeviceSupport/"),
            .category = CleanupCategory::xcodeDeviceSupport,
            .displayName = "Xcode iOS DeviceSupport",
            .safety = CleanupSafety::manualReview,
            .minimumModificationAge = kDay,
            .includesHiddenFiles = true,
            .includesPackageDescendants = true,
        }));
}

TEST_F(StorageProfilesTest, AddsTheCachesOfContainersAndSimulators)
{
    tree.add(R"(
home/Library/Containers/com.example.Notes/Data/Library/Caches/x
home/Library/Containers/com.example.Plain/Data/Library/
home/Library/Containers/com.example.File/Data/Library/Caches
home/Library/Containers/com.apple.Safari/Data/Library/Caches/x
home/Library/Containers/linked -> com.example.Notes
home/Library/Containers/file
"home/Library/Group Containers/group.com.example.shared/Library/Caches/x"
"home/Library/Group Containers/group.com.apple.notes/Library/Caches/x"
home/Library/Developer/CoreSimulator/Devices/ABCD/data/Library/Caches/x
)");
    const auto all = locations(CleanupScanMode::aggressive);
    EXPECT_THAT(roots(all, 5),
        ElementsAre("Library/Containers/com.example.Notes/Data/Library/Caches",
            "Library/Group Containers/group.com.example.shared/Library/Caches",
            "Library/Developer/CoreSimulator/Devices/ABCD/data/Library/Caches"));
    EXPECT_EQ(find(all, "App Container Cache: com.example.Notes"),
        ScanLocation({
            .rootURL = tree.url("home/Library/Containers/com.example.Notes/Data/Library/Caches/"),
            .category = CleanupCategory::appContainerCaches,
            .displayName = "App Container Cache: com.example.Notes",
            .safety = CleanupSafety::manualReview,
            .minimumModificationAge = 0,
            .includesHiddenFiles = true,
            .includesPackageDescendants = true,
            .appCacheContext = AppCacheContext::seed(AppCacheContainerKind::appContainer, "com.example.Notes"),
        }));
    EXPECT_EQ(find(all, "Group Container Cache: group.com.example.shared").appCacheContext,
        AppCacheContext::seed(AppCacheContainerKind::groupContainer, "group.com.example.shared"));
    const auto simulator = find(all, "Simulator Device Cache: ABCD");
    EXPECT_EQ(simulator.category, CleanupCategory::simulatorCaches);
    EXPECT_EQ(simulator.appCacheContext, std::nullopt);
}

TEST_F(StorageProfilesTest, DropsAContainerThatCannotBeLookedAt)
{
    tree.add("home/Library/Containers/com.example.Notes/Data/Library/Caches/x\n");
    files.fail({.call = TestSupport::FileManagerCall::resourceValues,
        .systemError = EACCES,
        .path = tree.path("home/Library/Containers/com.example.Notes")});
    EXPECT_EQ(locations(CleanupScanMode::aggressive).size(), 5U);
    EXPECT_EQ(files.failureCount(), 1U);
    files.fail({.call = TestSupport::FileManagerCall::contentsOfDirectory,
        .systemError = EACCES,
        .path = tree.path("home/Library/Containers")});
    EXPECT_EQ(locations(CleanupScanMode::aggressive).size(), 5U);
    EXPECT_EQ(files.failureCount(), 2U);
    EXPECT_EQ(locations(CleanupScanMode::aggressive).size(), 6U);
}

TEST_F(StorageProfilesTest, AddsTheTwelveDirectLocationsThatExistInOrder)
{
    const std::vector<std::string> paths{"Library/Developer/Xcode/Archives", "Library/Developer/Xcode/Products",
        ".cache", "Library/Caches/Homebrew", "Library/Caches/pip", "Library/Caches/pypoetry", ".npm/_cacache",
        ".pnpm-store", ".yarn/berry/cache", ".gradle/caches", ".cargo/registry/cache", ".cargo/git/checkouts"};
    const std::vector<std::string> names{"Xcode Archives", "Xcode Products", "~/.cache", "Homebrew Cache", "pip Cache",
        "Poetry Cache", "npm Cache", "pnpm Store", "Yarn Berry Cache", "Gradle Caches", "Cargo Registry Cache",
        "Cargo Git Checkouts"};
    for (const auto& path : paths) {
        tree.add("home/" + path + "/x\n");
    }
    const auto all = locations(CleanupScanMode::direct);
    EXPECT_EQ(roots(all, 5), paths);
    for (std::size_t index = 0; index < names.size(); ++index) {
        const auto& location = all.at(5 + index);
        EXPECT_EQ(location.displayName, names[index]);
        EXPECT_EQ(location.category,
            index == 0       ? CleanupCategory::buildArchives
                : index <= 2 ? CleanupCategory::developerToolCaches
                             : CleanupCategory::packageManagerCaches);
        EXPECT_EQ(location.safety, CleanupSafety::manualReview);
        EXPECT_EQ(location.minimumModificationAge, kDay);
        EXPECT_FALSE(location.isSelectedByDefault);
        EXPECT_TRUE(location.includesHiddenFiles && location.includesPackageDescendants);
        EXPECT_EQ(location.appCacheContext, std::nullopt);
    }
}

TEST_F(StorageProfilesTest, LeavesOutDirectLocationsThatAreMissingOrNoFolders)
{
    tree.add("home/.npm/_cacache\nhome/real/x\nhome/.pnpm-store -> real\nhome/.gradle/caches/x\n");
    EXPECT_THAT(roots(locations(CleanupScanMode::direct), 5), ElementsAre(".gradle/caches"));
}

TEST_F(StorageProfilesTest, LeavesOutDirectLocationsThatALinkLeadsOutOfTheHome)
{
    tree.add("home/.cargo -> ../outside\nhome/inside/berry/cache/x\nhome/.yarn -> inside\n");
    EXPECT_THAT(roots(locations(CleanupScanMode::direct), 5), ElementsAre(".yarn/berry/cache"));
}

TEST_F(StorageProfilesTest, LeavesOutDirectLocationsThatALinkLeadsToUserData)
{
    tree.add("home/.ssh/caches/x\nhome/.gradle -> .ssh\n");
    EXPECT_TRUE(roots(locations(CleanupScanMode::direct), 5).empty());
}

TEST_F(StorageProfilesTest, GivesWhatItHasAfterAStop)
{
    tree.add("home/Library/Containers/com.example.Notes/Data/Library/Caches/x\nhome/.gradle/caches/x\n");
    std::stop_source source;
    source.request_stop();
    EXPECT_EQ(locations(CleanupScanMode::direct, true, source.get_token()).size(), 5U);
    EXPECT_EQ(locations(CleanupScanMode::direct).size(), 7U);
}

TEST_F(StorageProfilesTest, ChoosesTheFamilyByTheHomesLayout)
{
    tree.add("plain/.cache/pip/x\nhome/.cache/pip/x\n");
    const auto choose = [&](std::string_view home) {
        return StorageProfiles::locations(CleanupScanMode::standard, tree.url(home), files, {}, true);
    };
    EXPECT_EQ(choose("home/"), StorageProfiles::macOSDefaultLocations(tree.url("home/")));
    const auto plain = choose("plain/");
    ASSERT_EQ(plain.size(), 1U);
    EXPECT_EQ(plain[0].rootURL, tree.url("plain/.cache/pip/"));
}

TEST_F(StorageProfilesTest, ListsAnApplicationsOwnSandbox)
{
    const auto all = StorageProfiles::appSandboxLocations(FileURL::folder("/box/Library/Caches"), FileURL("/box/tmp"));
    EXPECT_THAT(all,
        ElementsAre(ScanLocation({
                        .rootURL = FileURL::folder("/box/Library/Caches"),
                        .category = CleanupCategory::appSandboxCaches,
                        .displayName = "App Caches",
                        .isSelectedByDefault = true,
                        .safety = CleanupSafety::safe,
                        .minimumModificationAge = 0,
                        .includesHiddenFiles = true,
                        .includesPackageDescendants = true,
                    }),
            ScanLocation({
                .rootURL = FileURL::folder("/box/tmp"),
                .category = CleanupCategory::temporaryFiles,
                .displayName = "Temporary Files",
                .isSelectedByDefault = false,
                .safety = CleanupSafety::caution,
                .minimumModificationAge = kDay,
                .includesHiddenFiles = true,
                .includesPackageDescendants = true,
            })));
    EXPECT_EQ(StorageProfiles::appSandboxLocations(std::nullopt, FileURL("/box/tmp")).size(), 1U);
}

} // namespace
} // namespace CleanerCore
