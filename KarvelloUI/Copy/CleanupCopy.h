#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/CleaningMode.h"
#include "CleanerCore/Cleaning/CleanupRestoreCenterSnapshot.h"
#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"
#include "CleanerCore/Cleaning/CleanupStorageImpactReport.h"
#include "CleanerCore/Cleaning/RestoreResult.h"
#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Scan/CleanupScanMode.h"
#include "KarvelloUI/Copy/CopyWording.h"
#include "KarvelloUI/Copy/Vocabulary/CandidateListGroupingMode.h"
#include "KarvelloUI/Copy/Vocabulary/CleanupIgnoreDuration.h"
#include "KarvelloUI/Copy/Vocabulary/CleanupReviewCadenceStatusKind.h"
#include "KarvelloUI/Copy/Vocabulary/CleanupReviewProfileID.h"
#include "KarvelloUI/Copy/Vocabulary/StoragePermissionIssueKind.h"
#include "KarvelloUI/Copy/Vocabulary/StoragePermissionWizardStepRole.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// The half of `KarvelloCopy` that speaks of cleaning: from the scan over the review to the Trash and back.
struct CleanupCopy : CopyWording {
    // Catalogue/AuditLogCopy.cpp
    [[nodiscard]] std::string auditLogTitle() const;
    [[nodiscard]] std::string auditLogEmpty() const;
    [[nodiscard]] std::string auditLogLoading() const;
    [[nodiscard]] std::string auditLogExportBody() const;
    [[nodiscard]] std::string auditLogExportPanelMessage() const;
    [[nodiscard]] std::string auditLogExportFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string auditOperationName(CleanerCore::CleanupAuditOperation operation) const;
    [[nodiscard]] std::string auditSourceName(CleanerCore::CleanupAuditSource source) const;
    [[nodiscard]] std::string auditEntrySummary(const CleanerCore::CleanupAuditEntry& entry) const;
    /// `occurredAt` is the entry's date as the screen shows it.
    [[nodiscard]] std::string auditEntryAccessibilityLabel(
        const CleanerCore::CleanupAuditEntry& entry, std::string_view occurredAt) const;

    // Catalogue/ScanCopy.cpp
    [[nodiscard]] std::string scanningMessage() const;
    [[nodiscard]] std::string scanAgain() const;
    [[nodiscard]] std::string scanAppCache() const;
    [[nodiscard]] std::string scanModeTitle() const;
    [[nodiscard]] std::string scanModeName(CleanerCore::CleanupScanMode mode) const;
    [[nodiscard]] std::string scanModeAccessibilityHint(bool includesDirectDistribution) const;
    [[nodiscard]] std::string aggressiveWarningTitle() const;
    [[nodiscard]] std::string aggressiveWarningBody() const;
    [[nodiscard]] std::string scanRunnerPreparing() const;
    [[nodiscard]] std::string scanRunnerVisiting() const;
    [[nodiscard]] std::string scanRunnerHint() const;
    [[nodiscard]] std::string scanRunnerProgressLabel() const;
    [[nodiscard]] std::string scanRunnerProgress(int percentage) const;
    [[nodiscard]] std::string scanRunnerScannedLabel() const;
    [[nodiscard]] std::string scanRunnerCandidatesLabel() const;
    [[nodiscard]] std::string scanRunnerSkippedLabel() const;
    [[nodiscard]] std::string itemsScannedCount(std::int64_t itemCount) const;
    [[nodiscard]] std::string reclaimableTitle() const;
    [[nodiscard]] std::string skippedTitle() const;
    [[nodiscard]] std::string skippedSummary(std::int64_t itemCount) const;
    [[nodiscard]] std::string skippedMore(std::int64_t itemCount) const;
    /// What the engine or the system gives as the reason of something; what neither says comes back as it is.
    [[nodiscard]] std::string skippedReason(std::string_view reason) const;
    [[nodiscard]] std::string cancel() const;
    [[nodiscard]] std::string cancelOperation() const;

