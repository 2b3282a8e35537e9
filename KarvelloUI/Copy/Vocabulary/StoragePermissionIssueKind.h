#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace KarvelloUI {

/// What kept a scan from a path. The declaration order is the order of diagnoses.
enum class StoragePermissionIssueKind : std::uint8_t {
    fullDiskAccess,
    filesAndFolders,
    securityScopedAccess,
    authorization,
    readOrEnumerateAccess,
    unreadableAttributes
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::StoragePermissionIssueKind> {
    static constexpr std::array<std::string_view, 6> names{"fullDiskAccess", "filesAndFolders", "securityScopedAccess",
        "authorization", "readOrEnumerateAccess", "unreadableAttributes"};
};
