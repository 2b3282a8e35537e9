#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const std::vector<std::string> kPaths{"/Karvello", "/Karvello/Xcode"};

const CatalogueTheme kPermissionDiagnosticTitle("PermissionGuide",
    samplesOfEachCase<StoragePermissionIssueKind>(
        "permissionDiagnosticTitle", [](const KarvelloCopy& copy, StoragePermissionIssueKind kind) {
            return copy.permissionDiagnosticTitle(kind, 3);
        }));
const CatalogueTheme kPermissionWizardStepBody("PermissionGuide",
    samplesOfEachCase<StoragePermissionWizardStepRole>(
        "permissionWizardStepBody", [](const KarvelloCopy& copy, StoragePermissionWizardStepRole role) {
            return copy.permissionWizardStepBody(role, std::nullopt);
        }));

const CatalogueTheme kPermissionDiagnosticAction("PermissionGuide",
    samplesOfEachCase<StoragePermissionIssueKind>(
        "permissionDiagnosticAction", &KarvelloCopy::permissionDiagnosticAction));

const CatalogueTheme kPermissionWizardStepTitle("PermissionGuide",
    samplesOfEachCase<StoragePermissionWizardStepRole>(
        "permissionWizardStepTitle", &KarvelloCopy::permissionWizardStepTitle));

const CatalogueTheme kPermissionGuide("PermissionGuide",
    {
        {"permissionDiagnosticSamples",
            [](const KarvelloCopy& copy) { return copy.permissionDiagnosticSamples(kPaths); }},
        {"permissionDiagnosticSamplePathsTitle",
            [](const KarvelloCopy& copy) { return copy.permissionDiagnosticSamplePathsTitle(3); }, SampleCoverage::own},
        {"permissionDiagnosticSamplePathsCopyButton", &KarvelloCopy::permissionDiagnosticSamplePathsCopyButton,
            SampleCoverage::own},
        {"permissionDiagnosticSampleCopyPayload",
            [](const KarvelloCopy& copy) { return copy.permissionDiagnosticSampleCopyPayload(kPaths); },
            SampleCoverage::assembled},
        {"permissionWizardTitle", &KarvelloCopy::permissionWizardTitle},
        {"permissionWizardIntro", &KarvelloCopy::permissionWizardIntro},
        {"permissionWizardStepLabel", [](const KarvelloCopy& copy) { return copy.permissionWizardStepLabel(2, 5); }},
        {"permissionWizardStepBody reviewBlockedItems of a kind",
            [](const KarvelloCopy& copy) {
                return copy.permissionWizardStepBody(
                    StoragePermissionWizardStepRole::reviewBlockedItems, StoragePermissionIssueKind::authorization);
            }},
        {"storageAccessBody blocked", [](const KarvelloCopy& copy) { return copy.storageAccessBody(3, false); }},
        {"storageAccessBody custom folders", [](const KarvelloCopy& copy) { return copy.storageAccessBody(0, true); }},
        {"storageAccessBody", [](const KarvelloCopy& copy) { return copy.storageAccessBody(0, false); }},
        {"settingsAccessDiagnosticsTitle blocked",
            [](const KarvelloCopy& copy) { return copy.settingsAccessDiagnosticsTitle(3, false); }},
        {"settingsAccessDiagnosticsTitle custom folders",
            [](const KarvelloCopy& copy) { return copy.settingsAccessDiagnosticsTitle(0, true); }},
        {"settingsAccessDiagnosticsTitle",
            [](const KarvelloCopy& copy) { return copy.settingsAccessDiagnosticsTitle(0, false); }},
        {"settingsAccessDiagnosticsBody blocked",
            [](const KarvelloCopy& copy) { return copy.settingsAccessDiagnosticsBody(3, false); }},
        {"settingsAccessDiagnosticsBody custom folders",
            [](const KarvelloCopy& copy) { return copy.settingsAccessDiagnosticsBody(0, true); }},
        {"settingsAccessDiagnosticsBody",
            [](const KarvelloCopy& copy) { return copy.settingsAccessDiagnosticsBody(0, false); }},
    });

} // namespace
} // namespace KarvelloUI
