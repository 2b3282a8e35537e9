#include "CleanerCore/Cleaning/CleanupValidationSnapshot.h"

#include "CleanerCore/Safety/CleaningError.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/AlteringFileManager.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/ForwardingDirectoryEnumerator.h"
#include "Tests/Support/ForwardingFileManager.h"
#include "Tests/Support/SteppingFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

using CleanerCore::CleaningError;
using CleanerCore::CleaningFailure;
using CleanerCore::CleanupValidationOptions;
using CleanerCore::CleanupValidationSnapshot;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using Kind = CleaningError::Kind;

constexpr double kHour = 3600;

/// The item `item` of a tree, seen by the rules that each test sets.
class CleanupValidationSnapshotTest : public testing::Test {
protected:
    using Result = std::expected<CleanupValidationSnapshot, CleaningFailure>;

    [[nodiscard]] Result take(const Platform::FileManager& fileManager, const std::stop_token& stop = {}) const
    {
        return CleanupValidationSnapshot::take(m_tree.url("item"), m_options, fileManager, stop);
    }
    [[nodiscard]] Result take() const { return take(m_posix); }

    [[nodiscard]] CleaningFailure refused(Kind kind, std::string_view name) const
    {
        return CleaningFailure::refused(kind, m_tree.url(name)).error();
    }

    /// Hours before now.
    void expectLatest(double hours) const
    {
        const auto snapshot = take();
        ASSERT_TRUE(snapshot) << snapshot.error().reason;
        ASSERT_TRUE(snapshot->latestModificationDate);
        EXPECT_NEAR(m_tree.now().secondsSince(*snapshot->latestModificationDate), hours * kHour, 0.01);
        EXPECT_FALSE(snapshot->noTouchDescendantURL);
    }

    TestSupport::TemporaryTree m_tree;
    Platform::PosixFileManager m_posix;
    CleanupValidationOptions m_options{
        .includesHiddenFiles = true, .includesPackageDescendants = true, .maximumDescendantItems = 100};
};

TEST_F(CleanupValidationSnapshotTest, OfAFileIsItsDate)
{
    m_tree.add("item size=1 age=7h");
    expectLatest(7);
}

TEST_F(CleanupValidationSnapshotTest, OfAFolderIsTheNewestDateInIt)
{
    m_tree.add(R"(
item/ age=9h
    a/ age=8h
        b age=5h
    c age=7h
)");
    expectLatest(5);
}

TEST_F(CleanupValidationSnapshotTest, OfAFolderCountsItsOwnDate)
{
    m_tree.add("item/ age=4h\n    a age=5h");
    expectLatest(4);
}

TEST_F(CleanupValidationSnapshotTest, OfAFolderWithoutADateIsTheNewestDateInIt)
{
    m_tree.add("item/\n    x size=1 age=3h");
    const auto snapshot = take(TestSupport::AlteringFileManager(m_posix, TestSupport::removeDate));
    ASSERT_TRUE(snapshot && snapshot->latestModificationDate);
    EXPECT_NEAR(m_tree.now().secondsSince(*snapshot->latestModificationDate), 3 * kHour, 0.01);
}

TEST_F(CleanupValidationSnapshotTest, OfAFolderLeavesOutWhatHasNoDate)
{
    class DatelessItems final : public TestSupport::ForwardingDirectoryEnumerator {
    public:
        using ForwardingDirectoryEnumerator::ForwardingDirectoryEnumerator;
        const std::expected<Platform::ResourceValues, Platform::FileError>& resourceValues() override
        {
            m_values = ForwardingDirectoryEnumerator::resourceValues();
            if (m_values) {
                m_values->contentModificationDate.reset();
            }
            return m_values;
        }

    private:
        std::expected<Platform::ResourceValues, Platform::FileError> m_values;
    };
    class Dateless final : public TestSupport::ForwardingFileManager {
    public:
        using ForwardingFileManager::ForwardingFileManager;
        [[nodiscard]] std::unique_ptr<Platform::DirectoryEnumerator> enumerator(const Platform::ItemReference& folder,
            Platform::EnumerationOptions options, Platform::EnumerationErrorHandler onError) const override
        {
            return std::make_unique<DatelessItems>(
                ForwardingFileManager::enumerator(folder, options, std::move(onError)));
        }
    };
    m_tree.add("item/ age=4h\n    x size=1 age=3h");
    const auto snapshot = take(Dateless(m_posix));
    ASSERT_TRUE(snapshot && snapshot->latestModificationDate);
    EXPECT_NEAR(m_tree.now().secondsSince(*snapshot->latestModificationDate), 4 * kHour, 0.01);
}

