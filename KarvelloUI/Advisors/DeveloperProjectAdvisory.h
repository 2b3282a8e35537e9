#pragma once

#include "KarvelloUI/Copy/Vocabulary/DeveloperProjectActivityLevel.h"
#include "KarvelloUI/Copy/Vocabulary/DeveloperProjectArtifact.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace KarvelloUI {

/// A build or dependency folder of a project that the user's own folders hold. It is for a person to look at: nothing
/// here selects it. Paths and names are bytes as the file system has them.
struct DeveloperProjectAdvisoryOpportunity {
    /// The candidate's.
    std::string id;
    DeveloperProjectArtifact artifact = DeveloperProjectArtifact::dependencyFolder;
    DeveloperProjectActivityLevel activityLevel = DeveloperProjectActivityLevel::unknown;
    /// The folder that holds the candidate.
    std::string projectPath;
    std::string candidatePath;
    std::string displayName;
    std::int64_t sizeBytes = 0;
    std::optional<Platform::Date> lastModified;
    /// Whole days since then; 0 for a date to come, nothing without a date.
    std::optional<std::int64_t> ageInDays;

    friend bool operator==(
        const DeveloperProjectAdvisoryOpportunity&, const DeveloperProjectAdvisoryOpportunity&) = default;
};

struct DeveloperProjectAdvisorySummary {
    /// Projects at rest first, then the larger ones.
    std::vector<DeveloperProjectAdvisoryOpportunity> opportunities;

    /// The first three, or all of fewer. They live as long as this summary.
    [[nodiscard]] std::span<const DeveloperProjectAdvisoryOpportunity> topOpportunities() const;
    /// A project counts once, however many of its folders are there.
    [[nodiscard]] std::int64_t projectCount() const;
    [[nodiscard]] std::int64_t inactiveOrStaleCount() const;
    [[nodiscard]] std::int64_t estimatedBytes() const;

    friend bool operator==(const DeveloperProjectAdvisorySummary&, const DeveloperProjectAdvisorySummary&) = default;
};

} // namespace KarvelloUI
