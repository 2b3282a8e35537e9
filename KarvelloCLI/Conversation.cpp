#include "KarvelloCLI/Conversation.h"

#include "KarvelloCLI/OutputFile.h"
#include "KarvelloCLI/Say.h"
#include "Platform/Base/Text.h"
#include "Platform/Files/FileDescriptor.h"

#include <fmt/format.h>

#include <poll.h>
#include <sys/eventfd.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <string>
#include <tuple>

namespace KarvelloCLI {

namespace {

constexpr std::size_t kLongestAnswer = 64;

int descriptorFor(const CommonOptions& options, Conversation::Consent consent)
{
    const bool isDataElsewhere = options.format == OutputFormat::table || options.output;
    const bool mustBeSeen = consent == Conversation::Consent::isAsked;
    return isDataElsewhere && (!mustBeSeen || isatty(STDOUT_FILENO) == 1) ? STDOUT_FILENO : STDERR_FILENO;
}

bool isYes(std::string_view line)
{
    std::string word;
    for (const char letter : line) {
        if (std::isspace(static_cast<unsigned char>(letter)) == 0) {
            word += letter;
        }
    }
    word = Platform::Text::lowercased(word);
    const std::string words = say("y yes");
    for (std::string_view rest = words; !rest.empty();) {
        const std::string_view one = rest.substr(0, rest.find(' '));
        if (word == one) {
            return true;
        }
        rest.remove_prefix(std::min(one.size() + 1, rest.size()));
    }
    return false;
}

/// Waits for a line of standard input, or for a stop.
Answer readAnswer(const std::stop_token& stop)
{
    const Platform::FileDescriptor stopped(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    const std::stop_callback wake(stop, [&stopped] { std::ignore = eventfd_write(stopped.get(), 1); });
    std::array<pollfd, 2> waiting{
        {{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0}, {.fd = stopped.get(), .events = POLLIN, .revents = 0}}};
    std::string line;
    for (;;) {
        if (stop.stop_requested()) {
            return Answer::interrupted;
        }
        if (poll(waiting.data(), waiting.size(), -1) < 0) {
            if (errno == EINTR) {
                continue;
            }
            return Answer::no;
        }
        if (waiting[0].revents == 0) {
            continue;
        }
        char letter = 0;
        const auto count = read(STDIN_FILENO, &letter, 1);
        if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
            continue;
        }
        if (count != 1) {
            return Answer::no;
        }
        if (letter == '\n') {
            return isYes(line) ? Answer::yes : Answer::no;
        }
        if (line.size() < kLongestAnswer) {
            line += letter;
        }
    }
}

} // namespace

Conversation::Conversation(const CommonOptions& options, Consent consent, const Platform::FileURL& home,
    const Platform::Environment& environment)
    : m_consent(consent)
    , m_descriptor(descriptorFor(options, consent))
    , m_style(TextStyle::of(options, m_descriptor, home, environment))
{
}

bool Conversation::isPossible()
{
    return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
}

bool Conversation::isOnStandardOutput() const
{
    return m_descriptor == STDOUT_FILENO;
}

bool Conversation::say(std::string_view text) const
{
    return writeWholly(m_descriptor, text) == 0;
}

Answer Conversation::ask(std::string_view question, const std::stop_token& stop) const
{
    if (m_consent == Consent::isGiven) {
        return stop.stop_requested() ? Answer::interrupted : Answer::yes;
    }
    tcflush(STDIN_FILENO, TCIFLUSH);
    if (writeWholly(STDERR_FILENO, fmt::format("{} {} ", question, KarvelloCLI::say("[y/N]"))) != 0) {
        return Answer::no;
    }
    const Answer answer = readAnswer(stop);
    if (answer == Answer::interrupted) {
        std::ignore = writeWholly(STDERR_FILENO, "\n");
    }
    return answer;
}

} // namespace KarvelloCLI
