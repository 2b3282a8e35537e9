#include "CleanerCore/Insights/ReviewOrder.h"

#include <limits>

namespace CleanerCore {

Platform::Date reviewDate(const std::optional<Platform::Date>& lastModified)
{
    return lastModified.value_or(Platform::Date{std::numeric_limits<double>::infinity()});
}

bool prefersReviewRecord(const FileRecord& record, const FileRecord& other)
{
    if (record.allocatedSizeBytes != other.allocatedSizeBytes) {
        return record.allocatedSizeBytes > other.allocatedSizeBytes;
    }
    if (const auto date = reviewDate(record.lastModified), otherDate = reviewDate(other.lastModified);
        date != otherDate) {
        return date < otherDate;
    }
    return record.comparePath(other) == std::strong_ordering::less;
}

bool prefersReviewInsight(const FileInsight& insight, const FileInsight& other)
{
    if (insight.sizeBytes != other.sizeBytes) {
        return insight.sizeBytes > other.sizeBytes;
    }
    if (const auto date = reviewDate(insight.lastModified), otherDate = reviewDate(other.lastModified);
        date != otherDate) {
        return date < otherDate;
    }
    return insight.url.path() < other.url.path();
}

} // namespace CleanerCore
