#include "CleanerCore/Export/MacInsightExport.h"

#include "CleanerCore/Export/CSVWriter.h"
#include "CleanerCore/Export/MacInsightExportRows.h"
#include "CleanerCore/Export/MacInsightSection.h"
#include "CleanerCore/Export/ReportExportText.h"
#include "CleanerCore/Export/ScanResultCSVRow.h"
#include "CleanerCore/Export/ScanResultExportFormat.h"
#include "CleanerCore/Export/SkippedItemExportRow.h"
#include "Platform/Base/DateFormat.h"
#include "Platform/Base/DecimalForm.h"

#include <fmt/format.h>
#include <iterator>
#include <span>

namespace CleanerCore::MacInsightExport {

namespace {

namespace Section = MacInsightSection;
using SelectedIDs = std::unordered_set<std::string>;

constexpr int kSchemaVersion = 1;
constexpr auto kKind = Platform::rawValue(ScanResultExportSource::macInsights);

constexpr std::string_view kGroupLabel = "duplicate-group";
constexpr std::string_view kTemperatureLabel = "temperature-detail";

constexpr std::string_view kKeeperRole = "keeper";
constexpr std::string_view kDuplicateRole = "duplicate";

std::string_view roleOf(std::size_t index)
{
    return index == 0 ? kKeeperRole : kDuplicateRole;
}

std::int64_t selectedCount(const MacStorageInsightReport& report, const SelectedIDs& selectedIDs)
{
    std::unordered_set<std::string_view> found;
    const auto look = [&](std::span<const FileInsight> files) {
        for (const auto& file : files) {
            if (selectedIDs.contains(file.id)) {
                found.insert(file.id);
            }
        }
    };
    look(report.largeFiles);
    look(report.downloadFiles);
    for (const auto& group : report.duplicateGroups) {
        look(group.files);
    }
    look(report.securityFindings);
    return std::ssize(found);
}

MacInsightExportSummary summaryOf(const MacStorageInsightReport& report, const SelectedIDs& selectedIDs)
{
    std::int64_t duplicateFileCount = 0;
    for (const auto& group : report.duplicateGroups) {
        duplicateFileCount += std::ssize(group.files);
    }
    return {
        .heatmapItemCount = std::ssize(report.heatmapItems),
        .largeFileCount = std::ssize(report.largeFiles),
        .downloadFileCount = std::ssize(report.downloadFiles),
        .duplicateGroupCount = std::ssize(report.duplicateGroups),
        .duplicateFileCount = duplicateFileCount,
        .duplicateWastedBytes = report.duplicateWastedBytes(),
        .securityFindingCount = std::ssize(report.securityFindings),
        .selectedCount = selectedCount(report, selectedIDs),
        .skippedCount = std::ssize(report.skippedItems),
        .isTruncated = report.isTruncated,
    };
}

/// Makes the rows of one JSON export: it keeps the tokens of a redacted one.
class RowMaker {
public:
    RowMaker(const SelectedIDs& selectedIDs, ReportExportPrivacyMode privacyMode)
        : m_selectedIDs(selectedIDs)
        , m_text(privacyMode)
    {
    }

    HeatmapExportRow operator()(const StorageMapItem& item)
    {
        return {
            .id = m_text.identifier(item.id, Section::heatmap),
            .path = m_text.path(item.url.path(), Section::heatmap),
            .displayName = m_text.name(item.displayName, Section::heatmap),
            .sizeBytes = item.sizeBytes,
            .itemCount = item.itemCount,
            .isTruncated = item.isTruncated,
        };
    }

    FileInsightExportRow operator()(const FileInsight& file)
    {
        return {
            .id = m_text.identifier(file.id, "file"),
            .path = m_text.path(file.url.path(), "file"),
            .displayName = m_text.name(file.displayName, "file"),
            .parentPath = m_text.path(file.parentPath, "parent"),
            .sizeBytes = file.sizeBytes,
            .lastModified = exportedDate(file.lastModified),
            .kind = file.kind,
            .detail = m_text.freeText(file.detail, "file-detail"),
            .safety = file.safety,
            .selected = m_selectedIDs.contains(file.id),
            .duplicateGroupID = {},
            .duplicateRole = {},
        };
    }

