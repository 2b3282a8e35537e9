#include "KarvelloUI/Controls/PageKeyboard.h"

#include <QQuickWindow>
#include <QVariant>
#include <algorithm>
#include <vector>

namespace KarvelloUI {

bool canHaveKeyboard(const QQuickItem* item)
{
    return item != nullptr && item->window() != nullptr && item->isVisible() && item->isEnabled();
}

Qt::FocusReason reasonToReturn(const QQuickItem* item, Qt::FocusReason otherwise)
{
    return item != nullptr && item->property("visualFocus").toBool() ? Qt::TabFocusReason : otherwise;
}

namespace {

QQuickItem* firstStopOf(QQuickItem* item)
{
    if (item->activeFocusOnTab()) {
        return item;
    }
    QQuickItem* const next = item->nextItemInFocusChain();
    return canHaveKeyboard(next) && item->isAncestorOf(next) ? next : nullptr;
}

std::vector<const QQuickItem*> pathTo(const QQuickItem* item)
{
    std::vector<const QQuickItem*> path;
    for (; item != nullptr; item = item->parentItem()) {
        path.push_back(item);
    }
    std::ranges::reverse(path);
    return path;
}

/// In the order of Tab, in which an item comes before what it holds.
bool comesBefore(const QQuickItem* one, const QQuickItem* other)
{
    const auto path = pathTo(one);
    const auto otherPath = pathTo(other);
    const auto [parting, otherParting] = std::ranges::mismatch(path, otherPath);
    if (parting == path.end() || otherParting == otherPath.end()) {
        return parting == path.end() && otherParting != otherPath.end();
    }
    const auto siblings = (*parting)->parentItem()->childItems();
    return siblings.indexOf(*parting) < siblings.indexOf(*otherParting);
}

} // namespace

PageKeyboard::PageKeyboard(QObject* parent)
    : QObject(parent)
{
    m_later.setSingleShot(true);
    m_later.setInterval(0);
    connect(&m_later, &QTimer::timeout, this, &PageKeyboard::settle);
}

PageKeyboard* PageKeyboard::of(const QQuickItem* scope)
{
    const auto ownOf = [](const QQuickItem* item) {
        return item->findChild<PageKeyboard*>(QString(), Qt::FindDirectChildrenOnly);
    };
    if (auto* const own = ownOf(scope)) {
        return own;
    }
    for (const QQuickItem* const child : scope->childItems()) {
        if (auto* const own = child->isVisible() ? ownOf(child) : nullptr) {
            return own;
        }
    }
    return nullptr;
}

void PageKeyboard::follow(QQuickItem* focused)
{
    if (m_page != nullptr && focused != nullptr && m_page->isAncestorOf(focused)) {
        if (focused != m_last) {
            disconnect(m_lastHidden);
            m_lastHidden = connect(focused, &QQuickItem::visibleChanged, this, [this] { m_later.start(); });
        }
        m_last = focused;
        m_hadKeyboard = true;
        m_reason = reasonToReturn(focused, Qt::OtherFocusReason);
    }
    m_later.start();
}

void PageKeyboard::settle()
{
    if (!m_hadKeyboard || !canHaveKeyboard(m_page)) {
        return;
    }
    QQuickItem* const focused = m_page->window()->activeFocusItem();
    if (focused == nullptr) {
        return;
    }
    if (canHaveKeyboard(m_last)) {
        if (focused == m_last) {
            m_reason = reasonToReturn(m_last, Qt::OtherFocusReason);
        }
    } else if (focused == m_last || focused == m_page || focused->isAncestorOf(m_page)) {
        land(m_reason);
    }
}

void PageKeyboard::land(Qt::FocusReason reason)
{
    if (QQuickItem* const item = landing()) {
        item->forceActiveFocus(reason);
    }
}

QQuickItem* PageKeyboard::landing() const
{
    for (QQuickItem* const wanted : m_landings) {
        QQuickItem* const stop = canHaveKeyboard(wanted) ? firstStopOf(wanted) : nullptr;
        if (stop != nullptr) {
            return stop;
        }
    }
    if (m_last != nullptr) {
        // The chain is a ring, and its other end is not near.
        const auto isInPage = [this](const QQuickItem* item) {
            return canHaveKeyboard(item) && m_page->isAncestorOf(item);
        };
        QQuickItem* const before = m_last->nextItemInFocusChain(false);
        if (isInPage(before) && comesBefore(before, m_last)) {
            return before;
        }
        QQuickItem* const after = m_last->nextItemInFocusChain(true);
        if (isInPage(after) && comesBefore(m_last, after)) {
            return after;
        }
    }
    QQuickItem* const next = m_page->nextItemInFocusChain();
    return canHaveKeyboard(next) ? next : nullptr;
}

} // namespace KarvelloUI
