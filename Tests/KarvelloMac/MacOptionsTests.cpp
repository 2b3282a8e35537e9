#include "KarvelloMac/MacOptions.h"

#include <gtest/gtest.h>

namespace KarvelloMac {

using Destination = KarvelloUI::KarvelloDashboardLaunchDestination;

namespace {

auto parsed(const QStringList& arguments)
{
    return MacOptions::parse(QStringList{QStringLiteral("karvello")} + arguments);
}

} // namespace

TEST(MacOptions, BeginOnTheDashboard)
{
    ASSERT_TRUE(parsed({}));
    EXPECT_EQ(parsed({})->destination, Destination::dashboard);
    EXPECT_FALSE(parsed({})->information);
}

TEST(MacOptions, KnowEveryDestination)
{
    for (const auto destination : Platform::allCases<Destination>()) {
        const auto options =
            parsed({QStringLiteral("--open"), QString::fromStdString(std::string(Platform::rawValue(destination)))});
        ASSERT_TRUE(options);
        EXPECT_EQ(options->destination, destination);
        EXPECT_EQ(destinationOf(actionOf(destination)), destination);
    }
}

TEST(MacOptions, RefuseWhatTheyDoNotKnowInWords)
{
    EXPECT_EQ(parsed({QStringLiteral("--open"), QStringLiteral("bin")}).error(),
        "There is nothing to open that is called 'bin': dashboard, cleanupReview, memoryReview or systemReview.");
    EXPECT_FALSE(parsed({QStringLiteral("--clean")}));
    EXPECT_EQ(parsed({QStringLiteral("/etc")}).error(), "Unknown argument '/etc'.");
    EXPECT_FALSE(destinationOf("open-everything"));
}

TEST(MacOptions, LeaveTheToolkitWhatIsItsOwn)
{
    // A session manager starts an application again by its identity in the session.
    const auto options = parsed({QStringLiteral("-session"), QStringLiteral("10ab_cd"), QStringLiteral("--open"),
        QStringLiteral("memoryReview"), QStringLiteral("--platform=offscreen"), QStringLiteral("-style"),
        QStringLiteral("fusion")});
    ASSERT_TRUE(options) << options.error();
    EXPECT_EQ(options->destination, Destination::memoryReview);
    EXPECT_TRUE(parsed({QStringLiteral("-session")}));
    EXPECT_EQ(parsed({QStringLiteral("session")}).error(), "Unknown argument 'session'.");
    EXPECT_FALSE(parsed({QStringLiteral("--sessions")}));
    EXPECT_FALSE(parsed({QStringLiteral("-session"), QStringLiteral("10ab"), QStringLiteral("--clean")}));
}

TEST(MacOptions, TellTheVersionAndTheOptions)
{
    EXPECT_TRUE(parsed({QStringLiteral("--version")})->information->starts_with("karvello "));
    EXPECT_NE(parsed({QStringLiteral("--help")})->information->find("--open"), std::string::npos);
}

} // namespace KarvelloMac
