#pragma once

#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Insights/FileRecord.h"
#include "Platform/Base/Date.h"

#include <optional>

namespace CleanerCore {

/// The date that an order compares: an item without one counts as younger than all others.
[[nodiscard]] Platform::Date reviewDate(const std::optional<Platform::Date>& lastModified);

/// The order in which a person goes through files: the larger first, then the one that has not been modified for
/// longer, then by path. Strict: equal items prefer neither.
[[nodiscard]] bool prefersReviewRecord(const FileRecord& record, const FileRecord& other);
[[nodiscard]] bool prefersReviewInsight(const FileInsight& insight, const FileInsight& other);

} // namespace CleanerCore
