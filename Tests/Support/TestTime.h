#pragma once

#include "KarvelloUI/Stores/DelayedCall.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace TestSupport {

inline constexpr std::uint64_t kSecond = 1'000'000'000;

/// A clock that a test sets, in nanoseconds, and the one call that waits by it.
struct TestTime {
    std::uint64_t now = 1000 * kSecond;
    std::optional<std::uint64_t> dueAt;
    std::function<void()> call;

    void goOn(std::uint64_t seconds)
    {
        const auto end = now + seconds * kSecond;
        while (dueAt && *dueAt <= end) {
            now = *std::exchange(dueAt, std::nullopt);
            std::exchange(call, nullptr)();
        }
        now = end;
    }
};

class TestCall final : public KarvelloUI::DelayedCall {
public:
    /// `time` must outlive the call.
    explicit TestCall(TestTime& time)
        : m_time(time)
    {
    }
    ~TestCall() override { m_time.dueAt.reset(); }
    TestCall(const TestCall&) = delete;
    TestCall& operator=(const TestCall&) = delete;

    void start(std::chrono::nanoseconds delay, std::function<void()> call) override
    {
        m_time.dueAt = m_time.now + static_cast<std::uint64_t>(delay.count());
        m_time.call = std::move(call);
    }
    void cancel() override { m_time.dueAt.reset(); }

private:
    TestTime& m_time;
};

} // namespace TestSupport
