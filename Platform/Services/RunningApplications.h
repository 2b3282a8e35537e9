#pragma once

#include "Platform/Base/Date.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace Platform {

/// Names a process for good: its number alone may be given out again.
struct ProcessIdentity {
    std::int32_t processIdentifier = 0;
    /// In ticks since the start of the machine.
    std::uint64_t startTicks = 0;

    friend bool operator==(const ProcessIdentity&, const ProcessIdentity&) = default;
};

/// An application of this user that runs. It may have many processes; one of them, its first, stands for it.
struct RunningApplication {
    std::optional<std::string> displayName = {};
    std::optional<std::string> bundleIdentifier = {};
    /// Together with `launchDate` it names the process that stands for the application.
    std::int32_t processIdentifier = 0;
    bool isFrontmost = false;
    bool isTerminated = false;
    /// It has a face that the user knows, and is no helper in the background.
    bool isUserVisible = false;
    std::optional<Date> launchDate = {};
    /// The one that stands for all comes first, the others follow as they were started.
    std::vector<ProcessIdentity> processes = {};

    /// From 0 to 1, of all processors together.
    std::optional<double> cpuFractionOfTotalCapacity = {};
    std::optional<std::uint64_t> residentMemoryBytes = {};
    std::optional<double> memoryFractionOfPhysicalMemory = {};

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

/// Who runs beside this process. Errors are the system's numbers: the list could not be read at all. An application that
/// ends while one looks is simply not there. Every call may be made from any thread.
class RunningApplications {
public:
    RunningApplications() = default;
    RunningApplications(const RunningApplications&) = delete;
    RunningApplications& operator=(const RunningApplications&) = delete;
    virtual ~RunningApplications() = default;

    using Listing = std::expected<std::vector<RunningApplication>, int>;

    /// Without what they take of the machine.
    [[nodiscard]] virtual Listing applications() const = 0;
    /// With it. Takes a third of a second, in which the processors are watched; ECANCELED soon after a stop was asked
    /// for. An application that started in that time has no processor figure.
    [[nodiscard]] virtual Listing measuredApplications(const std::stop_token& stop) const = 0;
    /// The application for which this process stands, with the memory that it takes but no processor figure.
    [[nodiscard]] virtual std::optional<RunningApplication> application(std::int32_t processIdentifier) const = 0;
};

} // namespace Platform
