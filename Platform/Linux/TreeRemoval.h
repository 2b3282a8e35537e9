#pragma once

namespace Platform {

/// Removes the entry `name` of an open folder with all that it holds, links as links and without entering another volume.
/// Gives the system's number, 0 for success. After a failure some of what it held is gone, and the rest stands where it
/// stood. Neither depth nor width of the tree is limited; a folder that is moved away while it is emptied ends the
/// removal.
[[nodiscard]] int removeTree(int folderDescriptor, const char* name);

} // namespace Platform
