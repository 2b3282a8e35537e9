#include "Platform/Files/FileError.h"

#include "Platform/Base/Text.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace Platform {

namespace {

FileErrorKind kindOf(int systemError)
{
    return FileError::fromSystemError(systemError, FileOperation::read, "/a").kind;
}

std::string words(int systemError, FileOperation operation)
{
    return FileError::fromSystemError(systemError, operation, "/home/user/x").localizedDescription();
}

} // namespace

TEST(FileError, NamesTheKindOfASystemError)
{
    EXPECT_EQ(kindOf(ENOENT), FileErrorKind::noSuchFile);
    EXPECT_EQ(kindOf(EACCES), FileErrorKind::noPermission);
    EXPECT_EQ(kindOf(EPERM), FileErrorKind::noPermission);
    EXPECT_EQ(kindOf(ENOTDIR), FileErrorKind::notDirectory);
    EXPECT_EQ(kindOf(EXDEV), FileErrorKind::crossesVolume);
    EXPECT_EQ(kindOf(ELOOP), FileErrorKind::tooManySymbolicLinks);
    EXPECT_EQ(kindOf(ENAMETOOLONG), FileErrorKind::nameTooLong);
    EXPECT_EQ(kindOf(EMFILE), FileErrorKind::tooManyOpenFiles);
    EXPECT_EQ(kindOf(ENFILE), FileErrorKind::tooManyOpenFiles);
    EXPECT_EQ(kindOf(ENOMEM), FileErrorKind::outOfMemory);
    EXPECT_EQ(kindOf(EIO), FileErrorKind::inputOutput);
    EXPECT_EQ(kindOf(EEXIST), FileErrorKind::fileExists);
    EXPECT_EQ(kindOf(ENOTEMPTY), FileErrorKind::fileExists);
    EXPECT_EQ(kindOf(ENOSPC), FileErrorKind::outOfSpace);
    EXPECT_EQ(kindOf(EDQUOT), FileErrorKind::outOfSpace);
    EXPECT_EQ(kindOf(EROFS), FileErrorKind::readOnlyVolume);
    EXPECT_EQ(kindOf(EFBIG), FileErrorKind::tooLarge);
    EXPECT_EQ(kindOf(EOVERFLOW), FileErrorKind::tooLarge);
    EXPECT_EQ(kindOf(EINVAL), FileErrorKind::unknown);
}

TEST(FileError, KeepsWhatTheSystemSaid)
{
    const auto error = FileError::fromSystemError(EIO, FileOperation::write, "/a/b");
    EXPECT_EQ(error.systemError, EIO);
    EXPECT_EQ(error.operation, FileOperation::write);
    EXPECT_EQ(error.path, "/a/b");
}

TEST(FileError, SaysWhyAFileCouldNotBeOpened)
{
    EXPECT_EQ(words(EACCES, FileOperation::read),
        "The file “x” couldn’t be opened because you don’t have permission to view it.");
    EXPECT_EQ(words(ENOENT, FileOperation::read), "The file “x” couldn’t be opened because there is no such file.");
    EXPECT_EQ(words(EINVAL, FileOperation::read), "The file “x” couldn’t be opened.");
    // Only a write can run out of space.
    EXPECT_EQ(words(ENOSPC, FileOperation::read), "The file “x” couldn’t be opened.");
}

TEST(FileError, SaysWhyAFileCouldNotBeSaved)
{
    EXPECT_EQ(words(EACCES, FileOperation::write), "The file “x” couldn’t be saved because you don’t have permission.");
    EXPECT_EQ(words(ENOENT, FileOperation::write), "The file “x” couldn’t be saved because its folder doesn’t exist.");
    EXPECT_EQ(
        words(ENOSPC, FileOperation::write), "The file “x” couldn’t be saved because the volume is out of space.");
    EXPECT_EQ(words(EINVAL, FileOperation::write), "The file “x” couldn’t be saved.");
}

TEST(FileError, GivesEveryKindASentence)
{
    for (int kind = 0; kind <= static_cast<int>(FileErrorKind::unknown); ++kind) {
        for (const auto operation : {FileOperation::read, FileOperation::write}) {
            const auto text = FileError{.kind = static_cast<FileErrorKind>(kind), .operation = operation, .path = "/n"}
                                  .localizedDescription();
            EXPECT_TRUE(text.starts_with("The file “n” couldn’t be "));
            EXPECT_TRUE(text.ends_with("."));
        }
    }
}

TEST(FileError, NamesAFileWhoseNameIsNotUTF8)
{
    const auto text = FileError::fromSystemError(EACCES, FileOperation::read, "/home/caf\xE9").localizedDescription();
    EXPECT_TRUE(Text::isValidUTF8(text));
    EXPECT_TRUE(text.starts_with("The file “caf\\xE9” "));
}

} // namespace Platform
