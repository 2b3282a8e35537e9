#include "Platform/Base/CheckedMath.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace Platform {

namespace {

constexpr auto kMaximum = std::numeric_limits<std::int64_t>::max();
constexpr auto kMinimum = std::numeric_limits<std::int64_t>::min();

} // namespace

TEST(CheckedMath, AddsAndMultipliesUpToTheLimits)
{
    static_assert(checkedAdd(std::int64_t{2}, std::int64_t{3}) == 5);
    EXPECT_EQ(checkedAdd(kMaximum - 1, std::int64_t{1}), kMaximum);
    EXPECT_EQ(checkedAdd(kMinimum + 1, std::int64_t{-1}), kMinimum);
    EXPECT_EQ(checkedMultiply(kMaximum / 2, std::int64_t{2}), kMaximum - 1);
    EXPECT_EQ(checkedMultiply(kMaximum, std::int64_t{0}), 0);
}

TEST(CheckedMath, StaysAtTheLimitWhereToldTo)
{
    static_assert(saturatingAdd(std::int64_t{2}, std::int64_t{-3}) == -1);
    EXPECT_EQ(saturatingAdd(kMaximum - 1, std::int64_t{1}), kMaximum);
    EXPECT_EQ(saturatingAdd(kMaximum, std::int64_t{1}), kMaximum);
    EXPECT_EQ(saturatingAdd(kMinimum, std::int64_t{-1}), kMinimum);
    EXPECT_EQ(saturatingAdd(kMinimum, kMinimum), kMinimum);
}

TEST(CheckedMathDeathTest, EndsTheProgramOnOverflow)
{
    EXPECT_DEATH((void)checkedAdd(kMaximum, std::int64_t{1}), "64-bit addition overflowed");
    EXPECT_DEATH((void)checkedAdd(kMinimum, std::int64_t{-1}), "64-bit addition overflowed");
    EXPECT_DEATH((void)checkedMultiply(kMaximum, std::int64_t{2}), "64-bit multiplication overflowed");
}

} // namespace Platform
