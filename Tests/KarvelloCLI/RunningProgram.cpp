#include "Tests/KarvelloCLI/RunningProgram.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <thread>
#include <utility>

namespace KarvelloCLITests {

namespace {

using Platform::FileDescriptor;
using namespace std::chrono_literals;

constexpr unsigned short kColumnsOfMessages = 80;

/// The two ends of a stream: the program writes to one, the test reads from the other.
struct Stream {
    FileDescriptor reader;
    FileDescriptor writer;
};

Stream makePipe()
{
    std::array<int, 2> ends{-1, -1};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

Stream makeTerminal(unsigned short columns)
{
    winsize size{};
    size.ws_col = columns;
    size.ws_row = 24;
    std::array<int, 2> ends{-1, -1};
    EXPECT_EQ(openpty(&ends[0], &ends[1], nullptr, nullptr, &size), 0);
    for (const int end : ends) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

Stream outputStream(const ProgramSettings& settings)
{
    if (settings.terminalColumns) {
        return makeTerminal(*settings.terminalColumns);
    }
    if (!settings.outputPath.empty()) {
        Stream stream;
        stream.writer = FileDescriptor(open(settings.outputPath.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
        EXPECT_TRUE(stream.writer.isOpen()) << settings.outputPath;
        return stream;
    }
    Stream stream = makePipe();
    if (settings.outputHasNoReader) {
        stream.reader.reset();
    }
    return stream;
}

std::vector<char*> pointersTo(std::vector<std::string>& words)
{
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

/// Reads a stream to its end on a thread of its own.
class RunningProgram::Collector {
public:
    explicit Collector(FileDescriptor reader)
        : m_reader(std::move(reader))
    {
        if (m_reader.isOpen()) {
            m_thread = std::thread([this] { collect(); });
        }
    }

    std::string text()
    {
        if (m_thread.joinable()) {
            m_thread.join();
        }
        return m_text;
    }

    bool holds(const testing::Matcher<const std::string&>& words)
    {
        std::unique_lock lock(m_mutex);
        return m_grown.wait_for(lock, 10s, [&] { return words.Matches(m_text); });
    }

    ~Collector() { text(); }

private:
    void collect()
    {
        std::array<char, 65536> buffer{};
        // A terminal whose other end is closed gives an error (EIO) in place of an end.
        for (ssize_t count = 0; (count = read(m_reader.get(), buffer.data(), buffer.size())) > 0;) {
            const std::scoped_lock lock(m_mutex);
            m_text.append(buffer.data(), static_cast<std::size_t>(count));
            m_grown.notify_all();
        }
    }

    FileDescriptor m_reader;
    std::mutex m_mutex;
    std::condition_variable m_grown;
    std::string m_text;
    std::thread m_thread;
};

RunningProgram::RunningProgram(const ProgramSettings& settings)
{
    std::vector<std::string> words{KARVELLO_CLI_PROGRAM};
    words.insert(words.end(), settings.arguments.begin(), settings.arguments.end());
    std::vector<std::string> variables;
    variables.reserve(settings.environment.size());
    for (const auto& [name, value] : settings.environment) {
        variables.push_back(fmt::format("{}={}", name, value));
    }
    const std::vector<char*> arguments = pointersTo(words);
    const std::vector<char*> environment = pointersTo(variables);
    const std::string folder = settings.workingDirectory.empty() ? "/" : settings.workingDirectory;

    Stream output = outputStream(settings);
    const bool onTerminal = settings.messagesOnTerminal || settings.isAttended;
    Stream messages = onTerminal ? makeTerminal(kColumnsOfMessages) : makePipe();
    FileDescriptor input(open("/dev/null", O_RDONLY | O_CLOEXEC));
    if (settings.isAttended) {
        m_keyboard = FileDescriptor(fcntl(messages.reader.get(), F_DUPFD_CLOEXEC, 0));
        input = FileDescriptor(fcntl(messages.writer.get(), F_DUPFD_CLOEXEC, 0));
    }

    m_process = fork();
    if (m_process == 0) {
        // A shell that starts a test in the background lets it ignore these.
        ::signal(SIGINT, SIG_DFL);
        ::signal(SIGTERM, SIG_DFL);
        dup2(input.get(), STDIN_FILENO);
        dup2(messages.writer.get(), STDERR_FILENO);
        dup2(output.writer.get(), STDOUT_FILENO);
        if (settings.outputIsClosed) {
            close(STDOUT_FILENO);
        }
        if (chdir(folder.c_str()) == 0) {
            execve(words.front().c_str(), arguments.data(), environment.data());
        }
        _exit(127);
    }
    EXPECT_GT(m_process, 0);
    output.writer.reset();
    messages.writer.reset();
    input.reset();
    m_output = std::make_unique<Collector>(std::move(output.reader));
    m_messages = std::make_unique<Collector>(std::move(messages.reader));
}

RunningProgram::~RunningProgram()
{
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
}

bool RunningProgram::hasSaid(std::string_view words) const
{
    return hasSaidWhat(testing::HasSubstr(std::string(words)));
}

bool RunningProgram::hasSaidWhat(const testing::Matcher<const std::string&>& words) const
{
    return m_messages->holds(words);
}

void RunningProgram::signal(int number) const
{
    EXPECT_EQ(kill(m_process, number), 0);
}

void RunningProgram::type(std::string_view keys) const
{
    EXPECT_EQ(write(m_keyboard.get(), keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
}

ProgramResult RunningProgram::wait()
{
    ProgramResult result;
    int status = 0;
    EXPECT_EQ(waitpid(m_process, &status, 0), m_process);
    result.end = std::chrono::steady_clock::now();
    m_process = -1;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    result.output = m_output->text();
    result.messages = m_messages->text();
    return result;
}

ProgramResult runProgram(const ProgramSettings& settings)
{
    return RunningProgram(settings).wait();
}

} // namespace KarvelloCLITests
