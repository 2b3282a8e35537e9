#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/FolderHandle.h"
#include "Platform/Files/ItemReference.h"
#include "Platform/Files/ItemStatus.h"

#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// The folders between the root of a walk and the one it is listing, each with the names of those of its subfolders
/// that are still to be entered. A few of them are held open; the way back to another leads through "..", and is taken
/// only if it ends in the very same folder.
class FolderTrail {
public:
    explicit FolderTrail(std::shared_ptr<const FolderHandle> root);

    /// The number of folders from the root to the current one, both counted.
    [[nodiscard]] std::size_t depth() const { return m_folders.size(); }
    /// The descriptor of the folder that is being listed.
    [[nodiscard]] int descriptor() const { return descriptorOf(m_folders.back()); }
    [[nodiscard]] std::uint64_t context() const { return m_folders.back().context; }
    /// The path of the folder that is being listed.
    [[nodiscard]] const std::string& path() const { return m_path; }
    /// The device and the mount that the walk must not leave.
    [[nodiscard]] const ItemStatus& rootStatus() const { return m_root->status(); }
    /// The folder that is being listed, to be kept beyond the walk's stay in it.
    [[nodiscard]] std::shared_ptr<const FolderHandle> sharedFolder() const;

    /// A subfolder of the current folder that is to be entered once the current folder has been listed.
    void remember(std::string_view name, std::uint64_t context);

    struct Failure {
        FileURL url;
        int systemError = 0;
    };
    /// Leaves the current folder, which has been listed to its end, for the next one that was remembered: true if there
    /// is one, false at the end. After a failure the walk goes on with another call.
    [[nodiscard]] std::expected<bool, Failure> enterNext();

private:
    struct Folder {
        FileDescriptor descriptor;
        /// Set when the descriptor was given up early: what must be found again.
        std::optional<ItemStatus> closedStatus;
        std::size_t pathLength = 0;
        std::uint64_t context = 0;
        /// Each name between its context's eight bytes and a NUL.
        std::string remembered;
        std::size_t nextRemembered = 0;

        [[nodiscard]] bool hasRemembered() const { return nextRemembered < remembered.size(); }
    };

    [[nodiscard]] int descriptorOf(const Folder& folder) const;
    [[nodiscard]] std::expected<bool, Failure> leaveFinishedFolders();
    [[nodiscard]] std::expected<FileDescriptor, int> climbTo(
        std::size_t index, std::size_t fromIndex, FileDescriptor from) const;
    void giveUpDescriptors(std::size_t keep);
    void keepOpen(std::size_t index, FileDescriptor descriptor);
    FileDescriptor takeDescriptor(std::size_t index);

    std::shared_ptr<const FolderHandle> m_root;
    std::vector<Folder> m_folders;
    /// The indices of the folders whose descriptor is open, ascending; the root has its handle and is never among them.
    std::vector<std::size_t> m_openFolders;
    std::string m_path;
    mutable std::shared_ptr<const FolderHandle> m_shared;
};

} // namespace Platform
