#include "CleanerCore/Safety/ComparisonForm.h"

#include "Platform/Base/Text.h"

namespace CleanerCore {

NameComparison nameComparison(const Platform::FileURL& folder, const Platform::FileManager& fileManager)
{
    return fileManager.volumeSupportsCaseSensitiveNames(folder) ? NameComparison::caseSensitive
                                                                : NameComparison::caseInsensitive;
}

std::string comparisonForm(std::string_view path, NameComparison comparison)
{
    return comparison == NameComparison::caseSensitive ? std::string(path) : Platform::Text::lowercased(path);
}

std::string resolvedPath(const Platform::FileURL& url, const Platform::FileManager& fileManager)
{
    return fileManager.resolvingSymbolicLinks(url).path();
}

bool equalsOrIsInside(std::string_view path, std::string_view parent)
{
    return path == parent || Platform::isPathInside(path, parent);
}

} // namespace CleanerCore
