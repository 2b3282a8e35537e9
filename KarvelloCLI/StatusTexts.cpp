#include "KarvelloCLI/StatusTexts.h"

#include "CleanerCore/Export/CSVWriter.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TableLayout.h"
#include "KarvelloCLI/Words.h"
#include "Platform/Base/DateFormat.h"
#include "Platform/Base/DecimalForm.h"
#include "Platform/Base/JSONCoding.h"
#include "Platform/Base/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string_view>

template <>
struct Platform::JSONFields<Platform::VolumeCapacity> {
    static void code(auto& coder, auto& capacity)
    {
        coder.field("availableBytes", capacity.available);
        coder.field("totalBytes", capacity.total);
    }
};

template <>
struct Platform::JSONFields<KarvelloCLI::StatusReading> {
    static void code(Platform::JSONFieldWriter& coder, const KarvelloCLI::StatusReading& reading)
    {
        const auto& snapshot = reading.snapshot;
        coder.field("activeProcessorCount", snapshot.activeProcessorCount);
        coder.field("capturedAt", DateFormat::iso8601(snapshot.capturedAt));
        coder.field("cpuLoadAverage", snapshot.cpuLoadAverage);
        coder.field("freeMemoryBytes", snapshot.freeMemoryBytes());
        coder.field("homeVolume", reading.disk);
        coder.text("memoryPressure", snapshot.memoryPressure);
        coder.field("normalizedCPULoad", snapshot.normalizedCPULoad);
        coder.field("physicalMemoryBytes", snapshot.physicalMemoryBytes);
        coder.field("processorCount", snapshot.processorCount);
        coder.text("temperatureDetail", snapshot.temperatureDetail);
        coder.text("thermalState", snapshot.thermalState);
        coder.field("uptime", snapshot.uptime);
        coder.field("usedMemoryBytes", snapshot.usedMemoryBytes);
    }
};

