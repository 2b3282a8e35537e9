#include "KarvelloUI/Stores/SystemMetricHistoryStore.h"

#include "Tests/KarvelloUI/Stores/PreferencesFixture.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace KarvelloUI {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SystemMetricHistoryStoreTest : public StoresTests::PreferencesTest {
protected:
    void setStored(Platform::DefaultsValue value) { ASSERT_TRUE(m_file.set(m_key, std::move(value))); }

    std::string m_key{"karvello.systemMetricHistory.v1"};
    SystemMetricHistoryStore m_store{m_defaults};
    SystemMetricHistory m_history{{0.25}, {0.5, 0.75}, {}};
};

} // namespace

TEST_F(SystemMetricHistoryStoreTest, GivesBackWhatWasSaved)
{
    EXPECT_EQ(m_store.load(), SystemMetricHistory());
    m_store.save(m_history);
    EXPECT_TRUE(m_file.data(m_key));
    EXPECT_EQ(m_store.load(), m_history);
    m_store.clear();
    EXPECT_EQ(m_file.value(m_key), std::nullopt);
    EXPECT_EQ(m_store.load(), SystemMetricHistory());
}

TEST_F(SystemMetricHistoryStoreTest, LoadsAStoredHistoryOfFortySamplesAsTheLastTwentyFour)
{
    std::string samples;
    for (int index = 0; index < 40; ++index) {
        samples += fmt::format("{}{}", index == 0 ? "" : ",", index / 100.0);
    }
    setStored(Platform::DefaultsData{
        fmt::format(R"({{"cpuLoad":[{0}],"memoryUsage":[{0}],"thermalPressure":[{0}]}})", samples)});
    const auto history = m_store.load();
    for (const auto* const series : {&history.cpuLoad(), &history.memoryUsage(), &history.thermalPressure()}) {
        ASSERT_EQ(series->size(), 24);
        EXPECT_EQ(series->front(), 0.16);
        EXPECT_EQ(series->back(), 0.39);
    }
}

TEST_F(SystemMetricHistoryStoreTest, LoadsAnObjectWithOnlyOneSeriesWithTwoEmptyOnes)
{
    setStored(Platform::DefaultsData{R"({"cpuLoad":[0.5]})"});
    const auto history = m_store.load();
    EXPECT_THAT(history.cpuLoad(), ElementsAre(0.5));
    EXPECT_THAT(history.memoryUsage(), IsEmpty());
    EXPECT_THAT(history.thermalPressure(), IsEmpty());
}

TEST_F(SystemMetricHistoryStoreTest, TakesUndecodableDataAway)
{
    for (const auto* const damaged : {"", "{", "[]", "null", R"({"cpuLoad":0.5})", R"({"cpuLoad":["0.5"]})", "\xFF"}) {
        setStored(Platform::DefaultsData{damaged});
        EXPECT_EQ(m_store.load(), SystemMetricHistory()) << damaged;
        EXPECT_EQ(m_file.value(m_key), std::nullopt) << damaged;
    }
}

TEST_F(SystemMetricHistoryStoreTest, IsEmptyWhereUndecodableDataCannotBeTakenAway)
{
    setStored(Platform::DefaultsData{"{"});
    m_defaults.failAllSaves();
    EXPECT_EQ(m_store.load(), SystemMetricHistory());
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_TRUE(m_file.data(m_key));
}

TEST_F(SystemMetricHistoryStoreTest, TakesNothingButDataForAHistory)
{
    setStored(std::string(R"({"cpuLoad":[0.5]})"));
    EXPECT_EQ(m_store.load(), SystemMetricHistory());
    EXPECT_TRUE(m_file.string(m_key)) << "it is not ours";
}

TEST_F(SystemMetricHistoryStoreTest, DropsAFailedSaveWithoutAWord)
{
    m_store.save(m_history);
    m_defaults.failAllSaves();
    m_store.save(SystemMetricHistory({1}, {1}, {1}));
    m_store.clear();
    EXPECT_EQ(m_defaults.failureCount(), 2);
    EXPECT_EQ(m_store.load(), m_history);
}

TEST_F(SystemMetricHistoryStoreTest, KeepsHistoriesUnderOtherKeysApart)
{
    const SystemMetricHistoryStore other(m_defaults, "other");
    other.save(m_history);
    EXPECT_EQ(m_store.load(), SystemMetricHistory());
    EXPECT_EQ(other.load(), m_history);
}

} // namespace KarvelloUI
