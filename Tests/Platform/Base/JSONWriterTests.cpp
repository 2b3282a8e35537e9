#include "Platform/Base/JSONWriter.h"

#include "Platform/Base/JSONReader.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace Platform {

namespace {

/// The document that `write` makes.
template <typename Write>
std::expected<std::string, JSONError> document(Write write)
{
    JSONWriter writer;
    write(writer);
    return std::move(writer).finish();
}

std::string rewritten(std::string_view text)
{
    const auto value = JSONReader::parse(text);
    EXPECT_TRUE(value);
    const auto result = document([&](JSONWriter& writer) { writer.value(*value); });
    EXPECT_TRUE(result);
    return *result;
}

} // namespace

TEST(JSONWriter, WritesPrettyDocuments)
{
    const auto text = document([](JSONWriter& writer) {
        writer.beginObject();
        writer.key("array");
        writer.beginArray();
        writer.integer(-1);
        writer.beginArray();
        writer.null();
        writer.endArray();
        writer.endArray();
        writer.key("empty");
        writer.beginArray();
        writer.endArray();
        writer.key("nothing");
        writer.beginObject();
        writer.endObject();
        writer.key("object");
        writer.beginObject();
        writer.key("yes");
        writer.boolean(true);
        writer.endObject();
        writer.endObject();
    });
    EXPECT_EQ(text, R"({
  "array" : [
    -1,
    [
      null
    ]
  ],
  "empty" : [

  ],
  "nothing" : {

  },
  "object" : {
    "yes" : true
  }
})");
}

TEST(JSONWriter, WritesEmptyDocuments)
{
    EXPECT_EQ(rewritten("[]"), "[\n\n]");
    EXPECT_EQ(rewritten("{}"), "{\n\n}");
    EXPECT_EQ(rewritten("\"x\""), "\"x\"");
}

TEST(JSONWriter, SortsTheKeysOfEachObject)
{
    const auto text = document([](JSONWriter& writer) {
        writer.beginArray();
        for (int round = 0; round < 2; ++round) {
            writer.beginObject();
            writer.key("c");
            writer.integer(3);
            writer.key("a");
            writer.beginObject();
            writer.key("z");
            writer.beginArray();
            writer.integer(1);
            writer.integer(2);
            writer.endArray();
            writer.key("y");
            writer.string("");
            writer.endObject();
            writer.key("B");
            writer.beginArray();
            writer.endArray();
            writer.endObject();
        }
        writer.endArray();
    });
    const std::string object = R"(  {
    "B" : [

    ],
    "a" : {
      "y" : "",
      "z" : [
        1,
        2
      ]
    },
    "c" : 3
  })";
    EXPECT_EQ(text, "[\n" + object + ",\n" + object + "\n]");
}

TEST(JSONWriter, SortsKeysByWhatTheyAreNotByHowTheyAreEscaped)
{
    const auto text = document([](JSONWriter& writer) {
        writer.beginObject();
        writer.key("aZ");
        writer.null();
        writer.key("a/");
        writer.null();
        writer.endObject();
    });
    EXPECT_EQ(text, "{\n  \"a\\/\" : null,\n  \"aZ\" : null\n}");
}

TEST(JSONWriter, EscapesWhatAStringMayNotHold)
{
    const auto text = document(
        [](JSONWriter& writer) { writer.string(std::string_view("\"\\/\b\f\n\r\t\0\x1F\x7F<é🗑\u2028", 21)); });
    EXPECT_EQ(text, "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u0000\\u001f\x7F<é🗑\u2028\"");
}

TEST(JSONWriter, WritesNumbersExactly)
{
    EXPECT_EQ(rewritten("[-9223372036854775808,18446744073709551615,0.1,1e300,816474245.5]"),
        "[\n  -9223372036854775808,\n  18446744073709551615,\n  0.1,\n  1e+300,\n  816474245.5\n]");
}

TEST(JSONWriter, RefusesNumbersThatJSONDoesNotHave)
{
    for (const double value :
        {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
        const auto text = document([&](JSONWriter& writer) {
            writer.beginArray();
            writer.number(value);
            writer.endArray();
        });
        ASSERT_FALSE(text);
        EXPECT_EQ(text.error().message, "JSON has no number that is infinite or not a number");
    }
}

TEST(JSONWriter, RefusesTextThatIsNotUTF8)
{
    const auto value = document([](JSONWriter& writer) { writer.string("caf\xE9"); });
    ASSERT_FALSE(value);
    EXPECT_EQ(value.error().message, "the text \"caf\\xE9\" is not UTF-8");

    const auto key = document([](JSONWriter& writer) {
        writer.beginObject();
        writer.key("\xFF");
        writer.null();
        writer.endObject();
    });
    EXPECT_FALSE(key);
}

TEST(JSONWriter, RefusesAKeyWrittenTwice)
{
    for (const std::string_view between : {"a", "b"}) {
        const auto text = document([&](JSONWriter& writer) {
            writer.beginObject();
            for (const std::string_view key : {std::string_view("a"), between, std::string_view("a")}) {
                writer.key(key);
                writer.null();
            }
            writer.endObject();
        });
        ASSERT_FALSE(text);
        EXPECT_EQ(text.error().message, "the key \"a\" is written twice in one object");
    }
}

TEST(JSONWriter, TellsTheFirstFailureWhateverFollows)
{
    const auto text = document([](JSONWriter& writer) {
        writer.beginObject();
        writer.key("a");
        writer.string("\xFF");
        writer.key("b");
        writer.beginArray();
        writer.number(std::nan(""));
        writer.beginObject();
        writer.key("c");
        writer.integer(1);
        writer.endObject();
        writer.endArray();
        writer.endObject();
    });
    ASSERT_FALSE(text);
    EXPECT_EQ(text.error().message, "the text \"\\xFF\" is not UTF-8");
}

TEST(JSONWriter, WritesWhatTheReaderReadsBack)
{
    constexpr std::string_view text = R"({"a":[1,-2,3.5,null,true,"x\n\/é"],"b":{"c":{"d":[[],{}]}},"":false})";
    const auto value = *JSONReader::parse(text);
    EXPECT_EQ(*JSONReader::parse(rewritten(text)), value);
    EXPECT_NE(*JSONReader::parse("[1,2]"), *JSONReader::parse("[1,3]"));
}

} // namespace Platform
