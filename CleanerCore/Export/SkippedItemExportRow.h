#pragma once

#include "CleanerCore/Export/ReportExportText.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Base/JSONCoding.h"

#include <string>
#include <string_view>

namespace CleanerCore {

/// A skipped item as every scan's export tells it.
struct SkippedItemExportRow {
    static constexpr std::string_view kLabel = "skipped";
    static constexpr std::string_view kReasonLabel = "skipped-reason";

    static SkippedItemExportRow of(const SkippedItem& item, ReportExportText& text)
    {
        return {.path = text.path(item.url.path(), kLabel), .reason = text.freeText(item.reason, kReasonLabel)};
    }

    std::string path;
    std::string reason;
};

} // namespace CleanerCore

namespace Platform {

template <>
struct JSONFields<CleanerCore::SkippedItemExportRow> {
    static void code(auto& coder, auto& row)
    {
        coder.field("path", row.path);
        coder.field("reason", row.reason);
    }
};

} // namespace Platform
