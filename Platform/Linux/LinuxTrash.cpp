#include "Platform/Linux/LinuxTrash.h"

#include "Platform/Linux/AnchoredFolder.h"
#include "Platform/Linux/MountTable.h"
#include "Platform/Linux/TrashPlaces.h"
#include "Platform/Linux/TreeRemoval.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

// Names are numbered; behind so many taken ones something else is wrong.
constexpr std::size_t kNameAttempts = 10'000;

int moveWithoutReplacing(int fromFolder, const std::string& from, int toFolder, const std::string& to)
{
    return renameat2(fromFolder, from.c_str(), toFolder, to.c_str(), RENAME_NOREPLACE) == 0 ? 0 : errno;
}

FileError errorOfKind(FileErrorKind kind, FileOperation operation, const FileURL& item)
{
    return {.kind = kind, .operation = operation, .path = item.path()};
}

/// The number of the system for an unsafe or impossible Trash becomes the kind that says so.
FileError trashError(int systemError, FileOperation operation, const FileURL& item)
{
    auto error = FileError::fromSystemError(systemError, operation, item.path());
    switch (error.kind) {
    case FileErrorKind::noSuchFile:
    case FileErrorKind::noPermission:
    case FileErrorKind::notDirectory:
    case FileErrorKind::tooManySymbolicLinks:
    case FileErrorKind::crossesVolume:
        error.kind = FileErrorKind::noTrash;
        return error;
    default:
        return error;
    }
}

ItemReference entry(const std::shared_ptr<const FolderHandle>& folder, std::string_view name)
{
    return {folder, name, DirectoryHint::isFile};
}

} // namespace

LinuxTrash::LinuxTrash(const FileManager& fileManager, FileURL dataHome)
    : m_fileManager(fileManager)
    , m_dataHome(std::move(dataHome))
{
}

std::expected<std::optional<FileURL>, FileError> LinuxTrash::trashItem(const ItemAnchor& anchor)
{
    const auto arrival = moveToTrash(anchor, FileOperation::trash);
    if (!arrival) {
        return std::unexpected(arrival.error());
    }
    const auto hint = anchor.item.hasDirectoryPath() ? DirectoryHint::isFolder : DirectoryHint::isFile;
    return arrival->trash->files()->url().child(arrival->name, hint);
}

std::expected<LinuxTrash::Arrival, FileError> LinuxTrash::moveToTrash(const ItemAnchor& anchor, FileOperation operation)
{
    const auto& item = anchor.item;
    const auto folder = openFolderOfItem(anchor.root, item, operation);
    if (!folder) {
        return std::unexpected(folder.error());
    }
    const std::string itemName(item.lastPathComponent());
    const auto here = entry(*folder, itemName);
    if (const auto values = m_fileManager.resourceValues(here)) {
        if (values->isOnOtherVolume) {
            return std::unexpected(errorOfKind(FileErrorKind::crossesVolume, operation, item));
        }
        if (values->isDirectory.value_or(false) && MountTable::read().hasMountAtOrBelow(item.path())) {
            return std::unexpected(errorOfKind(FileErrorKind::containsMount, operation, item));
        }
    }
    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(here))) {
        return std::unexpected(errorOfKind(FileErrorKind::itemChanged, operation, item));
    }
    const auto trash = trashFor(**folder, MissingTrash::make);
    if (!trash) {
        return std::unexpected(trashError(trash.error(), operation, item));
    }

    const TrashFolder::Use use(**trash);
    const auto name = moveUnderFreeName(**folder, item, **trash);
    if (!name) {
        return std::unexpected(FileError::fromSystemError(name.error(), operation, item.path()));
    }
    {
        const std::scoped_lock guard(m_lock);
        m_unsettled.emplace(trash->get(), *trash);
    }
    // Between the look and the move another item may have come to stand under the name.
    if (anchor.isConfirmed(m_fileManager.fingerprintReadings(entry((*trash)->files(), *name)))) {
        return Arrival{*trash, *name};
    }
    const auto& files = *(*trash)->files();
    if (moveWithoutReplacing(files.descriptor(), *name, (*folder)->descriptor(), itemName) != 0) {
        return std::unexpected(errorOfKind(FileErrorKind::movedUnconfirmed, operation, item));
    }
    std::ignore = (*trash)->removeRecord(*name);
    return std::unexpected(errorOfKind(FileErrorKind::itemChanged, operation, item));
}

