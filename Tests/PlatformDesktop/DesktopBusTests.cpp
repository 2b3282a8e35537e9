#include "Tests/PlatformDesktop/DesktopServicesFixture.h"

#include <latch>
#include <set>
#include <sys/socket.h>
#include <sys/stat.h>

namespace {

using namespace PlatformDesktopTests;
using PlatformDesktop::SessionBus;

/// A session bus that accepts a connection and says nothing, until the test lets it.
class DesktopBusTest : public DesktopServicesTest {
protected:
    DesktopBus silentBus()
    {
        return DesktopBus({.hasSessionBus = true, .patience = 60ms, .open = [silence = m_silence] {
                               silence->wait();
                               return std::make_shared<const SessionBus>();
                           }});
    }

    void askWhoIsThere(DesktopBus& bus, QObject* context, DesktopBus::Answer answer, const char* method = "ListNames")
    {
        bus.call(context, SessionBus::callOfTheBus(method, {}), 5s, SessionBus::AbsentService::isNotThere,
            std::move(answer));
    }

    QDBusMessage reply(DesktopBus& bus, const char* method = "ListNames")
    {
        QObject context;
        const auto answer =
            answerOf<QDBusMessage>([&](const auto& take) { askWhoIsThere(bus, &context, take, method); });
        return answer.value_or(QDBusMessage());
    }

    static std::set<int> openSockets()
    {
        std::set<int> sockets;
        for (int descriptor = 0; descriptor < 1024; ++descriptor) {
            struct stat status{};
            if (fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode)) {
                sockets.insert(descriptor);
            }
        }
        return sockets;
    }

    std::shared_ptr<std::latch> m_silence = std::make_shared<std::latch>(1);
};

TEST_F(DesktopBusTest, AnAnswerComesLater)
{
    EXPECT_EQ(reply(*m_bus).type(), QDBusMessage::ReplyMessage);
    // The second time it is connected already.
    EXPECT_EQ(reply(*m_bus).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(reply(*m_bus, "NoSuchMethod").type(), QDBusMessage::ErrorMessage);
}

TEST_F(DesktopBusTest, WithoutABusTheAnswerIsAnError)
{
    EXPECT_EQ(reply(*withoutABus()).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(withoutABus()->waitUntilOpen(), nullptr);
    DesktopBus refusing({.hasSessionBus = true, .open = [] { return nullptr; }});
    EXPECT_EQ(reply(refusing).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(refusing.waitUntilOpen(), nullptr);
}

TEST_F(DesktopBusTest, ABusThatSaysNothingHoldsUpNothingAndIsGivenUp)
{
    auto bus = silentBus();
    EXPECT_EQ(reply(bus).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(bus.waitUntilOpen(), nullptr);
    m_silence->count_down();
}

TEST_F(DesktopBusTest, ABusThatSpeaksAfterAllServesTheNextRequest)
{
    auto bus = silentBus();
    EXPECT_EQ(reply(bus).type(), QDBusMessage::ErrorMessage);
    m_silence->count_down();
    letTimePass();
    EXPECT_EQ(reply(bus).type(), QDBusMessage::ReplyMessage);
    EXPECT_NE(bus.waitUntilOpen(), nullptr);
}

TEST_F(DesktopBusTest, EachRequestIsAnsweredOnce)
{
    auto bus = silentBus();
    QObject context;
    int answers = 0;
    askWhoIsThere(bus, &context, [&answers](const QDBusMessage&) { ++answers; });
    EXPECT_TRUE(m_loop.runUntil([&answers] { return answers == 1; }));
    m_silence->count_down();
    letTimePass();
    EXPECT_EQ(answers, 1);
}

TEST_F(DesktopBusTest, NothingIsCalledForAContextThatHasGone)
{
    bool isCalled = false;
    {
        QObject context;
        askWhoIsThere(*m_bus, &context, [&isCalled](const QDBusMessage&) { isCalled = true; });
    }
    const FakeBusService service("org.example.Service", [](const auto&) { return std::nullopt; });
    {
        QObject context;
        m_bus->call(&context,
            QDBusMessage::createMethodCall(QStringLiteral("org.example.Service"), QStringLiteral("/"),
                QStringLiteral("org.example"), QStringLiteral("Ask")),
            5s, SessionBus::AbsentService::isNotThere, [&isCalled](const QDBusMessage&) { isCalled = true; });
        EXPECT_TRUE(m_loop.runUntil([&service] { return !service.calls().empty(); }));
    }
    service.send(service.calls().front().createReply());
    letTimePass();
    EXPECT_FALSE(isCalled);
}

TEST_F(DesktopBusTest, MayEndWhileItIsOpened)
{
    bool isCalled = false;
    {
        auto bus = silentBus();
        QObject context;
        askWhoIsThere(bus, &context, [&isCalled](const QDBusMessage&) { isCalled = true; });
        QTimer::singleShot(10ms, &context, [] {});
        m_loop.handleEvents();
    }
    m_silence->count_down();
    letTimePass();
    EXPECT_FALSE(isCalled);
}

TEST_F(DesktopBusTest, AnAnswerMayBeTheEndOfItsContext)
{
    auto context = std::make_unique<QObject>();
    askWhoIsThere(*m_bus, context.get(), [&context](const QDBusMessage&) { context.reset(); });
    EXPECT_TRUE(m_loop.runUntil([&context] { return context == nullptr; }));
    m_loop.handleEvents();
}

TEST_F(DesktopBusTest, ALostConnectionIsOpenedAnew)
{
    const auto before = openSockets();
    const auto lost = m_bus->waitUntilOpen();
    ASSERT_NE(lost, nullptr);
    for (const int descriptor : openSockets()) {
        if (!before.contains(descriptor)) {
            shutdown(descriptor, SHUT_RDWR);
        }
    }
    EXPECT_TRUE(m_loop.runUntil([&lost] { return !lost->isConnected(); }));
    EXPECT_EQ(reply(*m_bus).type(), QDBusMessage::ReplyMessage);
}

TEST_F(DesktopBusTest, ANameIsFoundWithItsOwner)
{
    QObject context;
    const auto find = [&](const char* name) {
        return answerOf<std::optional<DesktopBus::Service>>([&](const auto& take) {
            m_bus->find(&context, QLatin1String(name), 5s, SessionBus::AbsentService::isStarted, take);
        }).value_or(std::nullopt);
    };
    EXPECT_FALSE(find("org.example.Absent"));
    EXPECT_FALSE(find("no name\n"));
    const FakeBusService service("org.example.Service", [](const auto&) { return std::nullopt; });
    const auto found = find("org.example.Service");
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->connection.startsWith(QLatin1Char(':')));
    EXPECT_EQ(found->bus, m_bus->waitUntilOpen());
}

} // namespace
