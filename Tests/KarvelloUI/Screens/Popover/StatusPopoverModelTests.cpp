#include "KarvelloUI/Screens/Popover/StatusPopoverModel.h"
#include "Tests/KarvelloUI/Dashboard/HostileName.h"
#include "Tests/KarvelloUI/MenuBar/MenuBarModelFixture.h"

#include <QSignalSpy>

namespace MenuBarTests {

namespace {

using namespace KarvelloUI;

class StatusPopoverModel : public MenuBarModelTest {
protected:
    void show(const KarvelloMenuBarStatusSnapshot& machine = calm())
    {
        m_first = machine;
        make();
        m_popover = std::make_unique<KarvelloUI::StatusPopoverModel>(*m_model, m_preferences);
    }
    void become(const KarvelloMenuBarStatusSnapshot& machine)
    {
        m_machine = machine;
        refreshNow();
    }
    [[nodiscard]] std::string triage(int row, int role) const
    {
        auto& list = *m_popover->triage();
        return list.data(list.index(row, 0), role).toString().toStdString();
    }

    DashboardPreferences m_preferences{m_defaults, {"en"}};
    std::unique_ptr<KarvelloUI::StatusPopoverModel> m_popover;
};

TEST_F(StatusPopoverModel, ShowsTheMachineBeforeTheFirstPoll)
{
    show(withDisk(std::int64_t{476} << 30, std::int64_t{43} << 30));
    EXPECT_EQ(m_popover->brand(), QStringLiteral("Karvello"));
    EXPECT_TRUE(m_popover->updatedText().startsWith(QStringLiteral("Updated ")));
    EXPECT_EQ(m_popover->storage().title, QStringLiteral("Storage"));
    EXPECT_EQ(m_popover->storage().value, QStringLiteral("43 GB · 9% free"));
    EXPECT_EQ(m_popover->storage().iconName, QStringLiteral("disk"));
    EXPECT_NEAR(m_popover->storage().fraction, 0.91, 0.001);
    EXPECT_EQ(m_popover->storageDetail(), QStringLiteral("433 GB / 476 GB used"));
    EXPECT_EQ(m_popover->cpu().value, QStringLiteral("25%"));
    EXPECT_EQ(m_popover->cpu().iconName, QStringLiteral("cpu"));
    EXPECT_EQ(m_popover->memory().value, QStringLiteral("25%"));
    EXPECT_EQ(m_popover->memory().iconName, QStringLiteral("memory"));
    EXPECT_EQ(m_popover->thermal().value, QStringLiteral("Nominal"));
    EXPECT_EQ(m_popover->thermal().iconName, QStringLiteral("thermal"));
    EXPECT_DOUBLE_EQ(m_popover->thermal().fraction, 0.22);
}

TEST(TriageListModel, ShowsHostileNamesWithEscapes)
{
    KarvelloUI::TriageListModel list;
    list.show({{.row = {.detail = DashboardTests::kHostileName, .buttonTitle = DashboardTests::kHostileName}}});
    for (const int role : {KarvelloUI::TriageListModel::detailRole, KarvelloUI::TriageListModel::buttonTitleRole}) {
        EXPECT_EQ(list.index(0, 0).data(role).toString().toStdString(), DashboardTests::kShownHostileName);
    }
}

TEST_F(StatusPopoverModel, IsCalmWithoutReminders)
{
    show();
    EXPECT_TRUE(m_popover->isCalm());
    EXPECT_EQ(m_popover->triage()->rowCount(), 0);
    EXPECT_EQ(m_popover->triageEmptyTitle(), QStringLiteral("No alerts need review now"));
}

TEST_F(StatusPopoverModel, HasARowForEachReminderInTheirOrder)
{
    show(strained());
    EXPECT_FALSE(m_popover->isCalm());
    ASSERT_EQ(m_popover->triage()->rowCount(), 3);
    EXPECT_EQ(triage(0, TriageListModel::detailRole), "Free space 5% · 50 bytes left");
    EXPECT_EQ(triage(0, TriageListModel::buttonTitleRole), "Review Cleanup");
    EXPECT_EQ(triage(0, TriageListModel::destinationRole), "cleanupReview");
    EXPECT_EQ(triage(0, TriageListModel::iconNameRole), "disk");
    EXPECT_EQ(triage(1, TriageListModel::destinationRole), "memoryReview");
    EXPECT_EQ(triage(1, TriageListModel::iconNameRole), "memory");
    EXPECT_EQ(triage(2, TriageListModel::destinationRole), "systemReview");
    EXPECT_EQ(triage(2, TriageListModel::iconNameRole), "thermal");
}

TEST_F(StatusPopoverModel, SetsOnlyACriticalReminderApart)
{
    show(strained("Critical"));
    const auto& list = *m_popover->triage();
    EXPECT_FALSE(list.data(list.index(0, 0), TriageListModel::isCriticalRole).toBool());
    EXPECT_FALSE(list.data(list.index(1, 0), TriageListModel::isCriticalRole).toBool());
    EXPECT_TRUE(list.data(list.index(2, 0), TriageListModel::isCriticalRole).toBool());
    EXPECT_EQ(m_popover->storage().level, PopoverLevel::Warning);
    EXPECT_EQ(m_popover->memory().level, PopoverLevel::Warning);
    EXPECT_EQ(m_popover->thermal().level, PopoverLevel::Critical);
    EXPECT_EQ(m_popover->cpu().level, PopoverLevel::Calm);
}

TEST_F(StatusPopoverModel, KeepsTheRowsThatStay)
{
    show(strained());
    const QPersistentModelIndex memory(m_popover->triage()->index(1, 0));
    const QSignalSpy resets(m_popover->triage(), &QAbstractItemModel::modelReset);
    const QSignalSpy changes(m_popover->triage(), &QAbstractItemModel::dataChanged);
    auto machine = strained();
    machine.diskFreeBytes = 500;
    become(machine);
    EXPECT_EQ(m_popover->triage()->rowCount(), 2);
    EXPECT_TRUE(memory.isValid());
    EXPECT_EQ(memory.row(), 0);
    for (const auto& change : changes) {
        EXPECT_EQ(change.constFirst().toModelIndex().row(), 0) << "what stayed says the same";
    }
    become(strained());
    EXPECT_EQ(m_popover->triage()->rowCount(), 3);
    EXPECT_EQ(memory.row(), 1);
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(StatusPopoverModel, TellsOnlyOfWhatIsNew)
{
    show();
    const QSignalSpy changes(m_popover.get(), &KarvelloUI::StatusPopoverModel::textsChanged);
    become(calm());
    EXPECT_EQ(changes.count(), 0);
    auto busy = calm();
    busy.systemSnapshot.normalizedCPULoad = 0.5;
    become(busy);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(m_popover->cpu().value, QStringLiteral("50%"));
}

TEST_F(StatusPopoverModel, ShowsAFigureThatIsNoNumberAsADash)
{
    auto machine = calm();
    machine.systemSnapshot.normalizedCPULoad = std::numeric_limits<double>::quiet_NaN();
    machine.systemSnapshot.thermalState = "Melting";
    show(machine);
    EXPECT_EQ(m_popover->cpu().value, QStringLiteral("—"));
    EXPECT_EQ(m_popover->cpu().fraction, 0);
    EXPECT_EQ(m_popover->thermal().value, QStringLiteral("Melting"));
    EXPECT_EQ(m_popover->thermal().fraction, 0);
}

TEST_F(StatusPopoverModel, ShowsNoMemoryWhereNoneIsReported)
{
    auto machine = calm();
    machine.systemSnapshot.physicalMemoryBytes = 0;
    show(machine);
    EXPECT_EQ(m_popover->memory().value, QStringLiteral("0%"));
}

TEST_F(StatusPopoverModel, FollowsTheLanguageAtOnce)
{
    show(strained());
    ASSERT_TRUE(m_preferences.setLanguage(AppLanguage::korean));
    m_loop.handleEvents();
    EXPECT_EQ(m_popover->openDashboardTitle(), QStringLiteral("대시보드 열기"));
    EXPECT_EQ(m_popover->quitTitle(), QStringLiteral("종료"));
    EXPECT_EQ(m_popover->triageTitle(), QStringLiteral("빠른 상태 확인"));
    EXPECT_EQ(triage(0, TriageListModel::buttonTitleRole), "정리할 항목 검토");
}

TEST_F(StatusPopoverModel, PollsFasterOnlyWhileItIsOnTheScreen)
{
    m_settings.startsPolling = true;
    show();
    const auto slow = KarvelloMenuBarStatusSettings::defaultBackgroundRefreshIntervalNanoseconds;
    const auto quick = KarvelloMenuBarStatusSettings::defaultVisibleRefreshIntervalNanoseconds;
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), slow);
    m_popover->setVisible(true);
    m_popover->setVisible(true);
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), quick);
    m_popover->setVisible(false);
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), slow) << "two calls are one appearance";
    m_popover->setVisible(false);
    m_popover->setVisible(true);
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(), quick) << "a second end does not count";
}

