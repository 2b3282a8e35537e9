#pragma once

#include <QFlags>
#include <QPointer>
#include <QtGlobal>
#include <array>
#include <cstddef>
#include <utility>

namespace KarvelloUI {

/// Tells the observers of a session what has changed, signal by signal in the order of the table. Any of them may destroy
/// the session: nobody is told more then, and the answer is false. Who does not look at it touches the session no more.
template <typename Session, typename Change, std::size_t count>
bool announceChanges(
    Session& session, QFlags<Change> changes, const std::array<std::pair<Change, void (Session::*)()>, count>& signalOf)
{
    const QPointer<Session> living(&session);
    for (const auto& [change, signal] : signalOf) {
        if (living && changes.testFlag(change)) {
            Q_EMIT(session.*signal)();
        }
    }
    return !living.isNull();
}

} // namespace KarvelloUI