namespace KarvelloCLI {

namespace {

using CleanerCore::CSVWriter;
using CleanerCore::ReportExportPrivacyMode;
using CleanerCore::SystemResourceSnapshot;

constexpr std::size_t kLongestTrend = 24;
constexpr std::size_t kShortestTrend = 4;

constexpr std::array<std::string_view, 13> kStatusColumns{"captured_at", "physical_memory_bytes", "used_memory_bytes",
    "free_memory_bytes", "memory_pressure", "cpu_load_average", "normalized_cpu_load", "processor_count",
    "active_processor_count", "thermal_state", "uptime_seconds", "home_volume_total_bytes",
    "home_volume_available_bytes"};

/// A state as it stands in the middle of a line.
std::string stateWords(std::string_view state, std::string_view localized)
{
    return state == "Unknown" ? say("unknown") : Platform::Text::lowercased(localized);
}

std::string pressureWords(const SystemResourceSnapshot& snapshot)
{
    return stateWords(snapshot.memoryPressure, catalogue().localizedPressure(snapshot.memoryPressure));
}

std::string thermalWords(const SystemResourceSnapshot& snapshot)
{
    return stateWords(snapshot.thermalState, catalogue().localizedThermalState(snapshot.thermalState));
}

std::string loadWords(const SystemResourceSnapshot& snapshot)
{
    return fmt::format("{:.2f}", snapshot.cpuLoadAverage);
}

std::optional<double> usedShare(const SystemResourceSnapshot& snapshot)
{
    return snapshot.physicalMemoryBytes == 0 ? std::nullopt
                                             : std::optional(static_cast<double>(snapshot.usedMemoryBytes)
                                                   / static_cast<double>(snapshot.physicalMemoryBytes));
}

std::string processorWords(const SystemResourceSnapshot& snapshot)
{
    const auto active = static_cast<std::size_t>(snapshot.activeProcessorCount);
    const auto all = static_cast<std::size_t>(std::max<std::int64_t>(snapshot.processorCount, 0));
    const std::string busy = percentage(snapshot.normalizedCPULoad);
    const std::string load = loadWords(snapshot);
    if (active < all) {
        return say("{} busy, load {} on {} of {} processors", busy, load, active, all);
    }
    return isSingular(active) ? say("{} busy, load {} on {} processor", busy, load, active)
                              : say("{} busy, load {} on {} processors", busy, load, active);
}

std::string memoryWords(const SystemResourceSnapshot& snapshot, const TextStyle& style)
{
    const auto share = usedShare(snapshot);
    if (!share) {
        return say("unknown");
    }
    return say("{} of {} used ({}), pressure {}", style.size(snapshot.usedMemoryBytes),
        style.size(snapshot.physicalMemoryBytes), percentage(share), pressureWords(snapshot));
}

std::string uptimeWords(double seconds)
{
    if (seconds <= 0) {
        return say("unknown");
    }
    return seconds < 60 ? say("less than a minute") : shortAge(seconds);
}

std::string diskWords(const std::optional<Platform::VolumeCapacity>& disk, const TextStyle& style)
{
    return disk ? say("{} of {} free where your home is", style.size(disk->available), style.size(disk->total))
                : say("unknown");
}

bool wantsAttention(std::string_view word)
{
    return word == "High" || word == "Serious" || word == "Critical";
}

std::string cell(std::optional<std::int64_t> number)
{
    return number ? std::to_string(*number) : std::string();
}

} // namespace

std::string statusTable(const StatusReading& reading, const TextStyle& style)
{
    const auto& snapshot = reading.snapshot;
    std::string text = style.painter(Ink::title, say("Status: {}", localTime(snapshot.capturedAt))) + "\n\n";
    struct Fact {
        TerminalText label;
        std::string words;
        bool isAlarming = false;
    };
    const std::array facts{
        Fact{TerminalText(say("Processors")), processorWords(snapshot)},
        Fact{TerminalText(say("Memory")), memoryWords(snapshot, style), wantsAttention(snapshot.memoryPressure)},
        Fact{TerminalText(say("Thermal")), thermalWords(snapshot), wantsAttention(snapshot.thermalState)},
        Fact{TerminalText(say("Uptime")), uptimeWords(snapshot.uptime)},
        Fact{TerminalText(say("Disk")), diskWords(reading.disk, style)},
    };
    std::size_t labelWidth = 0;
    for (const Fact& fact : facts) {
        labelWidth = std::max(labelWidth, fact.label.columns() + kColumnGap.size());
    }
    for (const Fact& fact : facts) {
        auto lines =
            style.paragraph(fact.words, labelWidth, fact.isAlarming ? std::optional(Ink::warning) : std::nullopt);
        // The label stands in the room in front of the first line.
        lines.replace(0, labelWidth, style.painter(Ink::quiet, fact.label.paddedRight(labelWidth)));
        text += lines;
    }
    return text;
}

std::string statusLine(const StatusReading& reading, const TextStyle& style)
{
    const auto& snapshot = reading.snapshot;
    return fmt::format("{}  {}\n", Platform::DateFormat::iso8601(snapshot.capturedAt),
        say("processors {}  memory {} {}  load {}  thermal {}  disk {}", percentage(snapshot.normalizedCPULoad),
            percentage(usedShare(snapshot)), pressureWords(snapshot), loadWords(snapshot), thermalWords(snapshot),
            reading.disk ? say("{} free", style.size(reading.disk->available)) : say("unknown")));
}

std::string machineWords(const SystemResourceSnapshot& snapshot, const TextStyle& style)
{
    return say("memory {}; processors {}; thermal state {}; up {}", memoryWords(snapshot, style),
        processorWords(snapshot), thermalWords(snapshot), uptimeWords(snapshot.uptime));
}

std::expected<std::string, Platform::JSONError> statusJSON(const StatusReading& reading)
{
    auto text = Platform::encodeJSON(reading);
    if (text) {
        *text += '\n';
    }
    return text;
}

std::string statusCSVHeader(ReportExportPrivacyMode privacy)
{
    return CSVWriter(kStatusColumns, privacy).finish();
}

std::string statusCSVRow(const StatusReading& reading)
{
    const auto& snapshot = reading.snapshot;
    const std::array<std::string, kStatusColumns.size()> cells{Platform::DateFormat::iso8601(snapshot.capturedAt),
        std::to_string(snapshot.physicalMemoryBytes), std::to_string(snapshot.usedMemoryBytes),
        std::to_string(snapshot.freeMemoryBytes()), snapshot.memoryPressure,
        Platform::shortestDecimalForm(snapshot.cpuLoadAverage),
        Platform::shortestDecimalForm(snapshot.normalizedCPULoad), std::to_string(snapshot.processorCount),
        std::to_string(snapshot.activeProcessorCount), snapshot.thermalState,
        Platform::shortestDecimalForm(snapshot.uptime),
        cell(reading.disk ? std::optional(reading.disk->total) : std::nullopt),
        cell(reading.disk ? std::optional(reading.disk->available) : std::nullopt)};
    std::array<std::string_view, kStatusColumns.size()> views{};
    std::ranges::copy(cells, views.begin());
    CSVWriter writer(kStatusColumns, ReportExportPrivacyMode::full);
    writer.addRow(views);
    return std::move(writer).finish().substr(statusCSVHeader(ReportExportPrivacyMode::full).size());
}

std::string StatusTrend::line(const StatusReading& reading, const TextStyle& style)
{
    const auto& snapshot = reading.snapshot;
    const auto remember = [](std::vector<double>& course, double fraction) {
        if (course.size() == kLongestTrend) {
            course.erase(course.begin());
        }
        course.push_back(fraction);
    };
    remember(m_processors, snapshot.normalizedCPULoad);
    remember(m_memory, usedShare(snapshot).value_or(0));

    // Numbers keep their width, so that nothing jumps.
    const std::string processors = fmt::format("{:>4}", percentage(snapshot.normalizedCPULoad));
    const std::string memory = fmt::format("{:>4}", percentage(usedShare(snapshot)));
    const auto measures = [&](std::string_view processorTrend, std::string_view memoryTrend) {
        return fmt::format("{}  {}", localClock(snapshot.capturedAt),
            say("CPU {} {}  memory {} {} {}", processorTrend, processors, memoryTrend, memory,
                pressureWords(snapshot)));
    };
    std::size_t taken = columnsOf(measures("", ""));
    std::string rest;
    std::vector<std::string> facts{say("load {}", loadWords(snapshot)), say("thermal {}", thermalWords(snapshot))};
    if (reading.disk) {
        facts.push_back(say("{} free", style.size(reading.disk->available)));
    }
    for (const std::string& fact : facts) {
        const std::size_t width = kColumnGap.size() + columnsOf(fact);
        if (taken + width + 2 * kShortestTrend > style.columns) {
            break;
        }
        taken += width;
        rest += kColumnGap;
        rest += fact;
    }
    const std::size_t room = style.columns > taken ? (style.columns - taken) / 2 : 0;
    const auto trend = [&](const std::vector<double>& course) {
        const std::size_t columns = std::min(room, kLongestTrend);
        const std::size_t shown = std::min(columns, course.size());
        return fmt::format("{:{}}{}", "", columns - shown, sparkline(course, columns, m_glyphs));
    };
    const std::string text = measures(trend(m_processors), trend(m_memory)) + rest;
    return TerminalText(text, TerminalText::Kind::sentence).elidedInMiddle(style.columns).string();
}

} // namespace KarvelloCLI
