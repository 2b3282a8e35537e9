#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloUI/Advisors/DeveloperProjectAdvisory.h"

#include <optional>
#include <span>
#include <string_view>

namespace KarvelloUI::DeveloperProjectAdvisoryAnalyzer {

// Pure functions of what a scan found; they look at no disk and may be called from any thread.

/// Nothing unless the candidate lies in a folder that the user added, outside of the places that tools share among
/// projects, and bears the name of an artifact.
[[nodiscard]] std::optional<DeveloperProjectAdvisoryOpportunity> opportunity(
    const CleanerCore::CleanupCandidate& candidate, Platform::Date now);

[[nodiscard]] DeveloperProjectAdvisorySummary summary(
    std::span<const CleanerCore::CleanupCandidate> candidates, Platform::Date now);

/// At rest from 30 days, inactive from 90; what is younger or lies ahead is recent.
[[nodiscard]] DeveloperProjectActivityLevel activityLevel(
    std::optional<Platform::Date> lastModified, Platform::Date now);

/// Whether a path is, or lies in, a place that belongs to a tool or to the system and not to one project. Names are
/// compared whole and by bytes; a backslash separates them as well.
[[nodiscard]] bool isExcludedPath(std::string_view path);

} // namespace KarvelloUI::DeveloperProjectAdvisoryAnalyzer
