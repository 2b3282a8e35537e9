#include "KarvelloUI/Stores/CustomScanFolder.h"

#include "KarvelloUI/Stores/StoresCoding.h"
#include "Tests/KarvelloUI/Stores/StoresFixture.h"
#include "Tests/Support/ChildProcess.h"

#include <cstdlib>

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using Platform::FileURL;
using FolderErrorKind = CustomScanFolderError::Kind;

class CustomScanFolderTest : public StoresFixture {
protected:
    std::expected<CustomScanFolder, FolderAccessError<CustomScanFolderError>> make(const FileURL& picked) const
    {
        return CustomScanFolder::make(picked, m_files, m_bookmarks, kNow);
    }

    void expectRefused(const FileURL& picked, FolderErrorKind kind) const
    {
        const auto made = make(picked);
        ASSERT_FALSE(made) << picked.path();
        EXPECT_EQ(made.error(), FolderAccessError<CustomScanFolderError>(CustomScanFolderError{kind, picked.path()}));
    }

    const FileURL m_documents = m_tree.url("home/Documents/");
};

CustomScanFolder named(std::string_view name, std::string_view path)
{
    return {.id = Platform::UUID::random(),
        .displayName = std::string(name),
        .fallbackPath = std::string(path),
        .bookmarkData = {},
        .createdAt = kNow};
}

std::vector<std::string> namesOf(const std::vector<CustomScanFolder>& folders)
{
    std::vector<std::string> names;
    for (const auto& folder : folders) {
        names.push_back(folder.displayName);
    }
    return names;
}

} // namespace

TEST_F(CustomScanFolderTest, IsMadeForAFolder)
{
    const auto id = Platform::UUID::random();
    const auto made = CustomScanFolder::make(m_documents, m_files, m_bookmarks, kNow, id);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->id, id);
    EXPECT_EQ(made->displayName, "Documents");
    EXPECT_EQ(made->fallbackPath, m_documents.path());
    EXPECT_EQ(made->createdAt, kNow);
    EXPECT_EQ(m_bookmarks.resolve(made->bookmarkData)->url, m_documents);
    EXPECT_EQ(m_bookmarks.startCount(), 1);
    EXPECT_NE(make(m_documents)->id, make(m_documents)->id);
}

TEST_F(CustomScanFolderTest, RefusesAFileAndWhatIsMissing)
{
    expectRefused(m_tree.url("home/file"), FolderErrorKind::notDirectory);
    expectRefused(m_tree.url("home/nothing/"), FolderErrorKind::notDirectory);
}

TEST_F(CustomScanFolderTest, RefusesSystemFoldersAndVolumeRoots)
{
    for (const std::string_view path : {"/", "/usr", "/etc", "/usr/share", "/tmp", "/proc"}) {
        expectRefused(FileURL::folder(path), FolderErrorKind::unsafeRoot);
    }
}

TEST_F(CustomScanFolderTest, RefusesTheRootOfAVolume)
{
    TestSupport::inMountNamespace([this] {
        TestSupport::mountTemporaryFileSystem(m_documents.path());
        expectRefused(m_documents, FolderErrorKind::unsafeRoot);
    });
    EXPECT_TRUE(make(m_documents));
}

TEST_F(CustomScanFolderTest, RefusesTheHomeOfTheUser)
{
    TestSupport::inChildProcess([this] {
        ASSERT_EQ(setenv("HOME", m_home.path().c_str(), 1), 0);
        expectRefused(m_home, FolderErrorKind::unsafeRoot);
        EXPECT_TRUE(make(m_documents));
    });
}

TEST_F(CustomScanFolderTest, RefusesUserDataAndLinks)
{
    m_tree.add("home/.ssh/id\nhome/linked -> Documents\n");
    expectRefused(m_tree.url("home/.ssh/"), FolderErrorKind::unsafeRoot);
    expectRefused(m_tree.url("home/linked"), FolderErrorKind::unsafeRoot);
}

TEST_F(CustomScanFolderTest, PassesOnWhyNoBookmarkCouldBeMade)
{
    m_bookmarks.createError = EACCES;
    const auto made = make(m_documents);
    ASSERT_FALSE(made);
    EXPECT_EQ(localizedDescription(made.error()),
        "The file “Documents” couldn’t be opened because you don’t have permission to view it.");
}

TEST_F(CustomScanFolderTest, ResolvesToItsFolder)
{
    const auto folder = make(m_documents).value();
    EXPECT_EQ(folder.resolve(m_files, m_bookmarks),
        (ResolvedCustomScanFolder{.folder = folder, .url = m_documents, .bookmarkWasStale = false}));
    EXPECT_EQ(m_bookmarks.startCount(), 2);
    m_bookmarks.tellsStale = true;
    EXPECT_TRUE(folder.resolve(m_files, m_bookmarks)->bookmarkWasStale);
}

TEST_F(CustomScanFolderTest, IsJudgedAnewWhenItIsResolved)
{
    const auto folder = make(m_documents).value();
    TestSupport::inChildProcess([&] {
        ASSERT_EQ(setenv("HOME", m_documents.path().c_str(), 1), 0);
        const auto resolved = folder.resolve(m_files, m_bookmarks);
        ASSERT_FALSE(resolved);
        EXPECT_EQ(resolved.error(),
            FolderAccessError<CustomScanFolderError>(
                CustomScanFolderError{FolderErrorKind::unsafeRoot, m_documents.path()}));
        EXPECT_EQ(m_bookmarks.openCount(), 0);
    });
}

TEST_F(CustomScanFolderTest, PassesOnWhyItCannotBeResolved)
{
    const auto folder = make(m_documents).value();
    m_tree.remove("home/Documents");
    const auto resolved = folder.resolve(m_files, m_bookmarks);
    ASSERT_FALSE(resolved);
    EXPECT_EQ(localizedDescription(resolved.error()),
        "The file “Documents” couldn’t be opened because there is no such file.");
}

TEST(AddingFolder, KeepsTheOrderOfNames)
{
    std::vector<CustomScanFolder> folders;
    for (const std::string_view name : {"Photos 10", "zebra", "Photos 9", "apple", "Bär", "photos 9b"}) {
        folders = addingFolder(folders, named(name, std::string("/") + std::string(name)));
    }
    EXPECT_EQ(
        namesOf(folders), (std::vector<std::string>{"apple", "Bär", "Photos 9", "photos 9b", "Photos 10", "zebra"}));
}

TEST(AddingFolder, ReplacesTheFolderOfTheSamePath)
{
    const auto first = named("a", "/a");
    const auto sameName = named("a", "/other/a");
    const auto second = named("a", "/a");
    EXPECT_EQ(addingFolder(std::vector{first, sameName}, second), (std::vector{sameName, second}));
}

TEST(CustomScanFolder, IsStoredUnderTheNamesOfItsFields)
{
    const CustomScanFolder folder{
        .id = *Platform::UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10"),
        .displayName = "a \"b\"\n",
        .fallbackPath = "/h\xFF/a \"b\"\n",
        .bookmarkData = {std::string("\x00\xFF", 2)},
        .createdAt = kNow,
    };
    const auto text = Platform::encodeJSON(folder);
    EXPECT_EQ(text, R"({
  "bookmarkData" : "AP8=",
  "createdAt" : 800000000,
  "displayName" : "a \"b\"\n",
  "fallbackPath" : "file:\/\/\/h%FF\/a%20%22b%22%0A",
  "id" : "9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10"
})");
    EXPECT_EQ(Platform::decodeJSON<CustomScanFolder>(std::string_view(*text)), folder);
}

} // namespace KarvelloUI
