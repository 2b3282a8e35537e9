#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FolderHandle.h"
#include "Platform/Linux/MountTable.h"

#include <vector>

namespace Platform {

[[nodiscard]] FileURL homeTrashURL(const FileURL& dataHome);

struct VolumeTrashPlace {
    FileURL trash;
    /// What the paths in its records are relative to.
    FileURL topFolder;
};

/// Where the volume of an open folder may have this user's Trash, in the order of the Trash specification 1.0: the place
/// in the shared folder, if that is as the specification demands, then the user's own. None for a bind mount (its top is
/// a folder of somebody's), for the system's own volume, for volumes over a network and where the mount says so.
[[nodiscard]] std::vector<VolumeTrashPlace> volumeTrashPlaces(const FolderHandle& folder, const MountTable& mounts);

} // namespace Platform
