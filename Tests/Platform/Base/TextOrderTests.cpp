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

} // namespace Platform::Text
