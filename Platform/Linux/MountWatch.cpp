#include "Platform/Linux/MountWatch.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>

namespace Platform {

std::expected<std::shared_ptr<const MountTable>, int> MountWatch::current()
{
    const std::scoped_lock guard(m_lock);
    if (!m_changes.isOpen()) {
        m_changes = FileDescriptor(open(MountTable::kOfThisProcess, O_RDONLY | O_CLOEXEC));
        if (!m_changes.isOpen()) {
            return std::unexpected(errno);
        }
    }
    // proc(5): an open table of mounts has something urgent to say after each change, once.
    pollfd changes{.fd = m_changes.get(), .events = POLLPRI, .revents = 0};
    const bool isKnown = m_table != nullptr && poll(&changes, 1, 0) == 0;
    if (!isKnown) {
        m_table = nullptr;
        auto table = MountTable::read();
        if (!table) {
            return std::unexpected(table.error());
        }
        m_table = std::make_shared<const MountTable>(*std::move(table));
    }
    return m_table;
}

} // namespace Platform
