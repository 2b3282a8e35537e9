#include "CleanerCore/Relief/ResourceReliefProcessSnapshot.h"

namespace CleanerCore {

ResourceReliefProcessSnapshot ResourceReliefProcessSnapshot::of(const Platform::RunningApplication& application)
{
    return {
        .displayName = application.displayName,
        .bundleIdentifier = application.bundleIdentifier,
        .processIdentifier = application.processIdentifier,
        .isFrontmost = application.isFrontmost,
        .isTerminated = application.isTerminated,
        .isUserVisible = application.isUserVisible,
        .launchDate = application.launchDate,
        .usage =
            {
                .cpuFractionOfTotalCapacity = application.cpuFractionOfTotalCapacity,
                .residentMemoryBytes = application.residentMemoryBytes,
                .memoryFractionOfPhysicalMemory = application.memoryFractionOfPhysicalMemory,
            },
    };
}

} // namespace CleanerCore
