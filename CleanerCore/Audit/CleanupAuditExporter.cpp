#include "CleanerCore/Audit/CleanupAuditExporter.h"

#include "CleanerCore/Audit/CleanupAuditExport.h"
#include "Platform/Base/DateFormat.h"

#include <algorithm>
#include <compare>
#include <fmt/format.h>

namespace CleanerCore::CleanupAuditExporter {

namespace {

CleanupAuditExport::Entries newestFirst(std::span<const CleanupAuditEntry> entries)
{
    CleanupAuditExport::Entries sorted;
    sorted.reserve(entries.size());
    for (const auto& entry : entries) {
        sorted.push_back(&entry);
    }
    std::ranges::stable_sort(sorted, [](const CleanupAuditEntry* left, const CleanupAuditEntry* right) {
        return std::weak_order(left->occurredAt.secondsSinceReferenceDate, right->occurredAt.secondsSinceReferenceDate)
            > 0;
    });
    return sorted;
}

} // namespace

std::string defaultFilename(
    Platform::Date exportedAt, ScanResultExportFormat format, ReportExportPrivacyMode privacyMode)
{
    return fmt::format("karvello-cleanup-history{}-{}.{}",
        privacyMode == ReportExportPrivacyMode::redacted ? "-redacted" : "",
        Platform::DateFormat::fileNameStamp(exportedAt), fileExtension(format));
}

std::expected<std::string, ExportError> data(std::span<const CleanupAuditEntry> entries, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, Platform::Date exportedAt)
{
    const auto sorted = newestFirst(entries);
    if (format == ScanResultExportFormat::csv) {
        return CleanupAuditExport::csv(sorted, privacyMode);
    }
    auto json = CleanupAuditExport::json(sorted, privacyMode, exportedAt);
    if (!json) {
        return std::unexpected(ExportError{std::move(json.error())});
    }
    return *std::move(json);
}

std::expected<void, ExportError> write(std::span<const CleanupAuditEntry> entries, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, const Platform::FileURL& url, Platform::Date exportedAt,
    const Platform::FileManager& fileManager)
{
    const auto bytes = data(entries, format, privacyMode, exportedAt);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    auto written = fileManager.writeAtomically(*bytes, url);
    if (!written) {
        return std::unexpected(ExportError{std::move(written.error())});
    }
    return {};
}

} // namespace CleanerCore::CleanupAuditExporter
