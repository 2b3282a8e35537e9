#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Scan/CleanupCategory.h"
#include "Platform/Base/JSONCoding.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace CleanerCore {

/// The figures come from a file, so a sum beyond 64 bits stays at the limit.
struct CleanupAuditExportSummary {
    std::int64_t entryCount = 0;
    std::int64_t cleanCount = 0;
    std::int64_t restoreCount = 0;
    std::int64_t requestedBytes = 0;
    std::int64_t affectedBytes = 0;
    std::int64_t failedItemCount = 0;
    std::int64_t cancelledCount = 0;
    /// All that cleans took away, beside which the log may have kept fewer items.
    std::int64_t cleanedItemCount = 0;
    /// Of the items that the log kept.
    std::int64_t trashMovedItemCount = 0;
    std::int64_t trashMovedBytes = 0;
};

struct CleanupAuditCleanedItemExportRow {
    std::string originalPath;
    std::string displayName;
    CleanupCategory category;
    std::int64_t sizeBytes;
    std::optional<std::string> trashPath;
    bool restoreDetailsRecorded;
};

struct CleanupAuditExportRow {
    std::string id;
    std::string occurredAt;
    CleanupAuditOperation operation;
    CleanupAuditSource source;
    std::optional<CleaningMode> mode;
    std::int64_t requestedItemCount;
    std::int64_t requestedBytes;
    std::int64_t succeededItemCount;
    std::int64_t failedItemCount;
    std::int64_t affectedBytes;
    bool wasCancelled;
    std::vector<std::string> samplePaths;
    std::vector<std::string> failureReasons;
    std::vector<CleanupAuditCleanedItemExportRow> cleanedItems;
};

} // namespace CleanerCore

namespace Platform {

template <>
struct JSONFields<CleanerCore::CleanupAuditExportSummary> {
    static void code(auto& coder, auto& summary)
    {
        coder.field("affectedBytes", summary.affectedBytes);
        coder.field("cancelledCount", summary.cancelledCount);
        coder.field("cleanCount", summary.cleanCount);
        coder.field("cleanedItemCount", summary.cleanedItemCount);
        coder.field("entryCount", summary.entryCount);
        coder.field("failedItemCount", summary.failedItemCount);
        coder.field("requestedBytes", summary.requestedBytes);
        coder.field("restoreCount", summary.restoreCount);
        coder.field("trashMovedBytes", summary.trashMovedBytes);
        coder.field("trashMovedItemCount", summary.trashMovedItemCount);
    }
};

template <>
struct JSONFields<CleanerCore::CleanupAuditCleanedItemExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("category", row.category);
        coder.field("displayName", row.displayName);
        coder.field("originalPath", row.originalPath);
        coder.field("restoreDetailsRecorded", row.restoreDetailsRecorded);
        coder.field("sizeBytes", row.sizeBytes);
        coder.field("trashPath", row.trashPath);
    }
};

template <>
struct JSONFields<CleanerCore::CleanupAuditExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("affectedBytes", row.affectedBytes);
        coder.field("cleanedItems", row.cleanedItems);
        coder.field("failedItemCount", row.failedItemCount);
        coder.field("failureReasons", row.failureReasons);
        coder.field("id", row.id);
        coder.field("mode", row.mode);
        coder.field("occurredAt", row.occurredAt);
        coder.field("operation", row.operation);
        coder.field("requestedBytes", row.requestedBytes);
        coder.field("requestedItemCount", row.requestedItemCount);
        coder.field("samplePaths", row.samplePaths);
        coder.field("source", row.source);
        coder.field("succeededItemCount", row.succeededItemCount);
        coder.field("wasCancelled", row.wasCancelled);
    }
};

} // namespace Platform
