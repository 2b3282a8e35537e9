#include "CleanerCore/Scan/CustomFolderLocation.h"

#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/Days.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace CleanerCore {
namespace {

using FolderErrorKind = CustomScanFolderError::Kind;

class CustomFolderLocationTest : public testing::Test {
protected:
    std::expected<ScanLocation, CustomScanFolderError> make(std::string_view path) const
    {
        return customFolderLocation(tree.url(path), "Mine", files, tree.url("home/"));
    }

    void expectRefused(std::string_view path, FolderErrorKind kind) const
    {
        const auto made = make(path);
        ASSERT_FALSE(made.has_value()) << path;
        EXPECT_EQ(made.error(), (CustomScanFolderError{kind, tree.path(path)}));
    }

    TestSupport::TemporaryTree tree{"home/Projects/x\nhome/.ssh/id\nhome/file\nhome/linked -> Projects\n"};
    Platform::PosixFileManager files;
};

TEST_F(CustomFolderLocationTest, IsReviewedByHandAndNeverSelected)
{
    const auto made = make("home/Projects/");
    ASSERT_TRUE(made.has_value());
    EXPECT_EQ(*made,
        ScanLocation({
            .rootURL = tree.url("home/Projects/"),
            .category = CleanupCategory::customFolder,
            .displayName = "Mine",
            .depth = ScanDepth::immediateChildren,
            .isSelectedByDefault = false,
            .safety = CleanupSafety::manualReview,
            .minimumModificationAge = TestSupport::kDay,
            .includesHiddenFiles = false,
            .includesPackageDescendants = false,
        }));
}

TEST_F(CustomFolderLocationTest, RefusesAFileAndWhatIsMissing)
{
    expectRefused("home/file", FolderErrorKind::notDirectory);
    expectRefused("home/nothing", FolderErrorKind::notDirectory);
}

TEST_F(CustomFolderLocationTest, RefusesTheHomeUserDataLinksAndTheSystem)
{
    expectRefused("home/", FolderErrorKind::unsafeRoot);
    expectRefused("home/.ssh/", FolderErrorKind::unsafeRoot);
    expectRefused("home/linked", FolderErrorKind::unsafeRoot);
    for (const std::string_view path : {"/", "/usr", "/etc", "/tmp", "/proc/self"}) {
        const auto made = customFolderLocation(Platform::FileURL::folder(path), "x", files, tree.url("home/"));
        ASSERT_FALSE(made.has_value()) << path;
        EXPECT_EQ(made.error().kind, FolderErrorKind::unsafeRoot) << path;
    }
}

TEST_F(CustomFolderLocationTest, RefusesTheRootOfAVolumeWhereverItIsMounted)
{
    TestSupport::inMountNamespace([this] {
        TestSupport::mountTemporaryFileSystem(tree.path("home/Projects"));
        expectRefused("home/Projects/", FolderErrorKind::unsafeRoot);
    });
    EXPECT_TRUE(make("home/Projects/"));
}

TEST_F(CustomFolderLocationTest, RefusesWhatCannotBeLookedAt)
{
    TestSupport::FaultyFileManager faulty(files);
    // The rules about links look at it twice before.
    faulty.fail({.call = TestSupport::FileManagerCall::resourceValues,
        .systemError = EIO,
        .nth = 3,
        .path = tree.path("home/Projects")});
    const auto allowed = validateCustomFolder(tree.url("home/Projects/"), faulty, tree.url("home/"));
    ASSERT_FALSE(allowed.has_value());
    EXPECT_EQ(allowed.error().kind, FolderErrorKind::unsafeRoot);
    EXPECT_EQ(faulty.failureCount(), 1);
}

TEST(CustomScanFolderError, HasTheWordsOfItsKindAndThePath)
{
    EXPECT_EQ((CustomScanFolderError{FolderErrorKind::notDirectory, "/a\xFF"}.errorDescription()),
        "Selected item is not an accessible folder: /a\\xFF");
    EXPECT_EQ((CustomScanFolderError{FolderErrorKind::unsafeRoot, "/a"}.errorDescription()),
        "Selected folder is too broad or protected for cleanup scanning: /a");
}

} // namespace
} // namespace CleanerCore
