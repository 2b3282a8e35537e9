#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <gtest/gtest.h>
#include <map>

namespace KarvelloUI {
namespace {

using IssueKind = StoragePermissionIssueKind;
using Role = StoragePermissionWizardStepRole;

TEST(PermissionGuideCopy, TellsOfEachIssueAndWhatToDo)
{
    const std::map<IssueKind, std::pair<std::string, std::string>> texts{
        {IssueKind::fullDiskAccess,
            {"Full Disk Access needed · 4", "Check Full Disk Access in System Settings > Privacy & Security."}},
        {IssueKind::filesAndFolders,
            {"Files & Folders permission needed · 4",
                "Confirm the expected locations are allowed under Files & Folders."}},
        {IssueKind::securityScopedAccess,
            {"Security-scoped bookmark needs review · 4",
                "Re-add the custom folder to refresh an expired or invalid bookmark."}},
        {IssueKind::authorization,
            {"User authorization needed · 4",
                "Review the macOS authorization prompt or reset this app's folder permission."}},
        {IssueKind::readOrEnumerateAccess,
            {"Read/enumeration access limited · 4",
                "Verify the folder can be opened and grant access to the parent folder if needed."}},
        {IssueKind::unreadableAttributes,
            {"File attributes could not be verified · 4",
                "Confirm the path still exists and that file attributes can be read safely."}},
    };
    for (const IssueKind kind : Platform::allCases<IssueKind>()) {
        EXPECT_EQ(kEnglish.permissionDiagnosticTitle(kind, 4), texts.at(kind).first);
        EXPECT_EQ(kEnglish.permissionDiagnosticAction(kind), texts.at(kind).second);
        EXPECT_EQ(kEnglish.permissionWizardStepBody(Role::reviewBlockedItems, kind), texts.at(kind).second);
    }
}

TEST(PermissionGuideCopy, TellsOfEachStep)
{
    const std::map<Role, std::pair<std::string, std::string>> texts{
        {Role::reviewBlockedItems, {"Review skipped items", "Check which paths were skipped."}},
        {Role::refreshCustomFolders,
            {"Refresh custom folders",
                "If custom folders were skipped because a bookmark expired or access failed, remove and add those "
                "folders again."}},
        {Role::grantSystemAccess,
            {"Grant macOS privacy access",
                "Open System Settings > Privacy & Security and grant Files & Folders or Full Disk Access."}},
        {Role::rescan,
            {"Rescan to verify",
                "After changing access, run Cleanup or Insights scan again and confirm skipped items decreased."}},
    };
    for (const Role role : Platform::allCases<Role>()) {
        EXPECT_EQ(kEnglish.permissionWizardStepTitle(role), texts.at(role).first);
        EXPECT_EQ(kEnglish.permissionWizardStepBody(role, std::nullopt), texts.at(role).second);
    }
    EXPECT_EQ(kEnglish.permissionWizardStepLabel(2, 5), "Step 2 of 5");
    EXPECT_EQ(kKorean.permissionWizardStepLabel(2, 5), "5단계 중 2단계");
}

TEST(PermissionGuideCopy, ShowsSamplePathsAndCopiesThemLineByLine)
{
    const std::vector<std::string> paths{"/a b", "/c"};
    EXPECT_EQ(kEnglish.permissionDiagnosticSamples(paths), "Examples: /a b · /c");
    EXPECT_EQ(kEnglish.permissionDiagnosticSamplePathsTitle(2), "Sample paths (2)");
    EXPECT_EQ(kEnglish.permissionDiagnosticSamplePathsCopyButton(), "Copy paths");
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        EXPECT_EQ(KarvelloCopy{language}.permissionDiagnosticSampleCopyPayload(paths), "/a b\n/c");
    }
}

TEST(PermissionGuideCopy, SpeaksOfBlockedPathsFirstAndOfCustomFoldersSecond)
{
    EXPECT_EQ(kEnglish.settingsAccessDiagnosticsTitle(2, true), "Latest Scan Access Evidence");
    EXPECT_EQ(kEnglish.settingsAccessDiagnosticsTitle(0, true), "Custom Folder Access Guidance");
    EXPECT_EQ(kEnglish.settingsAccessDiagnosticsTitle(0, false), "Access Guidance");
    EXPECT_TRUE(kEnglish.settingsAccessDiagnosticsBody(2, true).starts_with("The latest scans found 2 permission"));
    EXPECT_TRUE(kEnglish.settingsAccessDiagnosticsBody(0, true).starts_with("Custom folders depend on"));
    EXPECT_TRUE(kEnglish.settingsAccessDiagnosticsBody(0, false).starts_with("No latest-scan access diagnosis"));
    EXPECT_TRUE(kEnglish.storageAccessBody(2, true).starts_with("2 skipped items look"));
    EXPECT_TRUE(kEnglish.storageAccessBody(1, true).starts_with("1 skipped item looks"));
    EXPECT_TRUE(kEnglish.storageAccessBody(0, true).starts_with("Custom folders use"));
    EXPECT_TRUE(kEnglish.storageAccessBody(0, false).starts_with("If results look empty"));
}

} // namespace
} // namespace KarvelloUI
