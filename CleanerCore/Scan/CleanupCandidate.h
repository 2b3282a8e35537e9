#pragma once

#include "CleanerCore/Scan/AppCacheContext.h"
#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/CleanupSafety.h"
#include "CleanerCore/Scan/FileResourceIdentity.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

namespace CleanupManualReviewPolicy {
/// The one rule for what a person has to look at before it may be selected with the rest.
[[nodiscard]] bool requires_(CleanupCategory category, CleanupSafety safety, bool requiresManualReviewBySource);
} // namespace CleanupManualReviewPolicy

/// One reviewable item found by a scan.
struct CleanupCandidate {
    /// What a candidate is made from; the constructor normalises it.
    struct Fields {
        Platform::FileURL url;
        /// Absent: the last component of the path.
        std::optional<std::string> displayName = {};
        CleanupCategory category = CleanupCategory::customFolder;
        /// Negative counts as 0.
        std::int64_t sizeBytes = 0;
        std::optional<Platform::Date> lastModified = {};
        std::optional<FileResourceIdentity> resourceIdentity = {};
        bool isSelectedByDefault = false;
        CleanupSafety safety = CleanupSafety::manualReview;
        bool requiresManualReviewBySource = false;
        std::optional<AppCacheContext> appCacheContext = {};
    };

    CleanupCandidate() = default;
    explicit CleanupCandidate(Fields fields);

    /// The category's raw value, a colon and the path (`itemIdentifier`).
    static std::string makeId(CleanupCategory category, const Platform::FileURL& url);

    std::string id;
    Platform::FileURL url;
    /// Bytes as the file system has them: not necessarily UTF-8.
    std::string displayName;
    CleanupCategory category = CleanupCategory::customFolder;
    /// Allocated bytes of the item and of what it holds.
    std::int64_t sizeBytes = 0;
    /// The latest modification seen in the item's tree.
    std::optional<Platform::Date> lastModified;
    std::optional<FileResourceIdentity> resourceIdentity;
    bool isSelectedByDefault = false;
    CleanupSafety safety = CleanupSafety::manualReview;
    bool requiresManualReviewBySource = false;
    std::optional<AppCacheContext> appCacheContext;

    [[nodiscard]] CleanupRecommendationReason recommendationReason() const;
    [[nodiscard]] bool requiresManualReview() const;
    /// A copy with another context, made by the rules of the constructor.
    [[nodiscard]] CleanupCandidate withAppCacheContext(std::optional<AppCacheContext> context) const;

    friend bool operator==(const CleanupCandidate&, const CleanupCandidate&) = default;
};

} // namespace CleanerCore
