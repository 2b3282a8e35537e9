#pragma once

#include "Platform/Files/FileDescriptor.h"
#include "Platform/Linux/MountTable.h"

#include <expected>
#include <memory>
#include <mutex>

namespace Platform {

/// The mounts as they are at this moment, read again only when the system says that they have changed: asking costs one
/// short call, whatever the number of mounts. May be used from several threads.
class MountWatch {
public:
    /// The error is the system's number.
    [[nodiscard]] std::expected<std::shared_ptr<const MountTable>, int> current();

private:
    std::mutex m_lock;
    FileDescriptor m_changes;
    std::shared_ptr<const MountTable> m_table;
};

} // namespace Platform
