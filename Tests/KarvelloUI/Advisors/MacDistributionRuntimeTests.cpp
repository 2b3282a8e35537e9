#include "KarvelloUI/Advisors/MacDistributionRuntime.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace KarvelloUI {
namespace {

bool supports(std::optional<bool> sandbox, const std::optional<std::string>& channel)
{
    return MacDistributionRuntime::supportsDirectDistributionScans(sandbox, channel);
}

TEST(MacDistributionRuntime, ABuildWithoutASandboxForDirectDistributionIsSupported)
{
    EXPECT_TRUE(supports(false, "developerid"));
    EXPECT_TRUE(MacDistributionRuntime::currentSupportsDirectDistributionScans());
}

TEST(MacDistributionRuntime, LetterCaseAndWhiteSpaceAroundTheChannelDoNotCount)
{
    EXPECT_TRUE(supports(false, "DeveloperID"));
    EXPECT_TRUE(supports(false, " \n\tDEVELOPERID\r\n "));
    EXPECT_TRUE(supports(false, "\u00A0developerId\u2028"));
}

TEST(MacDistributionRuntime, AnotherChannelIsNotSupported)
{
    for (const auto* const channel :
        {"developer-id", "developer id", "", " ", "AppStore", "developerids", "xdeveloperid"}) {
        EXPECT_FALSE(supports(false, channel)) << channel;
    }
}

TEST(MacDistributionRuntime, WithoutAChannelItIsNotSupported)
{
    EXPECT_FALSE(supports(false, std::nullopt));
}

TEST(MacDistributionRuntime, ASandboxIsNotSupported)
{
    EXPECT_FALSE(supports(true, "developerid"));
}

TEST(MacDistributionRuntime, AnEntitlementThatIsNotThereOrIsNoBooleanIsNotSupported)
{
    // A number in the file reads as nothing: see the tests of `DistributionFacts`.
    EXPECT_FALSE(supports(std::nullopt, "developerid"));
}

} // namespace
} // namespace KarvelloUI
