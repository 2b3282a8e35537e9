#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"

#include <expected>
#include <string>
#include <utility>

namespace Platform {

/// A note of a folder that outlives the process. Only the `Bookmarks` that made it can read it.
struct BookmarkData {
    std::string bytes;

    friend bool operator==(const BookmarkData&, const BookmarkData&) = default;
};

struct ResolvedBookmark {
    FileURL url;
    /// What stands at the place is not the folder that the bookmark was made for.
    bool isStale = false;

    friend bool operator==(const ResolvedBookmark&, const ResolvedBookmark&) = default;
};

/// Remembers folders that the user has picked, and opens the access that came with the pick. Every function may be called
/// from any thread.
class Bookmarks {
public:
    Bookmarks() = default;
    Bookmarks(const Bookmarks&) = delete;
    Bookmarks& operator=(const Bookmarks&) = delete;
    virtual ~Bookmarks() = default;

    [[nodiscard]] virtual std::expected<BookmarkData, FileError> create(const FileURL& folder) const = 0;
    /// An error where there is no folder any more, or where the bytes are no bookmark.
    [[nodiscard]] virtual std::expected<ResolvedBookmark, FileError> resolve(const BookmarkData& bookmark) const = 0;

    /// Whether this process may read the folder from now on. Each true is balanced by one `stopAccessing`.
    [[nodiscard]] virtual bool startAccessing(const FileURL& folder) const = 0;
    virtual void stopAccessing(const FileURL& folder) const = 0;
};

/// Access to a folder for the length of a block, where it can be opened.
class BookmarkAccess {
public:
    /// `bookmarks` must outlive this object.
    BookmarkAccess(const Bookmarks& bookmarks, FileURL folder)
        : m_bookmarks(bookmarks)
        , m_folder(std::move(folder))
        , m_didStart(bookmarks.startAccessing(m_folder))
    {
    }
    BookmarkAccess(const BookmarkAccess&) = delete;
    BookmarkAccess& operator=(const BookmarkAccess&) = delete;
    ~BookmarkAccess()
    {
        if (m_didStart) {
            m_bookmarks.stopAccessing(m_folder);
        }
    }

private:
    const Bookmarks& m_bookmarks;
    FileURL m_folder;
    bool m_didStart;
};

} // namespace Platform
