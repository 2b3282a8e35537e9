#include "Platform/Services/UserDirectories.h"

#include "Platform/Services/HomeDirectory.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>

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

} // namespace Platform
