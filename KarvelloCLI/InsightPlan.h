#pragma once

#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloCLI/InsightSubject.h"
#include "KarvelloCLI/InsightsOptions.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <expected>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// What the words of a command line come to on this machine: where an insight scan looks.
struct InsightPlan {
    InsightSubject subject;
    /// The folders of the home, then those that the user named and that exist.
    std::vector<Platform::FileURL> roots;
    /// Of the user's own: those that do not exist.
    std::vector<CleanerCore::SkippedItem> refusedFolders;
    /// What the variables say of the home.
    Platform::Environment environment;

    /// `workingDirectory` is what relative folders count from. The error is a sentence for the user: there is no home.
    static std::expected<InsightPlan, std::string> make(const InsightsOptions& options,
        const Platform::FileURL& workingDirectory, const Platform::FileURL& ownHome,
        const Platform::Environment& environment, const Platform::FileManager& fileManager);
};

} // namespace KarvelloCLI
