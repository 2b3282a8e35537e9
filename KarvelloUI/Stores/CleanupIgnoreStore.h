#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloUI/Stores/IgnoredCleanupItem.h"
#include "KarvelloUI/Stores/PreferenceStore.h"
#include "KarvelloUI/Stores/StoredJSON.h"
#include "Platform/Base/Date.h"

#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The candidates that the user hid from later scans. A rule keeps an id out of the list and touches no file. Expired
/// rules stay until the next `pruneExpired` or `ignore`.
class CleanupIgnoreStore final : public PreferenceStore {
    Q_OBJECT

public:
    static constexpr std::string_view defaultStorageKey = "karvello.cleanupIgnoreItems.v1";

    /// Loads the list. `defaults` must outlive the store.
    CleanupIgnoreStore(Platform::UserDefaults& defaults, LanguageProvider language,
        std::string storageKey = std::string(defaultStorageKey), QObject* parent = nullptr);

    [[nodiscard]] static CleanupIgnoreDuration defaultDuration(const CleanerCore::CleanupCandidate& candidate)
    {
        return defaultIgnoreDuration(candidate);
    }
    [[nodiscard]] static std::span<const CleanupIgnoreDuration> availableDurations(
        const CleanerCore::CleanupCandidate& candidate)
    {
        return availableIgnoreDurations(candidate);
    }

    Q_PROPERTY(int count READ count NOTIFY itemsChanged)
    /// The latest first.
    [[nodiscard]] const std::vector<IgnoredCleanupItem>& items() const { return m_items.value(); }
    [[nodiscard]] int count() const { return static_cast<int>(items().size()); }
    Q_SIGNAL void itemsChanged();
    [[nodiscard]] std::vector<IgnoredCleanupItem> activeItems(Platform::Date now) const;
    [[nodiscard]] std::set<std::string, std::less<>> activeIgnoredIDs(Platform::Date now) const;
    [[nodiscard]] bool isIgnored(const CleanerCore::CleanupCandidate& candidate, Platform::Date now) const;

    /// For the longest time that the candidate allows.
    bool ignore(const CleanerCore::CleanupCandidate& candidate);
    /// Whether the stored list is another one now. A duration that is not available changes nothing. This and the calls
    /// below leave the list as it was where it cannot be stored, and `lastErrorMessage` says so.
    bool ignore(const CleanerCore::CleanupCandidate& candidate, CleanupIgnoreDuration duration, Platform::Date now);
    /// Whether there was such a rule, and it is gone. The id may be that of an item here: it is taken by value, because the
    /// items may be others before it is looked for.
    bool remove(std::string id);
    Q_INVOKABLE void removeAll();
    /// Whether there were expired rules, and they are gone.
    bool pruneExpired(Platform::Date now);

    void refresh() override;

private:
    bool replace(std::vector<IgnoredCleanupItem> items);

    StoredJSON<std::vector<IgnoredCleanupItem>> m_items;
};

} // namespace KarvelloUI
