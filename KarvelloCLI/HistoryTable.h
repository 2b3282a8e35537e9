#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "KarvelloCLI/TextStyle.h"

#include <span>
#include <string>

namespace KarvelloCLI {

/// The log for reading, an entry a line, the newest first; in a narrow table, two lines. It tells no path.
[[nodiscard]] std::string historyTable(std::span<const CleanerCore::CleanupAuditEntry> entries, const TextStyle& style);

} // namespace KarvelloCLI
