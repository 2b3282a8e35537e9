#include "KarvelloUI/Stores/HomeAccessBookmarkStore.h"

#include "KarvelloUI/Stores/StoresCoding.h"
#include "Tests/KarvelloUI/Stores/StoresFixture.h"

#include <cmath>
#include <memory>

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using BookmarkErrorKind = HomeAccessBookmarkError::Kind;

const std::string kBookmarkKey(HomeAccessBookmarkStore::defaultStorageKey);
const std::string kBookmarkBackupKey = kBookmarkKey + ".malformedBackup";

const std::string kBookmarkLoadFailed =
    "Could not load home folder access bookmark. The saved bookmark was backed up and reset: ";
const std::string kBookmarkSaveFailed = "Could not save home folder access bookmark: ";
const std::string kResolveFailed = "Could not resolve home folder access bookmark and cleared it. Grant access again: ";
const std::string kExpired = "Home folder access bookmark expired and was cleared. Grant access again.";

class HomeAccessBookmarkStoreTest : public StoresFixture {
protected:
    std::unique_ptr<HomeAccessBookmarkStore> makeStore()
    {
        return std::make_unique<HomeAccessBookmarkStore>(
            m_defaults, m_bookmarks, language(), kBookmarkKey, [this] { return m_home; });
    }

    std::string storedGrant() const
    {
        const auto made = HomeAccessBookmark::make(m_home, m_home, m_files, m_bookmarks, kNow);
        return Platform::encodeJSON(made.value()).value();
    }

    HomeAccessBookmark grant() const { return Platform::decodeJSON<HomeAccessBookmark>(storedGrant()).value(); }
};

} // namespace

TEST_F(HomeAccessBookmarkStoreTest, StartsWithNothing)
{
    const auto store = makeStore();
    EXPECT_EQ(store->bookmark(), std::nullopt);
    EXPECT_EQ(store->accessState(), HomeAccessState::missing);
    EXPECT_FALSE(store->isAuthorized());
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(m_defaults.saveCount(), 0);
}

TEST_F(HomeAccessBookmarkStoreTest, KeepsTheGrantOverARestart)
{
    {
        const auto store = makeStore();
        seed(kBookmarkBackupKey, "old");
        EXPECT_TRUE(store->setBookmark(m_home, m_files, kNow));
        EXPECT_EQ(store->accessState(), HomeAccessState::authorized);
        EXPECT_EQ(store->bookmark(), grant());
    }
    EXPECT_EQ(onDisk(kBookmarkKey), storedGrant());
    EXPECT_EQ(onDisk(kBookmarkBackupKey), std::nullopt);
    const auto later = makeStore();
    EXPECT_EQ(later->bookmark(), grant());
    EXPECT_EQ(later->resolveBookmark(m_files)->grantedURL, m_home);
}

TEST_F(HomeAccessBookmarkStoreTest, KeepsTheGrantOfAHomeWhoseNameIsNotUTF8)
{
    m_tree.add("\"h\\xFFme\\n\"/Library/\n");
    m_home = m_tree.url("h\xFFme\n/");
    ASSERT_TRUE(makeStore()->setBookmark(m_tree.url("h\xFFme\n/Library/"), m_files, kNow));
    const auto later = makeStore();
    ASSERT_TRUE(later->bookmark());
    EXPECT_EQ(later->bookmark()->fallbackPath, m_tree.path("h\xFFme\n/Library"));
    EXPECT_EQ(later->bookmark()->effectiveHomeFallbackPath, m_home.path());
    EXPECT_EQ(later->resolveBookmark(m_files)->grantedURL, m_tree.url("h\xFFme\n/Library/"));
}

TEST_F(HomeAccessBookmarkStoreTest, LeavesTheGrantWhereAnotherPickIsRefused)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files, kNow));
    EXPECT_FALSE(store->setBookmark(m_tree.url("home/Documents/"), m_files));
    EXPECT_EQ(store->bookmark(), grant());
    EXPECT_EQ(store->lastErrorMessage(),
        kBookmarkSaveFailed
            + (HomeAccessBookmarkError{BookmarkErrorKind::notCurrentUserHome, m_tree.path("home/Documents")}
                    .errorDescription()));
    EXPECT_EQ(onDisk(kBookmarkKey), storedGrant());
    store->clearError();
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, ForgetsTheErrorOnceAPickIsTaken)
{
    const auto store = makeStore();
    EXPECT_FALSE(store->setBookmark(m_tree.url("home/file"), m_files));
    EXPECT_EQ(
        store->lastErrorMessage(), kBookmarkSaveFailed + "Selected item is not a folder: " + m_tree.path("home/file"));
    EXPECT_TRUE(store->setBookmark(m_home, m_files));
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, LeavesMemoryAndDiskWhereASaveFails)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files, kNow));
    m_defaults.failAllSaves();
    EXPECT_FALSE(store->setBookmark(m_tree.url("home/Library/"), m_files, kNow));
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_EQ(store->bookmark(), grant());
    EXPECT_EQ(onDisk(kBookmarkKey), storedGrant());
    EXPECT_EQ(store->lastErrorMessage(), kBookmarkSaveFailed + std::string(kDiskFull));
}

