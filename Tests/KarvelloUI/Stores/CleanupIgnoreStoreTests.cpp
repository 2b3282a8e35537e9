#include "KarvelloUI/Stores/CleanupIgnoreStore.h"

#include "KarvelloUI/Stores/StoresCoding.h"
#include "Tests/KarvelloUI/Stores/IgnoredItems.h"
#include "Tests/KarvelloUI/Stores/StoresFixture.h"
#include "Tests/Support/Days.h"

#include <cmath>
#include <memory>

namespace KarvelloUI {

namespace {

using namespace StoresTests;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using TestSupport::kDay;
using Duration = CleanupIgnoreDuration;

const std::string kIgnoreKey(CleanupIgnoreStore::defaultStorageKey);
const std::string kIgnoreBackupKey = kIgnoreKey + ".malformedBackup";

const std::string kIgnoreLoadFailed =
    "Could not load ignored cleanup items. The saved ignore list was backed up and reset: ";
const std::string kIgnoreSaveFailed = "Could not save ignored cleanup items: ";

CleanupCandidate candidate(std::string_view path, CleanupCategory category = CleanupCategory::userCaches,
    CleanupSafety safety = CleanupSafety::caution)
{
    return CleanupCandidate({.url = Platform::FileURL(path), .category = category, .sizeBytes = 7, .safety = safety});
}

class CleanupIgnoreStoreTest : public StoresFixture {
protected:
    std::unique_ptr<CleanupIgnoreStore> makeStore()
    {
        return std::make_unique<CleanupIgnoreStore>(m_defaults, language());
    }

    static std::string stored(std::vector<IgnoredCleanupItem> items) { return Platform::encodeJSON(items).value(); }
};

} // namespace

TEST_F(CleanupIgnoreStoreTest, StartsWithNothing)
{
    const auto store = makeStore();
    EXPECT_TRUE(store->items().empty());
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
    EXPECT_FALSE(store->pruneExpired(kNow));
    store->removeAll();
    EXPECT_EQ(m_defaults.saveCount(), 0);
}

TEST_F(CleanupIgnoreStoreTest, OffersWhatTheCandidateAllows)
{
    const auto caution = candidate("/h/a");
    EXPECT_EQ(CleanupIgnoreStore::availableDurations(caution).size(), 3);
    EXPECT_EQ(CleanupIgnoreStore::defaultDuration(caution), Duration::untilShownAgain);
    const auto review = candidate("/h/a", CleanupCategory::userCaches, CleanupSafety::manualReview);
    EXPECT_EQ(CleanupIgnoreStore::availableDurations(review).size(), 2);
    EXPECT_EQ(CleanupIgnoreStore::defaultDuration(review), Duration::oneWeek);
}

TEST_F(CleanupIgnoreStoreTest, KeepsARuleOverARestart)
{
    const auto store = makeStore();
    EXPECT_TRUE(store->ignore(candidate("/h/a"), Duration::untilShownAgain, kNow));
    EXPECT_TRUE(store->ignore(candidate("/h/b"), Duration::oneDay, kNow.addingSeconds(1)));
    const auto later = makeStore();
    EXPECT_EQ(later->items(), store->items());
    EXPECT_EQ(pathsOf(later->items()), (Paths{"/h/b", "/h/a"}));
    EXPECT_EQ(later->items()[1].expiresAt, std::nullopt);
    EXPECT_EQ(
        later->activeIgnoredIDs(kNow), (std::set<std::string, std::less<>>{"userCaches:/h/a", "userCaches:/h/b"}));
}

TEST_F(CleanupIgnoreStoreTest, KnowsACandidateAgainWhoseNameIsNotUTF8)
{
    const auto hidden = candidate("/h/caf\xE9\n");
    ASSERT_TRUE(makeStore()->ignore(hidden, Duration::oneWeek, kNow));
    const auto later = makeStore();
    EXPECT_TRUE(later->isIgnored(hidden, kNow));
    EXPECT_FALSE(later->isIgnored(candidate("/h/caf\xE8\n"), kNow));
    EXPECT_FALSE(later->isIgnored(candidate("/h/caf\\xE9\n"), kNow));
    EXPECT_EQ(later->items().front().path, "/h/caf\xE9\n");
}

TEST_F(CleanupIgnoreStoreTest, RefusesADurationThatIsNotAvailable)
{
    const auto store = makeStore();
    EXPECT_FALSE(store->ignore(candidate("/h/a", CleanupCategory::buildArchives), Duration::untilShownAgain, kNow));
    EXPECT_FALSE(store->ignore(
        candidate("/h/a", CleanupCategory::userCaches, CleanupSafety::manualReview), Duration::untilShownAgain, kNow));
    EXPECT_TRUE(store->items().empty());
    EXPECT_EQ(m_defaults.saveCount(), 0);
    EXPECT_TRUE(store->ignore(candidate("/h/a", CleanupCategory::buildArchives), Duration::oneWeek, kNow));
}

TEST_F(CleanupIgnoreStoreTest, TakesTheLongestDurationWhereNoneIsGiven)
{
    const auto store = makeStore();
    const auto before = Platform::Date::now();
    ASSERT_TRUE(store->ignore(candidate("/h/a", CleanupCategory::buildArchives)));
    const auto& item = store->items().front();
    EXPECT_EQ(item.duration, Duration::oneWeek);
    EXPECT_GE(item.ignoredAt, before);
    EXPECT_LE(item.ignoredAt, Platform::Date::now());
}

TEST_F(CleanupIgnoreStoreTest, HoldsACandidateOnceByTheLaterRule)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->ignore(candidate("/h/a"), Duration::untilShownAgain, kNow));
    EXPECT_TRUE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow.addingSeconds(1)));
    ASSERT_EQ(store->count(), 1);
    EXPECT_EQ(store->items().front().duration, Duration::oneDay);
    EXPECT_EQ(store->items().front().ignoredAt, kNow.addingSeconds(1));
    // The same rule once more changes nothing.
    EXPECT_FALSE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow.addingSeconds(1)));
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
}

