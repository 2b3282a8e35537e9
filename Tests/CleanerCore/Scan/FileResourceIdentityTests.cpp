#include "CleanerCore/Scan/FileResourceIdentity.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

using Platform::Date;
using Platform::FileAttributes;
using Platform::FileError;
using Platform::FileURL;
using Platform::IdentityValues;
using Platform::ItemReference;

/// Gives one answer to each of the two questions that a capture asks, and counts them; there are no others to answer.
class TwoAnswers final : public TestSupport::ForwardingFileManager {
public:
    TwoAnswers()
        : ForwardingFileManager(m_unused)
    {
    }

    std::expected<IdentityValues, FileError> identity = failure();
    std::expected<FileAttributes, FileError> fileAttributes = failure();
    mutable int identityCalls = 0;
    mutable int attributeCalls = 0;

    static std::unexpected<FileError> failure()
    {
        return std::unexpected(FileError::fromSystemError(EIO, Platform::FileOperation::read, "/a"));
    }

    std::expected<IdentityValues, FileError> identityValues(const ItemReference&) const override
    {
        ++identityCalls;
        return identity;
    }
    std::expected<FileAttributes, FileError> attributes(const ItemReference&) const override
    {
        ++attributeCalls;
        return fileAttributes;
    }

private:
    Platform::PosixFileManager m_unused;
};

IdentityValues someIdentity()
{
    return {
        .values = {.isDirectory = true, .fileSize = 4096, .totalFileAllocatedSize = 8192},
        .fileResourceIdentifier = "0a0b",
        .volumeIdentifier = "vol",
    };
}

FileAttributes someAttributes()
{
    return {.systemFileNumber = 12, .systemNumber = 34, .creationDate = Date{1}, .modificationDate = Date{2}};
}

std::optional<FileResourceIdentity> captured(const TwoAnswers& fileManager)
{
    return FileResourceIdentity::captureIfAvailable(FileURL("/a"), fileManager);
}

} // namespace

TEST(FileResourceIdentity, TakesNineFieldsFromTwoReads)
{
    TwoAnswers fileManager;
    fileManager.identity = someIdentity();
    fileManager.fileAttributes = someAttributes();
    EXPECT_EQ(captured(fileManager),
        (FileResourceIdentity{
            .fileResourceIdentifier = "0a0b",
            .volumeIdentifier = "vol",
            .isDirectory = true,
            .fileSize = 4096,
            .totalFileAllocatedSize = 8192,
            .systemFileNumber = 12,
            .systemNumber = 34,
            .creationDate = Date{1},
            .modificationDate = Date{2},
        }));
    EXPECT_EQ(fileManager.identityCalls, 1);
    EXPECT_EQ(fileManager.attributeCalls, 1);
}

TEST(FileResourceIdentity, LacksOnlyTheFieldsOfAReadThatFails)
{
    TwoAnswers fileManager;
    fileManager.identity = someIdentity();
    const auto withoutAttributes = captured(fileManager);
    ASSERT_TRUE(withoutAttributes);
    EXPECT_EQ(withoutAttributes->fileSize, 4096);
    EXPECT_FALSE(withoutAttributes->systemFileNumber);
    EXPECT_FALSE(withoutAttributes->modificationDate);

    fileManager.identity = TwoAnswers::failure();
    fileManager.fileAttributes = someAttributes();
    const auto withoutValues = captured(fileManager);
    ASSERT_TRUE(withoutValues);
    EXPECT_FALSE(withoutValues->fileSize);
    EXPECT_FALSE(withoutValues->fileResourceIdentifier);
    EXPECT_EQ(withoutValues->systemNumber, 34U);
}

TEST(FileResourceIdentity, IsAbsentWhenNothingCouldBeRead)
{
    TwoAnswers fileManager;
    EXPECT_FALSE(captured(fileManager));
    fileManager.identity = IdentityValues{};
    fileManager.fileAttributes = FileAttributes{};
    EXPECT_FALSE(captured(fileManager));
    fileManager.fileAttributes->creationDate = Date{0};
    EXPECT_TRUE(captured(fileManager));
}

TEST(FileResourceIdentity, EqualsOnlyInAllFields)
{
    TwoAnswers fileManager;
    fileManager.identity = someIdentity();
    fileManager.fileAttributes = someAttributes();
    const auto before = captured(fileManager);
    EXPECT_EQ(captured(fileManager), before);
    fileManager.fileAttributes->modificationDate = Date{3};
    EXPECT_NE(captured(fileManager), before);
    fileManager.fileAttributes->modificationDate.reset();
    EXPECT_NE(captured(fileManager), before);
}

} // namespace CleanerCore