TEST_F(HomeAccessBookmarkStoreTest, LeavesMemoryAndDiskWhereAGrantHasNoStoredForm)
{
    const auto store = makeStore();
    EXPECT_FALSE(store->setBookmark(m_home, m_files, Platform::Date{HUGE_VAL}));
    EXPECT_EQ(store->bookmark(), std::nullopt);
    EXPECT_EQ(m_defaults.saveCount(), 0);
    EXPECT_EQ(store->lastErrorMessage(),
        kBookmarkSaveFailed + "The data couldn’t be written because it isn’t in the correct format.");
}

TEST_F(HomeAccessBookmarkStoreTest, ClearsTheGrantItsBackupAndTheError)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    ASSERT_FALSE(store->setBookmark(m_tree.url("home/file"), m_files));
    seed(kBookmarkBackupKey, "old");
    store->clearBookmark();
    EXPECT_EQ(store->accessState(), HomeAccessState::missing);
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkKey), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkBackupKey), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, SaysThatAGrantCouldNotBeRevoked)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files, kNow));
    m_defaults.failAllSaves(EROFS);
    store->clearBookmark();
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_EQ(store->bookmark(), grant());
    EXPECT_EQ(store->lastErrorMessage(),
        kBookmarkSaveFailed + "The file “preferences.json” couldn’t be saved because the volume is read only.");
}

TEST_F(HomeAccessBookmarkStoreTest, ClearsAGrantThatCannotBeResolved)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    m_tree.remove("home");
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(store->bookmark(), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkKey), std::nullopt);
    EXPECT_EQ(store->lastErrorMessage(),
        kResolveFailed + "The file “home” couldn’t be opened because there is no such file.");
}

TEST_F(HomeAccessBookmarkStoreTest, ClearsAGrantOfBytesThatAreNoBookmark)
{
    seed(kBookmarkKey, R"({"fallbackPath":"/h","bookmarkData":"AAAA","createdAt":1})");
    const auto store = makeStore();
    EXPECT_EQ(store->accessState(), HomeAccessState::authorized);
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkKey), std::nullopt);
    EXPECT_EQ(store->lastErrorMessage(),
        kResolveFailed + "The file “bookmark” couldn’t be opened because it isn’t in the correct format.");
}

TEST_F(HomeAccessBookmarkStoreTest, ClearsAStaleGrantAndNeverRefreshesIt)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    m_tree.remove("home");
    m_tree.add("home/Library/\n");
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(store->bookmark(), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkKey), std::nullopt);
    EXPECT_EQ(store->lastErrorMessage(), kExpired);
    EXPECT_EQ(makeStore()->bookmark(), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, NeverUsesAStaleGrantThatCouldNotBeRemoved)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    m_bookmarks.tellsStale = true;
    m_defaults.failAllSaves();
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_EQ(store->accessState(), HomeAccessState::missing);
    EXPECT_EQ(store->lastErrorMessage(), kExpired);
    store->refresh();
    EXPECT_EQ(store->accessState(), HomeAccessState::missing);
    EXPECT_EQ(makeStore()->resolveBookmark(m_files), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, SetsDamagedDataAsideAndDropsItAtTheStartAfterThat)
{
    seed(kBookmarkKey, "{damaged");
    {
        const auto store = makeStore();
        EXPECT_EQ(store->bookmark(), std::nullopt);
        EXPECT_EQ(store->lastErrorMessage(), kBookmarkLoadFailed + std::string(kUnreadable));
    }
    EXPECT_EQ(onDisk(kBookmarkKey), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkBackupKey), "{damaged");
    const auto later = makeStore();
    EXPECT_EQ(later->bookmark(), std::nullopt);
    EXPECT_EQ(later->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkBackupKey), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, SetsEveryMalformedFormAside)
{
    const auto whole = storedGrant();
    auto forms = eachWithoutOneOf(whole, {"fallbackPath", "bookmarkData", "createdAt"});
    forms.insert(forms.end(),
        {"", "null", "[]", "\"text\"", "\xFF", whole.substr(0, whole.size() / 2), whole + "x",
            replacing(whole, "\"bookmarkData\" : \"", "\"bookmarkData\" : \"*"),
            replacing(whole, "\"createdAt\" : ", "\"createdAt\" : \"1\", \"x\" : "),
            replacing(whole, "\"effectiveHomeFallbackPath\" : ", "\"effectiveHomeFallbackPath\" : 1, \"x\" : ")});
    for (const auto& form : forms) {
        seed(kBookmarkKey, form);
        const auto store = makeStore();
        EXPECT_EQ(store->bookmark(), std::nullopt) << form;
        EXPECT_EQ(store->lastErrorMessage(), kBookmarkLoadFailed + std::string(kUnreadable)) << form;
        EXPECT_EQ(onDisk(kBookmarkBackupKey), form);
    }
}

