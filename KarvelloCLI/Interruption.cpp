#include "KarvelloCLI/Interruption.h"

#include "KarvelloCLI/ExitCode.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>

namespace KarvelloCLI {

namespace {

enum class Note : char { signal = 's', end = 'e' };

/// What the handler writes to. A handler may only touch lock-free atomics and make a few system calls.
std::atomic<int> noteDescriptor{-1};
static_assert(std::atomic<int>::is_always_lock_free);

void writeNote(int descriptor, Note note)
{
    const char byte = static_cast<char>(note);
    while (::write(descriptor, &byte, 1) < 0 && errno == EINTR) {}
}

extern "C" void noteSignal(int)
{
    const int savedError = errno;
    writeNote(noteDescriptor.load(), Note::signal);
    errno = savedError;
}

void install(int signal, struct sigaction& previous)
{
    sigaction(signal, nullptr, &previous);
    if (previous.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action{};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

} // namespace

Interruption::Interruption()
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0) {
        return; // No descriptors left: the signals keep their old meaning.
    }
    m_readEnd = Platform::FileDescriptor(ends[0]);
    m_writeEnd = Platform::FileDescriptor(ends[1]);
    for (const int end : ends) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    // A flood of signals must not block the handler; one note too few does no harm.
    fcntl(m_writeEnd.get(), F_SETFL, O_NONBLOCK);

    noteDescriptor = m_writeEnd.get();
    m_watcher = std::thread([this, readEnd = m_readEnd.get()] { watch(readEnd); });
    install(SIGINT, m_previousInterrupt);
    install(SIGTERM, m_previousTerminate);
    install(SIGHUP, m_previousHangUp);
}

Interruption::~Interruption()
{
    if (!m_watcher.joinable()) {
        return;
    }
    sigaction(SIGINT, &m_previousInterrupt, nullptr);
    sigaction(SIGTERM, &m_previousTerminate, nullptr);
    sigaction(SIGHUP, &m_previousHangUp, nullptr);
    writeNote(m_writeEnd.get(), Note::end);
    m_watcher.join();
    noteDescriptor = -1;
}

void Interruption::watch(int readEnd)
{
    char note = 0;
    for (;;) {
        const auto count = ::read(readEnd, &note, 1);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count != 1 || note == static_cast<char>(Note::end)) {
            return;
        }
        if (m_stopSource.stop_requested() && m_endsAtOnce) {
            _exit(static_cast<int>(ExitCode::interrupted));
        }
        m_stopSource.request_stop();
    }
}

} // namespace KarvelloCLI