    // Catalogue/CandidateListCopy.cpp
    [[nodiscard]] std::string cleanupCandidatesTitle() const;
    [[nodiscard]] std::string candidateListSearchPrompt() const;
    [[nodiscard]] std::string candidateListCategoryFilterTitle() const;
    [[nodiscard]] std::string candidateListAllCategoriesFilter() const;
    [[nodiscard]] std::string candidateListSafetyFilterTitle() const;
    [[nodiscard]] std::string candidateListAllSafetyFilter() const;
    [[nodiscard]] std::string candidateListGroupingTitle() const;
    [[nodiscard]] std::string candidateListGroupingModeName(CandidateListGroupingMode mode) const;
    [[nodiscard]] std::string noCleanupCandidatesTitle() const;
    [[nodiscard]] std::string noCleanupCandidatesDescription() const;
    [[nodiscard]] std::string noFilteredCleanupCandidatesTitle() const;
    [[nodiscard]] std::string noFilteredCleanupCandidatesDescription() const;
    [[nodiscard]] std::string visibleCleanupCandidatesSummary(std::int64_t visibleCount, std::int64_t totalCount) const;
    [[nodiscard]] std::string selectAll() const;
    [[nodiscard]] std::string clearSelection() const;
    [[nodiscard]] std::string selectVisibleCandidates() const;
    [[nodiscard]] std::string clearVisibleSelection() const;
    [[nodiscard]] std::string partialSelectionCaption() const;
    [[nodiscard]] std::string bulkSelectionAccessibilityValue(
        std::int64_t selectedCount, std::int64_t totalCount) const;
    [[nodiscard]] std::string visibleBulkSelectionAccessibilityValue(
        std::int64_t selectedCount, std::int64_t visibleCount) const;
    [[nodiscard]] std::string selectionState(bool isSelected) const;
    [[nodiscard]] std::string openInFinder() const;
    [[nodiscard]] std::string moveSelectedToTrash() const;

    // Catalogue/CandidateCopy.cpp
    [[nodiscard]] std::string categoryName(CleanerCore::CleanupCategory category) const;
    [[nodiscard]] std::string categoryExplanation(CleanerCore::CleanupCategory category) const;
    [[nodiscard]] std::string categoryRecommendedAction(CleanerCore::CleanupCategory category) const;
    [[nodiscard]] std::string recommendationReason(CleanerCore::CleanupRecommendationReason reason) const;
    [[nodiscard]] std::string safetyName(CleanerCore::CleanupSafety safety) const;
    [[nodiscard]] std::string cleanupCandidateTrustExplanation(const CleanerCore::CleanupCandidate& candidate) const;
    /// `appContext` and `developerGuidance` are texts of this language for the candidate, empty where there are none.
    [[nodiscard]] std::string cleanupCandidateAccessibilityLabel(const CleanerCore::CleanupCandidate& candidate,
        std::string_view appContext, std::string_view developerGuidance) const;
    /// "3 months"; never less than a day.
    [[nodiscard]] std::string reviewAgeText(Platform::Date lastModified, Platform::Date now) const;
    [[nodiscard]] std::string reviewDetail(const CleanerCore::FileInsight& file, Platform::Date now) const;

    // Catalogue/CleanupPreviewCopy.cpp
    [[nodiscard]] std::string cleanupPreviewSummary(const CleanerCore::CleanupSelectionPreview& preview) const;
    [[nodiscard]] std::string cleanupPreviewItemCount(std::int64_t itemCount) const;
    [[nodiscard]] std::string cleanupPreviewCategoryLine(
        const CleanerCore::CleanupPreviewCategorySummary& summary) const;
    [[nodiscard]] std::string cleanupPreviewMoreCategories(std::int64_t categoryCount) const;
    [[nodiscard]] std::string cleanupPreviewConfidenceSummary(
        const CleanerCore::CleanupSafetyBreakdown& breakdown) const;
    [[nodiscard]] std::string confidenceCountText(CleanerCore::CleanupSafety safety, std::int64_t itemCount) const;
    [[nodiscard]] std::string cleanupPreviewConfirmationSuffix(
        const CleanerCore::CleanupSelectionPreview& preview) const;
    [[nodiscard]] std::string selectedTitle() const;
    [[nodiscard]] std::string selectedSubtitle(std::int64_t itemCount) const;
    /// `hiddenCount`: how many of the selected items the list does not show at the moment.
    [[nodiscard]] std::string selectedSummary(
        std::int64_t itemCount, std::int64_t bytes, std::int64_t hiddenCount) const;
    [[nodiscard]] std::string hiddenSelectionConfirmationWarning(std::int64_t hiddenCount) const;
    [[nodiscard]] std::string confirmMoveTitle() const;
    [[nodiscard]] std::string confirmMoveMessage(std::int64_t itemCount, std::int64_t bytes) const;
    /// All that the dialog says: the move, what moves, and what of it is hidden.
    [[nodiscard]] std::string confirmMovePreviewMessage(
        const CleanerCore::CleanupSelectionPreview& preview, std::int64_t hiddenCount) const;
    [[nodiscard]] std::string confirmDuplicateExtrasMoveMessage(std::int64_t itemCount, std::int64_t bytes) const;
    [[nodiscard]] std::string confirmDeleteTitle() const;
    [[nodiscard]] std::string confirmDeleteMessage(std::int64_t itemCount, std::int64_t bytes) const;
    [[nodiscard]] std::string deleteSelectedAppCache() const;

