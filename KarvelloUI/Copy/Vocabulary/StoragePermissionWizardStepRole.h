#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace KarvelloUI {

/// What a step of the guide to access asks of the user.
enum class StoragePermissionWizardStepRole : std::uint8_t {
    reviewBlockedItems,
    refreshCustomFolders,
    grantSystemAccess,
    rescan
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::StoragePermissionWizardStepRole> {
    static constexpr std::array<std::string_view, 4> names{
        "reviewBlockedItems", "refreshCustomFolders", "grantSystemAccess", "rescan"};
};
