#include "CleanerCore/Export/ScanResultExporter.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "KarvelloCLI/ScanPlan.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/KarvelloCLI/ScanProgramFixture.h"
#include "Tests/Support/FileContents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <array>
#include <filesystem>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

using namespace KarvelloCLITests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ScanProgramExport : public ScanProgram, public testing::WithParamInterface<std::tuple<std::string, bool>> {};

TEST_P(ScanProgramExport, IsByteForByteTheExporters)
{
    using namespace CleanerCore;
    const auto& [format, isRedacted] = GetParam();
    std::vector<std::string> arguments{
        "scan", "--mode", "standard", "--root", path("home/Downloads"), "--format", format};
    if (isRedacted) {
        arguments.emplace_back("--redacted");
    }
    const ProgramResult result = run(arguments);
    ASSERT_EQ(result.status, 0) << result.messages;

    KarvelloCLI::ScanOptions options;
    options.mode = CleanupScanMode::standard;
    options.roots = {path("home/Downloads")};
    const Platform::PosixFileManager files;
    const auto plan = KarvelloCLI::ScanPlan::make(options, m_tree.root(), m_tree.url("home/"), {}, files);
    ASSERT_TRUE(plan);
    const ScanReport report =
        StorageScanner(files).scan(plan->locations, Platform::Date::now(), {}, {}, m_tree.url("home/"));
    std::unordered_set<std::string> selected;
    for (const CleanupCandidate& candidate : report.candidates) {
        if (candidate.isSelectedByDefault) {
            selected.insert(candidate.id);
        }
    }
    const auto expected =
        ScanResultExporter::data(report, selected, *Platform::fromRawValue<ScanResultExportFormat>(format),
            isRedacted ? ReportExportPrivacyMode::redacted : ReportExportPrivacyMode::full, Platform::Date::now());

    ASSERT_TRUE(expected);
    // The two moments of the scans differ, and nothing else may.
    const auto withoutMoments = [](std::string text) {
        for (const std::string_view key : {"\"exportedAt\" : \"", "\"scannedAt\" : \""}) {
            if (const auto position = text.find(key); position != std::string::npos) {
                text.erase(position + key.size(), std::string_view("2026-11-15T22:04:05.123Z").size());
            }
        }
        return text;
    };
    EXPECT_EQ(withoutMoments(result.output), withoutMoments(*expected));
    EXPECT_EQ(result.output.find("big.iso") == std::string::npos, isRedacted);
}

INSTANTIATE_TEST_SUITE_P(Formats, ScanProgramExport, testing::Combine(testing::Values("json", "csv"), testing::Bool()),
    [](const auto& test) { return std::get<0>(test.param) + (std::get<1>(test.param) ? "Redacted" : "Full"); });

TEST_F(ScanProgram, ARedactedTableTellsNoName)
{
    const ProgramResult result = run({"scan", "--mode", "standard", "--root", "elsewhere", "--redacted", "--verbose"});
    EXPECT_EQ(result.status, 0);
    for (const char* const secret : {"home/", "elsewhere", "http-v2", "selfcheck"}) {
        EXPECT_THAT(result.output, Not(HasSubstr(secret)));
    }
    EXPECT_THAT(result.output, HasSubstr("<path:cleanup-candidate-1>"));
}

TEST_F(ScanProgram, WritesToAFileWholly)
{
    m_tree.add("old.json text=old");
    const ProgramResult result = run({"scan", "--format", "json", "--output", "old.json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(nlohmann::json::parse(TestSupport::contentsOf(path("old.json"))).at("kind"), "cleanup");
    EXPECT_EQ(run({"scan", "--output", "/dev/null"}).status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_THAT(run({"scan", "--output", "/dev/stdout"}).output, HasSubstr("http-v2"));
}

TEST_F(ScanProgram, AFullDiskIsToldAndNoCrash)
{
    ProgramSettings settings = with({"scan"});
    settings.outputPath = "/dev/full";
    const ProgramResult toOutput = runProgram(settings);
    EXPECT_EQ(toOutput.status, 1);
    EXPECT_THAT(toOutput.messages, HasSubstr("standard output could not be written: No space left on device."));

    const ProgramResult toFile = run({"scan", "--output", "/dev/full"});
    EXPECT_EQ(toFile.status, 1);
    EXPECT_THAT(toFile.messages, HasSubstr("/dev/full could not be written: No space left on device."));
}

TEST_F(ScanProgram, AReaderThatLeftIsToldAndNoCrash)
{
    for (const std::vector<std::string>& arguments :
        {std::vector<std::string>{"scan"}, {"scan", "--format", "csv"}, {"--help"}}) {
        ProgramSettings settings = with(arguments);
        settings.outputHasNoReader = true;
        const ProgramResult result = runProgram(settings);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.messages, HasSubstr("Broken pipe"));
    }
}

TEST_F(ScanProgram, AClosedOutputIsToldAndNothingIsWrittenElsewhere)
{
    ProgramSettings settings = with({"scan"});
    settings.outputIsClosed = true;
    const ProgramResult result = runProgram(settings);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, HasSubstr("standard output could not be written: Bad file descriptor."));
}

TEST_F(ScanProgram, ATerminalGetsColourAndATableOfItsWidth)
{
    for (const unsigned short columns : std::array<unsigned short, 4>{40, 60, 80, 160}) {
        ProgramSettings settings = with({"scan", "--mode", "standard", "--root", "home/Downloads", "--verbose"});
        settings.terminalColumns = columns;
        const ProgramResult result = runProgram(settings);
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.output, HasSubstr("\x1b[1;32mSafe"));
        std::istringstream lines(plain(result.output));
        for (std::string line; std::getline(lines, line);) {
            using KarvelloCLI::TerminalText;
            EXPECT_LE(TerminalText(line, TerminalText::Kind::sentence).columns(), columns) << line;
        }
        settings.environment["NO_COLOR"] = "1";
        EXPECT_THAT(runProgram(settings).output, Not(HasSubstr("\x1b")));
    }
}
