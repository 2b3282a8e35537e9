#include "KarvelloUI/Stores/CustomScanFolderStore.h"

#include "KarvelloUI/Stores/StoresCoding.h"
#include "Tests/KarvelloUI/Stores/StoresFixture.h"
#include "Tests/Support/ChildProcess.h"

#include <cmath>
#include <cstdlib>
#include <memory>

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using FolderErrorKind = CustomScanFolderError::Kind;

const std::string kFoldersKey(CustomScanFolderStore::defaultStorageKey);
const std::string kFoldersBackupKey = kFoldersKey + ".malformedBackup";

const std::string kFoldersLoadFailed =
    "Could not load custom scan folders. The saved folder list was backed up and reset: ";
const std::string kFoldersSaveFailed = "Could not save custom scan folders: ";

class CustomScanFolderStoreTest : public StoresFixture {
protected:
    std::unique_ptr<CustomScanFolderStore> makeStore()
    {
        return std::make_unique<CustomScanFolderStore>(m_defaults, m_bookmarks, language());
    }

    bool add(CustomScanFolderStore& store, std::string_view path)
    {
        return store.addFolder(m_tree.url(path), m_files, kNow);
    }

    static std::vector<std::string> names(const CustomScanFolderStore& store)
    {
        std::vector<std::string> names;
        for (const auto& folder : store.folders()) {
            names.push_back(folder.displayName);
        }
        return names;
    }

    std::string storedFolders()
    {
        const std::vector folders{
            CustomScanFolder::make(m_tree.url("home/Documents/"), m_files, m_bookmarks, kNow).value()};
        return Platform::encodeJSON(folders).value();
    }
};

using Names = std::vector<std::string>;

} // namespace

TEST_F(CustomScanFolderStoreTest, StartsWithNothing)
{
    const auto store = makeStore();
    EXPECT_TRUE(store->folders().empty());
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(m_defaults.saveCount(), 0);
}

TEST_F(CustomScanFolderStoreTest, KeepsTheFoldersOverARestart)
{
    m_tree.add("home/\"caf\\xE9\\n\"/\n");
    const auto store = makeStore();
    seed(kFoldersBackupKey, "old");
    EXPECT_TRUE(add(*store, "home/Documents/"));
    EXPECT_TRUE(add(*store, "home/caf\xE9\n/"));
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(onDisk(kFoldersBackupKey), std::nullopt);
    const auto later = makeStore();
    ASSERT_EQ(later->count(), 2);
    EXPECT_EQ(later->folders()[1], store->folders()[1]);
    EXPECT_EQ(later->folders()[0].id, store->folders()[0].id);
    EXPECT_EQ(later->folders()[0].bookmarkData, store->folders()[0].bookmarkData);
    // The path is kept exactly; the name is a text for people.
    EXPECT_EQ(later->folders()[0].fallbackPath, m_tree.path("home/caf\xE9\n"));
    EXPECT_EQ(later->folders()[0].displayName, "caf\\xE9\n");
}

TEST_F(CustomScanFolderStoreTest, IsInTheOrderOfNamesAfterEveryAdd)
{
    m_tree.add("\"Files 10\"/\n\"Files 9\"/\nalpha/\nZulu/\n");
    const auto store = makeStore();
    ASSERT_TRUE(add(*store, "Zulu/"));
    ASSERT_TRUE(add(*store, "Files 10/"));
    EXPECT_EQ(names(*store), (Names{"Files 10", "Zulu"}));
    ASSERT_TRUE(add(*store, "Files 9/"));
    EXPECT_EQ(names(*store), (Names{"Files 9", "Files 10", "Zulu"}));
    ASSERT_TRUE(add(*store, "alpha/"));
    EXPECT_EQ(names(*store), (Names{"alpha", "Files 9", "Files 10", "Zulu"}));
}

TEST_F(CustomScanFolderStoreTest, HoldsAPathOnceWithTheLaterId)
{
    const auto store = makeStore();
    ASSERT_TRUE(add(*store, "home/Documents/"));
    const auto first = store->folders().front();
    ASSERT_TRUE(store->addFolder(m_tree.url("home/./Documents"), m_files, kNow.addingSeconds(1)));
    ASSERT_EQ(store->count(), 1);
    EXPECT_NE(store->folders().front().id, first.id);
    EXPECT_EQ(store->folders().front().createdAt, kNow.addingSeconds(1));
    EXPECT_EQ(makeStore()->folders(), store->folders());
}

TEST_F(CustomScanFolderStoreTest, RenewsTheBookmarkOfAFolderThatIsAddedAgain)
{
    const auto store = makeStore();
    ASSERT_TRUE(add(*store, "home/Documents/"));
    m_tree.remove("home/Documents");
    m_tree.add("home/Documents/\n");
    ASSERT_TRUE(store->folders().front().resolve(m_files, m_bookmarks)->bookmarkWasStale);
    ASSERT_TRUE(add(*store, "home/Documents/"));
    EXPECT_FALSE(store->folders().front().resolve(m_files, m_bookmarks)->bookmarkWasStale);
}

