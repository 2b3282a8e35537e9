#pragma once

#include <array>
#include <string_view>

namespace CleanerCore {

/// One row of a scan's CSV file. Cleanup and insight exports have the same columns; a column that has no meaning for a
/// row is left empty. The views live until the row is written.
struct ScanResultCSVRow {
    std::string_view exportKind = {};
    std::string_view recordType = {};
    std::string_view section = {};
    std::string_view path = {};
    std::string_view displayName = {};
    std::string_view category = {};
    std::string_view insightKind = {};
    std::string_view sizeBytes = {};
    std::string_view lastModified = {};
    std::string_view safety = {};
    std::string_view selectedByDefault = {};
    std::string_view selected = {};
    std::string_view manualReviewRequired = {};
    std::string_view reason = {};
    std::string_view detail = {};
    std::string_view duplicateGroupID = {};
    std::string_view duplicateRole = {};

    static constexpr std::array<std::string_view, 17> columns{
        "export_kind",
        "record_type",
        "section",
        "path",
        "display_name",
        "category",
        "insight_kind",
        "size_bytes",
        "last_modified",
        "safety",
        "selected_by_default",
        "selected",
        "manual_review_required",
        "reason",
        "detail",
        "duplicate_group_id",
        "duplicate_role",
    };

    /// In the order of the columns.
    [[nodiscard]] constexpr std::array<std::string_view, columns.size()> cells() const
    {
        return {exportKind, recordType, section, path, displayName, category, insightKind, sizeBytes, lastModified,
            safety, selectedByDefault, selected, manualReviewRequired, reason, detail, duplicateGroupID, duplicateRole};
    }
};

/// The cell of a boolean.
[[nodiscard]] constexpr std::string_view csvValue(bool value)
{
    return value ? "true" : "false";
}

} // namespace CleanerCore
