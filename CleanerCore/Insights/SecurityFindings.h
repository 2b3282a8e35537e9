#pragma once

#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/InsightMaker.h"

#include <cstdint>
#include <span>
#include <vector>

namespace CleanerCore {

/// The records whose names are worth a look, folders included, the larger first. Of more than `limit` the ones with the
/// higher priority stay, then the larger, then those seen first.
[[nodiscard]] std::vector<FileInsight> securityFindings(
    std::span<const FileRecord> records, std::int64_t limit, const InsightMaker& maker);

} // namespace CleanerCore
