#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileDescriptor.h"

#include <cstdint>
#include <string>

namespace Platform {

/// Notices that a file was written, replaced, made or taken away, by any process (inotify(7) on its folder). While the
/// folder is missing, the nearest one above that is there is watched for the way to it. A folder above the file's own
/// that is renamed goes unnoticed. No thread: whoever owns it polls the descriptor and asks `takeChanges` then. Not to be
/// used from several threads at once.
class FileWatch {
public:
    explicit FileWatch(const FileURL& file);

    /// Readable while there is something to take; -1 where the system has no watch to give, and nothing is noticed.
    [[nodiscard]] int descriptor() const { return m_events.get(); }

    /// Whether the file may have changed since the last call. Never waits.
    [[nodiscard]] bool takeChanges();

private:
    void watchNearestFolder();
    [[nodiscard]] bool watch(const std::string& folder);

    std::string m_folder;
    std::string m_name;
    FileDescriptor m_events;
    /// The folder that is watched, and the entry in it that matters: the file, or the next folder on the way to it.
    std::string m_watchedFolder;
    std::string m_awaitedName;
    int m_watch = -1;
};

} // namespace Platform
