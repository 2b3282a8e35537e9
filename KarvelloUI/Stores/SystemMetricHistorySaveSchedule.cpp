#include "KarvelloUI/Stores/SystemMetricHistorySaveSchedule.h"

#include <algorithm>

namespace KarvelloUI {

SystemMetricHistorySaveSchedule::Decision SystemMetricHistorySaveSchedule::accept(
    std::int64_t sequence, std::uint64_t uptimeNanoseconds)
{
    if (sequence <= m_latestAcceptedSequence) {
        return Decision::ignore;
    }
    m_latestAcceptedSequence = sequence;
    const auto first = m_firstDeferredUptime.value_or(uptimeNanoseconds);
    if (m_maximumDeferral != 0 && uptimeNanoseconds - first >= m_maximumDeferral) {
        m_firstDeferredUptime.reset();
        return Decision::saveNow;
    }
    m_firstDeferredUptime = first;
    return Decision::saveLater;
}

bool SystemMetricHistorySaveSchedule::finishWaiting(std::int64_t sequence)
{
    if (sequence != m_latestAcceptedSequence) {
        return false;
    }
    m_firstDeferredUptime.reset();
    return true;
}

void SystemMetricHistorySaveSchedule::flush(std::int64_t sequence)
{
    m_latestAcceptedSequence = std::max(m_latestAcceptedSequence, sequence);
    m_firstDeferredUptime.reset();
}

} // namespace KarvelloUI
