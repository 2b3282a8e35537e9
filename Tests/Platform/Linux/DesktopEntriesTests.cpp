#include "Platform/Linux/DesktopEntries.h"

#include "Tests/Support/TemporaryTree.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace Platform {

namespace {

using TestSupport::TemporaryTree;
using Variables = std::map<std::string, std::string, std::less<>>;

std::optional<DesktopEntry> entryWith(std::string_view body, const std::vector<std::string>& languages = {})
{
    return DesktopEntry::parse("x", std::string("[Desktop Entry]\nType=Application\nName=X\n").append(body), languages);
}

} // namespace

TEST(DesktopEntry, ReadsWhatItNeeds)
{
    const auto entry = DesktopEntry::parse("org.example.Editor",
        "# made by hand\n\n[Desktop Entry]\nType = Application\nName=My\\sEditor\nExec=/opt/x/editor %F\n"
        "[Desktop Action new]\nName=New\nExec=other\nNoDisplay=true\n",
        {});
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->identifier, "org.example.Editor");
    EXPECT_EQ(entry->name, "My Editor");
    EXPECT_EQ(entry->program, "editor");
    EXPECT_TRUE(entry->isShown);
    EXPECT_FALSE(entry->runsInTerminal);
}

TEST(DesktopEntry, OutOfMenusIsNotShown)
{
    EXPECT_FALSE(entryWith("NoDisplay=true\n")->isShown);
    EXPECT_TRUE(entryWith("NoDisplay=false\n")->isShown);
    EXPECT_TRUE(entryWith("Terminal=true\n")->runsInTerminal);
}

TEST(DesktopEntry, AHiddenOneIsNotThere)
{
    EXPECT_FALSE(entryWith("Hidden=true\n"));
    EXPECT_TRUE(entryWith("Hidden=false\n"));
}

TEST(DesktopEntry, MalformedFilesAreNone)
{
    for (const auto* const text :
        {"", "nonsense", "[Desktop Entry]\n", "[Desktop Entry]\nName=X\n", "[Desktop Entry]\nType=Application\n",
            "[Desktop Entry]\nType=Link\nName=X\n", "Type=Application\nName=X\n", "[Other]\nType=Application\nName=X\n",
            "\xFF\xFE\0[Desktop Entry]", "[Desktop Entry]\nType\nName\n===\n"}) {
        EXPECT_FALSE(DesktopEntry::parse("x", text, {})) << text;
    }
}

TEST(DesktopEntry, TakesTheNameInTheBestLanguage)
{
    const std::string_view names = "Name[de]=Schreiber\nName[fr]=Plume\nName[de_AT]=Schreiberl\nName[=broken\n";
    EXPECT_EQ(entryWith(names, {"de_AT", "de"})->name, "Schreiberl");
    EXPECT_EQ(entryWith(names, {"de_DE", "de"})->name, "Schreiber");
    EXPECT_EQ(entryWith(names, {"ko"})->name, "X");
    EXPECT_EQ(DesktopEntry::parse("x", "[Desktop Entry]\nName[fr]=Plume\nName=Pen\nType=Application\n", {"fr"})->name,
        "Plume");
}

TEST(DesktopEntry, FindsTheProgramOfACommandLine)
{
    EXPECT_EQ(entryWith("Exec=\"/opt/my app/run me\" --flag\n")->program, "run me");
    EXPECT_EQ(entryWith("Exec=env A=b C=d /usr/bin/tool %u\n")->program, "tool");
    for (const auto* const interpreter :
        {"python3 /x.py", "/usr/bin/flatpak run org.x", "sh -c x", "python3.11 x", "env", "", "\"", "snap run x"}) {
        EXPECT_EQ(entryWith(std::string("Exec=") + interpreter + "\n")->program, "") << interpreter;
    }
}

