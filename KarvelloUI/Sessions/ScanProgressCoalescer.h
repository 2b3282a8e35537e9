#pragma once

#include "CleanerCore/Scan/StorageScanProgress.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>

namespace KarvelloUI {

class JobExecutor;

/// Where the updates of a coalescer go. Called from several threads, but never by two at once; it calls nothing of the
/// coalescer.
struct ScanProgressContinuation {
    std::function<void(CleanerCore::StorageScanProgress)> yield;
    /// The last of all calls.
    std::function<void()> finish = [] {};
};

/// Time as a coalescer knows it.
struct ScanProgressTiming {
    /// Monotonic, in nanoseconds.
    std::function<std::uint64_t()> now;
    /// Makes the call once after the delay, on any thread but not within this call, unless it was asked to stop before.
    std::function<void(std::chrono::nanoseconds delay, std::stop_token stop, std::function<void()> call)> callAfter;

    /// The system's clock; who waits sleeps on a thread of the executor.
    static ScanProgressTiming system(JobExecutor& executor);
};

/// Stands between a scan, which tells its progress for each file that it looks at, and a screen. It lets one update through
/// in each interval and the final one always. The newest is never lost: one that comes too early waits until the interval
/// is over, and gives way to a newer one. Updates arrive in the order in which they were submitted.
///
/// One for each scan; every function may be called from any thread. What it yields is not yielded under the lock that
/// `submit` needs to decide, so a scan is held up by no screen.
class ScanProgressCoalescer {
public:
    static constexpr std::uint64_t kMinimumIntervalNanoseconds = 80'000'000;

    ScanProgressCoalescer(ScanProgressContinuation continuation, ScanProgressTiming timing);
    /// What waits is dropped; `finish` of the continuation is not called.
    ~ScanProgressCoalescer();
    ScanProgressCoalescer(const ScanProgressCoalescer&) = delete;
    ScanProgressCoalescer& operator=(const ScanProgressCoalescer&) = delete;

    void submit(CleanerCore::StorageScanProgress progress);

    enum class Pending : std::uint8_t { publish, drop };
    /// Ends the stream, with what waits as its last update or without it. Nothing is yielded after it. The second call does
    /// nothing.
    void finish(Pending pending);

private:
    class State;

    /// Who sleeps for it knows it weakly.
    std::shared_ptr<State> m_state;
};

} // namespace KarvelloUI
