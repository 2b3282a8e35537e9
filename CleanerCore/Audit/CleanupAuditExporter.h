#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Export/ExportError.h"
#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Export/ScanResultExportFormat.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <expected>
#include <span>
#include <string>

/// Turns the history of cleans and restores into a file to keep or to share, the newest entry first. What it writes does
/// not depend on the language. A redacted file tells neither paths nor names. An empty history is a file, too.
namespace CleanerCore::CleanupAuditExporter {

/// "karvello-cleanup-history-redacted-20261115-220405.csv": `exportedAt` in UTC.
[[nodiscard]] std::string defaultFilename(
    Platform::Date exportedAt, ScanResultExportFormat format, ReportExportPrivacyMode privacyMode);

/// The whole file, UTF-8. Entries of the same moment keep their order. In a CSV file a list stands in one cell, its
/// parts joined with " | "; it tells neither `exportedAt` nor the sums.
[[nodiscard]] std::expected<std::string, ExportError> data(std::span<const CleanupAuditEntry> entries,
    ScanResultExportFormat format, ReportExportPrivacyMode privacyMode, Platform::Date exportedAt);

/// Writes `data` to `url`, atomically. Makes no folder.
[[nodiscard]] std::expected<void, ExportError> write(std::span<const CleanupAuditEntry> entries,
    ScanResultExportFormat format, ReportExportPrivacyMode privacyMode, const Platform::FileURL& url,
    Platform::Date exportedAt, const Platform::FileManager& fileManager);

} // namespace CleanerCore::CleanupAuditExporter
