#include "KarvelloUI/Controls/SpokenState.h"

#include <QAccessibleObject>
#include <QQuickItem>
#include <QScopedValueRollback>
#include <utility>

namespace KarvelloUI {

namespace {

/// What Qt Quick tells of an item, but for its role and state.
class SpokenItem final : public QAccessibleObject {
public:
    /// Both live as long as the item.
    SpokenItem(QAccessibleInterface& known, const SpokenState& spoken)
        : QAccessibleObject(known.object())
        , m_known(known)
        , m_spoken(spoken)
    {
    }

    [[nodiscard]] QAccessible::Role role() const override { return m_spoken.roleOr(m_known.role()); }
    [[nodiscard]] QAccessible::State state() const override { return m_spoken.stateOver(m_known.state()); }

    [[nodiscard]] bool isValid() const override { return m_known.isValid(); }
    [[nodiscard]] QWindow* window() const override { return m_known.window(); }
    [[nodiscard]] QRect rect() const override { return m_known.rect(); }
    [[nodiscard]] QAccessibleInterface* parent() const override { return m_known.parent(); }
    [[nodiscard]] int childCount() const override { return m_known.childCount(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override { return m_known.child(index); }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override { return m_known.childAt(x, y); }
    [[nodiscard]] QAccessibleInterface* focusChild() const override { return m_known.focusChild(); }
    int indexOfChild(const QAccessibleInterface* child) const override { return m_known.indexOfChild(child); }
    [[nodiscard]] QString text(QAccessible::Text kind) const override { return m_known.text(kind); }
    void setText(QAccessible::Text kind, const QString& text) override { m_known.setText(kind, text); }
    void* interface_cast(QAccessible::InterfaceType type) override { return m_known.interface_cast(type); }

private:
    QAccessibleInterface& m_known;
    const SpokenState& m_spoken;
};

/// Asked with each class of the object, the most derived first; Qt Quick answers to that of all items.
QAccessibleInterface* makeSpokenItem(const QString& /*className*/, QObject* object)
{
    static const QObject* asked = nullptr;
    if (object == nullptr || object == asked) {
        return nullptr;
    }
    const auto* const spoken = object->findChild<SpokenState*>(QString(), Qt::FindDirectChildrenOnly);
    if (spoken == nullptr) {
        return nullptr;
    }
    const QScopedValueRollback<const QObject*> asking(asked, object);
    auto* const known = QAccessible::queryAccessibleInterface(object);
    return known == nullptr ? nullptr : new SpokenItem(*known, *spoken);
}

} // namespace

SpokenState* SpokenState::qmlAttachedProperties(QObject* item)
{
    // A text that was set before has been told of already, by what would be asked again then.
    if (auto* const early = QAccessible::queryAccessibleInterface(item)) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
    }
    auto* const spoken = new SpokenState(item);
    if (const auto* const shown = qobject_cast<QQuickItem*>(item)) {
        connect(shown, &QQuickItem::enabledChanged, spoken, [spoken] {
            QAccessible::State changed;
            changed.disabled = true;
            spoken->tell(changed);
        });
    }
    return spoken;
}

void SpokenState::install()
{
    QAccessible::installFactory(&makeSpokenItem);
}

void SpokenState::setChecked(bool isChecked)
{
    if (std::exchange(m_isChecked, isChecked) != isChecked) {
        QAccessible::State changed;
        changed.checked = true;
        tell(changed);
    }
}

void SpokenState::setExpanded(bool isExpanded)
{
    if (std::exchange(m_isExpanded, isExpanded) != isExpanded) {
        QAccessible::State changed;
        changed.expanded = true;
        tell(changed);
    }
}

QAccessible::State SpokenState::stateOver(QAccessible::State known) const
{
    if (m_isFocusable) {
        known.focusable = *m_isFocusable;
    }
    if (m_isCheckable) {
        known.checkable = *m_isCheckable;
    }
    if (m_isChecked) {
        known.checked = *m_isChecked;
    }
    const auto* const item = qobject_cast<const QQuickItem*>(parent());
    known.disabled = item != nullptr && !item->isEnabled();
    known.expandable = m_isExpandable;
    known.expanded = m_isExpandable && m_isExpanded;
    known.collapsed = m_isExpandable && !m_isExpanded;
    return known;
}

void SpokenState::tell(QAccessible::State changed)
{
    if (QAccessible::isActive()) {
        QAccessibleStateChangeEvent event(parent(), changed);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace KarvelloUI
