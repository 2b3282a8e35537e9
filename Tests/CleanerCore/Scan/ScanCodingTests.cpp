#include "CleanerCore/Scan/ScanCoding.h"

#include <gtest/gtest.h>
#include <limits>

namespace CleanerCore {

namespace {

using Platform::Date;
using Platform::decodeJSON;
using Platform::encodeJSON;
using Platform::FileURL;

AppCacheContext fullContext()
{
    return {
        .containerKind = AppCacheContainerKind::groupContainer,
        .containerIdentifier = "group.com.example.app",
        .possibleBundleIdentifier = "com.example.app",
        .matchedRunningBundleIdentifier = "com.example.app",
        .matchedRunningDisplayName = "Example",
        .runningState = AppCacheRunningState::running,
        .identitySource = AppCacheIdentitySource::runningAppExactMatch,
    };
}

CleanupCandidate fullCandidate()
{
    return CleanupCandidate({
        .url = FileURL::folder("/home/u/.cache/a b"),
        .displayName = "A",
        .category = CleanupCategory::groupContainerCaches,
        .sizeBytes = 1'234'567'890'123,
        .lastModified = Date{785'000'000.5},
        .resourceIdentity = FileResourceIdentity{.fileResourceIdentifier = "0a",
            .volumeIdentifier = "vol",
            .isDirectory = true,
            .fileSize = 1,
            .totalFileAllocatedSize = 2,
            .systemFileNumber = std::numeric_limits<std::uint64_t>::max(),
            .systemNumber = 4,
            .creationDate = Date{-5},
            .modificationDate = Date{6}},
        .isSelectedByDefault = true,
        .safety = CleanupSafety::caution,
        .requiresManualReviewBySource = true,
        .appCacheContext = fullContext(),
    });
}

constexpr std::string_view kFullCandidate = R"({
  "appCacheContext" : {
    "containerIdentifier" : "group.com.example.app",
    "containerKind" : "groupContainer",
    "identitySource" : "runningAppExactMatch",
    "matchedRunningBundleIdentifier" : "com.example.app",
    "matchedRunningDisplayName" : "Example",
    "possibleBundleIdentifier" : "com.example.app",
    "runningState" : "running"
  },
  "category" : "groupContainerCaches",
  "displayName" : "A",
  "id" : "groupContainerCaches:\/home\/u\/.cache\/a b",
  "isSelectedByDefault" : true,
  "lastModified" : 785000000.5,
  "requiresManualReviewBySource" : true,
  "resourceIdentity" : {
    "creationDate" : -5,
    "fileResourceIdentifier" : "0a",
    "fileSize" : 1,
    "isDirectory" : true,
    "modificationDate" : 6,
    "systemFileNumber" : 18446744073709551615,
    "systemNumber" : 4,
    "totalFileAllocatedSize" : 2,
    "volumeIdentifier" : "vol"
  },
  "safety" : "caution",
  "sizeBytes" : 1234567890123,
  "url" : "file:\/\/\/home\/u\/.cache\/a%20b\/"
})";

constexpr std::string_view kSmallestCandidate = R"({"id":"stored:id","url":"file:///a/b","displayName":"b",
    "category":"userCaches","sizeBytes":-5,"isSelectedByDefault":false,"safety":"safe"})";

template <typename Record>
void expectRoundTrip(const Record& record)
{
    const auto text = encodeJSON(record);
    ASSERT_TRUE(text) << text.error().localizedDescription();
    const auto read = decodeJSON<Record>(std::string_view(*text));
    ASSERT_TRUE(read) << read.error().localizedDescription();
    EXPECT_EQ(*read, record);
}

/// Each key of `object` in turn is taken out: reading has to fail exactly for those that are not in `optionalKeys`.
template <typename Record>
void expectOptionalKeys(const Record& record, const std::vector<std::string_view>& optionalKeys)
{
    const auto text = encodeJSON(record);
    ASSERT_TRUE(text);
    const auto whole = Platform::JSONReader::parse(*text);
    ASSERT_TRUE(whole);
    const auto* const members = whole->object();
    ASSERT_NE(members, nullptr);
    std::vector<std::string_view> found;
    for (std::size_t index = 0; index < members->size(); ++index) {
        auto rest = *members;
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(index));
        if (decodeJSON<Record>(Platform::JSONValue(rest))) {
            found.push_back((*members)[index].key);
        }
    }
    EXPECT_EQ(found, optionalKeys);
}

} // namespace

TEST(ScanCoding, WritesACandidateUnderTheNamesOfItsFields)
{
    EXPECT_EQ(encodeJSON(fullCandidate()), kFullCandidate);
}

