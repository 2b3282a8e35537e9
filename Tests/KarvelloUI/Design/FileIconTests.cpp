#include "KarvelloUI/Design/FileIcon.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace KarvelloUI {

TEST(FileIcon, FollowsTheExtensionWhateverItsCase)
{
    EXPECT_EQ(fileIconName("festival.mkv"), "film");
    EXPECT_EQ(fileIconName("SCAN.TIFF"), "image");
    EXPECT_EQ(fileIconName("backup.tar.gz"), "archive");
    EXPECT_EQ(fileIconName("tool_1.0_amd64.deb"), "installer");
    EXPECT_EQ(fileIconName("setup.sh"), "terminal");
}

TEST(FileIcon, IsThatOfAFileWhereTheNameSaysNothing)
{
    for (const std::string_view name :
        {"", "mkv", ".mkv", "film.", "film.mk", "film.mkv2", "film.avi m4v", "film. mkv ", "film.\xFF", "film.mkv\n"}) {
        EXPECT_EQ(fileIconName(name), "file") << name;
    }
}

TEST(FileIcon, NamesDrawingsThatThereAre)
{
    for (const std::string_view name :
        {"a.mkv", "a.png", "a.zip", "a.deb", "a.sh", "a.cpp", "a.url", "a.mobileconfig", "a.app", "a"}) {
        const auto drawing =
            std::string(KARVELLO_SOURCE_DIR "/KarvelloUI/Controls/icons/") + std::string(fileIconName(name)) + ".svg";
        EXPECT_TRUE(std::filesystem::exists(drawing)) << drawing;
    }
}

} // namespace KarvelloUI
