#include "Platform/Linux/TrashFolder.h"

#include "Platform/Files/FolderListing.h"
#include "Platform/Files/MakeFolders.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace Platform {

namespace {

constexpr mode_t kPrivateFolder = 0700;
constexpr mode_t kPrivateFile = 0600;
// A path of the longest kind, every byte encoded, and the other lines.
constexpr std::size_t kMaximumRecordBytes = std::size_t{16} * 1024;

std::string recordName(std::string_view name)
{
    return std::string(name).append(TrashRecord::kSuffix);
}

/// 0 if the open folder belongs to this user and nobody else can write to it.
int checkOwnership(int folder)
{
    struct stat found {};
    if (fstat(folder, &found) != 0) {
        return errno;
    }
    const bool isSound = S_ISDIR(found.st_mode) && found.st_uid == geteuid() && (found.st_mode & (S_IWGRP | S_IWOTH)) == 0;
    return isSound ? 0 : EPERM;
}

std::expected<FileDescriptor, int> openOwnFolder(int parent, const char* name, MissingTrash missing)
{
    if (missing == MissingTrash::make && mkdirat(parent, name, kPrivateFolder) != 0 && errno != EEXIST) {
        return std::unexpected(errno);
    }
    auto folder = openFolderIn(parent, name);
    if (!folder) {
        return folder;
    }
    if (const int error = checkOwnership(folder->get()); error != 0) {
        return std::unexpected(error);
    }
    return folder;
}

} // namespace

TrashFolder::TrashFolder(std::shared_ptr<const FolderHandle> files, std::shared_ptr<const FolderHandle> info,
    std::optional<FileURL> recordedPathBase)
    : m_files(std::move(files))
    , m_info(std::move(info))
    , m_recordedPathBase(std::move(recordedPathBase))
{
}

std::expected<std::shared_ptr<TrashFolder>, int> TrashFolder::open(
    const FileURL& folder, std::optional<FileURL> recordedPathBase, MissingTrash missing)
{
    const auto parentURL = folder.deletingLastPathComponent();
    if (missing == MissingTrash::make) {
        if (const int error = makeFolders(parentURL); error != 0) {
            return std::unexpected(error);
        }
    }
    const auto parent = openFolder(parentURL.path().c_str());
    if (!parent) {
        return std::unexpected(parent.error());
    }
    const auto top = openOwnFolder(parent->get(), std::string(folder.lastPathComponent()).c_str(), missing);
    if (!top) {
        return std::unexpected(top.error());
    }
    auto files = openOwnFolder(top->get(), "files", missing);
    auto info = openOwnFolder(top->get(), "info", missing);
    if (!files || !info) {
        return std::unexpected(files ? info.error() : files.error());
    }
    const auto hint = DirectoryHint::isFolder;
    std::shared_ptr<TrashFolder> trash(
        new TrashFolder(std::make_shared<const FolderHandle>(std::move(*files), folder.child("files", hint)),
            std::make_shared<const FolderHandle>(std::move(*info), folder.child("info", hint)),
            std::move(recordedPathBase)));
    trash->removeLeftoverRecords();
    return trash;
}

TrashFolder::Use::Use(const TrashFolder& folder)
    : m_descriptor(folder.m_info->descriptor())
{
    flock(m_descriptor, LOCK_SH);
}

TrashFolder::Use::~Use()
{
    flock(m_descriptor, LOCK_UN);
}

bool TrashFolder::isStillInPlace() const
{
    const auto isSame = [](const FolderHandle& folder) {
        const auto status = readItemStatus(AT_FDCWD, folder.url().path().c_str(), StatusDetail::walk);
        return status && status->isSamePlace(folder.status());
    };
    return isSame(*m_files) && isSame(*m_info);
}

int TrashFolder::addRecord(std::string_view name, const FileURL& itemURL) const
{
    TrashRecord record{.path = itemURL.path(), .deletionDate = TrashRecord::now(), .isOurs = true};
    if (m_recordedPathBase) {
        record.path = itemURL.path().substr(m_recordedPathBase->isRoot() ? 1 : m_recordedPathBase->path().size() + 1);
    }
    return addWholeFile(m_info->descriptor(), recordName(name).c_str(), record.text(), kPrivateFile);
}

int TrashFolder::removeRecord(std::string_view name) const
{
    return unlinkat(m_info->descriptor(), recordName(name).c_str(), 0) == 0 ? 0 : errno;
}

std::expected<FileURL, int> TrashFolder::recordedURL(std::string_view name) const
{
    const auto record = readRecord(recordName(name).c_str());
    if (!record) {
        return std::unexpected(record.error());
    }
    if (record->path.starts_with('/')) {
        return FileURL(record->path);
    }
    return m_recordedPathBase ? m_recordedPathBase->appending(record->path) : FileURL(record->path);
}

std::expected<TrashRecord, int> TrashFolder::readRecord(const char* recordName) const
{
    const auto text = readWholeFile(m_info->descriptor(), recordName, kMaximumRecordBytes);
    if (!text) {
        return std::unexpected(text.error());
    }
    auto record = TrashRecord::parse(*text);
    if (!record) {
        return std::unexpected(EINVAL);
    }
    return *std::move(record);
}

int TrashFolder::synchronise() const
{
    return syncfs(m_info->descriptor()) == 0 ? 0 : errno;
}

/// A crash between writing a record and moving its item leaves a record without an item, and so does one between putting
/// an item back and taking its record away. Records of other programs are theirs.
void TrashFolder::removeLeftoverRecords() const
{
    if (flock(m_info->descriptor(), LOCK_EX | LOCK_NB) != 0) {
        return;
    }
    std::vector<std::string> leftover;
    FolderListing listing;
    listing.start(m_info->descriptor());
    for (auto entry = listing.next(); entry && *entry; entry = listing.next()) {
        const auto name = (*entry)->name;
        if (!name.ends_with(TrashRecord::kSuffix)) {
            continue;
        }
        const std::string itemName(name.substr(0, name.size() - TrashRecord::kSuffix.size()));
        struct stat item {};
        if (fstatat(m_files->descriptor(), itemName.c_str(), &item, AT_SYMLINK_NOFOLLOW) == 0 || errno != ENOENT) {
            continue;
        }
        if (const auto record = readRecord(name.data()); record && record->isOurs) {
            leftover.push_back(itemName);
        }
    }
    for (const auto& name : leftover) {
        std::ignore = removeRecord(name);
    }
    flock(m_info->descriptor(), LOCK_UN);
}

} // namespace Platform
