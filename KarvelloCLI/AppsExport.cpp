#include "KarvelloCLI/AppsTexts.h"

#include "CleanerCore/Export/CSVWriter.h"
#include "CleanerCore/Export/ReportExportText.h"
#include "CleanerCore/Relief/ResourceReliefCoding.h"
#include "Platform/Base/DateFormat.h"
#include "Platform/Base/DecimalForm.h"

#include <algorithm>
#include <array>

namespace KarvelloCLI {

namespace {

using CleanerCore::ReportExportPrivacyMode;
using CleanerCore::ReportExportText;

constexpr std::string_view kLabel = "application";

constexpr std::array<std::string_view, 11> kAppsColumns{"id", "display_name", "bundle_identifier", "process_identifier",
    "process_count", "launched_at", "cpu_fraction_of_total_capacity", "resident_memory_bytes",
    "memory_fraction_of_physical_memory", "is_actionable", "reason"};

/// An application with its texts in the form of the export.
struct ExportedApp {
    std::string id;
    std::string displayName;
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> launchedAt;
    const AppsRow* row = nullptr;
};

ExportedApp exported(const AppsRow& row, ReportExportText& text)
{
    const auto& candidate = row.candidate;
    return {
        .id = text.identifier(candidate.id.rawValue, kLabel),
        .displayName = text.name(candidate.displayName, kLabel),
        .bundleIdentifier = candidate.bundleIdentifier
            ? std::optional(text.identifier(*candidate.bundleIdentifier, kLabel))
            : std::nullopt,
        .launchedAt =
            candidate.launchDate ? std::optional(Platform::DateFormat::iso8601(*candidate.launchDate)) : std::nullopt,
        .row = &row,
    };
}

struct AppsPayload {
    std::span<const AppsRow> rows;
    Platform::Date now;
    ReportExportPrivacyMode privacy;
};

std::string decimal(std::optional<double> value)
{
    return value ? Platform::shortestDecimalForm(*value) : std::string();
}

} // namespace

} // namespace KarvelloCLI

template <>
struct Platform::JSONFields<KarvelloCLI::ExportedApp> {
    static void code(Platform::JSONFieldWriter& coder, const KarvelloCLI::ExportedApp& app)
    {
        const auto& candidate = app.row->candidate;
        coder.field("bundleIdentifier", app.bundleIdentifier);
        coder.field("displayName", app.displayName);
        coder.field("eligibility", candidate.eligibility);
        coder.field("id", app.id);
        coder.field("isFrontmost", candidate.isFrontmost);
        coder.field("launchedAt", app.launchedAt);
        coder.field("processCount", app.row->processCount);
        coder.field("processIdentifier", candidate.processIdentifier);
        coder.field("usage", candidate.usage);
    }
};

template <>
struct Platform::JSONFields<KarvelloCLI::AppsPayload> {
    static void code(Platform::JSONFieldWriter& coder, const KarvelloCLI::AppsPayload& payload)
    {
        KarvelloCLI::ReportExportText text(payload.privacy);
        coder.elements("applications", payload.rows,
            [&text](const KarvelloCLI::AppsRow& row) { return KarvelloCLI::exported(row, text); });
        coder.field("capability", CleanerCore::ResourceReliefCapability::unknown());
        coder.field("capturedAt", DateFormat::iso8601(payload.now));
        if (const auto mark = text.privacyMark()) {
            coder.field("privacyMode", *mark);
        }
    }
};

namespace KarvelloCLI {

std::expected<std::string, Platform::JSONError> appsJSON(
    std::span<const AppsRow> rows, Platform::Date now, ReportExportPrivacyMode privacy)
{
    return Platform::encodeJSON(AppsPayload{.rows = rows, .now = now, .privacy = privacy});
}

std::string appsCSV(std::span<const AppsRow> rows, ReportExportPrivacyMode privacy)
{
    CleanerCore::CSVWriter writer(kAppsColumns, privacy);
    ReportExportText text(privacy);
    for (const AppsRow& row : rows) {
        const auto app = exported(row, text);
        const auto& [isActionable, reason] = row.candidate.eligibility;
        const auto& usage = row.candidate.usage;
        const std::array<std::string, kAppsColumns.size()> cells{app.id, app.displayName,
            app.bundleIdentifier.value_or(""), std::to_string(row.candidate.processIdentifier),
            std::to_string(row.processCount), app.launchedAt.value_or(""), decimal(usage.cpuFractionOfTotalCapacity),
            usage.residentMemoryBytes ? std::to_string(*usage.residentMemoryBytes) : std::string(),
            decimal(usage.memoryFractionOfPhysicalMemory), isActionable ? "true" : "false",
            std::string(reason ? Platform::rawValue(*reason) : std::string_view())};
        std::array<std::string_view, kAppsColumns.size()> views{};
        std::ranges::copy(cells, views.begin());
        writer.addRow(views);
    }
    return std::move(writer).finish();
}

} // namespace KarvelloCLI