/// The record comes first and reserves the name. An item without a record under the same name keeps its place: then the
/// next name is tried.
std::expected<std::string, int> LinuxTrash::moveUnderFreeName(
    const FolderHandle& folder, const FileURL& item, const TrashFolder& trash) const
{
    const std::string itemName(item.lastPathComponent());
    for (std::size_t attempt = 0; attempt < kNameAttempts; ++attempt) {
        auto name = trashedName(itemName, attempt);
        const int recordError = trash.addRecord(name, item);
        if (recordError == EEXIST) {
            continue;
        }
        if (recordError != 0) {
            return std::unexpected(recordError);
        }
        const int moveError
            = moveWithoutReplacing(folder.descriptor(), itemName, trash.files()->descriptor(), name);
        if (moveError == 0) {
            return name;
        }
        std::ignore = trash.removeRecord(name);
        if (moveError != EEXIST) {
            return std::unexpected(moveError);
        }
    }
    return std::unexpected(EEXIST);
}

std::expected<void, FileError> LinuxTrash::restoreItem(const RestoreAnchor& anchor)
{
    constexpr auto operation = FileOperation::restore;
    const auto& destination = anchor.destination;
    const auto folder = openFolderOfItem(anchor.root, destination, operation);
    if (!folder) {
        return std::unexpected(folder.error());
    }
    const auto trash = trashOfFiles(**folder, anchor.trashedItem.deletingLastPathComponent());
    if (!trash) {
        return std::unexpected(errorOfKind(FileErrorKind::noTrash, operation, destination));
    }

    const TrashFolder::Use use(*trash);
    const std::string name(anchor.trashedItem.lastPathComponent());
    const std::string destinationName(destination.lastPathComponent());
    const auto recorded = trash->recordedURL(name);
    if (!recorded || recorded->path() != destination.path()) {
        return std::unexpected(errorOfKind(FileErrorKind::noTrashRecord, operation, destination));
    }
    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(entry(trash->files(), name)))) {
        return std::unexpected(errorOfKind(FileErrorKind::itemChanged, operation, destination));
    }
    const int files = trash->files()->descriptor();
    if (const int error = moveWithoutReplacing(files, name, (*folder)->descriptor(), destinationName); error != 0) {
        return std::unexpected(FileError::fromSystemError(error, operation, destination.path()));
    }
    {
        const std::scoped_lock guard(m_lock);
        m_unsettled.emplace(trash.get(), trash);
    }
    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(entry(*folder, destinationName)))) {
        if (moveWithoutReplacing((*folder)->descriptor(), destinationName, files, name) == 0) {
            return std::unexpected(errorOfKind(FileErrorKind::itemChanged, operation, destination));
        }
        return std::unexpected(errorOfKind(FileErrorKind::movedUnconfirmed, operation, destination));
    }
    std::ignore = trash->removeRecord(name);
    return {};
}

/// By way of the Trash: what is removed there is the item that was confirmed, whatever happens at its old place, and an
/// interruption leaves it in the Trash with its record.
std::expected<void, FileError> LinuxTrash::removeItem(const ItemAnchor& anchor)
{
    const auto arrival = moveToTrash(anchor, FileOperation::remove);
    if (!arrival) {
        return std::unexpected(arrival.error());
    }
    const TrashFolder::Use use(*arrival->trash);
    if (const int error = removeTree(arrival->trash->files()->descriptor(), arrival->name.c_str()); error != 0) {
        return std::unexpected(FileError::fromSystemError(error, FileOperation::remove, anchor.item.path()));
    }
    std::ignore = arrival->trash->removeRecord(arrival->name);
    return {};
}

