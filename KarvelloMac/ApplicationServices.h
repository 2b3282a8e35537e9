#pragma once

#include "CleanerCore/Relief/MacResourceReliefRuntime.h"
#include "KarvelloUI/Dashboard/DashboardPreferences.h"
#include "KarvelloUI/Dashboard/DashboardServices.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardDependencies.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderScheduling.h"
#include "KarvelloUI/Sessions/JobThreads.h"
#include "KarvelloUI/Stores/DefaultsWatch.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Platform/Linux/LinuxRunningApplications.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Platform/Services/FileUserDefaults.h"
#include "PlatformDesktop/DesktopBus.h"
#include "PlatformDesktop/FreedesktopFileViewer.h"
#include "PlatformDesktop/FreedesktopNotifications.h"
#include "PlatformDesktop/LinuxDesktopApplications.h"
#include "PlatformDesktop/LinuxDesktopTools.h"
#include "PlatformDesktop/PortalAppearance.h"
#include "PlatformDesktop/PortalFileDialogs.h"

#include <memory>
#include <string>
#include <vector>

namespace KarvelloMac {

/// The real system behind all that the application asks for, made once and living as long as the process. Destroying it
/// waits for the background work that must come to its end.
class ApplicationServices {
public:
    ApplicationServices(Platform::Environment environment, std::shared_ptr<PlatformDesktop::DesktopBus> bus);
    ApplicationServices(const ApplicationServices&) = delete;
    ApplicationServices& operator=(const ApplicationServices&) = delete;

    [[nodiscard]] KarvelloUI::DashboardServices dashboard();
    [[nodiscard]] KarvelloUI::MacCleanerDashboardDependencies makeDependencies(
        const KarvelloUI::LanguageProvider& language);
    /// What notifies through the desktop, or nothing where there is no session to notify in.
    [[nodiscard]] std::unique_ptr<KarvelloUI::KarvelloMenuBarReminderScheduling> makeReminderScheduler();
    /// The user's languages, the most wanted first.
    [[nodiscard]] std::vector<std::string> preferredLanguages() const;

    [[nodiscard]] Platform::UserDefaults& defaults() { return m_defaults; }
    [[nodiscard]] KarvelloUI::JobExecutor& executor() { return m_threads; }
    [[nodiscard]] Platform::DesktopAppearance& appearance() { return m_appearance; }

private:
    [[nodiscard]] KarvelloUI::SessionServices session();

    const Platform::Environment m_environment;
    const std::shared_ptr<PlatformDesktop::DesktopBus> m_bus;
    const Platform::FileURL m_home;
    Platform::PosixFileManager m_fileManager;
    Platform::LinuxTrash m_trash;
    Platform::LinuxBookmarks m_bookmarks;
    Platform::FileUserDefaults m_defaults;
    KarvelloUI::DefaultsWatch m_defaultsWatch;
    Platform::LinuxRunningApplications m_runningApplications;
    PlatformDesktop::LinuxDesktopApplications m_desktopApplications;
    CleanerCore::MacResourceReliefRuntime m_reliefRuntime;
    PlatformDesktop::FreedesktopNotifications m_notifications;
    PlatformDesktop::FreedesktopFileViewer m_fileViewer;
    PlatformDesktop::PortalFileDialogs m_fileDialogs;
    PlatformDesktop::LinuxDesktopTools m_tools;
    PlatformDesktop::PortalAppearance m_appearance;
    // Last, so that its work ends while all else is there.
    KarvelloUI::JobThreads m_threads;
};

} // namespace KarvelloMac
