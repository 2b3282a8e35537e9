#include "Tests/KarvelloUI/Screens/Home/HomeWindow.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>

namespace HomeTests {

using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

class HomeScreen : public HomeWindowTest {
protected:
    std::vector<std::string> namesOf(QAccessible::Role role)
    {
        std::vector<std::string> names;
        for (QQuickItem* const item : shownItems()) {
            const auto* const told = spoken(item);
            if (told != nullptr && told->role() == role && !told->state().invisible) {
                names.push_back(told->text(QAccessible::Name).toStdString());
            }
        }
        return names;
    }
    std::vector<QQuickItem*> stepItems()
    {
        std::vector<QQuickItem*> steps;
        for (QQuickItem* const item : shownItems()) {
            if (item->inherits("QQuickButton") && item->property("entry").isValid()) {
                steps.push_back(item);
            }
        }
        return steps;
    }
};

TEST_F(HomeScreen, IsShownInEveryStateWithoutAWarning)
{
    show();
    home->startScan();
    layOut();
    settle();
    layOut();
    addProjects();
    scanEverything();
    layOut();
    cleanEverything();
    layOut();
    disk = {.totalBytes = 100, .freeBytes = 5};
    dashboard->refreshDiskSnapshot();
    settle();
    layOut();
    ASSERT_TRUE(preferences->setScanMode(CleanerCore::CleanupScanMode::aggressive));
    layOut();
    EXPECT_EQ(home->flow()->count(), 4);
}

TEST_F(HomeScreen, TellsAnAssistantItsFigures)
{
    scanEverything();
    show();
    EXPECT_EQ(nameOf(find("page")), "Live Dashboard");
    EXPECT_THAT(namesOf(QAccessible::Indicator), Contains(StartsWith("Free space, 40%, 186 GB free")));
    EXPECT_THAT(namesOf(QAccessible::Indicator), Contains(StartsWith("CPU, 18%")));
    EXPECT_THAT(namesOf(QAccessible::Button), Contains("03 Review, 2 candidates"));
    EXPECT_THAT(namesOf(QAccessible::ListItem), Contains(StartsWith("Current free space, 186 GB")));
}

TEST_F(HomeScreen, EveryButtonHasANameAndIsLargeEnough)
{
    addProjects();
    addLargeFiles();
    scanEverything();
    show(1240, 2600);
    int count = 0;
    for (QQuickItem* const item : shownItems()) {
        if (!item->inherits("QQuickAbstractButton")) {
            continue;
        }
        ++count;
        EXPECT_NE(nameOf(item), "") << item->metaObject()->className();
        EXPECT_GE(item->height(), 28) << nameOf(item);
        EXPECT_GE(item->width(), 28) << nameOf(item);
    }
    EXPECT_GE(count, 1 + 4 + 3 + 2 + 2 + 2);
}

TEST_F(HomeScreen, EveryButtonIsReachedByTab)
{
    addProjects();
    scanEverything();
    show();
    find("startScan")->forceActiveFocus(Qt::TabFocusReason);
    std::set<QQuickItem*> reached;
    for (int tab = 0; tab < 60 && reached.insert(m_window->activeFocusItem()).second; ++tab) {
        key(Qt::Key_Tab);
    }
    for (QQuickItem* const item : shownItems()) {
        if (item->inherits("QQuickAbstractButton") && !item->inherits("QQuickRadioButton") && item->isEnabled()) {
            EXPECT_TRUE(reached.contains(item)) << nameOf(item);
        }
    }
    EXPECT_TRUE(reached.contains(find("profile")));
}

TEST_F(HomeScreen, WhatHasTheKeyboardIsScrolledIntoView)
{
    scanEverything();
    show(1180, 600);
    QQuickItem* const button = find("openProjectSettings");
    ASSERT_GT(button->mapToScene({0, 0}).y(), 600);
    button->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([button] { return button->mapToScene({0, button->height()}).y() <= 600; }));
}

TEST_F(HomeScreen, StartsAScanByButtonAndByKey)
{
    show();
    press(find("startScan"));
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::scanning);
    EXPECT_FALSE(find("startScan")->isEnabled());
    key(Qt::Key_R, Qt::ControlModifier);
    settle();
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::ready);
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::scanning);
    settle();
}

TEST_F(HomeScreen, SaysWhyNoScanCanStart)
{
    isDirectDistribution = false;
    remake();
    show();
    const auto* const told = spoken(find("startScan"));
    EXPECT_FALSE(find("startScan")->isEnabled());
    EXPECT_EQ(told->text(QAccessible::Description).toStdString(), "Grant home folder access before starting a scan.");
    EXPECT_THAT(find("summary")->property("text").toString().toStdString(), HasSubstr("Grant home access"));
}

TEST_F(HomeScreen, StepsLeadToTheirSectionsByKey)
{
    scanEverything();
    show();
    const auto steps = stepItems();
    ASSERT_EQ(steps.size(), 4);
    steps[2]->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::cleanup);
    dashboard->selectSection(MacDashboardSection::dashboard);
    steps[3]->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::reviewEvidence);
}

TEST_F(HomeScreen, AStepKeepsTheKeyboardWhileAScanRunsAndEnds)
{
    show();
    QQuickItem* const step = stepItems().at(2);
    step->forceActiveFocus(Qt::TabFocusReason);
    scanEverything();
    layOut();
    EXPECT_EQ(m_window->activeFocusItem(), step);
}

TEST_F(HomeScreen, TheCoachLeadsToASection)
{
    scanEverything();
    show();
    press(find("coachAction"));
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::cleanup);
}

TEST_F(HomeScreen, TheReviewLoopIsChosenByKey)
{
    show(1240, 1600);
    QQuickItem* chosen = nullptr;
    for (QQuickItem* const item : shownItems()) {
        if (item->inherits("QQuickRadioButton") && spoken(item)->state().checked) {
            chosen = item;
        }
    }
    ASSERT_NE(chosen, nullptr);
    chosen->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    EXPECT_EQ(home->reviewLoop()->cadence(), QStringLiteral("weekly"));
    QQuickItem* const profile = find("profile");
    profile->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    EXPECT_EQ(home->reviewLoop()->profileIndex(), 1);
    press(find("markReviewed"));
    EXPECT_NE(home->reviewLoop()->lastReviewText(), QString());
}

TEST_F(HomeScreen, AProfileThatCannotBeSavedIsNotShown)
{
    show(1240, 1600);
    defaults.failAllSaves();
    QQuickItem* const profile = find("profile");
    profile->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    EXPECT_EQ(defaults.failureCount(), 1);
    EXPECT_EQ(profile->property("currentIndex").toInt(), 0);
    EXPECT_TRUE(find("reviewFailure")->isVisible());
}

} // namespace HomeTests
