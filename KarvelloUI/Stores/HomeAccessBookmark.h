#pragma once

#include "KarvelloUI/Stores/SecurityScopedAccess.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Bookmarks.h"

#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// Why a picked item is no grant for the home folder.
struct HomeAccessBookmarkError {
    enum class Kind : std::uint8_t { notDirectory, notCurrentUserHome };

    Kind kind = Kind::notDirectory;
    std::string path;

    /// The kind's sentence followed at once by the path, bytes that are not UTF-8 escaped.
    [[nodiscard]] std::string errorDescription() const;

    friend bool operator==(const HomeAccessBookmarkError&, const HomeAccessBookmarkError&) = default;
};

struct ResolvedHomeAccessBookmark;

/// The user's consent to read the home folder, or the `Library` folder in it, and nothing else.
struct HomeAccessBookmark {
    /// Where the granted folder was.
    std::string fallbackPath;
    /// The home at that time.
    std::string effectiveHomeFallbackPath;
    Platform::BookmarkData bookmarkData;
    Platform::Date createdAt;

    [[nodiscard]] static std::expected<HomeAccessBookmark, FolderAccessError<HomeAccessBookmarkError>> make(
        const Platform::FileURL& picked, const Platform::FileURL& currentHome, const Platform::FileManager& fileManager,
        const Platform::Bookmarks& bookmarks, Platform::Date now);
    [[nodiscard]] std::expected<ResolvedHomeAccessBookmark, Platform::FileError> resolve(
        const Platform::FileURL& currentHome, const Platform::FileManager& fileManager,
        const Platform::Bookmarks& bookmarks) const;

    /// Looks at the texts alone.
    [[nodiscard]] static bool isAllowedHomeAccessGrant(std::string_view path, const Platform::FileURL& currentHome);

    friend bool operator==(const HomeAccessBookmark&, const HomeAccessBookmark&) = default;
};

struct ResolvedHomeAccessBookmark {
    Platform::FileURL grantedURL;
    Platform::FileURL effectiveHomeDirectory;
    /// The grant must not be used: another folder, another home, or a link.
    bool bookmarkWasStale = false;
    HomeAccessBookmark originalBookmark;

    friend bool operator==(const ResolvedHomeAccessBookmark&, const ResolvedHomeAccessBookmark&) = default;
};

} // namespace KarvelloUI