    // Catalogue/CleanRunCopy.cpp
    [[nodiscard]] std::string cleaningMessage() const;
    [[nodiscard]] std::string cleanFailureMessage() const;
    [[nodiscard]] std::string cleanCancelledMessage() const;
    [[nodiscard]] std::string lastCleanTitle(std::optional<CleanerCore::CleaningMode> mode) const;
    [[nodiscard]] std::string lastCleanSubtitle(
        const CleanerCore::CleanResult& result, std::optional<CleanerCore::CleaningMode> mode) const;
    [[nodiscard]] std::string restoringMessage() const;
    [[nodiscard]] std::string restoreFailureMessage() const;
    [[nodiscard]] std::string restoreCancelledMessage() const;
    [[nodiscard]] std::string lastRestoreTitle() const;
    [[nodiscard]] std::string lastRestoreSubtitle(const CleanerCore::RestoreResult& result) const;

    // Catalogue/CleanupImpactCopy.cpp
    /// The labels and the summary speak of a move, of a deletion, or of neither where the mode is unknown.
    [[nodiscard]] std::string cleanupImpactTitle() const;
    [[nodiscard]] std::string cleanupImpactExpectedLabel(std::optional<CleanerCore::CleaningMode> mode) const;
    [[nodiscard]] std::string cleanupImpactActualLabel(std::optional<CleanerCore::CleaningMode> mode) const;
    [[nodiscard]] std::string cleanupImpactUnreclaimedLabel(std::optional<CleanerCore::CleaningMode> mode) const;
    [[nodiscard]] std::string cleanupImpactUnavailablePercent() const;
    [[nodiscard]] std::string cleanupImpactSummary(const CleanerCore::CleanupStorageImpactReport& report) const;
    [[nodiscard]] std::string cleanupImpactAccessibilityLabel(
        const CleanerCore::CleanupStorageImpactReport& report) const;

    // Catalogue/RestoreCenterCopy.cpp
    [[nodiscard]] std::string restoreCenterTitle() const;
    [[nodiscard]] std::string restoreCenterBody() const;
    [[nodiscard]] std::string restoreCenterSummary(const CleanerCore::CleanupRestoreCenterSnapshot& snapshot) const;
    /// `recordedAt` is the date as the screen shows it.
    [[nodiscard]] std::string restoreCenterLedgerNote(
        CleanerCore::CleanupAuditSource source, std::string_view recordedAt) const;
    [[nodiscard]] std::string restoreCenterSelectionHint(std::int64_t selectedCount, std::int64_t eligibleCount) const;
    [[nodiscard]] std::string restoreCenterRestoreSelected(std::int64_t itemCount) const;
    [[nodiscard]] std::string restoreCenterItemSubtitle(
        std::int64_t bytes, std::optional<std::string_view> trashLocation) const;
    [[nodiscard]] std::string restoreCenterTrashLocationLabel() const;
    [[nodiscard]] std::string restoreCenterTrashLocationUnavailable() const;
    [[nodiscard]] std::string restoreCenterReadyStatus() const;
    [[nodiscard]] std::string restoreCenterUnavailableStatus() const;
    [[nodiscard]] std::string restoreCenterHistoryOnlyStatus() const;
    [[nodiscard]] std::string restoreCenterRevealOriginal() const;
    [[nodiscard]] std::string restoreCenterRevealTrashLocation() const;

    // Catalogue/IgnoreListCopy.cpp
    [[nodiscard]] std::string ignoreCleanupCandidate() const;
    [[nodiscard]] std::string cleanupIgnoreDurationTitle(CleanupIgnoreDuration duration) const;
    [[nodiscard]] std::string ignoredCandidatesTitle() const;
    [[nodiscard]] std::string ignoredCandidatesDescription() const;
    [[nodiscard]] std::string ignoredCandidatesEmpty() const;
    [[nodiscard]] std::string ignoredCandidatesSummary(std::int64_t itemCount) const;
    /// `expiresAt` is the date as the screen shows it; empty where it is not known.
    [[nodiscard]] std::string ignoredCandidateDurationDescription(
        CleanupIgnoreDuration duration, std::string_view expiresAt) const;
    [[nodiscard]] std::string showIgnoredCandidateAgain() const;
    [[nodiscard]] std::string clearIgnoredCandidates() const;
    [[nodiscard]] std::string cleanupIgnoreLoadFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string cleanupIgnoreSaveFailedMessage(std::string_view reason) const;

    // Catalogue/CleanupReviewCopy.cpp
    [[nodiscard]] std::string cleanupReviewCadenceStatus(
        CleanupReviewCadenceStatusKind kind, std::int64_t daysUntilNextReview) const;
    [[nodiscard]] std::string cleanupReviewProfileName(CleanupReviewProfileID profile) const;
    [[nodiscard]] std::string cleanupReviewProfileSummary(CleanerCore::CleanupScanMode mode,
        std::span<const CleanerCore::CleanupCategory> categories, std::int64_t ignoredCount) const;
    [[nodiscard]] std::string cleanupReviewProfileGuardrail(CleanerCore::CleanupScanMode mode) const;

