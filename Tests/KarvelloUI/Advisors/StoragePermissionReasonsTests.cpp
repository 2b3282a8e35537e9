#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Safety/SymbolicLinkComponents.h"
#include "CleanerCore/Scan/CustomFolderLocation.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <array>
#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using namespace StoragePermissionAdvisor;
using Platform::FileError;
using Platform::FileOperation;
using TestSupport::Fault;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using IssueKind = StoragePermissionIssueKind;
namespace SkipReason = CleanerCore::StorageScannerSkipReason;

constexpr std::array kRefusals{EACCES, EPERM};

/// What the advisor is told by the engine itself, whose words may change one day: they have to stay in its reach.
class StoragePermissionReasons : public testing::Test {
protected:
    /// The diagnoses of a scan in which one call fails.
    std::vector<StoragePermissionDiagnosis> scan(Fault fault)
    {
        FaultyFileManager faulty(m_posix);
        faulty.fail(std::move(fault));
        const CleanerCore::StorageScanner scanner(faulty, {.jobs = 1});
        const std::vector locations{CleanerCore::ScanLocation({.rootURL = m_tree.url("home/Caches/"),
            .category = CleanerCore::CleanupCategory::userCaches,
            .displayName = std::nullopt})};
        const auto report = scanner.scan(locations, m_tree.now(), {}, {}, m_tree.url("home/"));
        EXPECT_EQ(faulty.failureCount(), 1U);
        return diagnoses(report.skippedItems);
    }

    std::vector<StoragePermissionDiagnosis> scanInsights(Fault fault)
    {
        FaultyFileManager faulty(m_posix);
        faulty.fail(std::move(fault));
        auto configuration = CleanerCore::InsightConfiguration::standard();
        configuration.minimumDuplicateFileBytes = 1;
        const CleanerCore::MacStorageInsightScanner scanner(m_tree.url("home/"), faulty, configuration,
            {.roots = std::vector{m_tree.url("home/Downloads/")},
                .currentSnapshot = [] { return CleanerCore::SystemResourceSnapshot(); },
                .jobs = 1});
        const auto report = scanner.scan(m_tree.now());
        EXPECT_EQ(faulty.failureCount(), 1U);
        return diagnoses(report.skippedItems);
    }

    void expectOne(const std::vector<StoragePermissionDiagnosis>& found, IssueKind kind, std::string_view path)
    {
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].kind, kind);
        ASSERT_EQ(found[0].items.size(), 1U);
        EXPECT_EQ(found[0].items[0].url.path(), m_tree.path(path));
    }

    TestSupport::TemporaryTree m_tree{R"(
        home/Caches/app/
            data size=4K
        home/Downloads/
            one text="twice"
            two text="twice"
            folder/data size=4K
    )"};
    Platform::PosixFileManager m_posix;
};

TEST_F(StoragePermissionReasons, AreFoundWhereAScanMayNotListAFolder)
{
    for (const int refusal : kRefusals) {
        for (const char* const path : {"home/Caches", "home/Caches/app"}) {
            const Fault fault{.call = FileManagerCall::listFolder, .systemError = refusal, .path = m_tree.path(path)};
            expectOne(scan(fault), IssueKind::readOrEnumerateAccess, path);
        }
    }
}

TEST_F(StoragePermissionReasons, AreFoundWhereAScanMayNotOpenAFolder)
{
    for (const int refusal : kRefusals) {
        const Fault fault{
            .call = FileManagerCall::makeEnumerator, .systemError = refusal, .path = m_tree.path("home/Caches/app")};
        expectOne(scan(fault), IssueKind::readOrEnumerateAccess, "home/Caches/app");
    }
}

TEST_F(StoragePermissionReasons, AreFoundWhereAScanMayNotLookAtAnItem)
{
    for (const int refusal : kRefusals) {
        const Fault child{
            .call = FileManagerCall::resourceValues, .systemError = refusal, .path = m_tree.path("home/Caches/app")};
        expectOne(scan(child), IssueKind::readOrEnumerateAccess, "home/Caches/app");
        const Fault entry{.call = FileManagerCall::entryResourceValues,
            .systemError = refusal,
            .path = m_tree.path("home/Caches/app/data")};
        expectOne(scan(entry), IssueKind::readOrEnumerateAccess, "home/Caches/app/data");
    }
}

