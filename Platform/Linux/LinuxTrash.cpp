#include "Platform/Linux/LinuxTrash.h"

#include "Platform/Linux/AnchoredFolder.h"
#include "Platform/Linux/TreeRemoval.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <fmt/format.h>
#include <random>
#include <unistd.h>

namespace Platform {

namespace {

// Names are numbered from 2 up; where many are taken, numbers at random find a free one sooner.
constexpr std::size_t kNumberedNames = 8;
constexpr std::size_t kTrashNameAttempts = 64;

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

/// Where an open folder is now; unlike the path that it was opened by, without symbolic links.
std::expected<std::string, int> currentPath(const FolderHandle& folder)
{
    std::array<char, PATH_MAX> path{};
    const auto link = fmt::format("/proc/self/fd/{}", folder.descriptor());
    const auto length = readlink(link.c_str(), path.data(), path.size());
    if (length < 0) {
        return std::unexpected(errno);
    }
    return std::string(path.data(), static_cast<std::size_t>(length));
}

/// Undoes a move to the Trash. Where something else stands by now, the item stays in the Trash with its record.
bool moveBack(const TrashFolder& trash, const std::string& name, const FolderHandle& folder, const FileURL& item)
{
    const std::string itemName(item.lastPathComponent());
    if (moveWithoutReplacing(trash.files()->descriptor(), name, folder.descriptor(), itemName) != 0) {
        return false;
    }
    std::ignore = trash.removeRecord(name);
    return true;
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

/// Why the item must not be moved, whatever the Trash is like.
std::optional<FileError> LinuxTrash::obstacle(
    const std::shared_ptr<const FolderHandle>& folder, const ItemAnchor& anchor, FileOperation operation)
{
    const auto& item = anchor.item;
    const std::string itemName(item.lastPathComponent());
    const auto here = entry(folder, itemName);
    const auto values = m_fileManager.resourceValues(here);
    if (!values) {
        return FileError::fromSystemError(values.error().systemError, operation, item.path());
    }
    if (values->isOnOtherVolume) {
        return errorOfKind(FileErrorKind::crossesVolume, operation, item);
    }
    if (values->isDirectory.value_or(true)) {
        const auto mounts = m_mounts.current();
        const auto path = currentPath(*folder);
        if (!mounts || !path) {
            return FileError::fromSystemError(mounts ? path.error() : mounts.error(), operation, item.path());
        }
        if ((*mounts)->hasMountAtOrBelow(FileURL::entry(*path, itemName, DirectoryHint::isFolder).path())) {
            return errorOfKind(FileErrorKind::containsMount, operation, item);
        }
    }
    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(here))) {
        return errorOfKind(FileErrorKind::itemChanged, operation, item);
    }
    return std::nullopt;
}

std::expected<LinuxTrash::Arrival, FileError> LinuxTrash::moveToTrash(const ItemAnchor& anchor, FileOperation operation)
{
    const auto& item = anchor.item;
    const auto folder = openFolderOfItem(anchor.root, item, operation);
    if (!folder) {
        return std::unexpected(folder.error());
    }
    if (auto error = obstacle(*folder, anchor, operation)) {
        return std::unexpected(*std::move(error));
    }
    const auto trash = trashFor(**folder, MissingTrash::make);
    if (!trash) {
        return std::unexpected(trashError(trash.error(), operation, item));
    }
    auto use = TrashFolder::use(*trash);
    if (!use) {
        return std::unexpected(FileError::fromSystemError(use.error(), operation, item.path()));
    }
    auto name = moveUnderFreeName(**folder, item, **trash);
    if (!name) {
        return std::unexpected(FileError::fromSystemError(name.error(), operation, item.path()));
    }
    noteUnsettled(*trash);
    // Between the look and the move another item may have come to stand under the name.
    if (anchor.isConfirmed(m_fileManager.fingerprintReadings(entry((*trash)->files(), *name)))) {
        return Arrival{*folder, *trash, *std::move(name), *std::move(use)};
    }
    const bool isBack = moveBack(**trash, *name, **folder, item);
    const auto kind = isBack ? FileErrorKind::itemChanged : FileErrorKind::movedUnconfirmed;
    return std::unexpected(errorOfKind(kind, operation, item));
}

/// The record comes first and reserves the name. An item without a record under the same name keeps its place: then the
/// next name is tried.
std::expected<std::string, int> LinuxTrash::moveUnderFreeName(
    const FolderHandle& folder, const FileURL& item, const TrashFolder& trash) const
{
    const std::string itemName(item.lastPathComponent());
    for (std::size_t attempt = 0; attempt < kTrashNameAttempts; ++attempt) {
        auto name = trashedName(itemName, attempt < kNumberedNames ? attempt : std::random_device()());
        const int recordError = trash.addRecord(name, item);
        if (recordError == EEXIST) {
            continue;
        }
        if (recordError != 0) {
            return std::unexpected(recordError);
        }
        const int moveError = moveWithoutReplacing(folder.descriptor(), itemName, trash.files()->descriptor(), name);
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

    const auto use = TrashFolder::use(trash);
    if (!use) {
        return std::unexpected(FileError::fromSystemError(use.error(), operation, destination.path()));
    }
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
    noteUnsettled(trash);
    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(entry(*folder, destinationName)))) {
        const bool isBack = moveWithoutReplacing((*folder)->descriptor(), destinationName, files, name) == 0;
        const auto kind = isBack ? FileErrorKind::itemChanged : FileErrorKind::restoredUnconfirmed;
        return std::unexpected(errorOfKind(kind, operation, destination));
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
    const auto& trash = *arrival->trash;
    if (const int error = removeTree(trash.files()->descriptor(), arrival->name.c_str()); error != 0) {
        std::ignore = moveBack(trash, arrival->name, *arrival->folder, anchor.item);
        return std::unexpected(FileError::fromSystemError(error, FileOperation::remove, anchor.item.path()));
    }
    std::ignore = trash.removeRecord(arrival->name);
    return {};
}

void LinuxTrash::noteUnsettled(const std::shared_ptr<TrashFolder>& trash)
{
    const std::scoped_lock guard(m_lock);
    m_unsettled.emplace(trash.get(), trash);
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
            result =
                std::unexpected(FileError::fromSystemError(error, FileOperation::write, trash->files()->url().path()));
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
            for (const auto& place : placesOnVolume(folder)) {
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
    for (const auto& place : placesOnVolume(folder)) {
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
        return trashURL.path() == home.path() ? opened(home, std::nullopt, MissingTrash::refuse).value_or(nullptr)
                                              : nullptr;
    }
    for (const auto& place : placesOnVolume(folder)) {
        if (place.trash.path() == trashURL.path()) {
            return opened(place.trash, place.topFolder, MissingTrash::refuse).value_or(nullptr);
        }
    }
    return nullptr;
}

std::vector<VolumeTrashPlace> LinuxTrash::placesOnVolume(const FolderHandle& folder) const
{
    const auto mounts = m_mounts.current();
    return mounts ? volumeTrashPlaces(folder, **mounts) : std::vector<VolumeTrashPlace>();
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
