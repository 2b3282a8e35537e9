#include "KarvelloUI/Sessions/QueuedCalls.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QThread>
#include <deque>
#include <mutex>
#include <utility>

namespace KarvelloUI {

namespace {

QEvent::Type wakeUp()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace

/// While calls wait, exactly one event is on its way to the receiver. It carries nothing: all that threads share stands
/// under this lock.
class QueuedCalls::Inbox {
public:
    explicit Inbox(QObject* receiver)
        : m_receiver(receiver)
    {
    }

    bool post(Call& call)
    {
        const std::scoped_lock guard(m_lock);
        if (m_receiver == nullptr) {
            return false;
        }
        m_calls.push_back(std::move(call));
        if (m_calls.size() == 1) {
            postWakeUp();
        }
        return true;
    }

    /// One call for each event: a nested event loop in a call finds the next ones, in their order.
    void makeNextCall()
    {
        Call call;
        {
            const std::scoped_lock guard(m_lock);
            if (m_calls.empty()) {
                return;
            }
            call = std::move(m_calls.front());
            m_calls.pop_front();
            if (!m_calls.empty()) {
                postWakeUp();
            }
        }
        call();
    }

    /// Returns when nobody is about to leave a call.
    void waitForPosting() { const std::scoped_lock guard(m_lock); }

    void close()
    {
        std::deque<Call> forgotten;
        const std::scoped_lock guard(m_lock);
        m_receiver = nullptr;
        // They go behind the lock: what they hold may have destructors of any kind.
        forgotten.swap(m_calls);
    }

private:
    /// Under the lock, which keeps the receiver alive.
    void postWakeUp() { QCoreApplication::postEvent(m_receiver, new QEvent(wakeUp())); }

    std::mutex m_lock;
    QObject* m_receiver;
    std::deque<Call> m_calls;
};

class QueuedCalls::Receiver final : public QObject {
public:
    [[nodiscard]] const std::shared_ptr<Inbox>& inbox() const { return m_inbox; }

protected:
    bool event(QEvent* event) override
    {
        // Events come through Qt's own locks, which ThreadSanitizer cannot see; each was made under this one.
        m_inbox->waitForPosting();
        if (event->type() != wakeUp()) {
            return QObject::event(event);
        }
        // The call may end the owner, and this object with it: nothing of it is touched behind the call.
        const auto inbox = m_inbox;
        inbox->makeNextCall();
        return true;
    }

private:
    std::shared_ptr<Inbox> m_inbox = std::make_shared<Inbox>(this);
};

QueuedCalls::QueuedCalls()
    : m_receiver(std::make_unique<Receiver>())
{
    m_inbox = m_receiver->inbox();
}

QueuedCalls::~QueuedCalls()
{
    Q_ASSERT(QThread::currentThread() == m_receiver->thread());
    m_inbox->close();
}

QueuedCalls::Entrance QueuedCalls::entrance() const
{
    return Entrance(m_inbox);
}

QueuedCalls::Entrance::Entrance(std::shared_ptr<Inbox> inbox)
    : m_inbox(std::move(inbox))
{
}

bool QueuedCalls::Entrance::post(Call call) const
{
    return m_inbox->post(call);
}

} // namespace KarvelloUI