TEST_F(StoragePermissionReasons, AreFoundWhereTheSafetyRulesCannotReadAttributes)
{
    for (const int refusal : kRefusals) {
        FaultyFileManager faulty(m_posix);
        faulty.fail({.call = FileManagerCall::resourceValues, .systemError = refusal});
        const auto isLink = CleanerCore::isSymbolicLink(m_tree.url("home/Caches/"), faulty);
        ASSERT_FALSE(isLink);
        EXPECT_EQ(issueKind(isLink.error().errorDescription()), IssueKind::unreadableAttributes);
    }
}

TEST_F(StoragePermissionReasons, AreFoundInAnInsightScan)
{
    for (const int refusal : kRefusals) {
        const Fault folder{
            .call = FileManagerCall::listFolder, .systemError = refusal, .path = m_tree.path("home/Downloads/folder")};
        expectOne(scanInsights(folder), IssueKind::readOrEnumerateAccess, "home/Downloads/folder");
        const Fault file{
            .call = FileManagerCall::openFile, .systemError = refusal, .path = m_tree.path("home/Downloads/one")};
        expectOne(scanInsights(file), IssueKind::readOrEnumerateAccess, "home/Downloads/one");
    }
}

TEST_F(StoragePermissionReasons, AreFoundInTheWordsOfEveryRefusedOperation)
{
    for (const int refusal : kRefusals) {
        for (const auto operation : {FileOperation::read, FileOperation::write, FileOperation::trash,
                 FileOperation::restore, FileOperation::remove}) {
            const auto error = FileError::fromSystemError(refusal, operation, "/home/a/x\xFF\n");
            EXPECT_EQ(issueKind(error.localizedDescription()), IssueKind::readOrEnumerateAccess)
                << error.localizedDescription();
        }
    }
}

TEST_F(StoragePermissionReasons, AreFoundInTheWordsOfAFailedBookmark)
{
    EXPECT_EQ(issueKind("Custom folder stale bookmark. Remove and add this folder again before cleanup."),
        IssueKind::securityScopedAccess);
    EXPECT_EQ(issueKind("Could not start security-scoped access for custom folder. Remove and add the folder again, or "
                        "grant Files & Folders or Full Disk Access."),
        IssueKind::securityScopedAccess);
    EXPECT_EQ(issueKind("Could not start security-scoped access for the home folder grant. Revoke and re-grant home "
                        "folder access from Settings, then rescan."),
        IssueKind::securityScopedAccess);
}

TEST_F(StoragePermissionReasons, AreTheOnlyOnesOfTheScanner)
{
    for (const auto reason : {SkipReason::couldNotEnumerateFolder, SkipReason::couldNotEnumeratePackage}) {
        EXPECT_EQ(issueKind(reason), IssueKind::readOrEnumerateAccess) << reason;
    }
    for (const auto reason : {SkipReason::folderDoesNotExist, SkipReason::symbolicLink, SkipReason::noTouchPath,
             SkipReason::noTouchDescendant, SkipReason::recentlyModified, SkipReason::emptyItem,
             SkipReason::inventoryItemLimitExceeded, SkipReason::duplicateHashBudgetExceeded,
             SkipReason::scanRootItself}) {
        EXPECT_EQ(issueKind(reason), std::nullopt) << reason;
    }
}

TEST_F(StoragePermissionReasons, AreNotThoseOfARefusal)
{
    using CleanerCore::CleaningError;
    using CleanerCore::CustomScanFolderError;
    for (const auto kind :
        {CleaningError::Kind::pathNotAllowed, CleaningError::Kind::criticalPath, CleaningError::Kind::protectedUserData,
            CleaningError::Kind::symbolicLink, CleaningError::Kind::cleanupCandidateChanged}) {
        EXPECT_EQ(issueKind(CleaningError{kind, "/x"}.errorDescription()), std::nullopt);
    }
    for (const auto kind : {CustomScanFolderError::Kind::notDirectory, CustomScanFolderError::Kind::unsafeRoot}) {
        EXPECT_EQ(issueKind(CustomScanFolderError{kind, "/x"}.errorDescription()), std::nullopt);
    }
}

} // namespace
} // namespace KarvelloUI
