#include "CleanerCore/Export/ScanResultExporter.h"

#include "CleanerCore/Export/CleanupScanExport.h"
#include "CleanerCore/Export/MacInsightExport.h"
#include "Platform/Base/DateFormat.h"

#include <fmt/format.h>

namespace CleanerCore::ScanResultExporter {

namespace {

using Data = std::expected<std::string, ExportError>;

Data withExportError(std::expected<std::string, Platform::JSONError> json)
{
    if (!json) {
        return std::unexpected(ExportError{std::move(json.error())});
    }
    return *std::move(json);
}

std::expected<void, ExportError> written(
    const Data& bytes, const Platform::FileURL& url, const Platform::FileManager& fileManager)
{
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    auto result = fileManager.writeAtomically(*bytes, url);
    if (!result) {
        return std::unexpected(ExportError{std::move(result.error())});
    }
    return {};
}

} // namespace

std::string defaultFilename(ScanResultExportSource source, Platform::Date scannedAt, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode)
{
    return fmt::format("karvello-{}{}-{}.{}", Platform::rawValue(source),
        privacyMode == ReportExportPrivacyMode::redacted ? "-redacted" : "",
        Platform::DateFormat::fileNameStamp(scannedAt), fileExtension(format));
}

std::expected<std::string, ExportError> data(const ScanReport& report,
    const std::unordered_set<std::string>& selectedIDs, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, Platform::Date exportedAt)
{
    return format == ScanResultExportFormat::csv
        ? CleanupScanExport::csv(report, selectedIDs, privacyMode)
        : withExportError(CleanupScanExport::json(report, selectedIDs, privacyMode, exportedAt));
}

std::expected<std::string, ExportError> data(const MacStorageInsightReport& report,
    const std::unordered_set<std::string>& selectedIDs, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, Platform::Date exportedAt)
{
    return format == ScanResultExportFormat::csv
        ? MacInsightExport::csv(report, selectedIDs, privacyMode)
        : withExportError(MacInsightExport::json(report, selectedIDs, privacyMode, exportedAt));
}

std::expected<void, ExportError> write(const ScanReport& report, const std::unordered_set<std::string>& selectedIDs,
    ScanResultExportFormat format, ReportExportPrivacyMode privacyMode, const Platform::FileURL& url,
    Platform::Date exportedAt, const Platform::FileManager& fileManager)
{
    return written(data(report, selectedIDs, format, privacyMode, exportedAt), url, fileManager);
}

std::expected<void, ExportError> write(const MacStorageInsightReport& report,
    const std::unordered_set<std::string>& selectedIDs, ScanResultExportFormat format,
    ReportExportPrivacyMode privacyMode, const Platform::FileURL& url, Platform::Date exportedAt,
    const Platform::FileManager& fileManager)
{
    return written(data(report, selectedIDs, format, privacyMode, exportedAt), url, fileManager);
}

} // namespace CleanerCore::ScanResultExporter
