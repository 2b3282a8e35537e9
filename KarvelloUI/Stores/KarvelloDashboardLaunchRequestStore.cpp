#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequestStore.h"

#include "Platform/Base/DecimalForm.h"
#include "Platform/Base/UUID.h"

#include <array>
#include <tuple>
#include <utility>

namespace KarvelloUI {

using Platform::DefaultsChange;

namespace {

std::string newRequestID(Platform::Date now)
{
    return Platform::shortestDecimalForm(now.secondsSince1970()) + "-" + Platform::UUID::random().string();
}

} // namespace

std::expected<std::string, Platform::FileError> KarvelloDashboardLaunchRequestStore::request(
    KarvelloDashboardLaunchDestination destination, Platform::UserDefaults& defaults,
    std::optional<std::string> requestID, const std::function<Platform::Date()>& now)
{
    auto identifier = requestID ? *std::move(requestID) : newRequestID(now());
    const std::array changes{
        DefaultsChange{
            .key = std::string(destinationDefaultsKey), .value = std::string(Platform::rawValue(destination))},
        DefaultsChange{.key = std::string(requestIDDefaultsKey), .value = identifier},
    };
    if (auto stored = defaults.apply(changes); !stored) {
        return std::unexpected(std::move(stored.error()));
    }
    return identifier;
}

std::optional<KarvelloDashboardLaunchRequest> KarvelloDashboardLaunchRequestStore::pendingRequest(
    const Platform::UserDefaults& defaults)
{
    const auto raw = defaults.string(destinationDefaultsKey);
    const auto destination = raw ? Platform::fromRawValue<KarvelloDashboardLaunchDestination>(*raw) : std::nullopt;
    auto requestID = defaults.string(requestIDDefaultsKey);
    if (!destination || !requestID || requestID->empty()) {
        return std::nullopt;
    }
    return KarvelloDashboardLaunchRequest{.destination = *destination, .requestID = *std::move(requestID)};
}

std::optional<KarvelloDashboardLaunchDestination> KarvelloDashboardLaunchRequestStore::consumePending(
    Platform::UserDefaults& defaults)
{
    const auto pending = pendingRequest(defaults);
    clear(defaults);
    return pending ? std::optional(pending->destination) : std::nullopt;
}

void KarvelloDashboardLaunchRequestStore::clear(Platform::UserDefaults& defaults)
{
    const std::array changes{
        DefaultsChange{.key = std::string(destinationDefaultsKey), .value = std::nullopt},
        DefaultsChange{.key = std::string(requestIDDefaultsKey), .value = std::nullopt},
    };
    std::ignore = defaults.apply(changes);
}

} // namespace KarvelloUI
