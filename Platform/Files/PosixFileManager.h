#pragma once

#include "Platform/Files/FileManager.h"

namespace Platform {

/// The file system of this machine.
class PosixFileManager final : public FileManager {
public:
    [[nodiscard]] Existence existence(const FileURL& url) const override;
    [[nodiscard]] std::expected<ResourceValues, FileError> resourceValues(const ItemReference& item) const override;
    [[nodiscard]] std::expected<IdentityValues, FileError> identityValues(const ItemReference& item) const override;
    [[nodiscard]] std::expected<FileAttributes, FileError> attributes(const ItemReference& item) const override;
    [[nodiscard]] FingerprintReadings fingerprintReadings(const ItemReference& item) const override;
    [[nodiscard]] bool volumeSupportsCaseSensitiveNames(const FileURL& folder) const override;
    [[nodiscard]] std::unique_ptr<DirectoryEnumerator> enumerator(
        const ItemReference& folder, EnumerationOptions options, EnumerationErrorHandler onError) const override;
    [[nodiscard]] std::expected<std::vector<FileURL>, FileError> contentsOfDirectory(
        const FileURL& folder) const override;
    [[nodiscard]] FileURL resolvingSymbolicLinks(const FileURL& url) const override;
    [[nodiscard]] std::expected<void, FileError> writeAtomically(
        std::string_view bytes, const FileURL& url) const override;
    [[nodiscard]] std::expected<std::string, FileError> readFile(
        const FileURL& url, std::size_t maximumBytes) const override;
    [[nodiscard]] std::expected<std::unique_ptr<ReadableFile>, FileError> openFile(
        const FileURL& url, ReadingPlan plan) const override;
    [[nodiscard]] std::expected<void, FileError> createDirectory(const FileURL& folder) const override;
    [[nodiscard]] std::expected<void, FileError> moveItem(
        const FileURL& source, const FileURL& destination) const override;
};

} // namespace Platform
