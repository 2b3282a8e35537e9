#pragma once

#include "CleanerCore/Relief/ResourceReliefEligibility.h"
#include "CleanerCore/Relief/ResourceReliefProcessSnapshot.h"
#include "Platform/Base/Date.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace CleanerCore {

/// The process number is part of it: an application that was started again is another candidate.
struct ResourceReliefCandidateID {
    std::string rawValue;

    ResourceReliefCandidateID() = default;
    explicit ResourceReliefCandidateID(std::string raw)
        : rawValue(std::move(raw))
    {
    }
    /// "com.example.app:42"; "pid:42" where nothing of the identifier can stand in an id.
    ResourceReliefCandidateID(std::int32_t processIdentifier, const std::optional<std::string>& bundleIdentifier);

    friend auto operator<=>(const ResourceReliefCandidateID&, const ResourceReliefCandidateID&) = default;
};

/// A running application in the list of those that could be asked to quit, with the answer whether it may be.
struct ResourceReliefCandidate {
    ResourceReliefCandidateID id = {};
    std::string displayName = {};
    std::optional<std::string> bundleIdentifier = {};
    std::int32_t processIdentifier = 0;
    bool isFrontmost = false;
    std::optional<Platform::Date> launchDate = {};
    ResourceReliefUsageMetrics usage = {};
    ResourceReliefEligibility eligibility = {};

    friend bool operator==(const ResourceReliefCandidate&, const ResourceReliefCandidate&) = default;
};

} // namespace CleanerCore

template <>
struct std::hash<CleanerCore::ResourceReliefCandidateID> {
    std::size_t operator()(const CleanerCore::ResourceReliefCandidateID& id) const noexcept
    {
        return std::hash<std::string>{}(id.rawValue);
    }
};
