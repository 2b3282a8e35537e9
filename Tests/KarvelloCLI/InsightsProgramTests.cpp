#include "Tests/KarvelloCLI/RunningProgram.h"
#include "Tests/KarvelloCLI/ScanProgramFixture.h"
#include "Tests/KarvelloCLI/SlowScan.h"
#include "Tests/Support/TemporaryTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <chrono>
#include <csignal>
#include <map>
#include <string>
#include <vector>

using namespace KarvelloCLITests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

/// The command on a home of its own, with limits that suit its small files.
class InsightsProgram : public testing::Test {
protected:
    static constexpr std::string_view kHome = R"(
home/
    Documents/
        film size=300K age=40d
        "bad\xFF\e[2J\nname" size=100K
    Downloads/
        copy size=300K
        setup.sh size=8K
        tool.pkg size=4K
        fresh size=200K age=1m
        film.crack size=16K
    Music/
elsewhere/
    big size=500K
)";

    [[nodiscard]] ProgramSettings with(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), {"insights", "--min-large", "64K", "--min-duplicate", "64K"});
        return settingsIn(m_tree, std::move(arguments));
    }

    [[nodiscard]] ProgramResult run(std::vector<std::string> arguments) const
    {
        return runProgram(with(std::move(arguments)));
    }

    [[nodiscard]] nlohmann::json json(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.end(), {"--format", "json"});
        const ProgramResult result = run(std::move(arguments));
        EXPECT_EQ(result.status, 0) << result.messages;
        return nlohmann::json::parse(result.output);
    }

    [[nodiscard]] std::string path(std::string_view relative) const { return m_tree.path(relative); }

    TestSupport::TemporaryTree m_tree{kHome};
};

} // namespace

TEST_F(InsightsProgram, ShowsWhereTheSpaceWent)
{
    const ProgramResult result = run({});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.messages, IsEmpty());
    EXPECT_THAT(result.output, StartsWith("Insights of " + path("home") + ": 20"));
    EXPECT_THAT(result.output, HasSubstr("Size map: 3 folders, 928 KB\n"));
    EXPECT_THAT(result.output, HasSubstr("   528 KB      5  ~/Downloads  ██████"));
    EXPECT_THAT(result.output, HasSubstr("Large files, 64 KB and more: 3 files, 700 KB\n"));
    EXPECT_THAT(result.output, HasSubstr("bad\\xff\\x1b[2J\\nname"));
    EXPECT_THAT(result.output, HasSubstr("Older downloads: 4 files, 328 KB\n"));
    EXPECT_THAT(result.output,
        HasSubstr("Duplicates, 64 KB and more: 1 set, 2 files; the extra copies hold 300 KB\n"
                  "  300 KB  in 1 extra copy of a file of 300 KB\n"
                  "    keep   40 d  ~/Documents/film\n"
                  "                 because it lies in the better place\n"
                  "    extra  30 d  ~/Downloads/copy\n"));
    EXPECT_THAT(result.output, HasSubstr("Suspicious filename pattern: 1 item, 16 KB\n"));
    EXPECT_THAT(result.output, HasSubstr("\nSystem: "));
    EXPECT_THAT(result.output, HasSubstr("  1  Recently modified\n"));
    EXPECT_THAT(result.output, Not(HasSubstr("\x1b"))) << "no colour without a terminal";
    EXPECT_THAT(result.output, Not(HasSubstr("Cut short")));
}

TEST_F(InsightsProgram, BarsArePlainWithoutALocaleOfUTF8)
{
    ProgramSettings settings = with({"--only", "map"});
    settings.environment["LC_ALL"] = "C";
    const ProgramResult result = runProgram(settings);
    EXPECT_THAT(result.output, HasSubstr("~/Downloads  ######"));
    EXPECT_THAT(result.output, Not(HasSubstr("█")));
}

TEST_F(InsightsProgram, WorksOutOnePartAloneAndLeavesTheOthersEmpty)
{
    const std::map<std::string, std::string> keyOfPart{{"map", "heatmapItems"}, {"large", "largeFiles"},
        {"downloads", "downloadFiles"}, {"duplicates", "duplicateGroups"}, {"security", "securityFindings"}};
    const auto whole = json({});
    for (const auto& [only, itsKey] : keyOfPart) {
        const auto document = json({"--only", only});
        for (const auto& [part, key] : keyOfPart) {
            EXPECT_EQ(document.at(key), part == only ? whole.at(key) : nlohmann::json::array()) << only << ' ' << key;
            EXPECT_FALSE(whole.at(key).empty()) << key;
        }
    }
}

TEST_F(InsightsProgram, LooksOnlyAtTheFoldersThatAreNamed)
{
    const auto document = json({"--root", "elsewhere"});
    ASSERT_EQ(document.at("heatmapItems").size(), 1U);
    EXPECT_EQ(document.at("heatmapItems")[0].at("path"), path("elsewhere"));
    EXPECT_EQ(document.at("largeFiles")[0].at("path"), path("elsewhere/big"));
    EXPECT_EQ(json({"--root", "elsewhere", "--root", "elsewhere", "--home", "home"}).at("heatmapItems").size(), 4U)
        << "the home comes with them when it is asked for";
}

