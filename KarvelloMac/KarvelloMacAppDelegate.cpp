#include "KarvelloMac/KarvelloMacAppDelegate.h"

#include "KarvelloMac/PreferredText.h"
#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"
#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequestStore.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMetaObject>
#include <utility>

namespace KarvelloMac {

using namespace KarvelloUI;

KarvelloMacAppDelegate::KarvelloMacAppDelegate(
    ApplicationServices& services, Destination firstDestination, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_firstDestination(firstDestination)
    , m_preferences(services.defaults(), services.preferredLanguages())
    , m_design(installDesign(m_engine))
{
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

KarvelloMacAppDelegate::~KarvelloMacAppDelegate()
{
    m_services.appearance().setObserver({});
}

QIcon KarvelloMacAppDelegate::karvelloAppIcon()
{
    const QIcon bundled(QStringLiteral(":/karvello/io.github.karvello.Karvello.svg"));
    return QIcon::fromTheme(QStringLiteral("io.github.karvello.Karvello"), bundled);
}

void KarvelloMacAppDelegate::applicationDidFinishLaunching()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.karvello.Karvello"));
    // Who decides when the application ends is `eventFilter`.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    m_icon = karvelloAppIcon();
    QGuiApplication::setWindowIcon(m_icon);
    configureDesign();
    configureStatusItem();
    QMetaObject::invokeMethod(this, [this] { openDashboardWindow(m_firstDestination); }, Qt::QueuedConnection);
}

void KarvelloMacAppDelegate::configureDesign()
{
    const auto followMode = [this] { m_design.setAppearanceMode(m_preferences.appearanceMode()); };
    const auto followDesktop = [this] {
        const auto& desktop = m_services.appearance();
        m_design.setPlatformScheme(desktop.prefersDark() ? ColorScheme::dark : ColorScheme::light);
        m_design.setReducedMotion(desktop.prefersReducedMotion());
    };
    connect(&m_preferences, &DashboardPreferences::appearanceModeChanged, this, followMode);
    m_services.appearance().setObserver(followDesktop);
    followPreferredText(m_design, m_preferences);
    followMode();
    followDesktop();
}

void KarvelloMacAppDelegate::configureStatusItem()
{
    KarvelloMenuBarStatusSettings settings;
    settings.refreshIntervalNanoseconds = 5'000'000'000;
    settings.backgroundRefreshIntervalNanoseconds = 60'000'000'000;
    settings.reminderPolicy = {.lowDiskFreeFraction = 0.1, .minimumInterval = 21'600.0};
    KarvelloMenuBarStatusProviders providers;
    providers.languageProvider = [this] { return m_preferences.language(); };
    m_menuBarStatusModel = std::make_unique<KarvelloMenuBarStatusModel>(
        KarvelloMenuBarStatusSnapshot::current(CleanerCore::cleanerCoreRealUserHomeDirectory()), m_services.executor(),
        m_services.defaults(), m_services.makeReminderScheduler(), settings, std::move(providers));
    m_statusPopoverModel = std::make_unique<StatusPopoverModel>(*m_menuBarStatusModel, m_preferences);
    connect(m_statusPopoverModel.get(), &StatusPopoverModel::openDashboardRequested, this, [this](const QString& raw) {
        m_statusPopover->close();
        openDashboardWindow(Platform::fromRawValue<Destination>(raw.toStdString()).value_or(Destination::dashboard));
    });
    connect(m_statusPopoverModel.get(), &StatusPopoverModel::quitRequested, this, &KarvelloMacAppDelegate::quit);
    m_statusPopover = std::make_unique<StatusPopover>(m_engine, *m_statusPopoverModel);
    m_statusItem = std::make_unique<StatusItem>(m_icon, m_preferences);
    connect(m_statusItem.get(), &StatusItem::activated, this, &KarvelloMacAppDelegate::toggleStatusPopover);
    connect(m_statusItem.get(), &StatusItem::openRequested, this, &KarvelloMacAppDelegate::openDashboardWindow);
    connect(m_statusItem.get(), &StatusItem::quitRequested, this, &KarvelloMacAppDelegate::quit);
}

bool KarvelloMacAppDelegate::applicationShouldHandleReopen(Destination destination)
{
    openDashboardWindow(destination);
    return true;
}

void KarvelloMacAppDelegate::toggleStatusPopover()
{
    if (m_statusItem && m_statusPopover) {
        m_statusPopover->toggle(m_statusItem->geometry());
    }
}

void KarvelloMacAppDelegate::openDashboardWindow(Destination destination)
{
    // Whoever asks for the application now wants to have it.
    m_isQuitting = false;
    const bool isStored = KarvelloDashboardLaunchRequestStore::request(destination, m_services.defaults()).has_value();
    QWindow* window = DashboardWindow::primary(QGuiApplication::allWindows());
    if (window == nullptr) {
        m_dashboardWindow.reset();
        m_dashboard = std::make_unique<MacCleanerDashboardModel>(m_services.dashboard(),
            m_services.makeDependencies([this] { return m_preferences.language(); }), m_preferences);
        m_dashboardWindow = std::make_unique<DashboardWindow>(m_engine, *m_dashboard, m_icon);
        window = m_dashboardWindow->window();
        if (window == nullptr) {
            QCoreApplication::exit(1);
            return;
        }
        window->installEventFilter(this);
        connect(&m_dashboard->cleaner(), &CleanerViewModel::phaseChanged, this,
            &KarvelloMacAppDelegate::quitWhenNothingMoves, Qt::QueuedConnection);
        connect(&m_dashboard->insights(), &MacInsightsViewModel::phaseChanged, this,
            &KarvelloMacAppDelegate::quitWhenNothingMoves, Qt::QueuedConnection);
        connect(&m_dashboard->resourceRelief(), &MacResourceReliefViewModel::requestingQuitChanged, this,
            &KarvelloMacAppDelegate::quitWhenNothingMoves, Qt::QueuedConnection);
        m_dashboard->dashboardLifecycle();
    }
    if (!isStored) {
        m_dashboard->showDestination(destination);
    }
    DashboardWindow::bringForward(*window);
}

bool KarvelloMacAppDelegate::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Close && !m_statusItem->isShown()) {
        quit();
    }
    return QObject::eventFilter(object, event);
}

bool KarvelloMacAppDelegate::isMoving() const
{
    return m_dashboard
        && (m_dashboard->cleaner().isBusy() || m_dashboard->insights().isBusy()
            || m_dashboard->resourceRelief().isRequestingQuit());
}

void KarvelloMacAppDelegate::quit()
{
    if (std::exchange(m_isQuitting, true)) {
        return;
    }
    m_statusPopover->close();
    if (m_dashboard) {
        m_dashboard->cleaner().cancelCurrentOperation();
        m_dashboard->insights().cancelCurrentOperation();
        m_dashboard->insights().flushSystemMetricHistory();
    }
    quitWhenNothingMoves();
}

void KarvelloMacAppDelegate::quitWhenNothingMoves()
{
    if (m_isQuitting && !isMoving()) {
        QCoreApplication::quit();
    }
}

} // namespace KarvelloMac
