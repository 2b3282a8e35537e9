#pragma once

#include "Platform/Files/ItemStatus.h"
#include "Platform/Files/ResourceValues.h"

namespace Platform {

/// The values of an item from a look at it. `folderStatus` is the folder that holds it, where that is known.
[[nodiscard]] inline ResourceValues resourceValuesOf(const ItemStatus& status, const ItemStatus* folderStatus)
{
    ResourceValues values;
    values.isDirectory = status.type == FileType::directory;
    values.isRegularFile = status.type == FileType::regular;
    values.isSymbolicLink = status.type == FileType::symbolicLink;
    values.fileSize = status.size;
    values.fileAllocatedSize = status.allocatedSize;
    values.totalFileAllocatedSize = status.allocatedSize;
    values.contentModificationDate = status.modificationDate;
    values.systemFileNumber = status.fileNumber;
    values.systemNumber = status.deviceNumber;
    // Only a folder's device number tells a volume: overlayfs gives files those of its layers (kernel documentation,
    // filesystems/overlayfs). A file that is mounted over shows in the mount number.
    values.isOnOtherVolume = folderStatus != nullptr
        && (status.mountNumber != folderStatus->mountNumber
            || (status.type == FileType::directory && status.deviceNumber != folderStatus->deviceNumber));
    return values;
}

} // namespace Platform
