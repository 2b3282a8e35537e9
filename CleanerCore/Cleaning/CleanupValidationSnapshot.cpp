#include "CleanerCore/Cleaning/CleanupValidationSnapshot.h"

#include "CleanerCore/Safety/NoTouchWalk.h"
#include "Platform/Files/PackageNames.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>

namespace CleanerCore {

namespace {

using Kind = CleaningError::Kind;
using Platform::EnumerationErrorAnswer;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;

/// The newest date among the items that count.
class Freshness {
public:
    Freshness(const FileURL& root, const CleanupValidationOptions& options, std::optional<Platform::Date> rootDate)
        : m_root(root)
        , m_options(options)
        , m_latest(rootDate)
    {
    }

    void add(Platform::DirectoryEnumerator& items, const Platform::ResourceValues& values)
    {
        const bool isPackage = values.isDirectory.value_or(false) && Platform::isPackageName(items.name());
        const auto& date = values.contentModificationDate;
        const bool isNewest = date && (!m_latest || *m_latest < *date);
        // Whether an item counts is asked of its path. Most items need no path: they are not newer than the newest, and
        // hide nothing that they hold.
        if (!isNewest && (!isPackage || m_options.includesPackageDescendants)) {
            return;
        }
        if (m_options.includesInFreshness(items.url(), m_root, isPackage, m_excludedPackageRootPaths) && isNewest) {
            m_latest = date;
        }
    }

    [[nodiscard]] const std::optional<Platform::Date>& latest() const { return m_latest; }

private:
    const FileURL& m_root;
    const CleanupValidationOptions& m_options;
    std::optional<Platform::Date> m_latest;
    std::set<std::string, std::less<>> m_excludedPackageRootPaths;
};

} // namespace

std::expected<CleanupValidationSnapshot, CleaningFailure> CleanupValidationSnapshot::take(const FileURL& url,
    const CleanupValidationOptions& options, const Platform::FileManager& fileManager, const std::stop_token& stop)
{
    if (stop.stop_requested()) {
        return CleaningFailure::stopped();
    }
    const auto values = fileManager.resourceValues(url);
    if (!values) {
        return CleaningFailure::refused(Kind::unreadableAttributes, url);
    }
    if (values->isSymbolicLink.value_or(false)) {
        return CleaningFailure::refused(Kind::symbolicLink, url);
    }
    const auto& ownDate = values->contentModificationDate;
    if (values->isOnOtherVolume) {
        return CleanupValidationSnapshot{ownDate, url};
    }
    if (!values->isDirectory.value_or(false)) {
        return CleanupValidationSnapshot{ownDate, std::nullopt};
    }

    std::optional<FileURL> unreadable;
    std::optional<FileURL> onOtherVolume;
    const auto onError = [&](const FileURL& failing, const FileError& error) {
        (error.kind == FileErrorKind::crossesVolume ? onOtherVolume : unreadable) = failing;
        return EnumerationErrorAnswer::stop;
    };
    const auto items = fileManager.enumerator(url, {}, onError);
    if (!items) {
        return CleaningFailure::refused(Kind::unreadableAttributes, url);
    }

    const auto ownState = NoTouchPathPolicy::State::of(url);
    Freshness freshness(url, options, ownDate);
    std::int64_t count = 0;
    while (items->next()) {
        if (stop.stop_requested()) {
            return CleaningFailure::stopped();
        }
        if (meetsNoTouch(*items, ownState)) {
            return CleanupValidationSnapshot{freshness.latest(), items->url()};
        }
        if (count >= options.maximumDescendantItems) {
            return CleaningFailure::refused(Kind::cleanupValidationItemLimitExceeded, url);
        }
        ++count;
        const auto& found = items->resourceValues();
        if (!found) {
            return CleaningFailure::refused(Kind::unreadableAttributes, items->url());
        }
        // What is mounted or kept on a volume of its own inside a cache was put there by somebody.
        if (found->isOnOtherVolume) {
            return CleanupValidationSnapshot{freshness.latest(), items->url()};
        }
        if (found->isSymbolicLink.value_or(false)) {
            items->skipDescendants();
            continue;
        }
        freshness.add(*items, *found);
    }
    if (onOtherVolume) {
        return CleanupValidationSnapshot{freshness.latest(), std::move(onOtherVolume)};
    }
    if (unreadable) {
        return CleaningFailure::refused(Kind::unreadableAttributes, *unreadable);
    }
    return CleanupValidationSnapshot{freshness.latest(), std::nullopt};
}

} // namespace CleanerCore