TEST_F(StatusPopoverModel, EndsTheFastPollingWhenItGoesWhileOnTheScreen)
{
    m_settings.startsPolling = true;
    show();
    m_popover->setVisible(true);
    m_popover.reset();
    EXPECT_EQ(m_model->activePollingIntervalNanoseconds(),
        KarvelloMenuBarStatusSettings::defaultBackgroundRefreshIntervalNanoseconds);
}

TEST_F(StatusPopoverModel, OutlivesTheStatusThatItShows)
{
    show(strained());
    m_popover->setVisible(true);
    m_model.reset();
    m_popover->setVisible(false);
    ASSERT_TRUE(m_preferences.setLanguage(AppLanguage::german));
    m_loop.handleEvents();
    EXPECT_EQ(m_popover->triage()->rowCount(), 3);
}

TEST_F(StatusPopoverModel, LeadsToTheDashboardAndToTheScreenOfEachReminder)
{
    show(strained());
    const QSignalSpy opened(m_popover.get(), &KarvelloUI::StatusPopoverModel::openDashboardRequested);
    m_popover->openDashboard();
    for (const int row : {0, 1, 2, 3, -1}) {
        m_popover->review(row);
    }
    std::vector<std::string> destinations;
    for (const auto& call : opened) {
        destinations.push_back(call.constFirst().toString().toStdString());
    }
    EXPECT_THAT(destinations, testing::ElementsAre("dashboard", "cleanupReview", "memoryReview", "systemReview"));
}

TEST_F(StatusPopoverModel, NeverAsksForNotifications)
{
    show(strained());
    m_popover->setVisible(true);
    m_popover->review(0);
    finishRefresh();
    EXPECT_EQ(m_desktop->waitingRequests(), 0U);
    EXPECT_FALSE(m_model->areRemindersEnabled());
}

} // namespace

} // namespace MenuBarTests