TEST_F(CleanupIgnoreStoreTest, HidesUntilTheVeryMomentOfExpiry)
{
    const auto store = makeStore();
    const auto hidden = candidate("/h/a");
    ASSERT_TRUE(store->ignore(hidden, Duration::oneDay, kNow));
    EXPECT_TRUE(store->isIgnored(hidden, kNow.addingSeconds(kDay - 1)));
    EXPECT_EQ(store->activeItems(kNow.addingSeconds(kDay - 1)), store->items());
    EXPECT_FALSE(store->isIgnored(hidden, kNow.addingSeconds(kDay)));
    EXPECT_TRUE(store->activeItems(kNow.addingSeconds(kDay)).empty());
    EXPECT_TRUE(store->activeIgnoredIDs(kNow.addingSeconds(kDay)).empty());
    EXPECT_EQ(store->count(), 1);
}

TEST_F(CleanupIgnoreStoreTest, DropsExpiredRulesWhenItPrunesOrIgnores)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->ignore(candidate("/h/day"), Duration::oneDay, kNow));
    ASSERT_TRUE(store->ignore(candidate("/h/week"), Duration::oneWeek, kNow));
    EXPECT_FALSE(store->pruneExpired(kNow.addingSeconds(kDay - 1)));
    EXPECT_EQ(makeStore()->count(), 2);
    EXPECT_TRUE(store->pruneExpired(kNow.addingSeconds(kDay)));
    EXPECT_EQ(pathsOf(store->items()), Paths{"/h/week"});
    EXPECT_EQ(pathsOf(makeStore()->items()), Paths{"/h/week"});
    EXPECT_TRUE(store->ignore(candidate("/h/new"), Duration::oneDay, kNow.addingSeconds(7 * kDay)));
    EXPECT_EQ(pathsOf(makeStore()->items()), Paths{"/h/new"});
}

TEST_F(CleanupIgnoreStoreTest, LoadsExpiredRulesToo)
{
    ASSERT_TRUE(makeStore()->ignore(candidate("/h/a"), Duration::oneDay, Platform::Date{0}));
    EXPECT_EQ(makeStore()->count(), 1);
}

