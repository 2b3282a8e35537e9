#pragma once

#include "Platform/Files/FileDescriptor.h"

#include <atomic>
#include <csignal>
#include <stop_token>
#include <thread>

namespace KarvelloCLI {

/// While it lives, the first SIGINT, SIGTERM or SIGHUP asks for a stop, and a second one ends the process at once with
/// `ExitCode::interrupted`. A signal that was ignored before stays ignored, as a shell wants it for background jobs.
/// One at a time in a process; its thread ends with it.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    [[nodiscard]] std::stop_token token() const { return m_stopSource.get_token(); }
    /// From now on a second signal does not end the process: what is being done has to be told and logged.
    void insistOnAnEnd() { m_endsAtOnce = false; }

private:
    void watch(int readEnd);

    std::stop_source m_stopSource;
    Platform::FileDescriptor m_readEnd;
    Platform::FileDescriptor m_writeEnd;
    struct sigaction m_previousInterrupt{};
    struct sigaction m_previousTerminate{};
    struct sigaction m_previousHangUp{};
    std::atomic<bool> m_endsAtOnce{true};
    std::thread m_watcher;
};

} // namespace KarvelloCLI
