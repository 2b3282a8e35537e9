#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/FolderHandle.h"
#include "Platform/Linux/TrashRecord.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

enum class MissingTrash : std::uint8_t { make, refuse };

/// One Trash: its folder of items, its folder of records, both held open. It has been found to be a real folder that
/// belongs to this user and that nobody else may write to. Errors are numbers of the system; EPERM means that the folder
/// is not safe to use.
class TrashFolder {
public:
    /// The Trash at `folder`, below which nothing may be a link. `recordedPathBase` is what the paths in its records are
    /// relative to; nothing for absolute ones. What a crash of this program left behind in the folder of records is taken away.
    static std::expected<std::shared_ptr<TrashFolder>, int> open(
        const FileURL& folder, std::optional<FileURL> recordedPathBase, MissingTrash missing);

    /// As long as one lives, no other process takes away a record whose item is still on its way.
    class Use {
    public:
        Use(Use&&) noexcept = default;
        Use& operator=(Use&&) = delete;
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;
        ~Use();

    private:
        friend class TrashFolder;
        explicit Use(std::shared_ptr<const TrashFolder> folder)
            : m_folder(std::move(folder))
        {
        }

        std::shared_ptr<const TrashFolder> m_folder;
    };

    /// Waits for a process that is tidying, but not for long: EWOULDBLOCK.
    [[nodiscard]] static std::expected<Use, int> use(std::shared_ptr<const TrashFolder> folder);

    [[nodiscard]] const std::shared_ptr<const FolderHandle>& files() const { return m_files; }
    [[nodiscard]] std::uint64_t mountNumber() const { return m_files->status().mountNumber; }

    /// Whether the path of this Trash still leads to it, and it is still safe to use.
    [[nodiscard]] bool isStillInPlace() const;

    /// Writes the record of the item that is to lie here as `name`. Nothing is ever replaced: EEXIST if the name is taken,
    /// EXDEV for an item whose path does not lead to this volume. The record appears whole or not at all.
    [[nodiscard]] int addRecord(std::string_view name, const FileURL& itemURL) const;
    [[nodiscard]] int removeRecord(std::string_view name) const;
    /// Where the record says that the item was.
    [[nodiscard]] std::expected<FileURL, int> recordedURL(std::string_view name) const;

    /// Brings everything that was moved in this file system to the disk.
    [[nodiscard]] int synchronise() const;

private:
    TrashFolder(std::shared_ptr<const FolderHandle> files, std::shared_ptr<const FolderHandle> info,
        std::optional<FileURL> recordedPathBase);

    [[nodiscard]] int beginUse() const;
    void endUse() const;
    void removeLeftovers() const;
    [[nodiscard]] bool isLeftoverRecord(std::string_view recordName) const;
    [[nodiscard]] std::expected<TrashRecord, int> readRecord(const char* recordName) const;

    std::shared_ptr<const FolderHandle> m_files;
    std::shared_ptr<const FolderHandle> m_info;
    std::optional<FileURL> m_recordedPathBase;
    /// All uses in this process share one lock on the open folder.
    mutable std::mutex m_usesLock;
    mutable std::size_t m_uses = 0;
};

} // namespace Platform
