#pragma once

#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "Platform/Base/JSONCoding.h"

/// The state of the machine in JSON: the keys are the names of the fields, and none may be missing.
namespace Platform {

template <>
struct JSONFields<CleanerCore::SystemResourceSnapshot> {
    static void code(auto& coder, auto& snapshot)
    {
        coder.field("capturedAt", snapshot.capturedAt);
        coder.field("physicalMemoryBytes", snapshot.physicalMemoryBytes);
        coder.field("usedMemoryBytes", snapshot.usedMemoryBytes);
        coder.text("memoryPressure", snapshot.memoryPressure);
        coder.field("cpuLoadAverage", snapshot.cpuLoadAverage);
        coder.field("normalizedCPULoad", snapshot.normalizedCPULoad);
        coder.field("processorCount", snapshot.processorCount);
        coder.field("activeProcessorCount", snapshot.activeProcessorCount);
        coder.text("thermalState", snapshot.thermalState);
        coder.field("uptime", snapshot.uptime);
        coder.text("temperatureDetail", snapshot.temperatureDetail);
    }
};

} // namespace Platform
