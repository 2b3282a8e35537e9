#include "PlatformDesktop/SingleInstance.h"
#include "Tests/PlatformDesktop/DesktopServicesFixture.h"

#include <future>

namespace {

using namespace PlatformDesktopTests;
using PlatformDesktop::SessionBus;
using PlatformDesktop::SingleInstance;
using testing::ElementsAre;
using testing::IsEmpty;
using Role = SingleInstance::Role;

constexpr auto kOwnName = "io.github.karvello.Karvello";

class SingleInstanceTest : public DesktopServicesTest {
protected:
    /// As another process would have one.
    std::unique_ptr<SingleInstance> instance(std::shared_ptr<DesktopBus> bus = nullptr, const std::string& token = "")
    {
        return std::make_unique<SingleInstance>(
            bus ? std::move(bus) : std::make_shared<DesktopBus>(DesktopBus::Settings{.hasSessionBus = true}),
            SingleInstance::Settings{.patience = 2s, .token = token},
            [this](const SingleInstance::Activation& activation) {
                m_activations.push_back(activation.action.value_or("none") + "|" + activation.token);
            });
    }

    /// Runs on a thread of its own, as in another process, while this one handles events.
    template <typename Part>
    auto elsewhere(Part part)
    {
        auto result = std::async(std::launch::async, std::move(part));
        EXPECT_TRUE(m_loop.runUntil([&result] { return result.wait_for(0s) == std::future_status::ready; }));
        return result.get();
    }
    bool activatedElsewhere(const std::optional<std::string>& action, const std::string& token = "")
    {
        return elsewhere([=, this] {
            const auto other = instance(nullptr, token);
            return other->acquire() == Role::otherRunning && other->activateOther(action);
        });
    }

    /// What a desktop says to the application.
    QDBusMessage call(const char* method, const QVariantList& arguments)
    {
        return elsewhere([=] {
            auto message =
                QDBusMessage::createMethodCall(QLatin1String(kOwnName), QStringLiteral("/io/github/karvello/Karvello"),
                    QStringLiteral("org.freedesktop.Application"), QLatin1String(method));
            message.setArguments(arguments);
            return SessionBus().call(message, 5s);
        });
    }
    bool isTold(std::size_t count = 1)
    {
        return m_loop.runUntil([&] { return m_activations.size() >= count; });
    }

