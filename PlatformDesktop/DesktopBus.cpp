#include "PlatformDesktop/DesktopBus.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtDBus/QDBusPendingCallWatcher>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace PlatformDesktop {

using namespace std::chrono_literals;

namespace {

/// A process that ends waits as long for the thread: Qt's own threads go then, too.
constexpr auto kPatienceAtTheEnd = 1s;

QDBusMessage noBus()
{
    return QDBusMessage::createError(QDBusError::Disconnected, QStringLiteral("There is no session bus."));
}

} // namespace

/// What the thread that opens a connection shares with the one that waits for it; it may outlive the bus.
class DesktopBus::Opening {
public:
    Opening(QObject* receiver, std::function<void()> opened)
        : m_receiver(receiver)
        , m_opened(std::move(opened))
    {
    }

    void finish(std::shared_ptr<const SessionBus> bus)
    {
        const std::scoped_lock guard(m_lock);
        m_bus = std::move(bus);
        m_isOver = true;
        if (m_receiver != nullptr) {
            // The lock keeps the receiver alive.
            QMetaObject::invokeMethod(m_receiver, m_opened, Qt::QueuedConnection);
        }
        m_change.notify_all();
    }

    bool waitFor(std::chrono::milliseconds patience)
    {
        std::unique_lock guard(m_lock);
        return m_change.wait_for(guard, patience, [this] { return m_isOver; });
    }

    std::shared_ptr<const SessionBus> takeBus()
    {
        const std::scoped_lock guard(m_lock);
        return std::move(m_bus);
    }

    void forgetReceiver()
    {
        const std::scoped_lock guard(m_lock);
        m_receiver = nullptr;
    }

private:
    std::mutex m_lock;
    std::condition_variable m_change;
    QObject* m_receiver;
    const std::function<void()> m_opened;
    std::shared_ptr<const SessionBus> m_bus;
    bool m_isOver = false;
};

DesktopBus::DesktopBus(Settings settings)
    : m_settings(std::move(settings))
{
}

DesktopBus::~DesktopBus()
{
    if (m_opening) {
        m_opening->forgetReceiver();
        m_opening->waitFor(kPatienceAtTheEnd);
    }
}

void DesktopBus::beginOpening()
{
    if (!m_opening) {
        m_opening = std::make_shared<Opening>(&m_receiver, [this] { takeOver(); });
        std::thread([opening = m_opening, open = m_settings.open] { opening->finish(open()); }).detach();
    }
}

void DesktopBus::takeOver()
{
    if (m_opening && m_opening->waitFor(0ms)) {
        m_bus = m_opening->takeBus();
        m_opening.reset();
        for (const auto& wake : std::exchange(m_waiting, {})) {
            wake();
        }
    }
}

std::shared_ptr<const SessionBus> DesktopBus::waitUntilOpen()
{
    if (m_settings.hasSessionBus && !isOpen()) {
        beginOpening();
        m_opening->waitFor(m_settings.patience);
        takeOver();
    }
    return isOpen() ? m_bus : nullptr;
}

void DesktopBus::whenOpen(QObject* context, Use use)
{
    // Whichever comes first, the connection or the end of the patience.
    const auto once = std::make_shared<Use>(std::move(use));
    const auto answer = [once](const std::shared_ptr<const SessionBus>& bus) {
        if (const auto first = std::exchange(*once, nullptr)) {
            first(bus);
        }
    };
    const auto wake = [this, answer, context = QPointer(context)] {
        if (context) {
            QMetaObject::invokeMethod(
                context, [answer, bus = isOpen() ? m_bus : nullptr] { answer(bus); }, Qt::QueuedConnection);
        }
    };
    if (!m_settings.hasSessionBus || isOpen()) {
        wake();
        return;
    }
    m_waiting.emplace_back(wake);
    QTimer::singleShot(m_settings.patience, context, [answer] { answer(nullptr); });
    beginOpening();
}

void DesktopBus::call(QObject* context, const QDBusMessage& message, std::chrono::milliseconds patience,
    SessionBus::AbsentService absent, Answer answer)
{
    whenOpen(context, [=, answer = std::move(answer)](const std::shared_ptr<const SessionBus>& bus) {
        if (!bus) {
            answer(noBus());
            return;
        }
        auto* const watcher = new QDBusPendingCallWatcher(bus->callLater(message, patience, absent), context);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, answer] {
            const auto reply = watcher->reply();
            // The answer may be the end of the context, and with it of the watcher and of this function.
            const auto lasting = answer;
            watcher->deleteLater();
            lasting(reply);
        });
    });
}

void DesktopBus::find(QObject* context, const QString& name, std::chrono::milliseconds patience,
    SessionBus::AbsentService absent, Found found)
{
    const auto askWhose = [this, context, name, patience, found = std::move(found)] {
        call(context, SessionBus::callOfTheBus("GetNameOwner", {name}), patience, SessionBus::AbsentService::isNotThere,
            [bus = m_bus, found](const QDBusMessage& reply) {
                const bool isKnown =
                    bus && reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("s");
                found(isKnown
                        ? std::optional(Service{.bus = bus, .connection = reply.arguments().constFirst().toString()})
                        : std::nullopt);
            });
    };
    if (absent == SessionBus::AbsentService::isNotThere) {
        whenOpen(context, [askWhose](const auto&) { askWhose(); });
        return;
    }
    // Whether it was started shows in the next answer.
    call(context, SessionBus::callOfTheBus("StartServiceByName", {name, QVariant::fromValue(0U)}), patience,
        SessionBus::AbsentService::isNotThere, [askWhose](const QDBusMessage&) { askWhose(); });
}

} // namespace PlatformDesktop
