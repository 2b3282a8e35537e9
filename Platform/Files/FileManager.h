#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/DirectoryEnumerator.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/ItemReference.h"
#include "Platform/Files/ReadableFile.h"
#include "Platform/Files/ResourceValues.h"

#include <cstddef>
#include <expected>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

enum class Existence : std::uint8_t { missing, file, directory };

/// The two readings that a fingerprint is made from, each with its own failure.
struct FingerprintReadings {
    std::expected<IdentityValues, FileError> identityValues;
    std::expected<FileAttributes, FileError> attributes;
};

/// The seam to the file system, in the terms of the rules. Reading changes nothing on disk: files are opened only by
/// the two calls that read them, and files and folders are read without touching their access time where the system
/// allows it. Every function may be called from
/// any thread.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// What stands at the path, a symbolic link at its end followed. What cannot be looked at counts as missing.
    [[nodiscard]] virtual Existence existence(const FileURL& url) const = 0;
    [[nodiscard]] bool directoryExists(const FileURL& url) const { return existence(url) == Existence::directory; }

    [[nodiscard]] virtual std::expected<ResourceValues, FileError> resourceValues(const ItemReference& item) const = 0;
    [[nodiscard]] virtual std::expected<IdentityValues, FileError> identityValues(const ItemReference& item) const = 0;
    [[nodiscard]] virtual std::expected<FileAttributes, FileError> attributes(const ItemReference& item) const = 0;
    /// `identityValues` and `attributes` of one item; a file manager may answer both from one look.
    [[nodiscard]] virtual FingerprintReadings fingerprintReadings(const ItemReference& item) const
    {
        return {identityValues(item), attributes(item)};
    }
    /// Whether names in the folder are told apart by case. Not known counts as no.
    [[nodiscard]] virtual bool volumeSupportsCaseSensitiveNames(const FileURL& folder) const = 0;

    /// A walk below `folder`, or nothing if it cannot be opened. A folder that may not be read gives an enumerator
    /// that reports it to `onError` and ends. `onError` is called inside `next`; without one, errors pass in silence.
    [[nodiscard]] virtual std::unique_ptr<DirectoryEnumerator> enumerator(
        const ItemReference& folder, EnumerationOptions options, EnumerationErrorHandler onError) const = 0;

    /// The direct entries of a folder, hidden ones too, in the order of the file system.
    [[nodiscard]] virtual std::expected<std::vector<FileURL>, FileError> contentsOfDirectory(
        const FileURL& folder) const = 0;

    /// The path with every symbolic link in it replaced by what it leads to. Where the tail does not exist or cannot be
    /// looked at, it is kept as it stands behind the resolved rest.
    [[nodiscard]] virtual FileURL resolvingSymbolicLinks(const FileURL& url) const = 0;

    /// Replaces the file at `url`, or makes it, with exactly `bytes`: readers see the old file or the whole new one, and
    /// the new one is on the disk when this returns. On failure the old file stands as it was and nothing is left
    /// beside it. Makes no folder; a symbolic link at `url` is replaced, not followed.
    [[nodiscard]] virtual std::expected<void, FileError> writeAtomically(
        std::string_view bytes, const FileURL& url) const = 0;

    /// The bytes of a regular file. Anything else at the path (a folder, a FIFO, a device) is refused without waiting for
    /// it; more than `maximumBytes` is an error of kind `tooLarge`.
    [[nodiscard]] virtual std::expected<std::string, FileError> readFile(
        const FileURL& url, std::size_t maximumBytes) const = 0;
    /// Opens a regular file, and never anything else, whatever takes its place meanwhile: that is an error of kind
    /// `notRegularFile`. The access time stays where the system allows it.
    [[nodiscard]] virtual std::expected<std::unique_ptr<ReadableFile>, FileError> openFile(
        const FileURL& url, ReadingPlan plan) const = 0;
    /// Makes the folder and those on the way that are missing, each for its user alone (0700). A folder that is there
    /// already is no error, and keeps its permissions.
    [[nodiscard]] virtual std::expected<void, FileError> createDirectory(const FileURL& folder) const = 0;
    /// Gives an item of the application's own another name; what stands at `destination` is never replaced.
    [[nodiscard]] virtual std::expected<void, FileError> moveItem(
        const FileURL& source, const FileURL& destination) const = 0;

protected:
    FileManager() = default;
    FileManager(const FileManager&) = default;
    FileManager& operator=(const FileManager&) = default;
};

} // namespace Platform