    std::vector<std::string> m_activations;
};

TEST_F(SingleInstanceTest, TheFirstOneOwnsTheNameUntilItsEnd)
{
    auto first = instance();
    EXPECT_EQ(first->acquire(), Role::owner);
    EXPECT_EQ(first->acquire(), Role::owner);
    const auto second = instance();
    EXPECT_EQ(second->acquire(), Role::otherRunning);
    EXPECT_EQ(second->acquire(), Role::otherRunning);
    first.reset();
    EXPECT_EQ(second->acquire(), Role::owner);
}

TEST_F(SingleInstanceTest, ItGivesTheNameBackThoughTheConnectionGoesOn)
{
    EXPECT_EQ(instance(m_bus)->acquire(), Role::owner);
    EXPECT_EQ(instance()->acquire(), Role::owner);
    EXPECT_TRUE(m_bus->waitUntilOpen()->isConnected());
}

TEST_F(SingleInstanceTest, WithoutABusItRunsAlone)
{
    const auto alone = instance(withoutABus());
    EXPECT_EQ(alone->acquire(), Role::noBus);
    EXPECT_FALSE(alone->activateOther(std::nullopt));
}

TEST_F(SingleInstanceTest, ABusThatSaysNothingIsNone)
{
    std::promise<void> silence;
    const auto bus = std::make_shared<DesktopBus>(
        DesktopBus::Settings{.hasSessionBus = true, .patience = 50ms, .open = [end = silence.get_future().share()] {
                                 end.wait();
                                 return std::make_shared<const SessionBus>();
                             }});
    EXPECT_EQ(instance(bus)->acquire(), Role::noBus);
    EXPECT_FALSE(instance(bus)->activateOther(std::nullopt));
    silence.set_value();
}

TEST_F(SingleInstanceTest, TheOneThatRunsIsActivated)
{
    const auto first = instance(m_bus);
    ASSERT_EQ(first->acquire(), Role::owner);
    EXPECT_TRUE(activatedElsewhere(std::nullopt));
    EXPECT_TRUE(isTold());
    EXPECT_THAT(m_activations, ElementsAre("none|"));
}

TEST_F(SingleInstanceTest, AnActionArrivesWithTheTokenThatLetsAWindowComeToTheFront)
{
    const auto first = instance(m_bus);
    ASSERT_EQ(first->acquire(), Role::owner);
    for (const auto action : SingleInstance::kActions) {
        EXPECT_TRUE(activatedElsewhere(std::string(action), "token-7_TIME4"));
        EXPECT_TRUE(isTold());
        EXPECT_THAT(m_activations, ElementsAre(std::string(action) + "|token-7_TIME4"));
        m_activations.clear();
    }
    EXPECT_TRUE(activatedElsewhere(std::nullopt, "token"));
    EXPECT_TRUE(isTold());
    EXPECT_THAT(m_activations, ElementsAre("none|token"));
}

TEST_F(SingleInstanceTest, TheDesktopActivatesItToo)
{
    const auto first = instance(m_bus);
    ASSERT_EQ(first->acquire(), Role::owner);
    const QVariantMap startup{{QStringLiteral("desktop-startup-id"), QStringLiteral("id")}};
    EXPECT_EQ(call("Activate", {startup}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(
        call("Open", {QStringList{QStringLiteral("file:///a")}, QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(call("ActivateAction", {QStringLiteral("open-memory"), QVariantList{1}, startup}).type(),
        QDBusMessage::ReplyMessage);
    EXPECT_TRUE(isTold(3));
    EXPECT_THAT(m_activations, ElementsAre("none|id", "none|", "open-memory|id"));
}

TEST_F(SingleInstanceTest, WhatItDoesNotKnowIsNotPassedOn)
{
    const auto first = instance(m_bus);
    ASSERT_EQ(first->acquire(), Role::owner);
    EXPECT_EQ(call("ActivateAction", {QStringLiteral("clean-everything"), QVariantList(), QVariantMap()}).type(),
        QDBusMessage::ReplyMessage);
    EXPECT_EQ(call("ActivateAction", {QStringLiteral("open-memory")}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Activate", {QStringLiteral("a")}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Activate", {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("deleteLater", {}).type(), QDBusMessage::ErrorMessage);
    letTimePass();
    EXPECT_THAT(m_activations, IsEmpty());
    EXPECT_TRUE(activatedElsewhere(std::nullopt));
    EXPECT_TRUE(isTold());
}

TEST_F(SingleInstanceTest, ATokenThatIsNoneIsLeftOut)
{
    const auto first = instance(m_bus);
    ASSERT_EQ(first->acquire(), Role::owner);
    const auto key = QStringLiteral("activation-token");
    for (const auto& token : {QVariant(7), QVariant(QStringLiteral("a b")), QVariant(QStringLiteral("a\n")),
             QVariant(QStringLiteral("\u202Ea")), QVariant(QString(5000, QLatin1Char('a'))), QVariant(QStringList())}) {
        EXPECT_EQ(call("Activate", {QVariantMap{{key, token}}}).type(), QDBusMessage::ReplyMessage);
    }
    EXPECT_TRUE(isTold(6));
    EXPECT_THAT(m_activations, testing::Each("none|"));
}

TEST_F(SingleInstanceTest, OneThatDoesNotAnswerIsGivenUp)
{
    const FakeBusService hung(kOwnName, [](const QDBusMessage&) { return std::nullopt; });
    EXPECT_FALSE(activatedElsewhere(std::nullopt));
    EXPECT_THAT(hung.methods(), ElementsAre("Activate"));
}

TEST_F(SingleInstanceTest, OneThatRefusesIsNotActivated)
{
    const FakeBusService other(kOwnName, [](const QDBusMessage& message) {
        return message.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("no"));
    });
    EXPECT_FALSE(activatedElsewhere("open-memory"));
    EXPECT_THAT(other.methods(), ElementsAre("ActivateAction"));
}

TEST_F(SingleInstanceTest, OneThatHasGoneIsNotActivatedNorStarted)
{
    EXPECT_FALSE(elsewhere([this] { return instance()->activateOther(std::nullopt); }));
}

TEST_F(SingleInstanceTest, ANameThatIsNoneMeansThatItRunsAlone)
{
    SingleInstance odd(m_bus, {.identifier = "no name\n", .patience = 2s}, [](const auto&) {});
    EXPECT_EQ(odd.acquire(), Role::noBus);
    EXPECT_FALSE(odd.activateOther(std::nullopt));
}

TEST_F(SingleInstanceTest, NothingIsToldAfterItsEnd)
{
    auto first = instance(m_bus);
    ASSERT_EQ(first->acquire(), Role::owner);
    auto asking = std::async(std::launch::async, [this] { return instance()->activateOther(std::nullopt); });
    std::this_thread::sleep_for(200ms);
    first.reset();
    letTimePass();
    EXPECT_FALSE(asking.get());
    EXPECT_THAT(m_activations, IsEmpty());
}

TEST_F(SingleInstanceTest, AnActivationMayBeItsEnd)
{
    std::unique_ptr<SingleInstance> first;
    first = std::make_unique<SingleInstance>(
        m_bus, SingleInstance::Settings{}, [&first](const SingleInstance::Activation&) { first.reset(); });
    ASSERT_EQ(first->acquire(), Role::owner);
    EXPECT_TRUE(activatedElsewhere(std::nullopt));
    EXPECT_TRUE(m_loop.runUntil([&first] { return first == nullptr; }));
    m_loop.handleEvents();
}

TEST(SingleInstanceSettings, ComeFromTheSession)
{
    using Settings = std::map<std::string, std::string, std::less<>>;
    const auto tokenOf = [](const Settings& variables) {
        return SingleInstance::Settings::current(Platform::Environment(variables)).token;
    };
    EXPECT_EQ(tokenOf({}), "");
    EXPECT_EQ(tokenOf({{"DESKTOP_STARTUP_ID", "a"}}), "a");
    EXPECT_EQ(tokenOf({{"DESKTOP_STARTUP_ID", "a"}, {"XDG_ACTIVATION_TOKEN", "b"}}), "b");
    EXPECT_EQ(SingleInstance::Settings().identifier, "io.github.karvello.Karvello");
}

} // namespace