TEST_F(CleanupIgnoreStoreTest, IsInOrderWhateverTheStoredOrder)
{
    const auto at = [](std::string_view path, double offset) {
        return IgnoredCleanupItem(candidate(path), kNow.addingSeconds(offset), Duration::oneWeek);
    };
    seed(kIgnoreKey, stored({at("/h/a10", 0), at("/h/late", 5), at("/h/a2", 0)}));
    EXPECT_EQ(pathsOf(makeStore()->items()), (Paths{"/h/late", "/h/a2", "/h/a10"}));
}

TEST_F(CleanupIgnoreStoreTest, RemovesTheRuleOfAnId)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    ASSERT_TRUE(store->ignore(candidate("/h/b"), Duration::oneDay, kNow));
    EXPECT_FALSE(store->remove("userCaches:/h/c"));
    EXPECT_TRUE(store->remove("userCaches:/h/a"));
    EXPECT_EQ(pathsOf(makeStore()->items()), Paths{"/h/b"});
    store->removeAll();
    EXPECT_TRUE(store->items().empty());
    EXPECT_EQ(onDisk(kIgnoreKey), "[\n\n]");
}

TEST_F(CleanupIgnoreStoreTest, LeavesMemoryAndDiskWhereASaveFails)
{
    const auto store = makeStore();
    ASSERT_TRUE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    const auto before = store->items();
    const auto onDiskBefore = onDisk(kIgnoreKey);
    m_defaults.failAllSaves();
    const auto expectUnchanged = [&] {
        EXPECT_EQ(store->items(), before);
        EXPECT_EQ(onDisk(kIgnoreKey), onDiskBefore);
        EXPECT_EQ(store->lastErrorMessage(), kIgnoreSaveFailed + std::string(kDiskFull));
        store->clearError();
    };
    EXPECT_FALSE(store->ignore(candidate("/h/b"), Duration::oneDay, kNow));
    expectUnchanged();
    EXPECT_FALSE(store->remove("userCaches:/h/a"));
    expectUnchanged();
    store->removeAll();
    expectUnchanged();
    EXPECT_FALSE(store->pruneExpired(kNow.addingSeconds(kDay)));
    expectUnchanged();
    EXPECT_EQ(m_defaults.failureCount(), 4);
}

TEST_F(CleanupIgnoreStoreTest, ForgetsTheErrorOnceASaveSucceeds)
{
    const auto store = makeStore();
    m_defaults.failSave(1);
    EXPECT_FALSE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    EXPECT_NE(store->lastErrorMessage(), std::nullopt);
    EXPECT_TRUE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    EXPECT_EQ(store->lastErrorMessage(), std::nullopt);
}

TEST_F(CleanupIgnoreStoreTest, LeavesMemoryAndDiskWhereARuleHasNoStoredForm)
{
    const auto store = makeStore();
    EXPECT_FALSE(store->ignore(candidate("/h/a"), Duration::oneDay, Platform::Date{HUGE_VAL}));
    EXPECT_TRUE(store->items().empty());
    EXPECT_EQ(m_defaults.saveCount(), 0);
    EXPECT_EQ(store->lastErrorMessage(),
        kIgnoreSaveFailed + "The data couldn’t be written because it isn’t in the correct format.");
}

