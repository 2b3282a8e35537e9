#pragma once

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>

namespace Rigs {

/// Exchanges two names again and again on another core, at ever different distances, as long as it lives.
class Exchanger {
public:
    Exchanger(std::string first, std::string second)
        : m_thread([this, first = std::move(first), second = std::move(second)](const std::stop_token& stop) {
            std::uint32_t random = 1;
            while (!stop.stop_requested()) {
                if (renameat2(AT_FDCWD, first.c_str(), AT_FDCWD, second.c_str(), RENAME_EXCHANGE) == 0) {
                    m_count.fetch_add(1, std::memory_order_relaxed);
                }
                random = random * 1'664'525 + 1'013'904'223;
                for (std::uint32_t pause = random >> 20U; pause > 0; --pause) {
                    std::atomic_signal_fence(std::memory_order_seq_cst);
                }
            }
        })
    {
    }

    [[nodiscard]] std::uint64_t count() const { return m_count.load(std::memory_order_relaxed); }

private:
    std::atomic<std::uint64_t> m_count = 0;
    std::jthread m_thread;
};

/// Puts a file under a name as soon as the name is free, while an attempt runs.
class Occupier {
public:
    /// `occupy` tells whether it took the name.
    explicit Occupier(std::function<bool()> occupy)
        : m_occupy(std::move(occupy))
        , m_thread([this](const std::stop_token& stop) { run(stop); })
    {
    }

    void begin() { m_state = State::trying; }
    /// Whether the name was taken. Nothing is taken from then on.
    [[nodiscard]] bool end()
    {
        m_mustRest = true;
        while (m_state == State::trying) {
            std::this_thread::yield();
        }
        const bool taken = m_state == State::taken;
        m_mustRest = false;
        m_state = State::resting;
        return taken;
    }

private:
    enum class State : std::uint8_t { resting, trying, taken, missed };

    void run(const std::stop_token& stop)
    {
        while (!stop.stop_requested()) {
            if (m_state != State::trying) {
                std::this_thread::yield();
                continue;
            }
            if (m_occupy()) {
                m_state = State::taken;
            } else if (m_mustRest) {
                m_state = State::missed;
            }
        }
    }

    std::function<bool()> m_occupy;
    std::atomic<State> m_state = State::resting;
    std::atomic<bool> m_mustRest = false;
    std::jthread m_thread;
};

} // namespace Rigs
