#include "Platform/Files/ItemReference.h"

#include "Platform/Files/FolderHandle.h"

namespace Platform {

ItemReference::ItemReference(const FileURL& url)
    : m_name(url.path())
    , m_hint(url.hasDirectoryPath() ? DirectoryHint::isFolder : DirectoryHint::isFile)
{
}

ItemReference::ItemReference(std::shared_ptr<const FolderHandle> folder, std::string_view name, DirectoryHint hint)
    : m_folder(std::move(folder))
    , m_name(name)
    , m_hint(hint)
{
}

FileURL ItemReference::url() const
{
    return m_folder ? m_folder->url().child(m_name, m_hint) : FileURL(m_name, m_hint);
}

} // namespace Platform