TEST_F(CleanupIgnoreStoreTest, SetsDamagedDataAsideForInspection)
{
    seed(kIgnoreKey, "not JSON");
    {
        const auto store = makeStore();
        EXPECT_TRUE(store->items().empty());
        EXPECT_EQ(store->lastErrorMessage(), kIgnoreLoadFailed + std::string(kUnreadable));
    }
    EXPECT_EQ(onDisk(kIgnoreKey), std::nullopt);
    EXPECT_EQ(onDisk(kIgnoreBackupKey), "not JSON");
    const auto later = makeStore();
    EXPECT_EQ(later->lastErrorMessage(), std::nullopt);
    ASSERT_TRUE(later->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    ASSERT_TRUE(later->remove("userCaches:/h/a"));
    EXPECT_EQ(onDisk(kIgnoreBackupKey), "not JSON");
}

TEST_F(CleanupIgnoreStoreTest, NeverReadsItsBackup)
{
    const auto rules = stored({IgnoredCleanupItem(candidate("/h/a"), kNow, Duration::oneDay)});
    seed(kIgnoreBackupKey, rules);
    EXPECT_TRUE(makeStore()->items().empty());
    seed(kIgnoreKey, "[]");
    EXPECT_TRUE(makeStore()->items().empty());
    EXPECT_EQ(onDisk(kIgnoreBackupKey), rules);
}

TEST_F(CleanupIgnoreStoreTest, SetsDamagedDataAsideWithTheNextSaveWhereItCouldNotAtOnce)
{
    seed(kIgnoreKey, "not JSON");
    m_defaults.failSave(1);
    const auto store = makeStore();
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_EQ(store->lastErrorMessage(), kIgnoreLoadFailed + std::string(kUnreadable) + " " + std::string(kDiskFull));
    EXPECT_EQ(onDisk(kIgnoreKey), "not JSON");
    ASSERT_TRUE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    EXPECT_EQ(onDisk(kIgnoreBackupKey), "not JSON");
    EXPECT_EQ(pathsOf(makeStore()->items()), Paths{"/h/a"});
}

TEST_F(CleanupIgnoreStoreTest, SetsEveryMalformedFormAside)
{
    const auto whole = stored({IgnoredCleanupItem(candidate("/h/a"), kNow, Duration::oneDay)});
    auto forms =
        eachWithoutOneOf(whole, {"id", "displayName", "path", "category", "sizeBytes", "ignoredAt", "duration"});
    forms.insert(forms.end(),
        {"", "{}", "null", "[[]]", whole.substr(0, whole.size() - 3), replacing(whole, "userCaches\"", "otherCaches\""),
            replacing(whole, "\"oneDay\"", "\"oneYear\""),
            replacing(whole, "\"sizeBytes\" : 7", "\"sizeBytes\" : 1e30"),
            replacing(whole, "\"expiresAt\" : ", "\"expiresAt\" : \"x\", \"y\" : ")});
    for (const auto& form : forms) {
        seed(kIgnoreKey, form);
        const auto store = makeStore();
        EXPECT_TRUE(store->items().empty()) << form;
        EXPECT_EQ(store->lastErrorMessage(), kIgnoreLoadFailed + std::string(kUnreadable)) << form;
        EXPECT_EQ(onDisk(kIgnoreBackupKey), form);
    }
}

TEST_F(CleanupIgnoreStoreTest, SpeaksTheLanguageOfTheMoment)
{
    const auto store = makeStore();
    m_defaults.failAllSaves();
    m_language = AppLanguage::korean;
    EXPECT_FALSE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    EXPECT_EQ(store->lastErrorMessage(),
        "무시한 정리 항목을 저장하지 못했습니다: ‘preferences.json’ 파일을 저장할 수 없음: 볼륨에 공간이 없음");
    m_language = AppLanguage::japanese;
    EXPECT_FALSE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    EXPECT_EQ(
        store->lastErrorMessage(), (KarvelloCopy{{{AppLanguage::japanese}}}.cleanupIgnoreSaveFailedMessage(kDiskFull)));
}

TEST_F(CleanupIgnoreStoreTest, RemovesAnItemByItsOwnIdThoughTheListBecomesAnother)
{
    const auto store = makeStore();
    const auto other = makeStore();
    ASSERT_TRUE(store->ignore(candidate("/h/a-name-too-long-to-lie-within-the-string"), Duration::oneDay, kNow));
    ASSERT_TRUE(other->ignore(candidate("/h/b"), Duration::oneDay, kNow.addingSeconds(1)));
    EXPECT_TRUE(store->remove(store->items().front().id));
    EXPECT_EQ(pathsOf(store->items()), Paths{"/h/b"});
}

TEST_F(CleanupIgnoreStoreTest, LosesNothingToAnotherStore)
{
    const auto store = makeStore();
    const auto other = makeStore();
    int changes = 0;
    QObject::connect(store.get(), &CleanupIgnoreStore::itemsChanged, [&] { ++changes; });
    ASSERT_TRUE(store->ignore(candidate("/h/a"), Duration::oneDay, kNow));
    ASSERT_TRUE(other->ignore(candidate("/h/b"), Duration::oneDay, kNow));
    EXPECT_EQ(changes, 1);
    m_loop.handleEvents();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(pathsOf(store->items()), (Paths{"/h/a", "/h/b"}));
    other->removeAll();
    EXPECT_FALSE(store->remove("userCaches:/h/a"));
    EXPECT_TRUE(store->items().empty());
}

} // namespace KarvelloUI
