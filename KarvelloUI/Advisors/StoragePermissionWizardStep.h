#pragma once

#include "KarvelloUI/Copy/Vocabulary/StoragePermissionIssueKind.h"
#include "KarvelloUI/Copy/Vocabulary/StoragePermissionWizardStepRole.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace KarvelloUI {

/// One step of the guide to access. Its texts are `KarvelloCopy`'s for the role and the kind.
struct StoragePermissionWizardStep {
    StoragePermissionWizardStepRole role = StoragePermissionWizardStepRole::rescan;
    /// What the blocked items have in common, for a step that reviews some.
    std::optional<StoragePermissionIssueKind> issueKind = {};
    /// How many items the step is about; 0 where it is about none in particular.
    std::int64_t count = 0;
    /// The first few of their paths, as the file system has them: not necessarily UTF-8.
    std::vector<std::string> samplePaths = {};

    /// Not shared by two steps of one guide.
    [[nodiscard]] std::string id() const;

    friend bool operator==(const StoragePermissionWizardStep&, const StoragePermissionWizardStep&) = default;
};

/// A step and its place in the guide, from 1.
struct IndexedPermissionWizardStep {
    std::int64_t index = 1;
    StoragePermissionWizardStep step;

    [[nodiscard]] std::string id() const;

    friend bool operator==(const IndexedPermissionWizardStep&, const IndexedPermissionWizardStep&) = default;
};

[[nodiscard]] std::vector<IndexedPermissionWizardStep> indexedWizardSteps(
    std::span<const StoragePermissionWizardStep> steps);

} // namespace KarvelloUI
