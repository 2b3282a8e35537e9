#include "CleanerCore/Insights/InsightMaker.h"

#include <optional>
#include <utility>

namespace CleanerCore {

FileInsight InsightMaker::insight(const FileRecord& record, FileInsightKind kind, std::string detail) const
{
    auto url = record.url();
    auto identity =
        m_stop.stop_requested() ? std::nullopt : FileResourceIdentity::captureIfAvailable(url, m_fileManager);
    return FileInsight({
        .url = std::move(url),
        .sizeBytes = record.allocatedSizeBytes,
        .lastModified = record.lastModified,
        .resourceIdentity = std::move(identity),
        .kind = kind,
        .detail = std::move(detail),
        .safety = safetyOf(kind),
    });
}

} // namespace CleanerCore
