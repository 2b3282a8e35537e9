#pragma once

#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "CleanerCore/Scan/FileResourceIdentity.h"
#include "Platform/Files/Trash.h"

namespace CleanerCore {

/// A live root, as a move is tied to it.
[[nodiscard]] Platform::FolderAnchor folderAnchor(const CleanupEligibilityPolicy::Root& root);

/// Passes only the item with this very identity.
[[nodiscard]] Platform::ItemTest isItem(FileResourceIdentity identity);

} // namespace CleanerCore
