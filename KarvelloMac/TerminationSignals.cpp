#include "KarvelloMac/TerminationSignals.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace KarvelloMac {

TerminationSignals::TerminationSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&signals, signal);
    }
    m_descriptor = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    // Where nobody would read them, they keep their usual effect.
    if (m_descriptor >= 0) {
        ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    m_notifier.reset();
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
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
