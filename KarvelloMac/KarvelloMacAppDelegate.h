#pragma once

#include "KarvelloMac/ApplicationServices.h"
#include "KarvelloMac/DashboardWindow.h"
#include "KarvelloMac/StatusItem.h"
#include "KarvelloMac/StatusPopover.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusModel.h"

#include <QIcon>
#include <QObject>
#include <QQmlEngine>
#include <memory>

namespace KarvelloUI {
class DesignTokens;
}

namespace KarvelloMac {

/// Owns the item in the tray, its popover and the one window of the dashboard, which are made at launch and live as long as
/// the process. Where there is no tray, closing the window ends the application. Main thread only.
class KarvelloMacAppDelegate final : public QObject {
    Q_OBJECT

public:
    using Destination = KarvelloUI::KarvelloDashboardLaunchDestination;

    /// `services` outlives the delegate. Nothing is shown yet.
    KarvelloMacAppDelegate(ApplicationServices& services, Destination firstDestination, QObject* parent = nullptr);
    ~KarvelloMacAppDelegate() override;

    /// In this order: the application's kind and icon, the item in the tray, and from the event loop the window.
    void applicationDidFinishLaunching();
    /// The application was started, or asked for, once more.
    bool applicationShouldHandleReopen(Destination destination = Destination::dashboard);
    void toggleStatusPopover();
    /// Asks the dashboard to go there, and brings it forward. The request is stored before the window is touched, so that
    /// one that is open sees it; one that cannot be stored is handed over.
    void openDashboardWindow(Destination destination);
    /// Ends the application as soon as nothing is being moved: scans are dropped, a clean or restore comes to its true end.
    /// Who opens the dashboard before that has it stay.
    void quit();

    [[nodiscard]] static QIcon karvelloAppIcon();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void configureDesign();
    void configureStatusItem();
    [[nodiscard]] bool isMoving() const;
    void quitWhenNothingMoves();

    ApplicationServices& m_services;
    const Destination m_firstDestination;
    bool m_isQuitting = false;
    QIcon m_icon;
    KarvelloUI::DashboardPreferences m_preferences;
    QQmlEngine m_engine;
    KarvelloUI::DesignTokens& m_design;
    std::unique_ptr<KarvelloUI::KarvelloMenuBarStatusModel> m_menuBarStatusModel;
    std::unique_ptr<KarvelloUI::StatusPopoverModel> m_statusPopoverModel;
    std::unique_ptr<StatusPopover> m_statusPopover;
    std::unique_ptr<StatusItem> m_statusItem;
    std::unique_ptr<KarvelloUI::MacCleanerDashboardModel> m_dashboard;
    std::unique_ptr<DashboardWindow> m_dashboardWindow;
};

} // namespace KarvelloMac
