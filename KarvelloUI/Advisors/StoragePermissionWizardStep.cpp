#include "KarvelloUI/Advisors/StoragePermissionWizardStep.h"

#include <fmt/format.h>

namespace KarvelloUI {

std::string StoragePermissionWizardStep::id() const
{
    return fmt::format(
        "{}:{}", Platform::rawValue(role), issueKind ? Platform::rawValue(*issueKind) : std::string_view());
}

std::string IndexedPermissionWizardStep::id() const
{
    return fmt::format("{}-{}", index, step.id());
}

std::vector<IndexedPermissionWizardStep> indexedWizardSteps(std::span<const StoragePermissionWizardStep> steps)
{
    std::vector<IndexedPermissionWizardStep> indexed;
    indexed.reserve(steps.size());
    for (const auto& step : steps) {
        indexed.push_back({static_cast<std::int64_t>(indexed.size()) + 1, step});
    }
    return indexed;
}

} // namespace KarvelloUI
