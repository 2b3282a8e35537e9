#include "CleanerCore/Insights/RootPlan.h"

#include "CleanerCore/Safety/ComparisonForm.h"

#include <algorithm>

namespace CleanerCore {

RootPlan::RootPlan(const Platform::FileURL& root, std::span<const Platform::FileURL> roots,
    const std::optional<Platform::FileURL>& downloadsFolder)
    : m_root(root)
{
    if (downloadsFolder) {
        m_downloadsFolder = downloadsFolder->path();
        m_hasFolderRules = Platform::isPathInside(*m_downloadsFolder, root.path());
    }
    for (const auto& other : roots) {
        if (Platform::isPathInside(other.path(), root.path())) {
            m_rootsInside.push_back(other.path());
            m_hasFolderRules = true;
        }
    }
}

RootPlan::FolderRules RootPlan::rules(std::string_view folderPath) const
{
    return {
        .keepsEveryFile = m_downloadsFolder && equalsOrIsInside(folderPath, *m_downloadsFolder),
        .keepsNothing = std::ranges::any_of(
            m_rootsInside, [&](const std::string& other) { return equalsOrIsInside(folderPath, other); }),
    };
}

} // namespace CleanerCore
