#include "KarvelloMac/TerminationSignals.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace KarvelloMac {

namespace {

sigset_t terminationSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&signals, signal);
    }
    return signals;
}

void unblock()
{
    const auto signals = terminationSignals();
    ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals()
{
    const auto signals = terminationSignals();
    m_descriptor = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    // Where nobody would read them, they keep their usual effect.
    if (m_descriptor >= 0) {
        ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
        // What is blocked here stays blocked in a program that a child of this process becomes.
        ::pthread_atfork(nullptr, nullptr, unblock);
    }
}

TerminationSignals::~TerminationSignals()
{
    release();
}

void TerminationSignals::release()
{
    m_notifier.reset();
    if (m_descriptor >= 0) {
        ::close(std::exchange(m_descriptor, -1));
        unblock();
    }
}

void TerminationSignals::watch(std::function<void()> requested)
{
    if (m_descriptor < 0) {
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
        [descriptor = m_descriptor, requested = std::move(requested)] {
            signalfd_siginfo information{};
            while (::read(descriptor, &information, sizeof information) == sizeof information) {}
            requested();
        });
}

} // namespace KarvelloMac
