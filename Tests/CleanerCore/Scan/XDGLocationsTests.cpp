#include "CleanerCore/Safety/ComparisonForm.h"
#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "CleanerCore/Safety/SafePathPolicy.h"
#include "CleanerCore/Scan/StorageProfiles.h"
#include "CleanerCore/Scan/XDGLocationTable.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/Days.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace CleanerCore {
namespace {

using Platform::Environment;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::kDay;

/// A home with the XDG base directories. "~" in a layout stands for its folder.
class XDGLocationsTest : public testing::Test {
protected:
    using Variables = std::map<std::string, std::string, std::less<>>;

    std::vector<ScanLocation> locations(
        CleanupScanMode mode, Variables variables = {}, const std::stop_token& stop = {}) const
    {
        for (auto& [name, value] : variables) {
            if (value.starts_with('~')) {
                value = tree.path("home") + value.substr(1);
            }
        }
        return StorageProfiles::xdgLocations(mode, tree.url("home/"), files, Environment(variables), true, stop);
    }

    std::vector<std::string> roots(CleanupScanMode mode, const Variables& variables = {}) const
    {
        std::vector<std::string> paths;
        for (const auto& location : locations(mode, variables)) {
            paths.push_back(location.rootURL.path().substr(tree.path("home").size() + 1));
        }
        return paths;
    }

    ScanLocation find(CleanupScanMode mode, std::string_view displayName) const
    {
        const auto all = locations(mode);
        const auto found = std::find_if(
            all.begin(), all.end(), [&](const ScanLocation& one) { return one.displayName == displayName; });
        EXPECT_NE(found, all.end()) << displayName;
        return found == all.end() ? ScanLocation() : *found;
    }