TEST_F(HomeAccessBookmarkStoreTest, ReadsTheBackupWhereTheKeyIsEmpty)
{
    seed(kBookmarkBackupKey, storedGrant());
    const auto store = makeStore();
    EXPECT_EQ(store->bookmark(), grant());
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkKey), storedGrant());
    EXPECT_EQ(onDisk(kBookmarkBackupKey), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, ReadsTheBackupEvenWhereItCannotBePutBack)
{
    seed(kBookmarkBackupKey, storedGrant());
    m_defaults.failAllSaves();
    const auto store = makeStore();
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_EQ(store->bookmark(), grant());
    EXPECT_EQ(onDisk(kBookmarkKey), std::nullopt);
    EXPECT_EQ(onDisk(kBookmarkBackupKey), storedGrant());
}

TEST_F(HomeAccessBookmarkStoreTest, DropsTheBackupWhereTheKeyCanBeRead)
{
    seed(kBookmarkKey, storedGrant());
    seed(kBookmarkBackupKey, "old");
    const auto store = makeStore();
    EXPECT_EQ(store->bookmark(), grant());
    EXPECT_EQ(onDisk(kBookmarkBackupKey), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, SaysWhyDamagedDataCouldNotBeSetAside)
{
    seed(kBookmarkKey, "{damaged");
    m_defaults.failAllSaves();
    const auto store = makeStore();
    EXPECT_EQ(store->lastErrorMessage(), kBookmarkLoadFailed + std::string(kUnreadable) + " " + std::string(kDiskFull));
    EXPECT_EQ(onDisk(kBookmarkKey), "{damaged");
    EXPECT_EQ(onDisk(kBookmarkBackupKey), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, TakesAValueOfAnotherTypeForNone)
{
    ASSERT_TRUE(m_file.set(kBookmarkKey, std::string("text")));
    const auto store = makeStore();
    EXPECT_EQ(store->bookmark(), std::nullopt);
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, SpeaksTheLanguageOfTheMoment)
{
    m_bookmarks.tellsStale = true;
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    m_language = AppLanguage::korean;
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(store->lastErrorMessage(), "홈 폴더 접근 책갈피가 만료되어 지웠습니다. 접근을 다시 허용하세요.");
    m_language = AppLanguage::german;
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(store->lastErrorMessage(), (KarvelloCopy{{{AppLanguage::german}}}.homeAccessBookmarkStaleMessage()));
}

TEST_F(HomeAccessBookmarkStoreTest, TellsOfEachChangeOnce)
{
    const auto store = makeStore();
    int changes = 0;
    int errors = 0;
    QObject::connect(store.get(), &HomeAccessBookmarkStore::bookmarkChanged, [&] { ++changes; });
    QObject::connect(store.get(), &PreferenceStore::lastErrorMessageChanged, [&] { ++errors; });
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    m_loop.handleEvents();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(errors, 0);
    ASSERT_FALSE(store->setBookmark(m_tree.url("home/file"), m_files));
    ASSERT_FALSE(store->setBookmark(m_tree.url("home/file"), m_files));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(errors, 1);
    store->clearBookmark();
    m_loop.handleEvents();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(errors, 2);
}

TEST_F(HomeAccessBookmarkStoreTest, HearsOfAGrantInAnotherStore)
{
    const auto store = makeStore();
    const auto other = makeStore();
    int changes = 0;
    QObject::connect(store.get(), &HomeAccessBookmarkStore::bookmarkChanged, [&] { ++changes; });
    ASSERT_TRUE(other->setBookmark(m_home, m_files, kNow));
    m_loop.handleEvents();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(store->bookmark(), grant());
}

TEST_F(HomeAccessBookmarkStoreTest, NeverUsesAGrantThatAnotherStoreHasRevoked)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files));
    makeStore()->clearBookmark();
    EXPECT_EQ(store->resolveBookmark(m_files), std::nullopt);
    EXPECT_EQ(store->accessState(), HomeAccessState::missing);
}

TEST_F(HomeAccessBookmarkStoreTest, HearsOfAnotherProcess)
{
    const auto store = makeStore();
    Platform::FileUserDefaults otherProcess(m_files, m_file.fileURL());
    ASSERT_TRUE(otherProcess.set(kBookmarkKey, Platform::DefaultsData{storedGrant()}));
    m_file.refresh();
    m_loop.handleEvents();
    EXPECT_EQ(store->bookmark(), grant());
}

TEST_F(HomeAccessBookmarkStoreTest, KeepsItsGrantWhereAnotherProcessStoresDamage)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->setBookmark(m_home, m_files, kNow));
    seed(kBookmarkKey, "{damaged");
    m_loop.handleEvents();
    EXPECT_EQ(store->bookmark(), grant());
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
}

TEST_F(HomeAccessBookmarkStoreTest, MayGoWhileAChangeIsOnItsWayToIt)
{
    auto store = makeStore();
    const auto other = makeStore();
    ASSERT_TRUE(other->setBookmark(m_home, m_files));
    store.reset();
    m_loop.handleEvents();
    EXPECT_EQ(other->accessState(), HomeAccessState::authorized);
}

} // namespace KarvelloUI
