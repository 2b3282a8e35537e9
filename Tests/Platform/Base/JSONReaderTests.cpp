#include "Platform/Base/JSONReader.h"

#include <gtest/gtest.h>
#include <limits>

namespace Platform {

namespace {

JSONValue parsed(std::string_view text)
{
    auto value = JSONReader::parse(text);
    EXPECT_TRUE(value) << text << ": " << value.error().message;
    return value ? *value : JSONValue();
}

std::string errorOf(std::string_view text, std::size_t maximumDepth = JSONReader::kDefaultMaximumDepth)
{
    const auto value = JSONReader::parse(text, maximumDepth);
    EXPECT_FALSE(value) << text;
    return value ? "" : value.error().message;
}

std::size_t elementCount(const JSONValue& value)
{
    const auto* const elements = value.array();
    return elements != nullptr ? elements->size() : 0;
}

std::vector<std::string> keys(const JSONValue& value)
{
    std::vector<std::string> keys;
    if (const auto* const members = value.object()) {
        for (const auto& member : *members) {
            keys.push_back(member.key);
        }
    }
    return keys;
}

std::string textOf(const JSONValue& value)
{
    const auto* const text = value.string();
    return text != nullptr ? *text : "no string";
}

std::string nested(std::size_t depth)
{
    return std::string(depth, '[') + std::string(depth, ']');
}

} // namespace

TEST(JSONReader, ReadsEveryKindOfValue)
{
    EXPECT_TRUE(parsed("null").isNull());
    EXPECT_EQ(parsed("true").boolean(), true);
    EXPECT_EQ(parsed(" false\n").boolean(), false);
    EXPECT_EQ(parsed("-2.5e1").number(), -25);
    EXPECT_EQ(textOf(parsed(R"("a\/b\u00e9\n\ud83d\uddd1")")), "a/bé\n🗑");
    EXPECT_EQ(elementCount(parsed("[1,[],{}]")), 3U);
    EXPECT_EQ(parsed(R"({"b":1,"a":{"c":[true]}})"),
        JSONValue(JSONValue::Object{
            {"b", JSONValue(std::int64_t{1})},
            {"a", JSONValue(JSONValue::Object{{"c", JSONValue(JSONValue::Array{JSONValue(true)})}})},
        }));
}

TEST(JSONReader, KeepsIntegersExact)
{
    EXPECT_EQ(parsed("9223372036854775807").integer(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(parsed("-9223372036854775808").integer(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(parsed("18446744073709551615").unsignedInteger(), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(parsed("9007199254740993").integer(), 9'007'199'254'740'993);
    EXPECT_FALSE(parsed("18446744073709551615").integer());
    EXPECT_FALSE(parsed("18446744073709551616").unsignedInteger());
    EXPECT_FALSE(parsed("-1").unsignedInteger());
}

TEST(JSONReader, SortsMembersByKey)
{
    const auto value = parsed(R"({"b":1,"a":2,"B":3})");
    EXPECT_EQ(keys(value), (std::vector<std::string>{"B", "a", "b"}));
    ASSERT_NE(value.member("a"), nullptr);
    EXPECT_EQ(*value.member("a"), JSONValue(std::int64_t{2}));
    EXPECT_EQ(value.member("c"), nullptr);
}

TEST(JSONReader, LimitsTheDepth)
{
    EXPECT_TRUE(JSONReader::parse(nested(64)));
    EXPECT_EQ(errorOf(nested(65)), "more than 64 arrays and objects lie within each other");
    EXPECT_TRUE(JSONReader::parse(nested(3), 3));
    EXPECT_EQ(errorOf(R"([{"a":[{}]}])", 3), "more than 3 arrays and objects lie within each other");
    // Side by side is no depth.
    EXPECT_TRUE(JSONReader::parse("[[],[],[],{},{}]", 2));
    // A hostile document ends the reading at once, not the stack.
    EXPECT_EQ(errorOf(std::string(1'000'000, '[')), "more than 64 arrays and objects lie within each other");
}

TEST(JSONReader, RefusesAKeyThatOccursTwice)
{
    EXPECT_EQ(errorOf(R"({"a":1,"b":2,"a":3})"), "the key \"a\" occurs twice in one object");
    EXPECT_EQ(errorOf(R"([{"x":{"a":1,"\u0061":2}}])"), "the key \"a\" occurs twice in one object");
    EXPECT_TRUE(JSONReader::parse(R"({"a":{"a":1},"b":{"a":1}})"));
}

TEST(JSONReader, MakesAnObjectWithAKeyTwiceNullWhereToldTo)
{
    const auto read = [](std::string_view text) {
        return JSONReader::parse(text, JSONReader::kDefaultMaximumDepth, JSONReader::RepeatedKeys::makeTheObjectNull);
    };
    EXPECT_EQ(read(R"([1,{"a":1,"b":{},"a":3},2])"), *JSONReader::parse("[1,null,2]"));
    EXPECT_EQ(read(R"({"a":{"x":1,"x":1},"b":[]})"), *JSONReader::parse(R"({"a":null,"b":[]})"));
    EXPECT_EQ(read(R"({"a":1,"a":1})"), JSONValue());
    EXPECT_FALSE(read(R"({"a":1,"a":})"));
}

TEST(JSONReader, RefusesBytesThatAreNotUTF8)
{
    EXPECT_EQ(errorOf("\"a\xFF\""), "invalid string: ill-formed UTF-8 byte, at byte 3");
    EXPECT_EQ(errorOf("[\"\xED\xA0\x80\"]"), "invalid string: ill-formed UTF-8 byte, at byte 4");
    EXPECT_FALSE(JSONReader::parse("{\"\xC0\x80\":1}"));
    EXPECT_FALSE(JSONReader::parse(R"("\ud800")"));
    EXPECT_FALSE(JSONReader::parse(R"("\udc00\ud800")"));
}

TEST(JSONReader, RefusesWhatFollowsTheDocument)
{
    EXPECT_EQ(errorOf("[1] x"), "invalid literal, at byte 5");
    EXPECT_EQ(errorOf("1 2"), "unexpected number literal; expected end of input, at byte 3");
    EXPECT_EQ(errorOf("{}{}"), "unexpected '{'; expected end of input, at byte 3");
    EXPECT_EQ(errorOf(std::string_view("[1]\0[2]", 7)), "unexpected NUL byte, at byte 4");
    EXPECT_TRUE(JSONReader::parse("[1] \n\t\r "));
}

TEST(JSONReader, RefusesWhatIsNotJSON)
{
    for (const std::string_view text :
        {"", " ", "{", "[1", "[1,]", "{\"a\"}", "{\"a\":}", "{\"a\":1,}", "{a:1}", "'a'", "01", "1.", ".5", "+1", "NaN",
            "Infinity", "tru", "\"a", "\"\n\"", "\"\\x\"", "// a\n1", "/* */ 1", "]", "[}"}) {
        EXPECT_FALSE(errorOf(text).empty()) << text;
    }
}

TEST(JSONReader, RefusesANumberBeyondADouble)
{
    EXPECT_EQ(errorOf("[1e999]"), "a number is out of range, at byte 6");
    EXPECT_EQ(parsed("1e-999").number(), 0);
}

TEST(JSONReader, PassesOverAByteOrderMark)
{
    EXPECT_EQ(elementCount(parsed("\xEF\xBB\xBF[1]")), 1U);
    EXPECT_FALSE(JSONReader::parse("\xEF\xBB[1]"));
}

TEST(JSONReader, QuotesNothingOfADamagedDocument)
{
    EXPECT_LT(errorOf("[\"" + std::string(1'000'000, 'x') + "\xFF\"]").size(), 100U);
}

} // namespace Platform
