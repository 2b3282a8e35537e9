#include "KarvelloMac/ApplicationServices.h"

#include "KarvelloMac/QtFileDialogs.h"
#include "KarvelloUI/Advisors/MacDistributionRuntime.h"
#include "KarvelloUI/MenuBar/UserNotificationMenuBarReminderScheduler.h"
#include "Platform/Services/DistributionFacts.h"
#include "Platform/Services/UserDirectories.h"
#include "PlatformDesktop/SessionBus.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <unistd.h>
#include <utility>

namespace KarvelloMac {

using CleanerCore::AppCacheRunningApplicationIdentity;

namespace {

constexpr const char* kApplicationIdentifier = "io.github.karvello.Karvello";

void copyToClipboard(const std::string& text)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

} // namespace

ApplicationServices::ApplicationServices(
    Platform::Environment environment, std::shared_ptr<PlatformDesktop::DesktopBus> bus)
    : m_environment(std::move(environment))
    , m_bus(std::move(bus))
    , m_home(CleanerCore::cleanerCoreRealUserHomeDirectory())
    , m_trash(m_fileManager, Platform::dataDirectoryForCurrentUser(m_environment))
    , m_defaults(m_fileManager, Platform::FileUserDefaults::defaultFileURL(m_environment))
    , m_defaultsWatch(m_defaults)
    , m_runningApplications(Platform::LinuxRunningApplications::Settings::current(m_environment),
          Platform::SystemStatistics::ofThisMachine())
    , m_desktopApplications(PlatformDesktop::LinuxDesktopApplications::Settings::current(m_environment))
    , m_reliefRuntime(m_runningApplications, m_desktopApplications,
          [this] { return Platform::DistributionFacts::current(m_fileManager).isSandboxed; })
    , m_notifications(PlatformDesktop::FreedesktopNotifications::Settings::current(m_environment))
    , m_fileViewer(m_bus, PlatformDesktop::FreedesktopFileViewer::Settings::current(m_environment))
    , m_fileDialogs(m_bus, std::make_unique<QtFileDialogs>(), {})
    , m_tools(m_bus, PlatformDesktop::LinuxDesktopTools::Settings::current(m_environment), copyToClipboard)
    , m_appearance(m_bus, {})
{
}

KarvelloUI::SessionServices ApplicationServices::session()
{
    return {
        .fileManager = m_fileManager,
        .trash = m_trash,
        .bookmarks = m_bookmarks,
        .environment = m_environment,
        .executor = m_threads,
    };
}

KarvelloUI::DashboardServices ApplicationServices::dashboard()
{
    return {
        .session = session(),
        .defaults = m_defaults,
        .fileViewer = m_fileViewer,
        .fileDialogs = m_fileDialogs,
        .tools = m_tools,
        .homeDirectory = m_home,
        .supportsDirectDistributionScans = KarvelloUI::MacDistributionRuntime::currentSupportsDirectDistributionScans,
        .diskSnapshot = [home = m_home] { return KarvelloUI::DiskCapacitySnapshot::current(home); },
    };
}

KarvelloUI::MacCleanerDashboardDependencies ApplicationServices::makeDependencies(
    const KarvelloUI::LanguageProvider& language)
{
    KarvelloUI::MacCleanerDashboardDependencies::Providers providers;
    providers.runningApplications = [this] {
        // Without the list no cache is known to be in use, and each keeps saying that it is not known.
        const auto applications = m_runningApplications.applications();
        return applications ? AppCacheRunningApplicationIdentity::of(*applications)
                            : std::vector<AppCacheRunningApplicationIdentity>();
    };
    providers.resourceRelief = KarvelloUI::ResourceReliefProviders::of(m_reliefRuntime);
    providers.requester = {.currentProcessIdentifier = ::getpid(), .currentBundleIdentifier = kApplicationIdentifier};
    providers.homeDirectory = m_home;
    return KarvelloUI::MacCleanerDashboardDependencies::make(session(), m_defaults, language, std::move(providers));
}

std::unique_ptr<KarvelloUI::KarvelloMenuBarReminderScheduling> ApplicationServices::makeReminderScheduler()
{
    if (!PlatformDesktop::SessionBus::isOffered(m_environment)) {
        return nullptr;
    }
    return std::make_unique<KarvelloUI::UserNotificationMenuBarReminderScheduler>(m_threads, m_notifications);
}

std::vector<std::string> ApplicationServices::preferredLanguages() const
{
    std::vector<std::string> preferred;
    for (const QString& identifier : QLocale::system().uiLanguages()) {
        preferred.push_back(identifier.toStdString());
    }
    return preferred;
}

} // namespace KarvelloMac
