#pragma once

#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Insights/InsightScanOptions.h"
#include "CleanerCore/Insights/MacStorageInsightCleanupAllowance.h"
#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <functional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace CleanerCore {

/// Shows where the space went in a user's own folders: how much each holds, its largest files, what has lain in
/// Downloads, what is there twice, and what a careful user may want to look at. Nothing on disk is changed. What has to
/// be given up is told in the report; there is no failure. Immutable: one scanner may serve several threads.
class MacStorageInsightScanner {
public:
    using Configuration = InsightConfiguration;

    using Options = InsightScanOptions;
    using Progress = InsightScanProgress;
    using ProgressHandler = std::function<void(const Progress&)>;

    /// `fileManager` must outlive the scanner.
    MacStorageInsightScanner(Platform::FileURL homeDirectory, const Platform::FileManager& fileManager,
        const Configuration& configuration, Options options = {});

    /// `now` is the date of the report and the reference of all ages. The handler is called on the calling thread, at
    /// the beginning of each root and every few hundred items. After a stop the report holds what was found until then.
    [[nodiscard]] MacStorageInsightReport scan(
        Platform::Date now, const ProgressHandler& progressHandler = {}, const std::stop_token& stop = {}) const;

    /// Where items that a scan of this home shows may be cleaned: fewer folders than it looks at, and only existing ones.
    [[nodiscard]] static std::vector<ScanLocation> allowedCleanupLocations(const Platform::FileURL& homeDirectory,
        const Platform::FileManager& fileManager, const Platform::Environment& environment);
    [[nodiscard]] static MacStorageInsightCleanupAllowance cleanupAllowance(
        std::span<const ScanLocation> allowedLocations, const Platform::FileManager& fileManager);
    [[nodiscard]] static bool isCleanupAllowed(const Platform::FileURL& url, const Platform::FileURL& homeDirectory,
        const Platform::FileManager& fileManager, const Platform::Environment& environment);
    [[nodiscard]] static bool isCleanupAllowed(const Platform::FileURL& url,
        std::span<const ScanLocation> allowedLocations, const Platform::FileManager& fileManager);

    [[nodiscard]] std::string displayName(const Platform::FileURL& url) const;

private:
    [[nodiscard]] unsigned jobs() const;

    Platform::FileURL m_homeDirectory;
    const Platform::FileManager& m_fileManager;
    Configuration m_configuration;
    Options m_options;
};

} // namespace CleanerCore
