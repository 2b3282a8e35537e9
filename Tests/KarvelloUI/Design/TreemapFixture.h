#pragma once

#include "CleanerCore/Insights/StorageMapItem.h"

#include <cstddef>
#include <cstdint>
#include <fmt/format.h>
#include <initializer_list>
#include <span>
#include <vector>

namespace KarvelloUI::TreemapFixture {

inline CleanerCore::StorageMapItem item(std::size_t number, std::int64_t sizeBytes)
{
    const std::string name = fmt::format("Folder {}", number);
    return CleanerCore::StorageMapItem({.url = Platform::FileURL::folder("/home/somebody/" + name),
        .displayName = name,
        .sizeBytes = sizeBytes,
        .itemCount = 1});
}

/// Items with these sizes, named "Folder 0", "Folder 1" and so on.
inline std::vector<CleanerCore::StorageMapItem> items(std::span<const std::int64_t> sizes)
{
    std::vector<CleanerCore::StorageMapItem> made;
    made.reserve(sizes.size());
    for (const std::int64_t size : sizes) {
        made.push_back(item(made.size(), size));
    }
    return made;
}

inline std::vector<CleanerCore::StorageMapItem> items(std::initializer_list<std::int64_t> sizes)
{
    return items(std::span(sizes.begin(), sizes.size()));
}

} // namespace KarvelloUI::TreemapFixture
