#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace KarvelloMac {

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the main thread, so that work that has begun comes to a true end. One at
/// a time; make it before any other thread, which would take the signals otherwise.
class TerminationSignals {
public:
    /// Blocks the signals for all threads to come. Programs that are started later get them as usual.
    TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals();

    /// From now on, `requested` is called for each. Needs the application object.
    void watch(std::function<void()> requested);
    /// From now on they end the process, also what came and was not told.
    void release();

private:
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace KarvelloMac
