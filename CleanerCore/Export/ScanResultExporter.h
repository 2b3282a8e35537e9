#pragma once

#include "CleanerCore/Export/ExportError.h"
#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Export/ScanResultExportFormat.h"
#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <expected>
#include <string>
#include <unordered_set>

/// Turns the result of a scan into a file to keep or to share. What it writes does not depend on the language: bytes
/// are integers, dates ISO 8601 in UTC, enumerations their raw values. A redacted file tells neither paths nor names.
/// The same report exported twice in the same way gives the same bytes.
namespace CleanerCore::ScanResultExporter {

/// "karvello-cleanup-redacted-20261115-220405.csv": `scannedAt` in UTC.
[[nodiscard]] std::string defaultFilename(ScanResultExportSource source, Platform::Date scannedAt,
    ScanResultExportFormat format, ReportExportPrivacyMode privacyMode);

/// The whole file, UTF-8. An id in `selectedIDs` that the report does not hold is of no account: the ids are those of
/// candidates, or of file insights. A CSV file does not tell `exportedAt`.
[[nodiscard]] std::expected<std::string, ExportError> data(const ScanReport& report,
    const std::unordered_set<std::string>& selectedIDs, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, Platform::Date exportedAt);
[[nodiscard]] std::expected<std::string, ExportError> data(const MacStorageInsightReport& report,
    const std::unordered_set<std::string>& selectedIDs, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, Platform::Date exportedAt);

/// Writes `data` to `url`, atomically. Makes no folder.
[[nodiscard]] std::expected<void, ExportError> write(const ScanReport& report,
    const std::unordered_set<std::string>& selectedIDs, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, const Platform::FileURL& url, Platform::Date exportedAt,
    const Platform::FileManager& fileManager);
[[nodiscard]] std::expected<void, ExportError> write(const MacStorageInsightReport& report,
    const std::unordered_set<std::string>& selectedIDs, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, const Platform::FileURL& url, Platform::Date exportedAt,
    const Platform::FileManager& fileManager);

} // namespace CleanerCore::ScanResultExporter