    // Catalogue/HomeAccessCopy.cpp
    [[nodiscard]] std::string homeAccessOnboardingTitle() const;
    [[nodiscard]] std::string homeAccessOnboardingMessage() const;
    [[nodiscard]] std::string homeAccessGrantButton() const;
    [[nodiscard]] std::string homeAccessGrantedStatus() const;
    [[nodiscard]] std::string homeAccessRevokeButton() const;
    [[nodiscard]] std::string homeAccessPendingHintFromBanner() const;
    [[nodiscard]] std::string homeAccessPanelPrompt() const;
    [[nodiscard]] std::string homeAccessPanelMessage() const;
    [[nodiscard]] std::string homeAccessBookmarkLoadFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string homeAccessBookmarkSaveFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string homeAccessBookmarkResolveFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string homeAccessBookmarkStaleMessage() const;
    [[nodiscard]] std::string customScanFoldersLoadFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string customScanFoldersSaveFailedMessage(std::string_view reason) const;

    // Catalogue/PermissionGuideCopy.cpp
    [[nodiscard]] std::string permissionDiagnosticTitle(StoragePermissionIssueKind kind, std::int64_t itemCount) const;
    [[nodiscard]] std::string permissionDiagnosticAction(StoragePermissionIssueKind kind) const;
    [[nodiscard]] std::string permissionDiagnosticSamples(std::span<const std::string> paths) const;
    [[nodiscard]] std::string permissionDiagnosticSamplePathsTitle(std::int64_t pathCount) const;
    [[nodiscard]] std::string permissionDiagnosticSamplePathsCopyButton() const;
    [[nodiscard]] std::string permissionDiagnosticSampleCopyPayload(std::span<const std::string> paths) const;
    [[nodiscard]] std::string permissionWizardTitle() const;
    [[nodiscard]] std::string permissionWizardIntro() const;
    [[nodiscard]] std::string permissionWizardStepLabel(std::int64_t step, std::int64_t stepCount) const;
    [[nodiscard]] std::string permissionWizardStepTitle(StoragePermissionWizardStepRole role) const;
    [[nodiscard]] std::string permissionWizardStepBody(
        StoragePermissionWizardStepRole role, std::optional<StoragePermissionIssueKind> kind) const;
    /// Of the folders that a scan was kept from; both know whether the user has added folders.
    [[nodiscard]] std::string storageAccessBody(std::int64_t blockedCount, bool hasCustomFolders) const;
    [[nodiscard]] std::string settingsAccessDiagnosticsTitle(std::int64_t blockedCount, bool hasCustomFolders) const;
    [[nodiscard]] std::string settingsAccessDiagnosticsBody(std::int64_t blockedCount, bool hasCustomFolders) const;

    // Catalogue/ExportCopy.cpp
    [[nodiscard]] std::string scanExportTitle() const;
    [[nodiscard]] std::string scanExportBody() const;
    [[nodiscard]] std::string scanExportPanelMessage() const;
    [[nodiscard]] std::string scanExportFailedTitle() const;
    [[nodiscard]] std::string scanExportFailedMessage(std::string_view reason) const;
    [[nodiscard]] std::string exportJSON() const;
    [[nodiscard]] std::string exportCSV() const;
    [[nodiscard]] std::string exportRedactedJSON() const;
    [[nodiscard]] std::string exportRedactedCSV() const;
    [[nodiscard]] std::string redactedExportHint() const;

    // Catalogue/SafetyModelCopy.cpp
    [[nodiscard]] std::string cleanupControlTitle() const;
    [[nodiscard]] std::string cleanupControlSubtitle() const;
    [[nodiscard]] std::string trustBriefTitle() const;
    [[nodiscard]] std::string trustBriefBody() const;
    [[nodiscard]] std::string trustReviewPill() const;
    [[nodiscard]] std::string trustTrashPill() const;
    [[nodiscard]] std::string trustScopePill() const;
    [[nodiscard]] std::string safetyModelTitle() const;
    [[nodiscard]] std::string safetyTrashRule() const;
    [[nodiscard]] std::string safetyScopeRule() const;
    [[nodiscard]] std::string safetySkipRule() const;
    [[nodiscard]] std::string recommendedActionsTitle() const;
    [[nodiscard]] std::string recommendedActionsSettings() const;
    [[nodiscard]] std::string recommendedActionsSandboxWarning() const;

    friend bool operator==(const CleanupCopy&, const CleanupCopy&) = default;

private:
    [[nodiscard]] std::string linuxAccessDiagnosticsBody(std::int64_t blockedCount, bool hasCustomFolders) const;
    [[nodiscard]] std::string cleanupImpactOutcome(const CleanerCore::CleanupStorageImpactReport& report) const;
};

} // namespace KarvelloUI
