#pragma once

#include <string>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace TestSupport {

/// A folder held open, closed with its owner. Below 0: it could not be opened, `errno` says why.
class FolderDescriptor {
public:
    FolderDescriptor() = default;
    FolderDescriptor(int base, const std::string& name)
        : m_descriptor(openat(base, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))
    {
    }
    ~FolderDescriptor() { close(); }
    FolderDescriptor(FolderDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FolderDescriptor& operator=(FolderDescriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    FolderDescriptor(const FolderDescriptor&) = delete;
    FolderDescriptor& operator=(const FolderDescriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int get() const { return m_descriptor; }

private:
    void close() const
    {
        if (isOpen()) {
            ::close(m_descriptor);
        }
    }

    int m_descriptor = -1;
};

} // namespace TestSupport
