#include "Platform/Linux/DesktopCommandLine.h"
#include "Platform/Linux/DesktopEntries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Platform::DesktopEntry;
using testing::ElementsAre;
using testing::Optional;
namespace DesktopCommandLine = Platform::DesktopCommandLine;

TEST(DesktopCommandLine, WordsArePartedByBlanksOutsideOfQuotes)
{
    EXPECT_THAT(DesktopCommandLine::words("a"), Optional(ElementsAre("a")));
    EXPECT_THAT(DesktopCommandLine::words("  a\t-b  c "), Optional(ElementsAre("a", "-b", "c")));
    EXPECT_THAT(DesktopCommandLine::words(R"("/opt/a b/c" "d \"e\" \$f" "")"),
        Optional(ElementsAre("/opt/a b/c", "d \"e\" $f", "")));
}

TEST(DesktopCommandLine, FieldCodesStandForNothing)
{
    EXPECT_THAT(DesktopCommandLine::words("a %U -b %i %c %k"), Optional(ElementsAre("a", "-b")));
    EXPECT_THAT(DesktopCommandLine::words("a --file=%f %d%D %n %N %v %m %u %F"), Optional(ElementsAre("a", "--file=")));
    EXPECT_THAT(DesktopCommandLine::words("a 100%% %%U"), Optional(ElementsAre("a", "100%", "%U")));
}

TEST(DesktopCommandLine, WhatIsNoneIsNotGuessed)
{
    for (const auto* const line : {"", "  \t", "%U", "\"\" a", "a %", "a %x", "a %\xFF"}) {
        EXPECT_EQ(DesktopCommandLine::words(line), std::nullopt) << line;
    }
}

TEST(DesktopCommandLine, NothingInItIsForAShell)
{
    EXPECT_THAT(DesktopCommandLine::words("a; b | c > $HOME `d` *"),
        Optional(ElementsAre("a;", "b", "|", "c", ">", "$HOME", "`d`", "*")));
}

TEST(DesktopCommandLine, AFileTellsItAndWhetherTheBusStartsTheApplication)
{
    const auto entry = DesktopEntry::parse(
        "x", "[Desktop Entry]\nType=Application\nName=X\nExec=\"a\\\\\\\\b\" c\\sd %U\nDBusActivatable=true\n", {});
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->commandLine, "\"a\\\\b\" c d %U");
    EXPECT_THAT(DesktopCommandLine::words(entry->commandLine), Optional(ElementsAre("a\\b", "c", "d")));
    EXPECT_TRUE(entry->isDBusActivatable);
    const auto other = DesktopEntry::parse("x", "[Desktop Entry]\nType=Application\nName=X\nDBusActivatable=no\n", {});
    ASSERT_TRUE(other);
    EXPECT_EQ(other->commandLine, "");
    EXPECT_FALSE(other->isDBusActivatable);
}

} // namespace
