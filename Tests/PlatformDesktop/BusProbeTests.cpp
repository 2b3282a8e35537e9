#include "Platform/Files/FileDescriptor.h"
#include "PlatformDesktop/BusProbe.h"
#include "Tests/DesktopSupport/PrivateBus.h"
#include "Tests/Support/TemporaryTree.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using DesktopTestSupport::PrivateBus;
using PlatformDesktop::BusProbe::mayAnswer;

/// A socket with an address of buses. It takes one connection, and answers each time that it is spoken to with the next of
/// its sentences; without any it takes none, which a client sees as silence.
class FalseBus {
public:
    explicit FalseBus(std::vector<std::string> sentences = {})
        : m_sentences(std::move(sentences))
    {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        std::ranges::copy(m_tree.path("bus"), place.sun_path);
        EXPECT_EQ(bind(m_socket.get(), reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
        EXPECT_EQ(listen(m_socket.get(), 1), 0);
        if (!m_sentences.empty()) {
            m_speaker = std::jthread([this] {
                const Platform::FileDescriptor taken(accept(m_socket.get(), nullptr, nullptr));
                for (const auto& sentence : m_sentences) {
                    std::array<char, 1024> heard{};
                    EXPECT_GT(recv(taken.get(), heard.data(), heard.size(), 0), 0);
                    EXPECT_EQ(send(taken.get(), sentence.data(), sentence.size(), MSG_NOSIGNAL), std::ssize(sentence));
                }
            });
        }
    }

    [[nodiscard]] std::string address() const { return "unix:path=" + m_tree.path("bus"); }

private:
    const std::vector<std::string> m_sentences;
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
    const std::vector<std::vector<std::string>> conversations{{"HTTP/1.1 400 Bad Request\r\n\r\n"},
        {"REJECTED EXTERNAL\r\n"}, {"OK"}, {"\n"}, {"OK " + std::string(20'000, 'x')},
        {"OK 0123\r\n", "ERROR \xff\xfe\r\n"}, {"OK 0123\r\n", "l\3"}, {"OK 0123\r\n", "l"}};
    for (const auto& sentences : conversations) {
        const FalseBus bus(sentences);
        EXPECT_FALSE(mayAnswer(bus.address(), 10s)) << sentences.back();
    }
}

TEST(BusProbe, HearsTheAnswerOfAnotherKindOfMachine)
{
    const FalseBus bus({"OK 0123\r\n", "B\2"});
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
