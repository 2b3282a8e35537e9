#include "CleanerCore/Export/ScanResultExporter.h"

#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "Platform/Base/Text.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/CleanerCore/Export/ExportFixture.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/TemporaryTree.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

using namespace ExportFixture;
using Platform::Date;
using Platform::FileURL;

/// One candidate for each thing that an export can get wrong.
ScanReport scanReport()
{
    const auto home = FileURL::folder("/home/ada");
    return {
        kScannedAt,
        {
            CleanupCandidate({
                .url = home.appending(".cache/pip", Platform::DirectoryHint::isFolder),
                .category = CleanupCategory::packageManagerCaches,
                .sizeBytes = 1'234'567'890'123,
                .lastModified = Date::fromUnixTime(1'700'000'000, 500'000'000),
                .resourceIdentity = FileResourceIdentity{.fileSize = 1},
                .isSelectedByDefault = true,
                .safety = CleanupSafety::safe,
            }),
            CleanupCandidate({
                .url = home.appending(".cache/=SUM(A1), \"x\""),
                .category = CleanupCategory::userCaches,
                .sizeBytes = 10,
                .lastModified = Date::fromUnixTime(-1),
                .safety = CleanupSafety::safe,
            }),
            CleanupCandidate({
                .url = home.appending("caf\xE9/line\nbreak"),
                .category = CleanupCategory::customFolder,
                .sizeBytes = 0,
                .safety = CleanupSafety::manualReview,
                .requiresManualReviewBySource = true,
            }),
        },
        {
            SkippedItem{home.appending(".cache/busy"), std::string(StorageScannerSkipReason::recentlyModified)},
            SkippedItem{
                home.appending(".cache/pip", Platform::DirectoryHint::isFolder), "Could not read /home/ada/.cache/pip"},
        },
    };
}

SelectedIDs selectedIDs()
{
    return {"userCaches:/home/ada/.cache/=SUM(A1), \"x\"", "userCaches:/not/in/the/report"};
}

} // namespace

TEST(ScanResultExporter, WritesAFullCleanupExport)
{
    EXPECT_EQ(exported(scanReport(), selectedIDs(), Format::json, Mode::full), golden("cleanup-full.json"));
    EXPECT_EQ(exported(scanReport(), selectedIDs(), Format::csv, Mode::full), golden("cleanup-full.csv"));
}

TEST(ScanResultExporter, WritesARedactedCleanupExport)
{
    EXPECT_EQ(exported(scanReport(), selectedIDs(), Format::json, Mode::redacted), golden("cleanup-redacted.json"));
    EXPECT_EQ(exported(scanReport(), selectedIDs(), Format::csv, Mode::redacted), golden("cleanup-redacted.csv"));
}

TEST(ScanResultExporter, TellsNeitherPathsNorNamesInARedactedExport)
{
    for (const auto format : {Format::json, Format::csv}) {
        const auto text = exported(scanReport(), selectedIDs(), format, Mode::redacted);
        for (const std::string_view secret : {"ada", "home", "pip", "SUM", "caf", "busy", ".cache"}) {
            EXPECT_EQ(text.find(secret), std::string::npos) << secret;
        }
        EXPECT_NE(text.find("Recently modified"), std::string::npos);
        EXPECT_NE(text.find("1234567890123"), std::string::npos);
    }
}

TEST(ScanResultExporter, WritesTheSameBytesAgain)
{
    for (const auto format : {Format::json, Format::csv}) {
        EXPECT_EQ(exported(scanReport(), selectedIDs(), format, Mode::redacted),
            exported(scanReport(), selectedIDs(), format, Mode::redacted));
    }
}

TEST(ScanResultExporter, KeepsAFormulaUnchangedInJSONAndGuardsItInCSV)
{
    const ScanReport formula(kScannedAt, {CleanupCandidate({.url = FileURL("/a/=SUM(A1)")})}, {});
    EXPECT_NE(
        exported(formula, {}, Format::json, Mode::full).find("\"displayName\" : \"=SUM(A1)\""), std::string::npos);
    EXPECT_NE(exported(formula, {}, Format::csv, Mode::full).find(",/a/=SUM(A1),'=SUM(A1),"), std::string::npos);
}

