#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace KarvelloUI {

/// Gives the keyboard back to what opened a dialog or a menu. What cannot have it any more is passed over for the page
/// that it is on, or for the one that is shown instead.
class FocusReturn : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(KarvelloFocusReturn)

public:
    using QObject::QObject;

    /// `opener` has the keyboard now.
    Q_INVOKABLE void remember(QQuickItem* opener);
    /// Once for each time that something was remembered.
    Q_INVOKABLE void give();

private:
    QPointer<QQuickItem> m_opener;
    /// Those around it, the innermost first.
    std::vector<QPointer<QQuickItem>> m_scopes;
    Qt::FocusReason m_reason = Qt::PopupFocusReason;
};

} // namespace KarvelloUI
