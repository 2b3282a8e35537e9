#pragma once

#include <QAccessible>
#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <optional>

namespace KarvelloUI {

/// `KarvelloSpoken.role`, `.focusable`, `.checkable`, `.checked`, `.expandable` and `.expanded`: what an item is for
/// assistants, whatever template it is made of. For Qt 6.4 the template decides on the role, writes its own state over
/// what is declared as `Accessible` when an assistant comes, there is no state of things that fold away, and all is enabled:
/// each item with one of these tells also that it is disabled.
class SpokenState : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(KarvelloSpoken)
    QML_ATTACHED(KarvelloUI::SpokenState)
    QML_UNCREATABLE("It belongs to an item.")

    /// Of `Accessible`.
    Q_PROPERTY(int role READ role WRITE setRole FINAL)
    /// Also of a row that is no stop of Tab, since the arrows lead to it.
    Q_PROPERTY(bool focusable READ isFocusable WRITE setFocusable FINAL)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable FINAL)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked FINAL)
    Q_PROPERTY(bool expandable READ isExpandable WRITE setExpandable FINAL)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded FINAL)

public:
    using QObject::QObject;

    static SpokenState* qmlAttachedProperties(QObject* item);
    /// Has assistants ask here, as long as the program runs.
    static void install();

    [[nodiscard]] int role() const { return m_role.value_or(QAccessible::NoRole); }
    [[nodiscard]] bool isFocusable() const { return m_isFocusable.value_or(false); }
    [[nodiscard]] bool isCheckable() const { return m_isCheckable.value_or(false); }
    [[nodiscard]] bool isChecked() const { return m_isChecked.value_or(false); }
    [[nodiscard]] bool isExpandable() const { return m_isExpandable; }
    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }
    void setRole(int role) { m_role = static_cast<QAccessible::Role>(role); }
    void setFocusable(bool isFocusable) { m_isFocusable = isFocusable; }
    void setCheckable(bool isCheckable) { m_isCheckable = isCheckable; }
    void setChecked(bool isChecked);
    void setExpandable(bool isExpandable) { m_isExpandable = isExpandable; }
    void setExpanded(bool isExpanded);

    /// With `known` where nothing is said here.
    [[nodiscard]] QAccessible::Role roleOr(QAccessible::Role known) const { return m_role.value_or(known); }
    [[nodiscard]] QAccessible::State stateOver(QAccessible::State known) const;

private:
    void tell(QAccessible::State changed);

    std::optional<QAccessible::Role> m_role;
    std::optional<bool> m_isFocusable;
    std::optional<bool> m_isCheckable;
    std::optional<bool> m_isChecked;
    bool m_isExpandable = false;
    bool m_isExpanded = false;
};

} // namespace KarvelloUI
