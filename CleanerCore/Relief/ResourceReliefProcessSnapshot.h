#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Services/RunningApplications.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

/// What an application takes of the machine. Nothing stands for what is not known.
struct ResourceReliefUsageMetrics {
    /// From 0 to 1, of all processors together.
    std::optional<double> cpuFractionOfTotalCapacity = {};
    std::optional<std::uint64_t> residentMemoryBytes = {};
    std::optional<double> memoryFractionOfPhysicalMemory = {};

    static ResourceReliefUsageMetrics empty() { return {}; }

    friend bool operator==(const ResourceReliefUsageMetrics&, const ResourceReliefUsageMetrics&) = default;
};

/// A running application as the system tells of it at one moment.
struct ResourceReliefProcessSnapshot {
    std::optional<std::string> displayName = {};
    std::optional<std::string> bundleIdentifier = {};
    std::int32_t processIdentifier = 0;
    bool isFrontmost = false;
    bool isTerminated = false;
    /// It has a face that the user knows, and is no helper in the background.
    bool isUserVisible = false;
    std::optional<Platform::Date> launchDate = {};
    ResourceReliefUsageMetrics usage = {};

    static ResourceReliefProcessSnapshot of(const Platform::RunningApplication& application);

    friend bool operator==(const ResourceReliefProcessSnapshot&, const ResourceReliefProcessSnapshot&) = default;
};

} // namespace CleanerCore
