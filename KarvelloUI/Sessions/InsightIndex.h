#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "KarvelloUI/Copy/Vocabulary/MacInsightFileSection.h"
#include "KarvelloUI/Sessions/ActiveScan.h"
#include "Platform/Files/FileManager.h"

#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace KarvelloUI {

/// A report of an insight scan with what a session looks up in it. Immutable: it is made where the scan ran, since it
/// asks the disk, and is then shared.
///
/// Only a file in a folder of the scan may be selected, and never a path that a security finding or the keeper of a group
/// of duplicates has, in whichever list it stands.
class InsightIndex {
public:
    using Files = std::vector<const CleanerCore::FileInsight*>;
    using Paths = std::set<std::string, std::less<>>;

    /// Nothing of it may be selected.
    explicit InsightIndex(CleanerCore::MacStorageInsightReport report);
    InsightIndex(CleanerCore::MacStorageInsightReport report, const ActiveScan& scanned,
        const Platform::FileManager& fileManager);
    InsightIndex(const InsightIndex&) = delete;
    InsightIndex& operator=(const InsightIndex&) = delete;
    ~InsightIndex() = default;

    [[nodiscard]] const CleanerCore::MacStorageInsightReport& report() const { return m_report; }
    /// Nothing for an unknown id. All lists of the report are searched.
    [[nodiscard]] const CleanerCore::FileInsight* file(std::string_view id) const;
    [[nodiscard]] const std::unordered_set<std::string>& selectableFileIDs() const { return m_selectableFileIDs; }
    /// In the order of the report; of duplicates, group by group.
    [[nodiscard]] Files files(MacInsightFileSection section) const;

    /// The paths of `files` that may be cleaned as the disk is now.
    [[nodiscard]] Paths cleanablePaths(std::span<const CleanerCore::FileInsight> files, const ActiveScan& scanned,
        const Platform::FileManager& fileManager) const;

private:
    [[nodiscard]] Paths cleanablePaths(std::span<const Platform::FileURL> urls, const ActiveScan& scanned,
        const Platform::FileManager& fileManager) const;

    CleanerCore::MacStorageInsightReport m_report;
    /// Refers to the report.
    std::unordered_map<std::string_view, const CleanerCore::FileInsight*> m_fileByID;
    Paths m_blockedCleanupPaths;
    std::unordered_set<std::string> m_selectableFileIDs;
};

} // namespace KarvelloUI
