#include "Platform/Base/JSONReader.h"
#include "Platform/Files/PosixFileManager.h"
#include "PlatformDesktop/FreedesktopNotifications.h"
#include "Tests/DesktopSupport/OwnedProgram.h"
#include "Tests/DesktopSupport/PrivateBus.h"
#include "Tests/DesktopSupport/PrivateDisplay.h"
#include "Tests/Support/EventLoop.h"

#include <QtCore/QElapsedTimer>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace {

using namespace std::chrono_literals;
using DesktopTestSupport::OwnedProgram;
using DesktopTestSupport::PrivateBus;
using DesktopTestSupport::PrivateDisplay;
using Platform::JSONValue;
using Platform::UserNotification;
using PlatformDesktop::FreedesktopNotifications;

/// A session without a notification service, until the test starts one.
class FreedesktopNotificationsTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(m_bus.address(), ""); }

    std::unique_ptr<OwnedProgram> started(const std::string& behaviour) const
    {
        auto service =
            std::make_unique<OwnedProgram>(KARVELLO_TEST_NOTIFICATION_SERVICE, std::vector<std::string>{behaviour},
                std::map<std::string, std::string>{{"DBUS_SESSION_BUS_ADDRESS", m_bus.address()}});
        EXPECT_TRUE(service->says("ready"));
        return service;
    }

    /// What the service was told next.
    static JSONValue told(OwnedProgram& service)
    {
        const auto line = service.line();
        auto told = Platform::JSONReader::parse(line);
        EXPECT_TRUE(told) << line;
        return told.value_or(JSONValue());
    }
    static std::string text(const JSONValue& told, std::string_view field)
    {
        const auto* const member = told.member(field);
        return member != nullptr && member->string() != nullptr ? *member->string() : "none";
    }
    static std::optional<std::int64_t> number(const JSONValue& told, std::string_view field)
    {
        const auto* const member = told.member(field);
        return member != nullptr ? member->integer() : std::nullopt;
    }

    bool delivers(const std::string& identifier = "a")
    {
        return m_center.deliver({.title = "Title", .body = "Body", .identifier = identifier}).has_value();
    }

    /// Within the patience for two answers, and some time for the machine.
    template <typename Call>
    static void expectGivenUpSoon(Call call)
    {
        QElapsedTimer time;
        time.start();
        call();
        EXPECT_LT(time.elapsed(), 8000);
    }

    /// What an installed service says of a notification that it shows.
    std::string printedByRealService(std::string_view configuration, const UserNotification& notification)
    {
        const PrivateDisplay display(PrivateDisplay::Manager::none);
        EXPECT_NE(display.name(), "");
        const TestSupport::TemporaryTree home;
        EXPECT_TRUE(Platform::PosixFileManager().writeAtomically(configuration, home.url("dunstrc")));
        OwnedProgram service("dunst", {"-config", home.path("dunstrc"), "-print"},
            {{"DBUS_SESSION_BUS_ADDRESS", m_bus.address()}, {"DISPLAY", display.name()}, {"HOME", home.root().path()}});
        QElapsedTimer time;
        time.start();
        while (!m_center.isAuthorized() && time.elapsed() < 10'000) {
            std::this_thread::sleep_for(20ms);
        }
        EXPECT_TRUE(m_center.deliver(notification));
        std::string printed;
        for (auto line = service.line(); line != "}" && !line.empty(); line = service.line()) {
            printed += line + "\n";
        }
        return printed;
    }

    /// Qt wants to know a program before it talks to a bus.
    TestSupport::EventLoop m_loop;
    const PrivateBus& m_bus = PrivateBus::ofThisProcess();
    FreedesktopNotifications m_center{
        {.hasSessionBus = true, .applicationName = "Karvello", .desktopEntry = "karvello", .patience = 2s}};
};

TEST_F(FreedesktopNotificationsTest, WithoutAServiceNothingIsAuthorized)
{
    EXPECT_FALSE(m_center.isAuthorized());
    EXPECT_FALSE(m_center.requestAuthorization());
    EXPECT_EQ(m_center.deliver({.title = "a", .body = "b", .identifier = "c"}).error(),
        "The desktop has no notification service that answers.");
}

