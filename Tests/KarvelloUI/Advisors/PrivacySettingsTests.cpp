#include "KarvelloUI/Advisors/PrivacySettings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace KarvelloUI {
namespace {

using testing::ElementsAre;

/// What is tried where the address of that number is the first that opens.
std::vector<std::string> triedUntil(std::size_t number)
{
    std::vector<std::string> tried;
    openPrivacySettings([&](std::string_view address) {
        tried.emplace_back(address);
        return tried.size() == number;
    });
    return tried;
}

TEST(PrivacySettings, TriesTheMostExactPaneFirst)
{
    EXPECT_THAT(triedUntil(0),
        ElementsAre("x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_AllFiles",
            "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles",
            "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension",
            "x-apple.systempreferences:com.apple.preference.security?Privacy"));
}

TEST(PrivacySettings, StopsAtTheFirstThatOpens)
{
    for (std::size_t number = 1; number <= 4; ++number) {
        EXPECT_EQ(triedUntil(number).size(), number);
    }
}

TEST(PrivacySettings, AreNotThereWithoutAnOpener)
{
    EXPECT_NO_FATAL_FAILURE(openPrivacySettings(nullptr));
}

} // namespace
} // namespace KarvelloUI
