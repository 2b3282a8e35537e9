#include "KarvelloCLI/StatusTexts.h"

#include "Tests/KarvelloCLI/TableSamples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using namespace KarvelloCLI;
using KarvelloCLITests::homeStyle;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr std::uint64_t kGigabyte = std::uint64_t{1} << 30U;

TextStyle colouredStyle()
{
    auto style = homeStyle(80);
    style.painter = Painter(true);
    return style;
}

StatusReading reading()
{
    return {.snapshot = {.capturedAt = {0},
                .physicalMemoryBytes = 16 * kGigabyte,
                .usedMemoryBytes = 4 * kGigabyte,
                .memoryPressure = "Normal",
                .cpuLoadAverage = 1.5,
                .normalizedCPULoad = 0.23,
                .processorCount = 8,
                .activeProcessorCount = 8,
                .thermalState = "Nominal",
                .uptime = 7200,
                .temperatureDetail = "a sentence"},
        .disk = Platform::VolumeCapacity{
            .total = 500 * std::int64_t{kGigabyte}, .available = 50 * std::int64_t{kGigabyte}}};
}

} // namespace

TEST(StatusTexts, TheTableTellsEachFigure)
{
    const auto text = statusTable(reading(), homeStyle(80));
    EXPECT_THAT(text, HasSubstr("\nProcessors  23% busy, load 1.50 on 8 processors\n"));
    EXPECT_THAT(text, HasSubstr("\nMemory      4 GB of 16 GB used (25%), pressure normal\n"));
    EXPECT_THAT(text, HasSubstr("\nThermal     nominal\n"));
    EXPECT_THAT(text, HasSubstr("\nUptime      2 h\n"));
    EXPECT_THAT(text, HasSubstr("\nDisk        50 GB of 500 GB free where your home is\n"));
}

TEST(StatusTexts, UnknownIsSaidAsUnknown)
{
    auto unknown = reading();
    unknown.snapshot.physicalMemoryBytes = 0;
    unknown.snapshot.usedMemoryBytes = 0;
    unknown.snapshot.memoryPressure = "Unknown";
    unknown.snapshot.thermalState = "Unknown";
    unknown.snapshot.uptime = 0;
    unknown.disk = std::nullopt;
    const auto text = statusTable(unknown, homeStyle(80));
    for (const auto* const line :
        {"Memory      unknown\n", "Thermal     unknown\n", "Uptime      unknown\n", "Disk        unknown\n"}) {
        EXPECT_THAT(text, HasSubstr(line));
    }
    EXPECT_THAT(
        statusLine(unknown, homeStyle(80)), HasSubstr("memory - unknown  load 1.50  thermal unknown  disk unknown\n"));
    EXPECT_THAT(*statusJSON(unknown), Not(HasSubstr("homeVolume")));
}

TEST(StatusTexts, TheTableTellsOfProcessorsThatRest)
{
    auto resting = reading();
    resting.snapshot.activeProcessorCount = 6;
    EXPECT_THAT(statusTable(resting, homeStyle(80)), HasSubstr("on 6 of 8 processors\n"));
}

TEST(StatusTexts, TheTableFitsNarrowTerminals)
{
    const auto text = statusTable(reading(), homeStyle(40));
    EXPECT_THAT(text, HasSubstr("\nMemory      4 GB of 16 GB used (25%),\n            pressure normal\n"));
}

TEST(StatusTexts, WhatWantsAttentionHasAColour)
{
    auto pressed = reading();
    EXPECT_THAT(statusTable(pressed, colouredStyle()), Not(HasSubstr("\x1b[1;33m")));
    pressed.snapshot.memoryPressure = "High";
    EXPECT_THAT(statusTable(pressed, colouredStyle()), HasSubstr("\x1b[1;33m4 GB of 16 GB"));
}

TEST(StatusTexts, JSONHasEveryField)
{
    const auto json = statusJSON(reading());
    ASSERT_TRUE(json);
    for (const auto* const member :
        {"\"capturedAt\" : \"2001-01-01T00:00:00.000Z\"", "\"freeMemoryBytes\" : 12884901888",
            "\"normalizedCPULoad\" : 0.23", "\"temperatureDetail\" : \"a sentence\"", "\"thermalState\" : \"Nominal\"",
            "\"availableBytes\" : 53687091200", "\"uptime\" : 7200", "\"activeProcessorCount\" : 8"}) {
        EXPECT_THAT(*json, HasSubstr(member));
    }
    EXPECT_TRUE(json->ends_with("}\n"));
}

TEST(StatusTexts, CSVHasARowForTheHeader)
{
    EXPECT_THAT(
        statusCSVHeader(CleanerCore::ReportExportPrivacyMode::full), HasSubstr("captured_at,physical_memory_bytes"));
    EXPECT_EQ(statusCSVRow(reading()),
        "2001-01-01T00:00:00.000Z,17179869184,4294967296,12884901888,Normal,1.5,0.23,8,8,Nominal,7200,536870912000,"
        "53687091200\n");
}

TEST(StatusTrend, ShowsTheCourseOfTheLastReadings)
{
    StatusTrend trend(SparkGlyphs::blocks);
    auto now = reading();
    now.snapshot.normalizedCPULoad = 0;
    (void)trend.line(now, homeStyle(140));
    now.snapshot.normalizedCPULoad = 1;
    const auto line = trend.line(now, homeStyle(140));
    EXPECT_THAT(line, HasSubstr(" ▁█ 100%  memory "));
    EXPECT_THAT(line, HasSubstr(" ▃▃  25% normal  load 1.50  thermal nominal  50 GB free"));
}

TEST(StatusTrend, FitsEveryWidthAndKeepsTheNumbers)
{
    for (std::size_t columns = 40; columns <= 160; ++columns) {
        StatusTrend trend(SparkGlyphs::blocks);
        std::string line;
        for (int round = 0; round < 40; ++round) {
            line = trend.line(reading(), homeStyle(columns));
        }
        EXPECT_LE(TerminalText(line, TerminalText::Kind::sentence).columns(), columns) << line;
        EXPECT_THAT(line, HasSubstr("23%")) << columns;
        EXPECT_THAT(line, HasSubstr("25%")) << columns;
        EXPECT_THAT(line, Not(HasSubstr("…"))) << columns;
    }
}

TEST(Sparkline, HasAStepForEachEighth)
{
    const double fractions[]{-1, 0, 0.124, 0.125, 0.5, 0.874, 0.875, 1, 2};
    EXPECT_EQ(sparkline(fractions, 20, SparkGlyphs::blocks), "▁▁▁▂▅▇███");
    EXPECT_EQ(sparkline(fractions, 20, SparkGlyphs::ascii), "001158899");
}

TEST(Sparkline, KeepsTheNewest)
{
    const double fractions[]{0, 0, 1};
    EXPECT_EQ(sparkline(fractions, 2, SparkGlyphs::ascii), "09");
    EXPECT_EQ(sparkline(fractions, 0, SparkGlyphs::ascii), "");
    EXPECT_EQ(sparkline({}, 5, SparkGlyphs::ascii), "");
}
