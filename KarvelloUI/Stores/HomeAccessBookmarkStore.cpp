#include "KarvelloUI/Stores/HomeAccessBookmarkStore.h"

#include "KarvelloUI/Stores/StoresCoding.h"

#include <utility>

namespace KarvelloUI {

HomeAccessBookmarkStore::HomeAccessBookmarkStore(Platform::UserDefaults& defaults, const Platform::Bookmarks& bookmarks,
    LanguageProvider language, std::string storageKey, CurrentHomeProvider currentHomeProvider, QObject* parent)
    : PreferenceStore(defaults, storageKey, std::move(language), parent)
    , m_bookmarks(bookmarks)
    , m_currentHomeProvider(std::move(currentHomeProvider))
    , m_bookmark(defaults, std::move(storageKey), MalformedBackup::isReadAgain)
{
    if (const auto reason = m_bookmark.load()) {
        setLastErrorMessage(copy().homeAccessBookmarkLoadFailedMessage(*reason));
    }
}

HomeAccessState HomeAccessBookmarkStore::accessState() const
{
    return bookmark() ? HomeAccessState::authorized : HomeAccessState::missing;
}

bool HomeAccessBookmarkStore::setBookmark(
    const Platform::FileURL& picked, const Platform::FileManager& fileManager, Platform::Date now)
{
    refresh();
    auto made = HomeAccessBookmark::make(picked, m_currentHomeProvider(), fileManager, m_bookmarks, now);
    if (!made) {
        setLastErrorMessage(copy().homeAccessBookmarkSaveFailedMessage(localizedDescription(made.error())));
        return false;
    }
    return replace(*std::move(made));
}

void HomeAccessBookmarkStore::clearBookmark()
{
    replace(std::nullopt);
}

std::optional<ResolvedHomeAccessBookmark> HomeAccessBookmarkStore::resolveBookmark(
    const Platform::FileManager& fileManager)
{
    refresh();
    if (!bookmark()) {
        return std::nullopt;
    }
    auto resolved = bookmark()->resolve(m_currentHomeProvider(), fileManager, m_bookmarks);
    if (!resolved) {
        drop(copy().homeAccessBookmarkResolveFailedMessage(resolved.error().localizedDescription()));
        return std::nullopt;
    }
    if (resolved->bookmarkWasStale) {
        drop(copy().homeAccessBookmarkStaleMessage());
        return std::nullopt;
    }
    return *std::move(resolved);
}

void HomeAccessBookmarkStore::refresh()
{
    if (m_bookmark.update()) {
        Q_EMIT bookmarkChanged();
    }
}

bool HomeAccessBookmarkStore::replace(std::optional<HomeAccessBookmark> bookmark)
{
    if (const auto saved = m_bookmark.replace(std::move(bookmark)); !saved) {
        setLastErrorMessage(copy().homeAccessBookmarkSaveFailedMessage(saved.error()));
        return false;
    }
    setLastErrorMessage(std::nullopt);
    Q_EMIT bookmarkChanged();
    return true;
}

void HomeAccessBookmarkStore::drop(std::string message)
{
    // What cannot be removed is found as unusable as it is at the next start.
    (void)m_bookmark.drop();
    setLastErrorMessage(std::move(message));
    Q_EMIT bookmarkChanged();
}

} // namespace KarvelloUI
