#include "KarvelloCLI/ProgressLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using CleanerCore::StorageScanProgress;
using KarvelloCLI::HomePathAbbreviation;
using KarvelloCLI::ProgressLine;
using KarvelloCLI::TerminalText;
using namespace std::chrono_literals;

namespace {

StorageScanProgress someProgress()
{
    StorageScanProgress progress;
    progress.currentURL = Platform::FileURL("/home/ada/.cache/pip/http-v2/0/a/b/c/d/e/0ab1c2d3e4f5a6b7c8d9e0f1");
    progress.completedItems = 1234;
    progress.foundCandidates = 37;
    progress.skippedItems = 12;
    progress.fractionCompleted = 0.42;
    return progress;
}

const HomePathAbbreviation kPaths(Platform::FileURL::folder("/home/ada"));

/// A line whose clock and screen belong to the test.
struct WatchedLine {
    explicit WatchedLine(ProgressLine::Style style)
        : line({
              .style = style,
              .paths = kPaths,
              .columns =
                  [this] {
                      ++timesMeasured;
                      return columns;
                  },
              .write = [this](std::string_view text) { written.emplace_back(text); },
              .now = [this] { return now; },
          })
    {
    }

    std::size_t columns = 80;
    int timesMeasured = 0;
    std::vector<std::string> written;
    ProgressLine::Clock::time_point now{1h};
    ProgressLine line;
};

} // namespace

TEST(ProgressLine, TellsPercentageCountsAndPath)
{
    const std::string line = ProgressLine::line(someProgress(), 200, kPaths);
    EXPECT_EQ(line,
        " 42%  1234 items looked at, 37 found, 12 skipped  "
        "~/.cache/pip/http-v2/0/a/b/c/d/e/0ab1c2d3e4f5a6b7c8d9e0f1");
}

TEST(ProgressLine, FitsEveryWidth)
{
    for (std::size_t columns = 20; columns < 160; ++columns) {
        const std::string line = ProgressLine::line(someProgress(), columns, kPaths);
        EXPECT_LE(TerminalText(line).columns(), columns);
        EXPECT_TRUE(line.starts_with(" 42%")) << line;
    }
    EXPECT_NE(ProgressLine::line(someProgress(), 79, kPaths).find("…"), std::string::npos);
    EXPECT_NE(ProgressLine::line(someProgress(), 39, kPaths).find("~/"), std::string::npos)
        << "a narrow line gives up counts before it gives up the path";
}

TEST(ProgressLine, ShowsNoPathWithoutAbbreviation)
{
    EXPECT_EQ(
        ProgressLine::line(someProgress(), 200, std::nullopt), " 42%  1234 items looked at, 37 found, 12 skipped");
}

TEST(ProgressLine, EscapesTheNamesOfFiles)
{
    auto progress = someProgress();
    progress.currentURL = Platform::FileURL("/home/ada/\x1b[2J\n");
    const std::string line = ProgressLine::line(progress, 200, kPaths);
    EXPECT_EQ(line.find('\x1b'), std::string::npos);
    EXPECT_NE(line.find("~/\\x1b[2J\\n"), std::string::npos);
}

TEST(ProgressLine, RewritesOneLineAndTakesItOff)
{
    WatchedLine watched(ProgressLine::Style::rewritten);
    watched.now += 1s;
    watched.line.report(someProgress());
    watched.line.clear();
    watched.line.clear();
    ASSERT_EQ(watched.written.size(), 2U);
    EXPECT_TRUE(watched.written[0].starts_with("\r\x1b[K 42%")) << watched.written[0];
    EXPECT_EQ(watched.written[0].find('\n'), std::string::npos);
    EXPECT_EQ(watched.written[1], "\r\x1b[K");
}

TEST(ProgressLine, LeavesTheLastColumnFree)
{
    WatchedLine watched(ProgressLine::Style::rewritten);
    watched.columns = 60;
    watched.now += 1s;
    watched.line.report(someProgress());
    ASSERT_EQ(watched.written.size(), 1U);
    EXPECT_EQ(TerminalText(watched.written[0].substr(4)).columns(), 59U);
}

TEST(ProgressLine, ComesAtMostTwelveTimesASecond)
{
    WatchedLine watched(ProgressLine::Style::rewritten);
    for (int millisecond = 0; millisecond < 10'000; ++millisecond) {
        watched.now += 1ms;
        watched.line.report(someProgress());
    }
    EXPECT_LE(watched.written.size(), 120U);
    EXPECT_GE(watched.written.size(), 100U);
}

TEST(ProgressLine, DoesNothingButLookAtTheClockBetweenTwoLines)
{
    WatchedLine watched(ProgressLine::Style::rewritten);
    for (int report = 0; report < 1000; ++report) {
        watched.line.report(someProgress());
    }
    EXPECT_EQ(watched.timesMeasured, 0);
    EXPECT_TRUE(watched.written.empty()) << "a quick scan shows no line at all";
    watched.line.clear();
    EXPECT_TRUE(watched.written.empty()) << "nothing was shown, so nothing is to be taken off";
}

TEST(ProgressLine, AppendsWholeLinesSlowlyForALog)
{
    WatchedLine watched(ProgressLine::Style::appended);
    for (int step = 0; step < 100; ++step) {
        watched.now += 100ms;
        watched.line.report(someProgress());
    }
    watched.line.clear();
    EXPECT_EQ(watched.written.size(), 5U);
    for (const std::string& text : watched.written) {
        EXPECT_TRUE(text.ends_with('\n'));
        EXPECT_EQ(text.find('\x1b'), std::string::npos);
    }
}

TEST(ProgressLine, StaysSilentWhenItIsOff)
{
    WatchedLine watched(ProgressLine::Style::none);
    watched.now += 1h;
    watched.line.report(someProgress());
    EXPECT_TRUE(watched.written.empty());
}

TEST(ProgressLine, TellsTheFolderAndTheCountOfAnInsightScan)
{
    const CleanerCore::MacStorageInsightScanner::Progress progress{
        .root = Platform::FileURL::folder("/home/ada/Down\nloads"),
        .completedRoots = 1,
        .totalRoots = 8,
        .visitedItems = 1234,
    };
    EXPECT_EQ(ProgressLine::line(progress, 200, kPaths), "folder 2 of 8, 1234 items looked at  ~/Down\\nloads");
    EXPECT_EQ(ProgressLine::line(progress, 200, std::nullopt), "folder 2 of 8, 1234 items looked at");
    auto reading = progress;
    reading.completedRoots = 8;
    reading.readBytes = 5 * 1'048'576;
    EXPECT_EQ(ProgressLine::line(reading, 200, kPaths), "1234 items looked at, comparing files, 5 MB read");
    for (std::size_t columns = 20; columns < 80; ++columns) {
        for (const auto& each : {progress, reading}) {
            const TerminalText line(ProgressLine::line(each, columns, kPaths), TerminalText::Kind::sentence);
            EXPECT_LE(line.columns(), columns);
        }
    }
}

TEST(ProgressLine, TellsHowManyItemsWereDealtWith)
{
    const CleanerCore::ItemProgress progress{.doneItems = 33, .allItems = 1200};
    EXPECT_EQ(ProgressLine::line(progress, 80, kPaths), "  2%  33 of 1200 items");
    EXPECT_EQ(ProgressLine::line(progress, 10, kPaths), "  2%");
    EXPECT_EQ(ProgressLine::line({.doneItems = 1, .allItems = 1}, 80, kPaths), "100%  1 of 1 item");
}
