#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>
#include <optional>

namespace CleanerCore {

/// Why an application is not asked to quit.
enum class ResourceReliefProtectionReason : std::uint8_t {
    currentApplication,
    protectedSystemApplication,
    missingUserFacingIdentity,
    alreadyTerminated,
    notUserVisible,
    sandboxUnavailable,
};

/// Whether an application may be asked to quit.
struct ResourceReliefEligibility {
    bool isActionable = false;
    std::optional<ResourceReliefProtectionReason> reason = {};

    static constexpr ResourceReliefEligibility actionable() { return {true, std::nullopt}; }
    static constexpr ResourceReliefEligibility unavailable(ResourceReliefProtectionReason reason)
    {
        return {false, reason};
    }

    friend bool operator==(const ResourceReliefEligibility&, const ResourceReliefEligibility&) = default;
};

/// Whether this process may ask other applications to quit at all.
struct ResourceReliefCapability {
    enum class Reason : std::uint8_t { supported, appSandbox, unknown };

    bool canRequestQuitOtherApplications = false;
    Reason reason = Reason::unknown;

    static constexpr ResourceReliefCapability supported() { return {true, Reason::supported}; }
    static constexpr ResourceReliefCapability appSandbox() { return {false, Reason::appSandbox}; }
    static constexpr ResourceReliefCapability unknown() { return {false, Reason::unknown}; }

    friend bool operator==(const ResourceReliefCapability&, const ResourceReliefCapability&) = default;
};

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::ResourceReliefProtectionReason> {
    static constexpr std::array<std::string_view, 6> names{"currentApplication", "protectedSystemApplication",
        "missingUserFacingIdentity", "alreadyTerminated", "notUserVisible", "sandboxUnavailable"};
};

template <>
struct Platform::RawValues<CleanerCore::ResourceReliefCapability::Reason> {
    static constexpr std::array<std::string_view, 3> names{"supported", "appSandbox", "unknown"};
};
