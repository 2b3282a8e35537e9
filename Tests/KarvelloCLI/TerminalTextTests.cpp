#include "KarvelloCLI/TerminalText.h"

#include <gtest/gtest.h>

#include <string>

using KarvelloCLI::HomePathAbbreviation;
using KarvelloCLI::TerminalText;

namespace {

std::string shown(std::string_view bytes)
{
    return TerminalText(bytes).string();
}

} // namespace

TEST(TerminalText, LeavesOrdinaryTextAsItIs)
{
    EXPECT_EQ(shown("Größe of a file (1).txt"), "Größe of a file (1).txt");
    EXPECT_EQ(shown(""), "");
}

TEST(TerminalText, EscapesControlCharacters)
{
    EXPECT_EQ(shown("a\nb"), "a\\nb");
    EXPECT_EQ(shown("a\tb\rc"), "a\\tb\\rc");
    EXPECT_EQ(shown("\x1b[2J\x1b]0;title\x07"), "\\x1b[2J\\x1b]0;title\\x07");
    EXPECT_EQ(shown("\x7f"), "\\x7f");
    EXPECT_EQ(shown("\u0085\u009b"), "\\u0085\\u009b");
    EXPECT_EQ(shown(std::string_view("a\0b", 3)), "a\\x00b");
}

TEST(TerminalText, EscapesWhatReordersOrHides)
{
    EXPECT_EQ(shown("report\u202efdp.exe"), "report\\u202efdp.exe");
    for (const char* const hostile : {"\u200e", "\u200f", "\u061c", "\u2066", "\u2067", "\u2068", "\u2069", "\u202a"}) {
        EXPECT_EQ(shown(hostile).size(), 6U) << shown(hostile);
        EXPECT_TRUE(shown(hostile).starts_with("\\u")) << shown(hostile);
    }
    EXPECT_EQ(shown("a\u2028b\u2029c"), "a\\u2028b\\u2029c");
    EXPECT_EQ(shown("soft\u00adhyphen"), "soft\\u00adhyphen");
    EXPECT_EQ(shown("\u200b\u2060\ufeff"), "\\u200b\\u2060\\ufeff");
    EXPECT_EQ(shown("\U000e0041"), "\\U000e0041");
    EXPECT_EQ(shown("\u3164"), "\\u3164") << "a letter that is drawn as nothing";
}

TEST(TerminalText, EscapesEachByteThatIsPartOfNoCharacter)
{
    EXPECT_EQ(shown("a\xff"
                    "b"),
        "a\\xffb");
    EXPECT_EQ(shown("\xe2\x82"), "\\xe2\\x82") << "a character that is cut short";
    EXPECT_EQ(shown("\xed\xa0\x80"), "\\xed\\xa0\\x80") << "a surrogate";
    EXPECT_EQ(shown("\xc0\xaf"), "\\xc0\\xaf") << "a slash in too many bytes";
}

TEST(TerminalText, ANameCannotImitateAnEscape)
{
    EXPECT_EQ(shown("a\\nb"), "a\\\\nb");
    EXPECT_NE(shown("a\\x1bb"),
        shown("a\x1b"
              "b"));
}

TEST(TerminalText, ASentenceKeepsItsBackslashesButNoControls)
{
    EXPECT_EQ(TerminalText("no \\xFF here\n", TerminalText::Kind::sentence).string(), "no \\xFF here\\n");
}

TEST(TerminalText, CountsColumnsAsATerminalDoes)
{
    EXPECT_EQ(TerminalText("abc").columns(), 3U);
    EXPECT_EQ(TerminalText("한국어").columns(), 6U);
    EXPECT_EQ(TerminalText("ｆｕｌｌ").columns(), 8U);
    EXPECT_EQ(TerminalText("ﾊﾝｶｸ").columns(), 4U);
    EXPECT_EQ(TerminalText("e\u0301te\u0301").columns(), 3U) << "combining accents";
    EXPECT_EQ(TerminalText("\u1112\u1161\u11ab\u1100\u116e\u11a8").columns(), 4U) << "decomposed Hangul";
    EXPECT_EQ(TerminalText("か\u3099").columns(), 2U) << "a combining sound mark";
    EXPECT_EQ(TerminalText("🗑").columns() + TerminalText("📦").columns(), 3U);
    EXPECT_EQ(TerminalText("\n").columns(), 2U) << "an escape counts as it is shown";
}

