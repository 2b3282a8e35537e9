#include "KarvelloUI/Screens/Insights/InsightScreenModel.h"

#include "KarvelloUI/Copy/PercentText.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <QLocale>
#include <QPointer>
#include <QVariantMap>

namespace KarvelloUI {

using Phase = MacInsightsViewModel::Phase;

InsightScreenModel::InsightScreenModel(
    MacCleanerDashboardModel& dashboard, MacDashboardSection section, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_section(section)
    , m_exports(dashboard, ExportMenuModel::Source::insightScan)
{
    const auto tell = [this] { Q_EMIT stateChanged(); };
    const auto tellAnew = [this] {
        m_isBannerClosed = false;
        Q_EMIT stateChanged();
    };
    connect(&insights(), &MacInsightsViewModel::reportChanged, this, tell);
    connect(&insights(), &MacInsightsViewModel::resultsChanged, this, tellAnew);
    connect(&insights(), &MacInsightsViewModel::errorMessageChanged, this, tellAnew);
    connect(&insights(), &MacInsightsViewModel::phaseChanged, this, [this] {
        m_isCancelling = false;
        Q_EMIT stateChanged();
    });
    connect(&insights(), &MacInsightsViewModel::progressChanged, this, &InsightScreenModel::progressChanged);
    connect(this, &InsightScreenModel::stateChanged, this, &InsightScreenModel::progressChanged);
    connect(&m_dashboard, &MacCleanerDashboardModel::accessChanged, this, tell);
    connect(&m_dashboard.preferences(), &DashboardPreferences::languageChanged, this, tell);
}

InsightScreenModel::Content InsightScreenModel::content() const
{
    switch (insights().phase()) {
    case Phase::idle:
        return m_dashboard.hasHomeAccess() ? Idle : Denied;
    case Phase::scanning:
        return Scanning;
    case Phase::ready:
    case Phase::cleaning:
    case Phase::finished:
        break;
    }
    return count() > 0 ? Results : Nothing;
}

QString InsightScreenModel::title() const
{
    return shown(words().macDashboardSectionTitle(m_section));
}

QString InsightScreenModel::subtitle() const
{
    return shown(content() == Results ? resultsLine() : purposeLine());
}

QString InsightScreenModel::scanText() const
{
    const auto copy = words();
    return shown(content() == Idle || content() == Denied ? copy.text("인사이트 스캔 시작", "Start Insight Scan")
                                                          : copy.scanAgain());
}

bool InsightScreenModel::canScan() const
{
    return m_dashboard.hasHomeAccess() && !insights().isBusy();
}

QString InsightScreenModel::scanDisabledReason() const
{
    if (m_dashboard.hasHomeAccess()) {
        return {};
    }
    return shown(words().text(
        "스캔을 시작하기 전에 홈 폴더 접근을 허용하세요.", "Grant home folder access before starting a scan."));
}

QString InsightScreenModel::blankIconName() const
{
    switch (content()) {
    case Denied:
        return QStringLiteral("lock");
    case Nothing:
        return isBlankGoodNews() ? QStringLiteral("done") : QStringLiteral("search");
    case Idle:
    case Scanning:
    case Results:
        break;
    }
    return QStringLiteral("scan");
}

QString InsightScreenModel::blankTitle() const
{
    const auto copy = words();
    switch (content()) {
    case Denied:
        return shown(copy.homeAccessOnboardingTitle());
    case Nothing:
        return shown(copy.text("표시할 항목 없음", "No items to show"));
    case Idle:
    case Scanning:
    case Results:
        break;
    }
    return shown(copy.text("스캔 준비 완료", "Ready to scan"));
}

QString InsightScreenModel::blankText() const
{
    const auto copy = words();
    switch (content()) {
    case Denied:
        return shown(copy.text("인사이트를 실행하려면 Karvello가 홈 폴더에 접근할 수 있어야 합니다. 홈 폴더 접근을 "
                               "허용하면 스캔이 자동으로 시작됩니다.",
            "Karvello needs access to your home folder before insights can run. Grant home folder access and the scan "
            "will start automatically."));
    case Nothing:
        return shown(nothingFoundText());
    case Idle:
    case Scanning:
    case Results:
        break;
    }
    return shown(copy.say("A read-only scan of your own folders finds large files, older downloads, duplicates and "
                          "installers. It changes nothing."));
}

QString InsightScreenModel::blankActionText() const
{
    switch (content()) {
    case Idle:
        return scanText();
    case Denied:
        return shown(words().homeAccessGrantButton());
    case Scanning:
    case Nothing:
    case Results:
        break;
    }
    return {};
}

bool InsightScreenModel::isBlankGoodNews() const
{
    const auto& report = insights().report();
    return content() == Nothing && report.skippedItems.empty() && !report.isTruncated;
}

QString InsightScreenModel::workTitle() const
{
    const auto copy = words();
    return shown(isCleaning() ? copy.cleaningMessage()
                              : copy.text("저장 공간 인사이트를 스캔하는 중…", "Scanning storage insights…"));
}

QString InsightScreenModel::workHint() const
{
    return content() == Scanning ? shown(words().scanRunnerHint()) : QString();
}

bool InsightScreenModel::isComparing() const
{
    const auto& scan = insights().scanProgress();
    return scan.totalRoots > 0 && scan.completedRoots == scan.totalRoots;
}

QString InsightScreenModel::visiting() const
{
    if (content() != Scanning) {
        return {};
    }
    const auto copy = words();
    const auto& scan = insights().scanProgress();
    if (scan.totalRoots == 0) {
        return shown(copy.scanRunnerPreparing());
    }
    if (isComparing()) {
        return shown(DashboardWords::joinedParts(
            {copy.say("Comparing files that may be duplicates"), copy.byteSize(scan.readBytes)}));
    }
    return shown(copy.scanRunnerVisiting()) + u' ' + shownPath(scan.root);
}

qreal InsightScreenModel::progress() const
{
    const auto& scan = insights().scanProgress();
    return scan.totalRoots == 0 || isComparing()
        ? -1
        : static_cast<qreal>(scan.completedRoots) / static_cast<qreal>(scan.totalRoots);
}

QString InsightScreenModel::progressText() const
{
    return progress() < 0 ? QString() : shown(percentText(progress()));
}

QVariantList InsightScreenModel::figures() const
{
    const auto& scan = insights().scanProgress();
    if (scan.totalRoots == 0) {
        return {};
    }
    const auto copy = words();
    const QLocale locale(QString::fromStdString(std::string(copy.locale())));
    const auto figure = [](const QString& value, const std::string& label) {
        return QVariantMap{{QStringLiteral("value"), value}, {QStringLiteral("label"), shown(label)}};
    };
    return {figure(locale.toString(qlonglong(scan.visitedItems)), copy.scanRunnerScannedLabel()),
        figure(QStringLiteral("%1 / %2").arg(scan.completedRoots).arg(scan.totalRoots), copy.say("Locations"))};
}

QString InsightScreenModel::cancelText() const
{
    return shown(words().cancelOperation());
}

bool InsightScreenModel::isDone() const
{
    return insights().lastCleanResult().has_value() && !insights().isBusy();
}

InsightScreenModel::Banner InsightScreenModel::banner() const
{
    if (m_isBannerClosed) {
        return NoBanner;
    }
    if (insights().errorMessage()) {
        return FailedBanner;
    }
    return isDone() ? DoneBanner : NoBanner;
}

QString InsightScreenModel::bannerTitle() const
{
    const auto copy = words();
    switch (banner()) {
    case FailedBanner:
        return shownText(copy.skippedReason(*insights().errorMessage()));
    case DoneBanner:
        return shown(copy.lastCleanTitle(CleanerCore::CleaningMode::moveToTrash));
    case NoBanner:
        break;
    }
    return {};
}

QString InsightScreenModel::bannerText() const
{
    if (banner() == NoBanner || !isDone()) {
        return {};
    }
    return shown(words().lastCleanSubtitle(*insights().lastCleanResult(), CleanerCore::CleaningMode::moveToTrash));
}

QString InsightScreenModel::bannerActionText() const
{
    return banner() != NoBanner && isDone() ? shown(words().text("검토와 근거 열기", "Open Review & Evidence"))
                                            : QString();
}

QString InsightScreenModel::bannerCloseName() const
{
    return shown(words().say("Close"));
}

QString InsightScreenModel::noticeText() const
{
    if (content() != Results && content() != Nothing) {
        return {};
    }
    const auto& skipped = insights().report().skippedItems;
    QString aboutSkipped = skipped.empty() ? QString() : shown(words().insightSkippedBody(std::ssize(skipped)));
    if (content() == Nothing) {
        return aboutSkipped;
    }
    // One of them: what is skipped stands where it is missed, and elsewhere only if there is nothing else to know.
    const QString ofScreen = shown(noticeLine());
    return ofScreen.isEmpty() || (isNoticeOnHeldBackFiles() && !skipped.empty()) ? aboutSkipped : ofScreen;
}

void InsightScreenModel::scan()
{
    m_dashboard.scanInsights();
}

void InsightScreenModel::runBlankAction()
{
    if (content() == Idle) {
        scan();
    } else if (content() == Denied) {
        // The dialog may be open for longer than the screen.
        m_dashboard.requestHomeAccess([model = QPointer<InsightScreenModel>(this)](bool isGranted) {
            if (isGranted && model) {
                model->scan();
            }
        });
    }
}

void InsightScreenModel::cancel()
{
    if (!insights().isBusy()) {
        return;
    }
    m_isCancelling = true;
    Q_EMIT stateChanged();
    insights().cancelCurrentOperation();
}

void InsightScreenModel::runBannerAction()
{
    if (!bannerActionText().isEmpty()) {
        m_dashboard.selectSection(MacDashboardSection::reviewEvidence);
    }
}

void InsightScreenModel::closeBanner()
{
    m_isBannerClosed = true;
    Q_EMIT stateChanged();
}

QString InsightScreenModel::shownPath(const Platform::FileURL& url) const
{
    return shownText(Platform::HomePathAbbreviation(m_dashboard.services().homeDirectory).abbreviate(url.path()));
}

} // namespace KarvelloUI
