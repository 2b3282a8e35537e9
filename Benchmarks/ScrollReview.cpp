// How long the frames of a large review take, drawn without a graphics card: karvello-scroll-review [CANDIDATES].

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Controls/InstallDesign.h"
#include "KarvelloUI/Screens/Cleanup/CleanupScreenModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace KarvelloUI;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

struct Subject final : DashboardTests::DashboardTest {
    explicit Subject(int candidates)
        : DashboardTest(fmt::format("home/Library/Caches/\n    entry- count={} size=1 age=90d\n", candidates))
    {
        scanForCleanup();
        screen = std::make_unique<CleanupScreenModel>(*dashboard);
    }
    void TestBody() override {}

    std::unique_ptr<CleanupScreenModel> screen;
};

void report(const char* what, std::vector<double> milliseconds)
{
    std::ranges::sort(milliseconds);
    const auto at = [&](double share) {
        return milliseconds[static_cast<std::size_t>(share * static_cast<double>(milliseconds.size() - 1))];
    };
    fmt::print("{:32} median {:7.2f} ms   95% {:7.2f} ms   worst {:7.2f} ms   ({} frames)\n", what, at(0.5), at(0.95),
        milliseconds.back(), milliseconds.size());
}

template <typename Change>
std::vector<double> frames(QQuickWindow& window, int count, Change change)
{
    std::vector<double> milliseconds;
    for (int number = 0; number < count; ++number) {
        const auto start = Clock::now();
        change(number);
        QCoreApplication::processEvents();
        const auto picture = window.grabWindow();
        milliseconds.push_back(Milliseconds(Clock::now() - start).count());
        if (picture.isNull()) {
            fmt::print(stderr, "no picture\n");
            std::exit(1);
        }
    }
    return milliseconds;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    const int candidates = argc > 1 ? std::atoi(argv[1]) : 100'000;
    Subject subject(candidates);
    auto& screen = *subject.screen;
    QQmlEngine engine;
    installDesign(engine).setReducedMotion(true);
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Karvello.Design\nimport Karvello.Screens.Cleanup\n"
                      "Window { id: window; required property CleanupScreenModel screen; width: 1240; height: 820\n"
                      "visible: true; color: KarvelloDesign.background\n"
                      "CleanupScreen { anchors.fill: parent; screen: window.screen } }",
        {});
    const std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow*>(
        component.createWithInitialProperties({{QStringLiteral("screen"), QVariant::fromValue(&screen)}})));
    if (!window) {
        fmt::print(stderr, "{}\n", component.errorString().toStdString());
        return 1;
    }
    auto* const list = window->findChild<QQuickItem*>(QStringLiteral("candidates"));
    fmt::print("{} candidates\n", screen.list()->count());
    report("still", frames(*window, 30, [](int) {}));
    const auto scrollTo = [list](double position) { list->setProperty("contentY", position); };
    report("scroll by 40 pixels", frames(*window, 300, [&](int number) { scrollTo(number * 40.0); }));
    report("scroll by a page", frames(*window, 200, [&](int number) { scrollTo(12'000 + number * 500.0); }));
    report("jump anywhere", frames(*window, 100, [&](int number) {
        scrollTo(static_cast<double>(number * 7919LL % 100) / 100 * list->property("contentHeight").toDouble());
    }));
    scrollTo(0);
    report("toggle a row", frames(*window, 100, [&](int number) { screen.toggle(number % 8); }));
    screen.setGrouping(QStringLiteral("safety"));
    report("toggle a section", frames(*window, 20, [&](int) {
        screen.toggleSection(screen.list()->headOf(0).value<CleanupSectionHead>().id);
    }));
    report("open and close a section", frames(*window, 20, [&](int number) {
        screen.setSectionOpen(screen.list()->headOf(0).value<CleanupSectionHead>().id, number % 2 == 1);
    }));
    const std::string typed = "entry-9999";
    report("keystroke in the filter", frames(*window, 40, [&](int number) {
        screen.setSearchText(QString::fromStdString(typed.substr(0, static_cast<std::size_t>(number) % typed.size())));
    }));
    return 0;
}