    DuplicateGroupExportRow operator()(const DuplicateFileGroup& group)
    {
        DuplicateGroupExportRow row{
            .id = m_text.identifier(group.id, kGroupLabel),
            .sizeBytes = group.sizeBytes,
            .wastedBytes = group.wastedBytes(),
            .keeperRecommendationReasons = {},
            .files = {},
        };
        if (auto recommendation = group.keeperRecommendation()) {
            row.keeperRecommendationReasons = std::move(recommendation->reasons);
        }
        row.files.reserve(group.files.size());
        for (const auto& file : group.files) {
            auto& fileRow = row.files.emplace_back((*this)(file));
            fileRow.duplicateGroupID = row.id;
            fileRow.duplicateRole = roleOf(row.files.size() - 1);
        }
        return row;
    }

    SkippedItemExportRow operator()(const SkippedItem& item) { return SkippedItemExportRow::of(item, m_text); }

    SystemSnapshotExportRow operator()(const SystemResourceSnapshot& snapshot)
    {
        return {
            .capturedAt = Platform::DateFormat::iso8601(snapshot.capturedAt),
            .physicalMemoryBytes = snapshot.physicalMemoryBytes,
            .usedMemoryBytes = snapshot.usedMemoryBytes,
            .freeMemoryBytes = snapshot.freeMemoryBytes(),
            .memoryPressure = snapshot.memoryPressure,
            .cpuLoadAverage = snapshot.cpuLoadAverage,
            .normalizedCPULoad = snapshot.normalizedCPULoad,
            .processorCount = snapshot.processorCount,
            .activeProcessorCount = snapshot.activeProcessorCount,
            .thermalState = snapshot.thermalState,
            .uptime = snapshot.uptime,
            .temperatureDetail = m_text.freeText(snapshot.temperatureDetail, kTemperatureLabel),
        };
    }

    [[nodiscard]] std::optional<std::string_view> privacyMark() const { return m_text.privacyMark(); }

private:
    const SelectedIDs& m_selectedIDs;
    ReportExportText m_text;
};

/// Writes the rows of one CSV export.
class TableMaker {
public:
    TableMaker(const SelectedIDs& selectedIDs, ReportExportPrivacyMode privacyMode)
        : m_selectedIDs(selectedIDs)
        , m_text(privacyMode)
        , m_writer(ScanResultCSVRow::columns, privacyMode)
    {
    }

    void add(const StorageMapItem& item)
    {
        const auto path = m_text.path(item.url.path(), Section::heatmap);
        const auto name = m_text.name(item.displayName, Section::heatmap);
        const fmt::format_int sizeBytes(item.sizeBytes);
        const auto detail = fmt::format("items={}; truncated={}", item.itemCount, item.isTruncated);
        m_writer.addRow(ScanResultCSVRow{
            .exportKind = kKind,
            .recordType = "heatmap",
            .section = Section::heatmap,
            .path = path,
            .displayName = name,
            .sizeBytes = {sizeBytes.data(), sizeBytes.size()},
            .detail = detail,
        }
                .cells());
    }

    void addFiles(std::string_view section, std::span<const FileInsight> files)
    {
        for (const auto& file : files) {
            add(section, file, {}, {});
        }
    }

    void add(const DuplicateFileGroup& group)
    {
        for (std::size_t index = 0; index < group.files.size(); ++index) {
            add(Section::duplicates, group.files[index], group.id, roleOf(index));
        }
    }

    void add(const SystemResourceSnapshot& snapshot)
    {
        using Platform::shortestDecimalForm;
        const auto capturedAt = Platform::DateFormat::iso8601(snapshot.capturedAt);
        const auto detail = fmt::format(
            "captured_at={}; physical_memory_bytes={}; used_memory_bytes={}; free_memory_bytes={}; memory_pressure={}; "
            "cpu_load_average={}; normalized_cpu_load={}; processor_count={}; active_processor_count={}; "
            "thermal_state={}; uptime_seconds={}; temperature_detail={}",
            capturedAt, snapshot.physicalMemoryBytes, snapshot.usedMemoryBytes, snapshot.freeMemoryBytes(),
            snapshot.memoryPressure, shortestDecimalForm(snapshot.cpuLoadAverage),
            shortestDecimalForm(snapshot.normalizedCPULoad), snapshot.processorCount, snapshot.activeProcessorCount,
            snapshot.thermalState, shortestDecimalForm(snapshot.uptime),
            m_text.freeText(snapshot.temperatureDetail, kTemperatureLabel));
        m_writer.addRow(ScanResultCSVRow{
            .exportKind = kKind,
            .recordType = "system_snapshot",
            .section = Section::system,
            .displayName = "System Snapshot",
            .lastModified = capturedAt,
            .detail = detail,
        }
                .cells());
    }

