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

/// Everything that a client has to say before it hears the first message.
std::string greeting()
{
    std::string user;
    for (const char digit : std::to_string(geteuid())) {
        user += fmt::format("{:02x}", static_cast<unsigned>(digit));
    }
    return std::string(1, '\0') + "AUTH EXTERNAL " + user + "\r\nBEGIN\r\n" + hello();
}

/// The line that lets one in, and the answer to the call behind it; nothing while there is too little to tell.
std::optional<bool> isWelcome(std::string_view heard)
{
    constexpr std::string_view kOK = "OK ";
    constexpr std::size_t kLongestLine = 16'384;
    const auto end = heard.find("\r\n");
    if (!kOK.starts_with(heard.substr(0, kOK.size()))) {
        return false;
    }
    if (end == std::string_view::npos) {
        return heard.size() > kLongestLine ? std::optional(false) : std::nullopt;
    }
    const auto message = heard.substr(end + 2);
    if (message.size() < 2) {
        return std::nullopt;
    }
    constexpr char kReply = 2;
    return (message[0] == 'l' || message[0] == 'B') && message[1] == kReply;
}

} // namespace

bool mayAnswer(std::string_view address, std::chrono::milliseconds patience)
{
    const auto end = Clock::now() + patience;
    const auto name = socketNameOf(address);
    if (!name) {
        return true;
    }
    const auto connection = connectTo(*name, !name->starts_with('\0'));
    const auto words = greeting();
    if (!connection.isOpen()
        || ::send(connection.get(), words.data(), words.size(), MSG_NOSIGNAL) != std::ssize(words)) {
        return false;
    }
    std::string heard;
    while (true) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd readable{.fd = connection.get(), .events = POLLIN, .revents = 0};
        const int found = left > 0 ? ::poll(&readable, 1, static_cast<int>(left)) : 0;
        if (found == 0 || (found < 0 && errno != EINTR)) {
            return false;
        }
        std::array<char, 1024> buffer{};
        const auto count = found > 0 ? ::read(connection.get(), buffer.data(), buffer.size()) : 0;
        if (found > 0 && count <= 0) {
            return false;
        }
        heard.append(buffer.data(), static_cast<std::size_t>(count));
        if (const auto answer = isWelcome(heard)) {
            return *answer;
        }
    }
}

} // namespace PlatformDesktop::BusProbe
