#include "KarvelloUI/Advisors/DeveloperProjectAdvisoryAnalyzer.h"

#include "Platform/Base/ASCII.h"
#include "Platform/Base/TextOrder.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace KarvelloUI::DeveloperProjectAdvisoryAnalyzer {

namespace {

using CleanerCore::CleanupCandidate;
using Platform::Date;
using Artifact = DeveloperProjectArtifact;
using Level = DeveloperProjectActivityLevel;
using Opportunity = DeveloperProjectAdvisoryOpportunity;

constexpr double kSecondsPerDay = 86'400;

/// In the order of `DeveloperProjectArtifact`; lower case.
constexpr std::array<std::string_view, Platform::allCases<Artifact>().size()> kFolderNames{
    "node_modules", ".build", ".dart_tool", "pods", ".next", ".turbo", "build", "dist", "target"};

constexpr std::array<std::string_view, 5> globalDeveloperPathMarkerComponents{"/Library/Developer",
    "/Library/Developer/CoreSimulator", "/Library/Developer/Xcode/iOS DeviceSupport", "/Library/Caches",
    "/Library/Application Support"};

constexpr std::array<std::string_view, 21> excludedGlobalCachePathMarkerComponents{"/.npm", "/.gradle/caches",
    "/.pub-cache", "/.cache", "/.local/share", "/.config", "/.yarn", "/.pnpm-store", "/Library/pnpm", "/.cargo", "/.m2",
    "/.nuget", "/go/pkg/mod", "/.cocoapods", "/.bun", "/usr/local/lib/node_modules", "/opt/homebrew/lib/node_modules",
    "/.docker", "/Library/Containers", "/Library/Group Containers", "/var/lib/docker"};

/// What Flatpak has for containers.
constexpr std::array<std::string_view, 1> kLinuxContainerMarkers{"/.var/app"};

/// A marker counts where whole names equal it: `path` has single slashes alone, also at both its ends.
bool containsMarker(std::string_view path, std::string_view marker)
{
    for (auto at = path.find(marker); at != std::string_view::npos; at = path.find(marker, at + 1)) {
        if (path[at + marker.size()] == '/') {
            return true;
        }
    }
    return false;
}

std::string withSingleSlashes(std::string_view path)
{
    std::string result = "/";
    result.reserve(path.size() + 2);
    for (const char byte : path) {
        const char separated = byte == '\\' ? '/' : byte;
        if (separated != '/' || result.back() != '/') {
            result += separated;
        }
    }
    if (result.back() != '/') {
        result += '/';
    }
    return result;
}

std::optional<Artifact> artifactNamed(std::string_view folderName)
{
    // No letter outside of ASCII has a small form that one of these names contains.
    const auto* const found = std::ranges::find_if(
        kFolderNames, [&](std::string_view name) { return Platform::ASCII::equalsIgnoringCase(folderName, name); });
    return found == kFolderNames.end() ? std::nullopt
                                       : std::optional(static_cast<Artifact>(found - kFolderNames.begin()));
}

std::int64_t wholeDays(double seconds)
{
    // A date of the disk may lie any number of years back.
    return seconds > 0 ? static_cast<std::int64_t>(std::min(std::floor(seconds / kSecondsPerDay), 1e9)) : 0;
}

bool comesBefore(const Opportunity& left, const Opportunity& right)
{
    if (left.activityLevel != right.activityLevel) {
        return left.activityLevel < right.activityLevel;
    }
    if (left.sizeBytes != right.sizeBytes) {
        return left.sizeBytes > right.sizeBytes;
    }
    return Platform::Text::localizedStandardCompare(left.candidatePath, right.candidatePath) < 0;
}

} // namespace

bool isExcludedPath(std::string_view path)
{
    const std::string clean = withSingleSlashes(path);
    const auto isIn = [&clean](std::string_view marker) { return containsMarker(clean, marker); };
    return std::ranges::any_of(globalDeveloperPathMarkerComponents, isIn)
        || std::ranges::any_of(excludedGlobalCachePathMarkerComponents, isIn)
        || std::ranges::any_of(kLinuxContainerMarkers, isIn);
}

Level activityLevel(std::optional<Date> lastModified, Date now)
{
    if (!lastModified) {
        return Level::unknown;
    }
    const double age = now.secondsSince(*lastModified);
    if (age >= 90 * kSecondsPerDay) {
        return Level::inactive;
    }
    return age >= 30 * kSecondsPerDay ? Level::stale : Level::recent;
}

std::optional<Opportunity> opportunity(const CleanupCandidate& candidate, Date now)
{
    if (candidate.category != CleanerCore::CleanupCategory::customFolder) {
        return std::nullopt;
    }
    const auto artifact = artifactNamed(candidate.url.lastPathComponent());
    if (!artifact || isExcludedPath(candidate.url.path())) {
        return std::nullopt;
    }
    Opportunity opportunity{.id = candidate.id,
        .artifact = *artifact,
        .activityLevel = activityLevel(candidate.lastModified, now),
        .projectPath = candidate.url.deletingLastPathComponent().path(),
        .candidatePath = candidate.url.path(),
        .displayName = candidate.displayName,
        .sizeBytes = candidate.sizeBytes,
        .lastModified = candidate.lastModified,
        .ageInDays = std::nullopt};
    if (candidate.lastModified) {
        opportunity.ageInDays = wholeDays(now.secondsSince(*candidate.lastModified));
    }
    return opportunity;
}

DeveloperProjectAdvisorySummary summary(std::span<const CleanupCandidate> candidates, Date now)
{
    DeveloperProjectAdvisorySummary summary;
    for (const CleanupCandidate& candidate : candidates) {
        if (auto found = opportunity(candidate, now)) {
            summary.opportunities.push_back(std::move(*found));
        }
    }
    std::ranges::stable_sort(summary.opportunities, comesBefore);
    return summary;
}

} // namespace KarvelloUI::DeveloperProjectAdvisoryAnalyzer
