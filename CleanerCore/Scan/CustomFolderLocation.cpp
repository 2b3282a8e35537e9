#include "CleanerCore/Scan/CustomFolderLocation.h"

#include "CleanerCore/Safety/SafePathPolicy.h"
#include "CleanerCore/Scan/LocationAges.h"
#include "Platform/Base/Text.h"

#include <utility>

namespace CleanerCore {

std::string CustomScanFolderError::errorDescription() const
{
    const auto words = [this]() -> std::string {
        switch (kind) {
        case Kind::notDirectory:
            return "Selected item is not an accessible folder: ";
        case Kind::unsafeRoot:
            return "Selected folder is too broad or protected for cleanup scanning: ";
        }
        return {};
    };
    return words() + Platform::Text::escapingInvalidUTF8(path);
}

std::expected<void, CustomScanFolderError> validateCustomFolder(const Platform::FileURL& url,
    const Platform::FileManager& fileManager, const std::optional<Platform::FileURL>& homeDirectory)
{
    if (!fileManager.directoryExists(url)) {
        return std::unexpected(CustomScanFolderError{CustomScanFolderError::Kind::notDirectory, url.path()});
    }
    if (!SafePathPolicy::validateScanRoot(url, homeDirectory, fileManager)) {
        return std::unexpected(CustomScanFolderError{CustomScanFolderError::Kind::unsafeRoot, url.path()});
    }
    return {};
}

ScanLocation checkedCustomFolderLocation(const Platform::FileURL& url, const std::string& displayName)
{
    return ScanLocation({
        .rootURL = url,
        .category = CleanupCategory::customFolder,
        .displayName = displayName,
        .depth = Platform::allCases<ScanDepth>().front(),
        .isSelectedByDefault = false,
        .safety = CleanupSafety::manualReview,
        .minimumModificationAge = kOneDay,
        .includesHiddenFiles = false,
        .includesPackageDescendants = false,
        .appCacheContext = std::nullopt,
    });
}

std::expected<ScanLocation, CustomScanFolderError> customFolderLocation(const Platform::FileURL& url,
    const std::string& displayName, const Platform::FileManager& fileManager,
    const std::optional<Platform::FileURL>& homeDirectory)
{
    if (auto allowed = validateCustomFolder(url, fileManager, homeDirectory); !allowed) {
        return std::unexpected(std::move(allowed.error()));
    }
    return checkedCustomFolderLocation(url, displayName);
}

} // namespace CleanerCore
