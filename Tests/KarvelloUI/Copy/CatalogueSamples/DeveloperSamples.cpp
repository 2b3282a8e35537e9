#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include <array>
#include <utility>

namespace KarvelloUI {
namespace {

std::vector<CatalogueSample> advisories()
{
    constexpr std::array<std::pair<std::string_view, std::string DeveloperCleanupAdvisory::*>, 6> kFields{
        {{"title", &DeveloperCleanupAdvisory::title}, {"summary", &DeveloperCleanupAdvisory::summary},
            {"regeneration", &DeveloperCleanupAdvisory::regeneration}, {"impact", &DeveloperCleanupAdvisory::impact},
            {"prerequisite", &DeveloperCleanupAdvisory::prerequisite}, {"action", &DeveloperCleanupAdvisory::action}}};
    std::vector<CatalogueSample> samples;
    for (const auto kind : Platform::allCases<DeveloperCleanupAdvisoryKind>()) {
        for (const auto& [name, field] : kFields) {
            samples.push_back({fmt::format("developerCleanupAdvisory {} {}", Platform::rawValue(kind), name),
                [kind, field](const KarvelloCopy& copy) { return copy.developerCleanupAdvisory(kind).*field; }});
        }
    }
    return samples;
}

const CatalogueTheme kAdvisories("Developer", advisories());
const CatalogueTheme kArtifactNames("Developer",
    samplesOfEachCase<DeveloperProjectArtifact>(
        "developerProjectAdvisoryArtifactName", &KarvelloCopy::developerProjectAdvisoryArtifactName));
const CatalogueTheme kNotes("Developer",
    samplesOfEachCase<DeveloperProjectArtifact>(
        "developerProjectAdvisoryNote", &KarvelloCopy::developerProjectAdvisoryNote));
const CatalogueTheme kActivity("Developer",
    samplesOfEachCase<DeveloperProjectActivityLevel>(
        "developerProjectAdvisoryActivity", [](const KarvelloCopy& copy, DeveloperProjectActivityLevel level) {
            return copy.developerProjectAdvisoryActivity(level, 120);
        }));

} // namespace
} // namespace KarvelloUI
