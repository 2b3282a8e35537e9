#include "Tests/KarvelloUI/MenuBar/MenuBarModelFixture.h"

namespace {

using namespace MenuBarTests;
using testing::IsEmpty;
using testing::SizeIs;

class KarvelloMenuBarDeliveryTest : public MenuBarModelTest {
protected:
    /// The desktop has the notification, and has not yet said whether it is shown.
    void startDelivery()
    {
        makeEnabled();
        becomeStrained();
        m_desktop->answerCheck(true);
        ASSERT_EQ(m_desktop->waitingDeliveries(), 1);
    }

    void expectNotRecorded() const
    {
        EXPECT_EQ(m_model->lastReminderDeliveredAt(), std::nullopt);
        EXPECT_EQ(m_file.value(kDeliveredKey), std::nullopt);
    }
};

TEST_F(KarvelloMenuBarDeliveryTest, AllRemindersOfALookGoIntoOneNotification)
{
    makeEnabled();
    becomeStrained(strained("Critical"));
    m_desktop->answerCheck(true);
    ASSERT_THAT(m_desktop->notifications, SizeIs(1));
    const auto& notification = m_desktop->notifications.front();
    EXPECT_EQ(notification.identifier, "karvello.menu-bar-reminder.lowDiskSpace.highMemoryPressure.thermalPressure");
    EXPECT_EQ(notification.title, "Karvello Critical Status");
    EXPECT_THAT(notification.body, testing::StartsWith("Free space 5% · 50 bytes left, High memory"));
}

TEST_F(KarvelloMenuBarDeliveryTest, TheIdentifierNamesTheKindsInTheirOrder)
{
    makeEnabled();
    auto machine = lowDisk();
    machine.systemSnapshot.thermalState = "Serious";
    becomeStrained(machine);
    m_desktop->answerCheck(true);
    EXPECT_EQ(m_desktop->notifications.at(0).identifier, "karvello.menu-bar-reminder.lowDiskSpace.thermalPressure");
}

TEST_F(KarvelloMenuBarDeliveryTest, TheTextsAreInTheLanguageOfTheMoment)
{
    makeEnabled();
    m_language = KarvelloUI::AppLanguage::korean;
    becomeStrained();
    m_desktop->answerCheck(true);
    EXPECT_EQ(m_desktop->notifications.at(0).title, "Karvello 확인 필요");
}

TEST_F(KarvelloMenuBarDeliveryTest, WhatWasDeliveredIsRecorded)
{
    startDelivery();
    m_now = m_now.addingSeconds(9);
    int dates = 0;
    QObject::connect(m_model.get(), &KarvelloMenuBarStatusModel::lastReminderDeliveredAtChanged, [&dates] { ++dates; });
    m_desktop->answerDelivery();
    EXPECT_EQ(m_model->lastReminderDeliveredAt(), kStart);
    EXPECT_EQ(m_file.number(kDeliveredKey), kStart.secondsSince1970());
    EXPECT_EQ(m_model->property("lastReminderDeliveredAt").toDateTime().toSecsSinceEpoch(), 1'778'307'200);
    EXPECT_EQ(dates, 1);
}

TEST_F(KarvelloMenuBarDeliveryTest, WithoutTheUsersWishNothingGoesOutAndTheRemindersAreShown)
{
    make();
    becomeStrained();
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
    EXPECT_THAT(m_model->activeReminders(), testing::ElementsAre(kLowDisk));
}

TEST_F(KarvelloMenuBarDeliveryTest, ACalmMachineAsksNobody)
{
    makeEnabled();
    becomeStrained(calm());
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
}

TEST_F(KarvelloMenuBarDeliveryTest, ALastDelivery21599SecondsAgoHoldsTheNextBack)
{
    seed(kDeliveredKey, kStart.addingSeconds(-21599).secondsSince1970());
    makeEnabled();
    becomeStrained();
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
    EXPECT_THAT(m_model->activeReminders(), SizeIs(1));
}

TEST_F(KarvelloMenuBarDeliveryTest, ALastDelivery21600SecondsAgoDoesNot)
{
    seed(kDeliveredKey, kStart.addingSeconds(-21600).secondsSince1970());
    makeEnabled();
    becomeStrained();
    m_desktop->answerCheck(true);
    EXPECT_EQ(m_desktop->waitingDeliveries(), 1);
}

TEST_F(KarvelloMenuBarDeliveryTest, ANewKindWithinTheIntervalWaits)
{
    startDelivery();
    m_desktop->answerDelivery();
    m_now = kStart.addingSeconds(21599);
    becomeStrained(strained("Critical"));
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
    m_now = kStart.addingSeconds(21600);
    refreshNow();
    m_desktop->answerCheck(true);
    EXPECT_THAT(m_desktop->notifications, SizeIs(2));
}

TEST_F(KarvelloMenuBarDeliveryTest, TheStoredDateCountsOnlyAbove0)
{
    for (const double seconds : {0.0, -1.0}) {
        seed(kDeliveredKey, seconds);
        make();
        EXPECT_EQ(m_model->lastReminderDeliveredAt(), std::nullopt);
    }
    seed(kDeliveredKey, std::string("1778307200"));
    make();
    EXPECT_EQ(m_model->lastReminderDeliveredAt(), std::nullopt);
    seed(kDeliveredKey, 1.5);
    make();
    EXPECT_EQ(m_model->lastReminderDeliveredAt(), Date::fromSecondsSince1970(1.5));
}

TEST_F(KarvelloMenuBarDeliveryTest, ASlowDesktopHoldsUpNoLook)
{
    makeEnabled();
    becomeStrained();
    EXPECT_FALSE(m_model->isRefreshing());
    refreshNow();
    EXPECT_EQ(m_snapshotCount, 2);
}

TEST_F(KarvelloMenuBarDeliveryTest, OnlyOneDeliveryIsOnItsWay)
{
    makeEnabled();
    becomeStrained();
    refreshNow();
    EXPECT_EQ(m_desktop->waitingChecks(), 1);
    m_desktop->answerCheck(true);
    refreshNow();
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
    EXPECT_THAT(m_desktop->notifications, SizeIs(1));
}

TEST_F(KarvelloMenuBarDeliveryTest, TheBodyIsOfTheLookThatCalledForIt)
{
    makeEnabled();
    becomeStrained();
    m_machine = withDisk(1000, 10);
    refreshNow();
    m_desktop->answerCheck(true);
    EXPECT_THAT(m_desktop->notifications.at(0).body, testing::StartsWith("Free space 5%"));
}

TEST_F(KarvelloMenuBarDeliveryTest, AFailedDeliveryIsToldAndTriedAgainAtTheNextLook)
{
    startDelivery();
    int errors = 0;
    QObject::connect(m_model.get(), &KarvelloMenuBarStatusModel::lastReminderErrorChanged, [&errors] { ++errors; });
    m_desktop->answerDelivery(std::unexpected("The desktop said no."));
    EXPECT_EQ(m_model->lastReminderError(), "The desktop said no.");
    EXPECT_EQ(m_model->property("lastReminderError").toString().toStdString(), "The desktop said no.");
    EXPECT_EQ(errors, 1);
    expectNotRecorded();
    refreshNow();
    m_desktop->answerCheck(true);
    EXPECT_EQ(m_model->lastReminderError(), "The desktop said no.");
    m_desktop->answerDelivery();
    EXPECT_EQ(m_model->lastReminderError(), std::nullopt);
    EXPECT_EQ(m_model->lastReminderDeliveredAt(), kStart);
}

TEST_F(KarvelloMenuBarDeliveryTest, TurningOffDuringTheQuestionStopsTheDelivery)
{
    makeEnabled();
    becomeStrained();
    m_model->applyRemindersEnabled(false);
    m_desktop->answerCheck(true);
    EXPECT_THAT(m_desktop->notifications, IsEmpty());
    expectState(false, false);
}

TEST_F(KarvelloMenuBarDeliveryTest, AStaleRefusalDoesNotOverrideANewerChoice)
{
    makeEnabled();
    becomeStrained();
    m_model->applyRemindersEnabled(false);
    m_model->applyRemindersEnabled(true);
    m_desktop->answerRequest(true);
    m_desktop->answerCheck(false);
    expectState(true, false);
    EXPECT_EQ(m_file.boolean(kEnabledKey), true);
    // The next look asks again.
    refreshNow();
    EXPECT_EQ(m_desktop->waitingChecks(), 1);
}

TEST_F(KarvelloMenuBarDeliveryTest, ADesktopThatAllowsNothingAnyMoreTurnsRemindersOff)
{
    makeEnabled();
    becomeStrained();
    m_desktop->answerCheck(false);
    expectState(false, true);
    EXPECT_EQ(m_file.boolean(kEnabledKey), false);
    EXPECT_EQ(m_model->lastReminderError(), std::nullopt);
    EXPECT_THAT(m_desktop->notifications, IsEmpty());
    refreshNow();
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
}

TEST_F(KarvelloMenuBarDeliveryTest, TheSpacingIsLookedAtAgainAfterTheQuestion)
{
    makeEnabled();
    becomeStrained();
    // The clock is set back while the desktop is asked: the last delivery lies in the future now.
    m_now = kStart.addingSeconds(-1);
    m_desktop->answerCheck(true);
    ASSERT_EQ(m_desktop->waitingDeliveries(), 1);
    m_desktop->answerDelivery();
    m_now = kStart.addingSeconds(21600);
    refreshNow();
    m_now = kStart.addingSeconds(-1000);
    m_desktop->answerCheck(true);
    EXPECT_EQ(m_desktop->waitingDeliveries(), 0);
    m_now = kStart.addingSeconds(21600);
    refreshNow();
    EXPECT_EQ(m_desktop->waitingChecks(), 1);
}

TEST_F(KarvelloMenuBarDeliveryTest, TurningOffWhileTheTextIsMadeStopsTheDelivery)
{
    makeEnabled();
    becomeStrained();
    m_whenAskedForTheLanguage = [this] { m_model->applyRemindersEnabled(false); };
    m_desktop->answerCheck(true);
    EXPECT_THAT(m_desktop->notifications, IsEmpty());
}

TEST_F(KarvelloMenuBarDeliveryTest, TurningOffWhileTheTextIsMadeDoesNotBlockLaterOnes)
{
    makeEnabled();
    becomeStrained();
    m_whenAskedForTheLanguage = [this] { m_model->setRemindersEnabled(true); };
    m_desktop->answerCheck(true);
    EXPECT_THAT(m_desktop->notifications, IsEmpty());
    m_whenAskedForTheLanguage = {};
    m_loop.handleEvents();
    m_desktop->answerRequest(true);
    m_desktop->answerCheck(true);
    EXPECT_THAT(m_desktop->notifications, SizeIs(1));
}

TEST_F(KarvelloMenuBarDeliveryTest, ANotificationInProgressWhileTheUserTurnsRemindersOffIsNotRecorded)
{
    startDelivery();
    m_model->applyRemindersEnabled(false);
    m_desktop->answerDelivery();
    expectNotRecorded();
    expectState(false, false);
}

TEST_F(KarvelloMenuBarDeliveryTest, ANotificationInProgressDuringAChangeOfMindAndBackIsNotRecorded)
{
    startDelivery();
    m_model->applyRemindersEnabled(false);
    m_model->applyRemindersEnabled(true);
    m_desktop->answerRequest(true);
    m_desktop->answerDelivery();
    expectNotRecorded();
    expectState(true, false);
    // Nothing blocks the next one.
    refreshNow();
    EXPECT_EQ(m_desktop->waitingChecks(), 1);
}

TEST_F(KarvelloMenuBarDeliveryTest, AFailureAfterTheUserTurnedRemindersOffIsStillTold)
{
    startDelivery();
    m_model->applyRemindersEnabled(false);
    m_desktop->answerDelivery(std::unexpected("Too late."));
    EXPECT_EQ(m_model->lastReminderError(), "Too late.");
    expectState(false, false);
}

TEST_F(KarvelloMenuBarDeliveryTest, ADateThatCannotBeStoredStillSpacesThisProcess)
{
    startDelivery();
    m_defaults.failSave(1);
    m_desktop->answerDelivery();
    EXPECT_EQ(m_defaults.failureCount(), 1);
    EXPECT_EQ(m_model->lastReminderDeliveredAt(), kStart);
    refreshNow();
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
}

TEST_F(KarvelloMenuBarDeliveryTest, AnObserverMayDestroyTheModelWhenANotificationIsThere)
{
    startDelivery();
    // The scheduler goes with the model; its answer is under way.
    QObject::connect(
        m_model.get(), &KarvelloMenuBarStatusModel::lastReminderDeliveredAtChanged, [this] { m_model.reset(); });
    m_desktop->answerDelivery();
    EXPECT_EQ(m_model, nullptr);
}

} // namespace
