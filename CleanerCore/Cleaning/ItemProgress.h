#pragma once

#include <cstddef>
#include <functional>

namespace CleanerCore {

/// How far a clean or a restore is: the confirmed items that were dealt with, moved or refused, out of all.
struct ItemProgress {
    std::size_t doneItems = 0;
    std::size_t allItems = 0;
};

/// Called after each item on the thread that does the work. It may take its time, but the next item waits for it.
using ItemProgressReport = std::function<void(const ItemProgress&)>;

} // namespace CleanerCore
