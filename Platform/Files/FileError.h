#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Platform {

enum class FileErrorKind : std::uint8_t {
    noSuchFile,
    noPermission,
    notDirectory,
    crossesVolume,
    tooManySymbolicLinks,
    nameTooLong,
    tooManyOpenFiles,
    outOfMemory,
    inputOutput,
    fileExists,
    outOfSpace,
    readOnlyVolume,
    tooLarge,
    corrupt,
    /// Not the item that was meant: another one has taken its place.
    itemChanged,
    /// Something else than a regular file.
    notRegularFile,
    /// The item that was meant, but its contents are not the ones that were looked at before.
    contentsChanged,
    /// An item came to lie in the Trash that is not the confirmed one, and its old place is taken by now.
    movedUnconfirmed,
    /// An item was put back that is not the confirmed one, and its name in the Trash is taken by now.
    restoredUnconfirmed,
    /// Another volume is mounted on the item or below it.
    containsMount,
    /// The volume has no Trash that is safe to use.
    noTrash,
    /// The Trash has no readable record of the item, or one that names another place.
    noTrashRecord,
    notSupported,
    unknown,
};

enum class FileOperation : std::uint8_t { read, write, trash, restore, remove };

/// Why an operation on one item failed. Words are made from it only where a person is told.
struct FileError {
    FileErrorKind kind = FileErrorKind::unknown;
    FileOperation operation = FileOperation::read;
    std::string path;
    /// The system's number (errno), 0 when the failure did not come from a system call.
    int systemError = 0;

    static FileError fromSystemError(int systemError, FileOperation operation, std::string path);

    /// A sentence in the manner of Foundation that names the last component of `path`, such as "The file “x” couldn’t
    /// be opened because you don’t have permission to view it.". The text is valid UTF-8 whatever the path holds.
    [[nodiscard]] std::string localizedDescription() const;

    friend bool operator==(const FileError&, const FileError&) = default;
};

} // namespace Platform
