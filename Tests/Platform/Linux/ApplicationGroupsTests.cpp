#include "Platform/Linux/ApplicationGroups.h"

#include "Tests/Platform/Linux/RunningApplicationsFixture.h"

namespace {

using namespace RunningApplicationsTests;

class ApplicationGroupsTest : public RunningApplicationsTest {};

TEST_F(ApplicationGroupsTest, TheDesktopFileOfAUnitNamesTheApplication)
{
    add({.number = 10, .start = 1050, .unit = "app-gnome-editor-10.scope"});
    EXPECT_THAT(list(),
        testing::ElementsAre(RunningApplication{.displayName = "Editor",
            .bundleIdentifier = "editor",
            .processIdentifier = 10,
            .isUserVisible = true,
            .launchDate = Date{10.5},
            .processes = {{.processIdentifier = 10, .startTicks = 1050}}}));
}

TEST_F(ApplicationGroupsTest, WithoutADesktopFileThereIsNoIdentifier)
{
    add({.number = 10, .unit = "app-gnome-sync-10.scope", .program = "syncd"});
    add({.number = 11, .unit = "app-gnome-other-11.scope"});
    const auto found = list();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].bundleIdentifier, std::nullopt);
    EXPECT_EQ(found[0].displayName, "syncd");
    EXPECT_FALSE(found[0].isUserVisible);
    EXPECT_EQ(found[1].displayName, "name (of) it) ");
}

TEST_F(ApplicationGroupsTest, WhatMenusDoNotShowIsNotVisible)
{
    add({.number = 10, .unit = "app-helper@autostart.service"});
    EXPECT_EQ(identifiers(), std::vector<std::string>{"helper"});
    EXPECT_FALSE(list().front().isUserVisible);
}

TEST_F(ApplicationGroupsTest, AMalformedDesktopFileIsNone)
{
    write("applications/editor.desktop", "[Desktop Entry\nType=Application\nName=Editor\n");
    add({.number = 10, .unit = "app-gnome-editor-10.scope"});
    EXPECT_EQ(identifiers(), std::vector<std::string>{"-"});
}

TEST_F(ApplicationGroupsTest, TheDesktopItselfIsNotListed)
{
    add({.number = 10, .program = "editor"});
    write("proc/10/cgroup", "0::/user.slice/user@1000.service/session.slice/org.gnome.Shell@wayland.service\n");
    add({.number = 11, .start = 101, .parent = 10});
    EXPECT_TRUE(list().empty());
}

TEST_F(ApplicationGroupsTest, FlatpakTellsWhoRunsInItsRootFolder)
{
    add({.number = 10});
    write("proc/10/root/.flatpak-info", "[Instance]\nname=wrong\n[Application]\nname=org.example.Notes\n");
    EXPECT_EQ(identifiers(), std::vector<std::string>{"org.example.Notes"});
}

TEST_F(ApplicationGroupsTest, VariablesOfLaunchersTellWhoRuns)
{
    using namespace std::string_view_literals;
    add({.number = 10});
    write("proc/10/environ", "A=b\0BAMF_DESKTOP_FILE_HINT=/var/lib/x/org.example.Notes.desktop\0"sv);
    add({.number = 20});
    write("proc/20/environ", "GIO_LAUNCHED_DESKTOP_FILE=/x/editor.desktop\0GIO_LAUNCHED_DESKTOP_FILE_PID=20\0"sv);
    add({.number = 30});
    write("proc/30/environ", "GIO_LAUNCHED_DESKTOP_FILE=/x/helper.desktop\0GIO_LAUNCHED_DESKTOP_FILE_PID=31\0"sv);
    EXPECT_THAT(identifiers(), testing::ElementsAre("org.example.Notes", "editor"));
}

TEST_F(ApplicationGroupsTest, TheProgramTellsWhoRunsWhereNothingElseDoes)
{
    add({.number = 10, .program = "editor"});
    add({.number = 11, .program = "notes (deleted)"});
    add({.number = 12, .program = "bash"});
    EXPECT_THAT(identifiers(), testing::ElementsAre("editor", "org.example.Notes"));
}

TEST_F(ApplicationGroupsTest, WhatAnApplicationStartsBelongsToIt)
{
    add({.number = 10, .start = 100, .program = "editor"});
    add({.number = 11, .start = 110, .parent = 10, .program = "bash"});
    add({.number = 12, .start = 120, .parent = 11, .program = "make"});
    add({.number = 13, .start = 130, .parent = 12, .program = "notes"});
    add({.number = 14, .start = 90, .parent = 10, .program = "older"});
    add({.number = 20, .start = 100, .program = "helper"});
    write("proc/20/root/.flatpak-info", "[Application]\nname=helper\n");
    add({.number = 21, .start = 110, .parent = 20, .program = "bash"});
    const auto found = list();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].processes.size(), 3U);
    EXPECT_EQ(found[1].bundleIdentifier, "org.example.Notes");
    EXPECT_EQ(found[2].processes.size(), 1U) << "what the desktop's own programs start is not theirs";
}

TEST_F(ApplicationGroupsTest, ParentsInACircleEnd)
{
    add({.number = 10, .start = 100, .parent = 11, .program = "a"});
    add({.number = 11, .start = 100, .parent = 10, .program = "b"});
    EXPECT_TRUE(list().empty());
}

TEST_F(ApplicationGroupsTest, AUnitThatTellsNothingIsWhatItsFirstProcessIs)
{
    add({.number = 10, .start = 100, .unit = "app-gnome-unknown-10.scope", .program = "editor"});
    add({.number = 11, .start = 110, .unit = "app-gnome-unknown-10.scope", .program = "notes"});
    EXPECT_EQ(identifiers(), std::vector<std::string>{"editor"});
    EXPECT_EQ(list()[0].processes.size(), 2U);
}

TEST_F(ApplicationGroupsTest, TheOwnProcessIsNoPartOfItsTerminal)
{
    add({.number = 10, .unit = "app-gnome-editor-10.scope", .program = "editor", .share = 10});
    add({.number = kOwn, .start = 50, .unit = "app-gnome-editor-10.scope", .program = "karvello-cli", .share = 100});
    const auto found = measured();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].residentMemoryBytes, 10U * 1024);
    EXPECT_EQ(found[1].processIdentifier, kOwn);
    EXPECT_EQ(found[1].displayName, "karvello-cli");
    EXPECT_EQ(found[1].bundleIdentifier, std::nullopt);
}

TEST_F(ApplicationGroupsTest, TheOwnProcessStandsForItsOwnApplication)
{
    add({.number = 10, .start = 10, .unit = "app-gnome-editor-10.scope", .program = "bash"});
    add({.number = kOwn, .start = 50, .unit = "app-gnome-editor-10.scope", .program = "editor"});
    add({.number = 5, .start = 5, .unit = "app-gnome-editor-10.scope", .program = "bash"});
    const auto found = list();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].processIdentifier, kOwn);
    EXPECT_EQ(found[0].bundleIdentifier, "editor");
    EXPECT_EQ(found[0].processes.size(), 3U);
}

} // namespace
