#include "Platform/Linux/TreeRemoval.h"

#include "Platform/Files/FolderListing.h"
#include "Platform/Files/OpenFolder.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace Platform {

namespace {

struct Entries {
    std::vector<std::string> folders;
    std::vector<std::string> others;
};

std::expected<Entries, int> entriesOf(int folder)
{
    const auto listing = std::make_unique<FolderListing>();
    listing->start(folder);
    Entries entries;
    while (true) {
        const auto entry = listing->next();
        if (!entry) {
            return std::unexpected(entry.error());
        }
        if (!*entry) {
            return entries;
        }
        auto& names = (*entry)->type == ListedType::other ? entries.others : entries.folders;
        names.emplace_back((*entry)->name);
    }
}

/// Removes what is no folder, and moves each folder to `top` under a name of its own, to be taken apart there.
int emptyInto(int folder, int top, std::uint64_t& nextNumber)
{
    const auto entries = entriesOf(folder);
    if (!entries) {
        return entries.error();
    }
    for (const auto& name : entries->others) {
        if (unlinkat(folder, name.c_str(), 0) != 0) {
            return errno;
        }
    }
    for (const auto& name : entries->folders) {
        // What the listing does not tell the type of may be no folder after all.
        if (unlinkat(folder, name.c_str(), AT_REMOVEDIR) == 0) {
            continue;
        }
        if (errno == ENOTDIR) {
            if (unlinkat(folder, name.c_str(), 0) != 0) {
                return errno;
            }
            continue;
        }
        if (folder == top) {
            continue;
        }
        int moved = EEXIST;
        while (moved == EEXIST) {
            const auto newName = fmt::format(".{}", nextNumber++);
            moved = renameat2(folder, name.c_str(), top, newName.c_str(), RENAME_NOREPLACE) == 0 ? 0 : errno;
        }
        if (moved != 0) {
            return moved;
        }
    }
    return 0;
}

} // namespace

int removeTree(int folderDescriptor, const char* name)
{
    if (unlinkat(folderDescriptor, name, 0) == 0) {
        return 0;
    }
    if (errno != EISDIR && errno != EPERM) {
        return errno;
    }
    std::uint64_t nextNumber = 0;
    while (true) {
        const auto top = openFolderIn(folderDescriptor, name);
        if (!top) {
            return top.error();
        }
        if (const int error = emptyInto(top->get(), top->get(), nextNumber); error != 0) {
            return error;
        }
        const auto reopened = openFolderIn(folderDescriptor, name);
        const auto remaining = reopened ? entriesOf(reopened->get()) : std::unexpected(reopened.error());
        if (!remaining) {
            return remaining.error();
        }
        if (remaining->folders.empty()) {
            break;
        }
        for (const auto& folderName : remaining->folders) {
            const auto folder = openFolderIn(top->get(), folderName.c_str());
            if (!folder) {
                return folder.error();
            }
            if (const int error = emptyInto(folder->get(), top->get(), nextNumber); error != 0) {
                return error;
            }
            if (unlinkat(top->get(), folderName.c_str(), AT_REMOVEDIR) != 0) {
                return errno;
            }
        }
    }
    return unlinkat(folderDescriptor, name, AT_REMOVEDIR) == 0 ? 0 : errno;
}

} // namespace Platform
