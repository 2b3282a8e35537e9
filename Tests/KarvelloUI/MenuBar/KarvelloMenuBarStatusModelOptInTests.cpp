#include "KarvelloUI/MenuBar/DisabledMenuBarReminderScheduler.h"
#include "Tests/KarvelloUI/MenuBar/MenuBarModelFixture.h"

namespace {

using namespace MenuBarTests;
using testing::SizeIs;

class KarvelloMenuBarOptInTest : public MenuBarModelTest {
protected:
    /// Applies a wish at once and counts when it is through.
    void apply(bool isEnabled)
    {
        m_model->applyRemindersEnabled(isEnabled, [this] { ++m_applied; });
    }

    /// Every value that the key has had on its way.
    void watchStoredChoices()
    {
        m_observation = m_defaults.observe([this](std::span<const std::string> keys) {
            if (std::ranges::count(keys, kEnabledKey) > 0) {
                m_storedChoices.push_back(m_defaults.boolean(kEnabledKey));
            }
        });
    }

    int m_applied = 0;
    std::vector<std::optional<bool>> m_storedChoices;
    Platform::UserDefaults::Observation m_observation;
};

TEST_F(KarvelloMenuBarOptInTest, IsOffUnlessItWasChosen)
{
    make();
    expectState(false, false);
    EXPECT_EQ(m_file.value(kEnabledKey), std::nullopt);
}

TEST_F(KarvelloMenuBarOptInTest, AGrantTurnsItOn)
{
    make();
    apply(true);
    expectState(false, false);
    EXPECT_EQ(m_applied, 0);
    m_desktop->answerRequest(true);
    expectState(true, false);
    EXPECT_EQ(m_file.boolean(kEnabledKey), true);
    EXPECT_EQ(m_applied, 1);
}

TEST_F(KarvelloMenuBarOptInTest, ARefusalIsDenied)
{
    make();
    apply(true);
    m_desktop->answerRequest(false);
    expectState(false, true);
    EXPECT_EQ(m_file.boolean(kEnabledKey), false);
    EXPECT_EQ(m_applied, 1);
}

TEST_F(KarvelloMenuBarOptInTest, ARefusalOfWhatWasOnIsDenied)
{
    makeEnabled();
    apply(true);
    m_desktop->answerRequest(false);
    expectState(false, true);
    EXPECT_EQ(m_file.boolean(kEnabledKey), false);
}

TEST_F(KarvelloMenuBarOptInTest, AGrantEndsTheDenial)
{
    make();
    apply(true);
    m_desktop->answerRequest(false);
    apply(true);
    m_desktop->answerRequest(true);
    expectState(true, false);
}

TEST_F(KarvelloMenuBarOptInTest, TurningOffNeedsNoAnswerAndEndsTheDenialToo)
{
    makeEnabled();
    apply(false);
    expectState(false, false);
    EXPECT_EQ(m_file.boolean(kEnabledKey), false);
    EXPECT_EQ(m_applied, 1);
    apply(true);
    m_desktop->answerRequest(false);
    apply(false);
    expectState(false, false);
}

TEST_F(KarvelloMenuBarOptInTest, AReminderThatWaitsGoesOutAtOnce)
{
    m_first = lowDisk();
    make();
    apply(true);
    m_desktop->answerRequest(true);
    EXPECT_EQ(m_applied, 0);
    m_desktop->answerCheck(true);
    m_desktop->answerDelivery();
    EXPECT_EQ(m_applied, 1);
    EXPECT_THAT(m_desktop->notifications, SizeIs(1));
}

TEST_F(KarvelloMenuBarOptInTest, AWishIsAppliedFromTheEventLoop)
{
    make();
    m_model->setRemindersEnabled(true);
    EXPECT_EQ(m_desktop->waitingRequests(), 0);
    m_loop.handleEvents();
    m_desktop->answerRequest(true);
    expectState(true, false);
}

TEST_F(KarvelloMenuBarOptInTest, TwoQuickWishesTrueThenFalseEndOffAndNoTrueIsStored)
{
    make();
    watchStoredChoices();
    m_model->setRemindersEnabled(true);
    m_model->setRemindersEnabled(false);
    m_loop.handleEvents();
    m_desktop->answerRequest(true);
    m_loop.handleEvents();
    expectState(false, false);
    EXPECT_THAT(m_storedChoices, testing::Not(testing::Contains(true)));
}

TEST_F(KarvelloMenuBarOptInTest, TwoQuickWishesEndOffAlsoIfTheDesktopRefuses)
{
    make();
    m_model->setRemindersEnabled(true);
    m_model->setRemindersEnabled(false);
    m_loop.handleEvents();
    m_desktop->answerRequest(false);
    expectState(false, false);
}

TEST_F(KarvelloMenuBarOptInTest, AnAnswerToAnEarlierWishDoesNotCount)
{
    make();
    apply(true);
    apply(true);
    m_desktop->answerRequest(false);
    expectState(false, false);
    EXPECT_EQ(m_applied, 1);
    m_desktop->answerRequest(true);
    expectState(true, false);
    EXPECT_EQ(m_applied, 2);
}

TEST_F(KarvelloMenuBarOptInTest, FalseThenTrueEndsOnWhateverWayTheWishesCome)
{
    makeEnabled();
    m_model->setRemindersEnabled(false);
    m_model->setRemindersEnabled(true);
    m_loop.handleEvents();
    m_desktop->answerRequest(true);
    expectState(true, false);

    m_model->setRemindersEnabled(false);
    apply(true);
    m_loop.handleEvents();
    m_desktop->answerRequest(true);
    expectState(true, false);
    EXPECT_EQ(m_file.boolean(kEnabledKey), true);
}

TEST_F(KarvelloMenuBarOptInTest, AStoredWishIsHeldAgainstTheDesktop)
{
    seed(kEnabledKey, true);
    make();
    expectState(true, false);
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
    m_loop.handleEvents();
    m_desktop->answerCheck(false);
    expectState(false, true);
    EXPECT_EQ(m_file.boolean(kEnabledKey), false);
}

TEST_F(KarvelloMenuBarOptInTest, AStoredWishThatTheDesktopAllowsStays)
{
    seed(kEnabledKey, true);
    make();
    m_loop.handleEvents();
    m_desktop->answerCheck(true);
    expectState(true, false);
    EXPECT_EQ(m_file.boolean(kEnabledKey), true);
}

TEST_F(KarvelloMenuBarOptInTest, TheCheckAtTheStartIsLeftOutIfItIsNotWanted)
{
    m_settings.validatesPersistedAuthorizationOnInit = false;
    seed(kEnabledKey, true);
    make();
    m_loop.handleEvents();
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
}

TEST_F(KarvelloMenuBarOptInTest, WithoutAStoredWishNobodyIsAskedAtTheStart)
{
    seed(kEnabledKey, std::string("true"));
    make();
    m_loop.handleEvents();
    expectState(false, false);
    EXPECT_EQ(m_desktop->waitingChecks(), 0);
}

TEST_F(KarvelloMenuBarOptInTest, ACheckThatPassesClearsTheError)
{
    makeEnabled();
    becomeStrained();
    m_desktop->answerCheck(true);
    m_desktop->answerDelivery(std::unexpected("No."));
    m_model->refreshReminderAuthorizationStatus();
    m_desktop->answerCheck(true);
    EXPECT_EQ(m_model->lastReminderError(), std::nullopt);
}

TEST_F(KarvelloMenuBarOptInTest, ACheckThatANewerChoiceOvertookChangesNothing)
{
    makeEnabled();
    m_model->refreshReminderAuthorizationStatus();
    apply(false);
    m_desktop->answerCheck(false);
    expectState(false, false);

    apply(true);
    m_desktop->answerRequest(true);
    m_model->refreshReminderAuthorizationStatus();
    apply(true);
    m_desktop->answerCheck(false);
    expectState(true, false);
}

TEST_F(KarvelloMenuBarOptInTest, EachChangeIsToldOnce)
{
    make();
    int enabled = 0;
    int denied = 0;
    QObject::connect(m_model.get(), &KarvelloMenuBarStatusModel::remindersEnabledChanged, [&enabled] { ++enabled; });
    QObject::connect(
        m_model.get(), &KarvelloMenuBarStatusModel::reminderPermissionDeniedChanged, [&denied] { ++denied; });
    apply(true);
    m_desktop->answerRequest(true);
    apply(true);
    m_desktop->answerRequest(true);
    EXPECT_EQ(enabled, 1);
    EXPECT_EQ(denied, 0);
    apply(true);
    m_desktop->answerRequest(false);
    EXPECT_EQ(enabled, 2);
    EXPECT_EQ(denied, 1);
}

TEST_F(KarvelloMenuBarOptInTest, AnAnswerAfterTheModelHarmsNobody)
{
    make();
    apply(true);
    m_model->setRemindersEnabled(false);
    m_model.reset();
    m_loop.handleEvents();
    EXPECT_EQ(m_applied, 0);
}

TEST_F(KarvelloMenuBarOptInTest, WithoutASchedulerAStoredWishIsDeniedAtTheFirstCheck)
{
    seed(kEnabledKey, true);
    KarvelloUI::KarvelloMenuBarStatusProviders providers;
    m_model = std::make_unique<KarvelloMenuBarStatusModel>(
        calm(), m_executor, m_defaults, nullptr, m_settings, std::move(providers));
    m_loop.handleEvents();
    expectState(false, true);
    EXPECT_EQ(m_file.boolean(kEnabledKey), false);
    apply(true);
    m_loop.handleEvents();
    expectState(false, true);
    EXPECT_EQ(m_applied, 1);
}

TEST_F(KarvelloMenuBarOptInTest, WithoutALanguageProviderTheStoredLanguageIsSpoken)
{
    seed("karvello.language", std::string("ko"));
    auto scheduler = std::make_unique<ManualReminderScheduler>();
    auto* const desktop = scheduler.get();
    m_model = std::make_unique<KarvelloMenuBarStatusModel>(lowDisk(), m_executor, m_defaults, std::move(scheduler),
        m_settings, KarvelloUI::KarvelloMenuBarStatusProviders());
    apply(true);
    desktop->answerRequest(true);
    desktop->answerCheck(true);
    EXPECT_EQ(desktop->notifications.at(0).title, "Karvello 확인 필요");
}

TEST(DisabledMenuBarReminderScheduler, IsNeverAuthorizedAndDeliversNowhere)
{
    TestSupport::EventLoop loop;
    KarvelloUI::DisabledMenuBarReminderScheduler scheduler;
    std::vector<std::string> answers;
    const auto note = [&answers](const char* word) {
        return
            [&answers, word](bool isAuthorized) { answers.push_back(std::string(word) + (isAuthorized ? "+" : "-")); };
    };
    scheduler.hasAuthorization(note("has"));
    scheduler.requestAuthorization(note("request"));
    scheduler.deliver("a", "b", "c", [&answers](const std::expected<void, std::string>& result) {
        answers.emplace_back(result ? "delivered" : "failed");
    });
    EXPECT_THAT(answers, testing::IsEmpty());
    loop.handleEvents();
    EXPECT_THAT(answers, testing::ElementsAre("has-", "request-", "delivered"));
}

TEST(DisabledMenuBarReminderScheduler, DoesNotAnswerAfterItsEnd)
{
    TestSupport::EventLoop loop;
    int answers = 0;
    {
        KarvelloUI::DisabledMenuBarReminderScheduler scheduler;
        scheduler.hasAuthorization([&answers](bool) { ++answers; });
    }
    loop.handleEvents();
    EXPECT_EQ(answers, 0);
}

} // namespace
