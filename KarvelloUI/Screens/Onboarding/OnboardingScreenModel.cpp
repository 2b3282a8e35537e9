#include "KarvelloUI/Screens/Onboarding/OnboardingScreenModel.h"

#include "KarvelloUI/Dashboard/ChoiceNotices.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <QPointer>

namespace KarvelloUI {

OnboardingScreenModel::OnboardingScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &OnboardingScreenModel::changed);
    connect(&dashboard, &MacCleanerDashboardModel::accessChanged, this, &OnboardingScreenModel::changed);
    connect(&dashboard, &MacCleanerDashboardModel::noticeChanged, this, &OnboardingScreenModel::changed);
    connect(&dashboard.homeAccess(), &HomeAccessBookmarkStore::lastErrorMessageChanged, this,
        &OnboardingScreenModel::changed);
}

QString OnboardingScreenModel::eyebrow() const
{
    return shown(m_dashboard.words().macOnboardingEyebrow());
}

QString OnboardingScreenModel::title() const
{
    return shown(m_dashboard.words().macOnboardingTitle());
}

QString OnboardingScreenModel::body() const
{
    return shown(m_dashboard.words().macOnboardingBody());
}

QString OnboardingScreenModel::primaryText() const
{
    return shown(m_dashboard.words().macOnboardingPrimaryButton(m_dashboard.hasHomeAccess()));
}

QString OnboardingScreenModel::primaryIconName() const
{
    return m_dashboard.hasHomeAccess() ? QStringLiteral("scan") : QStringLiteral("folder");
}

bool OnboardingScreenModel::isPrimaryEnabled() const
{
    const MacAccessPolicy policy = m_dashboard.accessPolicy();
    return !policy.isBusy && (!policy.hasHomeAccess() || m_dashboard.canStartCleanupScan());
}

QString OnboardingScreenModel::secondaryText() const
{
    return shown(m_dashboard.words().macOnboardingSecondaryButton());
}

QString OnboardingScreenModel::skipCaption() const
{
    return m_dashboard.hasHomeAccess() ? QString() : shown(m_dashboard.words().macOnboardingSkipCaption());
}

QString OnboardingScreenModel::errorText() const
{
    return shownText(m_dashboard.words().skippedReason(m_dashboard.homeAccess().lastErrorMessage().value_or("")));
}

QString OnboardingScreenModel::noticeTitle() const
{
    const auto& notice = m_dashboard.notice();
    return notice ? notice->title : QString();
}

QString OnboardingScreenModel::noticeText() const
{
    const auto& notice = m_dashboard.notice();
    return notice ? notice->message : QString();
}

QString OnboardingScreenModel::closeText() const
{
    return shown(m_dashboard.words().say("Close"));
}

QString OnboardingScreenModel::languageTitle() const
{
    return shown(m_dashboard.words().macOnboardingLanguageTitle());
}

QString OnboardingScreenModel::languageText() const
{
    return shown(m_dashboard.words().macOnboardingLanguageBody());
}

QStringList OnboardingScreenModel::languages() const
{
    QStringList names;
    for (const auto language : Platform::allCases<AppLanguage>()) {
        names.append(shown(std::string(displayName(language))));
    }
    return names;
}

int OnboardingScreenModel::languageIndex() const
{
    return static_cast<int>(m_dashboard.preferences().language());
}

QVariantList OnboardingScreenModel::cards() const
{
    const auto words = m_dashboard.words();
    const bool isDirect = m_dashboard.accessPolicy().supportsDirectDistributionScans;
    const auto card = [](const char* icon, const std::string& title, const std::string& text) {
        return QVariant::fromValue(
            OnboardingCard{.iconName = QString::fromLatin1(icon), .title = shown(title), .text = shown(text)});
    };
    return {
        card("scan", words.macOnboardingScanFirstTitle(), words.macOnboardingScanFirstBody()),
        card("lock", words.macOnboardingAccessTitle(isDirect), words.macOnboardingAccessBody(isDirect)),
        card("evidence", words.macOnboardingSafetyTitle(), words.macOnboardingSafetyBody()),
    };
}

QString OnboardingScreenModel::principles() const
{
    const auto words = m_dashboard.words();
    return shown(DashboardWords::joinedParts({words.trustReviewPill(), words.trustTrashPill(),
        words.text("지표는 이 기기에서만 계산됩니다.", "Metrics are computed locally on this device.")}));
}

void OnboardingScreenModel::chooseLanguage(int index)
{
    const auto languages = Platform::allCases<AppLanguage>();
    if (index >= 0 && static_cast<std::size_t>(index) < languages.size()) {
        noticeUnlessStored(
            m_dashboard, m_dashboard.preferences().setLanguage(languages[static_cast<std::size_t>(index)]));
    }
}

void OnboardingScreenModel::begin()
{
    if (!isPrimaryEnabled()) {
        return;
    }
    if (m_dashboard.hasHomeAccess()) {
        completeAndScan();
        return;
    }
    // The dialog may be open for longer than the screen.
    m_dashboard.requestHomeAccess([model = QPointer(this)](bool isGranted) {
        if (isGranted && model) {
            model->completeAndScan();
        }
    });
}

void OnboardingScreenModel::completeAndScan()
{
    m_dashboard.preferences().completeOnboarding();
    m_dashboard.selectSection(MacDashboardSection::cleanup);
    m_dashboard.scanCleanup();
}

void OnboardingScreenModel::setUpLater()
{
    m_dashboard.preferences().completeOnboarding();
}

} // namespace KarvelloUI
