#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

namespace KarvelloUI {

/// One call that is to be made later on the main thread, never within `start`.
class DelayedCall {
public:
    virtual ~DelayedCall() = default;
    DelayedCall(const DelayedCall&) = delete;
    DelayedCall& operator=(const DelayedCall&) = delete;

    /// In place of a call that waits. A delay of 0 is the event loop's next turn.
    virtual void start(std::chrono::nanoseconds delay, std::function<void()> call) = 0;
    virtual void cancel() = 0;

protected:
    DelayedCall() = default;
};

/// The call that time itself makes.
class TimedCall final : public DelayedCall {
public:
    TimedCall();

    void start(std::chrono::nanoseconds delay, std::function<void()> call) override;
    void cancel() override;

private:
    QTimer m_timer;
    std::function<void()> m_call;
};

} // namespace KarvelloUI
