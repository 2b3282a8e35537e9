#include "KarvelloUI/Screens/System/ReliefScreenModel.h"
#include "KarvelloUI/Screens/System/SystemScreenModel.h"
#include "Tests/KarvelloUI/Controls/Tidiness.h"
#include "Tests/KarvelloUI/Controls/WindowTest.h"
#include "Tests/KarvelloUI/Screens/System/SystemScreens.h"

#include <cmath>
#include <gmock/gmock.h>

namespace KarvelloUI {

namespace {

/// The smallest window without its sidebar.
constexpr int kWidth = 1180 - 224;
constexpr int kHeight = 780;

/// A screen in a window of the smallest size.
class SystemScreens : public WindowTest<SystemScreenTests::SystemScreensTest> {
protected:
    ~SystemScreens() override { m_window.reset(); }

    void live()
    {
        disk = {.totalBytes = std::int64_t{476} << 30, .freeBytes = std::int64_t{186} << 30};
        dashboard->refreshDiskSnapshot();
        for (int step = 0; step < 24; ++step) {
            const double wave = std::sin(step * 0.9) + std::sin(step * 0.37);
            sample(SystemScreenTests::machine(0.35 + 0.15 * wave, 0.7 + 0.01 * wave));
        }
        startApplications();
    }
    void place(const char* type, QObject* model)
    {
        showWindow(QByteArray("import Karvello.Screens.System\n"
                              "Window { id: window; required property var model; visible: true\n"
                              "color: KarvelloDesign.background\n")
                + type + " { objectName: 'screen'; anchors.fill: parent; screen: window.model } }",
            {{QStringLiteral("model"), QVariant::fromValue(model)}, {QStringLiteral("width"), kWidth},
                {QStringLiteral("height"), kHeight}});
        layOut();
    }
    void placePulse()
    {
        m_pulse = std::make_unique<SystemScreenModel>(*dashboard);
        place("SystemScreen", m_pulse.get());
    }
    void placeRelief(ResourceReliefMetric metric)
    {
        m_relief = std::make_unique<ReliefScreenModel>(*dashboard, metric);
        place("ReliefScreen", m_relief.get());
    }
    void setScale(KarvelloTextScale scale)
    {
        m_design.setTextEnvironment({.scale = scale});
        QTest::qWait(50);
    }

    /// Nothing is cut without a way to read it, and nothing is wider than the window.
    void expectThatAllFits(const std::string& which)
    {
        EXPECT_THAT(Tidiness::faultsOf(*m_window->contentItem()), testing::IsEmpty()) << which;
        EXPECT_GT(Tidiness::countTexts(*m_window->contentItem()), 8U);
        for (const auto* item : m_window->findChildren<QQuickItem*>()) {
            if (!item->isVisible() || item->width() <= 0) {
                continue;
            }
            const double right = item->mapToScene({item->width(), 0}).x();
            if (item->property("text").isValid() && right > kWidth) {
                ADD_FAILURE() << which << ": too wide: " << item->property("text").toString().toStdString();
            }
            const bool isParagraph = item->property("isParagraph").toBool();
            if (isParagraph && item->height() + 1 < item->implicitHeight()) {
                ADD_FAILURE() << which << ": cut: " << item->property("text").toString().toStdString();
            }
        }
    }
    void lookAtAll(const std::string& name)
    {
        for (const auto language : Platform::allCases<AppLanguage>()) {
            ASSERT_TRUE(preferences->setLanguage(language));
            loop.handleEvents();
            for (const auto scale : {KarvelloTextScale::standard, KarvelloTextScale::extraLarge}) {
                setScale(scale);
                const std::string which = name + "-" + std::string(Platform::rawValue(language)) + "-"
                    + std::string(Platform::rawValue(scale));
                expectThatAllFits(which);
                photograph(which);
            }
        }
        ASSERT_TRUE(preferences->setLanguage(AppLanguage::english));
        loop.handleEvents();
        setScale(KarvelloTextScale::standard);
        m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
        photograph(name + "-dark");
    }

