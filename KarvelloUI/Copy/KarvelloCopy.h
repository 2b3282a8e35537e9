#pragma once

#include "CleanerCore/Insights/DuplicateKeeperRecommendation.h"
#include "CleanerCore/Relief/ResourceReliefActionResult.h"
#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "CleanerCore/Scan/AppCacheContext.h"
#include "CleanerCore/Scan/CleanupCategory.h"
#include "KarvelloUI/Copy/CleanupCopy.h"
#include "KarvelloUI/Copy/Vocabulary/DeveloperCleanupAdvisory.h"
#include "KarvelloUI/Copy/Vocabulary/DeveloperProjectActivityLevel.h"
#include "KarvelloUI/Copy/Vocabulary/DeveloperProjectArtifact.h"
#include "KarvelloUI/Copy/Vocabulary/HomeScanState.h"
#include "KarvelloUI/Copy/Vocabulary/IOSStorageChecklistStep.h"
#include "KarvelloUI/Copy/Vocabulary/LoadLevel.h"
#include "KarvelloUI/Copy/Vocabulary/MacDashboardSection.h"
#include "KarvelloUI/Copy/Vocabulary/MacInsightFileSection.h"
#include "KarvelloUI/Copy/Vocabulary/ResourceReliefMetric.h"
#include "KarvelloUI/Copy/Vocabulary/StorageRecommendationKind.h"
#include "KarvelloUI/Copy/Vocabulary/StorageTrendTimelinePointKind.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// Every text of Karvello in one language. Making one costs nothing, so nobody keeps it. Texts are whole sentences:
/// callers neither join nor cut them. Sizes are bytes; a negative one counts as 0.
struct KarvelloCopy : CleanupCopy {
    // Catalogue/SmartCleanupCopy.cpp
    [[nodiscard]] std::string smartCleanupTitle(StorageRecommendationKind kind) const;
    [[nodiscard]] std::string smartCleanupSizeDetail(std::int64_t bytes) const;
    [[nodiscard]] std::string smartCleanupOpenSectionCTA(std::string_view sectionTitle) const;
    [[nodiscard]] std::string smartCleanupLowDiskBody(std::int64_t freeBytes, std::string_view sectionTitle) const;
    [[nodiscard]] std::string smartCleanupDuplicatesBody(std::int64_t groupCount) const;
    /// The two of the permission guide say something else when nothing was blocked.
    [[nodiscard]] std::string smartCleanupPermissionBody(std::int64_t blockedCount) const;
    [[nodiscard]] std::string smartCleanupPermissionDetail(std::int64_t blockedCount) const;
    [[nodiscard]] std::string smartCleanupCandidatesBody(std::int64_t candidateCount) const;
    [[nodiscard]] std::string smartCleanupLargeFilesBody(std::int64_t fileCount) const;
    [[nodiscard]] std::string smartCleanupDownloadsBody(std::int64_t itemCount) const;
    [[nodiscard]] std::string smartCleanupPrimerBody() const;
    [[nodiscard]] std::string smartCleanupPrimerDetail() const;

    // Catalogue/AppCopy.cpp
    [[nodiscard]] std::string appTitle() const;
    [[nodiscard]] std::string appSubtitle() const;
    [[nodiscard]] std::string macCleanupBadge() const;
    [[nodiscard]] std::string platformBoundaryTitle() const;
    [[nodiscard]] std::string macBoundaryStatement() const;
    [[nodiscard]] std::string iOSBoundaryStatement() const;
    [[nodiscard]] std::string languageTitle() const;
    [[nodiscard]] std::string okButtonTitle() const;
    [[nodiscard]] std::string foundLabel() const;
    [[nodiscard]] std::string foundAcrossItems(std::int64_t itemCount) const;
    [[nodiscard]] std::string finderItemMissingTitle() const;
    /// `path` as the screen shows it, here and below.
    [[nodiscard]] std::string finderItemMissingMessage(std::string_view path) const;
    [[nodiscard]] std::string finderRevealFailedTitle() const;
    [[nodiscard]] std::string finderRevealFailedMessage(std::string_view path) const;

    // Catalogue/AppCacheContextCopy.cpp
    [[nodiscard]] std::string appCacheContextSummary(const CleanerCore::AppCacheContext& context) const;
    [[nodiscard]] static std::string koreanAppCacheContextSummary(const CleanerCore::AppCacheContext& context);
    /// For every language but Korean.
    [[nodiscard]] std::string englishAppCacheContextSummary(const CleanerCore::AppCacheContext& context) const;

    // Catalogue/DashboardCopy.cpp
    [[nodiscard]] std::string macDashboardSectionTitle(MacDashboardSection section) const;
    [[nodiscard]] std::string dashboardAccessButtonTitle(bool hasAccess) const;
    [[nodiscard]] std::string dashboardHomeScanSummaryBody(HomeScanState state) const;
    /// Says so when there are no projects.
    [[nodiscard]] std::string dashboardReviewEvidenceProjectSummary(
        std::int64_t projectCount, std::int64_t estimatedBytes) const;

