#pragma once

#include "Platform/Files/Trash.h"
#include "Platform/Linux/MountWatch.h"
#include "Platform/Linux/TrashFolder.h"
#include "Platform/Linux/TrashPlaces.h"

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace Platform {

/// The freedesktop.org Trash (Trash specification 1.0): that of the home for what lies on its volume, that of the volume
/// otherwise. Nothing is ever copied: an item whose volume has no Trash stays where it is, and so does one for whose move
/// the file system has no call that cannot replace.
class LinuxTrash final : public Trash {
public:
    /// The home's Trash is `dataHome`/Trash, `dataHome` being the user's folder for application data.
    LinuxTrash(const FileManager& fileManager, FileURL dataHome);

    [[nodiscard]] std::expected<std::optional<FileURL>, FileError> trashItem(const ItemAnchor& anchor) override;
    [[nodiscard]] std::expected<void, FileError> restoreItem(const RestoreAnchor& anchor) override;
    [[nodiscard]] std::expected<void, FileError> removeItem(const ItemAnchor& anchor) override;
    [[nodiscard]] std::expected<void, FileError> settle() override;
    [[nodiscard]] std::vector<FileURL> trashDirectories(const FileURL& url) const override;

private:
    struct Arrival {
        /// Where the item was.
        std::shared_ptr<const FolderHandle> folder;
        std::shared_ptr<TrashFolder> trash;
        std::string name;
        /// Lasts until what is to follow the move is done.
        TrashFolder::Use use;
    };

    [[nodiscard]] std::expected<Arrival, FileError> moveToTrash(const ItemAnchor& anchor, FileOperation operation);
    [[nodiscard]] std::optional<FileError> obstacle(
        const std::shared_ptr<const FolderHandle>& folder, const ItemAnchor& anchor, FileOperation operation);
    [[nodiscard]] std::expected<std::string, int> moveUnderFreeName(
        const FolderHandle& folder, const FileURL& item, const TrashFolder& trash) const;
    [[nodiscard]] std::expected<std::shared_ptr<TrashFolder>, int> trashFor(
        const FolderHandle& folder, MissingTrash missing) const;
    [[nodiscard]] std::shared_ptr<TrashFolder> trashOfFiles(const FolderHandle& folder, const FileURL& files) const;
    [[nodiscard]] std::vector<VolumeTrashPlace> placesOnVolume(const FolderHandle& folder) const;
    [[nodiscard]] bool homeTrashServes(const FolderHandle& folder) const;
    void noteUnsettled(const std::shared_ptr<TrashFolder>& trash);
    [[nodiscard]] std::expected<std::shared_ptr<TrashFolder>, int> opened(
        const FileURL& trash, const std::optional<FileURL>& recordedPathBase, MissingTrash missing) const;

    const FileManager& m_fileManager;
    FileURL m_dataHome;
    mutable MountWatch m_mounts;
    mutable std::mutex m_lock;
    /// The Trashes that were opened, by their path. Guarded by the lock.
    mutable std::map<std::string, std::shared_ptr<TrashFolder>, std::less<>> m_opened;
    /// The Trashes that were written to since the last `settle`. Guarded by the lock.
    std::map<TrashFolder*, std::shared_ptr<TrashFolder>> m_unsettled;
};

} // namespace Platform
