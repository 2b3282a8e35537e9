#include "Tests/Support/FakeTrash.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <utility>

namespace TestSupport {

using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileOperation;
using Platform::FileURL;

FakeTrash::FakeTrash(const Platform::FileManager& fileManager, FileURL folder)
    : m_fileManager(fileManager)
    , m_folder(std::move(folder))
{
}

std::expected<void, FileError> FakeTrash::move(
    const FileURL& from, const FileURL& to, const Platform::ItemTest& isConfirmed, FileOperation operation) const
{
    if (!isConfirmed(m_fileManager.fingerprintReadings(from))) {
        return std::unexpected(
            FileError{.kind = FileErrorKind::itemChanged, .operation = operation, .path = from.path()});
    }
    if (behaviour.beforeMove) {
        behaviour.beforeMove();
    }
    if (behaviour.pretends) {
        return {};
    }
    if (renameat2(AT_FDCWD, from.path().c_str(), AT_FDCWD, to.path().c_str(), RENAME_NOREPLACE) != 0) {
        return std::unexpected(FileError::fromSystemError(errno, operation, from.path()));
    }
    if (behaviour.afterMove) {
        behaviour.afterMove();
    }
    return {};
}

std::expected<FileURL, FileError> FakeTrash::take(const Platform::ItemAnchor& anchor, FileOperation operation)
{
    m_itemAnchors.push_back(anchor);
    if (behaviour.failure) {
        return std::unexpected(
            FileError{.kind = *behaviour.failure, .operation = operation, .path = anchor.item.path()});
    }
    auto place = m_folder.child(anchor.item.lastPathComponent(), Platform::DirectoryHint::isFile);
    if (const auto moved = move(anchor.item, place, anchor.isConfirmed, operation); !moved) {
        return std::unexpected(moved.error());
    }
    return place;
}

std::expected<std::optional<FileURL>, FileError> FakeTrash::trashItem(const Platform::ItemAnchor& anchor)
{
    auto place = take(anchor, FileOperation::trash);
    if (!place) {
        return std::unexpected(place.error());
    }
    return behaviour.tellsPlace ? std::optional(*std::move(place)) : std::nullopt;
}

std::expected<void, FileError> FakeTrash::restoreItem(const Platform::RestoreAnchor& anchor)
{
    m_restoreAnchors.push_back(anchor);
    if (behaviour.restoreFailure) {
        return std::unexpected(FileError{
            .kind = *behaviour.restoreFailure, .operation = FileOperation::restore, .path = anchor.destination.path()});
    }
    return move(anchor.trashedItem, anchor.destination, anchor.isConfirmed, FileOperation::restore);
}

std::expected<void, FileError> FakeTrash::removeItem(const Platform::ItemAnchor& anchor)
{
    const auto place = take(anchor, FileOperation::remove);
    if (!place) {
        return std::unexpected(place.error());
    }
    std::filesystem::remove_all(place->path());
    return {};
}

std::expected<void, FileError> FakeTrash::settle()
{
    m_settleCalls.push_back(m_itemAnchors.size() + m_restoreAnchors.size());
    if (behaviour.settleFailure) {
        return std::unexpected(
            FileError{.kind = *behaviour.settleFailure, .operation = FileOperation::write, .path = m_folder.path()});
    }
    return {};
}

std::vector<FileURL> FakeTrash::trashDirectories(const FileURL& /*url*/) const
{
    return {m_folder};
}

} // namespace TestSupport
