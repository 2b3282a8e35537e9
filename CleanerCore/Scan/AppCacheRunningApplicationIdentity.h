#pragma once

#include "Platform/Services/RunningApplications.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CleanerCore {

/// A running application, as far as telling the owner of a cache needs it.
struct AppCacheRunningApplicationIdentity {
    /// What an identity is made from; the constructor trims both texts and makes blank ones absent.
    struct Fields {
        std::optional<std::string> displayName = {};
        std::optional<std::string> bundleIdentifier = {};
        std::int32_t processIdentifier = 0;
        bool isFrontmost = false;
        bool isTerminated = false;
        bool isUserVisible = false;
    };

    AppCacheRunningApplicationIdentity() = default;
    explicit AppCacheRunningApplicationIdentity(const Fields& fields);
    static AppCacheRunningApplicationIdentity of(const Platform::RunningApplication& application);
    static std::vector<AppCacheRunningApplicationIdentity> of(
        std::span<const Platform::RunningApplication> applications);

    std::optional<std::string> displayName;
    std::optional<std::string> bundleIdentifier;
    std::int32_t processIdentifier = 0;
    bool isFrontmost = false;
    bool isTerminated = false;
    bool isUserVisible = false;

    friend bool operator==(
        const AppCacheRunningApplicationIdentity&, const AppCacheRunningApplicationIdentity&) = default;
};

} // namespace CleanerCore
