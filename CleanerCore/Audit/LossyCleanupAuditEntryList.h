#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "Platform/Base/JSONError.h"

#include <cstdint>
#include <expected>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// The bytes of an audit log as entries, in the order of the file.
struct LossyCleanupAuditEntryList {
    enum class Completeness : std::uint8_t { strict, lossy };

    /// Reads whatever can be read: an element that is no entry is dropped, and so is one that
    /// a lost block has spliced from two (it has a key twice). Fails for what is no JSON array, for a list in
    /// which nothing but bad elements stands, and where the bad elements are deeper or larger than `DiscardedJSONBudget`
    /// allows. Bounded in time and memory by the number of bytes, whatever they are.
    [[nodiscard]] static std::expected<LossyCleanupAuditEntryList, Platform::JSONError> read(std::string_view bytes);

    std::vector<CleanupAuditEntry> entries;
    /// `strict` if every element was an entry, and no object in the file had a key twice.
    Completeness completeness = Completeness::strict;
};

} // namespace CleanerCore
