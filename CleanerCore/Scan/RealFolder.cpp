#include "CleanerCore/Scan/RealFolder.h"

#include "CleanerCore/Safety/ComparisonForm.h"
#include "CleanerCore/Safety/NoTouchPathPolicy.h"

namespace CleanerCore {

bool isRealFolder(const Platform::FileURL& url, const Platform::FileManager& fileManager)
{
    const auto values = fileManager.resourceValues(url);
    return values && values->isDirectory == true && values->isSymbolicLink == false;
}

bool isRealFolderInHome(
    const Platform::FileURL& url, const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager)
{
    const auto isAcceptable = [&](const Platform::FileURL& place) {
        return !NoTouchPathPolicy::isNoTouchPath(place) && equalsOrIsInside(place.path(), homeDirectory.path());
    };
    return isAcceptable(url) && isRealFolder(url, fileManager) && isAcceptable(fileManager.resolvingSymbolicLinks(url));
}

} // namespace CleanerCore
