#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

using CleanerCore::ResourceReliefActionResult;
using CleanerCore::ResourceReliefActionStatus;
using CleanerCore::ResourceReliefCandidate;
using CleanerCore::ResourceReliefProtectionReason;

ResourceReliefCandidate candidate()
{
    ResourceReliefCandidate candidate;
    candidate.displayName = "Karvello";
    candidate.bundleIdentifier = "com.example.Karvello";
    candidate.usage.residentMemoryBytes = 1536;
    candidate.eligibility =
        CleanerCore::ResourceReliefEligibility::unavailable(ResourceReliefProtectionReason::notUserVisible);
    return candidate;
}

std::string resultText(const KarvelloCopy& copy, ResourceReliefActionStatus status)
{
    ResourceReliefActionResult result;
    result.displayName = "Karvello";
    result.status = status;
    return copy.resourceReliefResultText(result);
}

const CatalogueTheme kResourceRelief("ResourceRelief",
    {
        {"resourceReliefPercent", [](const KarvelloCopy& copy) { return copy.resourceReliefPercent(0.42); },
            SampleCoverage::staysEnglish},
        {"resourceReliefPercent unknown",
            [](const KarvelloCopy& copy) { return copy.resourceReliefPercent(std::nullopt); },
            SampleCoverage::staysEnglish},
        {"resourceReliefCandidateDetail",
            [](const KarvelloCopy& copy) { return copy.resourceReliefCandidateDetail(candidate()); },
            SampleCoverage::assembled},
        {"resourceReliefMetricAccessibility cpu",
            [](const KarvelloCopy& copy) {
                return copy.resourceReliefMetricAccessibility("Karvello", ResourceReliefMetric::cpu, 0.42);
            },
            SampleCoverage::own},
        {"resourceReliefMetricAccessibility memory",
            [](const KarvelloCopy& copy) {
                return copy.resourceReliefMetricAccessibility("Karvello", ResourceReliefMetric::memory, 0.42);
            },
            SampleCoverage::own},
        {"resourceReliefQuitButton", [](const KarvelloCopy& copy) { return copy.resourceReliefQuitButton(3); }},
        {"resourceReliefConfirmButton", [](const KarvelloCopy& copy) { return copy.resourceReliefConfirmButton(3); }},
        {"resourceReliefConfirmMessage", [](const KarvelloCopy& copy) { return copy.resourceReliefConfirmMessage(3); }},
    });
const CatalogueTheme kReliefReasons("ResourceRelief",
    samplesOfEachCase<ResourceReliefProtectionReason>(
        "resourceReliefProtectionReason", &KarvelloCopy::resourceReliefProtectionReason));
const CatalogueTheme kResults(
    "ResourceRelief", samplesOfEachCase<ResourceReliefActionStatus>("resourceReliefResultText", resultText));

} // namespace
} // namespace KarvelloUI
