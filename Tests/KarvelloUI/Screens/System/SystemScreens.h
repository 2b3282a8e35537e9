#pragma once

#include "KarvelloUI/Design/KarvelloPill.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"
#include "Tests/KarvelloUI/Dashboard/HostileName.h"

#include <cstdint>
#include <string>
#include <utility>

namespace SystemScreenTests {

using namespace KarvelloUI;

inline CleanerCore::SystemResourceSnapshot machine(double cpu = 0.18, double memory = 0.57)
{
    constexpr std::uint64_t kPhysical = std::uint64_t{16} << 30;
    return {
        .capturedAt = {800'000'000},
        .physicalMemoryBytes = kPhysical,
        .usedMemoryBytes = static_cast<std::uint64_t>(memory * static_cast<double>(kPhysical)),
        .memoryPressure = memory >= 0.85 ? "High"
            : memory >= 0.7              ? "Moderate"
                                         : "Normal",
        .cpuLoadAverage = 1.42,
        .normalizedCPULoad = cpu,
        .processorCount = 16,
        .activeProcessorCount = 16,
        .thermalState = "Nominal",
        .uptime = 3 * 86400 + 4 * 3600 + 59,
    };
}

inline CleanerCore::ResourceReliefProcessSnapshot application(
    std::string name, std::string identifier, std::int32_t process, double cpu, double memory)
{
    return {
        .displayName = std::move(name),
        .bundleIdentifier = std::move(identifier),
        .processIdentifier = process,
        .isUserVisible = true,
        .usage = {.cpuFractionOfTotalCapacity = cpu,
            .residentMemoryBytes = static_cast<std::uint64_t>(memory * static_cast<double>(std::uint64_t{16} << 30)),
            .memoryFractionOfPhysicalMemory = memory},
    };
}

/// A dashboard whose machine and applications are the test's.
class SystemScreensTest : public DashboardTests::DashboardTest {
protected:
    void sample(const CleanerCore::SystemResourceSnapshot& snapshot)
    {
        systemSnapshot = snapshot;
        dashboard->insights().refreshSystemSnapshot();
        settle();
    }
    void startApplications()
    {
        capability = CleanerCore::ResourceReliefCapability::supported();
        applications = {
            application("Krita", "org.kde.krita", 12, 0.31, 0.12),
            application("Firefox", "org.mozilla.firefox", 11, 0.04, 0.21),
            application("Karvello", "test.karvello", 1, 0.01, 0.01),
            application("Terminal", "org.gnome.Console", 13, 0.00, 0.02),
        };
        refreshApplications();
    }
    void refreshApplications()
    {
        dashboard->resourceRelief().refreshCandidates();
        settle();
    }
};

} // namespace SystemScreenTests
