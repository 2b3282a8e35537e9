#pragma once

#include "Platform/Files/DirectoryEnumerator.h"
#include "Platform/Files/FolderHandle.h"
#include "Platform/Files/FolderListing.h"
#include "Platform/Files/FolderTrail.h"

#include <memory>
#include <optional>
#include <string>

namespace Platform {

/// The walk on directory handles: one look an entry, relative to its open folder, and no path until one is asked for.
/// A folder is listed whole before the first of its subfolders is entered, so a walk needs one listing buffer, and a
/// folder is open no longer than there is something left to enter in it.
class PosixDirectoryEnumerator final : public DirectoryEnumerator {
public:
    PosixDirectoryEnumerator(
        std::shared_ptr<const FolderHandle> root, EnumerationOptions options, EnumerationErrorHandler onError);
    /// A walk that only reports why it could not begin.
    PosixDirectoryEnumerator(FileError failure, EnumerationErrorHandler onError);

    bool next() override;
    [[nodiscard]] std::string_view name() const override { return m_entry.name; }
    [[nodiscard]] std::size_t level() const override { return m_trail ? m_trail->depth() : 0; }
    [[nodiscard]] ListedType listedType() const override { return m_entry.type; }
    const std::expected<ResourceValues, FileError>& resourceValues() override;
    [[nodiscard]] FileURL url() const override;
    [[nodiscard]] ItemReference reference() const override;
    void skipDescendants() override { m_skipsDescendants = true; }
    void setContextOfDescendants(std::uint64_t context) override { m_contextOfDescendants = context; }
    [[nodiscard]] std::uint64_t folderContext() const override { return m_trail ? m_trail->context() : 0; }

private:
    [[nodiscard]] DirectoryHint hint() const
    {
        return m_entry.type == ListedType::folder ? DirectoryHint::isFolder : DirectoryHint::isFile;
    }
    void rememberCurrentFolder();
    [[nodiscard]] bool currentIsFolder();
    bool enterNextFolder();
    bool report(const FileURL& url, int systemError);
    bool end();

    std::optional<FolderTrail> m_trail;
    EnumerationOptions m_options;
    EnumerationErrorHandler m_onError;
    std::optional<FileError> m_failure;
    FolderListing::Entry m_entry;
    bool m_hasEntry = false;
    bool m_skipsDescendants = false;
    std::uint64_t m_contextOfDescendants = 0;
    std::optional<std::expected<ResourceValues, FileError>> m_values;
    FolderListing m_listing;
};

} // namespace Platform
