#include "Platform/Services/UserDirectories.h"

#include "Platform/Services/HomeDirectory.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

namespace {

using Variables = std::map<std::string, std::string, std::less<>>;

} // namespace

TEST(UserDirectories, TakeTheDataFolderThatTheEnvironmentNames)
{
    EXPECT_EQ(dataDirectoryForCurrentUser(Environment(Variables{{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/ada"}})),
        FileURL::folder("/data"));
}

TEST(UserDirectories, PassOverADataFolderThatIsNotAbsolute)
{
    for (const auto* const folder : {"data", "", "~/data"}) {
        EXPECT_EQ(dataDirectoryForCurrentUser(Environment(Variables{{"XDG_DATA_HOME", folder}, {"HOME", "/home/ada"}})),
            FileURL::folder("/home/ada/.local/share"));
    }
}

TEST(UserDirectories, AskTheUserDatabaseWhereTheEnvironmentNamesNoHome)
{
    const auto expected = homeDirectoryForCurrentUser().appending(".local/share", DirectoryHint::isFolder);
    EXPECT_EQ(dataDirectoryForCurrentUser(Environment()), expected);
    EXPECT_EQ(dataDirectoryForCurrentUser(Environment(Variables{{"HOME", "here"}})), expected);
}

TEST(UserDirectories, AreWhereTheFilePutsThem)
{
    const auto home = FileURL::folder("/home/ada");
    constexpr std::string_view file = R"(# made by a program
XDG_DESKTOP_DIR="$HOME/Schreibtisch"
  XDG_DOWNLOAD_DIR = "$HOME/Heruntergeladene Dateien/"
XDG_MUSIC_DIR="/data/Music"
XDG_PICTURES_DIR="$HOME/a \"b\" \$c"
XDG_VIDEOS_DIR="$HOME/"
XDG_TEMPLATES_DIR="$HOME"
XDG_DOCUMENTS_DIR="$HOME/first"
XDG_DOCUMENTS_DIR="$HOME/last")";
    const auto of = [&](UserDirectory directory) { return userDirectory(directory, file, home); };
    EXPECT_EQ(of(UserDirectory::desktop), FileURL::folder("/home/ada/Schreibtisch"));
    EXPECT_EQ(of(UserDirectory::downloads), FileURL::folder("/home/ada/Heruntergeladene Dateien"));
    EXPECT_EQ(of(UserDirectory::music), FileURL::folder("/data/Music"));
    EXPECT_EQ(of(UserDirectory::pictures), FileURL::folder("/home/ada/a \"b\" $c"));
    EXPECT_EQ(of(UserDirectory::videos), std::nullopt);
    EXPECT_EQ(of(UserDirectory::templates), std::nullopt);
    EXPECT_EQ(of(UserDirectory::documents), FileURL::folder("/home/ada/last"));
    EXPECT_EQ(of(UserDirectory::publicShare), FileURL::folder("/home/ada/Public"));
}

TEST(UserDirectories, PassOverLinesThatNameNoFolder)
{
    const auto home = FileURL::folder("/home/ada");
    for (const std::string_view line : {"XDG_MUSIC_DIR=$HOME/x", "XDG_MUSIC_DIR=\"x\"", "XDG_MUSIC_DIR=\"$HOMEx\"",
             "XDG_MUSIC_DIR=\"/x", "XDG_MUSIC_DIR", "XDG_MUSIC_DIR=", "XDG_MUSIC_DIR=\"", "#XDG_MUSIC_DIR=\"/x\"",
             "XDG_MUSIC_DIRS=\"/x\"", "XDG_MUSIC_DIR=\"\"", "", "\n\n"}) {
        EXPECT_EQ(userDirectory(UserDirectory::music, line, home), FileURL::folder("/home/ada/Music")) << line;
    }
    constexpr std::string_view withNUL("XDG_MUSIC_DIR=\"/x\0y\"", 21);
    EXPECT_EQ(userDirectory(UserDirectory::music, withNUL, home), FileURL::folder("/home/ada/Music"));
}

TEST(UserDirectories, KnowTheFoldersForWhatCanBeMadeAgain)
{
    EXPECT_EQ(cacheDirectoryForCurrentUser(Environment({{"HOME", "/home/a"}, {"XDG_CACHE_HOME", "/c"}})),
        FileURL::folder("/c"));
    EXPECT_EQ(cacheDirectoryForCurrentUser(Environment({{"HOME", "/home/a"}, {"XDG_CACHE_HOME", "c"}})),
        FileURL::folder("/home/a/.cache"));
    EXPECT_EQ(
        temporaryDirectory(Environment({{"HOME", "/home/a"}, {"TMPDIR", "/var/own"}})), FileURL::folder("/var/own"));
    EXPECT_EQ(temporaryDirectory(Environment({{"HOME", "/home/a"}, {"TMPDIR", "own"}})), FileURL::folder("/tmp"));
    EXPECT_EQ(temporaryDirectory(Environment()), FileURL::folder("/tmp"));
}

} // namespace Platform
