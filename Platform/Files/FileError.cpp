#include "Platform/Files/FileError.h"

#include "Platform/Base/FileURL.h"
#include "Platform/Base/Text.h"

#include <cerrno>
#include <fmt/format.h>

namespace Platform {

namespace {

FileErrorKind kindOf(int systemError)
{
    switch (systemError) {
    case ENOENT:
        return FileErrorKind::noSuchFile;
    case EACCES:
    case EPERM:
        return FileErrorKind::noPermission;
    case ENOTDIR:
        return FileErrorKind::notDirectory;
    case EXDEV:
        return FileErrorKind::crossesVolume;
    case ELOOP:
        return FileErrorKind::tooManySymbolicLinks;
    case ENAMETOOLONG:
        return FileErrorKind::nameTooLong;
    case EMFILE:
    case ENFILE:
        return FileErrorKind::tooManyOpenFiles;
    case ENOMEM:
        return FileErrorKind::outOfMemory;
    case EIO:
        return FileErrorKind::inputOutput;
    case EEXIST:
    case ENOTEMPTY:
        return FileErrorKind::fileExists;
    case ENOSPC:
    case EDQUOT:
        return FileErrorKind::outOfSpace;
    case EROFS:
        return FileErrorKind::readOnlyVolume;
    case EFBIG:
    case EOVERFLOW:
        return FileErrorKind::tooLarge;
    case EBUSY:
        return FileErrorKind::containsMount;
    case ENOSYS:
    case EOPNOTSUPP:
        return FileErrorKind::notSupported;
    default:
        return FileErrorKind::unknown;
    }
}

/// What is the same for every operation.
std::string_view commonCause(FileErrorKind kind)
{
    switch (kind) {
    case FileErrorKind::crossesVolume:
        return " because it is on another volume";
    case FileErrorKind::tooManySymbolicLinks:
        return " because its path leads through a symbolic link";
    case FileErrorKind::nameTooLong:
        return " because its name or path is too long";
    case FileErrorKind::tooManyOpenFiles:
        return " because too many files are open";
    case FileErrorKind::outOfMemory:
        return " because there isn’t enough memory";
    case FileErrorKind::tooLarge:
        return " because it is too large";
    case FileErrorKind::itemChanged:
        return " because another item has taken its place";
    case FileErrorKind::movedUnconfirmed:
        return " because another item had taken its place and is in the Trash now";
    case FileErrorKind::restoredUnconfirmed:
        return " because another item had taken its place in the Trash and was put back in its stead";
    case FileErrorKind::containsMount:
        return " because another volume is mounted inside it";
    case FileErrorKind::noTrash:
        return " because its volume has no Trash that is safe to use";
    case FileErrorKind::noTrashRecord:
        return " because the Trash has no record that says where it was";
    case FileErrorKind::notSupported:
        return " because its volume doesn’t support it";
    default:
        return "";
    }
}

std::string_view readFailureCause(FileErrorKind kind)
{
    switch (kind) {
    case FileErrorKind::noSuchFile:
        return " because there is no such file";
    case FileErrorKind::noPermission:
        return " because you don’t have permission to view it";
    case FileErrorKind::notDirectory:
        return " because it isn’t a folder";
    case FileErrorKind::inputOutput:
        return " because the volume reported a read error";
    case FileErrorKind::corrupt:
        return " because it isn’t in the correct format";
    case FileErrorKind::notRegularFile:
        return " because it isn’t a regular file";
    case FileErrorKind::contentsChanged:
        return " because its contents are changing";
    default:
        return commonCause(kind);
    }
}

std::string_view writeFailureCause(FileErrorKind kind)
{
    switch (kind) {
    case FileErrorKind::noSuchFile:
        return " because its folder doesn’t exist";
    case FileErrorKind::noPermission:
        return " because you don’t have permission";
    case FileErrorKind::notDirectory:
        return " because its parent isn’t a folder";
    case FileErrorKind::inputOutput:
        return " because the volume reported a write error";
    case FileErrorKind::fileExists:
        return " because a file with the same name already exists";
    case FileErrorKind::outOfSpace:
        return " because the volume is out of space";
    case FileErrorKind::readOnlyVolume:
        return " because the volume is read only";
    default:
        return commonCause(kind);
    }
}

std::string_view moveFailureCause(FileErrorKind kind)
{
    return kind == FileErrorKind::noSuchFile ? " because there is no such file" : writeFailureCause(kind);
}

} // namespace

FileError FileError::fromSystemError(int systemError, FileOperation operation, std::string path)
{
    // rename(2): what a file system says that cannot move without replacing.
    const bool isMove = operation != FileOperation::read && operation != FileOperation::write;
    const auto kind = isMove && systemError == EINVAL ? FileErrorKind::notSupported : kindOf(systemError);
    return {.kind = kind, .operation = operation, .path = std::move(path), .systemError = systemError};
}

std::string FileError::localizedDescription() const
{
    const auto name = Text::escapingInvalidUTF8(FileURL(path).lastPathComponent());
    switch (operation) {
    case FileOperation::read:
        return fmt::format("The file “{}” couldn’t be opened{}.", name, readFailureCause(kind));
    case FileOperation::trash:
        return fmt::format("The file “{}” couldn’t be moved to the Trash{}.", name, moveFailureCause(kind));
    case FileOperation::restore:
        return fmt::format("The file “{}” couldn’t be put back{}.", name, moveFailureCause(kind));
    case FileOperation::remove:
        return fmt::format("The file “{}” couldn’t be removed{}.", name, moveFailureCause(kind));
    case FileOperation::write:
        break;
    }
    return fmt::format("The file “{}” couldn’t be saved{}.", name, writeFailureCause(kind));
}

} // namespace Platform
