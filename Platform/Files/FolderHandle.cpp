#include "Platform/Files/FolderHandle.h"

#include "Platform/Files/VolumeFacts.h"

namespace Platform {

const std::optional<std::string>& FolderHandle::volumeIdentifier() const
{
    std::call_once(m_volumeIdentifierRead, [this] { m_volumeIdentifier = Platform::volumeIdentifier(descriptor()); });
    return m_volumeIdentifier;
}

} // namespace Platform
