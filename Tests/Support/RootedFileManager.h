#pragma once

#include "Platform/Files/FileManager.h"

namespace TestSupport {

/// A file manager that takes `root` for the root folder, so that a test can have a "/Users" or an "/etc" of its own.
/// Symbolic links must be relative. Items named in an open folder, and what an enumerator tells, keep their real paths.
class RootedFileManager : public Platform::FileManager {
public:
    /// `inner` must outlive this object; no component of `root` is a symbolic link.
    RootedFileManager(const Platform::FileManager& inner, Platform::FileURL root);

    [[nodiscard]] Platform::Existence existence(const Platform::FileURL& url) const override;
    [[nodiscard]] std::expected<Platform::ResourceValues, Platform::FileError> resourceValues(
        const Platform::ItemReference& item) const override;
    [[nodiscard]] std::expected<Platform::IdentityValues, Platform::FileError> identityValues(
        const Platform::ItemReference& item) const override;
    [[nodiscard]] std::expected<Platform::FileAttributes, Platform::FileError> attributes(
        const Platform::ItemReference& item) const override;
    [[nodiscard]] bool volumeSupportsCaseSensitiveNames(const Platform::FileURL& folder) const override;
    [[nodiscard]] std::unique_ptr<Platform::DirectoryEnumerator> enumerator(const Platform::ItemReference& folder,
        Platform::EnumerationOptions options, Platform::EnumerationErrorHandler onError) const override;
    [[nodiscard]] std::expected<std::vector<Platform::FileURL>, Platform::FileError> contentsOfDirectory(
        const Platform::FileURL& folder) const override;
    [[nodiscard]] Platform::FileURL resolvingSymbolicLinks(const Platform::FileURL& url) const override;
    [[nodiscard]] std::expected<void, Platform::FileError> writeAtomically(
        std::string_view bytes, const Platform::FileURL& url) const override;
    [[nodiscard]] std::expected<std::string, Platform::FileError> readFile(
        const Platform::FileURL& url, std::size_t maximumBytes) const override;
    [[nodiscard]] std::expected<std::unique_ptr<Platform::ReadableFile>, Platform::FileError> openFile(
        const Platform::FileURL& url, Platform::ReadingPlan plan) const override;
    [[nodiscard]] std::expected<void, Platform::FileError> createDirectory(
        const Platform::FileURL& folder) const override;
    [[nodiscard]] std::expected<void, Platform::FileError> moveItem(
        const Platform::FileURL& source, const Platform::FileURL& destination) const override;

private:
    [[nodiscard]] Platform::FileURL inside(const Platform::FileURL& url) const;
    [[nodiscard]] Platform::FileURL outside(const Platform::FileURL& url) const;
    [[nodiscard]] Platform::ItemReference inside(const Platform::ItemReference& item) const;

    const Platform::FileManager& m_inner;
    Platform::FileURL m_root;
};

} // namespace TestSupport
