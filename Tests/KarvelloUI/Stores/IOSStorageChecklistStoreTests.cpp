#include "KarvelloUI/Stores/IOSStorageChecklistStore.h"

#include "Platform/Base/JSONReader.h"
#include "Tests/KarvelloUI/Stores/PreferencesFixture.h"

#include <string>
#include <vector>

namespace KarvelloUI {

namespace {

using enum IOSStorageChecklistStatus;
using enum IOSStorageChecklistStepID;
using Platform::DefaultsData;
using Platform::DefaultsDictionary;

class IOSStorageChecklistStoreTest : public StoresTests::PreferencesTest {
protected:
    void setStored(Platform::DefaultsValue value) { ASSERT_TRUE(m_file.set(m_key, std::move(value))); }

    void expectNothingStarted() const
    {
        const auto statuses = m_store.statuses();
        EXPECT_EQ(statuses.size(), 7);
        for (const auto& [step, status] : statuses) {
            EXPECT_EQ(status, notStarted) << Platform::rawValue(step);
        }
    }

    std::string m_key{"karvello.iosStorageChecklist.statuses.v1"};
    IOSStorageChecklistStore m_store{m_defaults};
};

} // namespace

TEST_F(IOSStorageChecklistStoreTest, ReportsAllSevenStepsOfAnEmptyStoreAsNotStarted)
{
    expectNothingStarted();
    EXPECT_EQ(m_store.status(photosReview), notStarted);
}

TEST_F(IOSStorageChecklistStoreTest, TellsTheStepsInTheirOrder)
{
    const std::vector<std::string_view> expected{"iphoneStorageRecommendations", "offloadUnusedApps", "photosReview",
        "messagesAttachments", "messagesRetentionPolicy", "safariWebsiteData", "karvelloSandbox"};
    std::vector<std::string_view> names;
    for (const auto& [step, status] : m_store.statuses()) {
        names.push_back(Platform::rawValue(step));
    }
    EXPECT_EQ(names, expected);
}

TEST_F(IOSStorageChecklistStoreTest, StoresAllStepsForAChangeOfOne)
{
    ASSERT_TRUE(m_store.setStatus(done, photosReview));
    ASSERT_TRUE(m_store.setStatus(reviewed, karvelloSandbox));
    EXPECT_EQ(m_store.status(photosReview), done);
    EXPECT_EQ(IOSStorageChecklistStore(m_file).status(karvelloSandbox), reviewed);
    const auto bytes = m_file.data(m_key);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(Platform::JSONReader::parse(*bytes),
        Platform::JSONReader::parse(
            R"({"statuses":{"iphoneStorageRecommendations":"notStarted","offloadUnusedApps":"notStarted",)"
            R"("photosReview":"done","messagesAttachments":"notStarted","messagesRetentionPolicy":"notStarted",)"
            R"("safariWebsiteData":"notStarted","karvelloSandbox":"reviewed"}})"));
}

TEST_F(IOSStorageChecklistStoreTest, ReadsAnUnknownStatusAsNotStarted)
{
    setStored(DefaultsData{R"({"statuses":{"photosReview":"paused","offloadUnusedApps":"done"}})"});
    EXPECT_EQ(m_store.status(photosReview), notStarted);
    EXPECT_EQ(m_store.status(offloadUnusedApps), done);
}

TEST_F(IOSStorageChecklistStoreTest, DropsAnUnknownStep)
{
    setStored(DefaultsData{R"({"statuses":{"musicReview":"done","photosReview":"done"}})"});
    EXPECT_EQ(m_store.statuses().size(), 7);
    ASSERT_TRUE(m_store.setStatus(reviewed, offloadUnusedApps));
    EXPECT_EQ(m_store.status(photosReview), done);
    EXPECT_EQ(m_file.data(m_key)->find("musicReview"), std::string::npos);
}

TEST_F(IOSStorageChecklistStoreTest, ReadsTheOlderPlainDictionaryAndRewritesItAtTheNextChange)
{
    setStored(DefaultsDictionary{{"photosReview", "done"}, {"offloadUnusedApps", "paused"}, {"musicReview", "done"}});
    EXPECT_EQ(m_store.status(photosReview), done);
    EXPECT_EQ(m_store.status(offloadUnusedApps), notStarted);
    EXPECT_TRUE(m_file.dictionary(m_key)) << "reading changes nothing";
    ASSERT_TRUE(m_store.setStatus(notStarted, offloadUnusedApps));
    EXPECT_TRUE(m_file.data(m_key));
    EXPECT_EQ(m_store.status(photosReview), done);
}

TEST_F(IOSStorageChecklistStoreTest, StartsAnewFromWhatCannotBeRead)
{
    const std::vector<Platform::DefaultsValue> unreadable{DefaultsData{"{"}, DefaultsData{""}, DefaultsData{"[]"},
        DefaultsData{R"({"statuses":{"photosReview":1}})"}, DefaultsData{R"({"photosReview":"done"})"},
        std::string("done"), std::int64_t{1}};
    for (const auto& value : unreadable) {
        setStored(value);
        expectNothingStarted();
        EXPECT_EQ(m_file.value(m_key), value) << "reading changes nothing";
    }
    ASSERT_TRUE(m_store.setStatus(done, photosReview));
    EXPECT_EQ(m_store.status(photosReview), done);
}

TEST_F(IOSStorageChecklistStoreTest, ReturnsAllStepsToNotStartedOnAReset)
{
    ASSERT_TRUE(m_store.setStatus(done, photosReview));
    ASSERT_TRUE(m_store.reset());
    expectNothingStarted();
    EXPECT_EQ(m_file.value(m_key), std::nullopt);
}

TEST_F(IOSStorageChecklistStoreTest, LeavesEveryStatusAsItWasWhereItCannotBeSaved)
{
    ASSERT_TRUE(m_store.setStatus(done, photosReview));
    m_defaults.failAllSaves();
    EXPECT_EQ(m_store.setStatus(reviewed, photosReview).error().kind, Platform::FileErrorKind::outOfSpace);
    EXPECT_FALSE(m_store.reset());
    EXPECT_EQ(m_defaults.failureCount(), 2);
    EXPECT_EQ(m_store.status(photosReview), done);
}

} // namespace KarvelloUI
