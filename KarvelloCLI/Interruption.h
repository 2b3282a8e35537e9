#pragma once

#include "Platform/Files/FileDescriptor.h"

#include <csignal>
#include <stop_token>
#include <thread>

namespace KarvelloCLI {

/// While it lives, the first SIGINT or SIGTERM asks for a stop, and a second one ends the process at once with
/// `ExitCode::interrupted`. A signal that was ignored before stays ignored, as a shell wants it for background jobs.
/// One at a time in a process; its thread ends with it.
class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    [[nodiscard]] std::stop_token token() const { return m_stopSource.get_token(); }

private:
    void watch(int readEnd);

    std::stop_source m_stopSource;
    Platform::FileDescriptor m_readEnd;
    Platform::FileDescriptor m_writeEnd;
    struct sigaction m_previousInterrupt{};
    struct sigaction m_previousTerminate{};
    std::thread m_watcher;
};

} // namespace KarvelloCLI
