#pragma once

#include <cstddef>
#include <expected>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace Platform {

/// Makes the file `name` in the open folder, with all its bytes from the first moment that it can be seen. Never replaces
/// anything. Gives the system's number, 0 for success; after a failure nothing is left. The bytes are not yet synced.
/// Where a file system knows no files without a name, a process that is killed may leave an unfinished file.
[[nodiscard]] int addWholeFile(int folderDescriptor, const char* name, std::string_view bytes, mode_t mode);

/// Whether a file is named as those that a killed process leaves unfinished.
[[nodiscard]] bool isUnfinishedFile(std::string_view name);

/// The bytes of the regular file `name` in the open folder (or at an absolute path). A link, a folder, a FIFO or a device
/// is refused without waiting for it (EINVAL, ELOOP); more than `maximumBytes` is EFBIG.
[[nodiscard]] std::expected<std::string, int> readWholeFile(
    int folderDescriptor, const char* name, std::size_t maximumBytes);

/// Writes all of `bytes`; gives the system's number, 0 for success.
[[nodiscard]] int writeAll(int descriptor, std::string_view bytes);

} // namespace Platform
