#include "CleanerCore/Scan/AppCacheRunningApplicationIdentity.h"

#include "CleanerCore/Scan/BlankText.h"

namespace CleanerCore {

AppCacheRunningApplicationIdentity::AppCacheRunningApplicationIdentity(const Fields& fields)
    : displayName(trimmedUnlessBlank(fields.displayName))
    , bundleIdentifier(trimmedUnlessBlank(fields.bundleIdentifier))
    , processIdentifier(fields.processIdentifier)
    , isFrontmost(fields.isFrontmost)
    , isTerminated(fields.isTerminated)
    , isUserVisible(fields.isUserVisible)
{
}

AppCacheRunningApplicationIdentity AppCacheRunningApplicationIdentity::of(
    const Platform::RunningApplication& application)
{
    return AppCacheRunningApplicationIdentity({
        .displayName = application.displayName,
        .bundleIdentifier = application.bundleIdentifier,
        .processIdentifier = application.processIdentifier,
        .isFrontmost = application.isFrontmost,
        .isTerminated = application.isTerminated,
        .isUserVisible = application.isUserVisible,
    });
}

std::vector<AppCacheRunningApplicationIdentity> AppCacheRunningApplicationIdentity::of(
    std::span<const Platform::RunningApplication> applications)
{
    std::vector<AppCacheRunningApplicationIdentity> identities;
    identities.reserve(applications.size());
    for (const auto& application : applications) {
        identities.push_back(of(application));
    }
    return identities;
}

} // namespace CleanerCore
