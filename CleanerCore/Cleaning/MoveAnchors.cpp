#include "CleanerCore/Cleaning/MoveAnchors.h"

#include <utility>

namespace CleanerCore {

Platform::FolderAnchor folderAnchor(const CleanupEligibilityPolicy::Root& root)
{
    return {
        .url = Platform::FileURL::folder(root.path),
        .systemNumber = root.identity.systemNumber,
        .systemFileNumber = root.identity.fileNumber,
    };
}

Platform::ItemTest isItem(FileResourceIdentity identity)
{
    return [identity = std::move(identity)](const Platform::FingerprintReadings& readings) {
        return FileResourceIdentity::fromReadings(readings) == identity;
    };
}

} // namespace CleanerCore
