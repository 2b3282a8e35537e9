#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleaningCoding.h"
#include "Platform/Base/JSONCoding.h"

#include <utility>

/// An entry of the audit log in JSON: the keys are the names of the fields. Reading cuts the lists to their bounds. The
/// records for a restore are an addition to what happened: those that cannot be read are left out, and whatever else
/// stands in their place counts as none.
namespace Platform {

template <>
struct JSONFields<CleanerCore::CleanupAuditEntry> {
    static void code(auto& coder, auto& entry)
    {
        coder.field("affectedBytes", entry.affectedBytes);
        coder.readableElements("cleanedItems", entry.cleanedItems);
        coder.field("failedItemCount", entry.failedItemCount);
        coder.text("failureReasons", entry.failureReasons);
        coder.field("id", entry.id);
        coder.field("mode", entry.mode);
        coder.field("occurredAt", entry.occurredAt);
        coder.field("operation", entry.operation);
        coder.field("requestedBytes", entry.requestedBytes);
        coder.field("requestedItemCount", entry.requestedItemCount);
        coder.text("samplePaths", entry.samplePaths);
        coder.field("source", entry.source);
        coder.field("succeededItemCount", entry.succeededItemCount);
        coder.field("wasCancelled", entry.wasCancelled);
    }
    static void normalize(CleanerCore::CleanupAuditEntry& entry) { entry = std::move(entry).normalized(); }
};

} // namespace Platform
