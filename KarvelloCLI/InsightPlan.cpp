#include "KarvelloCLI/InsightPlan.h"

#include "CleanerCore/Insights/InsightRoots.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "KarvelloCLI/NamedHome.h"
#include "KarvelloCLI/WorkingDirectory.h"

#include <algorithm>

namespace KarvelloCLI {

using Platform::FileURL;

std::expected<InsightPlan, std::string> InsightPlan::make(const InsightsOptions& options,
    const FileURL& workingDirectory, const FileURL& ownHome, const Platform::Environment& environment,
    const Platform::FileManager& fileManager)
{
    const NamedHome home = NamedHome::of(options.home, workingDirectory, ownHome, fileManager);
    InsightPlan plan;
    plan.environment = home.environment(environment);
    plan.subject.home = home.real;
    plan.subject.looksAtHome = options.looksAtHome();
    plan.subject.only = options.only;
    plan.subject.configuration = options.configuration;
    if (plan.subject.looksAtHome) {
        if (!fileManager.directoryExists(home.real)) {
            return std::unexpected(home.absence());
        }
        plan.roots = CleanerCore::InsightRoots::of(home.real, fileManager, plan.environment).folders;
    }
    plan.subject.folders = absoluteFolders(options.roots, workingDirectory);
    for (const FileURL& folder : plan.subject.folders) {
        if (!fileManager.directoryExists(folder)) {
            plan.refusedFolders.push_back(
                {folder, std::string(CleanerCore::StorageScannerSkipReason::folderDoesNotExist)});
        } else if (std::ranges::find(plan.roots, folder.path(), &FileURL::path) == plan.roots.end()) {
            plan.roots.push_back(folder);
        }
    }
    plan.subject.hasNothingToLookAt = plan.roots.empty();
    return plan;
}

} // namespace KarvelloCLI
