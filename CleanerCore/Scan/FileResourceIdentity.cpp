#include "CleanerCore/Scan/FileResourceIdentity.h"

namespace CleanerCore {

std::optional<FileResourceIdentity> FileResourceIdentity::captureIfAvailable(
    const Platform::ItemReference& item, const Platform::FileManager& fileManager)
{
    return fromReadings(fileManager.fingerprintReadings(item));
}

std::optional<FileResourceIdentity> FileResourceIdentity::fromReadings(const Platform::FingerprintReadings& readings)
{
    FileResourceIdentity identity;
    if (const auto& read = readings.identityValues) {
        identity.fileResourceIdentifier = read->fileResourceIdentifier;
        identity.volumeIdentifier = read->volumeIdentifier;
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
