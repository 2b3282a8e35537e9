#include "Tests/Support/RootedFileManager.h"

#include <stdexcept>
#include <utility>

namespace TestSupport {

using namespace Platform;

RootedFileManager::RootedFileManager(const FileManager& inner, FileURL root)
    : m_inner(inner)
    , m_root(std::move(root))
{
}

FileURL RootedFileManager::inside(const FileURL& url) const
{
    return FileURL(
        m_root.path() + url.path(), url.hasDirectoryPath() ? DirectoryHint::isFolder : DirectoryHint::isFile);
}

FileURL RootedFileManager::outside(const FileURL& url) const
{
    const auto& path = url.path();
    if (path != m_root.path() && !isPathInside(path, m_root.path())) {
        throw std::logic_error("leads out of the root folder of the test: " + path);
    }
    return FileURL("/" + path.substr(m_root.path().size()),
        url.hasDirectoryPath() ? DirectoryHint::isFolder : DirectoryHint::isFile);
}

ItemReference RootedFileManager::inside(const ItemReference& item) const
{
    return item.folder() == nullptr ? ItemReference(inside(item.url())) : item;
}

Existence RootedFileManager::existence(const FileURL& url) const
{
    return m_inner.existence(inside(url));
}

std::expected<ResourceValues, FileError> RootedFileManager::resourceValues(const ItemReference& item) const
{
    return m_inner.resourceValues(inside(item));
}

std::expected<IdentityValues, FileError> RootedFileManager::identityValues(const ItemReference& item) const
{
    return m_inner.identityValues(inside(item));
}

std::expected<FileAttributes, FileError> RootedFileManager::attributes(const ItemReference& item) const
{
    return m_inner.attributes(inside(item));
}

bool RootedFileManager::volumeSupportsCaseSensitiveNames(const FileURL& folder) const
{
    return m_inner.volumeSupportsCaseSensitiveNames(inside(folder));
}

std::unique_ptr<DirectoryEnumerator> RootedFileManager::enumerator(
    const ItemReference& folder, EnumerationOptions options, EnumerationErrorHandler onError) const
{
    return m_inner.enumerator(inside(folder), options, std::move(onError));
}

std::expected<std::vector<FileURL>, FileError> RootedFileManager::contentsOfDirectory(const FileURL& folder) const
{
    auto contents = m_inner.contentsOfDirectory(inside(folder));
    if (contents) {
        for (auto& url : *contents) {
            url = outside(url);
        }
    }
    return contents;
}

FileURL RootedFileManager::resolvingSymbolicLinks(const FileURL& url) const
{
    return outside(m_inner.resolvingSymbolicLinks(inside(url)));
}

std::expected<void, FileError> RootedFileManager::writeAtomically(std::string_view bytes, const FileURL& url) const
{
    return m_inner.writeAtomically(bytes, inside(url));
}

std::expected<std::string, FileError> RootedFileManager::readFile(const FileURL& url, std::size_t maximumBytes) const
{
    return m_inner.readFile(inside(url), maximumBytes);
}

std::expected<std::unique_ptr<Platform::ReadableFile>, FileError> RootedFileManager::openFile(
    const FileURL& url, Platform::ReadingPlan plan) const
{
    return m_inner.openFile(inside(url), plan);
}

std::expected<void, FileError> RootedFileManager::createDirectory(const FileURL& folder) const
{
    return m_inner.createDirectory(inside(folder));
}

std::expected<void, FileError> RootedFileManager::moveItem(const FileURL& source, const FileURL& destination) const
{
    return m_inner.moveItem(inside(source), inside(destination));
}

} // namespace TestSupport
