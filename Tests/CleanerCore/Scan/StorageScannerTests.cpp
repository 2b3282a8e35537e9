#include "Tests/CleanerCore/Scan/ScanFixture.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <cerrno>
#include <set>
#include <sys/stat.h>

namespace {

using namespace ScanTests;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;

using StorageScanner = StorageScannerTest;

TEST_F(StorageScanner, MakesACandidateOfAnOldFolder)
{
    m_tree.add(R"(
        home/Caches/com.example.app/deep/data size=10000 age=9d
        home/Caches/com.example.app/more size=5000 age=5d
    )");
    const auto report = scan();
    ASSERT_THAT(report.candidates, SizeIs(1));
    const auto& candidate = report.candidates[0];
    EXPECT_EQ(candidate.id, "userCaches:" + m_tree.path("home/Caches/com.example.app"));
    EXPECT_EQ(candidate.url, m_tree.url("home/Caches/com.example.app/"));
    EXPECT_EQ(candidate.displayName, "com.example.app");
    EXPECT_EQ(candidate.category, CleanupCategory::userCaches);
    EXPECT_TRUE(candidate.isSelectedByDefault);
    EXPECT_EQ(candidate.safety, CleanupSafety::safe);
    EXPECT_FALSE(candidate.requiresManualReviewBySource);
    const auto allocated = [&](const char* path) {
        return m_posix.resourceValues(m_tree.url(path))->totalFileAllocatedSize.value();
    };
    EXPECT_EQ(candidate.sizeBytes,
        allocated("home/Caches/com.example.app/deep/data") + allocated("home/Caches/com.example.app/more"));
    EXPECT_NEAR(m_tree.now().secondsSince(*candidate.lastModified), 5 * kDay, 0.001);
    const auto identity = CleanerCore::FileResourceIdentity::captureIfAvailable(candidate.url, m_posix);
    ASSERT_TRUE(identity.has_value());
    EXPECT_EQ(candidate.resourceIdentity, identity);
    EXPECT_TRUE(identity->fileResourceIdentifier && identity->systemFileNumber && identity->creationDate);
    EXPECT_THAT(report.skippedItems, IsEmpty());
}

TEST_F(StorageScanner, SkipsAChildThatIsALinkToALargeFolder)
{
    m_tree.add(R"(
        large/data size=1M
        home/Caches/link -> ../../large
    )");
    const auto report = scan();
    EXPECT_THAT(report.candidates, IsEmpty());
    ASSERT_THAT(report.skippedItems, SizeIs(1));
    EXPECT_EQ(reason(report, "link"), "Symbolic links are skipped for safety");
}

TEST_F(StorageScanner, SkipsAYoungFileWithoutAnInventory)
{
    m_tree.add("home/Caches/young size=10 age=1h");
    FaultyFileManager counting(m_posix);
    m_fileManager = &counting;
    const auto report = scan();
    EXPECT_EQ(reason(report, "young"), "Recently modified");
    EXPECT_EQ(counting.count(FileManagerCall::makeEnumerator), 1U) << "only the root is listed";
}

TEST_F(StorageScanner, ShowsProtectedContentsBeforeTheAgeOfAYoungFolder)
{
    m_tree.add(R"(
        home/Caches/young/ age=1h
            deep/Photos.photoslibrary/
    )");
    EXPECT_EQ(reason(scan(), "young"), "Contains protected user data");
}

TEST_F(StorageScanner, ShowsTheItemLimitBeforeTheAgeOfAYoungFolder)
{
    m_tree.add(R"(
        home/Caches/young/ age=1h
            part count=6 size=1
    )");
    m_configuration.maximumInventoryItemsPerCandidate = 5;
    EXPECT_EQ(reason(scan(), "young"), "Folder inventory limit exceeded");
}

TEST_F(StorageScanner, ShowsProtectedContentsFoundBehindAYoungFile)
{
    m_tree.add(R"(
        home/Caches/mixed/a-young size=10 age=1h
        home/Caches/mixed/sub/sub/disk.IMG size=10
    )");
    EXPECT_EQ(reason(scan(), "mixed"), "Contains protected user data");
}

TEST_F(StorageScanner, SkipsAFolderWithOneYoungFileDeepInside)
{
    m_tree.add(R"(
        home/Caches/old/data size=10000
        home/Caches/old/a/b/c/young size=5000 age=23h
    )");
    m_tree.setAge("home/Caches/old/a/b/c", 30 * kDay);
    EXPECT_EQ(reason(scan(), "old"), "Recently modified");
}

TEST_F(StorageScanner, CountsYoungFilesWhereTheLocationHasNoAge)
{
    m_tree.add(R"(
        home/Caches/old/data size=8192
        home/Caches/old/a/young size=4096 age=1h
    )");
    const auto report = scan(LocationRules{.minimumModificationAge = 0});
    ASSERT_THAT(report.candidates, SizeIs(1));
    EXPECT_EQ(report.candidates[0].sizeBytes, 8192 + 4096);
    EXPECT_LT(m_tree.now().secondsSince(*report.candidates[0].lastModified), 3601);
}

TEST_F(StorageScanner, TakesAnItemThatIsExactlyAsOldAsAsked)
{
    m_tree.add(R"(
        home/Caches/exact size=10 age=1d
        home/Caches/younger size=10 age=86399s
        home/Caches/future size=10 age=-5d
    )");
    const auto report = scan();
    EXPECT_THAT(candidateNames(report), ElementsAre("exact"));
    EXPECT_EQ(reason(report, "younger"), "Recently modified");
    EXPECT_EQ(reason(report, "future"), "Recently modified");
}

TEST_F(StorageScanner, AllowsExactlyTheLimitOfItems)
{
    m_tree.add(R"(
        home/Caches/exact/sub/
            part count=499 size=1
        home/Caches/over/sub/
            part count=500 size=1
    )");
    m_configuration.maximumInventoryItemsPerCandidate = 500;
    const auto report = scan();
    EXPECT_THAT(candidateNames(report), ElementsAre("exact"));
    EXPECT_EQ(reason(report, "over"), "Folder inventory limit exceeded");
}

TEST_F(StorageScanner, JudgesFoldersOfAHundredThousandItemsByDefault)
{
    EXPECT_EQ(CleanerCore::StorageScanner::Configuration::standard().maximumInventoryItemsPerCandidate, 100'000);
    EXPECT_EQ(CleanerCore::StorageScanner::Configuration::standard().inventoryProgressItemInterval, 128);
    const auto raised = CleanerCore::StorageScanner::Configuration{.maximumInventoryItemsPerCandidate = 0,
        .inventoryProgressItemInterval = -4}
                            .normalized();
    EXPECT_EQ(raised.maximumInventoryItemsPerCandidate, 1);
    EXPECT_EQ(raised.inventoryProgressItemInterval, 1);
}

TEST_F(StorageScanner, CountsFoldersAndLinksAgainstTheLimit)
{
    m_tree.add(R"(
        home/Caches/mixed/a/
        home/Caches/mixed/link -> a
        home/Caches/mixed/data size=10
    )");
    m_configuration.maximumInventoryItemsPerCandidate = 2;
    EXPECT_EQ(reason(scan(), "mixed"), "Folder inventory limit exceeded");
}

TEST_F(StorageScanner, SkipsWhatHoldsNothing)
{
    m_tree.add(R"(
        home/Caches/empty/
        home/Caches/links/one -> ..
        home/Caches/links/two -> missing
        home/Caches/zero size=0
        home/Caches/folders/a/b/
    )");
    const auto report = scan();
    EXPECT_THAT(report.candidates, IsEmpty());
    for (const char* name : {"empty", "links", "zero", "folders"}) {
        EXPECT_EQ(reason(report, name), "Empty item") << name;
    }
}

TEST_F(StorageScanner, LeavesHiddenItemsOutUnlessIncluded)
{
    m_tree.add(R"(
        home/Caches/.hidden size=4096
        home/Caches/folder/.inside size=4096
        home/Caches/folder/.dir/data size=4096
        home/Caches/folder/shown size=4096
    )");
    const auto without = scan();
    EXPECT_THAT(candidateNames(without), ElementsAre("folder"));
    EXPECT_EQ(without.candidates[0].sizeBytes, 4096);
    EXPECT_THAT(without.skippedItems, IsEmpty());
    const auto with = scan(LocationRules{.includesHiddenFiles = true});
    EXPECT_THAT(candidateNames(with), ElementsAre("folder", ".hidden"));
    EXPECT_EQ(with.candidates[0].sizeBytes, 3 * 4096);
}

TEST_F(StorageScanner, LeavesPackageContentsOutUnlessIncluded)
{
    m_tree.add(R"(
        home/Caches/folder/Tool.app/Contents/data size=4096
        home/Caches/folder/plain size=4096
    )");
    EXPECT_EQ(scan().candidates.at(0).sizeBytes, 4096);
    EXPECT_EQ(scan(LocationRules{.includesPackageDescendants = true}).candidates.at(0).sizeBytes, 2 * 4096);
}

TEST_F(StorageScanner, TreatsAPackageAmongTheChildrenAsAnOrdinaryChild)
{
    m_tree.add("home/Caches/Tool.app/Contents/data size=4096");
    EXPECT_THAT(candidateNames(scan()), ElementsAre("Tool.app"));
}

/// Takes the dates away from everything below the roots.
class DatelessFileManager final : public TestSupport::ForwardingFileManager {
public:
    using ForwardingFileManager::ForwardingFileManager;
    [[nodiscard]] std::expected<Platform::ResourceValues, Platform::FileError> resourceValues(
        const Platform::ItemReference& item) const override
    {
        auto values = inner().resourceValues(item);
        if (values) {
            values->contentModificationDate.reset();
        }
        return values;
    }
};

TEST_F(StorageScanner, TreatsAFileWithoutADateAsOld)
{
    m_tree.add("home/Caches/dateless size=10 age=1m");
    const DatelessFileManager dateless(m_posix);
    m_fileManager = &dateless;
    const auto report = scan();
    ASSERT_THAT(report.candidates, SizeIs(1));
    EXPECT_FALSE(report.candidates[0].lastModified.has_value());
}

TEST_F(StorageScanner, ReportsARootOfDepthDirectoryItselfOnce)
{
    m_tree.add("home/Caches/data size=10");
    std::vector<StorageScanProgress> calls;
    const auto report = scan(LocationRules{.depth = ScanDepth::directoryItself},
        [&](const StorageScanProgress& call) { calls.push_back(call); });
    EXPECT_THAT(report.candidates, IsEmpty());
    ASSERT_THAT(report.skippedItems, SizeIs(1));
    EXPECT_EQ(report.skippedItems[0].url, m_tree.url("home/Caches/"));
    EXPECT_EQ(report.skippedItems[0].reason, "Scan root itself is not a cleanup candidate");
    ASSERT_THAT(calls, SizeIs(4));
    EXPECT_EQ(calls[2].completedItems, 1);
    EXPECT_EQ(calls[2].completedItemsInCurrentLocation, 1);
    EXPECT_EQ(calls[2].totalItemsInCurrentLocation, 1);
}

TEST_F(StorageScanner, NeverOpensASpecialFile)
{
    // Opening a FIFO that nobody writes to would wait for ever.
    m_tree.add(R"(
        home/Caches/pipe fifo
        home/Caches/folder/pipe fifo
        home/Caches/folder/door socket
        home/Caches/folder/data size=4096
    )");
    const auto report = scan();
    EXPECT_THAT(candidateNames(report), ElementsAre("folder"));
    EXPECT_EQ(report.candidates[0].sizeBytes, 4096);
    EXPECT_EQ(reason(report, "pipe"), "Empty item");
}

TEST_F(StorageScanner, CountsASparseFileByWhatItOccupies)
{
    m_tree.add(R"(
        home/Caches/folder/sparse size=1G sparse
        home/Caches/folder/data size=4096
    )");
    EXPECT_LT(scan().candidates.at(0).sizeBytes, 1 << 20);
}

TEST_F(StorageScanner, GivesHostileNamesAsTheyAre)
{
    m_tree.add(R"(
        home/Caches/"not \xFF UTF-8" size=10
        home/Caches/"line\nbreak" size=10
        home/Caches/"x"*255 size=10
    )");
    const auto report = scan();
    EXPECT_THAT(candidateNames(report), UnorderedElementsAre("not \xFF UTF-8", "line\nbreak", std::string(255, 'x')));
    std::set<std::string> ids;
    for (const auto& candidate : report.candidates) {
        ids.insert(candidate.id);
    }
    EXPECT_THAT(ids, testing::Contains("userCaches:" + m_tree.path("home/Caches") + "/not //xFF UTF-8"));
    EXPECT_THAT(ids, SizeIs(3));
}

TEST_F(StorageScanner, ChangesNothingOnDisk)
{
    m_tree.add(R"(
        home/Caches/folder/sub/data size=10
        home/Caches/file size=10
    )");
    const auto times = [&](const char* path) {
        struct stat found{};
        EXPECT_EQ(stat(m_tree.path(path).c_str(), &found), 0);
        return std::vector{found.st_atim.tv_sec, found.st_atim.tv_nsec, found.st_mtim.tv_sec, found.st_mtim.tv_nsec,
            found.st_ctim.tv_sec, found.st_ctim.tv_nsec};
    };
    const std::vector paths{"home/Caches", "home/Caches/folder", "home/Caches/folder/sub",
        "home/Caches/folder/sub/data", "home/Caches/file"};
    std::vector<std::vector<long>> before;
    for (const char* path : paths) {
        before.push_back(times(path));
    }
    EXPECT_THAT(scan().candidates, SizeIs(2));
    for (std::size_t index = 0; index < paths.size(); ++index) {
        EXPECT_EQ(times(paths[index]), before[index]) << paths[index];
    }
}

TEST_F(StorageScanner, LooksAtEachEntryOnceAndAtIdentitiesOfCandidatesOnly)
{
    m_tree.add(R"(
        home/Caches/kept/sub/data size=10
        home/Caches/young size=10 age=1h
        home/Caches/empty/
    )");
    FaultyFileManager counting(m_posix);
    m_fileManager = &counting;
    EXPECT_THAT(scan().candidates, SizeIs(1));
    EXPECT_EQ(counting.count(FileManagerCall::entryResourceValues), 2U) << "sub and data";
    EXPECT_EQ(counting.count(FileManagerCall::identityValues), 1U);
    EXPECT_EQ(counting.count(FileManagerCall::attributes), 1U);
}

TEST_F(StorageScanner, WalksTenThousandLevelsDown)
{
    m_tree.add(R"(
        home/Caches/deep/ levels=10000
            data size=4096
    )");
    const auto report = scan();
    EXPECT_THAT(candidateNames(report), ElementsAre("deep"));
    EXPECT_EQ(report.candidates[0].sizeBytes, 4096);
}

} // namespace
