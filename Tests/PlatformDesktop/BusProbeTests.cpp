#include "Platform/Files/FileDescriptor.h"
#include "PlatformDesktop/BusProbe.h"
#include "Tests/DesktopSupport/PrivateBus.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

namespace {

using namespace std::chrono_literals;
using DesktopTestSupport::PrivateBus;
using PlatformDesktop::BusProbe::mayAnswer;

/// A socket with an address of buses. It takes one connection and says its words; without words it takes none, which a
/// client sees as silence.
class FalseBus {
public:
    explicit FalseBus(std::string words = {})
        : m_words(std::move(words))
    {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        std::ranges::copy(m_tree.path("bus"), place.sun_path);
        EXPECT_EQ(bind(m_socket.get(), reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
        EXPECT_EQ(listen(m_socket.get(), 1), 0);
        if (!m_words.empty()) {
            m_speaker = std::jthread([this] {
                const Platform::FileDescriptor taken(accept(m_socket.get(), nullptr, nullptr));
                EXPECT_EQ(send(taken.get(), m_words.data(), m_words.size(), MSG_NOSIGNAL), std::ssize(m_words));
            });
        }
    }

    [[nodiscard]] std::string address() const { return "unix:path=" + m_tree.path("bus"); }

private:
    const std::string m_words;
    TestSupport::TemporaryTree m_tree{""};
    Platform::FileDescriptor m_socket{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    std::jthread m_speaker;
};

TEST(BusProbe, HearsARealBus)
{
    const auto& address = PrivateBus::ofThisProcess().address();
    ASSERT_TRUE(address.starts_with("unix:path=")) << address;
    EXPECT_TRUE(mayAnswer(address, 10s));
}

TEST(BusProbe, FindsNobodyBehindASocketThatIsNotThere)
{
    EXPECT_FALSE(mayAnswer("unix:path=/no/such/bus", 10s));
    EXPECT_FALSE(mayAnswer("unix:path=/" + std::string(200, 'x'), 10s));
    EXPECT_FALSE(mayAnswer("unix:abstract=karvello-no-such-bus", 10s));
}

TEST(BusProbe, GivesUpOnSilence)
{
    const FalseBus bus;
    EXPECT_FALSE(mayAnswer(bus.address(), 50ms));
}

TEST(BusProbe, KnowsNonsense)
{
    for (const std::string words : {"HTTP/1.1 400 Bad Request\r\n\r\n", "REJECTED EXTERNAL\r\n",
             "OK and \xff\xfe\r\nmore\r\n", "OK 0123\r\nl\3", "OK", "\n"}) {
        const FalseBus bus(words);
        EXPECT_FALSE(mayAnswer(bus.address(), 10s)) << words;
    }
    const FalseBus endless(std::string("OK ") + std::string(20'000, 'x'));
    EXPECT_FALSE(mayAnswer(endless.address(), 10s));
}

TEST(BusProbe, HearsTheAnswerOfAnotherKindOfMachine)
{
    const FalseBus bus("OK 0123\r\nB\2");
    EXPECT_TRUE(mayAnswer(bus.address(), 10s));
}

TEST(BusProbe, LeavesOtherKindsOfAddressesAlone)
{
    for (const auto* const address :
        {"tcp:host=localhost,port=1", "autolaunch:", "unix:path=/no%20bus", "unix:path=/a;unix:path=/b"}) {
        EXPECT_TRUE(mayAnswer(address, 10ms)) << address;
    }
}

} // namespace