TEST(TerminalText, ElidesInTheMiddle)
{
    const TerminalText text("~/.cache/some-program/a-very-long-folder/file.bin");
    const TerminalText elided = text.elidedInMiddle(21);
    EXPECT_EQ(elided.string(), "~/.cache…der/file.bin");
    EXPECT_EQ(elided.columns(), 21U);
    EXPECT_EQ(text.elidedInMiddle(200).string(), text.string());
    EXPECT_EQ(text.elidedInMiddle(text.columns()).string(), text.string());
    EXPECT_EQ(text.elidedInMiddle(1).string(), "…");
    EXPECT_EQ(text.elidedInMiddle(0).string(), "");
}

TEST(TerminalText, ElidesByColumnsAndNeverCutsACharacter)
{
    const TerminalText wide("가나다라마바사아자차카타파하");
    for (std::size_t columns = 0; columns <= wide.columns() + 1; ++columns) {
        const TerminalText elided = wide.elidedInMiddle(columns);
        EXPECT_LE(elided.columns(), columns);
        EXPECT_GE(elided.columns() + 1, std::min(columns, wide.columns())) << "room for a character was left unused";
        EXPECT_EQ(TerminalText(elided.string()).string(), elided.string()) << "a character was cut";
    }
    const TerminalText accents("e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301");
    EXPECT_EQ(accents.elidedInMiddle(4).string(), "e\u0301…e\u0301e\u0301");
}

TEST(TerminalText, NeverCutsAnEscape)
{
    const TerminalText text("\x1b\x1b\x1b\x1b\x1b\x1b");
    EXPECT_EQ(text.elidedInMiddle(10).string(), "…\\x1b\\x1b");
}

TEST(TerminalText, WrapsAtBlanks)
{
    std::vector<std::string> lines;
    for (const TerminalText& line : TerminalText("Symbolic links are skipped for safety").wrapped(15)) {
        EXPECT_LE(line.columns(), 15U);
        lines.push_back(line.string());
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"Symbolic links", "are skipped for", "safety"}));
    EXPECT_EQ(TerminalText("").wrapped(10).size(), 1U);
}

TEST(TerminalText, BreaksAWordOnlyWhereItAloneIsTooLong)
{
    std::vector<std::string> lines;
    for (const TerminalText& line : TerminalText("at /a/very/long/path here").wrapped(8)) {
        lines.push_back(line.string());
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"at", "/a/very/", "long/pat", "h here"}));
}

TEST(TerminalText, WrapsWhatHasNoBlanksBetweenItsCharacters)
{
    std::vector<std::string> lines;
    for (const TerminalText& line : TerminalText("何も変更されていません。--verboseで表示します。").wrapped(12)) {
        EXPECT_LE(line.columns(), 12U);
        lines.push_back(line.string());
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"何も変更され", "ていません。", "--verboseで", "表示します。"}));
}

TEST(TerminalText, BeginsNoLineWithAStopAndEndsNoneWithABracket)
{
    for (std::size_t columns = 8; columns < 24; ++columns) {
        for (const TerminalText& line : TerminalText("大文件（100 KB 及以上）：3 个文件，980 KB。").wrapped(columns)) {
            for (const char* const stop : {"）", "：", "，", "。"}) {
                EXPECT_FALSE(line.string().starts_with(stop)) << columns << ": " << line.string();
            }
            EXPECT_FALSE(line.string().ends_with("（")) << columns << ": " << line.string();
        }
    }
}

TEST(TerminalText, KoreanIsWrappedAtItsBlanks)
{
    std::vector<std::string> lines;
    for (const TerminalText& line : TerminalText("디스크에서 바뀐 것은 없습니다.").wrapped(16)) {
        lines.push_back(line.string());
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"디스크에서 바뀐", "것은 없습니다."}));
}

TEST(TerminalText, PadsByColumns)
{
    EXPECT_EQ(TerminalText("한").paddedRight(4), "한  ");
    EXPECT_EQ(TerminalText("한").paddedLeft(4), "  한");
    EXPECT_EQ(TerminalText("long").paddedLeft(2), "long");
}

TEST(HomePathAbbreviation, ShowsTheHomeAsATilde)
{
    const HomePathAbbreviation paths(Platform::FileURL::folder("/home/ada"));
    EXPECT_EQ(paths.abbreviate("/home/ada/.cache/pip"), "~/.cache/pip");
    EXPECT_EQ(paths.abbreviate("/home/ada"), "~");
    EXPECT_EQ(paths.abbreviate("/home/adam/x"), "/home/adam/x");
    EXPECT_EQ(paths.abbreviate("/srv"), "/srv");
}
