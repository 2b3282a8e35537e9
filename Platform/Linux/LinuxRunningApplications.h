#pragma once

#include "Platform/Linux/ApplicationGroups.h"
#include "Platform/Services/Environment.h"
#include "Platform/Services/RunningApplications.h"
#include "Platform/Services/SystemStatistics.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <stop_token>
#include <string>
#include <sys/types.h>
#include <vector>

namespace Platform {

/// The applications of one user as /proc and the desktop files tell of them; `ApplicationGroups` says how.
///
/// The identifier of an application is that of its desktop file, and one without such a file has none. Which window is
/// in front only a desktop knows: nothing is frontmost here. What menus show counts as visible to the user. Memory is
/// the sum of the shares ("PSS") of all processes: what they share is counted once. Reading it takes some 45 ms for each
/// GiB; where it may not be read, what is resident stands in for it.
class LinuxRunningApplications final : public RunningApplications {
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kSamplingTime{350};

    struct Settings {
        std::string procRoot = "/proc";
        uid_t user = 0;
        std::int32_t ownProcess = 0;
        std::vector<std::string> desktopFileFolders = {};
        std::vector<std::string> languages = {};
        std::uint64_t ticksPerSecond = 100;
        std::uint64_t pageBytes = 4096;
        /// Returns after this time, or soon after a stop was asked for.
        std::function<void(std::chrono::milliseconds, const std::stop_token&)> wait;
        std::function<Clock::time_point()> now = Clock::now;

        /// Those of this process and its user.
        static Settings current(const Environment& environment);
    };

    /// `statistics` must outlive this object.
    LinuxRunningApplications(Settings settings, const SystemStatistics& statistics);

    [[nodiscard]] Listing applications() const override;
    [[nodiscard]] Listing measuredApplications(const std::stop_token& stop) const override;
    [[nodiscard]] std::optional<RunningApplication> application(std::int32_t processIdentifier) const override;

private:
    /// The ticks of each process at one moment, by number and start.
    struct Sample {
        Clock::time_point time;
        std::map<std::pair<std::int32_t, std::uint64_t>, std::uint64_t> ticks;
    };

    [[nodiscard]] std::expected<Sample, int> sample() const;
    /// Calls `take` with each process of the user that has not ended.
    [[nodiscard]] std::expected<void, int> forEachProcess(
        const std::function<void(const ProcessFolder&, ProcessState)>& take) const;
    [[nodiscard]] std::expected<std::vector<ApplicationGroup>, int> groups(DesktopEntries& entries) const;
    [[nodiscard]] RunningApplication applicationOf(const ApplicationGroup& group) const;
    void addMemory(
        RunningApplication& application, const ApplicationGroup& group, const std::stop_token& stop = {}) const;
    [[nodiscard]] std::optional<double> cpuFraction(
        const ApplicationGroup& group, const Sample& first, Clock::time_point now) const;

    Settings m_settings;
    const SystemStatistics& m_statistics;
    /// When the machine was started, read once: the kernel works it out anew from a clock that may be set, and the start
    /// of a process must not change with it.
    std::optional<std::int64_t> m_startOfMachine;
};

} // namespace Platform
