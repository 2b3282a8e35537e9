#include "PlatformDesktop/BusProbe.h"

#include "Platform/Files/FileDescriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fmt/format.h>
#include <optional>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace PlatformDesktop::BusProbe {

namespace {

using Clock = std::chrono::steady_clock;

/// Of a socket in the file system, or, with a zero byte before its name, in the kernel's own list. Nothing for whatever
/// else an address can be: another transport, several places, escapes.
std::optional<std::string> socketNameOf(std::string_view address)
{
    constexpr std::string_view kPath = "unix:path=";
    constexpr std::string_view kAbstract = "unix:abstract=";
    const bool isPath = address.starts_with(kPath);
    if ((!isPath && !address.starts_with(kAbstract)) || address.contains(';') || address.contains('%')) {
        return std::nullopt;
    }
    address.remove_prefix(isPath ? kPath.size() : kAbstract.size());
    const auto name = address.substr(0, address.find(','));
    return (isPath ? std::string() : std::string(1, '\0')) + std::string(name);
}

Platform::FileDescriptor connectTo(const std::string& name, bool isPath)
{
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (name.size() >= sizeof place.sun_path) {
        return {};
    }
    std::ranges::copy(name, place.sun_path);
    const auto length = offsetof(sockaddr_un, sun_path) + name.size() + (isPath ? 1 : 0);
    Platform::FileDescriptor connection(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    // A queue that is full counts as nobody.
    if (!connection.isOpen()
        || ::connect(connection.get(), reinterpret_cast<const sockaddr*>(&place), static_cast<socklen_t>(length))
            != 0) {
        return {};
    }
    return connection;
}

void appendNumber(std::string& message, std::uint32_t number)
{
    for (int shift = 0; shift < 32; shift += 8) {
        message.push_back(static_cast<char>(number >> shift & 0xFFU));
    }
}

void appendField(std::string& fields, char code, char type, std::string_view value)
{
    fields.resize((fields.size() + 7) / 8 * 8);
    fields.append({code, '\1', type, '\0'});
    appendNumber(fields, static_cast<std::uint32_t>(value.size()));
    fields.append(value).push_back('\0');
}

/// The first call of every connection (D-Bus Specification, "Message Format"); little-endian, version 1, serial 1.
std::string hello()
{
    std::string fields;
    appendField(fields, '\1', 'o', "/org/freedesktop/DBus");
    appendField(fields, '\2', 's', "org.freedesktop.DBus");
    appendField(fields, '\3', 's', "Hello");
    appendField(fields, '\6', 's', "org.freedesktop.DBus");
    std::string message{'l', '\1', '\0', '\1'};
    appendNumber(message, 0);
    appendNumber(message, 1);
    appendNumber(message, static_cast<std::uint32_t>(fields.size()));
    message += fields;
    message.resize((message.size() + 7) / 8 * 8);
    return message;
}

std::string authentication()
{
    std::string user;
    for (const char digit : std::to_string(geteuid())) {
        user += fmt::format("{:02x}", static_cast<unsigned>(digit));
    }
    return std::string(1, '\0') + "AUTH EXTERNAL " + user + "\r\n";
}

/// Whether the line that lets one in was heard; nothing while there is too little to tell.
std::optional<bool> isLetIn(std::string_view heard)
{
    constexpr std::string_view kOK = "OK ";
    constexpr std::size_t kLongestLine = 16'384;
    if (!kOK.starts_with(heard.substr(0, kOK.size())) || heard.size() > kLongestLine) {
        return false;
    }
    return heard.ends_with("\r\n") ? std::optional(true) : std::nullopt;
}

std::optional<bool> isReply(std::string_view heard)
{
    if (heard.size() < 2) {
        return std::nullopt;
    }
    constexpr char kReply = 2;
    return (heard[0] == 'l' || heard[0] == 'B') && heard[1] == kReply;
}

class Conversation {
public:
    Conversation(Platform::FileDescriptor connection, Clock::time_point end)
        : m_connection(std::move(connection))
        , m_end(end)
    {
    }

    /// Whether what is heard upon these words is right; false if it does not come in time.
    bool succeeds(const std::string& words, std::optional<bool> (*isRight)(std::string_view))
    {
        if (!m_connection.isOpen()
            || ::send(m_connection.get(), words.data(), words.size(), MSG_NOSIGNAL) != std::ssize(words)) {
            return false;
        }
        std::string heard;
        std::optional<bool> answer;
        while (!answer) {
            std::array<char, 1024> buffer{};
            const auto count = waitForWords() ? ::read(m_connection.get(), buffer.data(), buffer.size()) : 0;
            if (count <= 0) {
                return false;
            }
            heard.append(buffer.data(), static_cast<std::size_t>(count));
            answer = isRight(heard);
        }
        return *answer;
    }

private:
    [[nodiscard]] bool waitForWords() const
    {
        pollfd readable{.fd = m_connection.get(), .events = POLLIN, .revents = 0};
        int found = -1;
        do {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_end - Clock::now()).count();
            found = ::poll(&readable, 1, static_cast<int>(std::max<decltype(left)>(left, 0)));
        } while (found < 0 && errno == EINTR);
        return found > 0;
    }

    Platform::FileDescriptor m_connection;
    Clock::time_point m_end;
};

} // namespace

bool mayAnswer(std::string_view address, std::chrono::milliseconds patience)
{
    const auto end = Clock::now() + patience;
    const auto name = socketNameOf(address);
    if (!name) {
        return true;
    }
    Conversation conversation(connectTo(*name, !name->starts_with('\0')), end);
    return conversation.succeeds(authentication(), isLetIn) && conversation.succeeds("BEGIN\r\n" + hello(), isReply);
}

} // namespace PlatformDesktop::BusProbe
