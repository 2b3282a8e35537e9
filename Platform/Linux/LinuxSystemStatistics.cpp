#include "Platform/Linux/LinuxSystemStatistics.h"

#include "Platform/Linux/KernelText.h"
#include "Platform/Linux/ThermalSensors.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <utility>

namespace Platform {

namespace {

/// The bytes of a line such as "MemTotal:       24684084 kB".
std::optional<std::uint64_t> bytesOf(std::string_view key, const std::optional<std::string>& text)
{
    constexpr std::uint64_t kibibyte = 1024;
    const auto kibibytes = text ? KernelText::numberAfter(key, *text) : std::nullopt;
    return kibibytes && *kibibytes <= std::numeric_limits<std::uint64_t>::max() / kibibyte
        ? std::optional(*kibibytes * kibibyte)
        : std::nullopt;
}

/// The eight counters of the line "cpu"; what follows them is part of the first two already.
enum Counter : std::size_t { user, nice, system, idle, wait, interrupts, softInterrupts, stolen, counterCount };

std::optional<std::array<std::uint64_t, counterCount>> counters(std::string_view stat)
{
    auto line = KernelText::takeLine(stat);
    if (!line || KernelText::takeWord(*line) != "cpu") {
        return std::nullopt;
    }
    std::array<std::uint64_t, counterCount> values{};
    for (std::size_t counter = 0; counter < counterCount; ++counter) {
        const auto word = KernelText::takeWord(*line);
        // Old kernels tell fewer.
        if (!word && counter > idle) {
            break;
        }
        const auto value = word ? KernelText::number<std::uint64_t>(*word) : std::nullopt;
        if (!value) {
            return std::nullopt;
        }
        values[counter] = *value;
    }
    return values;
}

/// How many processors a list such as "0-3,6" names.
std::optional<std::int64_t> processorsIn(std::string_view list)
{
    std::int64_t count = 0;
    while (!list.empty()) {
        const auto comma = std::min(list.find(','), list.size());
        const auto range = list.substr(0, comma);
        const auto dash = range.find('-');
        const auto first = KernelText::number<std::int64_t>(range.substr(0, dash));
        const auto last =
            dash == std::string_view::npos ? first : KernelText::number<std::int64_t>(range.substr(dash + 1));
        if (!first || !last || *first < 0 || *last < *first || *last > 1'000'000) {
            return std::nullopt;
        }
        count += *last - *first + 1;
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    return count > 0 ? std::optional(count) : std::nullopt;
}

std::int64_t linesOfProcessors(const std::optional<std::string>& stat)
{
    std::int64_t count = 0;
    std::string_view rest = stat ? std::string_view(*stat) : std::string_view();
    while (auto line = KernelText::takeLine(rest)) {
        const auto name = KernelText::takeWord(*line).value_or("");
        count += name.starts_with("cpu") && name.size() > 3 ? 1 : 0;
    }
    return count;
}

} // namespace

const SystemStatistics& SystemStatistics::ofThisMachine()
{
    static const LinuxSystemStatistics machine;
    return machine;
}

LinuxSystemStatistics::LinuxSystemStatistics(std::string procRoot, std::string sysRoot)
    : m_procRoot(std::move(procRoot))
    , m_sysRoot(std::move(sysRoot))
{
}

std::optional<std::uint64_t> LinuxSystemStatistics::physicalMemory() const
{
    return bytesOf("MemTotal:", KernelText::read(proc("meminfo")));
}

std::optional<std::uint64_t> LinuxSystemStatistics::usedMemory() const
{
    const auto text = KernelText::read(proc("meminfo"));
    const auto total = bytesOf("MemTotal:", text);
    const auto available = bytesOf("MemAvailable:", text);
    return total && available ? std::optional(*total - std::min(*available, *total)) : std::nullopt;
}

std::optional<double> LinuxSystemStatistics::loadAverage() const
{
    const auto text = KernelText::read(proc("loadavg"));
    std::string_view rest = text ? std::string_view(*text) : std::string_view();
    return KernelText::number<double>(KernelText::takeWord(rest).value_or(""));
}

std::optional<CPUTicks> LinuxSystemStatistics::cpuTicks() const
{
    const auto stat = KernelText::read(proc("stat"));
    const auto values = stat ? counters(*stat) : std::nullopt;
    if (!values) {
        return std::nullopt;
    }
    auto highestWait = m_highestWait.load();
    while (highestWait < (*values)[wait] && !m_highestWait.compare_exchange_weak(highestWait, (*values)[wait])) {}
    return CPUTicks{
        .user = (*values)[user],
        .system = (*values)[system] + (*values)[interrupts] + (*values)[softInterrupts] + (*values)[stolen],
        .idle = (*values)[idle] + std::max(highestWait, (*values)[wait]),
        .nice = (*values)[nice],
    };
}

std::int64_t LinuxSystemStatistics::processorCount() const
{
    const auto present = KernelText::read(m_sysRoot + "/devices/system/cpu/present");
    const auto count = present ? processorsIn(KernelText::stripped(*present)) : std::nullopt;
    return count ? *count : activeProcessorCount();
}

std::int64_t LinuxSystemStatistics::activeProcessorCount() const
{
    const auto online = KernelText::read(m_sysRoot + "/devices/system/cpu/online");
    const auto count = online ? processorsIn(KernelText::stripped(*online)) : std::nullopt;
    return count ? *count : linesOfProcessors(KernelText::read(proc("stat")));
}

ThermalState LinuxSystemStatistics::thermalState() const
{
    return thermalStateOfSensors(m_sysRoot);
}

std::optional<double> LinuxSystemStatistics::uptime() const
{
    const auto text = KernelText::read(proc("uptime"));
    std::string_view rest = text ? std::string_view(*text) : std::string_view();
    return KernelText::number<double>(KernelText::takeWord(rest).value_or(""));
}

} // namespace Platform
