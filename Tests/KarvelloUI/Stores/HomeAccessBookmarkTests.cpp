#include "KarvelloUI/Stores/HomeAccessBookmark.h"

#include "KarvelloUI/Stores/StoresCoding.h"
#include "Tests/KarvelloUI/Stores/StoresFixture.h"
#include "Tests/Support/FaultyFileManager.h"

#include <cstdio>

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using Platform::FileURL;
using BookmarkErrorKind = HomeAccessBookmarkError::Kind;

class HomeAccessBookmarkTest : public StoresFixture {
protected:
    std::expected<HomeAccessBookmark, FolderAccessError<HomeAccessBookmarkError>> make(
        const FileURL& picked, const FileURL& home) const
    {
        return HomeAccessBookmark::make(picked, home, m_files, m_bookmarks, kNow);
    }

    void expectRefused(const FileURL& picked, const FileURL& home, BookmarkErrorKind kind) const
    {
        const auto made = make(picked, home);
        ASSERT_FALSE(made) << picked.path();
        EXPECT_EQ(
            made.error(), FolderAccessError<HomeAccessBookmarkError>(HomeAccessBookmarkError{kind, picked.path()}));
        EXPECT_GT(m_bookmarks.startCount(), 0);
    }

    bool isStale(const HomeAccessBookmark& bookmark, const FileURL& home) const
    {
        const auto resolved = bookmark.resolve(home, m_files, m_bookmarks);
        EXPECT_TRUE(resolved);
        return resolved && resolved->bookmarkWasStale;
    }

    HomeAccessBookmark homeGrant() const { return make(m_home, m_home).value(); }
};

bool isAllowed(std::string_view path, std::string_view home = "/Users/me")
{
    return HomeAccessBookmark::isAllowedHomeAccessGrant(path, FileURL::folder(home));
}

} // namespace

TEST(HomeAccessGrant, IsTheHomeOrItsLibrary)
{
    for (const std::string_view path : {"/Users/me", "/Users/me/", "/Users/me///", "/Users/./me", "/Users/me/.",
             "/Users/other/../me", "//Users//me", "/../Users/me", "/Users/me/Library", "/Users/me/Library/",
             "/Users/me/./Library/.", "/Users/me/Library/Caches/.."}) {
        EXPECT_TRUE(isAllowed(path)) << path;
    }
}

TEST(HomeAccessGrant, IsNothingElse)
{
    for (const std::string_view path : {"/Users/me/Documents", "/Users", "/", "", "/Users/me2", "/Users/m",
             "/Users/me/library", "/Users/me/Library/Caches", "/users/me", "/Users/me/Libraryx", "/Users/me/..",
             "Users/me", "../Users/me", "./Users/me/Library", "Library"}) {
        EXPECT_FALSE(isAllowed(path)) << path;
    }
}

TEST(HomeAccessGrant, IsNothingForAHomeAtTheRoot)
{
    for (const std::string_view path : {"/", "", "/Library", "//Library", "/Users"}) {
        EXPECT_FALSE(isAllowed(path, "/")) << path;
        EXPECT_FALSE(isAllowed(path, "")) << path;
        EXPECT_FALSE(isAllowed(path, "/a/..")) << path;
    }
}

TEST(HomeAccessGrant, TellsBytesApartThatAreNotUTF8)
{
    EXPECT_TRUE(isAllowed("/Users/m\xFF/Library", "/Users/m\xFF"));
    EXPECT_FALSE(isAllowed("/Users/m\xFE/Library", "/Users/m\xFF"));
}

TEST_F(HomeAccessBookmarkTest, IsMadeForTheHome)
{
    const auto made = make(m_home, m_home);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->fallbackPath, m_home.path());
    EXPECT_EQ(made->effectiveHomeFallbackPath, m_home.path());
    EXPECT_EQ(made->createdAt, kNow);
    EXPECT_EQ(m_bookmarks.resolve(made->bookmarkData)->url, m_home);
    EXPECT_EQ(m_bookmarks.startCount(), 1);
}

TEST_F(HomeAccessBookmarkTest, IsMadeForTheLibraryInTheHome)
{
    const auto made = make(m_tree.url("home/Library/"), m_home);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->fallbackPath, m_tree.path("home/Library"));
    EXPECT_EQ(made->effectiveHomeFallbackPath, m_home.path());
}

