#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include <array>

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupScanMode;

constexpr std::array kCategories{CleanupCategory::xcodeDerivedData, CleanupCategory::xcodeDeviceSupport};

const CatalogueTheme kCleanupReviewProfileName("CleanupReview",
    samplesOfEachCase<CleanupReviewProfileID>("cleanupReviewProfileName", &KarvelloCopy::cleanupReviewProfileName));

const CatalogueTheme kCleanupReview("CleanupReview",
    {
        {"cleanupReviewCadenceStatus disabled",
            [](const KarvelloCopy& copy) {
                return copy.cleanupReviewCadenceStatus(CleanupReviewCadenceStatusKind::disabled, 0);
            }},
        {"cleanupReviewCadenceStatus notStarted",
            [](const KarvelloCopy& copy) {
                return copy.cleanupReviewCadenceStatus(CleanupReviewCadenceStatusKind::notStarted, 0);
            }},
        {"cleanupReviewCadenceStatus due",
            [](const KarvelloCopy& copy) {
                return copy.cleanupReviewCadenceStatus(CleanupReviewCadenceStatusKind::due, 0);
            }},
        {"cleanupReviewCadenceStatus upcoming",
            [](const KarvelloCopy& copy) {
                return copy.cleanupReviewCadenceStatus(CleanupReviewCadenceStatusKind::upcoming, 5);
            },
            SampleCoverage::own},
        {"cleanupReviewProfileSummary standard",
            [](const KarvelloCopy& copy) {
                return copy.cleanupReviewProfileSummary(CleanupScanMode::standard, kCategories, 0);
            }},
        {"cleanupReviewProfileSummary aggressive",
            [](const KarvelloCopy& copy) {
                return copy.cleanupReviewProfileSummary(CleanupScanMode::aggressive, kCategories, 3);
            }},
        {"cleanupReviewProfileGuardrail standard",
            [](const KarvelloCopy& copy) { return copy.cleanupReviewProfileGuardrail(CleanupScanMode::standard); }},
        {"cleanupReviewProfileGuardrail aggressive",
            [](const KarvelloCopy& copy) { return copy.cleanupReviewProfileGuardrail(CleanupScanMode::aggressive); }},
    });

} // namespace
} // namespace KarvelloUI