TEST_F(FreedesktopNotificationsTest, AServiceThatAnswersAuthorizes)
{
    const auto service = started("plain");
    EXPECT_TRUE(m_center.isAuthorized());
    EXPECT_TRUE(m_center.requestAuthorization());
    EXPECT_TRUE(service->staysQuiet());
}

TEST_F(FreedesktopNotificationsTest, AServiceThatComesAndGoesIsNoticed)
{
    auto service = started("plain");
    EXPECT_TRUE(m_center.isAuthorized());
    service.reset();
    EXPECT_FALSE(m_center.isAuthorized());
    service = started("plain");
    EXPECT_TRUE(m_center.isAuthorized());
}

TEST_F(FreedesktopNotificationsTest, WithoutASessionBusNobodyIsAsked)
{
    const auto service = started("plain");
    FreedesktopNotifications center({.hasSessionBus = false});
    EXPECT_FALSE(center.isAuthorized());
    EXPECT_FALSE(center.deliver({.title = "a", .body = "b", .identifier = "c"}));
    EXPECT_TRUE(service->staysQuiet());
}

TEST_F(FreedesktopNotificationsTest, AServiceIsToldWhatIsToBeShown)
{
    const auto service = started("plain");
    EXPECT_TRUE(delivers());
    const auto notification = told(*service);
    EXPECT_EQ(text(notification, "application"), "Karvello");
    EXPECT_EQ(text(notification, "summary"), "Title");
    EXPECT_EQ(text(notification, "body"), "Body");
    EXPECT_EQ(number(notification, "replaces"), 0);
    EXPECT_EQ(number(notification, "timeout"), -1);
    const auto& hints = *notification.member("hints");
    EXPECT_EQ(text(hints, "desktop-entry"), "karvello");
    EXPECT_EQ(number(hints, "urgency"), 1);
    EXPECT_EQ(hints.member("sound-name"), nullptr);
}

TEST_F(FreedesktopNotificationsTest, AServiceWithSoundsIsAskedForOne)
{
    const auto service = started("markup");
    EXPECT_TRUE(delivers());
    EXPECT_EQ(text(*told(*service).member("hints"), "sound-name"), "message-new-instant");
}

TEST_F(FreedesktopNotificationsTest, TheSameIdentifierReplacesAndAnotherDoesNot)
{
    const auto service = started("plain");
    EXPECT_TRUE(delivers("a"));
    EXPECT_TRUE(delivers("b"));
    EXPECT_TRUE(delivers("a"));
    EXPECT_TRUE(delivers("a"));
    EXPECT_EQ(number(told(*service), "replaces"), 0);
    EXPECT_EQ(number(told(*service), "replaces"), 0);
    EXPECT_EQ(number(told(*service), "replaces"), 41);
    // It was given another number now.
    EXPECT_EQ(number(told(*service), "replaces"), 43);
}

TEST_F(FreedesktopNotificationsTest, ANewServiceIsNotAskedToReplaceWhatItDoesNotKnow)
{
    auto service = started("plain");
    EXPECT_TRUE(delivers());
    service.reset();
    service = started("plain");
    EXPECT_TRUE(delivers());
    EXPECT_EQ(number(told(*service), "replaces"), 0);
}

TEST_F(FreedesktopNotificationsTest, MarkupIsEscapedForAServiceThatReadsItAndTakenOutForOthers)
{
    const UserNotification hostile{.title = "<b>\n&", .body = "<img src=\"file:///a\"/> & b", .identifier = "a"};
    {
        const auto service = started("markup");
        EXPECT_TRUE(m_center.deliver(hostile));
        const auto notification = told(*service);
        EXPECT_EQ(text(notification, "summary"), "<b> &");
        EXPECT_EQ(text(notification, "body"), "&lt;img src=\"file:///a\"/&gt; &amp; b");
    }
    const auto service = started("plain");
    EXPECT_TRUE(m_center.deliver(hostile));
    EXPECT_EQ(text(told(*service), "body"), "‹img src=\"file:///a\"/> & b");
}

