#pragma once

#include "CleanerCore/Insights/BoundedTopN.h"
#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Insights/InsightMaker.h"
#include "CleanerCore/Insights/ReviewOrder.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"

#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace CleanerCore {

/// Picks large files and downloads from the records of a walk. What was modified a short while ago is still in somebody's
/// hands: it is not listed but named as skipped, once for all lists, and up to a number of items.
class ReviewLists {
public:
    static constexpr std::string_view kRecentlyModified = "Recently modified";

    /// Adds to `skipped` what is too new. All arguments must outlive this object.
    ReviewLists(const InsightConfiguration& configuration, Platform::Date scannedAt, const InsightMaker& maker,
        std::vector<SkippedItem>& skipped);

    [[nodiscard]] std::vector<FileInsight> largeFiles(std::span<const FileRecord> records);
    /// Files of any size in `downloadsFolder`, at any depth.
    [[nodiscard]] std::vector<FileInsight> downloads(
        std::span<const FileRecord> records, const Platform::FileURL& downloadsFolder);

    /// Whether there were more items that are too new than may be named.
    [[nodiscard]] bool isTruncated() const { return m_isTruncated; }

private:
    struct PrefersRecord {
        bool operator()(const FileRecord* record, const FileRecord* other) const
        {
            return prefersReviewRecord(*record, *other);
        }
    };
    using Best = BoundedTopN<const FileRecord*, PrefersRecord>;

    /// Offers a file to the list, unless it is too new.
    void offer(const FileRecord& record, Best& best);
    [[nodiscard]] std::vector<FileInsight> insights(Best best, FileInsightKind kind, std::string_view detail) const;
    [[nodiscard]] bool isTooNew(const FileRecord& record) const;
    void noteTooNew(const FileRecord& record);

    const InsightConfiguration& m_configuration;
    Platform::Date m_cutoff;
    const InsightMaker& m_maker;
    std::vector<SkippedItem>& m_skipped;
    std::unordered_set<std::string> m_tooNewPaths;
    bool m_isTruncated = false;
};

} // namespace CleanerCore
