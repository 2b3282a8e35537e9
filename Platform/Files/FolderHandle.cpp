#include "Platform/Files/FolderHandle.h"

#include "Platform/Files/VolumeFacts.h"

namespace Platform {

FolderHandle::FolderHandle(FileDescriptor descriptor, FileURL url)
    : m_descriptor(std::move(descriptor))
    , m_url(std::move(url))
    , m_status(readItemStatus(m_descriptor.get(), "", StatusDetail::walk).value_or(ItemStatus{}))
{
}

const std::optional<std::string>& FolderHandle::volumeIdentifier() const
{
    std::call_once(m_volumeIdentifierRead, [this] { m_volumeIdentifier = Platform::volumeIdentifier(descriptor()); });
    return m_volumeIdentifier;
}

} // namespace Platform
