#pragma once

#include "KarvelloUI/Stores/CustomScanFolder.h"
#include "KarvelloUI/Stores/HomeAccessBookmark.h"
#include "KarvelloUI/Stores/IgnoredCleanupItem.h"
#include "Platform/Base/Base64.h"
#include "Platform/Base/JSONCoding.h"
#include "Platform/Services/Bookmarks.h"

#include <utility>

/// The records of the stores in JSON: the keys are the names of the fields.
namespace Platform {

/// Bytes as Base64.
template <>
struct JSONCoding<BookmarkData> {
    static void write(JSONWriter& writer, const BookmarkData& value) { writer.string(Base64::encode(value.bytes)); }

    static std::expected<BookmarkData, JSONError> read(const JSONValue& value)
    {
        const auto* const text = value.string();
        auto bytes = text != nullptr ? Base64::decode(*text) : std::nullopt;
        if (!bytes) {
            return std::unexpected(unexpectedJSON("bytes as Base64", value));
        }
        return BookmarkData{*std::move(bytes)};
    }
};

template <>
struct JSONFields<KarvelloUI::HomeAccessBookmark> {
    static void code(auto& coder, auto& bookmark)
    {
        coder.path("fallbackPath", bookmark.fallbackPath);
        coder.path("effectiveHomeFallbackPath", bookmark.effectiveHomeFallbackPath, bookmark.fallbackPath);
        coder.field("bookmarkData", bookmark.bookmarkData);
        coder.field("createdAt", bookmark.createdAt);
    }
};

template <>
struct JSONFields<KarvelloUI::CustomScanFolder> {
    static void code(auto& coder, auto& folder)
    {
        coder.field("id", folder.id);
        coder.text("displayName", folder.displayName);
        coder.path("fallbackPath", folder.fallbackPath);
        coder.field("bookmarkData", folder.bookmarkData);
        coder.field("createdAt", folder.createdAt);
    }
};

template <>
struct JSONFields<KarvelloUI::IgnoredCleanupItem> {
    static void code(auto& coder, auto& item)
    {
        coder.field("id", item.id);
        coder.text("displayName", item.displayName);
        coder.path("path", item.path);
        coder.field("category", item.category);
        coder.field("sizeBytes", item.sizeBytes);
        coder.field("ignoredAt", item.ignoredAt);
        coder.field("duration", item.duration);
        coder.field("expiresAt", item.expiresAt);
    }
};

} // namespace Platform