TEST(ScanResultExporter, WritesAnEmptyReport)
{
    const ScanReport empty(kScannedAt, {}, {});
    constexpr std::string_view header =
        "export_kind,record_type,section,path,display_name,category,insight_kind,size_bytes,"
        "last_modified,safety,selected_by_default,selected,manual_review_required,reason,"
        "detail,duplicate_group_id,duplicate_role\n";
    EXPECT_EQ(exported(empty, {}, Format::csv, Mode::full), header);
    EXPECT_EQ(exported(empty, {}, Format::csv, Mode::redacted), "privacy_mode,redacted\n" + std::string(header));

    const auto json = exported(empty, {}, Format::json, Mode::full);
    EXPECT_NE(json.find("\"candidates\" : [\n\n  ]"), std::string::npos);
    EXPECT_NE(json.find("\"skippedItems\" : [\n\n  ]"), std::string::npos);
    EXPECT_EQ(json.find("privacyMode"), std::string::npos);
}

TEST(ScanResultExporter, CountsAllCandidatesAsReclaimableWhateverIsSelected)
{
    const auto nothing = exported(scanReport(), {}, Format::json, Mode::full);
    EXPECT_EQ(summaryNumber(nothing, "reclaimableBytes"), 1'234'567'890'133);
    EXPECT_EQ(summaryNumber(nothing, "candidateCount"), 3);
    EXPECT_EQ(summaryNumber(nothing, "skippedCount"), 2);
    EXPECT_EQ(summaryNumber(nothing, "selectedCount"), 0);
    EXPECT_EQ(summaryNumber(exported(scanReport(), selectedIDs(), Format::json, Mode::full), "selectedCount"), 1);
}

TEST(ScanResultExporter, WritesUTF8WhateverTheNames)
{
    for (const auto format : {Format::json, Format::csv}) {
        for (const auto mode : {Mode::full, Mode::redacted}) {
            EXPECT_TRUE(Platform::Text::isValidUTF8(exported(scanReport(), selectedIDs(), format, mode)));
        }
    }
    EXPECT_NE(exported(scanReport(), {}, Format::csv, Mode::full).find("/home/ada/caf\\xE9/"), std::string::npos);

    const ScanReport oddReason(kScannedAt, {}, {SkippedItem{FileURL("/a"), "caf\xE9"}});
    EXPECT_NE(exported(oddReason, {}, Format::json, Mode::redacted).find("caf\\\\xE9"), std::string::npos);
}

TEST(ScanResultExporter, NamesAFileForTheDateOfTheScan)
{
    using Source = ScanResultExportSource;
    EXPECT_EQ(ScanResultExporter::defaultFilename(Source::macInsights, kScannedAt, Format::csv, Mode::redacted),
        "karvello-macInsights-redacted-20261115-220405.csv");
    EXPECT_EQ(ScanResultExporter::defaultFilename(Source::cleanup, kScannedAt, Format::json, Mode::full),
        "karvello-cleanup-20261115-220405.json");
}

TEST(ScanResultExporter, WritesTheFile)
{
    const TestSupport::TemporaryTree tree("old.csv text=\"before\"");
    const Platform::PosixFileManager fileManager;
    for (const std::string_view name : {"new.csv", "old.csv"}) {
        ASSERT_TRUE(ScanResultExporter::write(
            scanReport(), selectedIDs(), Format::csv, Mode::full, tree.url(name), kExportedAt, fileManager));
        EXPECT_EQ(contentsOf(tree.path(name)), golden("cleanup-full.csv"));
    }
}

TEST(ScanResultExporter, MakesNoFolder)
{
    const TestSupport::TemporaryTree tree;
    const auto written = ScanResultExporter::write(scanReport(), {}, Format::json, Mode::full,
        tree.url("missing/x.json"), kExportedAt, Platform::PosixFileManager());
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().localizedDescription(),
        "The file “x.json” couldn’t be saved because its folder doesn’t exist.");
}

TEST(ScanResultExporter, TellsWhyAFileCouldNotBeWritten)
{
    const TestSupport::TemporaryTree tree("x.json text=\"before\"");
    const Platform::PosixFileManager real;
    TestSupport::FaultyFileManager fileManager(real);
    fileManager.fail({.call = TestSupport::FileManagerCall::writeAtomically, .systemError = ENOSPC});
    const auto written = ScanResultExporter::write(
        scanReport(), {}, Format::json, Mode::full, tree.url("x.json"), kExportedAt, fileManager);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().localizedDescription(),
        "The file “x.json” couldn’t be saved because the volume is out of space.");
    EXPECT_EQ(contentsOf(tree.path("x.json")), "before");
}

TEST(ScanResultExportFormat, HasTheExtensionOfItsFiles)
{
    EXPECT_EQ(fileExtension(Format::json), "json");
    EXPECT_EQ(fileExtension(Format::csv), "csv");
}

} // namespace CleanerCore
