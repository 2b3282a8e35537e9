#pragma once

#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/RawValue.h"
#include "Platform/Base/UUID.h"

#include <cstdint>
#include <string>

namespace CleanerCore {

/// What became of the wish that an application quit.
enum class ResourceReliefActionStatus : std::uint8_t {
    requestSent,
    failedToSend,
    unavailableInSandbox,
    alreadyExited,
    /// "protected" as a raw value.
    isProtected,
    staleCandidate,
};

struct ResourceReliefActionResult {
    Platform::UUID id;
    ResourceReliefCandidateID candidateID;
    std::string displayName;
    ResourceReliefActionStatus status = ResourceReliefActionStatus::failedToSend;
    Platform::Date occurredAt;

    friend bool operator==(const ResourceReliefActionResult&, const ResourceReliefActionResult&) = default;
};

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::ResourceReliefActionStatus> {
    static constexpr std::array<std::string_view, 6> names{
        "requestSent", "failedToSend", "unavailableInSandbox", "alreadyExited", "protected", "staleCandidate"};
};
