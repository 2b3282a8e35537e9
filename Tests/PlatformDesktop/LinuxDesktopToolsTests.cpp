#include "PlatformDesktop/LinuxDesktopTools.h"
#include "Tests/PlatformDesktop/DesktopServicesFixture.h"

namespace {

using namespace PlatformDesktopTests;
using PlatformDesktop::LinuxDesktopTools;
using testing::ElementsAre;

class LinuxDesktopToolsTest : public DesktopServicesTest {
protected:
    std::unique_ptr<LinuxDesktopTools> tools()
    {
        return std::make_unique<LinuxDesktopTools>(m_bus,
            LinuxDesktopTools::Settings{
                .applicationFolders = {m_tree.path("own/applications"), m_tree.path("applications")},
                .programFolders = {m_tree.path("bin")},
                .isPlasma = m_isPlasma,
                .patience = 300ms,
            },
            [this](const std::string& text) { m_copied.push_back(text); });
    }
    bool openSystemMonitor()
    {
        const auto tools = this->tools();
        return answerOf<bool>([&](const auto& answer) { tools->openSystemMonitor(answer); }).value_or(false);
    }
    bool openPrivacySettings()
    {
        const auto tools = this->tools();
        return answerOf<bool>([&](const auto& answer) { tools->openPrivacySettings(answer); }).value_or(false);
    }

    void addEntry(const std::string& identifier, const std::string& lines, const std::string& folder = "applications")
    {
        std::ofstream(m_tree.path(folder + "/" + identifier + ".desktop"))
            << "[Desktop Entry]\nType=Application\nName=X\n"
            << lines << "\n";
    }
    std::string program(const std::string& name) const { return m_tree.path("bin/" + name); }
    /// With a desktop file.
    void addTool(const std::string& identifier, const std::string& name, const std::string& arguments = "",
        const std::string& lines = "")
    {
        addEntry(identifier, "Exec=" + name + " " + arguments + "\n" + lines);
        addProgram(program(name));
    }

