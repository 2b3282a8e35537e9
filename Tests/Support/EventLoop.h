#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <chrono>
#include <concepts>

namespace TestSupport {

/// The event loop of the test's thread. Make one before the first object that waits for events.
class EventLoop {
public:
    EventLoop()
    {
        // Programs that show something have made an application of their own.
        if (QCoreApplication::instance() == nullptr) {
            static int count = 1;
            static char name[] = "tests";
            static char* arguments[] = {name, nullptr};
            static QCoreApplication application(count, arguments);
        }
    }

    /// Handles the events that wait, and those that they lead to at once.
    void handleEvents()
    {
        while (QCoreApplication::eventDispatcher()->processEvents(QEventLoop::AllEvents)) {}
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Handles events until `condition` holds; false if it does not within the time.
    template <std::predicate Condition>
    [[nodiscard]] bool runUntil(Condition condition, std::chrono::seconds limit = std::chrono::seconds(20))
    {
        const auto end = std::chrono::steady_clock::now() + limit;
        while (!condition()) {
            if (std::chrono::steady_clock::now() > end) {
                return false;
            }
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
        }
        return true;
    }
};

} // namespace TestSupport
