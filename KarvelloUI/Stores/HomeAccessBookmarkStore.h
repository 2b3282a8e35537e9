#pragma once

#include "CleanerCore/Safety/RealUserHome.h"
#include "KarvelloUI/Stores/HomeAccessBookmark.h"
#include "KarvelloUI/Stores/PreferenceStore.h"
#include "KarvelloUI/Stores/StoredJSON.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Bookmarks.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace KarvelloUI {

enum class HomeAccessState : std::uint8_t { authorized, missing };

/// The grant for the home folder. A grant that cannot be resolved, is stale or no longer fits is removed and never
/// repaired: the user gives it again.
class HomeAccessBookmarkStore final : public PreferenceStore {
    Q_OBJECT

public:
    static constexpr std::string_view defaultStorageKey = "karvello.homeAccessBookmark.v1";
    /// May be called from any thread.
    using CurrentHomeProvider = std::function<Platform::FileURL()>;

    /// Loads the grant. `defaults` and `bookmarks` must outlive the store.
    HomeAccessBookmarkStore(Platform::UserDefaults& defaults, const Platform::Bookmarks& bookmarks,
        LanguageProvider language, std::string storageKey = std::string(defaultStorageKey),
        CurrentHomeProvider currentHomeProvider = CleanerCore::cleanerCoreRealUserHomeDirectory,
        QObject* parent = nullptr);

    Q_PROPERTY(bool authorized READ isAuthorized NOTIFY bookmarkChanged)
    [[nodiscard]] const std::optional<HomeAccessBookmark>& bookmark() const { return m_bookmark.value(); }
    [[nodiscard]] HomeAccessState accessState() const;
    [[nodiscard]] bool isAuthorized() const { return accessState() == HomeAccessState::authorized; }
    Q_SIGNAL void bookmarkChanged();

    /// Whether the folder is the grant now. Otherwise the old grant stays, and `lastErrorMessage` says why.
    bool setBookmark(const Platform::FileURL& picked, const Platform::FileManager& fileManager,
        Platform::Date now = Platform::Date::now());
    /// A grant that cannot be removed from the disk stays, and `lastErrorMessage` says so: it would be back otherwise.
    Q_INVOKABLE void clearBookmark();
    /// The grant if it may be used. One that may not is removed, with a message.
    [[nodiscard]] std::optional<ResolvedHomeAccessBookmark> resolveBookmark(const Platform::FileManager& fileManager);

    void refresh() override;

private:
    bool replace(std::optional<HomeAccessBookmark> bookmark);
    void drop(std::string message);

    const Platform::Bookmarks& m_bookmarks;
    CurrentHomeProvider m_currentHomeProvider;
    StoredJSON<std::optional<HomeAccessBookmark>> m_bookmark;
};

} // namespace KarvelloUI
