#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/CleanupSafety.h"
#include "CleanerCore/Scan/FileResourceIdentity.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/RawValue.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

/// Why a file is shown. Raw values are part of the ids.
enum class FileInsightKind : std::uint8_t { largeFile, download, duplicate, securitySignal };

/// `manualReview` for a security signal, otherwise `caution`.
[[nodiscard]] constexpr CleanupSafety safetyOf(FileInsightKind kind)
{
    return kind == FileInsightKind::securitySignal ? CleanupSafety::manualReview : CleanupSafety::caution;
}

/// One reviewable file of an insight scan.
struct FileInsight {
    /// What an insight is made from; the constructor normalises it.
    struct Fields {
        Platform::FileURL url;
        /// Negative counts as 0.
        std::int64_t sizeBytes = 0;
        std::optional<Platform::Date> lastModified = {};
        std::optional<FileResourceIdentity> resourceIdentity = {};
        FileInsightKind kind = FileInsightKind::largeFile;
        std::string detail;
        CleanupSafety safety = CleanupSafety::caution;
    };

    FileInsight() = default;
    explicit FileInsight(Fields fields);

    /// The kind's raw value, a colon and the path (`itemIdentifier`): one file may stand in several lists, and each is
    /// selected by itself.
    std::string id;
    Platform::FileURL url;
    /// Bytes as the file system has them: not necessarily UTF-8. `parentPath` likewise.
    std::string displayName;
    std::string parentPath;
    /// Allocated bytes.
    std::int64_t sizeBytes = 0;
    std::optional<Platform::Date> lastModified;
    /// What stood at the path when the insight was made.
    std::optional<FileResourceIdentity> resourceIdentity;
    FileInsightKind kind = FileInsightKind::largeFile;
    /// The short reason shown with the item.
    std::string detail;
    CleanupSafety safety = CleanupSafety::caution;

    /// The same file on its way to the Trash: never selected by default, and with no context of an application.
    [[nodiscard]] CleanupCandidate cleanupCandidate(CleanupCategory category) const;

    friend bool operator==(const FileInsight&, const FileInsight&) = default;
};

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::FileInsightKind> {
    static constexpr std::array<std::string_view, 4> names{"largeFile", "download", "duplicate", "securitySignal"};
};