TEST_F(InsightsProgram, LimitsAndAgesAreThoseOfTheOptions)
{
    EXPECT_EQ(json({"--min-large", "200K"}).at("largeFiles").size(), 2U);
    EXPECT_EQ(json({"--min-age", "0"}).at("largeFiles").size(), 4U);
    EXPECT_TRUE(json({"--min-duplicate", "400K"}).at("duplicateGroups").empty());
    m_tree.add("home/Music/\n    file count=200 size=1");
    const auto document = json({"--max-visits", "128"});
    EXPECT_EQ(document.at("summary").at("isTruncated"), true);
    const ProgramResult result = run({"--max-visits", "128"});
    EXPECT_EQ(result.status, 0) << "a limit is no failure";
    EXPECT_THAT(result.output, HasSubstr("\n> "));
    EXPECT_THAT(result.output, HasSubstr("Cut short\n  Not every item was visited"));
    EXPECT_THAT(run({"--max-visits", "128", "--only", "large"}).output, HasSubstr("Cut short\n  Not every item"))
        << "the map is not shown, and what it tells of the walk holds all the same";
    EXPECT_THAT(run({"--max-recent", "0"}).output, HasSubstr("--min-age 0 lists them all."));
    EXPECT_THAT(run({"--max-recent", "0", "--only", "duplicates"}).output, Not(HasSubstr("Cut short")))
        << "no list of files was made";
    EXPECT_THAT(run({"--max-hash-files", "1"}).output,
        HasSubstr(
            "Cut short\n  The search for duplicates ended before the smallest files: it reads at most 1 file and "))
        << "and nothing else was cut";
}

TEST_F(InsightsProgram, ARedactedResultTellsNoName)
{
    for (const std::string format : {"table", "json", "csv"}) {
        const ProgramResult result =
            run({"--redacted", "--verbose", "--format", format, "--root", "home/Downloads", "--home", "home"});
        EXPECT_EQ(result.status, 0);
        for (const char* const secret : {"home/", "film", "copy\"", "setup", "fresh", "Documents"}) {
            EXPECT_THAT(result.output, Not(HasSubstr(secret))) << format;
        }
        EXPECT_THAT(result.output, HasSubstr("heatmap-1>"));
    }
}

TEST_F(InsightsProgram, ExitCodesTellHowItWent)
{
    EXPECT_EQ(run({"--only", "everything"}).status, 2);
    EXPECT_EQ(run({"--output", "no/file"}).status, 2);
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"--root", "missing"}, {"--root", "/usr"}, {"--root", "elsewhere/big"}, {"--home", "missing"}}) {
        const ProgramResult result = run(words);
        EXPECT_EQ(result.status, 3) << words.back();
        EXPECT_THAT(result.messages, StartsWith("karvello-cli: ")) << words.back();
        EXPECT_THAT(result.output, Not(HasSubstr("Size map"))) << words.back();
    }
    const ProgramResult partly = run({"--root", "elsewhere", "--root", "missing"});
    EXPECT_EQ(partly.status, 1);
    EXPECT_THAT(partly.output, HasSubstr("Large files, 64 KB and more: 1 file, 500 KB\n"));
    EXPECT_THAT(partly.messages, HasSubstr("Not scanned: Folder does not exist: " + path("missing")));
    EXPECT_EQ(run({"--home", "home", "--root", "missing"}).status, 1);
}

TEST_F(InsightsProgram, AHomeWithoutFoldersIsToldSo)
{
    m_tree.add("bare/");
    const ProgramResult result = run({"--home", "bare"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("This home has none of the usual folders"));
    EXPECT_THAT(result.output, Not(HasSubstr("Skipped")));
}

TEST_F(InsightsProgram, ChangesNothing)
{
    const auto listing = [&] { return runProgram(with({"--format", "csv", "--min-age", "0"})).output; };
    const auto withoutMachine = [](std::string text) {
        const std::size_t begin = text.find("macInsights,system_snapshot");
        return text.erase(begin, text.find('\n', begin) - begin);
    };
    EXPECT_EQ(withoutMachine(listing()), withoutMachine(listing()));
}

TEST_F(InsightsProgram, ShowsProgressOnATerminalAndLeavesNoLineBehind)
{
    const SlowScan slow(150);
    ProgramSettings settings = with({});
    settings.arguments = slow.arguments("insights", {"--format", "csv"});
    settings.messagesOnTerminal = true;
    const ProgramResult result = runProgram(settings);
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.messages, HasSubstr(" of 151, "));
    EXPECT_THAT(result.messages, HasSubstr("items looked at"));
    EXPECT_TRUE(result.messages.ends_with("\r\x1b[K")) << "the line is taken off at the end";
}

TEST_F(InsightsProgram, CtrlCGivesATruePartialAccount)
{
    const SlowScan slow(1000);
    for (const std::string format : {"table", "json"}) {
        ProgramSettings settings = with({});
        settings.arguments = slow.arguments("insights", {"--format", format});
        settings.messagesOnTerminal = true;
        RunningProgram program(settings);
        ASSERT_TRUE(program.hasSaid("items looked at"));
        const auto sent = std::chrono::steady_clock::now();
        program.signal(SIGINT);
        const ProgramResult result = program.wait();
        EXPECT_EQ(result.status, 130);
        EXPECT_LT(result.end - sent, std::chrono::seconds(2)) << "a stop is not waited for";
        EXPECT_THAT(plain(result.messages), HasSubstr("karvello-cli: Interrupted: the result is incomplete.\n"));
        if (format == "table") {
            EXPECT_THAT(result.output, HasSubstr("\nIncomplete: interrupted. "));
            EXPECT_THAT(result.output, HasSubstr("\nSize map: "));
        } else {
            const auto document = nlohmann::json::parse(result.output);
            EXPECT_LT(document.at("heatmapItems").size(), 1000U) << "the scan was not interrupted at all";
        }
    }
}
