#pragma once

#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/JSONError.h"

#include <expected>
#include <string>
#include <unordered_set>

/// The content of a cleanup scan's export files. Both walk the report once and write row by row: nothing of a large
/// report is held twice but its text.
namespace CleanerCore::CleanupScanExport {

[[nodiscard]] std::expected<std::string, Platform::JSONError> json(const ScanReport& report,
    const std::unordered_set<std::string>& selectedIDs, ReportExportPrivacyMode privacyMode, Platform::Date exportedAt);

[[nodiscard]] std::string csv(
    const ScanReport& report, const std::unordered_set<std::string>& selectedIDs, ReportExportPrivacyMode privacyMode);

} // namespace CleanerCore::CleanupScanExport
