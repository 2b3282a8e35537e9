#pragma once

#include <functional>

namespace KarvelloUI {

/// Where the background work of sessions runs. It outlives every job that uses it.
class JobExecutor {
public:
    using Work = std::move_only_function<void()>;

    virtual ~JobExecutor() = default;

    /// Runs `work` once, now or later, on any thread but never within this call: the caller is not held up. Work that is
    /// handed over is never forgotten. May be called from any thread.
    virtual void execute(Work work) = 0;
};

} // namespace KarvelloUI
