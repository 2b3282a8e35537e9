#include "PlatformDesktop/ShownItem.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>

namespace PlatformDesktop {

using Platform::FileDescriptor;

FileDescriptor holdShownItem(const Platform::FileURL& item, ShownItemKind kind)
{
    const int folderOnly = kind == ShownItemKind::folder ? O_DIRECTORY : 0;
    const FileDescriptor found(open(item.path().c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC | folderOnly));
    struct stat status{};
    if (!found.isOpen() || fstat(found.get(), &status) != 0 || S_ISLNK(status.st_mode)) {
        return {};
    }
    if (kind == ShownItemKind::folder && !S_ISDIR(status.st_mode)) {
        return {};
    }
    // The very same item once more: portals refuse what was opened without following links.
    const auto itself = fmt::format("/proc/self/fd/{}", found.get());
    return FileDescriptor(open(itself.c_str(), O_PATH | O_CLOEXEC | folderOnly));
}

} // namespace PlatformDesktop
