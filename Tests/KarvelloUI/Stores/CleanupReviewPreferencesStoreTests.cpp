#include "KarvelloUI/Stores/CleanupReviewPreferencesStore.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/FailingUserDefaults.h"
#include "Tests/Support/TemporaryTree.h"

#include <QCoreApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace KarvelloUI {
namespace {

using Platform::Date;
using Cadence = CleanupReviewCadence;
using ID = CleanupReviewProfileID;
using Store = CleanupReviewPreferencesStore;

constexpr Date kReviewedAt{800'000'000.5};

class CleanupReviewPreferencesStoreTest : public testing::Test {
protected:
    struct Signals {
        int cadence = 0;
        int profile = 0;
        int date = 0;

        friend bool operator==(const Signals&, const Signals&) = default;
    };

    static void count(const Store& store, Signals& heard)
    {
        QObject::connect(&store, &Store::cadenceChanged, [&heard] { ++heard.cadence; });
        QObject::connect(&store, &Store::selectedProfileIDChanged, [&heard] { ++heard.profile; });
        QObject::connect(&store, &Store::lastReviewedAtChanged, [&heard] { ++heard.date; });
    }

    /// Another process's.
    Platform::FileUserDefaults onDisk() { return {m_files, m_url}; }

    void put(std::string_view key, Platform::DefaultsValue value)
    {
        ASSERT_TRUE(m_defaults.set(key, std::move(value)));
    }

