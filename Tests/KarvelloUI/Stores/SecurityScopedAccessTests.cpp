#include "KarvelloUI/Stores/SecurityScopedAccess.h"

#include "Tests/KarvelloUI/Stores/StoresFixture.h"

namespace KarvelloUI {

using Platform::Environment;
using StoresTests::environmentWith;

TEST(RequiresSecurityScopedAccess, GoesByWhatTheCallerKnows)
{
    const auto sandbox = environmentWith("APP_SANDBOX_CONTAINER_ID", "x");
    EXPECT_FALSE(requiresSecurityScopedAccess(false, sandbox));
    EXPECT_TRUE(requiresSecurityScopedAccess(true, Environment()));
}

TEST(RequiresSecurityScopedAccess, IsTrueInTheEnvironmentOfASandbox)
{
    for (const auto* const key : {"APP_SANDBOX_CONTAINER_ID", "FLATPAK_ID", "SNAP"}) {
        EXPECT_TRUE(requiresSecurityScopedAccess(std::nullopt, environmentWith(key, "x"))) << key;
        EXPECT_TRUE(requiresSecurityScopedAccess(std::nullopt, environmentWith(key, ""))) << key;
    }
}

TEST(RequiresSecurityScopedAccess, IsFalseInAnyOtherEnvironment)
{
    EXPECT_FALSE(requiresSecurityScopedAccess(std::nullopt, Environment()));
    EXPECT_FALSE(requiresSecurityScopedAccess(std::nullopt, environmentWith("SNAPPY", "x")));
}

} // namespace KarvelloUI
