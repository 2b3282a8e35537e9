#include "CleanerCore/Insights/StorageMapItem.h"

#include "CleanerCore/Scan/ItemIdentifier.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

StorageMapItem::StorageMapItem(Fields fields)
    : id(identifyingPath(fields.url))
    , url(std::move(fields.url))
    , displayName(std::move(fields.displayName))
    , sizeBytes(std::max<std::int64_t>(fields.sizeBytes, 0))
    , itemCount(std::max<std::int64_t>(fields.itemCount, 0))
    , isTruncated(fields.isTruncated)
{
}

} // namespace CleanerCore
