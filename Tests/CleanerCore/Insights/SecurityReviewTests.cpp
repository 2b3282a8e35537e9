#include "CleanerCore/Insights/SecurityReview.h"

#include <gtest/gtest.h>
#include <string>

namespace CleanerCore::SecurityReview {

TEST(SecurityReview, NamesWhatInstallsRunsOrConfigures)
{
    const struct {
        std::string_view name;
        std::string_view detail;
        int priority;
    } rows[] = {
        {"wifi.mobileconfig", "Configuration profile", 5},
        {"setup.pkg", "Installer package", 4},
        {"Editor.app", "Application bundle", 4},
        {"run.command", "Executable command script", 3},
        {"run.sh", "Shell script", 3},
        {"resize.workflow", "Automation workflow", 3},
        {"disk.dmg", "Disk image", 2},
        {"link.webloc", "Web shortcut", 1},
        {"keygen.exe", "Suspicious filename pattern", 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(reviewDetail(row.name), row.detail) << row.name;
        EXPECT_EQ(reviewPriority(row.name), row.priority) << row.name;
    }
}

TEST(SecurityReview, TakesExtensionsInCapitals)
{
    EXPECT_EQ(reviewDetail("SETUP.PKG"), "Installer package");
    EXPECT_EQ(reviewPriority("SETUP.PKG"), 4);
    EXPECT_EQ(reviewDetail("KeyGen.EXE"), "Suspicious filename pattern");
}

TEST(SecurityReview, PassesOverASuspiciousNameOnASafeExtension)
{
    for (const auto* const extension :
        {"txt", "md", "markdown", "json", "yaml", "yml", "plist", "swift", "js", "ts", "py", "rb", "go", "rs", "TXT"}) {
        EXPECT_EQ(reviewDetail(std::string("crack.") + extension), std::nullopt) << extension;
    }
    EXPECT_EQ(reviewDetail("crack.c"), "Suspicious filename pattern");
}

TEST(SecurityReview, LooksAtTheTableBeforeTheWords)
{
    EXPECT_EQ(reviewDetail("crack.pkg"), "Installer package");
    EXPECT_EQ(reviewPriority("crack.pkg"), 4);
}

TEST(SecurityReview, ComparesWholeWords)
{
    for (const auto* const name :
        {"keygen-2.zip", "my_crack.dmg", "file.crack", "keygen", "a patcher", "crack", "[crack]", "x.crack.y",
            "\xFF"
            "crack\xFF"}) {
        EXPECT_NE(reviewDetail(name), std::nullopt) << name;
    }
    for (const auto* const name : {"cracker.zip", "repatcher.zip", "keygen2.zip", "cracks", "4crack", "crackä.zip",
             "äcrack.zip", "crack\u0308.zip", "innocent", "", ".", "..", "\xFF\xFE"}) {
        EXPECT_EQ(reviewDetail(name), std::nullopt) << name;
    }
    EXPECT_EQ(reviewDetail("repatcher.app"), "Application bundle");
}

TEST(SecurityReview, TellsLettersAndNumbersOfAllScriptsFromWhatSeparates)
{
    EXPECT_TRUE(suspiciousFilenamePattern("日本·crack·日本"));
    EXPECT_TRUE(suspiciousFilenamePattern("crack—final"));
    EXPECT_FALSE(suspiciousFilenamePattern("日本crack"));
    EXPECT_FALSE(suspiciousFilenamePattern("crack²"));
    EXPECT_FALSE(suspiciousFilenamePattern("crackٳ"));
    // The Kelvin sign is a capital K.
    EXPECT_EQ(reviewDetail("crac\u212A.zip"), "Suspicious filename pattern");
}

TEST(SecurityReview, FindsNoExtensionWhereANameOnlyBeginsWithAPoint)
{
    EXPECT_EQ(reviewDetail(".pkg"), std::nullopt);
    EXPECT_EQ(reviewDetail("pkg"), std::nullopt);
    EXPECT_EQ(reviewDetail("x.pkg."), std::nullopt);
    EXPECT_EQ(reviewDetail("a.b.pkg"), "Installer package");
    EXPECT_EQ(reviewDetail("crack."), "Suspicious filename pattern");
}

TEST(SecurityReview, TakesLongNamesAsWellAsShortOnes)
{
    EXPECT_EQ(reviewDetail(std::string(300, 'A') + ".PKG"), "Installer package");
    EXPECT_EQ(reviewDetail(std::string(251, 'A') + ".PKG"), "Installer package");
    EXPECT_EQ(reviewDetail(std::string(300, 'A') + "-KEYGEN"), "Suspicious filename pattern");
}

} // namespace CleanerCore::SecurityReview
