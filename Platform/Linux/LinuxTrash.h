#pragma once

#include "Platform/Files/Trash.h"
#include "Platform/Linux/TrashFolder.h"

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
        std::shared_ptr<TrashFolder> trash;
        std::string name;
    };

    [[nodiscard]] std::expected<Arrival, FileError> moveToTrash(const ItemAnchor& anchor, FileOperation operation);
    [[nodiscard]] std::expected<std::string, int> moveUnderFreeName(
        const FolderHandle& folder, const FileURL& item, const TrashFolder& trash) const;
    [[nodiscard]] std::expected<std::shared_ptr<TrashFolder>, int> trashFor(
        const FolderHandle& folder, MissingTrash missing) const;
    [[nodiscard]] std::shared_ptr<TrashFolder> trashOfFiles(const FolderHandle& folder, const FileURL& files) const;
    [[nodiscard]] bool homeTrashServes(const FolderHandle& folder) const;
    [[nodiscard]] std::expected<std::shared_ptr<TrashFolder>, int> opened(
        const FileURL& trash, const std::optional<FileURL>& recordedPathBase, MissingTrash missing) const;

    const FileManager& m_fileManager;
    FileURL m_dataHome;
    mutable std::mutex m_lock;
    /// The Trashes that were opened, by their path. Guarded by the lock.
    mutable std::map<std::string, std::shared_ptr<TrashFolder>, std::less<>> m_opened;
    /// The Trashes that were written to since the last `settle`.
    std::map<TrashFolder*, std::shared_ptr<TrashFolder>> m_unsettled;
};

} // namespace Platform
