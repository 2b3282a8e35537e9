#include "KarvelloMac/StatusPopover.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QVariant>
#include <algorithm>

namespace KarvelloMac {

namespace {

/// In this time after the popover has closed by itself, a click on the item is the one that closed it.
constexpr int kClickMilliseconds = 250;
constexpr int kDistance = 4;

} // namespace

StatusPopover::StatusPopover(QQmlEngine& engine, KarvelloUI::StatusPopoverModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_view(&engine, nullptr)
{
    m_view.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_view.setTitle(QStringLiteral("Karvello"));
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setMinimumSize(kSize);
    m_view.setMaximumSize(kSize);
    m_view.setInitialProperties({{QStringLiteral("popover"), QVariant::fromValue(&model)}});
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Karvello/Screens/Popover/StatusPopover.qml")));
    connect(&model, &KarvelloUI::StatusPopoverModel::closeRequested, this, &StatusPopover::close);
    connect(&m_view, &QWindow::activeChanged, this, [this] {
        if (!m_view.isActive() && m_view.isVisible()) {
            close();
            m_hasJustClosed = true;
            QTimer::singleShot(kClickMilliseconds, this, [this] { m_hasJustClosed = false; });
        }
    });
    connect(&m_view, &QWindow::visibleChanged, this, [this](bool isVisible) { m_model.setVisible(isVisible); });
}

QRect StatusPopover::placeFor(const QRect& item, const QSize& size, const QRect& available)
{
    QRect place(QPoint(), size);
    place.moveLeft(item.center().x() - size.width() / 2);
    const bool isInLowerHalf = item.center().y() > available.center().y();
    if (isInLowerHalf) {
        place.moveBottom(item.top() - kDistance);
    } else {
        place.moveTop(item.bottom() + kDistance);
    }
    place.moveLeft(
        std::clamp(place.left(), available.left(), std::max(available.left(), available.right() + 1 - size.width())));
    place.moveTop(
        std::clamp(place.top(), available.top(), std::max(available.top(), available.bottom() + 1 - size.height())));
    return place;
}

void StatusPopover::show(const QRect& item)
{
    const QRect anchor = item.isEmpty() ? QRect(QCursor::pos(), QSize(1, 1)) : item;
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    if (screen != nullptr) {
        m_view.setGeometry(placeFor(anchor, kSize, screen->availableGeometry()));
    }
    m_view.show();
    m_view.raise();
    m_view.requestActivate();
}

void StatusPopover::close()
{
    m_view.hide();
}

void StatusPopover::toggle(const QRect& item)
{
    if (isShown()) {
        close();
    } else if (!m_hasJustClosed) {
        show(item);
    }
}

} // namespace KarvelloMac
