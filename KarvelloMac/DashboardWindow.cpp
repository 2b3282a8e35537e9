#include "KarvelloMac/DashboardWindow.h"

#include "KarvelloUI/Stores/KarvelloWindowID.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>
#include <QVariant>
#include <algorithm>

namespace KarvelloMac {

namespace {

QString identifier()
{
    return QString::fromUtf8(KarvelloUI::KarvelloWindowID::dashboard.data(),
        static_cast<qsizetype>(KarvelloUI::KarvelloWindowID::dashboard.size()));
}

} // namespace

DashboardWindow::DashboardWindow(QQmlEngine& engine, KarvelloUI::MacCleanerDashboardModel& dashboard, const QIcon& icon)
    : m_screens(dashboard)
{
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qt/qml/Karvello/Shell/DashboardWindow.qml")));
    // Qt 6.4 crashes over the initial properties of one that could not be loaded.
    if (!component.isReady()) {
        qCritical("%s", qUtf8Printable(component.errorString()));
        return;
    }
    auto* const object =
        component.createWithInitialProperties({{QStringLiteral("screens"), QVariant::fromValue(&m_screens)}});
    m_window.reset(qobject_cast<QQuickWindow*>(object));
    if (!m_window) {
        qCritical("%s", qUtf8Printable(component.errorString()));
        delete object;
        return;
    }
    m_window->setTitle(QStringLiteral("Karvello"));
    m_window->setObjectName(identifier());
    m_window->setIcon(icon);
    m_window->resize(kSize);
    m_window->setMinimumSize(kMinimumSize);
    if (const auto* const screen = m_window->screen()) {
        m_window->setGeometry(placeOn(screen->availableGeometry()));
    }
    QObject::connect(
        m_window.get(), &QWindow::visibilityChanged, &dashboard, [&dashboard](QWindow::Visibility visibility) {
            dashboard.setWindowVisible(visibility != QWindow::Hidden && visibility != QWindow::Minimized);
        });
}

QRect DashboardWindow::placeOn(const QRect& available)
{
    QRect place(QPoint(), kSize.boundedTo(available.size()).expandedTo(kMinimumSize));
    place.moveCenter(available.center());
    // What does not fit hangs over at the right and below, never where the window is taken hold of.
    place.moveLeft(std::max(place.left(), available.left()));
    place.moveTop(std::max(place.top(), available.top()));
    return place;
}

QWindow* DashboardWindow::primary(const QList<QWindow*>& windows)
{
    for (QWindow* const window : windows) {
        const bool isPanel = window->type() != Qt::Window;
        const bool canBecomeKey = !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
        if (window->objectName() == identifier() && canBecomeKey && !isPanel) {
            return window;
        }
    }
    return nullptr;
}

void DashboardWindow::bringForward(QWindow& window)
{
    if (window.windowStates().testFlag(Qt::WindowMinimized)) {
        window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    }
    // `show` would take a window that fills the screen back to its own size.
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}

} // namespace KarvelloMac
