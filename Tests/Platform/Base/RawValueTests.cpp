#include "Platform/Base/RawValue.h"

#include <gtest/gtest.h>

namespace Platform {

namespace {

enum class Season { spring, summer, winter };

} // namespace

template <>
struct RawValues<Season> {
    static constexpr std::array<std::string_view, 3> names{"spring", "summer", "cold-time"};
};

TEST(RawValue, NamesEachCase)
{
    static_assert(rawValue(Season::spring) == "spring");
    EXPECT_EQ(rawValue(Season::winter), "cold-time");
}

TEST(RawValue, FindsTheCaseOfAName)
{
    EXPECT_EQ(fromRawValue<Season>("summer"), Season::summer);
    EXPECT_EQ(fromRawValue<Season>("cold-time"), Season::winter);
    EXPECT_FALSE(fromRawValue<Season>("winter"));
    EXPECT_FALSE(fromRawValue<Season>("Summer"));
    EXPECT_FALSE(fromRawValue<Season>(""));
}

TEST(RawValue, ListsTheCasesInTheirOrder)
{
    EXPECT_EQ(allCases<Season>(), (std::array{Season::spring, Season::summer, Season::winter}));
}

} // namespace Platform
