#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequestStore.h"
#include "KarvelloUI/Stores/KarvelloWindowID.h"
#include "Tests/KarvelloUI/Stores/PreferencesFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using KarvelloUI::KarvelloDashboardLaunchRequest;
using KarvelloUI::MacDashboardSection;
using Destination = KarvelloUI::KarvelloDashboardLaunchDestination;
using Store = KarvelloUI::KarvelloDashboardLaunchRequestStore;
using Platform::Date;

class KarvelloDashboardLaunchRequestStoreTest : public StoresTests::PreferencesTest {
protected:
    void put(std::string_view key, Platform::DefaultsValue value)
    {
        ASSERT_TRUE(m_defaults.set(key, std::move(value)));
    }

    void expectEmpty() const
    {
        EXPECT_EQ(m_defaults.value("karvello.dashboardLaunch.destination"), std::nullopt);
        EXPECT_EQ(m_defaults.value("karvello.dashboardLaunch.requestID"), std::nullopt);
    }
};

TEST(KarvelloDashboardLaunchDestination, LeadsToASection)
{
    EXPECT_EQ(sectionOf(Destination::dashboard), MacDashboardSection::dashboard);
    EXPECT_EQ(sectionOf(Destination::cleanupReview), MacDashboardSection::cleanup);
    EXPECT_EQ(sectionOf(Destination::memoryReview), MacDashboardSection::memoryAnalysis);
    EXPECT_EQ(sectionOf(Destination::systemReview), MacDashboardSection::system);
}

TEST(KarvelloWindowID, IsThatOfTheDashboard)
{
    EXPECT_EQ(KarvelloUI::KarvelloWindowID::dashboard, "karvello-dashboard");
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, EachDestinationComesBackAsItWasStored)
{
    const std::vector<std::string> raw{"dashboard", "cleanupReview", "memoryReview", "systemReview"};
    std::vector<std::string> stored;
    for (const auto destination : Platform::allCases<Destination>()) {
        EXPECT_EQ(Store::request(destination, m_defaults, "id"), "id");
        stored.push_back(m_file.string("karvello.dashboardLaunch.destination").value_or(""));
        EXPECT_EQ(Store::pendingRequest(m_defaults),
            (KarvelloDashboardLaunchRequest{.destination = destination, .requestID = "id"}));
    }
    EXPECT_EQ(stored, raw);
    EXPECT_EQ(m_file.string("karvello.dashboardLaunch.requestID"), "id");
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, ASecondRequestForTheSameDestinationDiffersEvenWithinTheSameSecond)
{
    const auto now = [] { return Date::fromSecondsSince1970(1'763'743'934.25); };
    const auto first = Store::request(Destination::systemReview, m_defaults, std::nullopt, now);
    const auto second = Store::request(Destination::systemReview, m_defaults, std::nullopt, now);
    ASSERT_TRUE(first && second);
    EXPECT_NE(*first, *second);
    EXPECT_THAT(*first, testing::MatchesRegex("1763743934\\.25-[0-9A-F-]{36}"));
    EXPECT_EQ(Store::pendingRequest(m_defaults)->requestID, *second);
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, ReadingARequestLeavesItThere)
{
    ASSERT_TRUE(Store::request(Destination::cleanupReview, m_defaults, "id"));
    const auto saves = m_defaults.saveCount();
    EXPECT_TRUE(Store::pendingRequest(m_defaults));
    EXPECT_TRUE(Store::pendingRequest(m_defaults));
    EXPECT_EQ(m_defaults.saveCount(), saves);
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, ARequestIsConsumedOnce)
{
    ASSERT_TRUE(Store::request(Destination::memoryReview, m_defaults));
    EXPECT_EQ(Store::consumePending(m_defaults), Destination::memoryReview);
    expectEmpty();
    EXPECT_EQ(Store::consumePending(m_defaults), std::nullopt);
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, ARequestSurvivesTheProcess)
{
    ASSERT_TRUE(Store::request(Destination::cleanupReview, m_defaults));
    Platform::FileUserDefaults later(m_files, m_file.fileURL());
    EXPECT_EQ(Store::consumePending(later), Destination::cleanupReview);
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, AnUnknownDestinationIsNoRequestAndIsRemoved)
{
    put("karvello.dashboardLaunch.destination", std::string("cleanupreview"));
    put("karvello.dashboardLaunch.requestID", std::string("id"));
    EXPECT_EQ(Store::pendingRequest(m_defaults), std::nullopt);
    EXPECT_EQ(Store::consumePending(m_defaults), std::nullopt);
    expectEmpty();
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, AValidDestinationWithAnEmptyRequestIDIsNoRequest)
{
    put("karvello.dashboardLaunch.destination", std::string("cleanupReview"));
    put("karvello.dashboardLaunch.requestID", std::string());
    EXPECT_EQ(Store::pendingRequest(m_defaults), std::nullopt);
    EXPECT_EQ(Store::consumePending(m_defaults), std::nullopt);
    expectEmpty();
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, HalfARequestOrValuesOfAnotherTypeAreNone)
{
    put("karvello.dashboardLaunch.destination", std::string("cleanupReview"));
    EXPECT_EQ(Store::pendingRequest(m_defaults), std::nullopt);
    put("karvello.dashboardLaunch.requestID", std::int64_t{7});
    EXPECT_EQ(Store::pendingRequest(m_defaults), std::nullopt);
    Store::clear(m_defaults);
    put("karvello.dashboardLaunch.requestID", std::string("id"));
    EXPECT_EQ(Store::pendingRequest(m_defaults), std::nullopt);
    put("karvello.dashboardLaunch.destination", true);
    EXPECT_EQ(Store::consumePending(m_defaults), std::nullopt);
    expectEmpty();
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, ARequestThatCannotBeStoredIsToldAndLeavesTheOldOne)
{
    ASSERT_TRUE(Store::request(Destination::memoryReview, m_defaults, "old"));
    m_defaults.failSave(1);
    EXPECT_FALSE(Store::request(Destination::systemReview, m_defaults, "new"));
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_EQ(Store::pendingRequest(m_defaults),
        (KarvelloDashboardLaunchRequest{.destination = Destination::memoryReview, .requestID = "old"}));
}

TEST_F(KarvelloDashboardLaunchRequestStoreTest, BothKeysAreStoredAndRemovedAtOnce)
{
    std::vector<std::size_t> counts;
    const auto observation =
        m_defaults.observe([&counts](std::span<const std::string> keys) { counts.push_back(keys.size()); });
    ASSERT_TRUE(Store::request(Destination::memoryReview, m_defaults));
    Store::clear(m_defaults);
    EXPECT_EQ(counts, (std::vector<std::size_t>{2, 2}));
    expectEmpty();
}

} // namespace
