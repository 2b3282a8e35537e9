#include "KarvelloUI/Sessions/Job.h"

namespace KarvelloUI {

Job::Job(JobExecutor& executor)
    : m_executor(executor)
{
}

Job::~Job()
{
    cancel();
}

void Job::requestStop()
{
    if (m_run != nullptr) {
        m_stop.request_stop();
    }
}

void Job::cancel()
{
    // What the run calls back is destroyed last: it may hold anything.
    const auto dropped = std::exchange(m_run, nullptr);
    if (dropped != nullptr) {
        m_stop.request_stop();
    }
}

} // namespace KarvelloUI
