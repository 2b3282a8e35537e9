#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// Why one copy is recommended over the others.
enum class DuplicateKeeperRecommendationReason : std::uint8_t {
    preferredLocation,
    olderModificationDate,
    deterministicPathTieBreak,
};

/// Which copy of a set to keep, and why.
struct DuplicateKeeperRecommendation {
    std::string groupID;
    std::string keeperID;
    /// Bytes as the file system has them: not necessarily UTF-8.
    std::string keeperPath;
    /// All the copies, the keeper too.
    std::int64_t duplicateCount = 0;
    /// In the order of the enumeration; never empty.
    std::vector<DuplicateKeeperRecommendationReason> reasons;

    [[nodiscard]] const std::string& id() const { return groupID; }

    friend bool operator==(const DuplicateKeeperRecommendation&, const DuplicateKeeperRecommendation&) = default;
};

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::DuplicateKeeperRecommendationReason> {
    static constexpr std::array<std::string_view, 3> names{
        "preferredLocation", "olderModificationDate", "deterministicPathTieBreak"};
};
