#include "CleanerCore/Cleaning/TrashRoots.h"

#include "CleanerCore/Safety/SafePathPolicy.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/TemporaryTree.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using CleanerCore::CleaningError;
using CleanerCore::NoTouchPathPolicy;
using CleanerCore::NoTouchScope;
using CleanerCore::platformTrashRootURLs;
using CleanerCore::restoreSourceRootURLs;
using CleanerCore::SafePathPolicy;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;

/// A Trash that names the folders that a test gives it.
class TrashOfFolders final : public Platform::Trash {
public:
    explicit TrashOfFolders(std::vector<FileURL> folders)
        : m_folders(std::move(folders))
    {
    }

    [[nodiscard]] std::vector<FileURL> trashDirectories(const FileURL& url) const override
    {
        m_asked = url.path();
        return m_folders;
    }
    [[nodiscard]] const std::string& asked() const { return m_asked; }

    [[nodiscard]] std::expected<std::optional<FileURL>, Platform::FileError> trashItem(
        const Platform::ItemAnchor& /*anchor*/) override
    {
        return std::unexpected(Platform::FileError());
    }
    [[nodiscard]] std::expected<void, Platform::FileError> restoreItem(
        const Platform::RestoreAnchor& /*anchor*/) override
    {
        return std::unexpected(Platform::FileError());
    }
    [[nodiscard]] std::expected<void, Platform::FileError> removeItem(const Platform::ItemAnchor& /*anchor*/) override
    {
        return std::unexpected(Platform::FileError());
    }
    [[nodiscard]] std::expected<void, Platform::FileError> settle() override { return {}; }

private:
    std::vector<FileURL> m_folders;
    mutable std::string m_asked;
};

std::vector<std::string> pathsOf(const std::vector<FileURL>& urls)
{
    std::vector<std::string> paths;
    for (const auto& url : urls) {
        paths.push_back(url.path());
    }
    return paths;
}

class TrashRootsTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> platformRoots(const TrashOfFolders& trash) const
    {
        return pathsOf(platformTrashRootURLs(m_tree.url("home/Caches/a"), trash, m_posix, m_tree.url("home/")));
    }

    TestSupport::TemporaryTree m_tree{"home/"};
    Platform::PosixFileManager m_posix;
};

TEST_F(TrashRootsTest, AreThoseOfTheSystemInItsOrderEachOnce)
{
    const TrashOfFolders trash(
        {FileURL::folder("/volume/.Trash-0/files"), FileURL("/u/Trash/files"), FileURL::folder("/u/Trash/files")});
    EXPECT_THAT(platformRoots(trash), ElementsAre("/volume/.Trash-0/files", "/u/Trash/files"));
    EXPECT_EQ(trash.asked(), m_tree.path("home/Caches/a"));
}

TEST_F(TrashRootsTest, IncludeTheTrashOfICloudDriveLastIfItIsAFolder)
{
    const TrashOfFolders trash({FileURL::folder("/u/Trash/files")});
    const auto ofICloudDrive = m_tree.path("home/Library/Mobile Documents/.Trash");
    m_tree.add("home/Library/\"Mobile Documents\"/.Trash size=1");
    EXPECT_THAT(platformRoots(trash), ElementsAre("/u/Trash/files"));
    m_tree.remove("home/Library/Mobile Documents/.Trash");
    m_tree.add("home/Library/\"Mobile Documents\"/.Trash/");
    EXPECT_THAT(platformRoots(trash), ElementsAre("/u/Trash/files", ofICloudDrive));
    EXPECT_THAT(platformRoots(TrashOfFolders({FileURL(ofICloudDrive)})), ElementsAre(ofICloudDrive));
}

TEST_F(TrashRootsTest, AreThoseOfTheUsersHomeWhereNoneIsGiven)
{
    const auto ofICloudDrive = m_tree.path("home/Library/Mobile Documents/.Trash");
    m_tree.add("home/Library/\"Mobile Documents\"/.Trash/");
    TestSupport::inChildProcess([&] {
        ASSERT_EQ(setenv("HOME", m_tree.path("home").c_str(), 1), 0);
        EXPECT_THAT(
            pathsOf(platformTrashRootURLs(m_tree.url("home/Caches/a"), TrashOfFolders({}), m_posix, std::nullopt)),
            ElementsAre(ofICloudDrive));
    });
}

TEST_F(TrashRootsTest, AreTheGivenOnesAloneEachOnceWhereSomeAreGiven)
{
    const TrashOfFolders trash({FileURL::folder("/u/Trash/files")});
    const std::vector given{FileURL("/b/./c/"), FileURL("/a"), FileURL("/b/c")};
    EXPECT_THAT(pathsOf(restoreSourceRootURLs(FileURL("/u/a"), given, trash, m_posix, m_tree.url("home/"))),
        ElementsAre("/b/c", "/a"));
    EXPECT_THAT(
        restoreSourceRootURLs(FileURL("/u/a"), std::vector<FileURL>(), trash, m_posix, m_tree.url("home/")), IsEmpty());
    EXPECT_THAT(pathsOf(restoreSourceRootURLs(FileURL("/u/a"), std::nullopt, trash, m_posix, m_tree.url("home/"))),
        ElementsAre("/u/Trash/files"));
}

TEST_F(TrashRootsTest, AreNoTouchForAScanButNotForARestore)
{
    for (const auto* const path : {"/u/.local/share/Trash/files", "/v/.Trash-1000/files", "/v/.Trash/1000/files",
             "/v/Trash/files/a.db", "/u/.local/share/Trash/files/.mozilla"}) {
        EXPECT_TRUE(NoTouchPathPolicy::isNoTouchPath(FileURL(path))) << path;
        EXPECT_FALSE(NoTouchPathPolicy::isNoTouchPath(FileURL(path), NoTouchScope::trash)) << path;
    }
}

TEST_F(TrashRootsTest, DoNotOpenWhatTheFixedRulesRefuse)
{
    for (const auto* const path :
        {"/u/.local/share/Trash/files/P.photoslibrary", "/u/Library/Mail/x", "/u/.local/share/Trash/files/disk.img",
            "/u/Library/Containers/com.apple.Safari/x", "/u/Library/Mobile Documents/com~apple~CloudDocs/x"}) {
        EXPECT_TRUE(NoTouchPathPolicy::isNoTouchPath(FileURL(path), NoTouchScope::trash)) << path;
    }
    EXPECT_FALSE(
        NoTouchPathPolicy::isNoTouchPath(FileURL("/u/Library/Mobile Documents/.Trash/x"), NoTouchScope::trash));
}

TEST_F(TrashRootsTest, PassAsRootsOnlyOfARestore)
{
    m_tree.add("home/.local/share/Trash/files/\n    a size=1");
    const std::vector roots{m_tree.url("home/.local/share/Trash/files/")};
    const auto trashed = m_tree.url("home/.local/share/Trash/files/a");
    const SafePathPolicy ofScan(roots, m_tree.url("home/"), m_posix);
    EXPECT_THAT(ofScan.allowedRoots(), IsEmpty());
    const SafePathPolicy ofRestore(roots, m_tree.url("home/"), m_posix, NoTouchScope::trash);
    EXPECT_TRUE(ofRestore.validate(trashed, m_posix));
    EXPECT_EQ(ofRestore.validate(m_tree.url("home/.local/share/Trash/files/"), m_posix).error().kind,
        CleaningError::Kind::pathNotAllowed);
    EXPECT_EQ(ofRestore.validate(m_tree.url("home/.local/share/Trash/info/a"), m_posix).error().kind,
        CleaningError::Kind::pathNotAllowed);
}

} // namespace
