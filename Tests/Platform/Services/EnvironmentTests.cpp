#include "Platform/Services/Environment.h"

#include <gtest/gtest.h>

namespace Platform {

TEST(Environment, HoldsAVariableThatIsSetToNothing)
{
    const Environment environment({{"EMPTY", ""}, {"FULL", "x"}});
    EXPECT_TRUE(environment.holds("FULL"));
    EXPECT_TRUE(environment.holds("EMPTY"));
    EXPECT_FALSE(environment.holds("OTHER"));
    EXPECT_EQ(environment.value("FULL"), "x");
    EXPECT_EQ(environment.value("EMPTY"), std::nullopt);
}

} // namespace Platform
