#pragma once

#include "Platform/Services/Bookmarks.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <string>

namespace TestSupport {

/// Does what `inner` does, which must outlive it, counts what is open, and lets calls fail that a test names. For one
/// thread.
class RecordingBookmarks final : public Platform::Bookmarks {
public:
    explicit RecordingBookmarks(const Platform::Bookmarks& inner)
        : m_inner(inner)
    {
    }

    /// An `errno` for all that follow; 0 for none.
    int createError = 0;
    bool refusesAccess = false;
    /// Tells of each bookmark that its folder is another one by now.
    bool tellsStale = false;

    /// How often access was started, and how often it was not stopped since.
    [[nodiscard]] int startCount() const { return m_startCount; }
    [[nodiscard]] int openCount() const
    {
        int count = 0;
        for (const auto& [path, open] : m_open) {
            count += open;
        }
        return count;
    }
    /// Access was stopped that was not started.
    [[nodiscard]] bool wentBelowZero() const { return m_wentBelowZero; }

    [[nodiscard]] std::expected<Platform::BookmarkData, Platform::FileError> create(
        const Platform::FileURL& folder) const override
    {
        if (createError != 0) {
            return std::unexpected(
                Platform::FileError::fromSystemError(createError, Platform::FileOperation::read, folder.path()));
        }
        return m_inner.create(folder);
    }
    [[nodiscard]] std::expected<Platform::ResolvedBookmark, Platform::FileError> resolve(
        const Platform::BookmarkData& bookmark) const override
    {
        auto resolved = m_inner.resolve(bookmark);
        if (resolved && tellsStale) {
            resolved->isStale = true;
        }
        return resolved;
    }
    [[nodiscard]] bool startAccessing(const Platform::FileURL& folder) const override
    {
        ++m_startCount;
        const bool started = !refusesAccess && m_inner.startAccessing(folder);
        m_open[folder.path()] += started ? 1 : 0;
        return started;
    }
    void stopAccessing(const Platform::FileURL& folder) const override
    {
        m_wentBelowZero = --m_open[folder.path()] < 0 || m_wentBelowZero;
        m_inner.stopAccessing(folder);
    }

private:
    const Platform::Bookmarks& m_inner;
    mutable std::map<std::string, int> m_open;
    mutable int m_startCount = 0;
    mutable bool m_wentBelowZero = false;
};

} // namespace TestSupport
