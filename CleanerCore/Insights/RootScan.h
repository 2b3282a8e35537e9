#pragma once

#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Insights/InsightWalk.h"
#include "CleanerCore/Insights/WalkPool.h"
#include "CleanerCore/Insights/WalkSegment.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <vector>

namespace CleanerCore {

/// What the walk of one root came to.
struct RootScanResult {
    std::int64_t byteSize = 0;
    std::int64_t itemCount = 0;
    bool isTruncated = false;
};

/// What the walks of all roots of a scan share.
struct InsightScanRun {
    const Platform::FileManager& fileManager;
    const InsightConfiguration& configuration;
    const Platform::FileURL& homeDirectory;
    const std::stop_token& stop;
    /// Nothing when the scanning thread walks alone.
    WalkPool* pool = nullptr;
    /// Told of the visits as they are counted.
    std::function<void(std::int64_t)> visited;

    /// One budget for the insides of all packages. Below 0 once a package met more than was left.
    std::int64_t packageVisitBudget = 0;
    /// By the path of the package.
    std::unordered_map<std::string, RootScanResult> packages;
    std::vector<FileRecord> records;
    std::vector<SkippedItem> skippedItems;
};

/// The walk of one root, counted against its budgets.
class RootScan {
public:
    RootScan(InsightScanRun& run, const RootPlan& plan);

    /// Adds the records and the skipped items to those of the run. A root that may not be scanned, or cannot be, is a
    /// skipped item and counts nothing.
    [[nodiscard]] RootScanResult perform();

private:
    void walk(const WalkRules& rules);
    void add(WalkSegment segment, std::size_t visits);
    void add(PackageVisit package);
    [[nodiscard]] RootScanResult inventory(PackageVisit& package);
    void count(std::int64_t byteSize, std::int64_t itemCount);

    InsightScanRun& m_run;
    const RootPlan& m_plan;
    RootScanResult m_result;
    /// Folders that could not be listed: they are told at the end of the root.
    std::vector<SkippedItem> m_enumerationErrors;
};

} // namespace CleanerCore
