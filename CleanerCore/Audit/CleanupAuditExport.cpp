#include "CleanerCore/Audit/CleanupAuditExport.h"

#include "CleanerCore/Audit/CleanupAuditExportRows.h"
#include "CleanerCore/Export/CSVWriter.h"
#include "CleanerCore/Export/ReportExportText.h"
#include "CleanerCore/Export/ScanResultCSVRow.h"
#include "Platform/Base/CheckedMath.h"
#include "Platform/Base/DateFormat.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <iterator>

namespace CleanerCore::CleanupAuditExport {

namespace {

constexpr int kSchemaVersion = 1;
constexpr std::string_view kKind = "cleanupAudit";
constexpr std::string_view kSeparator = " | ";

constexpr std::array<std::string_view, 17> kColumns{
    "audit_id",
    "occurred_at",
    "operation",
    "source",
    "mode",
    "requested_item_count",
    "requested_bytes",
    "succeeded_item_count",
    "failed_item_count",
    "affected_bytes",
    "was_cancelled",
    "sample_paths",
    "failure_reasons",
    "cleaned_item_count",
    "cleaned_item_original_paths",
    "cleaned_item_trash_paths",
    "cleaned_item_restore_details_recorded_count",
};

bool areRestoreDetailsRecorded(const CleanedItem& item)
{
    return item.destinationURL.has_value() && item.restoreSourceIdentity.has_value();
}

void add(CleanupAuditExportSummary& summary, const CleanupAuditEntry& entry)
{
    using Platform::saturatingAdd;
    ++summary.entryCount;
    summary.requestedBytes = saturatingAdd(summary.requestedBytes, entry.requestedBytes);
    summary.affectedBytes = saturatingAdd(summary.affectedBytes, entry.affectedBytes);
    summary.failedItemCount = saturatingAdd(summary.failedItemCount, entry.failedItemCount);
    summary.cancelledCount += entry.wasCancelled ? 1 : 0;
    if (entry.operation == CleanupAuditOperation::clean) {
        ++summary.cleanCount;
        summary.cleanedItemCount =
            saturatingAdd(summary.cleanedItemCount, std::max<std::int64_t>(entry.succeededItemCount, 0));
    } else {
        ++summary.restoreCount;
    }
    for (const auto& item : entry.cleanedItems) {
        if (item.destinationURL) {
            ++summary.trashMovedItemCount;
            summary.trashMovedBytes = saturatingAdd(summary.trashMovedBytes, item.candidate.sizeBytes);
        }
    }
}

CleanupAuditExportSummary summaryOf(const Entries& entries)
{
    CleanupAuditExportSummary summary;
    for (const auto* const entry : entries) {
        add(summary, *entry);
    }
    return summary;
}

/// One object for each export: it keeps the tokens of a redacted one.
class ExportedTexts {
public:
    explicit ExportedTexts(ReportExportPrivacyMode privacyMode)
        : m_text(privacyMode)
    {
    }

    std::vector<std::string> samplePaths(const CleanupAuditEntry& entry)
    {
        return mapped(entry.samplePaths, [this](const std::string& path) { return m_text.path(path, "sample"); });
    }
    std::vector<std::string> failureReasons(const CleanupAuditEntry& entry)
    {
        return mapped(entry.failureReasons,
            [this](const std::string& reason) { return m_text.freeText(reason, "failure-reason"); });
    }
    std::vector<std::string> originalPaths(const CleanupAuditEntry& entry)
    {
        return mapped(entry.cleanedItems, [this](const CleanedItem& item) { return originalPath(item); });
    }
    std::vector<std::string> trashPaths(const CleanupAuditEntry& entry)
    {
        std::vector<std::string> paths;
        for (const auto& item : entry.cleanedItems) {
            if (auto path = trashPath(item)) {
                paths.push_back(*std::move(path));
            }
        }
        return paths;
    }

    std::string originalPath(const CleanedItem& item)
    {
        return m_text.path(item.candidate.url.path(), "cleaned-original");
    }
    std::optional<std::string> trashPath(const CleanedItem& item)
    {
        return item.destinationURL ? std::optional(m_text.path(item.destinationURL->path(), "cleaned-trash"))
                                   : std::nullopt;
    }
    std::string displayName(const CleanedItem& item) { return m_text.name(item.candidate.displayName, "cleaned-item"); }

