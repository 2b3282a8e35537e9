#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <gtest/gtest.h>
#include <map>

namespace KarvelloUI {
namespace {

using Actor = IOSStorageChecklistActor;
using Status = IOSStorageChecklistStatus;
using StepID = IOSStorageChecklistStepID;

TEST(IOSStorageChecklistCopy, ListsAllStepsInTheirOrder)
{
    const auto steps = kEnglish.iOSStorageChecklistSteps(
        [](StepID id) { return id == StepID::photosReview ? Status::reviewed : Status::notStarted; });
    std::vector<StepID> ids;
    for (const IOSStorageChecklistStep& step : steps) {
        ids.push_back(step.id);
        EXPECT_EQ(step.status, step.id == StepID::photosReview ? Status::reviewed : Status::notStarted);
        EXPECT_FALSE(step.systemImage.empty());
    }
    const auto all = Platform::allCases<StepID>();
    EXPECT_EQ(ids, std::vector<StepID>(all.begin(), all.end()));
}

TEST(IOSStorageChecklistCopy, SaysWhoDoesAStep)
{
    const std::map<StepID, Actor> expected{{StepID::iphoneStorageRecommendations, Actor::appleSettings},
        {StepID::offloadUnusedApps, Actor::appleSettings}, {StepID::photosReview, Actor::appleApp},
        {StepID::messagesAttachments, Actor::appleApp}, {StepID::messagesRetentionPolicy, Actor::appleSettings},
        {StepID::safariWebsiteData, Actor::appleSettings}, {StepID::karvelloSandbox, Actor::karvelloSandbox}};
    for (const auto& [id, actor] : expected) {
        EXPECT_EQ(kEnglish.iOSStorageChecklistStep(id, Status::done).actor, actor);
    }
}

TEST(IOSStorageChecklistCopy, GivesAppsOwnWordsForWaysThroughSettings)
{
    const IOSStorageChecklistStep step = kEnglish.iOSStorageChecklistStep(StepID::offloadUnusedApps, Status::done);
    EXPECT_EQ(step.title, "Offload unused apps");
    EXPECT_EQ(step.path, "Settings > Apps > App Store > Offload Unused Apps (or Settings > App Store on older iOS)");
    EXPECT_EQ(KarvelloCopy{AppLanguage::french}.iOSStorageChecklistProgress(2, 7), "2 de 7 examiné");
    EXPECT_EQ(KarvelloCopy{AppLanguage::korean}.iOSStorageChecklistProgress(2, 7), "7개 중 2개 검토함");
}

} // namespace
} // namespace KarvelloUI
