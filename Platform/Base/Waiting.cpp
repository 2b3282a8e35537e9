#include "Platform/Base/Waiting.h"

#include <condition_variable>
#include <mutex>

namespace Platform {

void waitUnlessStopped(std::chrono::milliseconds time, const std::stop_token& stop)
{
    std::mutex lock;
    std::unique_lock guard(lock);
    std::condition_variable_any never;
    never.wait_for(guard, stop, time, [] { return false; });
}

} // namespace Platform