    std::unique_ptr<SystemScreenModel> m_pulse;
    std::unique_ptr<ReliefScreenModel> m_relief;
};

TEST_F(SystemScreens, FitThePulseInEveryLanguageAndScale)
{
    live();
    placePulse();
    lookAtAll("system");
}

TEST_F(SystemScreens, FitTheAnalysesInEveryLanguageAndScale)
{
    live();
    dashboard->resourceRelief().setSelected(dashboard->resourceRelief().memorySortedCandidates().front(), true);
    placeRelief(ResourceReliefMetric::memory);
    lookAtAll("memory");
    m_window.reset();
    placeRelief(ResourceReliefMetric::cpu);
    lookAtAll("cpu");
}

TEST_F(SystemScreens, FitWhatBecameOfARequestAndWhatIsNotPossible)
{
    live();
    placeRelief(ResourceReliefMetric::memory);
    m_relief->toggle(0);
    m_relief->toggle(1);
    m_relief->requestQuit();
    dashboard->quitSelected();
    settle();
    QTest::qWait(50);
    EXPECT_TRUE(find("results")->isVisible());
    expectThatAllFits("results");
    photograph("memory-results");
    press(find("dismiss"));
    EXPECT_FALSE(find("results")->isVisible());
    capability = CleanerCore::ResourceReliefCapability::appSandbox();
    refreshApplications();
    QTest::qWait(50);
    EXPECT_TRUE(find("limit")->isVisible());
    expectThatAllFits("sandbox");
    photograph("memory-sandbox");
    applications.clear();
    capability = CleanerCore::ResourceReliefCapability::supported();
    refreshApplications();
    QTest::qWait(50);
    EXPECT_TRUE(find("empty")->isVisible());
    photograph("memory-empty");
}

TEST_F(SystemScreens, SelectByKeyboardInsideOneStopForTheList)
{
    live();
    placeRelief(ResourceReliefMetric::memory);
    auto* const list = find("candidates");
    for (int steps = 0; steps < 8 && !list->hasActiveFocus(); ++steps) {
        key(Qt::Key_Tab);
    }
    ASSERT_TRUE(list->hasActiveFocus());
    EXPECT_EQ(nameOf(focused()).substr(0, 12), "Firefox uses");
    key(Qt::Key_Space);
    key(Qt::Key_Down);
    key(Qt::Key_Space);
    EXPECT_EQ(dashboard->resourceRelief().selectedCount(), 2);
    EXPECT_TRUE(spoken(focused())->state().checked);
    key(Qt::Key_End);
    EXPECT_EQ(nameOf(focused()).substr(0, 13), "Karvello uses");
    EXPECT_FALSE(spoken(focused())->state().checkable) << "a lock is no box";
    key(Qt::Key_Space);
    EXPECT_EQ(dashboard->resourceRelief().selectedCount(), 2);
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), find("requestQuit")) << "the list is one stop";
    key(Qt::Key_Backtab);
    EXPECT_TRUE(list->hasActiveFocus());
}

TEST_F(SystemScreens, KeepTheKeyboardOnAnApplicationThatMovesInTheList)
{
    live();
    placeRelief(ResourceReliefMetric::memory);
    auto* const list = find("candidates");
    list->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    ASSERT_EQ(nameOf(focused()).substr(0, 10), "Krita uses");
    applications[0].usage.memoryFractionOfPhysicalMemory = 0.5;
    refreshApplications();
    QTest::qWait(20);
    EXPECT_EQ(nameOf(focused()), "Krita uses 50% of total physical memory, org.kde.krita · 1.92 GB");
    EXPECT_EQ(list->property("currentIndex").toInt(), 0);
}

TEST_F(SystemScreens, ActByTheirShortcuts)
{
    live();
    placeRelief(ResourceReliefMetric::cpu);
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(dashboard->isShowingResourceReliefConfirmation());
    m_relief->toggle(0);
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(dashboard->isShowingResourceReliefConfirmation());
    EXPECT_TRUE(quitRequests.empty());
    dashboard->cancelConfirmation();
    key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(dashboard->resourceRelief().selectedCount(), 0);
    const int before = systemSnapshotsTaken;
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(m_relief->isRefreshing());
    settle();
    EXPECT_EQ(systemSnapshotsTaken, before + 1);
}

TEST_F(SystemScreens, LeaveTheirShortcutsToOthersWhileHidden)
{
    live();
    placeRelief(ResourceReliefMetric::cpu);
    find("screen")->setVisible(false);
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_FALSE(m_relief->isRefreshing());
}

TEST_F(SystemScreens, OpenTheSystemMonitor)
{
    live();
    placePulse();
    press(find("monitor"));
    EXPECT_EQ(tools.systemMonitorRequests, 1);
}

TEST_F(SystemScreens, SpeakEachFigureWithItsCourse)
{
    live();
    placePulse();
    EXPECT_TRUE(nameOf(find("pulse")).starts_with("CPU Live Pulse, ")) << nameOf(find("pulse"));
    EXPECT_THAT(
        spoken(find("pulse"))->text(QAccessible::Description).toStdString(), testing::HasSubstr("24 samples, "));
    EXPECT_EQ(
        nameOf(find("thermal")), "Thermal State, Nominal, Not a sensor temperature · public thermal pressure level");
    EXPECT_EQ(nameOf(find("disk")), "Free space, 186 GB, 39%, 290 GB / 476 GB used");
}

TEST_F(SystemScreens, SelectByAnAssistant)
{
    live();
    placeRelief(ResourceReliefMetric::memory);
    auto* const list = find("candidates");
    list->forceActiveFocus(Qt::TabFocusReason);
    QAccessible::setActive(false);
    QAccessible::setActive(true);
    EXPECT_EQ(spoken(focused())->role(), QAccessible::CheckBox);
    toggle(focused());
    EXPECT_EQ(dashboard->resourceRelief().selectedCount(), 1);
    EXPECT_TRUE(spoken(focused())->state().checked);
}

} // namespace

} // namespace KarvelloUI
