#include "Platform/Base/JSONMapCoding.h"

#include <gtest/gtest.h>

namespace Platform {

namespace {

using Counts = std::map<std::string, std::vector<std::int64_t>, std::less<>>;

} // namespace

TEST(JSONMapCoding, GivesBackWhatItWrote)
{
    for (const Counts& counts : {Counts{}, Counts{{"", {}}, {"a/b", {1, 2}}, {"ü", {3}}}}) {
        const auto text = encodeJSON(counts);
        ASSERT_TRUE(text);
        EXPECT_EQ(decodeJSON<Counts>(*text), counts);
    }
}

TEST(JSONMapCoding, SaysWhichMemberCannotBeRead)
{
    EXPECT_EQ(decodeJSON<Counts>(R"({"a":[1],"b":[1,"2"]})").error().path, "b[1]");
    EXPECT_EQ(decodeJSON<Counts>("[]").error().message, "expected an object, found an array");
}

TEST(JSONMapCoding, WritesNoKeyThatIsNotUTF8)
{
    EXPECT_FALSE(encodeJSON(Counts{{"\xFF", {}}}));
}

} // namespace Platform
