#include "Platform/Files/FolderListing.h"

#include <cerrno>
#include <cstring>
#include <dirent.h>

namespace Platform {

namespace {

ListedType listedTypeOf(unsigned char type)
{
    if (type == DT_UNKNOWN) {
        return ListedType::unknown;
    }
    return type == DT_DIR ? ListedType::folder : ListedType::other;
}

bool isDotOrDotDot(const char* name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace

void FolderListing::start(int folderDescriptor)
{
    m_descriptor = folderDescriptor;
    m_position = 0;
    m_end = 0;
}

std::expected<bool, int> FolderListing::fill()
{
    if (m_descriptor < 0) {
        return false;
    }
    const auto count = getdents64(m_descriptor, m_buffer.data(), m_buffer.size());
    if (count <= 0) {
        m_descriptor = -1;
        if (count < 0) {
            return std::unexpected(errno);
        }
        return false;
    }
    m_position = 0;
    m_end = static_cast<std::size_t>(count);
    return true;
}

std::expected<std::optional<FolderListing::Entry>, int> FolderListing::next()
{
    while (true) {
        if (m_position >= m_end) {
            const auto filled = fill();
            if (!filled) {
                return std::unexpected(filled.error());
            }
            if (!*filled) {
                return std::nullopt;
            }
        }
        const char* const record = m_buffer.data() + m_position;
        const auto* const entry = reinterpret_cast<const dirent64*>(record);
        m_position += entry->d_reclen;
        if (!isDotOrDotDot(entry->d_name)) {
            return Entry{.name = entry->d_name, .type = listedTypeOf(entry->d_type)};
        }
    }
}

} // namespace Platform
