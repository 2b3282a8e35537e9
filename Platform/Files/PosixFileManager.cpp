#include "Platform/Files/PosixFileManager.h"

#include "Platform/Files/AtomicFile.h"
#include "Platform/Files/FolderHandle.h"
#include "Platform/Files/MakeFolders.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/PathResolution.h"
#include "Platform/Files/PosixDirectoryEnumerator.h"
#include "Platform/Files/PosixResourceValues.h"
#include "Platform/Files/RegularFile.h"
#include "Platform/Files/VolumeFacts.h"
#include "Platform/Files/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace Platform {

namespace {

int folderDescriptor(const ItemReference& item)
{
    return item.folder() != nullptr ? item.folder()->descriptor() : AT_FDCWD;
}

FileError readError(const ItemReference& item, int systemError)
{
    return FileError::fromSystemError(systemError, FileOperation::read, item.url().path());
}

std::expected<ItemStatus, FileError> statusOf(const ItemReference& item, StatusDetail detail)
{
    const auto status = readItemStatus(folderDescriptor(item), item.name().c_str(), detail);
    if (!status) {
        return std::unexpected(readError(item, status.error()));
    }
    return *status;
}

ResourceValues valuesOf(const ItemStatus& status, const ItemReference& item)
{
    // Beside its folder, an item shows whether it lies on another volume; a path alone tells only a mount point.
    if (item.folder() != nullptr) {
        return resourceValuesOf(status, &item.folder()->status());
    }
    auto values = resourceValuesOf(status, nullptr);
    values.isOnOtherVolume = status.isMountPoint;
    return values;
}

FileAttributes attributesOf(const ItemStatus& status)
{
    return {
        .type = status.type,
        .systemFileNumber = status.fileNumber,
        .systemNumber = status.deviceNumber,
        .creationDate = status.creationDate,
        .modificationDate = status.modificationDate,
    };
}

/// The identifier of the volume that the item itself lies on; the item is not opened for reading.
std::optional<std::string> volumeIdentifierOf(const ItemReference& item)
{
    if (item.folder() != nullptr) {
        return item.folder()->volumeIdentifier();
    }
    const FileDescriptor descriptor(open(item.name().c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    return descriptor.isOpen() ? volumeIdentifier(descriptor.get()) : std::nullopt;
}

std::expected<FileDescriptor, int> openForListing(const ItemReference& folder)
{
    if (folder.folder() == nullptr) {
        return openFolder(folder.name().c_str());
    }
    return openFolderIn(folder.folder()->descriptor(), folder.name().c_str());
}

} // namespace

Existence PosixFileManager::existence(const FileURL& url) const
{
    struct stat found{};
    if (stat(url.path().c_str(), &found) != 0) {
        return Existence::missing;
    }
    return S_ISDIR(found.st_mode) ? Existence::directory : Existence::file;
}

std::expected<ResourceValues, FileError> PosixFileManager::resourceValues(const ItemReference& item) const
{
    const auto status = statusOf(item, StatusDetail::walk);
    if (!status) {
        return std::unexpected(status.error());
    }
    return valuesOf(*status, item);
}

std::expected<IdentityValues, FileError> PosixFileManager::identityValues(const ItemReference& item) const
{
    return fingerprintReadings(item).identityValues;
}

std::expected<FileAttributes, FileError> PosixFileManager::attributes(const ItemReference& item) const
{
    const auto status = statusOf(item, StatusDetail::whole);
    if (!status) {
        return std::unexpected(status.error());
    }
    return attributesOf(*status);
}

FingerprintReadings PosixFileManager::fingerprintReadings(const ItemReference& item) const
{
    const auto status = statusOf(item, StatusDetail::whole);
    if (!status) {
        return {std::unexpected(status.error()), std::unexpected(status.error())};
    }
    return {
        .identityValues =
            IdentityValues{
                .values = resourceValuesOf(*status, nullptr),
                .fileResourceIdentifier = readFileHandle(folderDescriptor(item), item.name().c_str()),
                .volumeIdentifier = volumeIdentifierOf(item),
            },
        .attributes = attributesOf(*status),
    };
}

bool PosixFileManager::volumeSupportsCaseSensitiveNames(const FileURL& folder) const
{
    const auto descriptor = openFolder(folder.path().c_str());
    return descriptor && tellsNamesApartByCase(descriptor->get());
}

std::unique_ptr<DirectoryEnumerator> PosixFileManager::enumerator(
    const ItemReference& folder, EnumerationOptions options, EnumerationErrorHandler onError) const
{
    auto descriptor = openForListing(folder);
    if (!descriptor) {
        if (descriptor.error() == EACCES || descriptor.error() == EPERM || descriptor.error() == EXDEV) {
            return std::make_unique<PosixDirectoryEnumerator>(
                readError(folder, descriptor.error()), std::move(onError));
        }
        return nullptr;
    }
    auto url = FileURL::folder(folder.url().path());
    auto root = std::make_shared<const FolderHandle>(std::move(*descriptor), std::move(url));
    return std::make_unique<PosixDirectoryEnumerator>(std::move(root), options, std::move(onError));
}

std::expected<std::vector<FileURL>, FileError> PosixFileManager::contentsOfDirectory(const FileURL& folder) const
{
    std::optional<FileError> failure;
    const auto entries =
        enumerator(folder, {.skipsSubdirectoryDescendants = true}, [&](const FileURL&, const FileError& error) {
            failure = error;
            return EnumerationErrorAnswer::stop;
        });
    if (!entries) {
        const auto status = statusOf(folder, StatusDetail::walk);
        return std::unexpected(status ? readError(folder, ENOTDIR) : status.error());
    }
    std::vector<FileURL> contents;
    while (entries->next()) {
        contents.push_back(entries->url());
    }
    if (failure) {
        return std::unexpected(*failure);
    }
    return contents;
}

FileURL PosixFileManager::resolvingSymbolicLinks(const FileURL& url) const
{
    return resolvePath(url);
}

std::expected<void, FileError> PosixFileManager::writeAtomically(std::string_view bytes, const FileURL& url) const
{
    return replaceFile(url, bytes);
}

std::expected<std::string, FileError> PosixFileManager::readFile(const FileURL& url, std::size_t maximumBytes) const
{
    auto bytes = readWholeFile(AT_FDCWD, url.path().c_str(), maximumBytes);
    if (!bytes) {
        return std::unexpected(readError(url, bytes.error()));
    }
    return *std::move(bytes);
}

std::expected<std::unique_ptr<ReadableFile>, FileError> PosixFileManager::openFile(
    const FileURL& url, ReadingPlan plan) const
{
    return openRegularFile(url, plan);
}

std::expected<void, FileError> PosixFileManager::createDirectory(const FileURL& folder) const
{
    if (const int error = makeFolders(folder); error != 0) {
        return std::unexpected(FileError::fromSystemError(error, FileOperation::write, folder.path()));
    }
    return {};
}

std::expected<void, FileError> PosixFileManager::moveItem(const FileURL& source, const FileURL& destination) const
{
    if (renameat2(AT_FDCWD, source.path().c_str(), AT_FDCWD, destination.path().c_str(), RENAME_NOREPLACE) != 0) {
        return std::unexpected(FileError::fromSystemError(errno, FileOperation::write, source.path()));
    }
    return {};
}

} // namespace Platform
