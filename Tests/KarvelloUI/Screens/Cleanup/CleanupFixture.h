#pragma once

#include "KarvelloUI/Screens/Cleanup/CleanupScreenModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace CleanupTests {

using namespace KarvelloUI;
using Face = CleanupScreenModel::Face;

/// The review over a home with two caches, a log and a cache of an application.
class CleanupTest : public DashboardTests::DashboardTest {
protected:
    explicit CleanupTest(std::string_view layoutOfHome = "home/Library/Caches/pip/wheel size=64K age=90d\n"
                                                         "home/Library/Caches/yarn/pack size=32K age=40d\n"
                                                         "home/Library/Logs/old.log size=16K age=20d\n"
                                                         "home/Library/Caches/fresh/new size=4K age=1m\n")
        : DashboardTest(layoutOfHome)
    {
        reopen();
    }
    ~CleanupTest() override { screen.reset(); }

    /// The screen over the dashboard as it is now.
    void reopen() { screen = std::make_unique<CleanupScreenModel>(*dashboard); }
    /// The application again, with its screen.
    void restartAll()
    {
        screen.reset();
        restart();
        reopen();
    }

    CleanerViewModel& session() { return dashboard->cleaner(); }
    [[nodiscard]] CleanupRow content(int row) { return value<CleanupRow>(row, CleanupListModel::contentRole); }
    [[nodiscard]] CleanupSectionHead head(int row)
    {
        return value<CleanupSectionHead>(row, CleanupListModel::headRole);
    }
    template <typename Value>
    [[nodiscard]] Value value(int row, int role)
    {
        return screen->list()->data(screen->list()->index(row), role).template value<Value>();
    }
    /// The names of all rows, heads in brackets.
    [[nodiscard]] std::vector<std::string> rows()
    {
        std::vector<std::string> names;
        for (int row = 0; row < screen->list()->count(); ++row) {
            const auto name = value<QString>(row, CandidateListModel::nameRole).toStdString();
            names.push_back(screen->list()->isHead(row) ? "[" + name + "]" : name);
        }
        return names;
    }
    [[nodiscard]] int rowOf(const std::string& name)
    {
        const auto names = rows();
        return static_cast<int>(std::ranges::find(names, name) - names.begin());
    }
    [[nodiscard]] std::vector<std::string> selectedNames()
    {
        std::vector<std::string> names;
        for (const auto& candidate : session().review().selection().candidates()) {
            names.push_back(candidate.displayName);
        }
        return names;
    }
    [[nodiscard]] CleanupBanner banner() const { return screen->banner().value<CleanupBanner>(); }
    [[nodiscard]] bool hasBanner() const { return screen->banner().canConvert<CleanupBanner>(); }

    std::unique_ptr<CleanupScreenModel> screen;
};

} // namespace CleanupTests
