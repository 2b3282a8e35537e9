#include "KarvelloCLI/MachineWords.h"

#include "KarvelloCLI/Words.h"
#include "Platform/Base/Text.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace KarvelloCLI {

namespace {

std::int64_t signedBytes(std::uint64_t bytes)
{
    return static_cast<std::int64_t>(std::min<std::uint64_t>(bytes, std::numeric_limits<std::int64_t>::max()));
}

} // namespace

std::string machineWords(const CleanerCore::SystemResourceSnapshot& snapshot, const TextStyle& style)
{
    std::vector<std::string> words;
    if (snapshot.physicalMemoryBytes > 0) {
        words.push_back(fmt::format("{} of {} memory used (pressure {})",
            style.size(signedBytes(snapshot.usedMemoryBytes)), style.size(signedBytes(snapshot.physicalMemoryBytes)),
            Platform::Text::lowercased(snapshot.memoryPressure)));
    } else {
        words.emplace_back("memory unknown");
    }
    words.push_back(fmt::format("load {:.2f} on {}", snapshot.cpuLoadAverage,
        counted(static_cast<std::size_t>(snapshot.activeProcessorCount), "processor")));
    words.push_back(fmt::format("thermal state {}", Platform::Text::lowercased(snapshot.thermalState)));
    if (snapshot.uptime > 0) {
        words.push_back(fmt::format("up {}", shortAge(snapshot.uptime)));
    }
    return fmt::format("{}", fmt::join(words, ", "));
}

} // namespace KarvelloCLI
