#include "KarvelloCLI/AppsTexts.h"

#include "Tests/KarvelloCLI/TableSamples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::ReportExportPrivacyMode;
using KarvelloCLITests::homeStyle;
using Platform::RunningApplication;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr Platform::Date kReadAt{10'000};

std::vector<AppsRow> rows()
{
    return appsRows(
        std::vector<RunningApplication>{
            {.displayName = "Notes\n\xFF",
                .bundleIdentifier = "org.example.Notes",
                .processIdentifier = 100,
                .isUserVisible = true,
                .launchDate = Platform::Date{2800},
                .processes = std::vector<Platform::ProcessIdentity>(3),
                .cpuFractionOfTotalCapacity = 0.125,
                .residentMemoryBytes = 2 * 1024 * 1024,
                .memoryFractionOfPhysicalMemory = 0.004},
            {.displayName = "Editor",
                .bundleIdentifier = "editor",
                .processIdentifier = 200,
                .isUserVisible = true,
                .processes = {{200, 1}},
                .residentMemoryBytes = 5 * 1024 * 1024},
            {.displayName = "GNOME Shell",
                .bundleIdentifier = "org.gnome.Shell",
                .processIdentifier = 300,
                .isUserVisible = true,
                .processes = {{300, 1}}},
            {.displayName = "syncd", .processIdentifier = 400, .processes = {{400, 1}}},
            {.displayName = "karvello-cli", .processIdentifier = 7, .processes = {{7, 1}}},
        },
        7);
}

std::string table(std::size_t columns, bool isVerbose = false)
{
    return appsTable(rows(), kReadAt, false, homeStyle(columns, isVerbose));
}

} // namespace

TEST(AppsTexts, TheWidestTableTellsEverythingTheHeaviestFirst)
{
    EXPECT_THAT(table(140),
        HasSubstr("CPU  Memory  Share  PID  Processes  Running  Name          Identifier         Quit\n"
                  "  -    5 MB      -  200          1        -  Editor        editor             not from here\n"
                  "12%    2 MB    <1%  100          3      2 h  Notes\\n\\xff   org.example.Notes  not from here\n"));
}

TEST(AppsTexts, NarrowerTablesTellLess)
{
    EXPECT_THAT(table(80), HasSubstr("CPU  Memory  PID  Running  Name          Quit\n"));
    EXPECT_THAT(table(60), HasSubstr("CPU  Memory  Name          Quit\n"));
}

TEST(AppsTexts, EachReasonHasItsWords)
{
    const auto text = table(80, true);
    EXPECT_THAT(text, HasSubstr("GNOME Shell   part of the desktop\n"));
    EXPECT_THAT(text, HasSubstr("syncd         in the background\n"));
    EXPECT_THAT(text, HasSubstr("karvello-cli  this program\n"));
    EXPECT_THAT(text, HasSubstr("“Not from here”: it may be asked"));
    EXPECT_THAT(text, HasSubstr("Nobody was asked to quit."));
}

TEST(AppsTexts, TheBackgroundIsOnlyCountedUnlessAskedFor)
{
    EXPECT_THAT(table(80), Not(HasSubstr("syncd")));
    EXPECT_THAT(table(80), HasSubstr("1 more program in the background; --verbose lists them.\n"));
    EXPECT_THAT(table(80, true), Not(HasSubstr("more program")));
}

TEST(AppsTexts, NoLineIsWiderThanTheTerminal)
{
    auto long_ = rows();
    long_[0].candidate.displayName = std::string(200, 'n');
    long_[0].candidate.bundleIdentifier = std::string(200, 'i');
    for (std::size_t columns = 40; columns <= 160; columns += 5) {
        const auto text = appsTable(long_, kReadAt, false, homeStyle(columns, true));
        for (std::size_t begin = 0; begin < text.size();) {
            const auto end = text.find('\n', begin);
            const TerminalText line(text.substr(begin, end - begin), TerminalText::Kind::sentence);
            EXPECT_LE(line.columns(), columns) << line.string();
            begin = end + 1;
        }
    }
}

TEST(AppsTexts, NobodyRunningIsSaid)
{
    EXPECT_THAT(
        appsTable({}, kReadAt, false, homeStyle(80)), HasSubstr("No application that the desktop knows is running.\n"));
}

TEST(AppsTexts, ARedactedListNamesNobody)
{
    for (const auto& text : {appsTable(rows(), kReadAt, true, homeStyle(140, true)),
             *appsJSON(rows(), kReadAt, ReportExportPrivacyMode::redacted),
             appsCSV(rows(), ReportExportPrivacyMode::redacted)}) {
        for (const auto* const name : {"Notes", "Editor", "editor", "GNOME", "syncd", "org."}) {
            EXPECT_THAT(text, Not(HasSubstr(name)));
        }
    }
}

TEST(AppsTexts, JSONTellsTheTruthOfTheCommandLine)
{
    const auto json = appsJSON(rows(), kReadAt, ReportExportPrivacyMode::full);
    ASSERT_TRUE(json);
    for (const auto* const member : {"\"canRequestQuitOtherApplications\" : false", "\"reason\" : \"unknown\"",
             "\"reason\" : \"sandboxUnavailable\"", "\"reason\" : \"protectedSystemApplication\"",
             "\"id\" : \"org.example.notes:100\"", "\"launchedAt\" : \"2001-01-01T00:46:40.000Z\"",
             "\"processCount\" : 3", "\"cpuFractionOfTotalCapacity\" : 0.125",
             "\"displayName\" : \"Notes\\n\\\\xFF\""}) {
        EXPECT_THAT(*json, HasSubstr(member));
    }
    EXPECT_THAT(*json, Not(HasSubstr("\"isActionable\" : true")));
}

TEST(AppsTexts, CSVHasARowForEach)
{
    const auto csv = appsCSV(rows(), ReportExportPrivacyMode::full);
    EXPECT_THAT(csv, HasSubstr("\neditor:200,Editor,editor,200,1,,,5242880,,false,sandboxUnavailable\n"));
    EXPECT_THAT(csv, HasSubstr("\npid:400,syncd,,400,1,,,,,false,notUserVisible\n"));
}
