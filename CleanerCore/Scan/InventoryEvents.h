#pragma once

#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Base/FileURL.h"

#include <cstdint>

namespace CleanerCore {

/// How a walk failed to see something: reading one item, or listing a folder.
enum class InventoryFailure : std::uint8_t { item, enumeration };

/// Told what happens during the walk of one child, on the thread that walks. `itemNumber` counts the descendants from 1
/// in the order of the walk; it is 0 before the first.
class InventoryEvents {
public:
    virtual ~InventoryEvents() = default;

    /// Whether `walkingAt` is of use to anybody; asked once a walk.
    [[nodiscard]] virtual bool wantsProgress() const = 0;
    virtual void walkingAt(std::int64_t itemNumber, Platform::FileURL url) = 0;
    virtual void failed(InventoryFailure failure, std::int64_t itemNumber, SkippedItem item) = 0;

protected:
    InventoryEvents() = default;
    InventoryEvents(const InventoryEvents&) = default;
    InventoryEvents& operator=(const InventoryEvents&) = default;
};

} // namespace CleanerCore
