#pragma once

#include "CleanerCore/Relief/MacResourceReliefRuntime.h"
#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "CleanerCore/Relief/ResourceReliefEligibility.h"
#include "CleanerCore/Relief/ResourceReliefProcessSnapshot.h"
#include "Platform/Base/Date.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

namespace KarvelloUI {

/// All that resource relief knows of the system and asks of it. Each is called off the main thread and may take a while;
/// the calls of a session that has gone may still run.
struct ResourceReliefProviders {
    std::function<std::vector<CleanerCore::ResourceReliefProcessSnapshot>(const std::stop_token&)> candidateProvider;
    std::function<CleanerCore::ResourceReliefCapability()> capabilityProvider;
    /// Nothing: no application has the candidate's process number any more.
    std::function<std::optional<CleanerCore::ResourceReliefProcessSnapshot>(
        const CleanerCore::ResourceReliefCandidate&)>
        revalidationProvider;
    /// Whether the application was asked; it may refuse.
    std::function<bool(const CleanerCore::ResourceReliefProcessSnapshot&)> quitRequester;
    /// Returns after the time that applications are given to go away, or soon after a stop was asked for.
    std::function<void(const std::stop_token&)> postQuitRefreshDelay = waitOneSecond;
    std::function<Platform::Date()> now = Platform::Date::now;

    /// `runtime` must outlive the executor of the session.
    static ResourceReliefProviders of(const CleanerCore::MacResourceReliefRuntime& runtime);

private:
    static void waitOneSecond(const std::stop_token& stop);
};

} // namespace KarvelloUI