TEST_F(CleanupValidationSnapshotTest, RefusesAnItemThatIsGone)
{
    EXPECT_EQ(take().error(), refused(Kind::unreadableAttributes, "item"));
}

TEST_F(CleanupValidationSnapshotTest, RefusesASymbolicLinkToAFolder)
{
    m_tree.add("real/\nitem -> real");
    EXPECT_EQ(take().error(), refused(Kind::symbolicLink, "item"));
}

TEST_F(CleanupValidationSnapshotTest, NeitherCountsNorFollowsTheDateOfALinkInside)
{
    m_tree.add("outside/ age=1h\n    new age=1h\nitem/ age=4h\n    link -> ../outside age=2h");
    expectLatest(4);
}

TEST_F(CleanupValidationSnapshotTest, LeavesHiddenItemsOutOfTheDateAsTheScanDid)
{
    m_tree.add("item/ age=9h\n    .hidden/ age=2h\n        file age=1h\n    seen age=8h");
    m_options.includesHiddenFiles = false;
    expectLatest(8);
    m_options.includesHiddenFiles = true;
    expectLatest(1);
}

TEST_F(CleanupValidationSnapshotTest, CountsAPackageButNotItsContentsAsTheScanDid)
{
    m_tree.add("item/ age=9h\n    X.APP/ age=6h\n        Contents/ age=3h\n            file age=2h");
    m_options.includesPackageDescendants = false;
    expectLatest(6);
    m_options.includesPackageDescendants = true;
    expectLatest(2);
}

TEST_F(CleanupValidationSnapshotTest, LeavesOutTheContentsOfAPackageThatIsItselfNotTheNewest)
{
    m_tree.add("item/ age=5h\n    X.app/ age=6h\n        file age=2h");
    m_options.includesPackageDescendants = false;
    expectLatest(5);
}

TEST_F(CleanupValidationSnapshotTest, TakesAFileWithThatExtensionForNoPackage)
{
    m_tree.add("item/ age=9h\n    X.app age=3h");
    m_options.includesPackageDescendants = false;
    expectLatest(3);
}

TEST_F(CleanupValidationSnapshotTest, FindsProtectedDataInHiddenFoldersAndPackagesThatTheScanDidNotSee)
{
    m_options.includesHiddenFiles = false;
    m_options.includesPackageDescendants = false;
    m_tree.add("item/\n    .hidden/deep/P.photoslibrary/");
    EXPECT_EQ(take()->noTouchDescendantURL->path(), m_tree.path("item/.hidden/deep/P.photoslibrary"));
    m_tree.remove("item");
    m_tree.add("item/\n    X.app/Contents/disk.img size=1");
    EXPECT_EQ(take()->noTouchDescendantURL->path(), m_tree.path("item/X.app/Contents/disk.img"));
}

TEST_F(CleanupValidationSnapshotTest, JudgesADescendantByTheFoldersAboveItToo)
{
    m_tree.add("item/Library/Mail/V10/");
    EXPECT_EQ(take()->noTouchDescendantURL->path(), m_tree.path("item/Library/Mail"));
}

TEST_F(CleanupValidationSnapshotTest, JudgesADescendantByTheFoldersAboveTheItemToo)
{
    m_tree.add("Library/Containers/com.apple.Safari/");
    const auto snapshot = CleanupValidationSnapshot::take(m_tree.url("Library/Containers/"), m_options, m_posix, {});
    EXPECT_EQ(snapshot->noTouchDescendantURL->path(), m_tree.path("Library/Containers/com.apple.Safari"));
}

TEST_F(CleanupValidationSnapshotTest, AllowsExactlyAsManyDescendantsAsTheLimit)
{
    m_tree.add("item/\n    .a\n    b/\n        c\n    d -> b\n    e age=1h");
    m_options.maximumDescendantItems = 5;
    expectLatest(1);
    m_options.maximumDescendantItems = 4;
    EXPECT_EQ(take().error(), refused(Kind::cleanupValidationItemLimitExceeded, "item"));
}

