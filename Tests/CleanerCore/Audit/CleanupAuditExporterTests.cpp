#include "CleanerCore/Audit/CleanupAuditExporter.h"

#include "Platform/Base/JSONReader.h"
#include "Tests/CleanerCore/Audit/AuditFixture.h"
#include "Tests/Support/FaultyFileManager.h"

#include <cerrno>
#include <limits>

namespace CleanerCore {

namespace {

using namespace AuditTests;
using TestSupport::golden;
using Format = ScanResultExportFormat;
using Mode = ReportExportPrivacyMode;

const Date kHistoryExportedAt = Date::fromUnixTime(1'794'780'245, 123'000'000);

/// One entry for each thing that an export can get wrong, in no order.
Entries history()
{
    auto cleaned = entry(0, 3);
    cleaned.id = *UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10");
    cleaned.occurredAt = Date::fromUnixTime(1'794'780'000);
    cleaned.requestedItemCount = 30;
    cleaned.requestedBytes = 1'234'567'890'123;
    cleaned.succeededItemCount = 25;
    cleaned.failedItemCount = 5;
    cleaned.affectedBytes = 1'000'000'000'000;
    cleaned.samplePaths = {"/home/ada/.cache/item-0", "/home/ada/.cache/caf\xE9"};
    cleaned.failureReasons = {"Could not move /home/ada/.cache/busy", "Access denied", "<text:audit-failure-reason-1>"};
    cleaned.cleanedItems[1].restoreSourceIdentity.reset();
    cleaned.cleanedItems[2].destinationURL.reset();

    CleanupAuditEntry restored{.id = *UUID::fromString("00000000-0000-4000-8000-000000000001"),
        .occurredAt = Date::fromUnixTime(1'794'780'100, 500'000'000)};
    restored.operation = CleanupAuditOperation::restore;
    restored.source = CleanupAuditSource::macInsights;
    restored.requestedItemCount = 2;
    restored.requestedBytes = 20;
    restored.succeededItemCount = 1;
    restored.failedItemCount = 1;
    restored.affectedBytes = 10;
    restored.wasCancelled = true;
    restored.failureReasons = {"=1+1", "a, \"quoted\"\nreason"};

    CleanupAuditEntry deleted{.id = *UUID::fromString("00000000-0000-4000-8000-000000000002"),
        .occurredAt = Date::fromUnixTime(1'794'770'000)};
    deleted.mode = CleaningMode::deletePermanently;
    deleted.succeededItemCount = -3;
    return {cleaned, restored, deleted};
}

std::string exported(const Entries& entries, Format format, Mode privacyMode)
{
    const auto data = CleanupAuditExporter::data(entries, format, privacyMode, kHistoryExportedAt);
    EXPECT_TRUE(data);
    return data.value_or("");
}

/// What stands in a full JSON export under `key`.
Platform::JSONValue exportedMember(const Entries& entries, std::string_view key)
{
    for (auto& member : membersOf(exported(entries, Format::json, Mode::full))) {
        if (member.key == key) {
            return member.value;
        }
    }
    ADD_FAILURE() << "no " << key;
    return {};
}

std::vector<Platform::JSONValue> exportedRows(const Entries& entries)
{
    const auto rows = exportedMember(entries, "entries");
    return rows.array() != nullptr ? *rows.array() : std::vector<Platform::JSONValue>();
}

std::optional<std::int64_t> historySummaryNumber(const Entries& entries, std::string_view key)
{
    const auto summary = exportedMember(entries, "summary");
    const auto* const number = summary.member(key);
    return number != nullptr ? number->integer() : std::nullopt;
}

constexpr std::string_view kHistoryHeader =
    "audit_id,occurred_at,operation,source,mode,requested_item_count,requested_bytes,succeeded_item_count,"
    "failed_item_count,affected_bytes,was_cancelled,sample_paths,failure_reasons,cleaned_item_count,"
    "cleaned_item_original_paths,cleaned_item_trash_paths,cleaned_item_restore_details_recorded_count\n";

/// The text behind the header.
std::string rowsOf(const Entries& entries)
{
    const auto text = exported(entries, Format::csv, Mode::full);
    EXPECT_TRUE(text.starts_with(kHistoryHeader));
    return text.substr(std::min(kHistoryHeader.size(), text.size()));
}

} // namespace

TEST(CleanupAuditExporter, NamesTheFileByTheDateOfTheExport)
{
    EXPECT_EQ(CleanupAuditExporter::defaultFilename(kHistoryExportedAt, Format::json, Mode::full),
        "karvello-cleanup-history-20261115-220405.json");
    EXPECT_EQ(CleanupAuditExporter::defaultFilename(kHistoryExportedAt, Format::csv, Mode::redacted),
        "karvello-cleanup-history-redacted-20261115-220405.csv");
}

TEST(CleanupAuditExporter, WritesAFullExport)
{
    EXPECT_EQ(exported(history(), Format::json, Mode::full), golden("audit-full.json"));
    EXPECT_EQ(exported(history(), Format::csv, Mode::full), golden("audit-full.csv"));
}

TEST(CleanupAuditExporter, WritesARedactedExport)
{
    EXPECT_EQ(exported(history(), Format::json, Mode::redacted), golden("audit-redacted.json"));
    EXPECT_EQ(exported(history(), Format::csv, Mode::redacted), golden("audit-redacted.csv"));
}

TEST(CleanupAuditExporter, TellsNeitherPathsNorNamesInARedactedExport)
{
    for (const auto format : {Format::json, Format::csv}) {
        const auto text = exported(history(), format, Mode::redacted);
        for (const std::string_view secret : {"ada", "home", "item-0", "caf", "busy", ".cache", "share", "files"}) {
            EXPECT_EQ(text.find(secret), std::string::npos) << secret;
        }
        EXPECT_NE(text.find("Access denied"), std::string::npos);
        EXPECT_NE(text.find("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10"), std::string::npos);
    }
}

TEST(CleanupAuditExporter, LetsATokenOfTheStoreThrough)
{
    for (const auto format : {Format::json, Format::csv}) {
        EXPECT_NE(exported(history(), format, Mode::redacted).find("<text:audit-failure-reason-1>"), std::string::npos);
    }
}

TEST(CleanupAuditExporter, SumsUpTheWholeHistory)
{
    EXPECT_EQ(historySummaryNumber(history(), "entryCount"), 3);
    EXPECT_EQ(historySummaryNumber(history(), "cleanCount"), 2);
    EXPECT_EQ(historySummaryNumber(history(), "restoreCount"), 1);
    EXPECT_EQ(historySummaryNumber(history(), "requestedBytes"), 1'234'567'890'143);
    EXPECT_EQ(historySummaryNumber(history(), "affectedBytes"), 1'000'000'000'010);
    EXPECT_EQ(historySummaryNumber(history(), "failedItemCount"), 6);
    EXPECT_EQ(historySummaryNumber(history(), "cancelledCount"), 1);
    EXPECT_EQ(historySummaryNumber(history(), "cleanedItemCount"), 25);
    EXPECT_EQ(historySummaryNumber(history(), "trashMovedItemCount"), 2);
    EXPECT_EQ(historySummaryNumber(history(), "trashMovedBytes"), 20);
}

TEST(CleanupAuditExporter, IsNotFelledByTheFiguresOfAForgedLog)
{
    constexpr auto limit = std::numeric_limits<std::int64_t>::max();
    auto forged = history();
    for (auto& each : forged) {
        each.requestedBytes = limit;
        each.failedItemCount = -limit;
    }
    EXPECT_EQ(historySummaryNumber(forged, "requestedBytes"), limit);
    EXPECT_EQ(historySummaryNumber(forged, "failedItemCount"), std::numeric_limits<std::int64_t>::min());
}

TEST(CleanupAuditExporter, WritesAnEmptyHistory)
{
    EXPECT_EQ(exported({}, Format::csv, Mode::full), kHistoryHeader);
    EXPECT_EQ(exported({}, Format::csv, Mode::redacted), "privacy_mode,redacted\n" + std::string(kHistoryHeader));
    EXPECT_TRUE(exportedRows({}).empty());
    const auto summary = exportedMember({}, "summary");
    const auto* const sums = summary.object();
    if (sums == nullptr) {
        FAIL() << "the summary is no object";
    }
    EXPECT_EQ(sums->size(), 10);
    for (const auto& [key, value] : *sums) {
        EXPECT_EQ(value.integer(), 0) << key;
    }
}

TEST(CleanupAuditExporter, ShowsAStoredRestoreWithoutItems)
{
    auto restored = entry();
    restored.operation = CleanupAuditOperation::restore;
    restored.mode.reset();
    restored.samplePaths = {"/home/ada/a"};
    const auto rows = rowsOf({restored.storageSafeForAuditPersistence()});
    EXPECT_TRUE(rows.ends_with(",false,,,0,,,0\n")) << rows;
}

TEST(CleanupAuditExporter, LeavesTheModeOfARestoreOut)
{
    auto restored = entry();
    restored.operation = CleanupAuditOperation::restore;
    restored.mode.reset();
    const auto rows = exportedRows({restored});
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].member("mode"), nullptr);
    EXPECT_NE(rows[0].member("operation"), nullptr);
    EXPECT_NE(rowsOf({restored}).find(",restore,cleanupDashboard,,1,"), std::string::npos);
}

TEST(CleanupAuditExporter, CannotTellAPathWithASeparatorFromTwoInCSVButInJSON)
{
    auto odd = entry();
    odd.samplePaths = {"/a | /b"};
    auto two = odd;
    two.samplePaths = {"/a", "/b"};
    EXPECT_EQ(rowsOf({odd}), rowsOf({two}));
    EXPECT_NE(exported({odd}, Format::json, Mode::full), exported({two}, Format::json, Mode::full));
}

TEST(CleanupAuditExporter, KeepsTheOrderOfEntriesOfTheSameMoment)
{
    Entries entries;
    for (const std::string_view id : {"4", "F", "0"}) {
        entries.push_back(entry());
        entries.back().id = *UUID::fromString(std::string(id) + "0000000-0000-4000-8000-000000000000");
    }
    entries.push_back(entry(-1));
    std::vector<std::string> found;
    for (const auto& row : exportedRows(entries)) {
        const auto* const id = row.member("id");
        ASSERT_TRUE(id != nullptr && id->string() != nullptr);
        found.push_back(*id->string());
    }
    EXPECT_EQ(found, ids({entries[3], entries[0], entries[1], entries[2]}));
}

TEST(CleanupAuditExporter, GuardsAReasonThatLooksLikeAFormula)
{
    auto formula = entry(0, 0);
    formula.failureReasons = {"=1+1"};
    EXPECT_NE(rowsOf({formula}).find(",,'=1+1,0,"), std::string::npos);
}

TEST(CleanupAuditExporter, ShowsSamplePathsOnlyOfUnsavedEntries)
{
    auto unsaved = entry();
    unsaved.samplePaths = {"/a", "/b"};
    EXPECT_NE(rowsOf({unsaved}).find(",/a | /b,"), std::string::npos);
    EXPECT_NE(rowsOf({unsaved.storageSafeForAuditPersistence()}).find(",false,,,1,"), std::string::npos);
}

TEST(CleanupAuditExporter, WritesTheFile)
{
    const TestSupport::TemporaryTree tree;
    const Platform::PosixFileManager fileManager;
    const auto url = tree.url("history.json");
    ASSERT_TRUE(CleanupAuditExporter::write(history(), Format::json, Mode::full, url, kHistoryExportedAt, fileManager));
    EXPECT_EQ(contentsOf(url.path()), exported(history(), Format::json, Mode::full));
}

TEST(CleanupAuditExporter, TellsWhyItCannotWrite)
{
    const TestSupport::TemporaryTree tree;
    const Platform::PosixFileManager posix;
    TestSupport::FaultyFileManager faulty(posix);
    faulty.fail({.call = TestSupport::FileManagerCall::writeAtomically, .systemError = ENOSPC});
    const auto written = CleanupAuditExporter::write(
        history(), Format::csv, Mode::full, tree.url("history.csv"), kHistoryExportedAt, faulty);
    ASSERT_FALSE(written);
    EXPECT_EQ(std::get<Platform::FileError>(written.error().cause).kind, Platform::FileErrorKind::outOfSpace);
}

} // namespace CleanerCore
