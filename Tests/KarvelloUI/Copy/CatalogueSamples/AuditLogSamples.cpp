#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;

CleanupAuditEntry entry(bool wasCancelled)
{
    return {.succeededItemCount = 5, .failedItemCount = 2, .affectedBytes = 1536, .wasCancelled = wasCancelled};
}

const CatalogueTheme kAuditLog("AuditLog",
    {
        {"auditLogTitle", &KarvelloCopy::auditLogTitle},
        {"auditLogEmpty", &KarvelloCopy::auditLogEmpty},
        {"auditLogLoading", &KarvelloCopy::auditLogLoading},
        {"auditLogExportBody", &KarvelloCopy::auditLogExportBody},
        {"auditLogExportPanelMessage", &KarvelloCopy::auditLogExportPanelMessage},
        {"auditLogExportFailedMessage",
            [](const KarvelloCopy& copy) { return copy.auditLogExportFailedMessage("ENOSPC"); }},
        {"auditOperationName clean",
            [](const KarvelloCopy& copy) { return copy.auditOperationName(CleanupAuditOperation::clean); }},
        {"auditOperationName restore",
            [](const KarvelloCopy& copy) { return copy.auditOperationName(CleanupAuditOperation::restore); }},
        {"auditSourceName cleanupDashboard",
            [](const KarvelloCopy& copy) { return copy.auditSourceName(CleanupAuditSource::cleanupDashboard); }},
        {"auditSourceName macInsights",
            [](const KarvelloCopy& copy) { return copy.auditSourceName(CleanupAuditSource::macInsights); }},
        {"auditSourceName iOSSandbox",
            [](const KarvelloCopy& copy) { return copy.auditSourceName(CleanupAuditSource::iOSSandbox); }},
        {"auditEntrySummary", [](const KarvelloCopy& copy) { return copy.auditEntrySummary(entry(false)); }},
        {"auditEntrySummary cancelled", [](const KarvelloCopy& copy) { return copy.auditEntrySummary(entry(true)); }},
        {"auditEntryAccessibilityLabel",
            [](const KarvelloCopy& copy) { return copy.auditEntryAccessibilityLabel(entry(false), "10:30"); },
            SampleCoverage::own},
    });

} // namespace
} // namespace KarvelloUI
