#include "Platform/Base/UUID.h"

#include <gtest/gtest.h>
#include <set>

namespace Platform {

TEST(UUID, ReadsAndWritesItsCanonicalForm)
{
    const auto uuid = UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10");
    ASSERT_TRUE(uuid);
    EXPECT_EQ(uuid->bytes.front(), 0x9B);
    EXPECT_EQ(uuid->bytes.back(), 0x10);
    EXPECT_EQ(uuid->string(), "9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10");
}

TEST(UUID, ReadsLowerCaseAndWritesUpperCase)
{
    const auto uuid = UUID::fromString("9b6c2d0e-7a41-4e53-8e11-0c6e7c5a2f10");
    ASSERT_TRUE(uuid);
    EXPECT_EQ(uuid->string(), "9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10");
}

TEST(UUID, RefusesEveryOtherText)
{
    EXPECT_FALSE(UUID::fromString(""));
    EXPECT_FALSE(UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F1"));
    EXPECT_FALSE(UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F100"));
    EXPECT_FALSE(UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F1G"));
    EXPECT_FALSE(UUID::fromString("9B6C2D0E07A41-4E53-8E11-0C6E7C5A2F10"));
    EXPECT_FALSE(UUID::fromString("-9B6C2D0E7A41-4E53-8E11-0C6E7C5A2F10"));
    EXPECT_FALSE(UUID::fromString("{9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F1}"));
}

TEST(UUID, IsRandomOfVersionFour)
{
    std::set<std::string> seen;
    for (int round = 0; round < 100; ++round) {
        const auto text = UUID::random().string();
        EXPECT_EQ(text[14], '4');
        EXPECT_NE(std::string_view("89AB").find(text[19]), std::string_view::npos);
        EXPECT_EQ(UUID::fromString(text)->string(), text);
        seen.insert(text);
    }
    EXPECT_EQ(seen.size(), 100U);
}

TEST(UUID, OrdersAsItsTexts)
{
    const auto smaller = *UUID::fromString("0FFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF");
    const auto greater = *UUID::fromString("A0000000-0000-0000-0000-000000000000");
    EXPECT_LT(smaller, greater);
    EXPECT_LT(smaller.string(), greater.string());
}

} // namespace Platform