    // Catalogue/MacOnboardingCopy.cpp
    [[nodiscard]] std::string macOnboardingEyebrow() const;
    [[nodiscard]] std::string macOnboardingTitle() const;
    [[nodiscard]] std::string macOnboardingBody() const;
    [[nodiscard]] std::string macOnboardingLanguageTitle() const;
    [[nodiscard]] std::string macOnboardingLanguageBody() const;
    [[nodiscard]] std::string macOnboardingScanFirstTitle() const;
    [[nodiscard]] std::string macOnboardingScanFirstBody() const;
    [[nodiscard]] std::string macOnboardingAccessTitle(bool supportsDirectScans) const;
    [[nodiscard]] std::string macOnboardingAccessBody(bool supportsDirectScans) const;
    [[nodiscard]] std::string macOnboardingSafetyTitle() const;
    [[nodiscard]] std::string macOnboardingSafetyBody() const;
    [[nodiscard]] std::string macOnboardingPrimaryButton(bool hasAccess) const;
    [[nodiscard]] std::string macOnboardingSecondaryButton() const;
    [[nodiscard]] std::string macOnboardingSkipCaption() const;

    // Catalogue/DeveloperCopy.cpp
    /// Nothing for a category that needs no guidance.
    [[nodiscard]] std::optional<DeveloperCleanupAdvisory> developerCleanupAdvisory(
        CleanerCore::CleanupCategory category, std::string_view path) const;
    [[nodiscard]] DeveloperCleanupAdvisory developerCleanupAdvisory(DeveloperCleanupAdvisoryKind kind) const;
    [[nodiscard]] std::string developerProjectAdvisoryArtifactName(DeveloperProjectArtifact artifact) const;
    /// The age is shown for a project at rest.
    [[nodiscard]] std::string developerProjectAdvisoryActivity(
        DeveloperProjectActivityLevel level, std::int64_t ageInDays) const;
    [[nodiscard]] std::string developerProjectAdvisoryNote(DeveloperProjectArtifact artifact) const;

    // Catalogue/DuplicateReviewCopy.cpp
    [[nodiscard]] std::string duplicateReviewCenterSubtitle(std::int64_t groupCount, std::int64_t fileCount) const;
    /// `number` is the group's place in the list, from 1.
    [[nodiscard]] std::string duplicateGroupTitle(std::int64_t number, std::int64_t copyCount) const;
    [[nodiscard]] std::string duplicateGroupByteSummary(std::int64_t extraBytes, std::int64_t selectableBytes) const;
    [[nodiscard]] std::string duplicateGroupSelectionSummary(
        std::int64_t selectedCount, std::int64_t selectableCount, std::int64_t extraCount) const;
    [[nodiscard]] std::string duplicateSelectedExtrasSubtitle(std::int64_t selectedCount) const;
    [[nodiscard]] std::string duplicateKeeperReasonName(CleanerCore::DuplicateKeeperRecommendationReason reason) const;
    [[nodiscard]] std::string duplicateKeeperRecommendationSummary(
        const CleanerCore::DuplicateKeeperRecommendation& recommendation) const;

    // Catalogue/InsightCopy.cpp
    [[nodiscard]] std::string insightSectionTitle(MacInsightFileSection section) const;
    [[nodiscard]] std::string insightDetail(MacInsightFileSection section) const;
    [[nodiscard]] std::string noInsightItemsDescription(MacInsightFileSection section) const;
    [[nodiscard]] std::string insightControlDescription() const;
    [[nodiscard]] std::string insightExportBody() const;
    [[nodiscard]] std::string insightSkippedBody(std::int64_t itemCount) const;

    // Catalogue/IOSSandboxCopy.cpp
    [[nodiscard]] std::string iOSTagline() const;
    [[nodiscard]] std::string iOSAllowsTitle() const;
    [[nodiscard]] std::string iOSAllowsAppCacheOnly() const;
    [[nodiscard]] std::string iOSAllowsGuideSettings() const;
    [[nodiscard]] std::string iOSAllowsNoSystemDataPromise() const;
    [[nodiscard]] std::string iOSSandboxTitle() const;
    [[nodiscard]] std::string iOSReviewAppCacheSelectionHint() const;
    [[nodiscard]] std::string iOSAppCacheScanPending() const;
    [[nodiscard]] std::string iOSAppCacheScanInProgress() const;
    [[nodiscard]] std::string iOSNoAppCacheCandidates() const;
    [[nodiscard]] std::string iOSAppCacheCandidateAccessibilityLabel(
        std::string_view name, std::string_view location, std::int64_t bytes) const;
    [[nodiscard]] std::string iOSAppCacheCandidateAccessibilityHint(bool isSelected) const;
    [[nodiscard]] std::string iOSAppCacheCandidateBusyAccessibilityHint() const;