    TestSupport::TemporaryTree tree{"home/\n"};
    Platform::PosixFileManager files;
};

/// Every root that the table can lead to, for profiles called "p".
std::vector<std::string> pathsOfRow(const XDGLocationRow& row)
{
    static constexpr std::string_view kBases[] = {".cache/", ".config/", ".local/share/", ""};
    std::vector<std::string> paths{std::string(kBases[static_cast<std::size_t>(row.base)])};
    std::string rest(row.folder);
    if (!row.path.empty()) {
        rest.append("/").append(row.path);
    }
    rest += '/';
    std::vector<std::string> alternatives(1);
    for (const char byte : rest) {
        if (byte == '|') {
            alternatives.emplace_back();
        } else if (byte == '/') {
            std::vector<std::string> longer;
            for (const auto& path : paths) {
                for (const auto& name : alternatives) {
                    longer.push_back(
                        path + (path.empty() || path.ends_with('/') ? "" : "/") + (name == "*" ? "p" : name));
                }
            }
            paths = longer;
            alternatives.assign(1, "");
        } else {
            alternatives.back() += byte;
        }
    }
    return paths;
}

/// Everything that the table knows.
void makeFullHome(TestSupport::TemporaryTree& tree)
{
    for (const auto& row : xdgLocationTable()) {
        for (const auto& path : pathsOfRow(row)) {
            tree.add("\"home/" + path + "/x\"\n");
        }
    }
    tree.add("home/.var/app/org.example.App/cache/x\nhome/snap/firefox/common/.cache/x\nhome/.pnpm-store/x\n");
}

TEST_F(XDGLocationsTest, ListsEveryRowOfAFullHomeInTheOrderOfTheTable)
{
    makeFullHome(tree);
    std::vector<std::string> expected;
    for (const auto level : {XDGLevel::safe, XDGLevel::caution, XDGLevel::manualReview}) {
        for (const auto& row : xdgLocationTable()) {
            if (row.level == level) {
                const auto paths = pathsOfRow(row);
                expected.insert(expected.end(), paths.begin(), paths.end());
            }
            if (level == XDGLevel::manualReview && &row == &xdgLocationTable().back()) {
                expected.emplace_back(".pnpm-store");
            }
        }
        if (level == XDGLevel::caution) {
            expected.emplace_back(".var/app/org.example.App/cache");
            expected.emplace_back("snap/firefox/common/.cache");
        }
    }
    EXPECT_EQ(roots(CleanupScanMode::direct), expected);
}

TEST_F(XDGLocationsTest, PutsNoLocationInsideAnother)
{
    makeFullHome(tree);
    for (const auto mode : Platform::allCases<CleanupScanMode>()) {
        const auto all = locations(mode);
        EXPECT_GT(all.size(), 40U);
        std::set<std::string> names;
        for (const auto& location : all) {
            EXPECT_TRUE(names.insert(location.displayName).second) << location.displayName;
            EXPECT_FALSE(NoTouchPathPolicy::isNoTouchPath(location.rootURL)) << location.rootURL.path();
            for (const auto& other : all) {
                if (&other != &location) {
                    EXPECT_FALSE(equalsOrIsInside(location.rootURL.path(), other.rootURL.path()))
                        << location.rootURL.path() << " in " << other.rootURL.path();
                }
            }
        }
    }
}

TEST_F(XDGLocationsTest, ListsOnlyWhatMayBeScanned)
{
    makeFullHome(tree);
    for (const auto& location : locations(CleanupScanMode::direct)) {
        EXPECT_TRUE(SafePathPolicy::validateScanRoot(location.rootURL, tree.url("home/"), files))
            << location.rootURL.path();
    }
}

TEST_F(XDGLocationsTest, GuardsAndSelectsByTheLevelOfARow)
{
    makeFullHome(tree);
    for (const auto& location : locations(CleanupScanMode::standard)) {
        EXPECT_EQ(location.safety, CleanupSafety::safe);
        EXPECT_EQ(location.minimumModificationAge, kDay);
        EXPECT_EQ(location.isSelectedByDefault,
            location.category == CleanupCategory::userCaches || location.category == CleanupCategory::userLogs)
            << location.displayName;
        EXPECT_FALSE(location.includesPackageDescendants);
        EXPECT_EQ(location.depth, ScanDepth::immediateChildren);
    }
    EXPECT_FALSE(find(CleanupScanMode::standard, "pip Cache").includesHiddenFiles);
    EXPECT_TRUE(find(CleanupScanMode::standard, "Cargo Git Checkouts").includesHiddenFiles);
    for (const auto& location : locations(CleanupScanMode::direct)) {
        EXPECT_FALSE(location.isSelectedByDefault);
        EXPECT_NE(location.safety, CleanupSafety::safe);
        EXPECT_TRUE(location.includesHiddenFiles && location.includesPackageDescendants) << location.displayName;
    }
    const auto shaders = find(CleanupScanMode::aggressive, "Mesa Shader Cache");
    EXPECT_EQ(shaders.safety, CleanupSafety::caution);
    EXPECT_EQ(shaders.minimumModificationAge, 0);
    const auto maven = find(CleanupScanMode::direct, "Maven Repository");
    EXPECT_EQ(maven.safety, CleanupSafety::manualReview);
    EXPECT_EQ(maven.minimumModificationAge, kDay);
}

TEST_F(XDGLocationsTest, NamesProfilesAndAlternatives)
{
    tree.add(R"(
home/.cache/google-chrome/Default/Cache/x
"home/.cache/google-chrome/Profile 1/Code Cache/x"
home/.cache/thumbnails/large/x
home/.cache/mozilla/firefox/abc.default/cache2/x
home/.cargo/registry/src/index/x
)");
    std::vector<std::string> names;
    for (const auto& location : locations(CleanupScanMode::standard)) {
        names.push_back(location.displayName);
    }
    EXPECT_THAT(names,
        ElementsAre("Thumbnails large", "Google Chrome Cache (Default)", "Google Chrome Code Cache (Profile 1)",
            "Firefox cache2 (abc.default)", "Cargo Registry Sources (index)"));
}

TEST_F(XDGLocationsTest, ListsOnlyRealFoldersOfTheHome)
{
    tree.add(R"(
home/.cache/pip
home/elsewhere/x
home/.cache/go-build -> ../elsewhere
home/.cache/google-chrome/linked -> Real
home/.cache/google-chrome/Real/Cache/x
outside/registry/cache/x
home/.cargo -> ../outside
)");
    EXPECT_THAT(roots(CleanupScanMode::direct), ElementsAre(".cache/google-chrome/Real/Cache"));
}

TEST_F(XDGLocationsTest, NeverOffersTheCacheDirectoryWhole)
{
    tree.add("home/.cache/unknown/x\nhome/moved/unknown/x\n");
    EXPECT_THAT(roots(CleanupScanMode::direct), IsEmpty());
    EXPECT_THAT(roots(CleanupScanMode::direct, {{"XDG_CACHE_HOME", "~/.cache/deep"}}), IsEmpty());
    tree.add("home/.cache/deep/x\n");
    EXPECT_THAT(roots(CleanupScanMode::direct, {{"XDG_CACHE_HOME", "~/.cache/deep"}}), IsEmpty());
}

TEST_F(XDGLocationsTest, TakesDirectEntriesThatOverlapNothingListed)
{
    tree.add(
        "home/.cargo/registry/cache/x\nhome/.pnpm-store/x\nhome/.gradle/caches/x\nhome/mycargo/registry/cache/x\n");
    EXPECT_THAT(roots(CleanupScanMode::direct), ElementsAre(".cargo/registry/cache", ".gradle/caches", ".pnpm-store"));
    EXPECT_EQ(find(CleanupScanMode::direct, "Cargo Registry Cache").safety, CleanupSafety::caution);
    EXPECT_THAT(roots(CleanupScanMode::direct, {{"CARGO_HOME", "~/mycargo"}}),
        ElementsAre("mycargo/registry/cache", ".gradle/caches", ".pnpm-store", ".cargo/registry/cache"));
}

TEST_F(XDGLocationsTest, FollowsTheVariablesOfTheOwners)
{
    tree.add(R"(
home/.cache/pip/x
home/wheels/x
home/.npm/_cacache/x
home/.npm/_logs/x
home/node/_cacache/x
home/gc/x
)");
    EXPECT_THAT(roots(CleanupScanMode::standard,
                    {{"PIP_CACHE_DIR", "~/wheels"}, {"npm_config_cache", "~/node/"}, {"GOCACHE", "~/gc"}}),
        ElementsAre("wheels", "node/_cacache", "gc"));
}

TEST_F(XDGLocationsTest, FollowsTheBaseDirectories)
{
    tree.add("home/c/pip/x\nhome/.cache/pip/x\nhome/g/Code/Cache/x\nhome/d/NuGet/http-cache/x\n");
    EXPECT_THAT(roots(CleanupScanMode::standard,
                    {{"XDG_CACHE_HOME", "~/c"}, {"XDG_CONFIG_HOME", "~/g"}, {"XDG_DATA_HOME", "~/d"}}),
        ElementsAre("g/Code/Cache", "c/pip", "d/NuGet/http-cache"));
}

TEST_F(XDGLocationsTest, IgnoresVariablesThatAreRelativeOutsideOrNotATool)
{
    tree.add("home/.cache/pip/x\nhome/c/pip/x\noutside/x\noutside/pip/x\nhome/.config/x\n");
    const std::vector<std::string> noTools{"c/pip", "./c", tree.path("outside"), "/", "", "~", "~/", "~/..", "~/.cache",
        "~/.config", "~/.local", "~/c/../.cache", "~/.cache/../../outside"};
    for (const auto& value : noTools) {
        EXPECT_THAT(roots(CleanupScanMode::standard, {{"PIP_CACHE_DIR", value}}), ElementsAre(".cache/pip")) << value;
    }
    const std::vector<std::string> noBases{"c", tree.path("outside"), "~", "~/../outside"};
    for (const auto& value : noBases) {
        EXPECT_THAT(roots(CleanupScanMode::standard, {{"XDG_CACHE_HOME", value}}), ElementsAre(".cache/pip")) << value;
    }
}

TEST_F(XDGLocationsTest, KeepsTheFirstOfTwoFoldersThatLieInEachOther)
{
    tree.add("home/tools/wheels/x\nhome/tools/x\n");
    EXPECT_THAT(roots(CleanupScanMode::standard, {{"PIP_CACHE_DIR", "~/tools/wheels"}, {"GOCACHE", "~/tools"}}),
        ElementsAre("tools/wheels"));
    EXPECT_THAT(roots(CleanupScanMode::standard, {{"PIP_CACHE_DIR", "~/tools"}, {"GOCACHE", "~/tools/wheels"}}),
        ElementsAre("tools"));
    EXPECT_THAT(
        roots(CleanupScanMode::standard, {{"PIP_CACHE_DIR", "~/tools"}, {"GOCACHE", "~/tools"}}), ElementsAre("tools"));
}

TEST_F(XDGLocationsTest, DropsRootsThatMayNotBeTouched)
{
    tree.add("home/.ssh/x\nhome/.cache/pip/x\n");
    EXPECT_THAT(roots(CleanupScanMode::standard, {{"PIP_CACHE_DIR", "~/.ssh"}}), IsEmpty());
    EXPECT_THAT(roots(CleanupScanMode::standard, {{"XDG_CACHE_HOME", "~/.gnupg"}}), IsEmpty());
}

TEST_F(XDGLocationsTest, SeedsTheContextOfFlatpaksAndSnaps)
{
    tree.add(R"(
home/.var/app/org.example.App/cache/x
home/.var/app/org.example.Plain/data/x
home/.var/app/linked -> org.example.App
home/snap/firefox/common/.cache/x
home/snap/firefox/12/.cache/x
)");
    EXPECT_THAT(roots(CleanupScanMode::standard), IsEmpty());
    const auto flatpak = find(CleanupScanMode::aggressive, "Flatpak App Cache: org.example.App");
    EXPECT_EQ(flatpak.category, CleanupCategory::appContainerCaches);
    EXPECT_EQ(flatpak.safety, CleanupSafety::manualReview);
    EXPECT_EQ(flatpak.minimumModificationAge, 0);
    EXPECT_EQ(flatpak.appCacheContext, AppCacheContext::seed(AppCacheContainerKind::appContainer, "org.example.App"));
    const auto snap = find(CleanupScanMode::aggressive, "Snap App Cache: firefox");
    EXPECT_EQ(snap.category, CleanupCategory::groupContainerCaches);
    EXPECT_EQ(snap.appCacheContext, AppCacheContext::seed(AppCacheContainerKind::groupContainer, "firefox"));
    EXPECT_EQ(locations(CleanupScanMode::aggressive).size(), 2U);
}

TEST_F(XDGLocationsTest, ResolvesALinkOnTheWayToTheHome)
{
    tree.add("home/.cache/pip/x\nhome/gc/x\nlinked -> home\n");
    const auto all = StorageProfiles::xdgLocations(CleanupScanMode::standard, tree.url("linked/"), files,
        Environment({{"GOCACHE", tree.path("linked/gc")}}), true);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].rootURL, tree.url("home/.cache/pip/"));
    EXPECT_EQ(all[1].rootURL, tree.url("home/gc/"));
}

TEST_F(XDGLocationsTest, FallsBackToTheStandardListWhereAModeIsNotAvailable)
{
    makeFullHome(tree);
    EXPECT_EQ(StorageProfiles::xdgLocations(CleanupScanMode::direct, tree.url("home/"), files, {}, false),
        locations(CleanupScanMode::standard));
}

TEST_F(XDGLocationsTest, GivesNothingMoreAfterAStop)
{
    makeFullHome(tree);
    std::stop_source source;
    source.request_stop();
    EXPECT_THAT(locations(CleanupScanMode::direct, {}, source.get_token()), IsEmpty());
}

TEST(XDGLocationTable, NamesASourceForEveryRow)
{
    for (const auto& row : xdgLocationTable()) {
        EXPECT_FALSE(row.source.empty()) << row.folder;
        EXPECT_FALSE(row.displayName.empty()) << row.folder;
        EXPECT_FALSE(row.folder.empty());
        EXPECT_FALSE(row.folder.find('*') != std::string_view::npos) << row.folder;
    }
}

} // namespace
} // namespace CleanerCore
