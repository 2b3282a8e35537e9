#include "CleanerCore/Scan/FileResourceIdentity.h"

#include <utility>

namespace CleanerCore {

std::optional<FileResourceIdentity> FileResourceIdentity::captureIfAvailable(
    const Platform::ItemReference& item, const Platform::FileManager& fileManager)
{
    FileResourceIdentity identity;
    auto readings = fileManager.fingerprintReadings(item);
    if (auto& read = readings.identityValues) {
        identity.fileResourceIdentifier = std::move(read->fileResourceIdentifier);
        identity.volumeIdentifier = std::move(read->volumeIdentifier);
        identity.isDirectory = read->values.isDirectory;
        identity.fileSize = read->values.fileSize;
        identity.totalFileAllocatedSize = read->values.totalFileAllocatedSize;
    }
    if (const auto& attributes = readings.attributes) {
        identity.systemFileNumber = attributes->systemFileNumber;
        identity.systemNumber = attributes->systemNumber;
        identity.creationDate = attributes->creationDate;
        identity.modificationDate = attributes->modificationDate;
    }
    if (identity == FileResourceIdentity{}) {
        return std::nullopt;
    }
    return identity;
}

} // namespace CleanerCore
