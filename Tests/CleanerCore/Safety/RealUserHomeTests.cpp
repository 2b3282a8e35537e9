#include "CleanerCore/Safety/RealUserHome.h"

#include <gtest/gtest.h>

namespace SafetyTests {

using namespace CleanerCore;
using Platform::FileURL;

TEST(RealUserHome, IsTakenFromAPathBelowUsers)
{
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/Users/a/Library/Containers/x/Data"), FileURL::folder("/Users/a"));
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/Users/a"), FileURL::folder("/Users/a"));
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/Users"), std::nullopt);
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/users/a"), std::nullopt);
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/home/a"), std::nullopt);
    EXPECT_EQ(cleanerCoreExtractRealUserHome("/x/Users/a"), std::nullopt);
}

} // namespace SafetyTests
