#include "Rigs/NaiveTrash.h"

#include "Platform/Linux/TrashRecord.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Rigs {

namespace {

using Platform::FileError;
using Platform::FileOperation;
using Platform::FileURL;

FileError changed(FileOperation operation, const FileURL& item)
{
    return {.kind = Platform::FileErrorKind::itemChanged, .operation = operation, .path = item.path()};
}

} // namespace

NaiveTrash::NaiveTrash(const Platform::FileManager& fileManager, const FileURL& dataHome)
    : m_fileManager(fileManager)
    , m_trash(dataHome.appending("Trash"))
{
}

std::string NaiveTrash::recordPath(std::string_view name) const
{
    return m_trash.path() + "/info/" + std::string(name) + ".trashinfo";
}

std::expected<std::optional<FileURL>, FileError> NaiveTrash::trashItem(const Platform::ItemAnchor& anchor)
{
    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(anchor.item))) {
        return std::unexpected(changed(FileOperation::trash, anchor.item));
    }
    for (const auto* folder : {"", "/files", "/info"}) {
        mkdir((m_trash.path() + folder).c_str(), 0700);
    }
    const auto name = std::string(anchor.item.lastPathComponent());
    const int record = open(recordPath(name).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    const auto text =
        Platform::TrashRecord{.path = anchor.item.path(), .deletionDate = Platform::TrashRecord::now(), .isOurs = true}
            .text();
    std::ignore = ::write(record, text.data(), text.size());
    close(record);
    const auto place = m_trash.appending("files/" + name);
    std::ignore = std::rename(anchor.item.path().c_str(), place.path().c_str());
    if (!anchor.isConfirmed(m_fileManager.fingerprintReadings(place))) {
        // Whatever stands there by now goes.
        std::ignore = std::rename(place.path().c_str(), anchor.item.path().c_str());
        unlink(recordPath(name).c_str());
    }
    return place;
}

std::expected<void, FileError> NaiveTrash::restoreItem(const Platform::RestoreAnchor& anchor)
{
    struct stat found {};
    if (lstat(anchor.destination.path().c_str(), &found) == 0
        || !anchor.isConfirmed(m_fileManager.fingerprintReadings(anchor.trashedItem))) {
        return std::unexpected(changed(FileOperation::restore, anchor.destination));
    }
    unlink(recordPath(anchor.trashedItem.lastPathComponent()).c_str());
    if (std::rename(anchor.trashedItem.path().c_str(), anchor.destination.path().c_str()) != 0) {
        return std::unexpected(FileError::fromSystemError(errno, FileOperation::restore, anchor.destination.path()));
    }
    return {};
}

std::expected<void, FileError> NaiveTrash::removeItem(const Platform::ItemAnchor& anchor)
{
    return std::unexpected(changed(FileOperation::remove, anchor.item));
}

std::vector<FileURL> NaiveTrash::trashDirectories(const FileURL& /*url*/) const
{
    return {m_trash.appending("files", Platform::DirectoryHint::isFolder)};
}

} // namespace Rigs
