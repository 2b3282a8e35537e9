#pragma once

#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloUI/Advisors/StoragePermissionWizardStep.h"
#include "KarvelloUI/Copy/Vocabulary/StoragePermissionIssueKind.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The items that one kind of issue kept a scan from; there is at least one.
struct StoragePermissionDiagnosis {
    StoragePermissionIssueKind kind = StoragePermissionIssueKind::fullDiskAccess;
    /// In the order of the scan.
    std::vector<CleanerCore::SkippedItem> items;

    friend bool operator==(const StoragePermissionDiagnosis&, const StoragePermissionDiagnosis&) = default;
};

/// Finds out from the reasons of skipped items which of them a permission would help, and what the user can do. Karvello
/// cannot give itself access. Pure functions; they may be called from any thread.
namespace StoragePermissionAdvisor {

/// What the words of a reason speak of, whatever their case; nothing for a reason that is no matter of permission.
[[nodiscard]] std::optional<StoragePermissionIssueKind> issueKind(std::string_view reason);
[[nodiscard]] bool isPermissionRelated(std::string_view reason);
/// In the given order.
[[nodiscard]] std::vector<CleanerCore::SkippedItem> permissionRelatedSkippedItems(
    std::span<const CleanerCore::SkippedItem> items);

/// One for each kind that there is, in the declaration order of the kinds.
[[nodiscard]] std::vector<StoragePermissionDiagnosis> diagnoses(std::span<const CleanerCore::SkippedItem> items);

/// What to do, in order; nothing without a diagnosis. A bookmark that failed asks for new custom folders whether or not
/// there are any left.
[[nodiscard]] std::vector<StoragePermissionWizardStep> wizardSteps(
    std::span<const StoragePermissionDiagnosis> diagnoses, bool includesCustomFolders);

} // namespace StoragePermissionAdvisor

} // namespace KarvelloUI
