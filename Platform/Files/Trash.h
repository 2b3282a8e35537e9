#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <vector>

namespace Platform {

/// A folder as it was proved to be: the device and the file number tell it from another one at the same path.
struct FolderAnchor {
    FileURL url;
    std::uint64_t systemNumber = 0;
    std::uint64_t systemFileNumber = 0;
};

/// Whether the item that was looked at is the one that somebody confirmed. Called with what the system says of it at
/// the last moment, through the folder that holds it.
using ItemTest = std::function<bool(const FingerprintReadings&)>;

/// An item that may be moved away: it lies strictly below `root`, and only the item that passes `isConfirmed` is meant,
/// whatever else may stand at the path by now.
struct ItemAnchor {
    FolderAnchor root;
    FileURL item;
    ItemTest isConfirmed;
};

/// An item in the Trash that may go back: it lies directly in the folder of files of one of the Trash folders, and goes
/// to `destination`, strictly below `root`, where nothing may stand.
struct RestoreAnchor {
    FileURL trashedItem;
    ItemTest isConfirmed;
    FolderAnchor root;
    FileURL destination;
};

/// The Trash of the desktop, and the only place that moves or removes items of the user.
///
/// A path is followed anew for no step of a move: the root is opened and compared, the folder that holds the item is
/// opened below it without a link and without another volume on the way, and item and Trash are then named by those
/// open folders. What arrives is looked at again; if it is not the confirmed item it goes back to where it was.
///
/// An error leaves the item where it was, with no trace in the Trash, unless its kind is `movedUnconfirmed` (an item lies
/// in the Trash with a valid record) or `restoredUnconfirmed` (an item stands at the destination). Killed at any point,
/// every item is in exactly one place; what is left of a record without an item goes when the Trash is next used. A
/// Trash may be used from several threads and by several processes.
class Trash {
public:
    virtual ~Trash() = default;

    /// Moves the item to the Trash of its volume. Gives its place there.
    [[nodiscard]] virtual std::expected<std::optional<FileURL>, FileError> trashItem(const ItemAnchor& anchor) = 0;
    /// Moves an item back, never onto another one, and takes its record away. Makes no folder.
    [[nodiscard]] virtual std::expected<void, FileError> restoreItem(const RestoreAnchor& anchor) = 0;
    /// Deletes the item for good, with all that it holds. After a failure some of that may be gone; the rest stands where
    /// it stood, or lies in the Trash if another item has taken the place meanwhile.
    [[nodiscard]] virtual std::expected<void, FileError> removeItem(const ItemAnchor& anchor) = 0;

    /// Brings all moves since the last call to the disk, so that they outlive a loss of power: call it once for a batch,
    /// before its result is told.
    [[nodiscard]] virtual std::expected<void, FileError> settle() = 0;

    /// The folders of files of the Trashes that an item at `url` may lie in or be moved to, the one of its volume first.
    /// Only those that exist and are sound.
    [[nodiscard]] virtual std::vector<FileURL> trashDirectories(const FileURL& url) const = 0;

protected:
    Trash() = default;
    Trash(const Trash&) = default;
    Trash& operator=(const Trash&) = default;
};

} // namespace Platform
