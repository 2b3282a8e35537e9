#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminder.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"

#include <cstdint>
#include <string>

namespace MenuBarTests {

using KarvelloUI::KarvelloMenuBarReminder;
using KarvelloUI::KarvelloMenuBarStatusSnapshot;
using Kind = KarvelloMenuBarReminder::Kind;
using Severity = KarvelloMenuBarReminder::Severity;

/// A machine that calls for nothing.
inline KarvelloMenuBarStatusSnapshot calm()
{
    return {
        .capturedAt = {800'000'000},
        .diskTotalBytes = 1000,
        .diskFreeBytes = 500,
        .systemSnapshot = {.physicalMemoryBytes = 16,
            .usedMemoryBytes = 4,
            .memoryPressure = "Normal",
            .normalizedCPULoad = 0.25,
            .thermalState = "Nominal"},
    };
}

inline KarvelloMenuBarStatusSnapshot withDisk(std::int64_t total, std::int64_t free)
{
    auto snapshot = calm();
    snapshot.diskTotalBytes = total;
    snapshot.diskFreeBytes = free;
    return snapshot;
}

inline KarvelloMenuBarStatusSnapshot lowDisk()
{
    return withDisk(1000, 50);
}

inline KarvelloMenuBarStatusSnapshot withMemoryPressure(std::string pressure)
{
    auto snapshot = calm();
    snapshot.systemSnapshot.memoryPressure = std::move(pressure);
    return snapshot;
}

inline KarvelloMenuBarStatusSnapshot withHeat(std::string state)
{
    auto snapshot = calm();
    snapshot.systemSnapshot.thermalState = std::move(state);
    return snapshot;
}

/// With reason for each kind of reminder.
inline KarvelloMenuBarStatusSnapshot strained(std::string heat = "Serious")
{
    auto snapshot = lowDisk();
    snapshot.systemSnapshot.memoryPressure = "High";
    snapshot.systemSnapshot.thermalState = std::move(heat);
    return snapshot;
}

inline constexpr KarvelloMenuBarReminder kLowDisk{.kind = Kind::lowDiskSpace, .severity = Severity::warning};
inline constexpr KarvelloMenuBarReminder kHighMemory{.kind = Kind::highMemoryPressure, .severity = Severity::warning};
inline constexpr KarvelloMenuBarReminder kSeriousHeat{.kind = Kind::thermalPressure, .severity = Severity::warning};
inline constexpr KarvelloMenuBarReminder kCriticalHeat{.kind = Kind::thermalPressure, .severity = Severity::critical};

} // namespace MenuBarTests
