#pragma once

#include "KarvelloUI/Screens/Settings/SettingsScreenModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"
#include "Tests/KarvelloUI/Dashboard/HostileName.h"
#include "Tests/KarvelloUI/Sessions/CandidateSamples.h"

#include <QVariantMap>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace DashboardTests {

/// The settings over a whole dashboard, whose section is theirs.
class SettingsTest : public DashboardTest {
protected:
    SettingsTest() { reopen(); }
    ~SettingsTest() override { screen.reset(); }

    /// The application is started again.
    void reopen()
    {
        screen.reset();
        restart();
        dashboard->selectSection(MacDashboardSection::settings);
        settle();
        screen = std::make_unique<SettingsScreenModel>(*dashboard);
    }

    static std::vector<std::string> valuesOf(const QVariantList& choices) { return column(choices, "value"); }
    static std::vector<std::string> textsOf(const QVariantList& choices) { return column(choices, "text"); }
    static std::string said(QAbstractItemModel* list, int row, int role)
    {
        return list->index(row, 0).data(role).toString().toStdString();
    }
    [[nodiscard]] AccessGuidanceStep step(int place) const
    {
        return screen->accessGuidance()->steps().at(place).value<AccessGuidanceStep>();
    }
    [[nodiscard]] std::string noticeTitle() const
    {
        return dashboard->notice() ? dashboard->notice()->title.toStdString() : std::string();
    }

    void ignore(std::string_view path, CleanupIgnoreDuration duration = CleanupIgnoreDuration::untilShownAgain,
        std::int64_t sizeBytes = 1)
    {
        ASSERT_TRUE(
            dashboard->ignoreStore().ignore(made({.path = tree.path(path), .sizeBytes = sizeBytes}), duration, now));
    }
    void addFolder(std::string_view path)
    {
        screen->customFolders()->add();
        ASSERT_TRUE(fileDialogs.isOpen());
        fileDialogs.answer(tree.url(path));
    }
    /// A scan that skips folders of the user's, "f1" and so on: others have taken their places.
    void skipFolders(int count)
    {
        for (int number = 1; number <= count; ++number) {
            const std::string name = "home/f" + std::to_string(number);
            tree.add(name + "/");
            addFolder(name + "/");
            std::filesystem::rename(tree.path(name), tree.path(name + " before"));
            std::filesystem::create_directory(tree.path(name));
        }
        dashboard->scanCleanup();
        settle();
    }

    std::unique_ptr<SettingsScreenModel> screen;

private:
    static std::vector<std::string> column(const QVariantList& choices, const char* key)
    {
        std::vector<std::string> texts;
        for (const auto& choice : choices) {
            texts.push_back(choice.toMap()[QString::fromLatin1(key)].toString().toStdString());
        }
        return texts;
    }
};

} // namespace DashboardTests
