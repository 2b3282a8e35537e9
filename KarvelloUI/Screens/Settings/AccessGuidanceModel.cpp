#include "KarvelloUI/Screens/Settings/AccessGuidanceModel.h"

#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"
#include "Platform/Base/Text.h"

#include <QPointer>
#include <algorithm>
#include <cstddef>
#include <string>

namespace KarvelloUI {

AccessGuidanceModel::AccessGuidanceModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    connect(&dashboard.cleaner(), &CleanerViewModel::reportChanged, this, &AccessGuidanceModel::forgetSteps);
    connect(&dashboard.insights(), &MacInsightsViewModel::reportChanged, this, &AccessGuidanceModel::forgetSteps);
    connect(
        &dashboard.customFolders(), &CustomScanFolderStore::foldersChanged, this, &AccessGuidanceModel::forgetSteps);
    connect(&dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, &AccessGuidanceModel::announceIfShown);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &AccessGuidanceModel::changed);
}

QString AccessGuidanceModel::title() const
{
    return shown(m_dashboard.words().settingsAccessDiagnosticsTitle(guide().blockedCount, hasCustomFolders()));
}

QString AccessGuidanceModel::text() const
{
    return shown(m_dashboard.words().settingsAccessDiagnosticsBody(guide().blockedCount, hasCustomFolders()));
}

QString AccessGuidanceModel::stepsTitle() const
{
    return guide().steps.empty() ? QString() : shown(m_dashboard.words().permissionWizardTitle());
}

QString AccessGuidanceModel::stepsText() const
{
    return guide().steps.empty() ? QString() : shown(m_dashboard.words().permissionWizardIntro());
}

QVariantList AccessGuidanceModel::steps() const
{
    const auto words = m_dashboard.words();
    const Platform::HomePathAbbreviation home(m_dashboard.services().homeDirectory);
    const auto indexed = indexedWizardSteps(guide().steps);
    QVariantList steps;
    for (const auto& [index, step] : indexed) {
        QStringList samples;
        for (const auto& path : step.samplePaths) {
            samples.append(shownText(home.abbreviate(path)));
        }
        steps.append(QVariant::fromValue(AccessGuidanceStep{
            .number = static_cast<int>(index),
            .title = shown(words.permissionWizardStepTitle(step.role)),
            .text = shown(words.permissionWizardStepBody(step.role, step.issueKind)),
            .diagnosis =
                step.issueKind ? shown(words.permissionDiagnosticTitle(*step.issueKind, step.count)) : QString(),
            .samplesTitle = shown(words.permissionDiagnosticSamplePathsTitle(samples.size())),
            .samples = samples,
            .label = shown(words.permissionWizardStepLabel(index, static_cast<std::int64_t>(indexed.size()))),
        }));
    }
    return steps;
}

QString AccessGuidanceModel::copyText() const
{
    return shown(m_dashboard.words().permissionDiagnosticSamplePathsCopyButton());
}

bool AccessGuidanceModel::hasPrivacySettings() const
{
    return m_dashboard.services().tools.hasPrivacySettings();
}

QString AccessGuidanceModel::privacySettingsText() const
{
    return shown(m_dashboard.words().text("개인정보 보호 설정 열기", "Open Privacy Settings"));
}

void AccessGuidanceModel::copySamples(int number)
{
    const auto& steps = guide().steps;
    if (number < 1 || static_cast<std::size_t>(number) > steps.size()) {
        return;
    }
    // The clipboard holds text, which the names of files need not be.
    auto paths = steps[static_cast<std::size_t>(number) - 1].samplePaths;
    std::ranges::transform(
        paths, paths.begin(), [](const std::string& path) { return Platform::Text::escapingInvalidUTF8(path); });
    if (!paths.empty()) {
        m_dashboard.services().tools.copyText(m_dashboard.words().permissionDiagnosticSampleCopyPayload(paths));
    }
}

void AccessGuidanceModel::openPrivacySettings()
{
    m_dashboard.services().tools.openPrivacySettings([dashboard = QPointer(&m_dashboard)](bool isOpened) {
        if (dashboard && !isOpened) {
            const auto words = dashboard->words();
            dashboard->showNotice({.title = shown(words.say("Privacy settings not found")),
                .message = shown(words.say("The privacy settings of this desktop could not be opened."))});
        }
    });
}

void AccessGuidanceModel::forgetSteps()
{
    m_guide.reset();
    announceIfShown();
}

void AccessGuidanceModel::announceIfShown()
{
    if (m_dashboard.selectedSection() == MacDashboardSection::settings) {
        Q_EMIT changed();
    }
}

const AccessGuidanceModel::Guide& AccessGuidanceModel::guide() const
{
    if (!m_guide) {
        auto items =
            StoragePermissionAdvisor::permissionRelatedSkippedItems(m_dashboard.cleaner().report().skippedItems);
        const auto ofInsights =
            StoragePermissionAdvisor::permissionRelatedSkippedItems(m_dashboard.insights().report().skippedItems);
        items.insert(items.end(), ofInsights.begin(), ofInsights.end());
        m_guide = Guide{.blockedCount = static_cast<std::int64_t>(items.size()),
            .steps =
                StoragePermissionAdvisor::wizardSteps(StoragePermissionAdvisor::diagnoses(items), hasCustomFolders())};
    }
    return *m_guide;
}

} // namespace KarvelloUI
