#pragma once

#include "CleanerCore/Insights/DuplicateCoding.h"
#include "CleanerCore/Insights/InsightCoding.h"
#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Insights/SystemResourceCoding.h"
#include "CleanerCore/Scan/ScanCoding.h"
#include "Platform/Base/JSONCoding.h"

namespace Platform {

/// The keys are the names of the fields, and all are required. What is read is brought into the report's orders.
template <>
struct JSONFields<CleanerCore::MacStorageInsightReport> {
    static void code(auto& coder, auto& report)
    {
        coder.field("scannedAt", report.scannedAt);
        coder.field("heatmapItems", report.heatmapItems);
        coder.field("largeFiles", report.largeFiles);
        coder.field("downloadFiles", report.downloadFiles);
        coder.field("duplicateGroups", report.duplicateGroups);
        coder.field("securityFindings", report.securityFindings);
        coder.field("skippedItems", report.skippedItems);
        coder.field("isTruncated", report.isTruncated);
        coder.field("systemSnapshot", report.systemSnapshot);
    }
    static void normalize(CleanerCore::MacStorageInsightReport& report) { report.sort(); }
};

} // namespace Platform
