#include "Platform/Linux/TreeRemoval.h"

#include "Platform/Files/FolderListing.h"
#include "Platform/Files/ItemStatus.h"
#include "Platform/Files/OpenFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace Platform {

namespace {

/// Empties an open folder, from the leaves up. One folder is open at a time.
class FolderEmptying {
public:
    int run(FileDescriptor folder)
    {
        int error = enter(std::move(folder), {});
        while (error == 0 && (m_levels.size() > 1 || !m_levels.back().folders.empty())) {
            error = m_levels.back().folders.empty() ? leave() : enterNext();
        }
        return error;
    }

private:
    /// A folder on the way down.
    struct Level {
        ItemStatus status;
        /// Its name in the one above.
        std::string name;
        /// The folders in it that are still to go.
        std::vector<std::string> folders;
    };

    int enterNext()
    {
        auto name = std::move(m_levels.back().folders.back());
        m_levels.back().folders.pop_back();
        auto folder = openFolderIn(m_current.get(), name.c_str());
        return folder ? enter(*std::move(folder), std::move(name)) : folder.error();
    }

    /// Removes what is no folder, and notes the folders.
    int enter(FileDescriptor folder, std::string name)
    {
        const auto status = readItemStatus(folder.get(), "", StatusDetail::walk);
        if (!status) {
            return status.error();
        }
        m_current = std::move(folder);
        m_levels.push_back({.status = *status, .name = std::move(name), .folders = {}});
        m_listing.start(m_current.get());
        while (true) {
            const auto entry = m_listing.next();
            if (!entry) {
                return entry.error();
            }
            if (!*entry) {
                return 0;
            }
            const std::string entryName((*entry)->name);
            if ((*entry)->type != ListedType::folder && unlinkat(m_current.get(), entryName.c_str(), 0) == 0) {
                continue;
            }
            // Not every file system tells the type of an entry in its listing.
            if ((*entry)->type == ListedType::other || ((*entry)->type == ListedType::unknown && errno != EISDIR)) {
                return errno;
            }
            m_levels.back().folders.push_back(entryName);
        }
    }

    int leave()
    {
        const auto name = std::move(m_levels.back().name);
        m_levels.pop_back();
        auto above = openParentFolder(m_current.get());
        if (!above) {
            return above.error();
        }
        const auto status = readItemStatus(above->get(), "", StatusDetail::walk);
        // Moved away meanwhile, the folder has led out of the tree.
        if (!status || !status->isSamePlace(m_levels.back().status)) {
            return status ? ESTALE : status.error();
        }
        m_current = *std::move(above);
        return unlinkat(m_current.get(), name.c_str(), AT_REMOVEDIR) == 0 ? 0 : errno;
    }

    FileDescriptor m_current;
    std::vector<Level> m_levels;
    FolderListing m_listing;
};

} // namespace

int removeTree(int folderDescriptor, const char* name)
{
    if (unlinkat(folderDescriptor, name, 0) == 0) {
        return 0;
    }
    if (errno != EISDIR) {
        return errno;
    }
    auto folder = openFolderIn(folderDescriptor, name);
    if (!folder) {
        return folder.error();
    }
    const auto emptying = std::make_unique<FolderEmptying>();
    if (const int error = emptying->run(*std::move(folder)); error != 0) {
        return error;
    }
    return unlinkat(folderDescriptor, name, AT_REMOVEDIR) == 0 ? 0 : errno;
}

} // namespace Platform
