#pragma once

#include "CleanerCore/Scan/StorageScanner.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/Days.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace ScanTests {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using CleanerCore::ScanDepth;
using CleanerCore::ScanLocation;
using CleanerCore::ScanReport;
using CleanerCore::StorageScanner;
using CleanerCore::StorageScanProgress;
using TestSupport::kDay;
using TestSupport::TemporaryTree;
namespace SkipReason = CleanerCore::StorageScannerSkipReason;

/// What a test says of a location beside its root.
struct LocationRules {
    double minimumModificationAge = kDay;
    bool includesHiddenFiles = false;
    bool includesPackageDescendants = false;
    ScanDepth depth = ScanDepth::immediateChildren;
};

inline ScanLocation location(const Platform::FileURL& root, const LocationRules& rules = {})
{
    return ScanLocation({
        .rootURL = root,
        .category = CleanupCategory::userCaches,
        .displayName = std::nullopt,
        .depth = rules.depth,
        .isSelectedByDefault = true,
        .safety = CleanupSafety::safe,
        .minimumModificationAge = rules.minimumModificationAge,
        .includesHiddenFiles = rules.includesHiddenFiles,
        .includesPackageDescendants = rules.includesPackageDescendants,
        .appCacheContext = std::nullopt,
    });
}

/// A home with one root, `Caches`, that is scanned alone.
class StorageScannerTest : public testing::Test {
protected:
    ScanReport scan(const LocationRules& rules = {}, const StorageScanner::ProgressHandler& handler = {},
        const std::stop_token& stop = {})
    {
        return scan({location(m_tree.url("home/Caches/"), rules)}, handler, stop);
    }

    ScanReport scan(const std::vector<ScanLocation>& locations, const StorageScanner::ProgressHandler& handler = {},
        const std::stop_token& stop = {})
    {
        const StorageScanner scanner(*m_fileManager, m_configuration);
        return scanner.scan(locations, m_tree.now(), handler, stop, m_tree.url("home/"));
    }

    [[nodiscard]] static std::vector<std::string> candidateNames(const ScanReport& report)
    {
        std::vector<std::string> names;
        for (const auto& candidate : report.candidates) {
            names.push_back(candidate.displayName);
        }
        return names;
    }

    /// The reason that the report gives for the item at a path below `Caches`; empty if it names the item nowhere.
    [[nodiscard]] std::string reason(const ScanReport& report, std::string_view name) const
    {
        const auto path = m_tree.path("home/Caches/" + std::string(name));
        const auto found = std::ranges::find(report.skippedItems, path,
            [](const CleanerCore::SkippedItem& item) -> const std::string& { return item.url.path(); });
        return found == report.skippedItems.end() ? std::string() : found->reason;
    }

    TemporaryTree m_tree{"home/Caches/"};
    Platform::PosixFileManager m_posix;
    const Platform::FileManager* m_fileManager = &m_posix;
    StorageScanner::Configuration m_configuration{.jobs = 1};
};

} // namespace ScanTests