    TestSupport::TemporaryTree m_tree{"applications/\nown/applications/\nbin/\n"};
    bool m_isPlasma = false;
    std::vector<std::string> m_copied;
};

TEST_F(LinuxDesktopToolsTest, WithoutASystemMonitorNoneIsOpened)
{
    addTool("org.example.Other", "other");
    EXPECT_FALSE(openSystemMonitor());
    EXPECT_FALSE(wasStarted(program("other")));
}

TEST_F(LinuxDesktopToolsTest, EachKnownSystemMonitorIsFoundAndTheFirstOneCounts)
{
    // From the last to the first.
    for (const auto* const identifier : {"lxtask", "xfce4-taskmanager", "mate-system-monitor", "org.kde.ksysguard",
             "org.kde.plasma-systemmonitor", "gnome-system-monitor", "org.gnome.SystemMonitor"}) {
        const auto name = std::string("run-") + identifier;
        addTool(identifier, name);
        EXPECT_TRUE(openSystemMonitor());
        EXPECT_EQ(saidBy(program(name)), name + "\n");
        std::filesystem::remove(program(name) + ".said");
    }
}

TEST_F(LinuxDesktopToolsTest, ItIsStartedAsItsFileSaysWithoutAShell)
{
    addTool("lxtask", "lxtask", R"("a b" %U $HOME ; touch x `id` 5%% -c=%c)");
    EXPECT_TRUE(openSystemMonitor());
    EXPECT_EQ(saidBy(program("lxtask")), "lxtask\na b\n$HOME\n;\ntouch\nx\n`id`\n5%\n-c=\n");
}

TEST_F(LinuxDesktopToolsTest, AProgramMayBeNamedByItsPlace)
{
    addProgram(m_tree.path("own/monitor"));
    addEntry("lxtask", "Exec=" + m_tree.path("own/monitor"));
    EXPECT_TRUE(openSystemMonitor());
    EXPECT_EQ(saidBy(m_tree.path("own/monitor")), "monitor\n");
}

TEST_F(LinuxDesktopToolsTest, WhatCannotBeStartedIsPassedOver)
{
    addEntry("org.gnome.SystemMonitor", "Exec=gone");
    addEntry("gnome-system-monitor", "Exec=./bin/lxtask");
    addTool("org.kde.plasma-systemmonitor", "hidden", "", "Hidden=true");
    addTool("org.kde.ksysguard", "terminal", "", "Terminal=true");
    addTool("mate-system-monitor", "unclear", "%x");
    addEntry("xfce4-taskmanager", "Exec=plain");
    std::ofstream(program("plain")) << "not a program";
    EXPECT_FALSE(openSystemMonitor());
    addTool("lxtask", "lxtask");
    EXPECT_TRUE(openSystemMonitor());
    EXPECT_EQ(saidBy(program("lxtask")), "lxtask\n");
    for (const auto* const name : {"hidden", "terminal", "unclear"}) {
        EXPECT_FALSE(wasStarted(program(name))) << name;
    }
}

TEST_F(LinuxDesktopToolsTest, TheUsersOwnFileCounts)
{
    addTool("lxtask", "lxtask");
    addEntry("lxtask", "Hidden=true", "own/applications");
    EXPECT_FALSE(openSystemMonitor());
    EXPECT_FALSE(wasStarted(program("lxtask")));
}

TEST_F(LinuxDesktopToolsTest, AnApplicationOfTheBusIsActivated)
{
    addTool("org.gnome.SystemMonitor", "monitor", "", "DBusActivatable=true");
    const FakeBusService monitor(
        "org.gnome.SystemMonitor", [](const QDBusMessage& call) { return call.createReply(); });
    EXPECT_TRUE(openSystemMonitor());
    ASSERT_THAT(monitor.methods(), ElementsAre("Activate"));
    EXPECT_EQ(monitor.calls().front().path(), QLatin1String("/org/gnome/SystemMonitor"));
    EXPECT_EQ(monitor.calls().front().interface(), QLatin1String("org.freedesktop.Application"));
    EXPECT_EQ(monitor.calls().front().signature(), QLatin1String("a{sv}"));
    letTimePass();
    EXPECT_FALSE(wasStarted(program("monitor")));
}

TEST_F(LinuxDesktopToolsTest, OneThatTheBusCannotStartIsStartedAsAProgram)
{
    addTool("org.gnome.SystemMonitor", "monitor", "", "DBusActivatable=true");
    EXPECT_TRUE(openSystemMonitor());
    EXPECT_EQ(saidBy(program("monitor")), "monitor\n");
    std::filesystem::remove(program("monitor") + ".said");
    m_bus = withoutABus();
    EXPECT_TRUE(openSystemMonitor());
    EXPECT_EQ(saidBy(program("monitor")), "monitor\n");
}

TEST_F(LinuxDesktopToolsTest, OneWithoutAProgramIsFollowedByTheNext)
{
    addEntry("gnome-system-monitor", "DBusActivatable=true");
    addTool("lxtask", "lxtask");
    EXPECT_TRUE(openSystemMonitor());
    EXPECT_EQ(saidBy(program("lxtask")), "lxtask\n");
}

TEST_F(LinuxDesktopToolsTest, OneThatDoesNotAnswerIsNotOpenedTwice)
{
    addTool("org.gnome.SystemMonitor", "monitor", "", "DBusActivatable=true");
    addTool("lxtask", "lxtask");
    const FakeBusService monitor("org.gnome.SystemMonitor", [](const QDBusMessage&) { return std::nullopt; });
    EXPECT_FALSE(openSystemMonitor());
    EXPECT_THAT(monitor.methods(), ElementsAre("Activate"));
    letTimePass();
    EXPECT_FALSE(wasStarted(program("monitor")));
    EXPECT_FALSE(wasStarted(program("lxtask")));
}

TEST_F(LinuxDesktopToolsTest, WithoutSettingsNoneAreOpened)
{
    EXPECT_FALSE(openPrivacySettings());
    EXPECT_FALSE(tools()->hasPrivacySettings());
    m_isPlasma = true;
    EXPECT_FALSE(openPrivacySettings());
}

TEST_F(LinuxDesktopToolsTest, SettingsOfEitherDesktopAreSettings)
{
    for (const char* const name : {"gnome-control-center", "systemsettings"}) {
        addProgram(program(name));
        EXPECT_TRUE(tools()->hasPrivacySettings()) << name;
        std::filesystem::remove(program(name));
        EXPECT_FALSE(tools()->hasPrivacySettings()) << name;
    }
}

TEST_F(LinuxDesktopToolsTest, ThePrivacyPanelIsOpened)
{
    addProgram(program("gnome-control-center"));
    EXPECT_TRUE(openPrivacySettings());
    EXPECT_EQ(saidBy(program("gnome-control-center")), "gnome-control-center\nprivacy\n");
}

TEST_F(LinuxDesktopToolsTest, PlasmasModuleIsOpenedIfItIsInstalled)
{
    addProgram(program("systemsettings"));
    EXPECT_TRUE(openPrivacySettings());
    EXPECT_EQ(saidBy(program("systemsettings")), "systemsettings\n");
    std::filesystem::remove(program("systemsettings") + ".said");
    addEntry("kcm_recentFiles", "NoDisplay=true");
    EXPECT_TRUE(openPrivacySettings());
    EXPECT_EQ(saidBy(program("systemsettings")), "systemsettings\nkcm_recentFiles\n");
}

TEST_F(LinuxDesktopToolsTest, TheSettingsOfTheUsersDesktopComeFirst)
{
    addProgram(program("gnome-control-center"));
    addProgram(program("systemsettings"));
    m_isPlasma = true;
    EXPECT_TRUE(openPrivacySettings());
    EXPECT_EQ(saidBy(program("systemsettings")), "systemsettings\n");
    EXPECT_FALSE(wasStarted(program("gnome-control-center")));
    std::filesystem::remove(program("systemsettings") + ".said");
    m_isPlasma = false;
    EXPECT_TRUE(openPrivacySettings());
    EXPECT_EQ(saidBy(program("gnome-control-center")), "gnome-control-center\nprivacy\n");
    EXPECT_FALSE(wasStarted(program("systemsettings")));
}

TEST_F(LinuxDesktopToolsTest, ATextIsHandedOn)
{
    tools()->copyText("a\n\xFF");
    EXPECT_THAT(m_copied, ElementsAre("a\n\xFF"));
}

TEST_F(LinuxDesktopToolsTest, NothingIsAnsweredAfterItsEnd)
{
    addTool("org.gnome.SystemMonitor", "monitor", "", "DBusActivatable=true");
    const FakeBusService monitor("org.gnome.SystemMonitor", [](const QDBusMessage&) { return std::nullopt; });
    bool isAnswered = false;
    const auto answer = [&isAnswered](bool) { isAnswered = true; };
    tools()->openPrivacySettings(answer);
    tools()->openSystemMonitor(answer);
    auto asking = tools();
    asking->openSystemMonitor(answer);
    EXPECT_TRUE(m_loop.runUntil([&monitor] { return !monitor.calls().empty(); }));
    asking.reset();
    monitor.send(monitor.calls().front().createReply());
    letTimePass(500ms);
    EXPECT_FALSE(isAnswered);
}

TEST_F(LinuxDesktopToolsTest, AnAnswerMayBeItsEnd)
{
    for (const bool isMonitor : {true, false}) {
        auto tools = this->tools();
        const auto end = [&tools](bool) { tools.reset(); };
        isMonitor ? tools->openSystemMonitor(end) : tools->openPrivacySettings(end);
        EXPECT_TRUE(m_loop.runUntil([&tools] { return tools == nullptr; }));
        m_loop.handleEvents();
    }
}

TEST(LinuxDesktopToolsSettings, ComeFromTheSession)
{
    using Variables = std::map<std::string, std::string, std::less<>>;
    const auto settingsOf = [](const Variables& variables) {
        return LinuxDesktopTools::Settings::current(Platform::Environment(variables));
    };
    const auto settings = settingsOf({{"XDG_DATA_DIRS", "/a"}, {"PATH", "/bin"}, {"XDG_CURRENT_DESKTOP", "x:KDE"}});
    EXPECT_THAT(settings.applicationFolders, testing::Contains("/a/applications"));
    EXPECT_THAT(settings.programFolders, ElementsAre("/bin"));
    EXPECT_TRUE(settings.isPlasma);
    EXPECT_FALSE(settingsOf({{"XDG_CURRENT_DESKTOP", "GNOME"}}).isPlasma);
    EXPECT_FALSE(settingsOf({}).isPlasma);
}

} // namespace
