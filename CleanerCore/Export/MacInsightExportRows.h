#pragma once

#include "CleanerCore/Insights/DuplicateKeeperRecommendation.h"
#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Scan/CleanupSafety.h"
#include "Platform/Base/JSONCoding.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

struct MacInsightExportSummary {
    std::int64_t heatmapItemCount = 0;
    std::int64_t largeFileCount = 0;
    std::int64_t downloadFileCount = 0;
    std::int64_t duplicateGroupCount = 0;
    /// Keepers included.
    std::int64_t duplicateFileCount = 0;
    std::int64_t duplicateWastedBytes = 0;
    std::int64_t securityFindingCount = 0;
    /// Of the ids in the lists of files; the size map has none to select.
    std::int64_t selectedCount = 0;
    std::int64_t skippedCount = 0;
    bool isTruncated = false;
};

struct HeatmapExportRow {
    std::string id;
    std::string path;
    std::string displayName;
    std::int64_t sizeBytes;
    std::int64_t itemCount;
    bool isTruncated;
};

struct FileInsightExportRow {
    std::string id;
    std::string path;
    std::string displayName;
    std::string parentPath;
    std::int64_t sizeBytes;
    std::optional<std::string> lastModified;
    FileInsightKind kind;
    std::string detail;
    CleanupSafety safety;
    bool selected;
    /// The last two on files of a duplicate group only.
    std::optional<std::string> duplicateGroupID;
    std::optional<std::string_view> duplicateRole;
};

struct DuplicateGroupExportRow {
    std::string id;
    std::int64_t sizeBytes;
    std::int64_t wastedBytes;
    std::vector<DuplicateKeeperRecommendationReason> keeperRecommendationReasons;
    std::vector<FileInsightExportRow> files;
};

struct SystemSnapshotExportRow {
    std::string capturedAt;
    std::uint64_t physicalMemoryBytes;
    std::uint64_t usedMemoryBytes;
    std::uint64_t freeMemoryBytes;
    std::string memoryPressure;
    double cpuLoadAverage;
    double normalizedCPULoad;
    std::int64_t processorCount;
    std::int64_t activeProcessorCount;
    std::string thermalState;
    double uptime;
    std::string temperatureDetail;
};

} // namespace CleanerCore

namespace Platform {

template <>
struct JSONFields<CleanerCore::MacInsightExportSummary> {
    static void code(auto& coder, auto& summary)
    {
        coder.field("heatmapItemCount", summary.heatmapItemCount);
        coder.field("largeFileCount", summary.largeFileCount);
        coder.field("downloadFileCount", summary.downloadFileCount);
        coder.field("duplicateGroupCount", summary.duplicateGroupCount);
        coder.field("duplicateFileCount", summary.duplicateFileCount);
        coder.field("duplicateWastedBytes", summary.duplicateWastedBytes);
        coder.field("securityFindingCount", summary.securityFindingCount);
        coder.field("selectedCount", summary.selectedCount);
        coder.field("skippedCount", summary.skippedCount);
        coder.field("isTruncated", summary.isTruncated);
    }
};

template <>
struct JSONFields<CleanerCore::HeatmapExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("id", row.id);
        coder.field("path", row.path);
        coder.field("displayName", row.displayName);
        coder.field("sizeBytes", row.sizeBytes);
        coder.field("itemCount", row.itemCount);
        coder.field("isTruncated", row.isTruncated);
    }
};

template <>
struct JSONFields<CleanerCore::FileInsightExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("id", row.id);
        coder.field("path", row.path);
        coder.field("displayName", row.displayName);
        coder.field("parentPath", row.parentPath);
        coder.field("sizeBytes", row.sizeBytes);
        coder.field("lastModified", row.lastModified);
        coder.field("kind", row.kind);
        coder.field("detail", row.detail);
        coder.field("safety", row.safety);
        coder.field("selected", row.selected);
        coder.field("duplicateGroupID", row.duplicateGroupID);
        coder.field("duplicateRole", row.duplicateRole);
    }
};

template <>
struct JSONFields<CleanerCore::DuplicateGroupExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("id", row.id);
        coder.field("sizeBytes", row.sizeBytes);
        coder.field("wastedBytes", row.wastedBytes);
        coder.field("keeperRecommendationReasons", row.keeperRecommendationReasons);
        coder.field("files", row.files);
    }
};

template <>
struct JSONFields<CleanerCore::SystemSnapshotExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("capturedAt", row.capturedAt);
        coder.field("physicalMemoryBytes", row.physicalMemoryBytes);
        coder.field("usedMemoryBytes", row.usedMemoryBytes);
        coder.field("freeMemoryBytes", row.freeMemoryBytes);
        coder.field("memoryPressure", row.memoryPressure);
        coder.field("cpuLoadAverage", row.cpuLoadAverage);
        coder.field("normalizedCPULoad", row.normalizedCPULoad);
        coder.field("processorCount", row.processorCount);
        coder.field("activeProcessorCount", row.activeProcessorCount);
        coder.field("thermalState", row.thermalState);
        coder.field("uptime", row.uptime);
        coder.field("temperatureDetail", row.temperatureDetail);
    }
};

} // namespace Platform