    void add(const SkippedItem& item)
    {
        const auto exported = SkippedItemExportRow::of(item, m_text);
        m_writer.addRow(ScanResultCSVRow{
            .exportKind = kKind,
            .recordType = "skipped",
            .section = Section::skipped,
            .path = exported.path,
            .reason = exported.reason,
        }
                .cells());
    }

    [[nodiscard]] std::string finish() && { return std::move(m_writer).finish(); }

private:
    void add(std::string_view section, const FileInsight& file, std::string_view groupID, std::string_view role)
    {
        const auto path = m_text.path(file.url.path(), section);
        const auto name = m_text.name(file.displayName, section);
        const fmt::format_int sizeBytes(file.sizeBytes);
        const auto lastModified = exportedDate(file.lastModified);
        const auto detail = m_text.freeText(file.detail, fmt::format("{}-detail", section));
        const auto group = m_text.identifier(groupID, kGroupLabel);
        m_writer.addRow(ScanResultCSVRow{
            .exportKind = kKind,
            .recordType = "file",
            .section = section,
            .path = path,
            .displayName = name,
            .insightKind = Platform::rawValue(file.kind),
            .sizeBytes = {sizeBytes.data(), sizeBytes.size()},
            .lastModified = lastModified ? std::string_view(*lastModified) : std::string_view(),
            .safety = Platform::rawValue(file.safety),
            .selected = csvValue(m_selectedIDs.contains(file.id)),
            .detail = detail,
            .duplicateGroupID = group,
            .duplicateRole = role,
        }
                .cells());
    }

    const SelectedIDs& m_selectedIDs;
    ReportExportText m_text;
    CSVWriter m_writer;
};

} // namespace

std::expected<std::string, Platform::JSONError> json(const MacStorageInsightReport& report,
    const SelectedIDs& selectedIDs, ReportExportPrivacyMode privacyMode, Platform::Date exportedAt)
{
    RowMaker row(selectedIDs, privacyMode);
    Platform::JSONWriter writer;
    Platform::JSONFieldWriter payload(writer);
    writer.beginObject();
    payload.field("schemaVersion", kSchemaVersion);
    payload.field("kind", kKind);
    payload.field("privacyMode", row.privacyMark());
    payload.field("exportedAt", Platform::DateFormat::iso8601(exportedAt));
    payload.field("scannedAt", Platform::DateFormat::iso8601(report.scannedAt));
    payload.field("summary", summaryOf(report, selectedIDs));
    // The writer puts the keys in their order; the numbers of tokens follow the order here.
    payload.elements("heatmapItems", report.heatmapItems, std::ref(row));
    payload.elements("largeFiles", report.largeFiles, std::ref(row));
    payload.elements("downloadFiles", report.downloadFiles, std::ref(row));
    payload.elements("duplicateGroups", report.duplicateGroups, std::ref(row));
    payload.elements("securityFindings", report.securityFindings, std::ref(row));
    payload.elements("skippedItems", report.skippedItems, std::ref(row));
    payload.field("systemSnapshot", row(report.systemSnapshot));
    writer.endObject();
    return std::move(writer).finish();
}

std::string csv(
    const MacStorageInsightReport& report, const SelectedIDs& selectedIDs, ReportExportPrivacyMode privacyMode)
{
    TableMaker table(selectedIDs, privacyMode);
    for (const auto& item : report.heatmapItems) {
        table.add(item);
    }
    table.addFiles(Section::largeFiles, report.largeFiles);
    table.addFiles(Section::downloads, report.downloadFiles);
    for (const auto& group : report.duplicateGroups) {
        table.add(group);
    }
    table.addFiles(Section::security, report.securityFindings);
    table.add(report.systemSnapshot);
    for (const auto& item : report.skippedItems) {
        table.add(item);
    }
    return std::move(table).finish();
}

} // namespace CleanerCore::MacInsightExport
