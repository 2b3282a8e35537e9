#include "KarvelloUI/Screens/System/SystemScreenModel.h"
#include "Tests/KarvelloUI/Screens/System/SystemScreens.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

namespace SystemScreenTests {

namespace {

class SystemScreenModel : public SystemScreensTest {
protected:
    void open() { screen = std::make_unique<KarvelloUI::SystemScreenModel>(*dashboard); }

    std::unique_ptr<KarvelloUI::SystemScreenModel> screen;
};

std::string plain(const QString& text)
{
    return text.toStdString();
}

TEST_F(SystemScreenModel, ShowsDashesUntilTheMachineWasRead)
{
    disk = {};
    restart();
    open();
    EXPECT_EQ(plain(screen->pulse().figure), "—");
    EXPECT_EQ(plain(screen->pulse().firstLine), "");
    EXPECT_EQ(plain(screen->pulse().emptyText), "No samples");
    EXPECT_EQ(plain(screen->memory().figure), "—");
    EXPECT_EQ(plain(screen->memory().pillText), "");
    EXPECT_EQ(plain(screen->thermal().figure), "—");
    EXPECT_EQ(plain(screen->disk().figure), "—");
    EXPECT_EQ(plain(screen->uptime().value), "—");
    EXPECT_EQ(plain(screen->activeCores().value), "—");
}

TEST_F(SystemScreenModel, ShowsTheMachine)
{
    open();
    sample(machine());
    EXPECT_EQ(plain(screen->title()), "System Pulse");
    EXPECT_EQ(plain(screen->pulse().figure), "18%");
    EXPECT_EQ(plain(screen->pulse().firstLine), "CPU 1-min Average 1.42");
    EXPECT_EQ(plain(screen->pulse().secondLine), "Active Cores 16");
    EXPECT_EQ(plain(screen->memory().figure), "57%");
    EXPECT_EQ(plain(screen->memory().unit), "9.12 GB / 16 GB");
    EXPECT_EQ(plain(screen->memory().pillText), "Normal");
    EXPECT_EQ(screen->memory().pillKind, static_cast<int>(KarvelloPillKind::safe));
    EXPECT_EQ(plain(screen->thermal().figure), "Nominal");
    EXPECT_EQ(plain(screen->uptime().value), "3 days, 4 hours");
    EXPECT_EQ(plain(screen->loadAverage().value), "1.42");
    EXPECT_EQ(plain(screen->activeCores().value), "16 / 16");
    EXPECT_EQ(screen->notes().size(), 3);
}

TEST_F(SystemScreenModel, HasACourseFromTwoSamplesOn)
{
    open();
    sample(machine(0.2));
    EXPECT_EQ(screen->pulse().samples.size(), 1);
    EXPECT_EQ(plain(screen->pulse().emptyText), "Needs at least two samples");
    EXPECT_EQ(plain(screen->pulse().startText), "");
    sample(machine(0.4));
    EXPECT_EQ(screen->pulse().samples, (QList<double>{0.2, 0.4}));
    EXPECT_EQ(plain(screen->pulse().emptyText), "");
    EXPECT_EQ(plain(screen->pulse().startText), "2 samples");
    EXPECT_EQ(plain(screen->pulse().accessibleValue), "2 samples, 20% → 40%");
    for (int more = 0; more < 30; ++more) {
        sample(machine(0.5));
    }
    EXPECT_EQ(screen->pulse().samples.size(), 24);
    EXPECT_EQ(plain(screen->pulse().startText), "24 samples");
}

TEST_F(SystemScreenModel, TellsOnlyOfWhatASampleHasChanged)
{
    open();
    for (int more = 0; more < 24; ++more) {
        sample(machine(0.5, 0.5));
    }
    const QSignalSpy pulse(screen.get(), &KarvelloUI::SystemScreenModel::pulseChanged);
    const QSignalSpy memory(screen.get(), &KarvelloUI::SystemScreenModel::memoryChanged);
    const QSignalSpy thermal(screen.get(), &KarvelloUI::SystemScreenModel::thermalChanged);
    const QSignalSpy uptime(screen.get(), &KarvelloUI::SystemScreenModel::uptimeChanged);
    const QSignalSpy language(screen.get(), &KarvelloUI::SystemScreenModel::languageChanged);
    sample(machine(0.6, 0.5));
    EXPECT_EQ(pulse.count(), 1);
    EXPECT_EQ(memory.count(), 0);
    EXPECT_EQ(thermal.count(), 0);
    EXPECT_EQ(uptime.count(), 0);
    EXPECT_EQ(language.count(), 0);
}

TEST_F(SystemScreenModel, SaysHowThingsStandInAPill)
{
    open();
    struct Case {
        const char* heat;
        KarvelloPillKind kind;
    };
    for (const auto& [heat, kind] : {Case{"Nominal", KarvelloPillKind::safe}, Case{"Fair", KarvelloPillKind::caution},
             Case{"Serious", KarvelloPillKind::review}, Case{"Critical", KarvelloPillKind::review}}) {
        auto snapshot = machine();
        snapshot.thermalState = heat;
        sample(snapshot);
        EXPECT_EQ(plain(screen->thermal().pillText), heat);
        EXPECT_EQ(screen->thermal().pillKind, static_cast<int>(kind)) << heat;
    }
    sample(machine(0.1, 0.75));
    EXPECT_EQ(plain(screen->memory().pillText), "Moderate");
    EXPECT_EQ(screen->memory().pillKind, static_cast<int>(KarvelloPillKind::caution));
    sample(machine(0.1, 0.9));
    EXPECT_EQ(plain(screen->memory().pillText), "High");
    EXPECT_EQ(screen->memory().pillKind, static_cast<int>(KarvelloPillKind::review));
}

TEST_F(SystemScreenModel, ShowsADashForAStateThatNobodyKnows)
{
    open();
    auto snapshot = machine();
    snapshot.thermalState = "Unknown";
    snapshot.memoryPressure = "Unknown";
    sample(snapshot);
    EXPECT_EQ(plain(screen->thermal().figure), "—");
    EXPECT_EQ(plain(screen->thermal().pillText), "");
    EXPECT_EQ(plain(screen->memory().pillText), "");
}

TEST_F(SystemScreenModel, ShowsTheDiskAndWhetherItIsLow)
{
    constexpr std::int64_t kGiB = std::int64_t{1} << 30;
    open();
    disk = {.totalBytes = 476 * kGiB, .freeBytes = 186 * kGiB};
    screen->refresh();
    settle();
    EXPECT_EQ(plain(screen->disk().figure), "186 GB");
    EXPECT_EQ(plain(screen->disk().unit), "39%");
    EXPECT_EQ(plain(screen->disk().text), "290 GB / 476 GB used");
    EXPECT_EQ(plain(screen->disk().pillText), "Stable");
    EXPECT_NEAR(screen->disk().fraction, 0.609, 0.001);
    disk.freeBytes = 40 * kGiB;
    screen->refresh();
    settle();
    EXPECT_EQ(plain(screen->disk().pillText), "Almost full");
    EXPECT_EQ(screen->disk().pillKind, static_cast<int>(KarvelloPillKind::caution));
}

TEST_F(SystemScreenModel, RefreshesMachineAndOpensTheMonitor)
{
    open();
    const int before = systemSnapshotsTaken;
    screen->refresh();
    settle();
    EXPECT_EQ(systemSnapshotsTaken, before + 1);
    screen->openMonitor();
    EXPECT_EQ(tools.systemMonitorRequests, 1);
}

TEST_F(SystemScreenModel, FollowsTheLanguageAtOnce)
{
    open();
    sample(machine());
    const QSignalSpy language(screen.get(), &KarvelloUI::SystemScreenModel::languageChanged);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    loop.handleEvents();
    EXPECT_EQ(language.count(), 1);
    EXPECT_EQ(plain(screen->monitorTitle()), "Systemüberwachung öffnen");
    EXPECT_EQ(plain(screen->memory().name), "RAM");
    EXPECT_EQ(plain(screen->uptime().value), "3 Tage, 4 Stunden");
}

} // namespace

} // namespace SystemScreenTests
