#pragma once

namespace Platform {

/// Removes the entry `name` of an open folder with all that it holds, links as links and without entering another volume.
/// Gives the system's number, 0 for success; after a failure a part of the tree may be gone. The depth of the tree costs
/// nothing: folders are taken apart one level below the top.
[[nodiscard]] int removeTree(int folderDescriptor, const char* name);

} // namespace Platform
