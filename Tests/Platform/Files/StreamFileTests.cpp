#include "Platform/Files/StreamFile.h"

#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <unistd.h>

using Platform::FileURL;
using Platform::openStreamForWriting;
using TestSupport::TemporaryTree;

TEST(StreamFile, OpensADevice)
{
    const auto opened = openStreamForWriting(FileURL("/dev/null"));
    ASSERT_TRUE(opened);
    EXPECT_EQ(write(opened->get(), "x", 1), 1);
}

TEST(StreamFile, OpensADeviceBehindALink)
{
    const TemporaryTree tree("null -> /dev/null");
    EXPECT_TRUE(openStreamForWriting(tree.url("null")));
}

TEST(StreamFile, RefusesWhatIsKept)
{
    const TemporaryTree tree("file text=kept\nfolder/\ndoor socket\nlink -> file");
    for (const char* const name : {"file", "folder", "door", "link"}) {
        const auto opened = openStreamForWriting(tree.url(name));
        ASSERT_FALSE(opened) << name;
        EXPECT_EQ(opened.error().systemError, EINVAL) << name;
    }
    EXPECT_EQ(std::filesystem::file_size(tree.path("file")), 4U);
}

TEST(StreamFile, MakesNothing)
{
    const TemporaryTree tree;
    const auto opened = openStreamForWriting(tree.url("missing"));
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.error().kind, Platform::FileErrorKind::noSuchFile);
    EXPECT_FALSE(std::filesystem::exists(tree.path("missing")));
}
