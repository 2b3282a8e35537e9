#include "CleanerCore/Audit/LossyCleanupAuditEntryList.h"

#include "CleanerCore/Audit/CleanupAuditCoding.h"
#include "CleanerCore/Audit/DiscardedJSONBudget.h"
#include "Platform/Base/JSONReader.h"

#include <utility>

namespace CleanerCore {

namespace {

namespace JSONReader = Platform::JSONReader;

// A sound entry may hold anything under keys that this version does not know; only what is dropped has a tighter bound.
constexpr std::size_t kMaximumJSONDepth = 512;
// Of an element of the array: the one index that leads to it.
constexpr std::size_t kElementDepth = 1;

} // namespace

std::expected<LossyCleanupAuditEntryList, Platform::JSONError> LossyCleanupAuditEntryList::read(std::string_view bytes)
{
    LossyCleanupAuditEntryList list;
    auto document = JSONReader::parse(bytes, kMaximumJSONDepth);
    if (!document) {
        list.completeness = Completeness::lossy;
        document = JSONReader::parse(bytes, kMaximumJSONDepth, JSONReader::RepeatedKeys::makeTheObjectNull);
    }
    if (!document) {
        return std::unexpected(document.error());
    }
    const auto* const elements = document->array();
    if (elements == nullptr) {
        return std::unexpected(Platform::unexpectedJSON("an array", *document));
    }
    DiscardedJSONBudget budget;
    for (const auto& element : *elements) {
        if (auto entry = Platform::decodeJSON<CleanupAuditEntry>(element)) {
            list.entries.push_back(*std::move(entry));
            continue;
        }
        list.completeness = Completeness::lossy;
        if (element.isNull()) {
            continue;
        }
        if (auto discarded = budget.discard(element, kElementDepth); !discarded) {
            return std::unexpected(std::move(discarded.error()));
        }
    }
    if (list.completeness == Completeness::lossy && list.entries.empty()) {
        return std::unexpected(Platform::JSONError{"no element of the array is an entry", {}});
    }
    return list;
}

} // namespace CleanerCore