    [[nodiscard]] std::optional<std::string_view> privacyMark() const { return m_text.privacyMark(); }

private:
    static std::vector<std::string> mapped(const auto& items, auto textOf)
    {
        std::vector<std::string> texts;
        texts.reserve(items.size());
        std::ranges::transform(items, std::back_inserter(texts), textOf);
        return texts;
    }

    ReportExportText m_text;
};

CleanupAuditCleanedItemExportRow cleanedItemRow(const CleanedItem& item, ExportedTexts& texts)
{
    return {
        .originalPath = texts.originalPath(item),
        .displayName = texts.displayName(item),
        .category = item.candidate.category,
        .sizeBytes = item.candidate.sizeBytes,
        .trashPath = texts.trashPath(item),
        .restoreDetailsRecorded = areRestoreDetailsRecorded(item),
    };
}

CleanupAuditExportRow entryRow(const CleanupAuditEntry& entry, ExportedTexts& texts)
{
    CleanupAuditExportRow row{
        .id = entry.id.string(),
        .occurredAt = Platform::DateFormat::iso8601(entry.occurredAt),
        .operation = entry.operation,
        .source = entry.source,
        .mode = entry.mode,
        .requestedItemCount = entry.requestedItemCount,
        .requestedBytes = entry.requestedBytes,
        .succeededItemCount = entry.succeededItemCount,
        .failedItemCount = entry.failedItemCount,
        .affectedBytes = entry.affectedBytes,
        .wasCancelled = entry.wasCancelled,
        .samplePaths = texts.samplePaths(entry),
        .failureReasons = texts.failureReasons(entry),
        .cleanedItems = {},
    };
    for (const auto& item : entry.cleanedItems) {
        row.cleanedItems.push_back(cleanedItemRow(item, texts));
    }
    return row;
}

std::string joined(const std::vector<std::string>& texts)
{
    return fmt::format("{}", fmt::join(texts, kSeparator));
}

std::array<std::string, kColumns.size()> cellsOf(const CleanupAuditEntry& entry, ExportedTexts& texts)
{
    return {
        entry.id.string(),
        Platform::DateFormat::iso8601(entry.occurredAt),
        std::string(Platform::rawValue(entry.operation)),
        std::string(Platform::rawValue(entry.source)),
        std::string(entry.mode ? Platform::rawValue(*entry.mode) : ""),
        std::to_string(entry.requestedItemCount),
        std::to_string(entry.requestedBytes),
        std::to_string(entry.succeededItemCount),
        std::to_string(entry.failedItemCount),
        std::to_string(entry.affectedBytes),
        std::string(csvValue(entry.wasCancelled)),
        joined(texts.samplePaths(entry)),
        joined(texts.failureReasons(entry)),
        std::to_string(entry.cleanedItems.size()),
        joined(texts.originalPaths(entry)),
        joined(texts.trashPaths(entry)),
        std::to_string(std::ranges::count_if(entry.cleanedItems, areRestoreDetailsRecorded)),
    };
}

} // namespace

std::expected<std::string, Platform::JSONError> json(
    const Entries& entries, ReportExportPrivacyMode privacyMode, Platform::Date exportedAt)
{
    ExportedTexts texts(privacyMode);
    Platform::JSONWriter writer;
    Platform::JSONFieldWriter payload(writer);
    writer.beginObject();
    // In the order of the keys, so that the writer need not move the rows.
    payload.elements("entries", entries, [&](const CleanupAuditEntry* entry) { return entryRow(*entry, texts); });
    payload.field("exportedAt", Platform::DateFormat::iso8601(exportedAt));
    payload.field("kind", kKind);
    payload.field("privacyMode", texts.privacyMark());
    payload.field("schemaVersion", kSchemaVersion);
    payload.field("summary", summaryOf(entries));
    writer.endObject();
    return std::move(writer).finish();
}

std::string csv(const Entries& entries, ReportExportPrivacyMode privacyMode)
{
    ExportedTexts texts(privacyMode);
    CSVWriter writer(kColumns, privacyMode);
    for (const auto* const entry : entries) {
        const auto cells = cellsOf(*entry, texts);
        std::array<std::string_view, kColumns.size()> views;
        std::ranges::copy(cells, views.begin());
        writer.addRow(views);
    }
    return std::move(writer).finish();
}

} // namespace CleanerCore::CleanupAuditExport
