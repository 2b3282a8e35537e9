#include "CleanerCore/Export/CleanupScanExport.h"

#include "CleanerCore/Export/CSVWriter.h"
#include "CleanerCore/Export/CleanupScanExportRows.h"
#include "CleanerCore/Export/ReportExportText.h"
#include "CleanerCore/Export/ScanResultCSVRow.h"
#include "CleanerCore/Export/ScanResultExportFormat.h"
#include "CleanerCore/Export/SkippedItemExportRow.h"
#include "Platform/Base/DateFormat.h"

#include <algorithm>
#include <fmt/format.h>

namespace CleanerCore::CleanupScanExport {

namespace {

using SelectedIDs = std::unordered_set<std::string>;

constexpr int kSchemaVersion = 1;
constexpr auto kKind = Platform::rawValue(ScanResultExportSource::cleanup);

constexpr std::string_view kCandidateLabel = "cleanup-candidate";

// What a row takes beside its texts, and a little more: a text of half a gigabyte had better not grow.
constexpr std::size_t kBytesPerJSONRow = 352;
constexpr std::size_t kBytesPerCSVRow = 128;

/// The bytes of the texts that rows repeat. Room for every eighth byte to be escaped is part of it.
std::size_t textBytes(const ScanReport& report)
{
    std::size_t bytes = 0;
    for (const auto& candidate : report.candidates) {
        bytes += candidate.id.size() + candidate.url.path().size() + candidate.displayName.size();
    }
    for (const auto& item : report.skippedItems) {
        bytes += item.url.path().size() + item.reason.size();
    }
    return bytes + bytes / 8;
}

std::size_t rowCount(const ScanReport& report)
{
    return report.candidates.size() + report.skippedItems.size() + 2;
}

CleanupScanExportSummary summaryOf(const ScanReport& report, const SelectedIDs& selectedIDs)
{
    return {
        .candidateCount = std::ssize(report.candidates),
        .selectedCount = std::ranges::count_if(
            report.candidates, [&](const auto& candidate) { return selectedIDs.contains(candidate.id); }),
        .reclaimableBytes = report.reclaimableBytes(),
        .skippedCount = std::ssize(report.skippedItems),
    };
}

CleanupCandidateExportRow candidateRow(
    const CleanupCandidate& candidate, const SelectedIDs& selectedIDs, ReportExportText& text)
{
    return {
        .id = text.identifier(candidate.id, kCandidateLabel),
        .path = text.path(candidate.url.path(), kCandidateLabel),
        .displayName = text.name(candidate.displayName, kCandidateLabel),
        .category = candidate.category,
        .sizeBytes = candidate.sizeBytes,
        .lastModified = exportedDate(candidate.lastModified),
        .safety = candidate.safety,
        .selectedByDefault = candidate.isSelectedByDefault,
        .selected = selectedIDs.contains(candidate.id),
        .requiresManualReviewBySource = candidate.requiresManualReviewBySource,
    };
}

} // namespace

std::expected<std::string, Platform::JSONError> json(const ScanReport& report, const SelectedIDs& selectedIDs,
    ReportExportPrivacyMode privacyMode, Platform::Date exportedAt)
{
    ReportExportText text(privacyMode);
    Platform::JSONWriter writer;
    writer.reserve(rowCount(report) * kBytesPerJSONRow + textBytes(report));
    Platform::JSONFieldWriter payload(writer);
    writer.beginObject();
    // In the order of the keys, so that the writer need not move the rows.
    payload.elements("candidates", report.candidates,
        [&](const CleanupCandidate& candidate) { return candidateRow(candidate, selectedIDs, text); });
    payload.field("exportedAt", Platform::DateFormat::iso8601(exportedAt));
    payload.field("kind", kKind);
    payload.field("privacyMode", text.privacyMark());
    payload.field("scannedAt", Platform::DateFormat::iso8601(report.scannedAt));
    payload.field("schemaVersion", kSchemaVersion);
    payload.elements("skippedItems", report.skippedItems,
        [&](const SkippedItem& item) { return SkippedItemExportRow::of(item, text); });
    payload.field("summary", summaryOf(report, selectedIDs));
    writer.endObject();
    return std::move(writer).finish();
}

std::string csv(const ScanReport& report, const SelectedIDs& selectedIDs, ReportExportPrivacyMode privacyMode)
{
    ReportExportText text(privacyMode);
    CSVWriter writer(ScanResultCSVRow::columns, privacyMode);
    writer.reserve(rowCount(report) * kBytesPerCSVRow + textBytes(report));
    for (const auto& candidate : report.candidates) {
        const auto path = text.path(candidate.url.path(), kCandidateLabel);
        const auto name = text.name(candidate.displayName, kCandidateLabel);
        const fmt::format_int sizeBytes(candidate.sizeBytes);
        const auto lastModified = exportedDate(candidate.lastModified);
        const ScanResultCSVRow row{
            .exportKind = kKind,
            .recordType = "candidate",
            .section = kKind,
            .path = path,
            .displayName = name,
            .category = Platform::rawValue(candidate.category),
            .sizeBytes = {sizeBytes.data(), sizeBytes.size()},
            .lastModified = lastModified ? std::string_view(*lastModified) : std::string_view(),
            .safety = Platform::rawValue(candidate.safety),
            .selectedByDefault = csvValue(candidate.isSelectedByDefault),
            .selected = csvValue(selectedIDs.contains(candidate.id)),
            .manualReviewRequired = csvValue(candidate.requiresManualReviewBySource),
        };
        writer.addRow(row.cells());
    }
    for (const auto& item : report.skippedItems) {
        const auto exported = SkippedItemExportRow::of(item, text);
        const ScanResultCSVRow row{
            .exportKind = kKind,
            .recordType = "skipped",
            .section = kKind,
            .path = exported.path,
            .reason = exported.reason,
        };
        writer.addRow(row.cells());
    }
    return std::move(writer).finish();
}

} // namespace CleanerCore::CleanupScanExport
