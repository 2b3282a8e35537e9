#pragma once

#include "Platform/Files/FileManager.h"

namespace TestSupport {

/// Does what `inner` does; a double overrides the calls that it answers otherwise. `inner` must outlive it.
class ForwardingFileManager : public Platform::FileManager {
public:
    explicit ForwardingFileManager(const Platform::FileManager& inner)
        : m_inner(inner)
    {
    }

    [[nodiscard]] Platform::Existence existence(const Platform::FileURL& url) const override
    {
        return m_inner.existence(url);
    }
    [[nodiscard]] std::expected<Platform::ResourceValues, Platform::FileError> resourceValues(
        const Platform::ItemReference& item) const override
    {
        return m_inner.resourceValues(item);
    }
    [[nodiscard]] std::expected<Platform::IdentityValues, Platform::FileError> identityValues(
        const Platform::ItemReference& item) const override
    {
        return m_inner.identityValues(item);
    }
    [[nodiscard]] std::expected<Platform::FileAttributes, Platform::FileError> attributes(
        const Platform::ItemReference& item) const override
    {
        return m_inner.attributes(item);
    }
    [[nodiscard]] bool volumeSupportsCaseSensitiveNames(const Platform::FileURL& folder) const override
    {
        return m_inner.volumeSupportsCaseSensitiveNames(folder);
    }
    [[nodiscard]] std::unique_ptr<Platform::DirectoryEnumerator> enumerator(const Platform::ItemReference& folder,
        Platform::EnumerationOptions options, Platform::EnumerationErrorHandler onError) const override
    {
        return m_inner.enumerator(folder, options, std::move(onError));
    }
    [[nodiscard]] std::expected<std::vector<Platform::FileURL>, Platform::FileError> contentsOfDirectory(
        const Platform::FileURL& folder) const override
    {
        return m_inner.contentsOfDirectory(folder);
    }
    [[nodiscard]] Platform::FileURL resolvingSymbolicLinks(const Platform::FileURL& url) const override
    {
        return m_inner.resolvingSymbolicLinks(url);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> writeAtomically(
        std::string_view bytes, const Platform::FileURL& url) const override
    {
        return m_inner.writeAtomically(bytes, url);
    }
    [[nodiscard]] std::expected<std::string, Platform::FileError> readFile(
        const Platform::FileURL& url, std::size_t maximumBytes) const override
    {
        return m_inner.readFile(url, maximumBytes);
    }
    [[nodiscard]] std::expected<std::unique_ptr<Platform::ReadableFile>, Platform::FileError> openFile(
        const Platform::FileURL& url, Platform::ReadingPlan plan) const override
    {
        return m_inner.openFile(url, plan);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> createDirectory(
        const Platform::FileURL& folder) const override
    {
        return m_inner.createDirectory(folder);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> moveItem(
        const Platform::FileURL& source, const Platform::FileURL& destination) const override
    {
        return m_inner.moveItem(source, destination);
    }

protected:
    [[nodiscard]] const Platform::FileManager& inner() const { return m_inner; }

private:
    const Platform::FileManager& m_inner;
};

} // namespace TestSupport
