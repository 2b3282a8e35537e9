#include "PlatformDesktop/NotificationText.h"

#include "Platform/Base/Text.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

using PlatformDesktop::NotificationText::body;
using PlatformDesktop::NotificationText::escapedMarkup;
using PlatformDesktop::NotificationText::title;
using PlatformDesktop::NotificationText::withoutTags;
using namespace std::string_view_literals;

TEST(NotificationText, PlainTextStandsAsItIs)
{
    EXPECT_EQ(title("Karvello 확인 필요 · 5%"), "Karvello 확인 필요 · 5%");
    EXPECT_EQ(body("<b>a</b> & “b”\nc"), "<b>a</b> & “b”\nc");
}

TEST(NotificationText, ATitleIsOneLine)
{
    EXPECT_EQ(title("a\nb\r\u2028c\u0085d"), "a b  c d");
}

TEST(NotificationText, ControlsAreBlanks)
{
    EXPECT_EQ(body("a\tb\x1B[31m\0c\x7F"sv), "a b [31m c ");
}

TEST(NotificationText, NothingTurnsTheTextAround)
{
    EXPECT_EQ(title("a\u202Egpj.exe\u202C\u2066b\u2069"), "agpj.exeb");
    // Letters of a script that runs from right to left stay, and so do the marks beside them.
    EXPECT_EQ(title("\u05D0\u200F!"), "\u05D0\u200F!");
}

TEST(NotificationText, BytesThatAreNoTextAreShown)
{
    EXPECT_EQ(title("a\xFF\xC3"), "a\\xFF\\xC3");
}

TEST(NotificationText, WhatIsVeryLongIsCut)
{
    EXPECT_EQ(title(std::string(200, 'a')), std::string(200, 'a'));
    EXPECT_EQ(title(std::string(201, 'a')), std::string(199, 'a') + "…");
    EXPECT_EQ(body(std::string(100'000, 'a')), std::string(1999, 'a') + "…");
    std::string wide;
    for (int count = 0; count < 300; ++count) {
        wide += "😀";
    }
    EXPECT_TRUE(Platform::Text::isValidUTF8(title(wide)));
}

TEST(NotificationText, MarkupIsEscaped)
{
    EXPECT_EQ(escapedMarkup("<a href=\"x\">&amp;</a>"), "&lt;a href=\"x\"&gt;&amp;amp;&lt;/a&gt;");
}

TEST(NotificationText, WhereNoMarkupIsReadNothingCanBeATag)
{
    EXPECT_EQ(withoutTags("<a href=\"x\">b</a><!-- --><?x?>"), "‹a href=\"x\">b‹/a>‹!-- -->‹?x?>");
    EXPECT_EQ(withoutTags("5% < 10% & 3 <3 > 2 <"), "5% < 10% & 3 <3 > 2 <");
}

} // namespace
