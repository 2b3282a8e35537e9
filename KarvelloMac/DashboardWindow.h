#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Shell/DashboardScreens.h"

#include <QList>
#include <QQuickWindow>
#include <QSize>
#include <QWindow>
#include <memory>

class QQmlEngine;
class QIcon;

namespace KarvelloMac {

/// The dashboard with its window and all that it shows. Closing hides the window; what it shows stays.
class DashboardWindow {
public:
    static constexpr QSize kSize{1240, 820};
    static constexpr QSize kMinimumSize{1180, 780};

    /// `engine` and `dashboard` outlive the window.
    DashboardWindow(QQmlEngine& engine, KarvelloUI::MacCleanerDashboardModel& dashboard, const QIcon& icon);

    /// Null if the screens could not be loaded, which only a broken installation brings about.
    [[nodiscard]] QQuickWindow* window() const { return m_window.get(); }

    /// Where it opens on a screen: in the middle, no larger than the screen unless its smallest size is.
    [[nodiscard]] static QRect placeOn(const QRect& available);
    /// The first of these windows that is the dashboard's, and can take the keyboard; nothing for panels and popups.
    [[nodiscard]] static QWindow* primary(const QList<QWindow*>& windows);
    /// In front of everything, and out of the task bar.
    static void bringForward(QWindow& window);

private:
    KarvelloUI::DashboardScreens m_screens;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace KarvelloMac
