#pragma once

#include "Platform/Files/FileDescriptor.h"

#include <gmock/gmock.h>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <sys/types.h>

namespace KarvelloCLITests {

/// How a run ended, and what it wrote.
struct ProgramResult {
    /// The exit status, or minus the number of the signal that ended it.
    int status = -1;
    std::string output;
    std::string messages;
    std::chrono::steady_clock::time_point end;
};

struct ProgramSettings {
    std::vector<std::string> arguments;
    /// The whole environment: nothing of this process's own comes through.
    std::map<std::string, std::string> environment;
    /// Empty: the root folder.
    std::string workingDirectory;
    /// Standard output is a terminal of so many columns.
    std::optional<unsigned short> terminalColumns;
    /// Standard error is a terminal, 80 columns wide.
    bool messagesOnTerminal = false;
    /// A person sits at the program: standard input and standard error are one terminal, 80 columns wide. Otherwise the
    /// input is empty.
    bool isAttended = false;
    /// Standard output goes to this device or file instead.
    std::string outputPath;
    /// Nobody reads standard output; the reader is gone before the program starts.
    bool outputHasNoReader = false;
    bool outputIsClosed = false;
};

/// The built program, running in a process of its own with a small environment. Signals go to that process alone.
class RunningProgram {
public:
    explicit RunningProgram(const ProgramSettings& settings);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Waits until `words` have come on standard error; false if they do not within some seconds.
    [[nodiscard]] bool hasSaid(std::string_view words) const;
    [[nodiscard]] bool hasSaidWhat(const testing::Matcher<const std::string&>& words) const;
    void signal(int number) const;
    /// What the person types; "\x04" alone is the end of the input.
    void type(std::string_view keys) const;
    /// Waits for its end.
    ProgramResult wait();

private:
    class Collector;

    pid_t m_process = -1;
    Platform::FileDescriptor m_keyboard;
    std::unique_ptr<Collector> m_output;
    std::unique_ptr<Collector> m_messages;
};

ProgramResult runProgram(const ProgramSettings& settings);

} // namespace KarvelloCLITests
