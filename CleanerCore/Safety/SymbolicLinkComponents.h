#pragma once

#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Safety/ComparisonForm.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <expected>
#include <optional>
#include <string_view>

namespace CleanerCore {

/// Whether the item itself is a symbolic link; an error where that cannot be told.
[[nodiscard]] std::expected<bool, CleaningError> isSymbolicLink(
    const Platform::FileURL& url, const Platform::FileManager& fileManager);

/// Proves that no component of the path is a symbolic link. The root folder is never tested, and with `parent` neither
/// is it nor what lies above it; a path that is not `parent` and does not lie in it is then refused as
/// `pathNotAllowed`. A component that is a link or does not say so gives `symbolicLink`, one that cannot be looked at
/// `unreadableAttributes`, each with the path down to that component.
[[nodiscard]] std::expected<void, CleaningError> rejectSymbolicLinkComponents(const Platform::FileURL& url,
    std::optional<std::string_view> parent, const Platform::FileManager& fileManager, NameComparison comparison);

} // namespace CleanerCore
