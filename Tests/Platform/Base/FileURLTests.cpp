#include "Platform/Base/FileURL.h"

#include <gtest/gtest.h>

namespace Platform {

namespace {

std::string pathOf(std::string_view text)
{
    return FileURL(text).path();
}

} // namespace

TEST(FileURL, StandardisesItsPath)
{
    EXPECT_EQ(pathOf("/a/b"), "/a/b");
    EXPECT_EQ(pathOf("/a/b/"), "/a/b");
    EXPECT_EQ(pathOf("//a///b//"), "/a/b");
    EXPECT_EQ(pathOf("/a/./b/."), "/a/b");
    EXPECT_EQ(pathOf("/a/x/../b"), "/a/b");
    EXPECT_EQ(pathOf("/a/b/.."), "/a");
    EXPECT_EQ(pathOf("/a/.../..b/c.."), "/a/.../..b/c..");
}

TEST(FileURL, StaysAtTheRoot)
{
    for (const std::string_view text : {"/", "", "//", "/.", "/..", "/../..", "/a/../..", "."}) {
        EXPECT_EQ(pathOf(text), "/") << text;
        EXPECT_TRUE(FileURL(text).isRoot());
        EXPECT_EQ(FileURL(text), FileURL());
    }
    EXPECT_EQ(pathOf("/../a"), "/a");
}

TEST(FileURL, CountsARelativePathFromTheRoot)
{
    EXPECT_EQ(pathOf("a/b"), "/a/b");
    EXPECT_EQ(pathOf("../a"), "/a");
}

TEST(FileURL, KeepsBytesThatAreNotUTF8)
{
    EXPECT_EQ(pathOf("/caf\xE9/\xFF"), "/caf\xE9/\xFF");
}

TEST(FileURL, TellsAFolderByItsHintAlone)
{
    EXPECT_FALSE(FileURL("/a/").hasDirectoryPath());
    EXPECT_TRUE(FileURL::folder("/a").hasDirectoryPath());
    EXPECT_NE(FileURL("/a"), FileURL::folder("/a"));
    EXPECT_TRUE(FileURL("/").hasDirectoryPath());
}

TEST(FileURL, WritesItsTextForm)
{
    EXPECT_EQ(FileURL("/a/b.txt").absoluteString(), "file:///a/b.txt");
    EXPECT_EQ(FileURL::folder("/a/b").absoluteString(), "file:///a/b/");
    EXPECT_EQ(FileURL().absoluteString(), "file:///");
    EXPECT_EQ(FileURL("/a b/100%;#?[é]").absoluteString(), "file:///a%20b/100%25%3B%23%3F%5B%C3%A9%5D");
    EXPECT_EQ(FileURL("/\xFF\n").absoluteString(), "file:///%FF%0A");
}

TEST(FileURL, ReadsBackEveryPath)
{
    std::string everyByte = "/";
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '/') {
            everyByte += static_cast<char>(byte);
        }
    }
    for (const auto& url : {FileURL(everyByte), FileURL::folder(everyByte), FileURL(), FileURL("/%41")}) {
        EXPECT_EQ(FileURL::fromAbsoluteString(url.absoluteString()), url);
    }
}

TEST(FileURL, ReadsWhatOthersWrite)
{
    EXPECT_EQ(FileURL::fromAbsoluteString("file://localhost/a"), FileURL("/a"));
    EXPECT_EQ(FileURL::fromAbsoluteString("file:///a/../b/./c"), FileURL("/b/c"));
    EXPECT_EQ(FileURL::fromAbsoluteString("file:///a%c3%A9"), FileURL("/aé"));
    EXPECT_EQ(FileURL::fromAbsoluteString("file:///a/"), FileURL::folder("/a"));
}

TEST(FileURL, RefusesWhatIsNoFileURL)
{
    for (const std::string_view text : {"", "/a", "file:/a", "http://a/b", "file://host/a", "file://localhost",
             "file://", "file:///a?b", "file:///a#b", "file:///a%", "file:///a%4", "file:///a%4G", "file:///a%00b"}) {
        EXPECT_FALSE(FileURL::fromAbsoluteString(text)) << text;
    }
    EXPECT_FALSE(FileURL::fromAbsoluteString(std::string_view("file:///a\0b", 11)));
}

TEST(FileURL, TakesItsPathApart)
{
    const FileURL url("/a/b/c.tar.gz");
    EXPECT_EQ(url.lastPathComponent(), "c.tar.gz");
    EXPECT_EQ(url.pathExtension(), "gz");
    EXPECT_EQ(url.pathComponents(), (std::vector<std::string_view>{"/", "a", "b", "c.tar.gz"}));
    EXPECT_EQ(FileURL().lastPathComponent(), "/");
    EXPECT_EQ(FileURL().pathComponents(), (std::vector<std::string_view>{"/"}));
}

TEST(FileURL, FindsNoExtensionInAHiddenName)
{
    EXPECT_EQ(FileURL("/a/.bashrc").pathExtension(), "");
    EXPECT_EQ(FileURL("/a/.config.json").pathExtension(), "json");
    EXPECT_EQ(FileURL("/a/b.").pathExtension(), "");
    EXPECT_EQ(FileURL("/a.d/b").pathExtension(), "");
}

TEST(FileURL, GoesUpToItsParent)
{
    EXPECT_EQ(FileURL("/a/b").deletingLastPathComponent(), FileURL::folder("/a"));
    EXPECT_EQ(FileURL("/a").deletingLastPathComponent(), FileURL());
    EXPECT_EQ(FileURL().deletingLastPathComponent(), FileURL());
}

TEST(FileURL, GoesDownToItsChildren)
{
    EXPECT_EQ(FileURL("/a").appending("b/c"), FileURL("/a/b/c"));
    EXPECT_EQ(FileURL("/a").appending("../b"), FileURL("/b"));
    EXPECT_EQ(FileURL().appending("b", DirectoryHint::isFolder), FileURL::folder("/b"));
    EXPECT_EQ(FileURL().child("b", DirectoryHint::isFile), FileURL("/b"));
    EXPECT_EQ(FileURL("/a").child("b", DirectoryHint::isFolder), FileURL::folder("/a/b"));
}

TEST(FileURL, KnowsWhatLiesStrictlyInside)
{
    EXPECT_TRUE(isPathInside("/a/b", "/a"));
    EXPECT_TRUE(isPathInside("/a/b/c", "/a"));
    EXPECT_FALSE(isPathInside("/a", "/a"));
    EXPECT_FALSE(isPathInside("/ab", "/a"));
    EXPECT_FALSE(isPathInside("/A/b", "/a"));
    EXPECT_FALSE(isPathInside("/a", "/"));
}

TEST(FileURL, HashesEqualURLsAlike)
{
    const std::hash<FileURL> hash;
    EXPECT_EQ(hash(FileURL("/a/./b")), hash(FileURL("/a/b")));
    EXPECT_NE(hash(FileURL("/a/b")), hash(FileURL::folder("/a/b")));
}

} // namespace Platform
