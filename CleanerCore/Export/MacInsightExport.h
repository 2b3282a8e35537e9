#pragma once

#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/JSONError.h"

#include <expected>
#include <string>
#include <unordered_set>

/// The content of an insight scan's export files. Tokens of a redacted one are numbered in the order of the report's
/// lists: the size map, large files, downloads, duplicates, findings, then what was skipped.
namespace CleanerCore::MacInsightExport {

[[nodiscard]] std::expected<std::string, Platform::JSONError> json(const MacStorageInsightReport& report,
    const std::unordered_set<std::string>& selectedIDs, ReportExportPrivacyMode privacyMode, Platform::Date exportedAt);

[[nodiscard]] std::string csv(const MacStorageInsightReport& report, const std::unordered_set<std::string>& selectedIDs,
    ReportExportPrivacyMode privacyMode);

} // namespace CleanerCore::MacInsightExport
