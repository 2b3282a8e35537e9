#pragma once

#include "KarvelloUI/Screens/Popover/StatusPopoverModel.h"

#include <QObject>
#include <QQuickView>
#include <QRect>
#include <QSize>
#include <memory>

class QQmlEngine;

namespace KarvelloMac {

/// The small window at the tray's item. It goes when the user turns to something else. Main thread only.
class StatusPopover final : public QObject {
    Q_OBJECT

public:
    static constexpr QSize kSize{360, 540};

    /// Both outlive the popover.
    StatusPopover(QQmlEngine& engine, KarvelloUI::StatusPopoverModel& model, QObject* parent = nullptr);

    [[nodiscard]] bool isShown() const { return m_view.isVisible(); }
    /// Beside `item`, a place on the screen; where that is empty, at the pointer.
    void show(const QRect& item);
    void close();
    /// What the user's click on the item does: one that has just closed the popover must not open it again.
    void toggle(const QRect& item);

    /// Where a window of this size goes on a screen that leaves `available` to windows: centred below or above `item`, and
    /// wholly on the screen.
    [[nodiscard]] static QRect placeFor(const QRect& item, const QSize& size, const QRect& available);

private:
    KarvelloUI::StatusPopoverModel& m_model;
    QQuickView m_view;
    bool m_hasJustClosed = false;
};

} // namespace KarvelloMac
