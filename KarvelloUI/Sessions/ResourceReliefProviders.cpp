#include "KarvelloUI/Sessions/ResourceReliefProviders.h"

#include "Platform/Base/Waiting.h"

#include <chrono>

namespace KarvelloUI {

using CleanerCore::ResourceReliefCandidate;
using CleanerCore::ResourceReliefProcessSnapshot;

ResourceReliefProviders ResourceReliefProviders::of(const CleanerCore::MacResourceReliefRuntime& runtime)
{
    return {
        .candidateProvider = [&runtime](
                                 const std::stop_token& stop) { return runtime.runningApplicationSnapshots(stop); },
        .capabilityProvider = [&runtime] { return runtime.currentCapability(); },
        .revalidationProvider =
            [&runtime](const ResourceReliefCandidate& candidate) { return runtime.revalidatedSnapshot(candidate); },
        .quitRequester =
            [&runtime](const ResourceReliefProcessSnapshot& snapshot) { return runtime.requestNormalQuit(snapshot); },
    };
}

void ResourceReliefProviders::waitOneSecond(const std::stop_token& stop)
{
    Platform::waitUnlessStopped(std::chrono::seconds(1), stop);
}

} // namespace KarvelloUI
