#include "Platform/Linux/TrashFolder.h"

#include "Platform/Files/FolderListing.h"
#include "Platform/Files/MakeFolders.h"
#include "Platform/Files/OpenFolder.h"
#include "Platform/Files/WholeFile.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace Platform {

namespace {

constexpr mode_t kPrivateFolder = 0700;
constexpr mode_t kPrivateFile = 0600;
// A path of the longest kind, every byte encoded, and the other lines.
constexpr std::size_t kMaximumRecordBytes = std::size_t{16} * 1024;
// Tidying takes as long as looking at each record.
constexpr std::chrono::seconds kLongestWait{2};
constexpr std::chrono::milliseconds kPauseBetweenTries{5};

std::string recordName(std::string_view name)
{
    return std::string(name).append(TrashRecord::kSuffix);
}

/// A folder that belongs to this user and that nobody else can write to.
bool isSound(const struct stat& found)
{
    return S_ISDIR(found.st_mode) && found.st_uid == geteuid() && (found.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

int checkOwnership(int folder)
{
    struct stat found{};
    if (fstat(folder, &found) != 0) {
        return errno;
    }
    return isSound(found) ? 0 : EPERM;
}

std::expected<std::set<std::string>, int> namesIn(const FolderHandle& folder)
{
    std::set<std::string> names;
    // An own descriptor has an own position.
    const auto opened = openFolderIn(folder.descriptor(), ".");
    if (!opened) {
        return std::unexpected(opened.error());
    }
    const auto listing = std::make_unique<FolderListing>();
    listing->start(opened->get());
    while (true) {
        const auto entry = listing->next();
        if (!entry) {
            return std::unexpected(entry.error());
        }
        if (!*entry) {
            return names;
        }
        names.emplace((*entry)->name);
    }
}

std::expected<FileDescriptor, int> openOwnFolder(int parent, const char* name, MissingTrash missing)
{
    const bool isNew = missing == MissingTrash::make && mkdirat(parent, name, kPrivateFolder) == 0;
    if (missing == MissingTrash::make && !isNew && errno != EEXIST) {
        return std::unexpected(errno);
    }
    auto folder = openFolderIn(parent, name);
    const int error = folder ? checkOwnership(folder->get()) : folder.error();
    if (error == 0) {
        return folder;
    }
    // Some volumes give what is made on them to somebody else.
    if (isNew) {
        unlinkat(parent, name, AT_REMOVEDIR);
    }
    return std::unexpected(error);
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
    trash->removeLeftovers();
    return trash;
}

TrashFolder::Use::~Use()
{
    if (m_folder) {
        m_folder->endUse();
    }
}

std::expected<TrashFolder::Use, int> TrashFolder::use(std::shared_ptr<const TrashFolder> folder)
{
    if (const int error = folder->beginUse(); error != 0) {
        return std::unexpected(error);
    }
    return Use(std::move(folder));
}

int TrashFolder::beginUse() const
{
    const std::scoped_lock guard(m_usesLock);
    const auto deadline = std::chrono::steady_clock::now() + kLongestWait;
    while (m_uses == 0 && flock(m_info->descriptor(), LOCK_SH | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() > deadline) {
            return errno;
        }
        std::this_thread::sleep_for(kPauseBetweenTries);
    }
    ++m_uses;
    return 0;
}

void TrashFolder::endUse() const
{
    const std::scoped_lock guard(m_usesLock);
    if (--m_uses == 0) {
        flock(m_info->descriptor(), LOCK_UN);
    }
}

bool TrashFolder::isStillInPlace() const
{
    const auto isSame = [](const FolderHandle& folder) {
        struct stat found{};
        return lstat(folder.url().path().c_str(), &found) == 0 && isSound(found)
            && found.st_dev == folder.status().deviceNumber && found.st_ino == folder.status().fileNumber;
    };
    return isSame(*m_files) && isSame(*m_info);
}

int TrashFolder::addRecord(std::string_view name, const FileURL& itemURL) const
{
    TrashRecord record{.path = itemURL.path(), .deletionDate = TrashRecord::now(), .isOurs = true};
    if (m_recordedPathBase) {
        if (!isPathInside(itemURL.path(), m_recordedPathBase->path())) {
            return EXDEV;
        }
        record.path.erase(0, m_recordedPathBase->path().size() + 1);
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
    // Other programs may count from the folder that holds the home's Trash.
    const auto trash = m_files->url().deletingLastPathComponent();
    return m_recordedPathBase.value_or(trash.deletingLastPathComponent()).appending(record->path);
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
void TrashFolder::removeLeftovers() const
{
    if (flock(m_info->descriptor(), LOCK_EX | LOCK_NB) != 0) {
        return;
    }
    std::vector<std::string> unfinished;
    std::vector<std::string> suspects;
    const auto names = namesIn(*m_info);
    for (const auto& name : names.value_or(std::set<std::string>())) {
        if (isUnfinishedFile(name)) {
            unfinished.push_back(name);
        } else if (isLeftoverRecord(name)) {
            suspects.push_back(name);
        }
    }
    for (const auto& name : unfinished) {
        unlinkat(m_info->descriptor(), name.c_str(), 0);
    }
    // A record is the only trace of where its item was: what one look misses must be missing from the listing, too.
    if (const auto items = suspects.empty() ? std::unexpected(0) : namesIn(*m_files)) {
        for (const auto& name : suspects) {
            if (!items->contains(name.substr(0, name.size() - TrashRecord::kSuffix.size()))) {
                unlinkat(m_info->descriptor(), name.c_str(), 0);
            }
        }
    }
    flock(m_info->descriptor(), LOCK_UN);
}

bool TrashFolder::isLeftoverRecord(std::string_view recordName) const
{
    if (!recordName.ends_with(TrashRecord::kSuffix)) {
        return false;
    }
    const std::string itemName(recordName.substr(0, recordName.size() - TrashRecord::kSuffix.size()));
    const auto item = readItemStatus(m_files->descriptor(), itemName.c_str(), StatusDetail::walk);
    if (item || item.error() != ENOENT) {
        return false;
    }
    const auto record = readRecord(std::string(recordName).c_str());
    return record && record->isOurs;
}

} // namespace Platform
