#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/SampleCandidate.h"

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupRecommendationReason;
using CleanerCore::CleanupSafety;
using CleanerCore::FileInsight;
using CleanerCore::FileInsightKind;

constexpr Platform::Date kNow{800'000'000};

constexpr Platform::Date dayBefore(int days)
{
    return kNow.addingSeconds(-86400.0 * days);
}

FileInsight file(FileInsightKind kind, std::optional<Platform::Date> lastModified)
{
    return FileInsight(
        {.url = Platform::FileURL("/Karvello"), .lastModified = lastModified, .kind = kind, .detail = {}});
}

const CatalogueTheme kCategoryName(
    "Candidate", samplesOfEachCase<CleanupCategory>("categoryName", &KarvelloCopy::categoryName, SampleCoverage::own));

const CatalogueTheme kCategoryExplanation("Candidate",
    samplesOfEachCase<CleanupCategory>("categoryExplanation", &KarvelloCopy::categoryExplanation, SampleCoverage::own));

const CatalogueTheme kCandidate("Candidate",
    {
        {"categoryRecommendedAction userCaches",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::userCaches); }},
        {"categoryRecommendedAction userLogs",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::userLogs); }},
        {"categoryRecommendedAction xcodeDerivedData",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::xcodeDerivedData); }},
        {"categoryRecommendedAction simulatorCaches",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::simulatorCaches); }},
        {"categoryRecommendedAction appSandboxCaches",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::appSandboxCaches); }},
        {"categoryRecommendedAction appContainerCaches",
            [](const KarvelloCopy& copy) {
                return copy.categoryRecommendedAction(CleanupCategory::appContainerCaches);
            }},
        {"categoryRecommendedAction groupContainerCaches",
            [](const KarvelloCopy& copy) {
                return copy.categoryRecommendedAction(CleanupCategory::groupContainerCaches);
            }},
        {"categoryRecommendedAction xcodeDeviceSupport",
            [](const KarvelloCopy& copy) {
                return copy.categoryRecommendedAction(CleanupCategory::xcodeDeviceSupport);
            }},
        {"categoryRecommendedAction temporaryFiles",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::temporaryFiles); }},
        {"categoryRecommendedAction customFolder",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::customFolder); }},
        {"categoryRecommendedAction developerToolCaches",
            [](const KarvelloCopy& copy) {
                return copy.categoryRecommendedAction(CleanupCategory::developerToolCaches);
            },
            SampleCoverage::own},
        {"categoryRecommendedAction packageManagerCaches",
            [](const KarvelloCopy& copy) {
                return copy.categoryRecommendedAction(CleanupCategory::packageManagerCaches);
            },
            SampleCoverage::own},
        {"categoryRecommendedAction buildArchives",
            [](const KarvelloCopy& copy) { return copy.categoryRecommendedAction(CleanupCategory::buildArchives); },
            SampleCoverage::own},
        {"recommendationReason regenerableUserCache",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::regenerableUserCache);
            }},
        {"recommendationReason diagnosticLog",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::diagnosticLog);
            }},
        {"recommendationReason xcodeBuildArtifact",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::xcodeBuildArtifact);
            }},
        {"recommendationReason simulatorCache",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::simulatorCache);
            }},
        {"recommendationReason appSandboxCache",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::appSandboxCache);
            }},
        {"recommendationReason appContainerCache",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::appContainerCache);
            }},
        {"recommendationReason sharedContainerCache",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::sharedContainerCache);
            }},
        {"recommendationReason xcodeDeviceSupport",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::xcodeDeviceSupport);
            }},
        {"recommendationReason temporaryItem",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::temporaryItem);
            }},
        {"recommendationReason userSelectedFolder",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::userSelectedFolder);
            }},
        {"recommendationReason developerToolCache",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::developerToolCache);
            },
            SampleCoverage::own},
        {"recommendationReason packageManagerCache",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::packageManagerCache);
            },
            SampleCoverage::own},
        {"recommendationReason buildArchive",
            [](const KarvelloCopy& copy) {
                return copy.recommendationReason(CleanupRecommendationReason::buildArchive);
            },
            SampleCoverage::own},
        {"safetyName safe", [](const KarvelloCopy& copy) { return copy.safetyName(CleanupSafety::safe); }},
        {"safetyName caution", [](const KarvelloCopy& copy) { return copy.safetyName(CleanupSafety::caution); },
            SampleCoverage::own},
        {"safetyName manualReview",
            [](const KarvelloCopy& copy) { return copy.safetyName(CleanupSafety::manualReview); }, SampleCoverage::own},
        {"cleanupCandidateTrustExplanation",
            [](const KarvelloCopy& copy) { return copy.cleanupCandidateTrustExplanation(sampleCandidate()); },
            SampleCoverage::assembled},
        {"cleanupCandidateAccessibilityLabel",
            [](const KarvelloCopy& copy) { return copy.cleanupCandidateAccessibilityLabel(sampleCandidate(), {}, {}); },
            SampleCoverage::assembled},
        {"cleanupCandidateAccessibilityLabel with context",
            [](const KarvelloCopy& copy) {
                return copy.cleanupCandidateAccessibilityLabel(sampleCandidate(), "Karvello", "Xcode.");
            },
            SampleCoverage::assembled},
        {"reviewAgeText days", [](const KarvelloCopy& copy) { return copy.reviewAgeText(dayBefore(5), kNow); },
            SampleCoverage::assembled},
        {"reviewAgeText months", [](const KarvelloCopy& copy) { return copy.reviewAgeText(dayBefore(100), kNow); },
            SampleCoverage::assembled},
        {"reviewAgeText years", [](const KarvelloCopy& copy) { return copy.reviewAgeText(dayBefore(800), kNow); },
            SampleCoverage::assembled},
        {"reviewDetail largeFile",
            [](const KarvelloCopy& copy) {
                return copy.reviewDetail(file(FileInsightKind::largeFile, dayBefore(100)), kNow);
            }},
        {"reviewDetail download",
            [](const KarvelloCopy& copy) {
                return copy.reviewDetail(file(FileInsightKind::download, dayBefore(5)), kNow);
            }},
        {"reviewDetail duplicate",
            [](const KarvelloCopy& copy) { return copy.reviewDetail(file(FileInsightKind::duplicate, {}), kNow); }},
        {"reviewDetail securitySignal",
            [](const KarvelloCopy& copy) {
                return copy.reviewDetail(file(FileInsightKind::securitySignal, {}), kNow);
            }},
    });

} // namespace
} // namespace KarvelloUI
