#include "KarvelloUI/Controls/FocusReturn.h"

#include "KarvelloUI/Controls/PageKeyboard.h"

#include <QQuickWindow>
#include <algorithm>
#include <utility>

namespace KarvelloUI {

void FocusReturn::remember(QQuickItem* opener)
{
    m_opener = opener;
    m_reason = reasonToReturn(opener, Qt::PopupFocusReason);
    m_scopes.clear();
    for (QQuickItem* item = opener; item != nullptr; item = item->parentItem()) {
        if (item->isFocusScope()) {
            m_scopes.emplace_back(item);
        }
    }
}

void FocusReturn::give()
{
    const QPointer<QQuickItem> opener = std::exchange(m_opener, nullptr);
    const auto scopes = std::exchange(m_scopes, {});
    if (canHaveKeyboard(opener)) {
        opener->forceActiveFocus(m_reason);
        return;
    }
    const auto scope = std::ranges::find_if(scopes, [](const auto& item) { return canHaveKeyboard(item); });
    if (scope == scopes.end()) {
        return;
    }
    (*scope)->forceActiveFocus(m_reason);
    const QQuickItem* const focused = (*scope)->window()->activeFocusItem();
    const bool isStop =
        focused != nullptr && canHaveKeyboard(focused) && (!focused->isFocusScope() || focused->activeFocusOnTab());
    if (PageKeyboard* const page = focused == nullptr || isStop ? nullptr : PageKeyboard::of(focused)) {
        page->land(m_reason);
    }
}

} // namespace KarvelloUI
