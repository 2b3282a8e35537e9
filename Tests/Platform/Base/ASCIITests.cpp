#include "Platform/Base/ASCII.h"

#include <gtest/gtest.h>
#include <string>

namespace Platform {

TEST(ASCII, FindsAnotherByteWhereverItStandsInTextsOfAnyLength)
{
    for (std::size_t length = 0; length <= 40; ++length) {
        const std::string plain(length, '\x7F');
        EXPECT_TRUE(ASCII::isASCII(plain)) << length;
        for (std::size_t index = 0; index < length; ++index) {
            auto other = plain;
            other[index] = '\x80';
            EXPECT_FALSE(ASCII::isASCII(other)) << index << " of " << length;
        }
    }
}

TEST(ASCII, FoldsTheCaseOfItsOwnLettersAlone)
{
    EXPECT_TRUE(ASCII::equalsIgnoringCase("AZaz[@`{09", "azaz[@`{09"));
    EXPECT_FALSE(ASCII::equalsIgnoringCase("[", "{"));
    EXPECT_FALSE(ASCII::equalsIgnoringCase("@", "`"));
    EXPECT_FALSE(ASCII::equalsIgnoringCase("É", "é"));
    EXPECT_FALSE(ASCII::equalsIgnoringCase("ab", "abc"));
    EXPECT_FALSE(ASCII::equalsIgnoringCase("abc", "ab"));
    EXPECT_TRUE(ASCII::isDigit('0') && ASCII::isDigit('9'));
    EXPECT_FALSE(ASCII::isDigit('/') || ASCII::isDigit(':'));
}

} // namespace Platform
