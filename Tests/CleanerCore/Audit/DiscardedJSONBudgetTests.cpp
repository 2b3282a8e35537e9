#include "CleanerCore/Audit/DiscardedJSONBudget.h"

#include "Platform/Base/JSONReader.h"

#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

struct Discarded {
    bool isWhole = false;
    std::size_t cost = 0;
};

Discarded discarded(std::string_view text, std::size_t depth = 0)
{
    const auto value = Platform::JSONReader::parse(text);
    EXPECT_TRUE(value);
    DiscardedJSONBudget budget;
    const auto before = budget.remainingValues();
    const bool isWhole = budget.discard(*value, depth).has_value();
    return {isWhole, before - budget.remainingValues()};
}

} // namespace

TEST(DiscardedJSONBudget, IsSpentOnEveryValueButNulls)
{
    EXPECT_EQ(discarded("17").cost, 1U);
    EXPECT_EQ(discarded("[1, null, [2, 3], 4]").cost, 6U);
    EXPECT_EQ(discarded(R"({"a": 1, "b": null, "c": {"d": 2, "e": 3}, "f": 4})").cost, 6U);
}

TEST(DiscardedJSONBudget, EndsAtTheFirstValueThatIsTooDeep)
{
    const auto deepest = DiscardedJSONBudget::maximumDepth;
    EXPECT_TRUE(discarded("[1, 2]", deepest - 1).isWhole);
    for (const auto* text : {"[1, 2]", R"({"a": 1, "b": 2})"}) {
        const auto result = discarded(text, deepest);
        EXPECT_FALSE(result.isWhole) << text;
        EXPECT_EQ(result.cost, 1U) << text;
    }
}

} // namespace CleanerCore