TEST_F(CustomScanFolderStoreTest, SaysWhyAFolderIsRefused)
{
    const auto store = makeStore();
    ASSERT_TRUE(add(*store, "home/Documents/"));
    EXPECT_FALSE(add(*store, "home/file"));
    EXPECT_EQ(store->lastErrorMessage(),
        kFoldersSaveFailed + "Selected item is not an accessible folder: " + m_tree.path("home/file"));
    EXPECT_FALSE(store->addFolder(Platform::FileURL::folder("/usr"), m_files));
    EXPECT_EQ(store->lastErrorMessage(),
        kFoldersSaveFailed + "Selected folder is too broad or protected for cleanup scanning: /usr");
    EXPECT_EQ(store->count(), 1);
    ASSERT_TRUE(add(*store, "home/Library/"));
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
}

TEST_F(CustomScanFolderStoreTest, RefusesTheHomeOfTheUser)
{
    TestSupport::inChildProcess([this] {
        ASSERT_EQ(setenv("HOME", m_home.path().c_str(), 1), 0);
        const auto store = makeStore();
        EXPECT_FALSE(store->addFolder(m_home, m_files));
        EXPECT_EQ(store->lastErrorMessage(),
            kFoldersSaveFailed + "Selected folder is too broad or protected for cleanup scanning: " + m_home.path());
        EXPECT_EQ(onDisk(kFoldersKey), std::nullopt);
    });
}

TEST_F(CustomScanFolderStoreTest, RemovesTheFolderOfAnId)
{
    const auto store = makeStore();
    ASSERT_TRUE(add(*store, "home/Documents/"));
    ASSERT_TRUE(add(*store, "home/Library/"));
    const auto kept = store->folders()[1];
    EXPECT_FALSE(store->removeFolder(Platform::UUID::random()));
    EXPECT_EQ(store->count(), 2);
    EXPECT_TRUE(store->removeFolder(store->folders()[0].id));
    EXPECT_EQ(store->folders(), std::vector{kept});
    EXPECT_EQ(makeStore()->folders(), std::vector{kept});
    EXPECT_TRUE(store->removeFolder(kept.id));
    EXPECT_EQ(onDisk(kFoldersKey), "[\n\n]");
    EXPECT_TRUE(makeStore()->folders().empty());
}

TEST_F(CustomScanFolderStoreTest, LeavesMemoryAndDiskWhereASaveFails)
{
    const auto store = makeStore();
    ASSERT_TRUE(add(*store, "home/Documents/"));
    const auto before = store->folders();
    const auto stored = onDisk(kFoldersKey);
    m_defaults.failAllSaves();
    EXPECT_FALSE(add(*store, "home/Library/"));
    EXPECT_EQ(store->lastErrorMessage(), kFoldersSaveFailed + std::string(kDiskFull));
    EXPECT_FALSE(add(*store, "home/Documents/"));
    store->clearError();
    EXPECT_FALSE(store->removeFolder(before.front().id));
    EXPECT_EQ(store->lastErrorMessage(), kFoldersSaveFailed + std::string(kDiskFull));
    EXPECT_EQ(m_defaults.failureCount(), 3);
    EXPECT_EQ(store->folders(), before);
    EXPECT_EQ(onDisk(kFoldersKey), stored);
}

TEST_F(CustomScanFolderStoreTest, LeavesMemoryAndDiskWhereAFolderHasNoStoredForm)
{
    const auto store = makeStore();
    EXPECT_FALSE(store->addFolder(m_tree.url("home/Documents/"), m_files, Platform::Date{NAN}));
    EXPECT_EQ(store->lastErrorMessage(),
        kFoldersSaveFailed + "The data couldn’t be written because it isn’t in the correct format.");
    EXPECT_TRUE(store->folders().empty());
    EXPECT_EQ(m_defaults.saveCount(), 0);
}