TEST_F(FreedesktopNotificationsTest, HostileTextArrivesHarmless)
{
    const auto service = started("plain");
    using namespace std::string_literals;
    EXPECT_TRUE(m_center.deliver(
        {.title = "a\0b\xFF\u202E\n"s, .body = std::string(100'000, 'x') + "\xC3", .identifier = "\0\xFF<>\n"s}));
    const auto notification = told(*service);
    EXPECT_EQ(text(notification, "summary"), "a b\\xFF ");
    EXPECT_EQ(text(notification, "body"), std::string(1999, 'x') + "…");
    EXPECT_TRUE(delivers());
}

TEST_F(FreedesktopNotificationsTest, ASlowServiceIsWaitedFor)
{
    const auto service = started("slow");
    EXPECT_TRUE(m_center.isAuthorized());
    EXPECT_TRUE(delivers());
}

TEST_F(FreedesktopNotificationsTest, AServiceThatDoesNotAnswerIsGivenUp)
{
    const auto service = started("silent");
    expectGivenUpSoon([this] { EXPECT_FALSE(m_center.isAuthorized()); });
    expectGivenUpSoon([this] { EXPECT_FALSE(delivers()); });
    EXPECT_TRUE(service->staysQuiet());
}

TEST_F(FreedesktopNotificationsTest, AServiceThatDoesNotConfirmHasNotShownIt)
{
    const auto service = started("deaf");
    EXPECT_TRUE(m_center.isAuthorized());
    expectGivenUpSoon([this] {
        EXPECT_EQ(m_center.deliver({.title = "a", .body = "b", .identifier = "c"}).error(),
            "The desktop’s notification service didn’t show the notification.");
    });
}

TEST_F(FreedesktopNotificationsTest, ARefusalIsAFailureAndItsWordsAreNotPassedOn)
{
    const auto service = started("refuses");
    EXPECT_EQ(m_center.deliver({.title = "a", .body = "b", .identifier = "c"}).error(),
        "The desktop’s notification service didn’t show the notification.");
}

TEST_F(FreedesktopNotificationsTest, AServiceThatAnswersInAnotherFormIsNone)
{
    const auto service = started("lies");
    EXPECT_FALSE(m_center.isAuthorized());
    EXPECT_FALSE(delivers());
    EXPECT_TRUE(service->staysQuiet());
}

TEST_F(FreedesktopNotificationsTest, ANumberThatIsNoneIsAFailure)
{
    for (const auto* const behaviour : {"zero", "wordy"}) {
        const auto service = started(behaviour);
        EXPECT_FALSE(delivers()) << behaviour;
        EXPECT_FALSE(delivers()) << behaviour;
        EXPECT_EQ(number(told(*service), "replaces"), 0);
        EXPECT_EQ(number(told(*service), "replaces"), 0) << behaviour;
    }
}

TEST_F(FreedesktopNotificationsTest, MayBeUsedFromSeveralThreads)
{
    const auto service = started("plain");
    std::array<bool, 4> delivered{};
    {
        std::vector<std::jthread> threads;
        for (std::size_t index = 0; index < delivered.size(); ++index) {
            threads.emplace_back([this, &delivered, index] { delivered[index] = delivers("same"); });
        }
    }
    EXPECT_THAT(delivered, testing::Each(true));
    std::vector<std::int64_t> replaced;
    for (std::size_t index = 0; index < delivered.size(); ++index) {
        replaced.push_back(number(told(*service), "replaces").value_or(-1));
    }
    EXPECT_THAT(replaced, testing::ElementsAre(0, 41, 42, 43));
}

TEST_F(FreedesktopNotificationsTest, ARealServiceReadsNoTextAsMarkup)
{
    const UserNotification hostile{.title = "<b>Title</b>", .body = "5% < 10% & <i>more</i>", .identifier = "a"};
    EXPECT_THAT(printedByRealService("[global]\n", hostile), testing::HasSubstr("body: '5% < 10% & ‹i>more‹/i>'"));
    const auto printed = printedByRealService("[global]\nmarkup = full\n", hostile);
    EXPECT_THAT(printed, testing::HasSubstr("summary: '<b>Title</b>'"));
    EXPECT_THAT(printed, testing::HasSubstr("body: '5% &lt; 10% &amp; &lt;i&gt;more&lt;/i&gt;'"));
}

TEST(FreedesktopNotificationsSettings, ComeFromTheSession)
{
    using Settings = FreedesktopNotifications::Settings;
    EXPECT_FALSE(Settings::current({}).hasSessionBus);
    const Platform::Environment session(
        std::map<std::string, std::string, std::less<>>{{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/a"}});
    EXPECT_TRUE(Settings::current(session).hasSessionBus);
    EXPECT_EQ(Settings::current(session).applicationName, "Karvello");
}

} // namespace
