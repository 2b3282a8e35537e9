#include "Platform/Linux/FileWatch.h"

#include <array>
#include <cstring>
#include <fmt/format.h>
#include <string_view>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

constexpr std::uint32_t kEntryEvents = IN_CLOSE_WRITE | IN_CREATE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_ATTRIB;
constexpr std::uint32_t kFolderIsGone = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;

bool isFolder(const std::string& path)
{
    struct stat found{};
    return stat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

/// The folder that holds `path`; "/" holds itself.
std::string parentOf(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

} // namespace

FileWatch::FileWatch(const FileURL& file)
    : m_folder(file.deletingLastPathComponent().path())
    , m_name(file.lastPathComponent())
    , m_events(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_events.isOpen()) {
        watchNearestFolder();
    }
    if (m_watch < 0) {
        m_events.reset();
    }
}

bool FileWatch::takeChanges()
{
    if (!m_events.isOpen()) {
        return false;
    }
    bool isChanged = false;
    bool isElsewhere = false;
    alignas(inotify_event) std::array<char, 16 * 1024> buffer{};
    while (true) {
        const auto count = ::read(m_events.get(), buffer.data(), buffer.size());
        if (count <= 0) {
            break;
        }
        for (std::size_t offset = 0; offset < static_cast<std::size_t>(count);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + offset, sizeof event);
            const char* const name = buffer.data() + offset + sizeof event;
            offset += sizeof event + event.len;
            const bool isOverflow = (event.mask & IN_Q_OVERFLOW) != 0;
            if (event.wd != m_watch && !isOverflow) {
                continue; // What was on its way from a folder that is no longer watched.
            }
            const bool isGone = (event.mask & kFolderIsGone) != 0;
            const bool isAwaited = event.len > 0 && m_awaitedName == name;
            isChanged |= isGone || isOverflow || isAwaited;
            isElsewhere |= isGone || isOverflow || (isAwaited && m_watchedFolder != m_folder);
        }
    }
    if (isElsewhere) {
        watchNearestFolder();
    }
    return isChanged;
}

void FileWatch::watchNearestFolder()
{
    if (m_watch >= 0) {
        inotify_rm_watch(m_events.get(), m_watch);
        m_watch = -1;
    }
    std::string folder = m_folder;
    std::string name = m_name;
    while (true) {
        if (watch(folder)) {
            m_watchedFolder = folder;
            m_awaitedName = name;
            // What was made before the watch began told nobody.
            const auto next = fmt::format("{}/{}", folder, name);
            if (folder == m_folder || !isFolder(next)) {
                return;
            }
            inotify_rm_watch(m_events.get(), m_watch);
            m_watch = -1;
            folder = m_folder;
            name = m_name;
        } else if (folder == "/") {
            return;
        } else {
            name = folder.substr(folder.rfind('/') + 1);
            folder = parentOf(folder);
        }
    }
}

bool FileWatch::watch(const std::string& folder)
{
    m_watch =
        inotify_add_watch(m_events.get(), folder.c_str(), kEntryEvents | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR);
    return m_watch >= 0;
}

} // namespace Platform
