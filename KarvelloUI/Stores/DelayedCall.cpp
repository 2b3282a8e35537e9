#include "KarvelloUI/Stores/DelayedCall.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace KarvelloUI {

TimedCall::TimedCall()
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { std::exchange(m_call, nullptr)(); });
}

void TimedCall::start(std::chrono::nanoseconds delay, std::function<void()> call)
{
    m_call = std::move(call);
    // What the timer can count: some 24 days.
    constexpr std::chrono::milliseconds longest{std::numeric_limits<int>::max()};
    m_timer.start(
        std::clamp(std::chrono::ceil<std::chrono::milliseconds>(delay), std::chrono::milliseconds(0), longest));
}

void TimedCall::cancel()
{
    m_timer.stop();
    m_call = nullptr;
}

} // namespace KarvelloUI
