#include "CleanerCore/Safety/CleaningError.h"

#include "Platform/Base/Text.h"

#include <string_view>

namespace CleanerCore {

namespace {

std::string_view sentence(CleaningError::Kind kind)
{
    switch (kind) {
    case CleaningError::Kind::pathNotAllowed:
        return "Path is outside the active scan scope: ";
    case CleaningError::Kind::criticalPath:
        return "Refusing to clean critical path: ";
    case CleaningError::Kind::protectedUserData:
        return "Refusing to clean protected user data path: ";
    case CleaningError::Kind::symbolicLink:
        return "Refusing to clean symbolic link: ";
    case CleaningError::Kind::unreadableAttributes:
        return "Could not verify file attributes safely: ";
    case CleaningError::Kind::cleanupCandidateChanged:
        return "Refusing to clean because the item changed since it was scanned: ";
    case CleaningError::Kind::cleanupCandidateRecentlyModified:
        return "Refusing to clean because the item changed since the scan result: ";
    case CleaningError::Kind::cleanupValidationItemLimitExceeded:
        return "Refusing to clean because validation exceeded the scanned item limit: ";
    case CleaningError::Kind::cleanupPostOperationVerificationFailed:
        return "Could not verify cleanup operation after it completed: ";
    case CleaningError::Kind::restoreDestinationMissing:
        return "Could not restore because the trashed item is missing: ";
    case CleaningError::Kind::restoreDestinationExists:
        return "Could not restore because an item already exists at: ";
    case CleaningError::Kind::missingRestoreSourceIdentity:
        return "Could not restore because the trashed item identity is unavailable: ";
    case CleaningError::Kind::restoreSourceChanged:
        return "Could not restore because the trashed item changed: ";
    case CleaningError::Kind::moveToTrashUnavailable:
        return "Move to Trash is only available on macOS";
    }
    return {};
}

} // namespace

std::string CleaningError::errorDescription() const
{
    std::string description(sentence(kind));
    if (kind != Kind::moveToTrashUnavailable) {
        description += Platform::Text::escapingInvalidUTF8(path);
    }
    return description;
}

} // namespace CleanerCore
