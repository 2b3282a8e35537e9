#pragma once

#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Insights/StorageMapItem.h"
#include "CleanerCore/Scan/ScanCoding.h"
#include "Platform/Base/JSONCoding.h"

#include <algorithm>

/// The records of an insight scan in JSON: the keys are the names of the fields. Reading keeps the limits of the
/// constructors, but takes ids and names as they are stored.
namespace Platform {

template <>
struct JSONFields<CleanerCore::StorageMapItem> {
    static void code(auto& coder, auto& item)
    {
        coder.field("id", item.id);
        coder.field("url", item.url);
        coder.text("displayName", item.displayName);
        coder.field("sizeBytes", item.sizeBytes);
        coder.field("itemCount", item.itemCount);
        coder.field("isTruncated", item.isTruncated);
    }
    static void normalize(CleanerCore::StorageMapItem& item)
    {
        item.sizeBytes = std::max<std::int64_t>(item.sizeBytes, 0);
        item.itemCount = std::max<std::int64_t>(item.itemCount, 0);
    }
};

template <>
struct JSONFields<CleanerCore::FileInsight> {
    static void code(auto& coder, auto& insight)
    {
        coder.field("id", insight.id);
        coder.field("url", insight.url);
        coder.text("displayName", insight.displayName);
        coder.text("parentPath", insight.parentPath);
        coder.field("sizeBytes", insight.sizeBytes);
        coder.field("lastModified", insight.lastModified);
        coder.field("resourceIdentity", insight.resourceIdentity);
        coder.field("kind", insight.kind);
        coder.text("detail", insight.detail);
        coder.field("safety", insight.safety);
    }
    static void normalize(CleanerCore::FileInsight& insight)
    {
        insight.sizeBytes = std::max<std::int64_t>(insight.sizeBytes, 0);
    }
};

} // namespace Platform
