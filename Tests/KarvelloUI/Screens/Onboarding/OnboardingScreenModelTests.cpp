#include "KarvelloUI/Screens/Onboarding/OnboardingScreenModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

namespace DashboardTests {

class OnboardingScreenModelTest : public DashboardTest {
protected:
    [[nodiscard]] OnboardingCard card(int place) const { return screen.cards().at(place).value<OnboardingCard>(); }

    OnboardingScreenModel screen{*dashboard};
};

TEST_F(OnboardingScreenModelTest, OpensWithWhatComesFirst)
{
    EXPECT_EQ(screen.eyebrow(), QStringLiteral("First-run setup"));
    EXPECT_EQ(screen.title(), QStringLiteral("Review what will be cleaned before anything moves."));
    EXPECT_EQ(card(0).title, QStringLiteral("Scan first"));
}

TEST_F(OnboardingScreenModelTest, SaysWhatKindOfAccessTheBuildHas)
{
    EXPECT_EQ(card(1).title.toStdString(), "Your permissions decide what is read");
    EXPECT_EQ(card(1).text.toStdString(),
        "If results look empty or permission errors appear, check who may read the folders.");
    isDirectDistribution = false;
    EXPECT_EQ(card(1).title.toStdString(), "User-selected access");
    EXPECT_EQ(card(1).text.toStdString(),
        "Grant your home folder once. Karvello reuses the saved permission for future user-cache and log scans.");
}

TEST_F(OnboardingScreenModelTest, TellsThatNothingIsCleanedUnasked)
{
    ASSERT_EQ(screen.cards().size(), 3);
    EXPECT_EQ(card(0).title.toStdString(), "Scan first");
    EXPECT_EQ(card(0).text.toStdString(),
        "The app does not clean on launch. It lists paths, sizes, and safety context before you choose anything.");
    EXPECT_EQ(card(2).title, shown(dashboard->words().macOnboardingSafetyTitle()));
    EXPECT_EQ(card(2).text, shown(dashboard->words().macOnboardingSafetyBody()));
}

TEST_F(OnboardingScreenModelTest, ScansAtOnceInABuildForDirectDistribution)
{
    EXPECT_EQ(screen.primaryIconName(), QStringLiteral("scan"));
    screen.begin();
    EXPECT_TRUE(preferences->isOnboardingCompleted());
    EXPECT_FALSE(fileDialogs.isOpen());
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::scanning);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::cleanup);
}

TEST_F(OnboardingScreenModelTest, AsksForTheHomeFirstInAnyOtherBuild)
{
    isDirectDistribution = false;
    EXPECT_EQ(screen.primaryText(), QStringLiteral("Grant Access and Start Scan"));
    EXPECT_EQ(screen.primaryIconName(), QStringLiteral("folder"));
    screen.begin();
    ASSERT_TRUE(fileDialogs.isOpen());
    EXPECT_FALSE(preferences->isOnboardingCompleted());
    fileDialogs.answer(tree.url("home/"));
    EXPECT_TRUE(preferences->isOnboardingCompleted());
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::scanning);
}

TEST_F(OnboardingScreenModelTest, StaysWhenTheHomeWasNotGranted)
{
    isDirectDistribution = false;
    screen.begin();
    fileDialogs.answer(std::nullopt);
    EXPECT_FALSE(preferences->isOnboardingCompleted());
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
}

TEST_F(OnboardingScreenModelTest, GoesOnWithNothingOnceItHasGone)
{
    isDirectDistribution = false;
    auto other = std::make_unique<OnboardingScreenModel>(*dashboard);
    other->begin();
    other.reset();
    fileDialogs.answer(tree.url("home/"));
    EXPECT_TRUE(dashboard->hasHomeAccess());
    EXPECT_FALSE(preferences->isOnboardingCompleted());
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
}

TEST_F(OnboardingScreenModelTest, SaysWhyAnotherFolderIsNoHome)
{
    isDirectDistribution = false;
    screen.begin();
    fileDialogs.answer(tree.url("config/"));
    EXPECT_FALSE(preferences->isOnboardingCompleted());
    EXPECT_FALSE(screen.errorText().isEmpty());
}

TEST_F(OnboardingScreenModelTest, SaysWhatCanBeSeenWithoutAccess)
{
    EXPECT_EQ(screen.skipCaption(), QString()) << "there is access";
    isDirectDistribution = false;
    EXPECT_EQ(screen.skipCaption().toStdString(),
        "You can still view system status without access. Cleanup scans unlock after home folder access is granted.");
    dashboard->requestHomeAccess();
    fileDialogs.answer(tree.url("home/"));
    EXPECT_EQ(screen.skipCaption(), QString());
}

TEST_F(OnboardingScreenModelTest, IsOverWithoutAScanWhenItIsPutOff)
{
    screen.setUpLater();
    EXPECT_TRUE(preferences->isOnboardingCompleted());
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
    restart();
    EXPECT_TRUE(preferences->isOnboardingCompleted());
}

TEST_F(OnboardingScreenModelTest, EndsEvenInAHomeThatTakesNoFiles)
{
    defaults.failAllSaves();
    screen.setUpLater();
    EXPECT_TRUE(preferences->isOnboardingCompleted());
    EXPECT_FALSE(stored.boolean("karvello.macOnboardingCompleted.v1"));
}

TEST_F(OnboardingScreenModelTest, DoesNothingWhileTheSessionIsBusy)
{
    dashboard->scanCleanup();
    EXPECT_FALSE(screen.isPrimaryEnabled());
    screen.begin();
    EXPECT_FALSE(preferences->isOnboardingCompleted());
    settle();
    EXPECT_TRUE(screen.isPrimaryEnabled());
}

TEST_F(OnboardingScreenModelTest, SpeaksAnotherLanguageAtOnce)
{
    int changes = 0;
    QObject::connect(&screen, &OnboardingScreenModel::changed, &screen, [&changes] { ++changes; });
    screen.chooseLanguage(static_cast<int>(AppLanguage::german));
    EXPECT_GT(changes, 0);
    EXPECT_EQ(preferences->language(), AppLanguage::german);
    EXPECT_EQ(screen.languages().at(screen.languageIndex()), QStringLiteral("Deutsch"));
    EXPECT_NE(screen.eyebrow(), QStringLiteral("First-run setup"));
    screen.chooseLanguage(99);
    EXPECT_EQ(preferences->language(), AppLanguage::german);
}

TEST_F(OnboardingScreenModelTest, SaysThatALanguageCouldNotBeStored)
{
    defaults.failAllSaves();
    screen.chooseLanguage(static_cast<int>(AppLanguage::german));
    EXPECT_EQ(preferences->language(), AppLanguage::english);
    EXPECT_EQ(screen.noticeTitle(), QStringLiteral("Setting not saved"));
    EXPECT_EQ(screen.noticeText(), QStringLiteral("This choice could not be stored, so the previous one still holds."));
    screen.dismissNotice();
    EXPECT_TRUE(screen.noticeText().isEmpty());
}

} // namespace DashboardTests
