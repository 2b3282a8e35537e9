#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <optional>
#include <string>
#include <vector>

namespace CleanerCore {

/// The folders that an insight scan looks at: a home's own list, by its layout. A home with a folder "Library" has the
/// folders of macOS; any other has its user directories and what applications keep. Only folders that exist are listed.
struct InsightRoots {
    std::vector<Platform::FileURL> folders;
    /// Those whose items may be cleaned.
    std::vector<Platform::FileURL> cleanable;
    /// Where downloads arrive, listed or not.
    std::optional<Platform::FileURL> downloadsFolder;

    static InsightRoots of(const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager,
        const Platform::Environment& environment);
};

/// "~" for the home, "~/..." for what lies in it, and for what lies in the current user's home; else the path.
[[nodiscard]] std::string insightDisplayName(
    const Platform::FileURL& url, const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager);

} // namespace CleanerCore
