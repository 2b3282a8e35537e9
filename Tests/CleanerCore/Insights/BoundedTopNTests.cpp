#include "CleanerCore/Insights/BoundedTopN.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace CleanerCore {

namespace {

struct PrefersFirst {
    bool operator()(const std::pair<int, char>& left, const std::pair<int, char>& right) const
    {
        return left.first > right.first;
    }
};

} // namespace

TEST(BoundedTopN, KeepsTheBestOfAnyNumberInTheirOrder)
{
    std::mt19937 random(1);
    for (const std::size_t count : {0U, 1U, 19U, 20U, 21U, 1000U}) {
        for (const std::int64_t capacity : {1, 2, 20, 2000}) {
            std::vector<int> all;
            BoundedTopN<int, std::greater<>> best(capacity);
            for (std::size_t index = 0; index < count; ++index) {
                all.push_back(std::uniform_int_distribution(0, 300)(random));
                best.insert(all.back());
            }
            std::ranges::sort(all, std::greater<>());
            all.resize(std::min(all.size(), static_cast<std::size_t>(capacity)));
            EXPECT_EQ(std::move(best).takeSorted(), all) << count << " of " << capacity;
        }
    }
}

TEST(BoundedTopN, KeepsNothingWithoutCapacity)
{
    for (const std::int64_t capacity : {0, -1}) {
        BoundedTopN<int, std::greater<>> best(capacity);
        best.insert(1);
        EXPECT_TRUE(std::move(best).takeSorted().empty());
    }
}

TEST(BoundedTopN, LetsNoEqualNewcomerIn)
{
    BoundedTopN<std::pair<int, char>, PrefersFirst> best(2);
    for (const auto& element : {std::pair(1, 'a'), std::pair(1, 'b'), std::pair(1, 'c')}) {
        best.insert(element);
    }
    EXPECT_EQ(std::move(best).takeSorted(), (std::vector<std::pair<int, char>>{{1, 'a'}, {1, 'b'}}));
}

TEST(BoundedTopN, LetsABetterNewcomerIn)
{
    BoundedTopN<std::pair<int, char>, PrefersFirst> best(2);
    for (const auto& element : {std::pair(1, 'a'), std::pair(2, 'b'), std::pair(3, 'c')}) {
        best.insert(element);
    }
    EXPECT_EQ(std::move(best).takeSorted(), (std::vector<std::pair<int, char>>{{3, 'c'}, {2, 'b'}}));
}

} // namespace CleanerCore