TEST_F(CleanupValidationSnapshotTest, ReportsProtectedDataBeforeTheLimit)
{
    m_tree.add("item/\n    disk.img size=1");
    m_options.maximumDescendantItems = 1;
    m_tree.add("item/\n    folder/\n        vm.img size=1");
    m_tree.remove("item/disk.img");
    const auto snapshot = take();
    ASSERT_TRUE(snapshot) << snapshot.error().reason;
    EXPECT_EQ(snapshot->noTouchDescendantURL->path(), m_tree.path("item/folder/vm.img"));
}

TEST_F(CleanupValidationSnapshotTest, RefusesAFolderThatCannotBeOpened)
{
    m_tree.add("item/\n    a");
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::makeEnumerator, .systemError = EACCES});
    EXPECT_EQ(take(faulty).error(), refused(Kind::unreadableAttributes, "item"));
}

TEST_F(CleanupValidationSnapshotTest, RefusesAFolderWithAnUnreadableFolderDeepInside)
{
    m_tree.add("item/\n    a/\n        b\n    c/\n        d");
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::listFolder, .systemError = EACCES, .path = m_tree.path("item/a")});
    EXPECT_EQ(take(faulty).error(), refused(Kind::unreadableAttributes, "item/a"));
    EXPECT_EQ(faulty.failureCount(), 1U);
}

TEST_F(CleanupValidationSnapshotTest, RefusesAFolderWhoseListingBreaksOff)
{
    m_tree.add("item/\n    a\n    b");
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::nextEntry, .systemError = EIO, .nth = 2});
    EXPECT_EQ(take(faulty).error(), refused(Kind::unreadableAttributes, "item"));
}

TEST_F(CleanupValidationSnapshotTest, RefusesAFolderWithAnEntryThatCannotBeLookedAt)
{
    m_tree.add("item/\n    a/\n        b");
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::entryResourceValues, .systemError = EIO, .path = m_tree.path("item/a/b")});
    EXPECT_EQ(take(faulty).error(), refused(Kind::unreadableAttributes, "item/a/b"));
}

TEST_F(CleanupValidationSnapshotTest, TakesAFolderThatCannotBeEnteredForBeingOnAnotherVolumeForProtected)
{
    m_tree.add("item/\n    a/\n        b");
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::listFolder, .systemError = EXDEV, .path = m_tree.path("item/a")});
    const auto snapshot = take(faulty);
    ASSERT_TRUE(snapshot) << snapshot.error().reason;
    EXPECT_EQ(snapshot->noTouchDescendantURL->path(), m_tree.path("item/a"));
}

TEST_F(CleanupValidationSnapshotTest, ReadsEachEntryOnce)
{
    m_tree.add("item/\n    a/\n        b count=50\n    c");
    const FaultyFileManager counting(m_posix);
    ASSERT_TRUE(take(counting));
    EXPECT_EQ(counting.count(FileManagerCall::entryResourceValues), 52U);
    EXPECT_EQ(counting.count(FileManagerCall::resourceValues), 1U);
}

TEST_F(CleanupValidationSnapshotTest, LooksAtNothingAfterAStop)
{
    m_tree.add("item/\n    a");
    std::stop_source source;
    source.request_stop();
    const FaultyFileManager counting(m_posix);
    EXPECT_EQ(take(counting, source.get_token()).error(), CleaningFailure::stopped().error());
    EXPECT_EQ(counting.count(FileManagerCall::resourceValues), 0U);
}

TEST_F(CleanupValidationSnapshotTest, StopsBetweenTwoEntries)
{
    m_tree.add("item/\n    a count=10");
    std::stop_source source;
    // The look at the folder, the enumerator, and the third of its entries.
    const TestSupport::SteppingFileManager stepping(m_posix, [&](std::size_t step, FileManagerCall) {
        if (step == 5) {
            source.request_stop();
        }
    });
    EXPECT_EQ(take(stepping, source.get_token()).error(), CleaningFailure::stopped().error());
    EXPECT_EQ(stepping.count(), 5U);
}

} // namespace
