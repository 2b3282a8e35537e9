#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"

#include "Platform/Base/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace KarvelloUI::StoragePermissionAdvisor {

namespace {

using CleanerCore::SkippedItem;
using Kind = StoragePermissionIssueKind;
using Role = StoragePermissionWizardStepRole;

constexpr std::size_t kMaximumSamplePaths = 3;

struct IssueMarker {
    Kind kind;
    /// Lower case.
    std::string_view text;
};

/// The first that a reason contains names its kind, so wording that says more stands before wording that says less.
constexpr std::array kIssueMarkers{
    IssueMarker{Kind::securityScopedAccess, "security-scoped access"},
    IssueMarker{Kind::securityScopedAccess, "stale bookmark"},
    IssueMarker{Kind::securityScopedAccess, "security scoped"},
    IssueMarker{Kind::fullDiskAccess, "full disk access"},
    IssueMarker{Kind::filesAndFolders, "files & folders"},
    IssueMarker{Kind::filesAndFolders, "folder access"},
    IssueMarker{Kind::authorization, "not authorized"},
    IssueMarker{Kind::authorization, "unauthorized"},
    IssueMarker{Kind::unreadableAttributes, "could not verify file attributes safely"},
    IssueMarker{Kind::unreadableAttributes, "inaccessible"},
    IssueMarker{Kind::unreadableAttributes, "unreadable"},
    IssueMarker{Kind::readOrEnumerateAccess, "permission"},
    IssueMarker{Kind::readOrEnumerateAccess, "operation not permitted"},
    IssueMarker{Kind::readOrEnumerateAccess, "not permitted"},
    IssueMarker{Kind::readOrEnumerateAccess, "denied"},
    IssueMarker{Kind::readOrEnumerateAccess, "could not read"},
    IssueMarker{Kind::readOrEnumerateAccess, "could not enumerate"},
    IssueMarker{Kind::readOrEnumerateAccess, "could not open"},
    IssueMarker{Kind::readOrEnumerateAccess, "couldn’t be opened"},
};

StoragePermissionWizardStep reviewStep(const StoragePermissionDiagnosis& diagnosis)
{
    StoragePermissionWizardStep step{.role = Role::reviewBlockedItems,
        .issueKind = diagnosis.kind,
        .count = static_cast<std::int64_t>(diagnosis.items.size())};
    const auto samples = std::span(diagnosis.items).first(std::min(diagnosis.items.size(), kMaximumSamplePaths));
    std::ranges::transform(
        samples, std::back_inserter(step.samplePaths), [](const SkippedItem& item) { return item.url.path(); });
    return step;
}

} // namespace

std::optional<Kind> issueKind(std::string_view reason)
{
    const std::string lowercased = Platform::Text::lowercased(reason);
    const auto* const found = std::ranges::find_if(
        kIssueMarkers, [&](const IssueMarker& marker) { return lowercased.contains(marker.text); });
    return found == kIssueMarkers.end() ? std::nullopt : std::optional(found->kind);
}

bool isPermissionRelated(std::string_view reason)
{
    return issueKind(reason).has_value();
}

std::vector<SkippedItem> permissionRelatedSkippedItems(std::span<const SkippedItem> items)
{
    std::vector<SkippedItem> related;
    std::ranges::copy_if(items, std::back_inserter(related), isPermissionRelated, &SkippedItem::reason);
    return related;
}

std::vector<StoragePermissionDiagnosis> diagnoses(std::span<const SkippedItem> items)
{
    std::array<std::vector<SkippedItem>, Platform::allCases<Kind>().size()> itemsOfKind;
    for (const SkippedItem& item : items) {
        if (const auto kind = issueKind(item.reason)) {
            itemsOfKind.at(static_cast<std::size_t>(*kind)).push_back(item);
        }
    }
    std::vector<StoragePermissionDiagnosis> found;
    for (const Kind kind : Platform::allCases<Kind>()) {
        auto& ofKind = itemsOfKind.at(static_cast<std::size_t>(kind));
        if (!ofKind.empty()) {
            found.push_back({kind, std::move(ofKind)});
        }
    }
    return found;
}

std::vector<StoragePermissionWizardStep> wizardSteps(
    std::span<const StoragePermissionDiagnosis> diagnoses, bool includesCustomFolders)
{
    std::vector<StoragePermissionWizardStep> steps;
    if (diagnoses.empty()) {
        return steps;
    }
    std::ranges::transform(diagnoses, std::back_inserter(steps), reviewStep);
    const bool hasFailedBookmark =
        std::ranges::find(diagnoses, Kind::securityScopedAccess, &StoragePermissionDiagnosis::kind) != diagnoses.end();
    if (includesCustomFolders || hasFailedBookmark) {
        steps.push_back({.role = Role::refreshCustomFolders});
    }
    steps.push_back({.role = Role::grantSystemAccess});
    steps.push_back({.role = Role::rescan});
    return steps;
}

} // namespace KarvelloUI::StoragePermissionAdvisor
