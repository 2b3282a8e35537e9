#pragma once

#include "Platform/Services/SystemStatistics.h"

#include <mutex>
#include <optional>

namespace CleanerCore {

/// How busy the processors were between two looks at their counters, whoever took them. May be used from any thread.
class CPUUsageSampler {
public:
    /// The one that all snapshots of this process share.
    static CPUUsageSampler& shared();

    /// From 0 to 1, since the call before. Nothing on the first call, if the counters did not move, and if they cannot
    /// be read; only the last leaves the previous look in place.
    [[nodiscard]] std::optional<double> currentCPUUsageFraction(const Platform::SystemStatistics& statistics);

private:
    std::mutex m_lock;
    std::optional<Platform::CPUTicks> m_previousSample;
};

} // namespace CleanerCore