TEST_F(HomeAccessBookmarkTest, RefusesAFileAndWhatIsMissing)
{
    expectRefused(m_tree.url("home/file"), m_home, BookmarkErrorKind::notDirectory);
    expectRefused(m_tree.url("home/nothing/"), m_home, BookmarkErrorKind::notDirectory);
}

TEST_F(HomeAccessBookmarkTest, RefusesAnyOtherFolder)
{
    expectRefused(m_tree.url("home/Documents/"), m_home, BookmarkErrorKind::notCurrentUserHome);
    expectRefused(m_tree.root(), m_home, BookmarkErrorKind::notCurrentUserHome);
    expectRefused(FileURL(), FileURL(), BookmarkErrorKind::notCurrentUserHome);
}

TEST_F(HomeAccessBookmarkTest, RefusesALinkInTheHomeThatLeadsToTheHome)
{
    m_tree.add("home/again -> .\nother/\nother/Library -> ../home\nlinked -> home\n");
    expectRefused(m_tree.url("home/again"), m_home, BookmarkErrorKind::notCurrentUserHome);
    expectRefused(m_tree.url("other/Library"), m_tree.url("other/"), BookmarkErrorKind::notCurrentUserHome);
    expectRefused(m_tree.url("linked"), m_tree.url("linked/"), BookmarkErrorKind::notCurrentUserHome);
}

TEST_F(HomeAccessBookmarkTest, RefusesALinkThatLeadsWhereItIsAllowed)
{
    m_tree.add("self/\nself/Library -> ../self\n");
    expectRefused(m_tree.url("self/Library"), m_tree.url("self/"), BookmarkErrorKind::notCurrentUserHome);
}

TEST_F(HomeAccessBookmarkTest, RefusesAHomeBehindALink)
{
    m_tree.add("real/me/\nalias -> real\n");
    expectRefused(m_tree.url("alias/me/"), m_tree.url("alias/me/"), BookmarkErrorKind::notCurrentUserHome);
}

TEST_F(HomeAccessBookmarkTest, RefusesAnotherWayToTheHome)
{
    m_tree.add("alias -> .\n");
    const auto otherWay = m_tree.url("alias/home/");
    expectRefused(otherWay, m_home, BookmarkErrorKind::notCurrentUserHome);
    auto bookmark = homeGrant();
    bookmark.bookmarkData = m_systemBookmarks.create(otherWay).value();
    EXPECT_TRUE(isStale(bookmark, m_home));
}

TEST_F(HomeAccessBookmarkTest, RefusesWhatCannotBeLookedAt)
{
    TestSupport::FaultyFileManager faulty(m_files);
    faulty.fail({.call = TestSupport::FileManagerCall::resourceValues, .systemError = EIO});
    const auto made = HomeAccessBookmark::make(m_home, m_home, faulty, m_bookmarks, kNow);
    ASSERT_FALSE(made);
    EXPECT_EQ(made.error(),
        FolderAccessError<HomeAccessBookmarkError>(
            HomeAccessBookmarkError{BookmarkErrorKind::notCurrentUserHome, m_home.path()}));
    EXPECT_EQ(faulty.failureCount(), 1);
}

TEST_F(HomeAccessBookmarkTest, PassesOnWhyNoBookmarkCouldBeMade)
{
    m_bookmarks.createError = EACCES;
    const auto made = make(m_home, m_home);
    ASSERT_FALSE(made);
    EXPECT_EQ(localizedDescription(made.error()),
        "The file “home” couldn’t be opened because you don’t have permission to view it.");
}

TEST_F(HomeAccessBookmarkTest, IsMadeWhereAccessNeedsNotBeStarted)
{
    m_bookmarks.refusesAccess = true;
    EXPECT_TRUE(make(m_home, m_home));
}

TEST_F(HomeAccessBookmarkTest, ResolvesToWhatWasGranted)
{
    const auto bookmark = homeGrant();
    EXPECT_EQ(bookmark.resolve(m_home, m_files, m_bookmarks),
        (ResolvedHomeAccessBookmark{
            .grantedURL = m_home,
            .effectiveHomeDirectory = m_home,
            .bookmarkWasStale = false,
            .originalBookmark = bookmark,
        }));
}

