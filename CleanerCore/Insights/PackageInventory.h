#pragma once

#include "CleanerCore/Insights/VisitLog.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <stop_token>

namespace CleanerCore {

/// The walk of a package's inside: nested packages are entered, hidden items left out. The log ends one visit beyond
/// `maximumVisits`, where there is one, so that whoever reads it knows that there is more. A stop ends it earlier.
[[nodiscard]] VisitLog takePackageInventory(const Platform::ItemReference& package, std::int64_t maximumVisits,
    const Platform::FileManager& fileManager, const std::stop_token& stop);

} // namespace CleanerCore
