#pragma once

#include <cstdint>
#include <optional>

namespace KarvelloUI {

/// When a history that is sampled all the time is to be saved: once the samples pause, and at the latest when the first
/// unsaved one has waited for the maximum. Knows no clock: the times come in, in nanoseconds.
class SystemMetricHistorySaveSchedule {
public:
    enum class Decision : std::uint8_t {
        /// A newer history is known already. A save that waits goes on waiting.
        ignore,
        /// At once; a save that waits is void.
        saveNow,
        /// After the debounce, in place of a save that waits.
        saveLater,
    };

    /// A maximum of 0 puts a save off without end.
    explicit SystemMetricHistorySaveSchedule(std::uint64_t maximumDeferredSaveNanoseconds)
        : m_maximumDeferral(maximumDeferredSaveNanoseconds)
    {
    }

    [[nodiscard]] Decision accept(std::int64_t sequence, std::uint64_t uptimeNanoseconds);
    /// The debounce of this history is over. Whether it is to be saved.
    [[nodiscard]] bool finishWaiting(std::int64_t sequence);
    /// A history is saved out of turn; a save that waits is void.
    void flush(std::int64_t sequence);

    [[nodiscard]] std::int64_t latestAcceptedSequence() const { return m_latestAcceptedSequence; }

private:
    std::uint64_t m_maximumDeferral;
    std::int64_t m_latestAcceptedSequence = 0;
    /// When the present wait began.
    std::optional<std::uint64_t> m_firstDeferredUptime;
};

} // namespace KarvelloUI
