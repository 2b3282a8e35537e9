#include "Platform/Base/TextOrder.h"

#include <gtest/gtest.h>

namespace Platform::Text {

TEST(TextOrder, TakesCapitalsAndSmallLettersForTheSame)
{
    EXPECT_EQ(localizedCaseInsensitiveCompare("Files", "fILES"), std::weak_ordering::equivalent);
    EXPECT_EQ(localizedCaseInsensitiveCompare("ÉCLAIR", "éclair"), std::weak_ordering::equivalent);
    EXPECT_EQ(localizedCaseInsensitiveCompare("", ""), std::weak_ordering::equivalent);
}

TEST(TextOrder, IsThatOfADictionaryAndNotOfBytes)
{
    EXPECT_EQ(localizedCaseInsensitiveCompare("apple", "Zebra"), std::weak_ordering::less);
    EXPECT_EQ(localizedCaseInsensitiveCompare("Zebra", "apple"), std::weak_ordering::greater);
    EXPECT_EQ(localizedCaseInsensitiveCompare("éclair", "fudge"), std::weak_ordering::less);
    EXPECT_EQ(localizedCaseInsensitiveCompare("eclair", "éclair"), std::weak_ordering::less);
}

TEST(TextOrder, TakesBytesThatAreNoText)
{
    EXPECT_EQ(localizedCaseInsensitiveCompare("a\xFF", "A\xFE"), std::weak_ordering::equivalent);
    EXPECT_EQ(localizedCaseInsensitiveCompare("\xFF", ""), std::weak_ordering::greater);
}

TEST(TextOrder, CountsNumbersInAListOfFilesByTheirValue)
{
    EXPECT_EQ(localizedStandardCompare("Photos 9", "photos 10"), std::strong_ordering::less);
    EXPECT_EQ(localizedStandardCompare("/a/10/x", "/a/9/x"), std::strong_ordering::greater);
    EXPECT_EQ(localizedStandardCompare("apple", "Zebra"), std::strong_ordering::less);
    EXPECT_EQ(localizedStandardCompare("éclair", "fudge"), std::strong_ordering::less);
    EXPECT_EQ(localizedCaseInsensitiveCompare("9", "10"), std::weak_ordering::greater);
}

TEST(TextOrder, TakesTwoNamesOfAListForOneOnlyIfTheirBytesAreTheSame)
{
    EXPECT_EQ(localizedStandardCompare("file", "file"), std::strong_ordering::equal);
    EXPECT_EQ(localizedStandardCompare("file", "File"), std::strong_ordering::less);
    EXPECT_EQ(localizedStandardCompare("7", "07"), std::strong_ordering::greater);
    EXPECT_EQ(localizedStandardCompare("a\xFE", "a\xFF"), std::strong_ordering::less);
    EXPECT_EQ(localizedStandardCompare("a\xFF", "a\xFE"), std::strong_ordering::greater);
}

} // namespace Platform::Text
