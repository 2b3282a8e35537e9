#pragma once

#include "KarvelloUI/Dashboard/DashboardPreferences.h"
#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequest.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>

namespace KarvelloMac {

/// The item in the desktop's tray. Where there is no tray it is not seen, and appears with one. A menu leads to the same
/// places, for trays that show nothing but menus. Main thread only.
class StatusItem final : public QObject {
    Q_OBJECT

public:
    /// `preferences` outlives the item.
    StatusItem(const QIcon& icon, const KarvelloUI::DashboardPreferences& preferences, QObject* parent = nullptr);

    /// Whether somebody can see it now.
    [[nodiscard]] bool isShown() const;
    /// On the screen; empty where the tray does not tell.
    [[nodiscard]] QRect geometry() const { return m_item.geometry(); }

Q_SIGNALS:
    void activated();
    void openRequested(KarvelloUI::KarvelloDashboardLaunchDestination destination);
    void quitRequested();

private:
    void setTexts();

    const KarvelloUI::DashboardPreferences& m_preferences;
    QMenu m_menu;
    QAction* m_dashboard;
    QAction* m_cleanup;
    QAction* m_memory;
    QAction* m_system;
    QAction* m_quit;
    QSystemTrayIcon m_item;
};

} // namespace KarvelloMac
