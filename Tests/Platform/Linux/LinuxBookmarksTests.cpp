#include "Platform/Linux/LinuxBookmarks.h"

#include "Platform/Linux/FolderBookmark.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/TemporaryTree.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <string_view>
#include <vector>

namespace Platform {

namespace {

class LinuxBookmarksTest : public testing::Test {
protected:
    BookmarkData bookmarkOf(std::string_view path) const
    {
        const auto made = m_bookmarks.create(m_tree.url(path));
        EXPECT_TRUE(made) << path;
        return made.value_or(BookmarkData{});
    }

    FileErrorKind errorOf(const BookmarkData& bookmark) const
    {
        const auto resolved = m_bookmarks.resolve(bookmark);
        EXPECT_FALSE(resolved);
        return resolved ? FileErrorKind::unknown : resolved.error().kind;
    }

    void move(std::string_view from, std::string_view to) const
    {
        ASSERT_EQ(std::rename(m_tree.path(from).c_str(), m_tree.path(to).c_str()), 0);
    }

    TestSupport::TemporaryTree m_tree{"kept/a\nother/b\nfile\nlinked -> kept\n"};
    LinuxBookmarks m_bookmarks;
};

FolderBookmark aFolder()
{
    return {.url = FileURL::folder("/a"), .device = 1, .inode = 2, .fileHandle = "0b", .birthTime = Date{3}};
}

} // namespace

TEST_F(LinuxBookmarksTest, ResolvesToTheFolderThatItWasMadeFor)
{
    const std::string longName(255, 'x');
    m_tree.add("\"a \\xFF\\n\\\" \\xE2\\x80\\xAE\"/\n\"x\"*255/\n");
    for (const auto& name : {std::string("kept"), std::string("a \xFF\n\" \xE2\x80\xAE"), longName}) {
        const auto resolved = m_bookmarks.resolve(bookmarkOf(name));
        ASSERT_TRUE(resolved) << name;
        EXPECT_EQ(*resolved, (ResolvedBookmark{.url = FileURL::folder(m_tree.path(name)), .isStale = false}));
    }
}

TEST_F(LinuxBookmarksTest, StayFreshWhateverHappensInTheFolder)
{
    const auto bookmark = bookmarkOf("kept");
    m_tree.add("kept/new/c\n");
    m_tree.remove("kept/a");
    EXPECT_FALSE(m_bookmarks.resolve(bookmark)->isStale);
}

TEST_F(LinuxBookmarksTest, AreStaleOnceAnotherFolderStandsThere)
{
    const auto bookmark = bookmarkOf("kept");
    move("kept", "elsewhere");
    move("other", "kept");
    const auto resolved = m_bookmarks.resolve(bookmark);
    ASSERT_TRUE(resolved);
    EXPECT_EQ(resolved->url, FileURL::folder(m_tree.path("kept")));
    EXPECT_TRUE(resolved->isStale);
}

TEST_F(LinuxBookmarksTest, AreStaleOnceTheFolderWasMadeAnew)
{
    const auto bookmark = bookmarkOf("kept");
    m_tree.remove("kept");
    m_tree.add("kept/\n");
    const auto resolved = m_bookmarks.resolve(bookmark);
    ASSERT_TRUE(resolved);
    EXPECT_TRUE(resolved->isStale);
}

TEST_F(LinuxBookmarksTest, DoNotFollowAFolderThatWasMoved)
{
    const auto bookmark = bookmarkOf("kept");
    move("kept", "elsewhere");
    EXPECT_EQ(errorOf(bookmark), FileErrorKind::noSuchFile);
    move("elsewhere", "kept");
    EXPECT_FALSE(m_bookmarks.resolve(bookmark)->isStale);
}

TEST_F(LinuxBookmarksTest, AreStaleWhereAFolderOnTheWayLeadsElsewhere)
{
    m_tree.add("way/folder/\nturn/folder/\n");
    const auto bookmark = bookmarkOf("way/folder");
    m_tree.remove("way");
    m_tree.add("way -> turn\n");
    EXPECT_TRUE(m_bookmarks.resolve(bookmark)->isStale);
}

TEST_F(LinuxBookmarksTest, AreForFoldersAlone)
{
    const auto kindOf = [this](std::string_view path) {
        const auto made = m_bookmarks.create(m_tree.url(path));
        return made ? FileErrorKind::unknown : made.error().kind;
    };
    EXPECT_EQ(kindOf("file"), FileErrorKind::notDirectory);
    EXPECT_EQ(kindOf("linked"), FileErrorKind::notDirectory);
    EXPECT_EQ(kindOf("missing"), FileErrorKind::noSuchFile);
    for (const std::string_view successor : {"kept\n", "kept -> other\n"}) {
        const auto bookmark = bookmarkOf("kept");
        m_tree.remove("kept");
        m_tree.add(successor);
        EXPECT_EQ(errorOf(bookmark), FileErrorKind::notDirectory) << successor;
        m_tree.remove("kept");
        m_tree.add("kept/\n");
    }
}

TEST_F(LinuxBookmarksTest, RefusesBytesThatAreNoBookmark)
{
    const auto whole = bookmarkOf("kept").bytes;
    const auto without = [&](std::string_view piece, std::string_view replacement) {
        auto bytes = whole;
        const auto position = bytes.find(piece);
        EXPECT_NE(position, std::string::npos) << piece;
        return bytes.replace(position, piece.size(), replacement);
    };
    const std::vector<std::string> malformed{"", "\xFF", "[]", "{}", whole.substr(0, whole.size() / 2),
        without("\"inode\"", "\"other\""), without("\"device\"", "\"other\""), without("file:", "http:"),
        without("\"inode\" : ", "\"inode\" : -")};
    for (const auto& bytes : malformed) {
        const auto resolved = m_bookmarks.resolve({bytes});
        ASSERT_FALSE(resolved) << bytes;
        EXPECT_EQ(resolved.error().localizedDescription(),
            "The file “bookmark” couldn’t be opened because it isn’t in the correct format.")
            << bytes;
    }
}

TEST_F(LinuxBookmarksTest, StartsAccessToWhatTheUserMayRead)
{
    m_tree.add("locked/ mode=000\n");
    TestSupport::asOrdinaryUser(m_tree.root().path(), [this] {
        EXPECT_TRUE(m_bookmarks.startAccessing(m_tree.url("kept/")));
        m_bookmarks.stopAccessing(m_tree.url("kept/"));
        EXPECT_FALSE(m_bookmarks.startAccessing(m_tree.url("locked/")));
        EXPECT_FALSE(m_bookmarks.startAccessing(m_tree.url("file")));
        EXPECT_FALSE(m_bookmarks.startAccessing(m_tree.url("linked")));
        EXPECT_FALSE(m_bookmarks.startAccessing(m_tree.url("missing/")));
    });
}

TEST(FolderBookmark, TellsFoldersApartByAnyOfTheirMarks)
{
    const auto differs = [](auto change) {
        auto other = aFolder();
        change(other);
        return !other.isSameFolder(aFolder()) && !aFolder().isSameFolder(other);
    };
    EXPECT_TRUE(aFolder().isSameFolder(aFolder()));
    EXPECT_TRUE(differs([](FolderBookmark& other) { other.inode = 9; }));
    EXPECT_TRUE(differs([](FolderBookmark& other) { other.fileHandle = "0c"; }));
    EXPECT_TRUE(differs([](FolderBookmark& other) { other.fileHandle.reset(); }));
    EXPECT_TRUE(differs([](FolderBookmark& other) { other.birthTime = Date{4}; }));
    EXPECT_TRUE(differs([](FolderBookmark& other) { other.birthTime.reset(); }));
}

TEST(FolderBookmark, GoesByTheDeviceOnlyWhereAStrongerMarkIsMissing)
{
    // A volume gets another number whenever it is mounted anew.
    const auto isSameOnOtherDevice = [](FolderBookmark folder) {
        auto other = folder;
        other.device = 7;
        return other.isSameFolder(folder);
    };
    EXPECT_TRUE(isSameOnOtherDevice(aFolder()));
    auto withoutHandle = aFolder();
    withoutHandle.fileHandle.reset();
    EXPECT_TRUE(withoutHandle.isSameFolder(withoutHandle));
    EXPECT_FALSE(isSameOnOtherDevice(withoutHandle));
    auto withoutBirth = aFolder();
    withoutBirth.birthTime.reset();
    EXPECT_TRUE(withoutBirth.isSameFolder(withoutBirth));
    EXPECT_FALSE(isSameOnOtherDevice(withoutBirth));
}

} // namespace Platform