std::expected<void, FileError> LinuxTrash::settle()
{
    std::map<TrashFolder*, std::shared_ptr<TrashFolder>> unsettled;
    {
        const std::scoped_lock guard(m_lock);
        unsettled.swap(m_unsettled);
    }
    std::expected<void, FileError> result;
    for (const auto& [key, trash] : unsettled) {
        if (const int error = trash->synchronise(); error != 0) {
            result = std::unexpected(
                FileError::fromSystemError(error, FileOperation::write, trash->files()->url().path()));
        }
    }
    return result;
}

std::vector<FileURL> LinuxTrash::trashDirectories(const FileURL& url) const
{
    std::vector<FileURL> directories;
    const auto add = [&](const FileURL& trash, const std::optional<FileURL>& base) {
        if (const auto found = opened(trash, base, MissingTrash::refuse)) {
            directories.push_back((*found)->files()->url());
        }
    };
    const auto folderURL = url.deletingLastPathComponent();
    FileDescriptor descriptor(open(folderURL.path().c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (descriptor.isOpen()) {
        const FolderHandle folder(std::move(descriptor), folderURL);
        if (!homeTrashServes(folder)) {
            for (const auto& place : volumeTrashPlaces(folder)) {
                add(place.trash, place.topFolder);
            }
        }
    }
    add(homeTrashURL(m_dataHome), std::nullopt);
    return directories;
}

std::expected<std::shared_ptr<TrashFolder>, int> LinuxTrash::trashFor(
    const FolderHandle& folder, MissingTrash missing) const
{
    if (homeTrashServes(folder)) {
        return opened(homeTrashURL(m_dataHome), std::nullopt, missing);
    }
    int error = EPERM;
    for (const auto& place : volumeTrashPlaces(folder)) {
        auto trash = opened(place.trash, place.topFolder, missing);
        if (trash && (*trash)->mountNumber() == folder.status().mountNumber) {
            return trash;
        }
        error = trash ? EXDEV : trash.error();
    }
    return std::unexpected(error);
}

/// The Trash whose folder of items is `files`, if it is one that an item in `folder` may have been moved to.
std::shared_ptr<TrashFolder> LinuxTrash::trashOfFiles(const FolderHandle& folder, const FileURL& files) const
{
    const auto trashURL = files.deletingLastPathComponent();
    if (files.lastPathComponent() != "files") {
        return nullptr;
    }
    if (homeTrashServes(folder)) {
        const auto home = homeTrashURL(m_dataHome);
        return trashURL.path() == home.path() ? opened(home, std::nullopt, MissingTrash::refuse).value_or(nullptr) : nullptr;
    }
    for (const auto& place : volumeTrashPlaces(folder)) {
        if (place.trash.path() == trashURL.path()) {
            return opened(place.trash, place.topFolder, MissingTrash::refuse).value_or(nullptr);
        }
    }
    return nullptr;
}

/// A rename reaches the home's Trash only within one mount.
bool LinuxTrash::homeTrashServes(const FolderHandle& folder) const
{
    auto place = homeTrashURL(m_dataHome);
    while (true) {
        if (const auto status = readItemStatus(AT_FDCWD, place.path().c_str(), StatusDetail::walk)) {
            return status->mountNumber == folder.status().mountNumber;
        }
        if (place.isRoot()) {
            return false;
        }
        place = place.deletingLastPathComponent();
    }
}

std::expected<std::shared_ptr<TrashFolder>, int> LinuxTrash::opened(
    const FileURL& trash, const std::optional<FileURL>& recordedPathBase, MissingTrash missing) const
{
    const std::scoped_lock guard(m_lock);
    auto& known = m_opened[trash.path()];
    // Somebody may have taken the folder away, or put another in its place, since it was opened.
    if (known && known->isStillInPlace()) {
        return known;
    }
    known.reset();
    auto found = TrashFolder::open(trash, recordedPathBase, missing);
    if (found) {
        known = *found;
    }
    return found;
}

} // namespace Platform