    int m_argumentCount = 1;
    std::string m_name = "tests";
    char* m_arguments[2] = {m_name.data(), nullptr};
    QCoreApplication m_application{m_argumentCount, m_arguments};
    TestSupport::TemporaryTree m_tree;
    Platform::PosixFileManager m_files;
    Platform::FileURL m_url = m_tree.url("Karvello/preferences.json");
    Platform::FileUserDefaults m_defaults{m_files, m_url};
};

TEST_F(CleanupReviewPreferencesStoreTest, BeginsWithNoCadenceAndTheBalancedProfile)
{
    const Store store(m_defaults);
    EXPECT_EQ(store.cadence(), Cadence::off);
    EXPECT_EQ(store.selectedProfileID(), ID::balanced);
    EXPECT_EQ(store.selectedProfile().id, ID::balanced);
    EXPECT_EQ(store.lastReviewedAt(), std::nullopt);
    EXPECT_FALSE(store.lastReviewedDateTime().isValid());
}

TEST_F(CleanupReviewPreferencesStoreTest, KeepsWhatIsChosenForTheNextStart)
{
    Store store(m_defaults);
    EXPECT_TRUE(store.setCadence(Cadence::monthly));
    EXPECT_TRUE(store.selectProfile(ID::developerCaches));
    EXPECT_TRUE(store.markReviewed(kReviewedAt));

    auto others = onDisk();
    const Store next(others);
    for (const Store* const of : std::initializer_list<const Store*>{&store, &next}) {
        EXPECT_EQ(of->cadence(), Cadence::monthly);
        EXPECT_EQ(of->selectedProfile(), CleanupReviewProfile::profile(ID::developerCaches));
        EXPECT_EQ(of->lastReviewedAt(), kReviewedAt);
        EXPECT_EQ(of->property("cadence").toString(), QStringLiteral("monthly"));
        EXPECT_EQ(of->property("selectedProfileID").toString(), QStringLiteral("developerCaches"));
        EXPECT_EQ(of->property("lastReviewedAt").toDateTime().toMSecsSinceEpoch(), 1'778'307'200'500);
    }
    EXPECT_EQ(others.string("karvello.cleanupReviewLoop.cadence"), "monthly");
    EXPECT_EQ(others.string("karvello.cleanupReviewLoop.selectedProfileID"), "developerCaches");
    EXPECT_EQ(others.number("karvello.cleanupReviewLoop.lastReviewedAt"), 1'778'307'200.5);
}

TEST_F(CleanupReviewPreferencesStoreTest, ReadsAnUnknownCadenceAsOff)
{
    put(Store::cadenceDefaultsKey, std::string("daily"));
    put(Store::selectedProfileIDDefaultsKey, std::string("Balanced"));
    Store store(m_defaults);
    EXPECT_EQ(store.cadence(), Cadence::off);
    EXPECT_EQ(store.selectedProfileID(), ID::balanced);
    EXPECT_TRUE(store.setCadence(Cadence::off));
    EXPECT_EQ(m_defaults.string(Store::cadenceDefaultsKey), "off");
}

TEST_F(CleanupReviewPreferencesStoreTest, ReadsValuesOfAnotherTypeAsMissing)
{
    put(Store::cadenceDefaultsKey, std::int64_t{1});
    put(Store::selectedProfileIDDefaultsKey, Platform::DefaultsData{"downloads"});
    put(Store::lastReviewedAtDefaultsKey, std::string("1778307200"));
    EXPECT_EQ(CleanupReviewPreferences::read(m_defaults), CleanupReviewPreferences());
}

TEST_F(CleanupReviewPreferencesStoreTest, ReadsADateOfZeroOrBelowAsNeverReviewed)
{
    for (const double seconds : {0.0, -0.0, -1.0, -1e300}) {
        put(Store::lastReviewedAtDefaultsKey, seconds);
        EXPECT_EQ(Store(m_defaults).lastReviewedAt(), std::nullopt) << seconds;
    }
    put(Store::lastReviewedAtDefaultsKey, std::int64_t{1});
    EXPECT_EQ(Store(m_defaults).lastReviewedAt(), Date::fromUnixTime(1));
}

TEST_F(CleanupReviewPreferencesStoreTest, SurvivesADateFarAhead)
{
    put(Store::lastReviewedAtDefaultsKey, 1e300);
    const Store store(m_defaults);
    EXPECT_TRUE(store.lastReviewedDateTime().isValid());
    EXPECT_EQ(store.lastReviewedDateTime().toMSecsSinceEpoch(), 8'640'000'000'000'000);
    EXPECT_EQ(
        reviewStatus(Cadence::weekly, store.lastReviewedAt(), Date{}).kind, CleanupReviewCadenceStatusKind::upcoming);
}

TEST_F(CleanupReviewPreferencesStoreTest, TellsOfEachChangeOnce)
{
    Store store(m_defaults);
    Signals heard;
    count(store, heard);
    EXPECT_TRUE(store.setCadence(Cadence::weekly));
    EXPECT_EQ(heard, (Signals{.cadence = 1}));
    EXPECT_TRUE(store.selectProfile(ID::downloads));
    EXPECT_EQ(heard, (Signals{.cadence = 1, .profile = 1}));
    EXPECT_TRUE(store.markReviewed(kReviewedAt));
    EXPECT_EQ(heard, (Signals{.cadence = 1, .profile = 1, .date = 1}));
    EXPECT_TRUE(store.setCadence(Cadence::weekly));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(heard, (Signals{.cadence = 1, .profile = 1, .date = 1}));
}

TEST_F(CleanupReviewPreferencesStoreTest, StaysAsItWasWhereNothingCanBeStored)
{
    Store(m_defaults).setCadence(Cadence::weekly);
    TestSupport::FailingUserDefaults full(m_defaults);
    Store store(full);
    Signals heard;
    count(store, heard);
    full.failAllSaves();
    EXPECT_FALSE(store.setCadence(Cadence::monthly));
    EXPECT_FALSE(store.selectProfile(ID::downloads));
    EXPECT_FALSE(store.markReviewed(kReviewedAt));
    EXPECT_EQ(full.failureCount(), 3U);
    EXPECT_EQ(heard, Signals());
    EXPECT_EQ(store.cadence(), Cadence::weekly);
    EXPECT_EQ(store.selectedProfileID(), ID::balanced);
    EXPECT_EQ(store.lastReviewedAt(), std::nullopt);
    full.failNoSave();
    EXPECT_TRUE(store.setCadence(Cadence::monthly));
    EXPECT_EQ(store.cadence(), Cadence::monthly);
}

TEST_F(CleanupReviewPreferencesStoreTest, TakesOverWhatAnotherProcessStores)
{
    const Store store(m_defaults);
    Signals heard;
    count(store, heard);
    auto others = onDisk();
    ASSERT_TRUE(Store(others).markReviewed(kReviewedAt));
    ASSERT_TRUE(others.set("karvello.other", true));
    // It may be another thread that notices.
    std::thread([this] { m_defaults.refresh(); }).join();
    EXPECT_EQ(heard, Signals()) << "changes come on the main thread";
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(heard, (Signals{.date = 1}));
    EXPECT_EQ(store.lastReviewedAt(), kReviewedAt);
}

TEST_F(CleanupReviewPreferencesStoreTest, HearsNothingMoreOnceItIsGone)
{
    {
        const Store store(m_defaults);
        put(Store::cadenceDefaultsKey, std::string("weekly"));
    }
    put(Store::cadenceDefaultsKey, std::string("monthly"));
    EXPECT_NO_FATAL_FAILURE(QCoreApplication::sendPostedEvents());
}

} // namespace
} // namespace KarvelloUI
