#pragma once

#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/CleanupSafety.h"
#include "Platform/Base/JSONCoding.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

struct CleanupScanExportSummary {
    std::int64_t candidateCount = 0;
    std::int64_t selectedCount = 0;
    /// Of all candidates, selected or not.
    std::int64_t reclaimableBytes = 0;
    std::int64_t skippedCount = 0;
};

struct CleanupCandidateExportRow {
    std::string id;
    std::string path;
    std::string displayName;
    CleanupCategory category;
    std::int64_t sizeBytes;
    std::optional<std::string> lastModified;
    CleanupSafety safety;
    bool selectedByDefault;
    bool selected;
    bool requiresManualReviewBySource;
};

} // namespace CleanerCore

namespace Platform {

template <>
struct JSONFields<CleanerCore::CleanupScanExportSummary> {
    static void code(auto& coder, auto& summary)
    {
        coder.field("candidateCount", summary.candidateCount);
        coder.field("selectedCount", summary.selectedCount);
        coder.field("reclaimableBytes", summary.reclaimableBytes);
        coder.field("skippedCount", summary.skippedCount);
    }
};

// In the order of the keys: exports have very many of these rows, and the writer has nothing to move then.
template <>
struct JSONFields<CleanerCore::CleanupCandidateExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("category", row.category);
        coder.field("displayName", row.displayName);
        coder.field("id", row.id);
        coder.field("lastModified", row.lastModified);
        coder.field("path", row.path);
        coder.field("requiresManualReviewBySource", row.requiresManualReviewBySource);
        coder.field("safety", row.safety);
        coder.field("selected", row.selected);
        coder.field("selectedByDefault", row.selectedByDefault);
        coder.field("sizeBytes", row.sizeBytes);
    }
};

} // namespace Platform
