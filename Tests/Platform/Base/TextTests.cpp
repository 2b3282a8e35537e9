#include "Platform/Base/Text.h"

#include <gtest/gtest.h>

namespace Platform {

TEST(Text, KnowsValidUTF8)
{
    EXPECT_TRUE(Text::isValidUTF8(""));
    EXPECT_TRUE(Text::isValidUTF8("plain words of more than eight bytes"));
    EXPECT_TRUE(Text::isValidUTF8("a longer text with é, 漢字 and 🗑 in it"));
    EXPECT_TRUE(Text::isValidUTF8(std::string_view("nul\0inside", 10)));
}

TEST(Text, KnowsInvalidUTF8WhereverItStands)
{
    for (const std::string_view bad :
        {"\xFF", "\x80", "\xC3", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF0\x9F\x97"}) {
        EXPECT_FALSE(Text::isValidUTF8(bad));
        EXPECT_FALSE(Text::isValidUTF8("twelve bytes" + std::string(bad)));
        EXPECT_FALSE(Text::isValidUTF8(std::string(bad) + "twelve bytes"));
        EXPECT_FALSE(Text::isValidUTF8("é" + std::string(bad) + "é"));
    }
}

TEST(Text, EscapesEachByteThatIsPartOfNoCharacter)
{
    EXPECT_EQ(Text::escapingInvalidUTF8(""), "");
    EXPECT_EQ(Text::escapingInvalidUTF8("caché/🗑"), "caché/🗑");
    EXPECT_EQ(Text::escapingInvalidUTF8("a\xFF"
                                        "b"),
        "a\\xFFb");
    EXPECT_EQ(Text::escapingInvalidUTF8("\xE2\x82"
                                        "end"),
        "\\xE2\\x82end");
    EXPECT_EQ(Text::escapingInvalidUTF8("\xED\xA0\x80"), "\\xED\\xA0\\x80");
    EXPECT_EQ(Text::escapingInvalidUTF8("caf\xE9"), "caf\\xE9");
    EXPECT_EQ(Text::escapingInvalidUTF8("/x\x0A\xFE", "//x"), "/x\n//xFE");
}

TEST(Text, LowersASCIIAndOtherScripts)
{
    EXPECT_EQ(Text::lowercased(""), "");
    EXPECT_EQ(Text::lowercased("/Users/A-Z_[]@.TXT"), "/users/a-z_[]@.txt");
    EXPECT_EQ(Text::lowercased("ÄÖÜ ΑΒΓ Я"), "äöü αβγ я");
    // The full mapping: one character may become two.
    EXPECT_EQ(Text::lowercased("İ"), "i\u0307");
    // A sigma at the end of a word has its own form.
    EXPECT_EQ(Text::lowercased("ΟΔΟΣ"), "οδος");
}

TEST(Text, LowersAroundBytesThatAreNoCharacter)
{
    EXPECT_EQ(Text::lowercased("AÉ\xFFÉB\x80"), "aé\xFFéb\x80");
    EXPECT_EQ(Text::lowercased("\xE9"
                               "ABC"),
        "\xE9"
        "abc");
}

TEST(Text, TrimsWhiteSpaceAndNewLinesAtBothEnds)
{
    EXPECT_EQ(Text::trimmed(""), "");
    EXPECT_EQ(Text::trimmed(" \t\r\n\v\f"), "");
    EXPECT_EQ(Text::trimmed("  a b \n"), "a b");
    EXPECT_EQ(Text::trimmed("\u00A0\u3000\u2028\u0085"
                            "name\u2029\u2003"),
        "name");
    // A zero width space is a format character, not white space.
    EXPECT_EQ(Text::trimmed("\u200Bx\u200B"), "\u200Bx\u200B");
    EXPECT_EQ(Text::trimmed(" \xFF "), "\xFF");
    EXPECT_EQ(Text::trimmed(" \xE3\x80"), "\xE3\x80");
    EXPECT_EQ(Text::trimmed("\x80 "), "\x80");
}

TEST(Text, ClassifiesScalars)
{
    for (const char32_t scalar : {U'a', U'Z', U'7', U'é', U'漢', U'½', U'\u0301', U'Ⅷ'}) {
        EXPECT_TRUE(Text::isAlphanumeric(scalar));
    }
    for (const char32_t scalar : {U'-', U'_', U'.', U' ', U'/', U'🗑', U'\u200B', U'\0'}) {
        EXPECT_FALSE(Text::isAlphanumeric(scalar));
    }
    for (const char32_t scalar :
        {U' ', U'\t', U'\n', U'\v', U'\f', U'\r', U'\u0085', U'\u00A0', U'\u2028', U'\u2029'}) {
        EXPECT_TRUE(Text::isWhitespaceOrNewline(scalar));
        EXPECT_TRUE(Text::isUnicodeWhitespace(scalar));
    }
    for (const char32_t scalar : {U'a', U'\x08', U'\x1F', U'\u200B', U'\uFEFF'}) {
        EXPECT_FALSE(Text::isWhitespaceOrNewline(scalar));
        EXPECT_FALSE(Text::isUnicodeWhitespace(scalar));
    }
    for (const char32_t scalar : {U'a', U'ß', U'é', U'ª', U'ж'}) {
        EXPECT_TRUE(Text::isLowercase(scalar));
        EXPECT_FALSE(Text::isNumber(scalar));
    }
    for (const char32_t scalar : {U'A', U'É', U'漢', U'ǅ', U'-'}) {
        EXPECT_FALSE(Text::isLowercase(scalar));
    }
    for (const char32_t scalar : {U'0', U'٣', U'½', U'Ⅳ'}) {
        EXPECT_TRUE(Text::isNumber(scalar));
    }
    for (const char32_t scalar : {U'\0', U'\n', U'\x1B', U'\x7F', U'\u0080', U'\u009F'}) {
        EXPECT_TRUE(Text::isControl(scalar));
    }
    for (const char32_t scalar : {U' ', U'a', U'\u00AD', U'\u200B'}) {
        EXPECT_FALSE(Text::isControl(scalar));
    }
}

TEST(Text, GivesNoClassToWhatIsNoScalar)
{
    for (const char32_t codePoint : {char32_t{0xD800}, char32_t{0xDFFF}, char32_t{0x110000}, char32_t{0xFFFFFFFF}}) {
        EXPECT_FALSE(Text::isAlphanumeric(codePoint));
        EXPECT_FALSE(Text::isWhitespaceOrNewline(codePoint));
        EXPECT_FALSE(Text::isUnicodeWhitespace(codePoint));
        EXPECT_FALSE(Text::isControl(codePoint));
    }
}

TEST(Text, TakesTextApartIntoScalars)
{
    EXPECT_EQ(Text::scalars("aé漢🗑"), U"aé漢🗑");
    EXPECT_EQ(Text::scalars("a\xFF\xE2\x82"
                            "b"),
        U"a\uFFFD\uFFFD\uFFFDb");
    EXPECT_EQ(Text::scalars(""), U"");
}

TEST(Text, TakesOneScalarAtATime)
{
    std::string_view rest = "é\xFF"
                            "b";
    EXPECT_EQ(Text::takeScalar(rest), U'é');
    EXPECT_EQ(Text::takeScalar(rest), U'\uFFFD');
    EXPECT_EQ(Text::takeScalar(rest), U'b');
    EXPECT_TRUE(rest.empty());
}

TEST(Text, CountsTheColumnsOfATerminal)
{
    EXPECT_EQ(Text::columns("plain"), 5U);
    EXPECT_EQ(Text::columns("Größe"), 5U);
    EXPECT_EQ(Text::columns("漢字かな한글，"), 14U);
    EXPECT_EQ(Text::columns("e\u0301"), 1U) << "a mark takes no column of its own";
    EXPECT_EQ(Text::columns("\u1112\u1161\u11ab"), 2U) << "nor do the vowels and finals of Hangul";
    EXPECT_EQ(Text::columns("🗑"), 2U);
    EXPECT_EQ(Text::columns(""), 0U);
}

TEST(Text, PutsScalarsTogether)
{
    EXPECT_EQ(Text::fromScalars(U"aé漢🗑"), "aé漢🗑");
    const std::u32string broken{U'a', char32_t{0xD800}, char32_t{0x110000}, U'b'};
    EXPECT_EQ(Text::fromScalars(broken), "a\uFFFD\uFFFDb");
}

} // namespace Platform
