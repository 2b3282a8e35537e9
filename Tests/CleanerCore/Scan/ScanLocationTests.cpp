#include "CleanerCore/Scan/ScanLocation.h"

#include <cmath>
#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

using Platform::FileURL;

double storedAge(double age)
{
    return ScanLocation({.rootURL = FileURL::folder("/a"), .minimumModificationAge = age}).minimumModificationAge;
}

} // namespace

TEST(ScanLocation, StandardisesItsRootAndIsNamedForIt)
{
    const ScanLocation location({.rootURL = FileURL::folder("/home/u/../u/.cache/")});
    EXPECT_EQ(location.rootURL, FileURL::folder("/home/u/.cache"));
    EXPECT_EQ(location.displayName, ".cache");
    EXPECT_EQ(ScanLocation({.rootURL = FileURL::folder("/a"), .displayName = "Caches"}).displayName, "Caches");
}

TEST(ScanLocation, StoresANegativeAgeAsZero)
{
    EXPECT_EQ(storedAge(-1), 0);
    EXPECT_EQ(storedAge(std::nan("")), 0);
    EXPECT_FALSE(std::signbit(storedAge(-0.0)));
    EXPECT_EQ(storedAge(86'400), 86'400);
}

TEST(ScanLocation, KeepsWhatItIsGiven)
{
    const ScanLocation location({
        .rootURL = FileURL::folder("/a"),
        .category = CleanupCategory::userLogs,
        .depth = ScanDepth::directoryItself,
        .isSelectedByDefault = true,
        .safety = CleanupSafety::caution,
        .includesHiddenFiles = true,
        .includesPackageDescendants = true,
        .appCacheContext = AppCacheContext{.containerIdentifier = "x"},
    });
    EXPECT_EQ(location.category, CleanupCategory::userLogs);
    EXPECT_EQ(location.depth, ScanDepth::directoryItself);
    EXPECT_TRUE(location.isSelectedByDefault);
    EXPECT_EQ(location.safety, CleanupSafety::caution);
    EXPECT_TRUE(location.includesHiddenFiles);
    EXPECT_TRUE(location.includesPackageDescendants);
    EXPECT_EQ(location.appCacheContext, AppCacheContext{.containerIdentifier = "x"});
}

} // namespace CleanerCore
