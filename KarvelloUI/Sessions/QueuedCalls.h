#pragma once

#include <functional>
#include <memory>

namespace KarvelloUI {

/// The way back from any thread to the thread of an owner: calls that are left here are made there, one after another, by
/// that thread's event loop.
///
/// It belongs to the thread that made it. When it is destroyed, at any moment, from within one of its calls too, the
/// calls that were not made are forgotten, and none is accepted any more.
class QueuedCalls {
public:
    using Call = std::move_only_function<void()>;

    QueuedCalls();
    ~QueuedCalls();
    QueuedCalls(const QueuedCalls&) = delete;
    QueuedCalls& operator=(const QueuedCalls&) = delete;

    class Inbox;
    /// What other threads hold: it may outlive this object, and then takes nothing any more.
    class Entrance {
    public:
        /// Leaves a call, from any thread. False if the owner has gone; the call is destroyed here then.
        bool post(Call call) const;

    private:
        friend class QueuedCalls;
        explicit Entrance(std::shared_ptr<Inbox> inbox);

        std::shared_ptr<Inbox> m_inbox;
    };
    [[nodiscard]] Entrance entrance() const;

private:
    class Receiver;

    std::shared_ptr<Inbox> m_inbox;
    std::unique_ptr<Receiver> m_receiver;
};

} // namespace KarvelloUI
