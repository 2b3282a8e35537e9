#pragma once

#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "CleanerCore/Scan/InventoryEvents.h"
#include "CleanerCore/Scan/InventoryRules.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <optional>
#include <stop_token>

namespace CleanerCore {

enum class SizeCollection : std::uint8_t { collect, omit };

/// What the walk of one item found.
struct DirectoryInventory {
    /// Allocated bytes of the regular items that were counted.
    std::int64_t byteSize = 0;
    /// The newest modification seen, the item's own included.
    std::optional<Platform::Date> latestModificationDate;
    /// The first descendant that must not be touched: a protected path, or another volume.
    std::optional<Platform::FileURL> noTouchDescendantURL;
    bool exceededItemLimit = false;
    bool containsRecentlyModifiedItem = false;

    /// Walks `item`, whose `values` have been read and which `state` judges. A stop ends the walk between two items,
    /// with what was gathered until then.
    static DirectoryInventory take(const Platform::ItemReference& item, const Platform::ResourceValues& values,
        NoTouchPathPolicy::State state, SizeCollection sizes, const InventoryRules& rules,
        const Platform::FileManager& fileManager, InventoryEvents& events, const std::stop_token& stop);
};

} // namespace CleanerCore
