#include "CleanerCore/Scan/AppCacheContextEnricher.h"

#include "CleanerCore/Scan/BlankText.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

namespace CleanerCore::AppCacheContextEnricher {

namespace {

using Application = AppCacheRunningApplicationIdentity;
using Matches = std::unordered_map<std::string, const Application*>;

std::optional<std::string> matchKey(const std::optional<std::string>& bundleIdentifier)
{
    const auto trimmed = trimmedUnlessBlank(bundleIdentifier);
    return trimmed ? std::optional(Platform::Text::lowercased(*trimmed)) : std::nullopt;
}

/// Which of two processes of one application says more about it; the first rule that tells them apart decides.
bool isBetterMatch(const Application& application, const Application& other)
{
    if (application.isTerminated != other.isTerminated) {
        return !application.isTerminated;
    }
    if (application.isUserVisible != other.isUserVisible) {
        return application.isUserVisible;
    }
    if (application.displayName.has_value() != other.displayName.has_value()) {
        return application.displayName.has_value();
    }
    if (application.isFrontmost != other.isFrontmost) {
        return application.isFrontmost;
    }
    return application.processIdentifier < other.processIdentifier;
}

Matches bestRunningAppMatches(std::span<const Application> applications)
{
    Matches matches;
    for (const auto& application : applications) {
        auto key = matchKey(application.bundleIdentifier);
        if (!key) {
            continue;
        }
        const auto [match, isNew] = matches.try_emplace(std::move(*key), &application);
        if (!isNew && isBetterMatch(application, *match->second)) {
            match->second = &application;
        }
    }
    return matches;
}

} // namespace

std::vector<CleanupCandidate> enrich(
    std::vector<CleanupCandidate> candidates, std::span<const AppCacheRunningApplicationIdentity> runningApplications)
{
    const auto hasContext = [](const CleanupCandidate& candidate) { return candidate.appCacheContext.has_value(); };
    if (std::none_of(candidates.begin(), candidates.end(), hasContext)) {
        return candidates;
    }
    const auto matches = bestRunningAppMatches(runningApplications);
    for (auto& candidate : candidates) {
        if (!candidate.appCacheContext) {
            continue;
        }
        const auto key = matchKey(candidate.appCacheContext->possibleBundleIdentifier);
        const auto match = key ? matches.find(*key) : matches.end();
        candidate = candidate.withAppCacheContext(
            candidate.appCacheContext->enriched(match == matches.end() ? nullptr : match->second));
    }
    return candidates;
}

} // namespace CleanerCore::AppCacheContextEnricher
