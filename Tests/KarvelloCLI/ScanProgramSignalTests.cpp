#include "Tests/KarvelloCLI/ScanProgramFixture.h"
#include "Tests/KarvelloCLI/SlowScan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <chrono>
#include <csignal>
#include <string>
#include <vector>

using namespace KarvelloCLITests;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// Enough for half a minute.
constexpr std::size_t kForever = 1000;
/// Enough for some lines of progress.
constexpr std::size_t kAWhile = 150;

} // namespace

TEST_F(ScanProgram, ProgressStaysOffStandardOutputAndLeavesNoLineBehind)
{
    const SlowScan slow(kAWhile);
    ProgramSettings settings = with(slow.arguments("scan", {"--format", "csv"}));
    settings.messagesOnTerminal = true;
    const ProgramResult result = runProgram(settings);
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("export_kind,"));
    EXPECT_THAT(result.output, Not(HasSubstr("%")));
    const std::size_t first = result.messages.find("\r\x1b[K");
    ASSERT_NE(first, std::string::npos);
    EXPECT_THAT(result.messages.substr(first), HasSubstr("items looked at"));
    EXPECT_TRUE(result.messages.ends_with("\r\x1b[K")) << "the line is taken off at the end";

    settings.arguments.insert(settings.arguments.end(), {"--progress", "never"});
    EXPECT_THAT(runProgram(settings).messages, Not(HasSubstr("looked at")));
}

TEST_F(ScanProgram, CtrlCGivesATruePartialAccount)
{
    const SlowScan slow(kForever);
    for (const std::string format : {"table", "json", "csv"}) {
        ProgramSettings settings = with(slow.arguments("scan", {"--format", format}));
        settings.messagesOnTerminal = true;
        RunningProgram program(settings);
        ASSERT_TRUE(program.hasSaidWhat(ContainsRegex("looked at, [1-9][0-9]* found")));
        const auto sent = std::chrono::steady_clock::now();
        program.signal(SIGINT);
        const ProgramResult result = program.wait();
        EXPECT_EQ(result.status, 130);
        EXPECT_LT(result.end - sent, std::chrono::seconds(2)) << "a stop is not waited for";
        EXPECT_THAT(plain(result.messages), HasSubstr("karvello-cli: Interrupted: the result is incomplete.\n"));
        if (format == "table") {
            EXPECT_THAT(result.output, HasSubstr("\nIncomplete: interrupted. "));
            EXPECT_THAT(result.output, HasSubstr("Reclaimable"));
        } else if (format == "json") {
            const auto document = nlohmann::json::parse(result.output);
            const std::size_t found = document.at("candidates").size();
            EXPECT_LT(found, kForever) << "the scan was not interrupted at all";
            EXPECT_EQ(document.at("summary").at("candidateCount"), found);
        } else {
            EXPECT_TRUE(result.output.ends_with('\n'));
        }
    }
}

TEST_F(ScanProgram, TerminationEndsAScanAsCtrlCDoes)
{
    const SlowScan slow(kForever);
    ProgramSettings settings = with(slow.arguments("scan", {}));
    settings.messagesOnTerminal = true;
    RunningProgram program(settings);
    ASSERT_TRUE(program.hasSaid("items looked at"));
    program.signal(SIGTERM);
    EXPECT_EQ(program.wait().status, 130);
}
