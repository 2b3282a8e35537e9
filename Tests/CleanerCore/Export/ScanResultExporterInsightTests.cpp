#include "CleanerCore/Export/ScanResultExporter.h"

#include "Platform/Base/Text.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/CleanerCore/Export/InsightExportFixture.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <limits>

namespace CleanerCore {

namespace {

using namespace ExportFixture;
using testing::HasSubstr;
using testing::Not;

constexpr std::string_view kInsightHeader = "export_kind,record_type,section,path,display_name,category,insight_kind,"
                                            "size_bytes,last_modified,safety,selected_by_default,selected,"
                                            "manual_review_required,reason,detail,duplicate_group_id,duplicate_role\n";

MacStorageInsightReport emptyReport()
{
    return MacStorageInsightReport({.scannedAt = kScannedAt});
}

} // namespace

TEST(ScanResultExporter, WritesAFullInsightExport)
{
    EXPECT_EQ(exported(insightReport(), selectedInsights(), Format::json, Mode::full), golden("insights-full.json"));
    EXPECT_EQ(exported(insightReport(), selectedInsights(), Format::csv, Mode::full), golden("insights-full.csv"));
}

TEST(ScanResultExporter, WritesARedactedInsightExport)
{
    EXPECT_EQ(
        exported(insightReport(), selectedInsights(), Format::json, Mode::redacted), golden("insights-redacted.json"));
    EXPECT_EQ(
        exported(insightReport(), selectedInsights(), Format::csv, Mode::redacted), golden("insights-redacted.csv"));
}

TEST(ScanResultExporter, TellsNeitherPathsNorNamesInARedactedInsightExport)
{
    for (const auto format : {Format::json, Format::csv}) {
        const auto text = exported(insightReport(), selectedInsights(), format, Mode::redacted);
        for (const std::string_view secret : {"ada", "home", "SUM", "caf", "setup", "odd", "line", "raw", "Documents",
                 "Videos", "0123456789abcdef", "thermal,"}) {
            EXPECT_THAT(text, Not(HasSubstr(secret)));
        }
        for (const std::string_view fact : {"Recently modified", "Shell script", "Duplicate set · 3 copies", "30003200",
                 "keeper", "2023-11-14T22:13:20.500Z", "Nominal"}) {
            EXPECT_THAT(text, HasSubstr(fact)) << "it tells nothing of a path";
        }
    }
}

TEST(ScanResultExporter, WritesTheSameBytesOfInsightsAgain)
{
    for (const auto format : {Format::json, Format::csv}) {
        EXPECT_EQ(exported(insightReport(), selectedInsights(), format, Mode::redacted),
            exported(insightReport(), selectedInsights(), format, Mode::redacted));
    }
}

TEST(ScanResultExporter, WritesAnEmptyInsightReport)
{
    const auto csv = exported(emptyReport(), {}, Format::csv, Mode::full);
    EXPECT_THAT(csv, testing::StartsWith(std::string(kInsightHeader) + "macInsights,system_snapshot,system,,"));
    EXPECT_EQ(std::ranges::count(csv, '\n'), 2) << "the machine has its row in any case";
    EXPECT_EQ(exported(emptyReport(), {}, Format::csv, Mode::redacted), "privacy_mode,redacted\n" + csv);

    const auto json = exported(emptyReport(), {}, Format::json, Mode::full);
    for (const std::string key :
        {"heatmapItems", "largeFiles", "downloadFiles", "duplicateGroups", "securityFindings", "skippedItems"}) {
        EXPECT_THAT(json, HasSubstr('"' + key + "\" : [\n\n  ]"));
    }
    EXPECT_THAT(json, Not(HasSubstr("privacyMode")));
}

TEST(ScanResultExporter, CountsOneIdOfAFileInTwoListsAsOneSelected)
{
    const auto json =
        exported(insightReport(), {R"(download:/home/ada/Downloads/=SUM(A1), "x".iso)"}, Format::json, Mode::full);
    EXPECT_EQ(summaryNumber(json, "selectedCount"), 1);
    const auto document = parsed(json);
    for (const std::string_view list : {"largeFiles", "downloadFiles"}) {
        const auto& row = document.member(list)->array()->front();
        EXPECT_EQ(row.member("selected")->boolean(), list == "downloadFiles") << list;
    }
}

TEST(ScanResultExporter, CountsDistinctSelectedIdsThatAListHolds)
{
    auto report = insightReport();
    report.securityFindings.push_back(report.securityFindings.front());
    const auto& twice = report.securityFindings.front().id;
    EXPECT_EQ(summaryNumber(exported(report, {twice}, Format::json, Mode::full), "selectedCount"), 1);
    EXPECT_EQ(summaryNumber(exported(report, {"x"}, Format::json, Mode::full), "selectedCount"), 0);
    EXPECT_EQ(
        summaryNumber(exported(report, {report.heatmapItems.front().id}, Format::json, Mode::full), "selectedCount"), 0)
        << "a folder of the map cannot be selected";
    EXPECT_EQ(summaryNumber(exported(report, selectedInsights(), Format::json, Mode::full), "selectedCount"), 4);
}

TEST(ScanResultExporter, GivesNoReasonsForAGroupWithoutARecommendation)
{
    const MacStorageInsightReport report({.scannedAt = kScannedAt,
        .duplicateGroups = {
            DuplicateFileGroup(
                "aa", 5, {insight(FileInsightKind::duplicate, "/a/b", 5, {}, "Duplicate set · 1 copies")}),
            DuplicateFileGroup("bb", 0, {}),
        }});
    const auto json = exported(report, {}, Format::json, Mode::full);
    EXPECT_THAT(json, HasSubstr("\"keeperRecommendationReasons\" : [\n\n      ]"));
    EXPECT_EQ(summaryNumber(json, "duplicateGroupCount"), 2);
    EXPECT_EQ(summaryNumber(json, "duplicateFileCount"), 1);
    EXPECT_EQ(summaryNumber(json, "duplicateWastedBytes"), 0);
}

TEST(ScanResultExporter, GivesAPathTheLabelThatItWasFirstSeenWith)
{
    using enum FileInsightKind;
    const MacStorageInsightReport report({
        .scannedAt = kScannedAt,
        .heatmapItems = {folder("/a", "same", 1, 1)},
        .largeFiles = {insight(largeFile, "/a/same", 1, {}, "")},
        .downloadFiles = {insight(download, "/a/same", 1, {}, "")},
    });
    const auto csv = exported(report, {}, Format::csv, Mode::redacted);
    EXPECT_THAT(csv, HasSubstr("heatmap,<path:heatmap-1>,<name:heatmap-1>,"));
    EXPECT_THAT(csv, HasSubstr("largeFiles,<path:largefiles-2>,<name:heatmap-1>,"));
    EXPECT_THAT(csv, HasSubstr("downloads,<path:largefiles-2>,<name:heatmap-1>,"));
    const auto json = exported(report, {}, Format::json, Mode::redacted);
    EXPECT_THAT(json, HasSubstr("\"parentPath\" : \"<path:heatmap-1>\""));
    EXPECT_THAT(json, HasSubstr("\"path\" : \"<path:file-2>\""));
}

TEST(ScanResultExporter, NumbersTokensInTheOrderOfTheReportWhateverTheOrderOfTheKeys)
{
    using enum FileInsightKind;
    const MacStorageInsightReport report({
        .scannedAt = kScannedAt,
        .heatmapItems = {folder("/m", "m", 1, 1)},
        .largeFiles = {insight(largeFile, "/l/l", 1, {}, "")},
        .downloadFiles = {insight(download, "/d/d", 1, {}, "")},
        .securityFindings = {insight(securitySignal, "/s/s", 1, {}, "")},
        .skippedItems = {{Platform::FileURL("/k"), ""}},
    });
    const auto json = exported(report, {}, Format::json, Mode::redacted);
    for (const std::string_view path :
        {"heatmap-1", "file-2", "parent-3", "file-4", "parent-5", "file-6", "parent-7", "skipped-8"}) {
        EXPECT_THAT(json, HasSubstr("\"<path:" + std::string(path) + ">\""));
    }
    EXPECT_LT(json.find("<path:file-4>"), json.find("<path:file-2>")) << "the keys stand in their own order";
}

TEST(ScanResultExporter, HidesADetailWithAPathInItWhole)
{
    using enum FileInsightKind;
    const MacStorageInsightReport report({
        .scannedAt = kScannedAt,
        .largeFiles = {insight(largeFile, "/a/1", 3, {}, "Could not read ~/Documents/a.txt"),
            insight(largeFile, "/a/2", 2, {}, "Could not read a.txt"), insight(largeFile, "/a/3", 1, {}, "FILE://x")},
    });
    const auto csv = exported(report, {}, Format::csv, Mode::redacted);
    EXPECT_THAT(csv, HasSubstr(",<text:largefiles-detail-1>,,\n"));
    EXPECT_THAT(csv, HasSubstr(",Could not read a.txt,,\n"));
    EXPECT_THAT(csv, HasSubstr(",<text:largefiles-detail-2>,,\n"));
}

TEST(ScanResultExporter, KeepsTheMachinesFiguresInARedactedExport)
{
    auto report = emptyReport();
    report.systemSnapshot = insightReport().systemSnapshot;
    report.systemSnapshot.temperatureDetail = SystemResourceSnapshot::kTemperatureDetail;
    EXPECT_THAT(exported(report, {}, Format::csv, Mode::redacted),
        HasSubstr("; temperature_detail=" + std::string(SystemResourceSnapshot::kTemperatureDetail) + ",,\n"))
        << "the slash in it is part of no path";
    report.systemSnapshot.usedMemoryBytes = std::numeric_limits<std::uint64_t>::max();
    report.systemSnapshot.cpuLoadAverage = 1e-7;
    report.systemSnapshot.uptime = 3;
    EXPECT_THAT(exported(report, {}, Format::csv, Mode::redacted),
        HasSubstr("used_memory_bytes=18446744073709551615; free_memory_bytes=0; memory_pressure=Normal; "
                  "cpu_load_average=1e-07; normalized_cpu_load=0.13; processor_count=4; active_processor_count=2; "
                  "thermal_state=Nominal; uptime_seconds=3; "));
}

TEST(ScanResultExporter, KeepsAFormulaInAnInsightsNameUnchangedInJSONAndGuardsItInCSV)
{
    const MacStorageInsightReport report({
        .scannedAt = kScannedAt,
        .heatmapItems = {folder("/m", "  -5", 1, 1)},
        .largeFiles = {insight(FileInsightKind::largeFile, "/a/=A,B", 1, {}, "@detail")},
    });
    const auto csv = exported(report, {}, Format::csv, Mode::full);
    EXPECT_THAT(csv, HasSubstr(",/m,'  -5,"));
    EXPECT_THAT(csv, HasSubstr(",\"/a/=A,B\",\"'=A,B\","));
    EXPECT_THAT(csv, HasSubstr(",'@detail,,\n"));
    const auto json = exported(report, {}, Format::json, Mode::full);
    EXPECT_THAT(json, HasSubstr("\"displayName\" : \"=A,B\""));
    EXPECT_THAT(json, HasSubstr("\"displayName\" : \"  -5\""));
}

TEST(ScanResultExporter, WritesInsightsInUTF8WhateverTheNames)
{
    const MacStorageInsightReport report({
        .scannedAt = kScannedAt,
        .heatmapItems = {folder("/m\xFF", "m\xFF", 1, 1)},
        .largeFiles = {insight(FileInsightKind::largeFile, "/p\xFE/n\xFD", 1, {}, "d\xFC")},
        .securityFindings = {insight(FileInsightKind::securitySignal, "/\xE2\x80\xAE.sh", 1, {}, "Shell script")},
        .skippedItems = {{Platform::FileURL("/s\xFB"), "r\xFA"}},
    });
    for (const auto format : {Format::json, Format::csv}) {
        for (const auto mode : {Mode::full, Mode::redacted}) {
            EXPECT_TRUE(Platform::Text::isValidUTF8(exported(report, {}, format, mode)));
        }
    }
    const auto csv = exported(report, {}, Format::csv, Mode::full);
    for (const std::string_view text :
        {",/m\\xFF,m\\xFF,", ",/p\\xFE/n\\xFD,n\\xFD,", ",d\\xFC,", ",/s\\xFB,", ",r\\xFA,"}) {
        EXPECT_THAT(csv, HasSubstr(text));
    }
}

TEST(ScanResultExporter, RefusesAFigureThatJSONCannotTell)
{
    auto report = emptyReport();
    report.systemSnapshot.uptime = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(ScanResultExporter::data(report, {}, Format::json, Mode::full, kExportedAt));
}

TEST(ScanResultExporter, WritesTheFileOfInsights)
{
    const TestSupport::TemporaryTree tree("old.json text=\"before\"");
    const Platform::PosixFileManager real;
    TestSupport::FaultyFileManager faulty(real);
    faulty.fail({.call = TestSupport::FileManagerCall::writeAtomically, .systemError = ENOSPC});
    const auto write = [&](const Platform::FileManager& fileManager) {
        return ScanResultExporter::write(insightReport(), selectedInsights(), Format::json, Mode::full,
            tree.url("old.json"), kExportedAt, fileManager);
    };
    const auto failed = write(faulty);
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().localizedDescription(),
        "The file “old.json” couldn’t be saved because the volume is out of space.");
    EXPECT_EQ(contentsOf(tree.path("old.json")), "before");
    ASSERT_TRUE(write(real));
    EXPECT_EQ(contentsOf(tree.path("old.json")), golden("insights-full.json"));
}

} // namespace CleanerCore
