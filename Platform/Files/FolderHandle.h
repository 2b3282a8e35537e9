#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/ItemStatus.h"

#include <mutex>
#include <optional>
#include <string>

namespace Platform {

/// A folder that is held open: names looked up in it cannot be led elsewhere by a change of its path. Immutable, and
/// safe to use from several threads.
class FolderHandle {
public:
    FolderHandle(FileDescriptor descriptor, FileURL url);

    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }
    /// Where the folder was when it was opened.
    [[nodiscard]] const FileURL& url() const { return m_url; }
    /// The folder itself, as it was when it was opened.
    [[nodiscard]] const ItemStatus& status() const { return m_status; }
    /// The identifier of the folder's volume; asked of the system once.
    [[nodiscard]] const std::optional<std::string>& volumeIdentifier() const;

private:
    FileDescriptor m_descriptor;
    FileURL m_url;
    ItemStatus m_status;
    mutable std::once_flag m_volumeIdentifierRead;
    mutable std::optional<std::string> m_volumeIdentifier;
};

} // namespace Platform
