#include "KarvelloUI/Stores/SecurityScopedAccess.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

using Platform::Environment;

TEST(RequiresSecurityScopedAccess, GoesByWhatTheCallerKnows)
{
    const Environment sandbox({{"APP_SANDBOX_CONTAINER_ID", "x"}});
    EXPECT_FALSE(requiresSecurityScopedAccess(false, sandbox));
    EXPECT_TRUE(requiresSecurityScopedAccess(true, Environment()));
}

TEST(RequiresSecurityScopedAccess, IsTrueInTheEnvironmentOfASandbox)
{
    for (const auto* const key : {"APP_SANDBOX_CONTAINER_ID", "FLATPAK_ID", "SNAP"}) {
        EXPECT_TRUE(requiresSecurityScopedAccess(std::nullopt, Environment({{key, "x"}}))) << key;
        EXPECT_TRUE(requiresSecurityScopedAccess(std::nullopt, Environment({{key, ""}}))) << key;
    }
}

TEST(RequiresSecurityScopedAccess, IsFalseInAnyOtherEnvironment)
{
    EXPECT_FALSE(requiresSecurityScopedAccess(std::nullopt, Environment()));
    EXPECT_FALSE(requiresSecurityScopedAccess(std::nullopt, Environment({{"HOME", "/h"}, {"SNAPPY", "x"}})));
}

} // namespace KarvelloUI