TEST(DesktopEntries, FindsFilesInFoldersAndOneLevelDown)
{
    const TemporaryTree tree(
        "a/applications/one.desktop text=\"[Desktop Entry]\\nType=Application\\nName=One\\n\"\n"
        "a/applications/kde/two.desktop text=\"[Desktop Entry]\\nType=Application\\nName=Two\\n\"\n"
        "a/applications/notes.txt\n"
        "a/applications/pipe.desktop fifo\n"
        "a/applications/gone.desktop -> nowhere\n"
        "a/applications/loop -> .\n"
        "a/applications/linked.desktop -> kde/two.desktop\n");
    DesktopEntries entries({tree.path("a/applications"), tree.path("missing")}, {});
    ASSERT_NE(entries.find("one"), nullptr);
    EXPECT_EQ(entries.find("one")->name, "One");
    ASSERT_NE(entries.find("kde-two"), nullptr);
    ASSERT_NE(entries.find("linked"), nullptr);
    EXPECT_EQ(entries.find("linked")->identifier, "linked");
    for (const auto* const missing : {"notes", "pipe", "gone", "two", "loop-one", ""}) {
        EXPECT_EQ(entries.find(missing), nullptr) << missing;
    }
}

TEST(DesktopEntries, TheFirstFolderHidesTheOthers)
{
    const TemporaryTree tree("a/one.desktop text=\"[Desktop Entry]\\nType=Application\\nName=Mine\\n\"\n"
                             "b/one.desktop text=\"[Desktop Entry]\\nType=Application\\nName=Theirs\\n\"\n"
                             "a/two.desktop text=\"[Desktop Entry]\\nType=Application\\nName=Mine\\nHidden=true\\n\"\n"
                             "b/two.desktop text=\"[Desktop Entry]\\nType=Application\\nName=Theirs\\n\"\n");
    DesktopEntries entries({tree.path("a"), tree.path("b")}, {});
    EXPECT_EQ(entries.find("one")->name, "Mine");
    EXPECT_EQ(entries.find("two"), nullptr);
}

TEST(DesktopEntries, OfSeveralForOneProgramTheOneOfItsNameIsMeant)
{
    const TemporaryTree tree(
        "a/org.x.office.desktop text=\"[Desktop Entry]\\nType=Application\\nName=O\\nExec=office\\n\"\n"
        "a/writer.desktop text=\"[Desktop Entry]\\nType=Application\\nName=W\\nExec=office --writer\\n\"\n"
        "a/one.desktop text=\"[Desktop Entry]\\nType=Application\\nName=1\\nExec=twins\\n\"\n"
        "a/two.desktop text=\"[Desktop Entry]\\nType=Application\\nName=2\\nExec=twins\\n\"\n"
        "a/htop.desktop text=\"[Desktop Entry]\\nType=Application\\nName=H\\nExec=htop\\nTerminal=true\\n\"\n");
    DesktopEntries entries({tree.path("a")}, {});
    ASSERT_NE(entries.ofProgram("office"), nullptr);
    EXPECT_EQ(entries.ofProgram("office")->identifier, "org.x.office");
    EXPECT_EQ(entries.ofProgram("twins"), nullptr);
    EXPECT_EQ(entries.ofProgram("htop"), nullptr);
    EXPECT_EQ(entries.ofProgram("missing"), nullptr);
}

TEST(DesktopEntries, LookInTheFoldersOfTheUserTheSystemAndTheSandboxes)
{
    EXPECT_THAT(DesktopEntries::foldersOf(Environment(Variables{
                    {"HOME", "/home/ada"}, {"XDG_DATA_DIRS", "/a/:relative::/b:/a:/var/lib/flatpak/exports/share"}})),
        testing::ElementsAre("/home/ada/.local/share/applications", "/a/applications", "/b/applications",
            "/var/lib/flatpak/exports/share/applications", "/home/ada/.local/share/flatpak/exports/share/applications",
            "/var/lib/snapd/desktop/applications"));
    EXPECT_THAT(DesktopEntries::foldersOf(Environment(Variables{{"HOME", "/home/ada"}})),
        testing::IsSupersetOf({"/usr/local/share/applications", "/usr/share/applications"}));
}

TEST(DesktopEntries, TheEnvironmentNamesTheLanguages)
{
    const auto languages = [](const Variables& variables) {
        return DesktopEntries::languagesOf(Environment(variables));
    };
    EXPECT_THAT(
        languages({{"LANG", "de_AT.UTF-8@euro"}}), testing::ElementsAre("de_AT@euro", "de_AT", "de@euro", "de"));
    EXPECT_THAT(languages({{"LANG", "fr"}, {"LC_ALL", "ko_KR.UTF-8"}}), testing::ElementsAre("ko_KR", "ko"));
    EXPECT_TRUE(languages({{"LANG", "C.UTF-8"}}).empty());
    EXPECT_TRUE(languages({}).empty());
}

} // namespace Platform
