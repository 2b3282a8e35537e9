#include "KarvelloCLI/RestoreLocations.h"

#include <string>
#include <unordered_set>
#include <utility>

namespace KarvelloCLI {

namespace {

using CleanerCore::ScanLocation;
using Platform::FileURL;

ScanLocation locationFor(const FileURL& item, std::span<const ScanLocation> known)
{
    const ScanLocation* deepest = nullptr;
    for (const ScanLocation& location : known) {
        // All that hold the item are beginnings of its path.
        if (Platform::isPathInside(item.path(), location.rootURL.path())
            && (deepest == nullptr || deepest->rootURL.path().size() < location.rootURL.path().size())) {
            deepest = &location;
        }
    }
    if (deepest != nullptr) {
        return *deepest;
    }
    ScanLocation::Fields fields;
    fields.rootURL = item.deletingLastPathComponent();
    return ScanLocation(std::move(fields));
}

} // namespace

std::vector<ScanLocation> restoreLocations(
    std::span<const CleanerCore::CleanedItem> items, std::span<const ScanLocation> known)
{
    std::vector<ScanLocation> locations;
    std::unordered_set<std::string> roots;
    for (const CleanerCore::CleanedItem& item : items) {
        ScanLocation location = locationFor(item.candidate.url, known);
        if (roots.insert(location.rootURL.path()).second) {
            locations.push_back(std::move(location));
        }
    }
    return locations;
}

} // namespace KarvelloCLI