    // Catalogue/IOSStorageChecklistCopy.cpp
    [[nodiscard]] std::string iOSStorageChecklistTitle() const;
    [[nodiscard]] std::string iOSStorageChecklistSubtitle() const;
    [[nodiscard]] std::string iOSStorageChecklistReset() const;
    [[nodiscard]] std::string iOSStorageChecklistActorName(IOSStorageChecklistActor actor) const;
    [[nodiscard]] std::string iOSStorageChecklistStatusName(IOSStorageChecklistStatus status) const;
    [[nodiscard]] std::string iOSStorageChecklistProgress(std::int64_t reviewedCount, std::int64_t stepCount) const;
    [[nodiscard]] std::string iOSStorageChecklistStatusPickerLabel(std::string_view stepTitle) const;
    [[nodiscard]] std::string iOSStorageChecklistStatusAccessibilityHint() const;
    [[nodiscard]] IOSStorageChecklistStep iOSStorageChecklistStep(
        IOSStorageChecklistStepID id, IOSStorageChecklistStatus status) const;
    [[nodiscard]] static IOSStorageChecklistStep koreanIOSStorageChecklistStep(
        IOSStorageChecklistStepID id, IOSStorageChecklistStatus status);
    /// For every language but Korean.
    [[nodiscard]] IOSStorageChecklistStep englishIOSStorageChecklistStep(
        IOSStorageChecklistStepID id, IOSStorageChecklistStatus status) const;
    /// All steps, in their order.
    [[nodiscard]] std::vector<IOSStorageChecklistStep> iOSStorageChecklistSteps(
        const std::function<IOSStorageChecklistStatus(IOSStorageChecklistStepID)>& statusOf) const;

    // Catalogue/SystemStatusCopy.cpp
    /// Pressures and thermal states are the words of a `SystemResourceSnapshot`; other words stay as they are, and are
    /// unknown in Korean.
    [[nodiscard]] std::string localizedPressure(std::string_view pressure) const;
    [[nodiscard]] std::string localizedThermalState(std::string_view state) const;
    [[nodiscard]] std::string memoryPressure(std::string_view pressure) const;
    [[nodiscard]] std::string processorSubtitle(std::int64_t processorCount, std::int64_t activeProcessorCount) const;
    [[nodiscard]] std::string cpuSubtitle(double loadAverage, std::int64_t activeProcessorCount) const;
    [[nodiscard]] std::string cpuLoadAverageSubtitle(double loadAverage) const;
    [[nodiscard]] std::string cpuAnalysisInterpretation(LoadLevel level) const;
    [[nodiscard]] std::string cpuAnalysisPrimaryAction(LoadLevel level) const;
    [[nodiscard]] std::string memoryAnalysisInterpretation(LoadLevel level) const;
    [[nodiscard]] std::string memoryAnalysisPrimaryAction(LoadLevel level) const;
    [[nodiscard]] std::string systemTrendName(std::string_view metricName) const;
    [[nodiscard]] std::string systemTrendSubtitle(std::int64_t sampleCount) const;
    /// The samples are fractions, the oldest first.
    [[nodiscard]] std::string metricTrendAccessibilityValue(std::span<const double> samples) const;

    // Catalogue/ResourceReliefCopy.cpp
    [[nodiscard]] std::string resourceReliefPercent(std::optional<double> fraction) const;
    /// Why it cannot be asked to quit, if so, its bundle and its memory.
    [[nodiscard]] std::string resourceReliefCandidateDetail(
        const CleanerCore::ResourceReliefCandidate& candidate) const;
    [[nodiscard]] std::string resourceReliefMetricAccessibility(
        std::string_view appName, ResourceReliefMetric metric, std::optional<double> fraction) const;
    [[nodiscard]] std::string resourceReliefQuitButton(std::int64_t selectedCount) const;
    [[nodiscard]] std::string resourceReliefConfirmButton(std::int64_t selectedCount) const;
    [[nodiscard]] std::string resourceReliefConfirmMessage(std::int64_t selectedCount) const;
    [[nodiscard]] std::string resourceReliefProtectionReason(CleanerCore::ResourceReliefProtectionReason reason) const;
    [[nodiscard]] std::string resourceReliefResultText(const CleanerCore::ResourceReliefActionResult& result) const;

    // Catalogue/StorageTimelineCopy.cpp
    [[nodiscard]] std::string storageTimelinePointTitle(StorageTrendTimelinePointKind kind) const;
    /// `section` is where the point leads; without one, cleanup is named.
    [[nodiscard]] std::string storageTimelinePointBody(StorageTrendTimelinePointKind kind, std::int64_t bytes,
        std::int64_t secondaryBytes, std::optional<MacDashboardSection> section) const;
    /// Empty for a kind that has none.
    [[nodiscard]] std::string storageTimelinePointDetail(
        StorageTrendTimelinePointKind kind, std::int64_t itemCount) const;

    friend bool operator==(const KarvelloCopy&, const KarvelloCopy&) = default;
};

} // namespace KarvelloUI