TEST(ScanCoding, ReadsBackEveryRecord)
{
    expectRoundTrip(fullCandidate());
    expectRoundTrip(CleanupCandidate({.url = FileURL("/caf\xE9/b"), .displayName = "b"}));
    expectRoundTrip(SkippedItem{FileURL("/a"), "Recently modified"});
    expectRoundTrip(fullContext());
    expectRoundTrip(AppCacheContext{.containerIdentifier = "com.example"});
    expectRoundTrip(FileResourceIdentity{});
    expectRoundTrip(ScanLocation({
        .rootURL = FileURL::folder("/home/u/.cache"),
        .category = CleanupCategory::userLogs,
        .depth = ScanDepth::directoryItself,
        .isSelectedByDefault = true,
        .safety = CleanupSafety::safe,
        .minimumModificationAge = 86'400.5,
        .includesHiddenFiles = true,
        .includesPackageDescendants = true,
        .appCacheContext = fullContext(),
    }));
    expectRoundTrip(ScanReport(Date{7}, {fullCandidate()}, {SkippedItem{FileURL("/a"), "x"}}));
    expectRoundTrip(StorageScanProgress::empty());
    expectRoundTrip(
        StorageScanProgress{.currentURL = FileURL("/a"), .totalItemsInCurrentLocation = 3, .fractionCompleted = 0.5});
}

TEST(ScanCoding, AsksForEveryKeyThatIsNotOptional)
{
    expectOptionalKeys(
        fullCandidate(), {"appCacheContext", "lastModified", "requiresManualReviewBySource", "resourceIdentity"});
    expectOptionalKeys(SkippedItem{FileURL("/a"), "x"}, {});
    expectOptionalKeys(ScanReport(), {});
    expectOptionalKeys(ScanLocation({.rootURL = FileURL(), .appCacheContext = fullContext()}), {"appCacheContext"});
    expectOptionalKeys(
        fullContext(), {"matchedRunningBundleIdentifier", "matchedRunningDisplayName", "possibleBundleIdentifier"});
    expectOptionalKeys(StorageScanProgress{.currentURL = FileURL("/a"), .totalItemsInCurrentLocation = 3},
        {"currentURL", "totalItemsInCurrentLocation"});
}

TEST(ScanCoding, ReadsACandidateOfAnOlderFile)
{
    const auto candidate = decodeJSON<CleanupCandidate>(kSmallestCandidate);
    ASSERT_TRUE(candidate) << candidate.error().localizedDescription();
    EXPECT_FALSE(candidate->requiresManualReviewBySource);
    EXPECT_FALSE(candidate->appCacheContext);
    EXPECT_FALSE(candidate->lastModified);
    EXPECT_FALSE(candidate->resourceIdentity);
}

TEST(ScanCoding, TakesTheIdOfACandidateAsItIsStored)
{
    EXPECT_EQ(decodeJSON<CleanupCandidate>(kSmallestCandidate)->id, "stored:id");
}

TEST(ScanCoding, KeepsTheLimitsOfTheRecords)
{
    EXPECT_EQ(decodeJSON<CleanupCandidate>(kSmallestCandidate)->sizeBytes, 0);

    const auto location = decodeJSON<ScanLocation>(
        R"({"rootURL":"file:///a/../b/","category":"userLogs","displayName":"","depth":"immediateChildren",
        "isSelectedByDefault":false,"safety":"safe","minimumModificationAge":-1,"includesHiddenFiles":false,
        "includesPackageDescendants":false})");
    ASSERT_TRUE(location);
    EXPECT_EQ(location->minimumModificationAge, 0);
    EXPECT_EQ(location->rootURL, FileURL::folder("/b"));
    EXPECT_EQ(location->displayName, "");

    const auto progress = decodeJSON<StorageScanProgress>(
        R"({"completedLocations":-1,"totalLocations":2,"completedItems":-3,"completedItemsInCurrentLocation":0,
        "foundCandidates":0,"skippedItems":0,"fractionCompleted":1.5})");
    ASSERT_TRUE(progress);
    EXPECT_EQ(*progress, (StorageScanProgress{.totalLocations = 2, .fractionCompleted = 1}));
}

TEST(ScanCoding, KeepsTheStoredOrderOfAReport)
{
    ScanReport unsorted;
    for (const std::int64_t size : {1, 3, 2}) {
        unsorted.candidates.push_back(CleanupCandidate({.url = FileURL("/a"), .sizeBytes = size}));
    }
    expectRoundTrip(unsorted);
    EXPECT_NE(ScanReport(Date{}, unsorted.candidates, {}), unsorted);
}

TEST(ScanCoding, KeepsAPathThatIsNotUTF8AndShowsItsNameEscaped)
{
    const auto text = encodeJSON(CleanupCandidate({.url = FileURL("/a/caf\xE9")}));
    ASSERT_TRUE(text);
    const auto read = decodeJSON<CleanupCandidate>(std::string_view(*text));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->url.path(), "/a/caf\xE9");
    EXPECT_EQ(read->id, "customFolder:/a/caf//xE9");
    EXPECT_EQ(read->displayName, "caf\\xE9");
}

TEST(ScanCoding, SaysWhichFieldOfWhichCandidateIsWrong)
{
    const auto report =
        decodeJSON<ScanReport>(R"({"scannedAt":0,"skippedItems":[],"candidates":[{"id":"a","url":"b"}]})");
    ASSERT_FALSE(report);
    EXPECT_EQ(report.error().localizedDescription(), "candidates[0].url: expected a file URL, found the string \"b\"");
}

} // namespace CleanerCore