TEST_F(HomeAccessBookmarkTest, IsStaleIfTheSystemSaysSo)
{
    const auto bookmark = homeGrant();
    m_bookmarks.tellsStale = true;
    EXPECT_TRUE(isStale(bookmark, m_home));
}

TEST_F(HomeAccessBookmarkTest, IsStaleForAnotherHome)
{
    m_tree.add("other/Library/\n");
    EXPECT_TRUE(isStale(homeGrant(), m_tree.url("other/")));
    EXPECT_TRUE(isStale(homeGrant(), m_tree.root()));
    EXPECT_FALSE(isStale(homeGrant(), m_home));
}

TEST_F(HomeAccessBookmarkTest, IsStaleOnceALinkStandsOnTheWay)
{
    // The folder is the same one, but it is no longer where its path says.
    m_tree.add("way/me/\n");
    const auto home = m_tree.url("way/me/");
    const auto bookmark = make(home, home).value();
    ASSERT_EQ(std::rename(m_tree.path("way").c_str(), m_tree.path("turned").c_str()), 0);
    m_tree.add("way -> turned\n");
    ASSERT_FALSE(m_systemBookmarks.resolve(bookmark.bookmarkData)->isStale);
    EXPECT_TRUE(isStale(bookmark, home));
}

TEST_F(HomeAccessBookmarkTest, IsStaleIfItCannotBeLookedAt)
{
    const auto bookmark = homeGrant();
    TestSupport::FaultyFileManager faulty(m_files);
    faulty.fail({.call = TestSupport::FileManagerCall::resourceValues, .systemError = EIO});
    EXPECT_TRUE(bookmark.resolve(m_home, faulty, m_bookmarks)->bookmarkWasStale);
    EXPECT_EQ(faulty.failureCount(), 1);
}

TEST_F(HomeAccessBookmarkTest, PassesOnWhyItCannotBeResolved)
{
    const auto bookmark = homeGrant();
    m_tree.remove("home");
    const auto resolved = bookmark.resolve(m_home, m_files, m_bookmarks);
    ASSERT_FALSE(resolved);
    EXPECT_EQ(resolved.error().kind, Platform::FileErrorKind::noSuchFile);
}

TEST(HomeAccessBookmarkError, HasTheWordsOfItsKindAndThePath)
{
    EXPECT_EQ((HomeAccessBookmarkError{BookmarkErrorKind::notDirectory, "/a\xFF"}.errorDescription()),
        "Selected item is not a folder: /a\\xFF");
    EXPECT_EQ((HomeAccessBookmarkError{BookmarkErrorKind::notCurrentUserHome, "/a"}.errorDescription()),
        "Selected folder is not the current user's home directory or a descendant: /a");
}

TEST(HomeAccessBookmark, OfAnOlderFormHasItsPathForAHome)
{
    const auto read = Platform::decodeJSON<HomeAccessBookmark>(std::string_view(
        R"({"fallbackPath":"/Users/me/Library","bookmarkData":"AAH/","createdAt":12.5,"note":"of a later form"})"));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read,
        (HomeAccessBookmark{
            .fallbackPath = "/Users/me/Library",
            .effectiveHomeFallbackPath = "/Users/me/Library",
            .bookmarkData = {std::string("\x00\x01\xFF", 3)},
            .createdAt = Platform::Date{12.5},
        }));
}

TEST(HomeAccessBookmark, IsStoredUnderTheNamesOfItsFields)
{
    const HomeAccessBookmark bookmark{
        .fallbackPath = "/h/m\xFF/Library",
        .effectiveHomeFallbackPath = "/h/m\xFF",
        .bookmarkData = {"ab"},
        .createdAt = kNow,
    };
    const auto text = Platform::encodeJSON(bookmark);
    EXPECT_EQ(text, R"({
  "bookmarkData" : "YWI=",
  "createdAt" : 800000000,
  "effectiveHomeFallbackPath" : "file:\/\/\/h\/m%FF",
  "fallbackPath" : "file:\/\/\/h\/m%FF\/Library"
})");
    EXPECT_EQ(Platform::decodeJSON<HomeAccessBookmark>(std::string_view(*text)), bookmark);
}

} // namespace KarvelloUI
