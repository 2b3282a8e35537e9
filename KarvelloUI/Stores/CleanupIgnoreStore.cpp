#include "KarvelloUI/Stores/CleanupIgnoreStore.h"

#include "KarvelloUI/Stores/StoresCoding.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

CleanupIgnoreStore::CleanupIgnoreStore(
    Platform::UserDefaults& defaults, LanguageProvider language, std::string storageKey, QObject* parent)
    : PreferenceStore(defaults, storageKey, std::move(language), parent)
    , m_items(defaults, std::move(storageKey), MalformedBackup::isKeptForInspection, sortIgnoredItems)
{
    if (const auto reason = m_items.load()) {
        setLastErrorMessage(copy().cleanupIgnoreLoadFailedMessage(*reason));
    }
}

std::vector<IgnoredCleanupItem> CleanupIgnoreStore::activeItems(Platform::Date now) const
{
    return activeIgnoredItems(items(), now);
}

std::set<std::string, std::less<>> CleanupIgnoreStore::activeIgnoredIDs(Platform::Date now) const
{
    std::set<std::string, std::less<>> ids;
    for (const auto& item : items()) {
        if (item.isActive(now)) {
            ids.insert(item.id);
        }
    }
    return ids;
}

bool CleanupIgnoreStore::isIgnored(const CleanerCore::CleanupCandidate& candidate, Platform::Date now) const
{
    return std::any_of(items().begin(), items().end(),
        [&](const IgnoredCleanupItem& item) { return item.id == candidate.id && item.isActive(now); });
}

bool CleanupIgnoreStore::ignore(const CleanerCore::CleanupCandidate& candidate)
{
    return ignore(candidate, defaultDuration(candidate), Platform::Date::now());
}

bool CleanupIgnoreStore::ignore(
    const CleanerCore::CleanupCandidate& candidate, CleanupIgnoreDuration duration, Platform::Date now)
{
    const auto available = availableDurations(candidate);
    if (std::find(available.begin(), available.end(), duration) == available.end()) {
        return false;
    }
    refresh();
    const auto old = items();
    return replace(addingIgnoredItem(old, IgnoredCleanupItem(candidate, now, duration), now)) && items() != old;
}

bool CleanupIgnoreStore::remove(std::string id)
{
    refresh();
    auto kept = items();
    return std::erase_if(kept, [&](const IgnoredCleanupItem& item) { return item.id == id; }) > 0
        && replace(std::move(kept));
}

void CleanupIgnoreStore::removeAll()
{
    refresh();
    if (!items().empty()) {
        replace({});
    }
}

bool CleanupIgnoreStore::pruneExpired(Platform::Date now)
{
    refresh();
    auto active = activeItems(now);
    return active.size() != items().size() && replace(std::move(active));
}

void CleanupIgnoreStore::refresh()
{
    if (m_items.update()) {
        Q_EMIT itemsChanged();
    }
}

bool CleanupIgnoreStore::replace(std::vector<IgnoredCleanupItem> items)
{
    if (const auto saved = m_items.replace(std::move(items)); !saved) {
        setLastErrorMessage(copy().cleanupIgnoreSaveFailedMessage(saved.error()));
        return false;
    }
    setLastErrorMessage(std::nullopt);
    Q_EMIT itemsChanged();
    return true;
}

} // namespace KarvelloUI
