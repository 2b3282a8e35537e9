#include "KarvelloCLI/StatusTexts.h"

#include "CleanerCore/Export/CSVWriter.h"
#include "KarvelloCLI/Words.h"
#include "Platform/Base/DateFormat.h"
#include "Platform/Base/DecimalForm.h"
#include "Platform/Base/JSONCoding.h"
#include "Platform/Base/Text.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

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

constexpr std::string_view kGap = "  ";
constexpr std::size_t kLabelWidth = 12;
constexpr std::size_t kLongestTrend = 24;
constexpr std::size_t kShortestTrend = 4;

constexpr std::array<std::string_view, 13> kColumns{"captured_at", "physical_memory_bytes", "used_memory_bytes",
    "free_memory_bytes", "memory_pressure", "cpu_load_average", "normalized_cpu_load", "processor_count",
    "active_processor_count", "thermal_state", "uptime_seconds", "home_volume_total_bytes",
    "home_volume_available_bytes"};

std::string lowercased(std::string_view word)
{
    return Platform::Text::lowercased(word);
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
    const std::string count =
        active < all ? fmt::format("{} of {}", active, counted(all, "processor")) : counted(active, "processor");
    return fmt::format(
        "{} busy, load {:.2f} on {}", percentage(snapshot.normalizedCPULoad), snapshot.cpuLoadAverage, count);
}

std::string memoryWords(const SystemResourceSnapshot& snapshot, const TextStyle& style)
{
    const auto share = usedShare(snapshot);
    if (!share) {
        return "unknown";
    }
    return fmt::format("{} of {} used ({}), pressure {}", style.size(snapshot.usedMemoryBytes),
        style.size(snapshot.physicalMemoryBytes), percentage(share), lowercased(snapshot.memoryPressure));
}

std::string uptimeWords(double seconds)
{
    if (seconds <= 0) {
        return "unknown";
    }
    return seconds < 60 ? "less than a minute" : shortAge(seconds);
}

std::string diskWords(const std::optional<Platform::VolumeCapacity>& disk, const TextStyle& style)
{
    return disk ? fmt::format("{} of {} free where your home is", style.size(disk->available), style.size(disk->total))
                : "unknown";
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
    std::string text = style.painter(Ink::title, fmt::format("Status: {}", localTime(snapshot.capturedAt))) + "\n\n";
    const auto add = [&](std::string_view label, const std::string& words, bool isAlarming) {
        const auto ink = isAlarming ? std::optional(Ink::warning) : std::nullopt;
        auto lines = style.paragraph(words, kLabelWidth, ink);
        // The label stands in the room in front of the first line.
        lines.replace(0, kLabelWidth, style.painter(Ink::quiet, fmt::format("{:<{}}", label, kLabelWidth)));
        text += lines;
    };
    add("Processors", processorWords(snapshot), false);
    add("Memory", memoryWords(snapshot, style), wantsAttention(snapshot.memoryPressure));
    add("Thermal", lowercased(snapshot.thermalState), wantsAttention(snapshot.thermalState));
    add("Uptime", uptimeWords(snapshot.uptime), false);
    add("Disk", diskWords(reading.disk, style), false);
    return text;
}

std::string statusLine(const StatusReading& reading, const TextStyle& style)
{
    const auto& snapshot = reading.snapshot;
    return fmt::format("{}  processors {}  memory {} {}  load {:.2f}  thermal {}  disk {}\n",
        Platform::DateFormat::iso8601(snapshot.capturedAt), percentage(snapshot.normalizedCPULoad),
        percentage(usedShare(snapshot)), lowercased(snapshot.memoryPressure), snapshot.cpuLoadAverage,
        lowercased(snapshot.thermalState),
        reading.disk ? style.size(reading.disk->available) + " free" : std::string("unknown"));
}

std::string machineWords(const SystemResourceSnapshot& snapshot, const TextStyle& style)
{
    return fmt::format("memory {}; processors {}; thermal state {}; up {}", memoryWords(snapshot, style),
        processorWords(snapshot), lowercased(snapshot.thermalState), uptimeWords(snapshot.uptime));
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
    return CSVWriter(kColumns, privacy).finish();
}

std::string statusCSVRow(const StatusReading& reading)
{
    const auto& snapshot = reading.snapshot;
    const std::array<std::string, kColumns.size()> cells{Platform::DateFormat::iso8601(snapshot.capturedAt),
        std::to_string(snapshot.physicalMemoryBytes), std::to_string(snapshot.usedMemoryBytes),
        std::to_string(snapshot.freeMemoryBytes()), snapshot.memoryPressure,
        Platform::shortestDecimalForm(snapshot.cpuLoadAverage),
        Platform::shortestDecimalForm(snapshot.normalizedCPULoad), std::to_string(snapshot.processorCount),
        std::to_string(snapshot.activeProcessorCount), snapshot.thermalState,
        Platform::shortestDecimalForm(snapshot.uptime),
        cell(reading.disk ? std::optional(reading.disk->total) : std::nullopt),
        cell(reading.disk ? std::optional(reading.disk->available) : std::nullopt)};
    std::array<std::string_view, kColumns.size()> views{};
    std::ranges::copy(cells, views.begin());
    CSVWriter writer(kColumns, ReportExportPrivacyMode::full);
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
    const std::string memory =
        fmt::format("{:>4} {}", percentage(usedShare(snapshot)), lowercased(snapshot.memoryPressure));
    const std::string start = localClock(snapshot.capturedAt) + "  CPU ";
    const std::string between = processors + "  memory ";
    std::size_t taken = start.size() + 1 + between.size() + 1 + memory.size();
    std::string rest;
    std::vector<std::string> facts{fmt::format("load {:.2f}", snapshot.cpuLoadAverage),
        fmt::format("thermal {}", lowercased(snapshot.thermalState))};
    if (reading.disk) {
        facts.push_back(fmt::format("{} free", style.size(reading.disk->available)));
    }
    for (const std::string& fact : facts) {
        if (taken + kGap.size() + fact.size() + 2 * kShortestTrend > style.columns) {
            break;
        }
        taken += kGap.size() + fact.size();
        rest += kGap;
        rest += fact;
    }
    const std::size_t room = style.columns > taken ? (style.columns - taken) / 2 : 0;
    const auto trend = [&](const std::vector<double>& course) {
        const std::size_t columns = std::min(room, kLongestTrend);
        const std::size_t shown = std::min(columns, course.size());
        return fmt::format("{:{}}{}", "", columns - shown, sparkline(course, columns, m_glyphs));
    };
    const std::string text = start + trend(m_processors) + " " + between + trend(m_memory) + " " + memory + rest;
    return TerminalText(text, TerminalText::Kind::sentence).elidedInMiddle(style.columns).string();
}

} // namespace KarvelloCLI
