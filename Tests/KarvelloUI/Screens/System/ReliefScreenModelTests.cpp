#include "KarvelloUI/Screens/System/ReliefScreenModel.h"
#include "Tests/KarvelloUI/Screens/System/SystemScreens.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

namespace SystemScreenTests {

namespace {

using Metric = ResourceReliefMetric;

class ReliefScreenModel : public SystemScreensTest {
protected:
    void open(Metric metric = Metric::memory)
    {
        screen = std::make_unique<KarvelloUI::ReliefScreenModel>(*dashboard, metric);
    }
    [[nodiscard]] QVariant cell(int row, ReliefListModel::Role role) const
    {
        return screen->list().data(screen->list().index(row, 0), role);
    }
    [[nodiscard]] std::string text(int row, ReliefListModel::Role role) const
    {
        return cell(row, role).toString().toStdString();
    }
    [[nodiscard]] std::vector<std::string> column(ReliefListModel::Role role) const
    {
        std::vector<std::string> texts;
        for (int row = 0; row < screen->list().rowCount(); ++row) {
            texts.push_back(text(row, role));
        }
        return texts;
    }

    std::unique_ptr<KarvelloUI::ReliefScreenModel> screen;
};

TEST_F(ReliefScreenModel, ListsWhoTakesTheMostFirst)
{
    open(Metric::memory);
    startApplications();
    EXPECT_THAT(column(ReliefListModel::nameRole), testing::ElementsAre("Firefox", "Krita", "Terminal", "Karvello"));
    EXPECT_THAT(column(ReliefListModel::percentTextRole), testing::ElementsAre("21%", "12%", "2%", "1%"));
    EXPECT_EQ(text(1, ReliefListModel::sizeTextRole), "1.92 GB");
    open(Metric::cpu);
    EXPECT_THAT(column(ReliefListModel::nameRole), testing::ElementsAre("Krita", "Firefox", "Karvello", "Terminal"));
    EXPECT_THAT(column(ReliefListModel::percentTextRole), testing::ElementsAre("31%", "4%", "1%", "0%"));
    EXPECT_EQ(text(0, ReliefListModel::sizeTextRole), "") << "memory is no matter of the processors";
}

TEST_F(ReliefScreenModel, ShowsAnUnknownShareAsADashAtTheEnd)
{
    open(Metric::cpu);
    capability = CleanerCore::ResourceReliefCapability::supported();
    applications = {application("New", "test.new", 20, 0, 0), application("Old", "test.old", 21, 0.1, 0.1)};
    applications[0].usage = CleanerCore::ResourceReliefUsageMetrics::empty();
    refreshApplications();
    EXPECT_THAT(column(ReliefListModel::percentTextRole), testing::ElementsAre("10%", "—"));
    EXPECT_EQ(cell(1, ReliefListModel::fractionRole).toDouble(), 0);
}

TEST_F(ReliefScreenModel, LocksWhoMayNotBeAskedAndSaysWhy)
{
    open();
    startApplications();
    EXPECT_TRUE(cell(0, ReliefListModel::isSelectableRole).toBool());
    EXPECT_EQ(text(0, ReliefListModel::lockReasonRole), "");
    EXPECT_FALSE(cell(3, ReliefListModel::isSelectableRole).toBool());
    EXPECT_EQ(text(3, ReliefListModel::lockReasonRole), "Current app protected");
    screen->toggle(3);
    EXPECT_TRUE(dashboard->resourceRelief().selectedIDs().empty());
}

TEST_F(ReliefScreenModel, MarksOnlyWhatWeighsOnTheMachine)
{
    open();
    startApplications();
    EXPECT_TRUE(cell(0, ReliefListModel::isHeavyRole).toBool());
    EXPECT_FALSE(cell(1, ReliefListModel::isHeavyRole).toBool());
}

TEST_F(ReliefScreenModel, TogglesByRowAndCountsInTheFooter)
{
    open();
    startApplications();
    EXPECT_EQ(screen->footerText(), QStringLiteral("Select Apps to Request Quit"));
    EXPECT_FALSE(screen->canRequestQuit());
    EXPECT_EQ(screen->quitDisabledReason(), QStringLiteral("Select Apps to Request Quit"));
    screen->toggle(0);
    screen->toggle(1);
    EXPECT_TRUE(cell(0, ReliefListModel::isSelectedRole).toBool());
    EXPECT_EQ(screen->quitTitle(), QStringLiteral("Request Quit (2)"));
    EXPECT_EQ(screen->footerText(),
        QStringLiteral("Karvello does not force quit. It sends normal quit requests to 2 selected app(s), so apps may "
                       "ask to save work."));
    EXPECT_TRUE(screen->canRequestQuit());
    screen->toggle(0);
    EXPECT_FALSE(cell(0, ReliefListModel::isSelectedRole).toBool());
    screen->clearSelection();
    EXPECT_FALSE(screen->canRequestQuit());
    for (const int row : {-1, 4, 1000}) {
        screen->toggle(row);
    }
    EXPECT_TRUE(dashboard->resourceRelief().selectedIDs().empty());
}

TEST_F(ReliefScreenModel, KeepsRowsThroughAClickAndARefresh)
{
    open();
    startApplications();
    const QPersistentModelIndex krita(screen->candidates()->index(1, 0));
    const QSignalSpy resets(screen->candidates(), &QAbstractItemModel::modelReset);
    const QSignalSpy changes(screen->candidates(), &QAbstractItemModel::dataChanged);
    screen->toggle(1);
    ASSERT_EQ(changes.count(), 1) << "one row is selected, and one row says so";
    EXPECT_EQ(changes.at(0).constFirst().toModelIndex().row(), 1);
    applications[0].usage.memoryFractionOfPhysicalMemory = 0.5;
    applications.erase(applications.begin() + 3);
    refreshApplications();
    EXPECT_EQ(krita.row(), 0);
    EXPECT_TRUE(cell(0, ReliefListModel::isSelectedRole).toBool());
    EXPECT_THAT(column(ReliefListModel::nameRole), testing::ElementsAre("Krita", "Firefox", "Karvello"));
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(ReliefScreenModel, SendsNothingWithoutTheConfirmation)
{
    open();
    startApplications();
    screen->requestQuit();
    EXPECT_FALSE(dashboard->isShowingResourceReliefConfirmation()) << "nobody is selected";
    screen->toggle(0);
    screen->requestQuit();
    settle();
    EXPECT_TRUE(dashboard->isShowingResourceReliefConfirmation());
    EXPECT_TRUE(quitRequests.empty());
    dashboard->cancelConfirmation();
    settle();
    EXPECT_TRUE(quitRequests.empty());
    EXPECT_TRUE(screen->results().isEmpty());
}

TEST_F(ReliefScreenModel, ShowsWhatBecameOfEachRequestUntilItIsRead)
{
    open();
    startApplications();
    screen->toggle(0);
    screen->toggle(1);
    screen->requestQuit();
    applications.erase(applications.begin());
    dashboard->quitSelected();
    EXPECT_TRUE(screen->isRequestingQuit());
    EXPECT_FALSE(screen->canRequestQuit());
    const auto selected = dashboard->resourceRelief().selectedIDs();
    screen->toggle(2);
    screen->clearSelection();
    EXPECT_EQ(dashboard->resourceRelief().selectedIDs(), selected) << "what is under way is not changed";
    settle();
    EXPECT_THAT(quitRequests, testing::ElementsAre(11));
    ASSERT_EQ(screen->results().size(), 2);
    EXPECT_EQ(screen->results().at(0), QStringLiteral("Sent a normal quit request to Firefox."));
    EXPECT_EQ(screen->results().at(1), QStringLiteral("Krita already exited."));
    EXPECT_FALSE(screen->areAllSent());
    screen->dismissResults();
    EXPECT_TRUE(screen->results().isEmpty());
    EXPECT_FALSE(screen->isRequestingQuit());
}

TEST_F(ReliefScreenModel, SaysThatItIsLookingBeforeItSaysThatThereIsNobody)
{
    open();
    EXPECT_EQ(screen->emptyTitle(), QStringLiteral("Looking for running apps…"));
    EXPECT_TRUE(screen->limit().isEmpty()) << "not known yet is no limit";
    capability = CleanerCore::ResourceReliefCapability::supported();
    refreshApplications();
    EXPECT_EQ(screen->emptyTitle(), QStringLiteral("No regular app candidates are available for quit requests."));
    startApplications();
    EXPECT_TRUE(screen->emptyTitle().isEmpty());
}

TEST_F(ReliefScreenModel, SaysWhyNobodyCanBeAskedInASandbox)
{
    open();
    startApplications();
    EXPECT_TRUE(screen->limit().isEmpty());
    capability = CleanerCore::ResourceReliefCapability::appSandbox();
    refreshApplications();
    EXPECT_TRUE(screen->limit().startsWith(QStringLiteral("In this sandbox")));
    EXPECT_EQ(text(0, ReliefListModel::lockReasonRole), "Sandbox unavailable");
    EXPECT_EQ(text(3, ReliefListModel::lockReasonRole), "Current app protected");
    EXPECT_EQ(screen->quitDisabledReason(), screen->limit());
    screen->toggle(0);
    EXPECT_FALSE(screen->canRequestQuit());
    capability = CleanerCore::ResourceReliefCapability::unknown();
    refreshApplications();
    EXPECT_TRUE(screen->limit().startsWith(QStringLiteral("Karvello could not find out")));
}

TEST_F(ReliefScreenModel, ShowsHostileNamesHarmlesslyAndActsOnTheRightOne)
{
    open();
    startApplications();
    applications.push_back(application(DashboardTests::kHostileName, "evil\n\xFF", 66, 0.9, 0.9));
    refreshApplications();
    EXPECT_EQ(text(0, ReliefListModel::nameRole), DashboardTests::kShownHostileName);
    EXPECT_EQ(text(0, ReliefListModel::identifierRole), "evil\\n\\xFF");
    EXPECT_THAT(text(0, ReliefListModel::accessibleNameRole), testing::StartsWith(DashboardTests::kShownHostileName));
    screen->toggle(0);
    screen->requestQuit();
    dashboard->quitSelected();
    settle();
    EXPECT_THAT(quitRequests, testing::ElementsAre(66));
}

TEST_F(ReliefScreenModel, InterpretsTheLoad)
{
    open(Metric::memory);
    EXPECT_TRUE(screen->interpretation().isEmpty()) << "nothing was read";
    EXPECT_TRUE(screen->suggestedAction().isEmpty());
    sample(machine(0.1, 0.71));
    EXPECT_TRUE(screen->interpretation().startsWith(QStringLiteral("Memory use is elevated.")));
    EXPECT_EQ(screen->suggestedAction(), QStringLiteral("Close unused apps or browser tabs before heavy work."));
    EXPECT_EQ(screen->chart().pillText, QStringLiteral("Elevated"));
    EXPECT_EQ(screen->chart().pillKind, static_cast<int>(KarvelloPillKind::caution));
    EXPECT_EQ(screen->chart().figure, QStringLiteral("71%"));
    open(Metric::cpu);
    sample(machine(0.9, 0.1));
    EXPECT_TRUE(screen->interpretation().startsWith(QStringLiteral("CPU pressure is high.")));
    EXPECT_EQ(screen->chart().pillText, QStringLiteral("High"));
    EXPECT_EQ(screen->chart().pillKind, static_cast<int>(KarvelloPillKind::review));
}

TEST_F(ReliefScreenModel, SaysWhereTheCourseGoes)
{
    open(Metric::memory);
    EXPECT_EQ(screen->chart().note, QStringLiteral("TREND · Collecting"));
    sample(machine(0.1, 0.50));
    sample(machine(0.1, 0.52));
    EXPECT_EQ(screen->chart().note, QStringLiteral("TREND · Stable"));
    sample(machine(0.1, 0.54));
    EXPECT_EQ(screen->chart().note, QStringLiteral("TREND · Rising +4%"));
    sample(machine(0.1, 0.40));
    EXPECT_EQ(screen->chart().note, QStringLiteral("TREND · Falling -10%"));
}

TEST_F(ReliefScreenModel, LeavesTheSuggestionAloneWhileTheLevelStays)
{
    open(Metric::cpu);
    sample(machine(0.1));
    const QSignalSpy interpretation(screen.get(), &KarvelloUI::ReliefScreenModel::interpretationChanged);
    const QSignalSpy chart(screen.get(), &KarvelloUI::ReliefScreenModel::chartChanged);
    const QSignalSpy list(screen.get(), &KarvelloUI::ReliefScreenModel::listStateChanged);
    sample(machine(0.2));
    EXPECT_EQ(interpretation.count(), 0);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(chart.count(), 1);
    sample(machine(0.75));
    EXPECT_EQ(interpretation.count(), 1);
}

TEST_F(ReliefScreenModel, SpeaksARowInWhole)
{
    open();
    startApplications();
    EXPECT_EQ(text(3, ReliefListModel::accessibleNameRole),
        "Karvello uses 1% of total physical memory, Current app protected · test.karvello · 164 MB");
}

TEST_F(ReliefScreenModel, FollowsTheLanguageAtOnce)
{
    open();
    startApplications();
    screen->toggle(0);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::korean));
    loop.handleEvents();
    EXPECT_EQ(screen->title(), QStringLiteral("메모리 분석"));
    EXPECT_EQ(screen->quitTitle(), QStringLiteral("종료 요청(1)"));
    EXPECT_EQ(text(3, ReliefListModel::lockReasonRole), "현재 앱 보호됨");
}

} // namespace

} // namespace SystemScreenTests
