#include "Tests/KarvelloCLI/ScanProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace KarvelloCLITests {

namespace {

using testing::HasSubstr;
using testing::Not;

/// Its own for each process: tests that run at the same time see the companions of each other.
const std::string kApplication = "org.example.Notes" + std::to_string(getpid());

/// A process of its own that runs until the test ends, with a variable that says whose it is.
class Companion {
public:
    explicit Companion(const std::string& variable)
    {
        m_process = fork();
        if (m_process == 0) {
            std::string copy = variable;
            char name[] = "sleep";
            char time[] = "600";
            char* const arguments[]{name, time, nullptr};
            char* const environment[]{copy.data(), nullptr};
            execve("/bin/sleep", arguments, environment);
            _exit(127);
        }
        // Its variables are there as soon as it has become the other program.
        const auto path = "/proc/" + std::to_string(m_process) + "/comm";
        for (int attempt = 0; attempt < 1000; ++attempt) {
            std::string program;
            std::ifstream(path) >> program;
            if (program == "sleep") {
                return;
            }
            usleep(10'000);
        }
        ADD_FAILURE() << "the companion did not start";
    }
    ~Companion()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;

private:
    pid_t m_process = -1;
};

class SystemProgram : public ScanProgram {
protected:
    void addDesktopFile()
    {
        m_tree.add("home/.local/share/applications/" + kApplication
            + ".desktop "
              "text=\"[Desktop Entry]\\nType=Application\\nName=Notes\\n\"");
    }
    /// What a run writes that is interrupted as soon as there are three lines.
    std::string watched(const std::vector<std::string>& arguments)
    {
        auto settings = with(arguments);
        settings.outputPath = path("watched");
        m_tree.add("watched");
        RunningProgram program(settings);
        const auto written = [&] {
            std::ifstream file(settings.outputPath, std::ios::binary);
            return std::string(std::istreambuf_iterator<char>(file), {});
        };
        // A document of JSON has many lines.
        const std::ptrdiff_t enough = std::ranges::find(arguments, "json") == arguments.end() ? 3 : 40;
        for (int attempt = 0; attempt < 3000 && std::ranges::count(written(), '\n') < enough; ++attempt) {
            usleep(10'000);
        }
        program.signal(SIGINT);
        EXPECT_EQ(program.wait().status, 130);
        return written();
    }
    std::string hint() const
    {
        return "BAMF_DESKTOP_FILE_HINT=" + path("home/.local/share/applications/" + kApplication + ".desktop");
    }
};

} // namespace

TEST_F(SystemProgram, StatusTellsTheStateOfTheMachine)
{
    const auto result = run({"status"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.messages, "");
    for (const auto* const label :
        {"\nProcessors  ", "\nMemory      ", "\nThermal     ", "\nUptime      ", "\nDisk        "}) {
        EXPECT_THAT(result.output, HasSubstr(label));
    }
    EXPECT_THAT(run({"status", "--format", "json"}).output, HasSubstr("\"physicalMemoryBytes\" : "));
    EXPECT_THAT(run({"status", "--format", "csv"}).output, HasSubstr("captured_at,"));
}

TEST_F(SystemProgram, StatusGoesIntoAFile)
{
    EXPECT_EQ(run({"status", "--format", "json", "--output", "status.json"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(path("status.json")));
}

TEST_F(SystemProgram, WatchingWritesALineForEachReadingAndEndsWithTheInterruption)
{
    const auto output = watched({"status", "--watch", "0.1"});
    EXPECT_GE(std::ranges::count(output, '\n'), 2);
    EXPECT_THAT(output, Not(HasSubstr("\x1b")));
    EXPECT_TRUE(output.ends_with("\n"));
}

TEST_F(SystemProgram, WatchingAsCSVHasOneHeader)
{
    const auto output = watched({"status", "--watch", "0.1", "--format", "csv"});
    EXPECT_TRUE(output.starts_with("captured_at"));
    EXPECT_EQ(output.rfind("captured_at"), 0U);
}

TEST_F(SystemProgram, WatchingAsJSONHasADocumentForEachReading)
{
    const auto output = watched({"status", "--watch", "0.1", "--format", "json"});
    EXPECT_THAT(output, HasSubstr("}\n{\n"));
}

TEST_F(SystemProgram, WatchingOnATerminalRewritesOneLine)
{
    auto settings = with({"status", "--watch", "0.1"});
    settings.terminalColumns = 80;
    RunningProgram program(settings);
    // What comes on the terminal is not known before the end.
    usleep(3'000'000);
    program.signal(SIGTERM);
    const auto result = program.wait();
    EXPECT_EQ(result.status, 130);
    EXPECT_THAT(result.output, HasSubstr("\r\x1b[K"));
    EXPECT_EQ(std::ranges::count(result.output, '\n'), 1);
}

TEST_F(SystemProgram, WatchingWithoutAReaderEnds)
{
    auto settings = with({"status", "--watch", "0.1"});
    settings.outputHasNoReader = true;
    EXPECT_EQ(runProgram(settings).status, 1);
}

TEST_F(SystemProgram, WrongWordsAreRefused)
{
    EXPECT_EQ(run({"status", "--watch", "0"}).status, 2);
    EXPECT_EQ(run({"status", "--watch", "nan"}).status, 2);
    EXPECT_EQ(run({"status", "--watch", "1", "--output", "x"}).status, 2);
    EXPECT_EQ(run({"apps", "--watch", "1"}).status, 2);
}

TEST_F(SystemProgram, AppsListsWhoRunsAndAsksNobody)
{
    addDesktopFile();
    const Companion notes(hint());
    const auto result = run({"apps"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("  Notes"));
    EXPECT_THAT(result.output, HasSubstr("  not from here\n"));
    EXPECT_THAT(result.output, HasSubstr("karvello-cli  this program\n"));
    EXPECT_THAT(run({"apps", "--format", "json"}).output, HasSubstr("\"bundleIdentifier\" : \"" + kApplication + "\""));
}

TEST_F(SystemProgram, AScanTellsThatTheOwnerOfACacheRuns)
{
    addDesktopFile();
    m_tree.add("home/.var/app/" + kApplication
        + "/cache/blob size=64K\n"
          "home/.var/app/org.example.Other/cache/blob size=64K\n");
    const std::string words = "Notes is running and may be using it";
    EXPECT_THAT(run({"scan", "--mode", "aggressive"}).output, Not(HasSubstr("is running")));
    const Companion notes(hint());
    const auto table = run({"scan", "--mode", "aggressive"}).output;
    EXPECT_THAT(table, HasSubstr(words));
    EXPECT_EQ(table.find("is running"), table.rfind("is running"));
    const auto redacted = run({"scan", "--mode", "aggressive", "--redacted"}).output;
    EXPECT_THAT(redacted, HasSubstr("its application is running and may be using it"));
    EXPECT_THAT(redacted, Not(HasSubstr("Notes")));
    EXPECT_THAT(run({"clean", "--mode", "aggressive", "--all"}).messages, HasSubstr("no terminal to ask on"));
    m_tree.add("other/.var/app/" + kApplication + "/cache/blob size=64K");
    EXPECT_THAT(run({"scan", "--mode", "aggressive", "--home", "other"}).output, Not(HasSubstr("is running")))
        << "of another home nobody knows";
}

} // namespace KarvelloCLITests