TEST_F(CustomScanFolderStoreTest, SetsDamagedDataAsideAndDropsItAtTheStartAfterThat)
{
    seed(kFoldersKey, "damaged");
    {
        const auto store = makeStore();
        EXPECT_TRUE(store->folders().empty());
        EXPECT_EQ(store->lastErrorMessage(), kFoldersLoadFailed + std::string(kUnreadable));
    }
    EXPECT_EQ(onDisk(kFoldersKey), std::nullopt);
    EXPECT_EQ(onDisk(kFoldersBackupKey), "damaged");
    EXPECT_EQ(makeStore()->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(onDisk(kFoldersBackupKey), std::nullopt);
}

TEST_F(CustomScanFolderStoreTest, SetsEveryMalformedFormAside)
{
    const auto whole = storedFolders();
    auto forms = eachWithoutOneOf(whole, {"id", "displayName", "fallbackPath", "bookmarkData", "createdAt"});
    forms.insert(forms.end(),
        {"", "{}", "null", "[null]", "[1]", whole.substr(0, whole.size() - 1), "[" + whole + "]",
            replacing(whole, "\"id\" : \"", "\"id\" : \"x"),
            replacing(whole, "\"bookmarkData\" : \"", "\"bookmarkData\" : \"*")});
    for (const auto& form : forms) {
        seed(kFoldersKey, form);
        const auto store = makeStore();
        EXPECT_TRUE(store->folders().empty()) << form;
        EXPECT_EQ(store->lastErrorMessage(), kFoldersLoadFailed + std::string(kUnreadable)) << form;
        EXPECT_EQ(onDisk(kFoldersBackupKey), form);
    }
}

TEST_F(CustomScanFolderStoreTest, ReadsTheBackupWhereTheKeyIsEmpty)
{
    const auto stored = storedFolders();
    seed(kFoldersBackupKey, stored);
    const auto store = makeStore();
    EXPECT_EQ(names(*store), Names{"Documents"});
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(onDisk(kFoldersKey), stored);
    EXPECT_EQ(onDisk(kFoldersBackupKey), std::nullopt);
}

TEST_F(CustomScanFolderStoreTest, DropsTheBackupWhereTheKeyCanBeRead)
{
    seed(kFoldersKey, "[]");
    seed(kFoldersBackupKey, storedFolders());
    EXPECT_TRUE(makeStore()->folders().empty());
    EXPECT_EQ(onDisk(kFoldersBackupKey), std::nullopt);
}

TEST_F(CustomScanFolderStoreTest, SpeaksTheLanguageOfTheMoment)
{
    const auto store = makeStore();
    m_language = AppLanguage::korean;
    EXPECT_FALSE(add(*store, "home/file"));
    EXPECT_EQ(store->lastErrorMessage(),
        "사용자 지정 스캔 폴더를 저장하지 못했습니다: 선택한 항목은 접근할 수 있는 폴더가 아님: "
            + m_tree.path("home/file"));
    seed(kFoldersKey, "damaged");
    EXPECT_EQ(makeStore()->lastErrorMessage(),
        "사용자 지정 스캔 폴더를 불러오지 못했습니다. 저장된 폴더 목록을 백업하고 초기화했습니다: 데이터 형식이 "
        "올바르지 않아 읽을 "
        "수 없습니다.");
}

TEST_F(CustomScanFolderStoreTest, LosesNothingToAnotherStore)
{
    const auto store = makeStore();
    const auto other = makeStore();
    ASSERT_TRUE(add(*store, "home/Documents/"));
    ASSERT_TRUE(add(*other, "home/Library/"));
    EXPECT_EQ(names(*other), (Names{"Documents", "Library"}));
    ASSERT_TRUE(store->removeFolder(other->folders()[1].id));
    EXPECT_EQ(names(*store), Names{"Documents"});
    EXPECT_FALSE(other->removeFolder(other->folders()[1].id));
    EXPECT_EQ(names(*other), Names{"Documents"});
}

TEST_F(CustomScanFolderStoreTest, TellsOfEachChangeOnceWhoeverMadeIt)
{
    const auto store = makeStore();
    const auto other = makeStore();
    int changes = 0;
    QObject::connect(store.get(), &CustomScanFolderStore::foldersChanged, [&] { ++changes; });
    ASSERT_TRUE(add(*store, "home/Documents/"));
    m_loop.handleEvents();
    EXPECT_EQ(changes, 1);
    ASSERT_TRUE(add(*other, "home/Library/"));
    EXPECT_EQ(changes, 1);
    m_loop.handleEvents();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(store->folders(), other->folders());
    ASSERT_TRUE(m_file.set("karvello.textScale", 1.5));
    m_loop.handleEvents();
    EXPECT_EQ(changes, 2);
}

TEST_F(CustomScanFolderStoreTest, LosesNothingToAnotherProcess)
{
    const auto store = makeStore();
    Platform::FileUserDefaults otherDocument(m_files, m_file.fileURL());
    CustomScanFolderStore other(otherDocument, m_bookmarks, language());
    ASSERT_TRUE(add(*store, "home/Documents/"));
    otherDocument.refresh();
    ASSERT_TRUE(other.addFolder(m_tree.url("home/Library/"), m_files));
    m_file.refresh();
    m_loop.handleEvents();
    EXPECT_EQ(names(*store), (Names{"Documents", "Library"}));
}

} // namespace KarvelloUI
