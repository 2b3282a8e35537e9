#include "CleanerCore/Export/ScanResultExporter.h"

#include "CleanerCore/Export/CleanupScanExport.h"
#include "Platform/Base/DateFormat.h"

#include <fmt/format.h>

namespace CleanerCore::ScanResultExporter {

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
    if (format == ScanResultExportFormat::csv) {
        return CleanupScanExport::csv(report, selectedIDs, privacyMode);
    }
    auto json = CleanupScanExport::json(report, selectedIDs, privacyMode, exportedAt);
    if (!json) {
        return std::unexpected(ExportError{std::move(json.error())});
    }
    return *std::move(json);
}

std::expected<void, ExportError> write(const ScanReport& report, const std::unordered_set<std::string>& selectedIDs,
    ScanResultExportFormat format, ReportExportPrivacyMode privacyMode, const Platform::FileURL& url,
    Platform::Date exportedAt, const Platform::FileManager& fileManager)
{
    const auto bytes = data(report, selectedIDs, format, privacyMode, exportedAt);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    auto written = fileManager.writeAtomically(*bytes, url);
    if (!written) {
        return std::unexpected(ExportError{std::move(written.error())});
    }
    return {};
}

} // namespace CleanerCore::ScanResultExporter
