#pragma once

#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QQmlListProperty>
#include <QQuickItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// Whether the keyboard can be in `item`: it is there, can be seen, and is enabled.
[[nodiscard]] bool canHaveKeyboard(const QQuickItem* item);
/// The reason that lets `item` show its focus only where it showed it so far.
[[nodiscard]] Qt::FocusReason reasonToReturn(const QQuickItem* item, Qt::FocusReason otherwise);

/// Keeps the keyboard in a page: what has it may disappear or be disabled, such as a button that begins some work, and Qt
/// would leave it to nothing that can be seen. It goes to one of `landings` then, or else to the nearest stop of Tab.
class PageKeyboard : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(KarvelloPageKeyboard)
    Q_PROPERTY(QQuickItem* page READ page WRITE setPage FINAL)
    /// The best first: stops of Tab, or what has some in it. Those that cannot have it are passed over.
    Q_PROPERTY(QQmlListProperty<QQuickItem> landings READ landings FINAL)

public:
    explicit PageKeyboard(QObject* parent = nullptr);

    /// That of the page which `scope` is or holds; none where there is no page.
    [[nodiscard]] static PageKeyboard* of(const QQuickItem* scope);

    [[nodiscard]] QQuickItem* page() const { return m_page; }
    void setPage(QQuickItem* page) { m_page = page; }
    [[nodiscard]] QQmlListProperty<QQuickItem> landings() { return {this, &m_landings}; }

    /// `focused` is what has the keyboard in the window now, possibly nothing.
    Q_INVOKABLE void follow(QQuickItem* focused);
    void land(Qt::FocusReason reason);

private:
    void settle();
    [[nodiscard]] QQuickItem* landing() const;

    QPointer<QQuickItem> m_page;
    QList<QQuickItem*> m_landings;
    /// The last in the page that had it.
    QPointer<QQuickItem> m_last;
    QMetaObject::Connection m_lastHidden;
    bool m_hadKeyboard = false;
    Qt::FocusReason m_reason = Qt::OtherFocusReason;
    /// Others may be about to give it to something.
    QTimer m_later;
};

} // namespace KarvelloUI
