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
    default:
        return FileErrorKind::unknown;
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
    case FileErrorKind::inputOutput:
        return " because the volume reported a read error";
    case FileErrorKind::tooLarge:
        return " because it is too large";
    case FileErrorKind::corrupt:
        return " because it isn’t in the correct format";
    default:
        return "";
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
    case FileErrorKind::inputOutput:
        return " because the volume reported a write error";
    case FileErrorKind::fileExists:
        return " because a file with the same name already exists";
    case FileErrorKind::outOfSpace:
        return " because the volume is out of space";
    case FileErrorKind::readOnlyVolume:
        return " because the volume is read only";
    case FileErrorKind::tooLarge:
        return " because it is too large";
    default:
        return "";
    }
}

} // namespace

FileError FileError::fromSystemError(int systemError, FileOperation operation, std::string path)
{
    return {.kind = kindOf(systemError), .operation = operation, .path = std::move(path), .systemError = systemError};
}

std::string FileError::localizedDescription() const
{
    const auto name = Text::escapingInvalidUTF8(FileURL(path).lastPathComponent());
    if (operation == FileOperation::read) {
        return fmt::format("The file “{}” couldn’t be opened{}.", name, readFailureCause(kind));
    }
    return fmt::format("The file “{}” couldn’t be saved{}.", name, writeFailureCause(kind));
}

} // namespace Platform
