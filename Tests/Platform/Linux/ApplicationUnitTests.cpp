#include "Platform/Linux/ApplicationUnit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace Platform {

namespace {

constexpr std::string_view kSlice = "/user.slice/user-1000.slice/user@1000.service/app.slice/";

std::optional<ApplicationUnit> unitOf(std::string_view component)
{
    return ApplicationUnit::fromControlGroups(std::string("0::").append(kSlice).append(component).append("\n"));
}

} // namespace

TEST(ApplicationUnit, ReadsTheNamesThatLaunchersGive)
{
    const std::pair<std::string_view, std::string_view> names[]{
        {"app-firefox-1234.scope", "firefox"},
        {"app-gnome-firefox-1234.scope", "firefox"},
        {"app-gnome-org.gnome.Evince-8734.scope", "org.gnome.Evince"},
        {"app-flatpak-org.mozilla.firefox-2212.scope", "org.mozilla.firefox"},
        {"app-gnome-org.gnome.Evolution\\x2dalarm\\x2dnotify-2437.scope", "org.gnome.Evolution-alarm-notify"},
        {"app-KDE-org.kde.okular@12345.service", "org.kde.okular"},
        {"app-org.kde.okular@12345.service", "org.kde.okular"},
        {"app-org.kde.okular.service", "org.kde.okular"},
        {"app-gnome\\x2dkeyring@autostart.service", "gnome-keyring"},
        {"app-nm\\x2dapplet-autostart.service", "nm-applet"},
        {"app-org.gnome.Terminal.slice", "org.gnome.Terminal"},
        {"dbus-:1.2-org.gnome.Nautilus@0.service", "org.gnome.Nautilus"},
        {"snap.firefox.firefox-3c1f2a30-5d1b-4c4e-9c3f-0a1b2c3d4e5f.scope", "firefox_firefox"},
        {"snap.code.url-handler-3c1f2a30-5d1b-4c4e-9c3f-0a1b2c3d4e5f.scope", "code_url-handler"},
        {"snap.lxd.daemon.service", "lxd_daemon"},
    };
    for (const auto& [component, identifier] : names) {
        const auto unit = unitOf(component);
        ASSERT_TRUE(unit) << component;
        EXPECT_EQ(unit->kind, ApplicationUnit::Kind::application);
        EXPECT_EQ(unit->identifiers.front(), identifier) << component;
        EXPECT_EQ(unit->path, std::string(kSlice).append(component));
    }
}

TEST(ApplicationUnit, TriesLongerAndShorterNamesWhereDashesWereNotEscaped)
{
    EXPECT_THAT(unitOf("app-code-oss-1234.scope")->identifiers,
        testing::ElementsAre("oss", "code-oss-1234", "code-oss", "oss-1234"));
    const auto clion = unitOf("app-jetbrains-clion-0b0e0b0e@77.service")->identifiers;
    EXPECT_EQ(clion.front(), "clion-0b0e0b0e");
    EXPECT_THAT(clion, testing::Contains("jetbrains-clion-0b0e0b0e"));
    EXPECT_THAT(clion, testing::Contains("jetbrains-clion"));
    EXPECT_THAT(clion, testing::Not(testing::Contains("jetbrains"))) << "a launcher is no application";
}

TEST(ApplicationUnit, TheLastUnitOfAPathCounts)
{
    const auto unit = unitOf("app-dbus\\x2d:1.2\\x2dorg.gnome.Nautilus.slice/dbus-:1.2-org.gnome.Nautilus@0.service");
    ASSERT_TRUE(unit);
    EXPECT_EQ(unit->identifiers.front(), "org.gnome.Nautilus");
    const auto terminal = unitOf("app-org.gnome.Terminal.slice/vte-spawn-0b0e.scope");
    ASSERT_TRUE(terminal);
    EXPECT_EQ(terminal->identifiers.front(), "org.gnome.Terminal");
    EXPECT_EQ(terminal->path, std::string(kSlice) + "app-org.gnome.Terminal.slice");
}

TEST(ApplicationUnit, EverythingInTheSliceOfTheSessionIsTheDesktop)
{
    const auto unit = ApplicationUnit::fromControlGroups(
        "0::/user.slice/user-1000.slice/user@1000.service/session.slice/app-gnome-org.gnome.Shell-1.scope\n");
    ASSERT_TRUE(unit);
    EXPECT_EQ(unit->kind, ApplicationUnit::Kind::desktop);
}

TEST(ApplicationUnit, ReadsTheHierarchyOfSystemdOfTheFirstVersion)
{
    const auto unit = ApplicationUnit::fromControlGroups(
        "9:name=systemd:/user.slice/app.slice/app-gnome-firefox-1.scope\n8:pids:/app-gnome-wrong-1.scope\n0::/\n");
    ASSERT_TRUE(unit);
    EXPECT_EQ(unit->identifiers.front(), "firefox");
}

TEST(ApplicationUnit, OtherGroupsTellNothing)
{
    for (const auto* const component : {"", "gpg-agent.service", "run-r0a1b.scope", "app-", "app-.scope",
             "app-gnome-firefox-1", "snap.firefox", "dbus-org.x@0.service", "session-2.scope", "app-gnome-..-1.scope",
             "app-gnome-a\\x2fb-1.scope/", "init.scope"}) {
        const auto unit = unitOf(component);
        EXPECT_TRUE(!unit || (unit->identifiers.front() != ".." && unit->identifiers.front() != "a/b")) << component;
    }
    EXPECT_FALSE(unitOf("session-2.scope"));
    EXPECT_FALSE(unitOf("gpg-agent.service"));
    EXPECT_FALSE(unitOf("app-gnome-firefox-1"));
    EXPECT_FALSE(ApplicationUnit::fromControlGroups(""));
    EXPECT_FALSE(ApplicationUnit::fromControlGroups("0::/\n"));
    EXPECT_FALSE(ApplicationUnit::fromControlGroups("\xFF\n:::"));
}

TEST(ApplicationUnit, ANameOfManyPartsIsNone)
{
    std::string many = "app";
    for (int part = 0; part < 200; ++part) {
        many += "-x";
    }
    EXPECT_FALSE(unitOf(many + ".scope"));
}

} // namespace Platform
