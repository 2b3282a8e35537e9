#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/JSONError.h"

#include <expected>
#include <string>
#include <vector>

/// The content of an audit export's files, of entries in the order in which they are to stand.
namespace CleanerCore::CleanupAuditExport {

using Entries = std::vector<const CleanupAuditEntry*>;

[[nodiscard]] std::expected<std::string, Platform::JSONError> json(
    const Entries& entries, ReportExportPrivacyMode privacyMode, Platform::Date exportedAt);

[[nodiscard]] std::string csv(const Entries& entries, ReportExportPrivacyMode privacyMode);

} // namespace CleanerCore::CleanupAuditExport
