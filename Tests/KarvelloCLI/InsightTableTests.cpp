#include "KarvelloCLI/InsightTable.h"

#include "CleanerCore/Export/ScanResultExporter.h"

#include "Tests/KarvelloCLI/TableSamples.h"
#include "Tests/KarvelloCLI/TextLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::DuplicateFileGroup;
using CleanerCore::FileInsight;
using CleanerCore::FileInsightKind;
using CleanerCore::MacStorageInsightReport;
using CleanerCore::StorageMapItem;
using KarvelloCLITests::homeStyle;
using KarvelloCLITests::kMegabyte;
using KarvelloCLITests::kNow;
using KarvelloCLITests::linesOf;
using KarvelloCLITests::plain;
using Platform::FileURL;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

FileInsight file(FileInsightKind kind, std::string_view path, std::int64_t size, std::string detail = "Large file",
    double ageInDays = 3)
{
    return FileInsight({.url = FileURL(path),
        .sizeBytes = size,
        .lastModified = kNow.addingSeconds(-ageInDays * 86400),
        .kind = kind,
        .detail = std::move(detail),
        .safety = CleanerCore::safetyOf(kind)});
}

FileInsight copy(std::string_view path, double ageInDays = 3)
{
    return file(FileInsightKind::duplicate, path, 30 * kMegabyte, "Duplicate set · 3 copies", ageInDays);
}

StorageMapItem folder(
    std::string_view path, std::string name, std::int64_t size, std::int64_t items, bool isTruncated = false)
{
    return StorageMapItem({.url = FileURL::folder(path),
        .displayName = std::move(name),
        .sizeBytes = size,
        .itemCount = items,
        .isTruncated = isTruncated});
}

MacStorageInsightReport::Fields ordinaryFields()
{
    using enum FileInsightKind;
    return {
        .scannedAt = kNow,
        .heatmapItems =
            {
                folder("/home/ada/Downloads", "~/Downloads", 400 * kMegabyte, 12),
                folder("/home/ada/Documents", "~/Documents", 100 * kMegabyte, 1234),
                folder("/home/ada/Music", "~/Music", 0, 0),
            },
        .largeFiles = {file(largeFile, "/home/ada/Downloads/big.iso", 300 * kMegabyte)},
        .downloadFiles = {file(download, "/home/ada/Downloads/big.iso", 300 * kMegabyte),
            file(download, "/home/ada/Downloads/b.txt", 1024, "Downloads item", 60)},
        .duplicateGroups = {DuplicateFileGroup("ab", 30 * kMegabyte,
            {copy("/home/ada/Downloads/a (1).raw"), copy("/home/ada/Pictures/a.raw", 9),
                copy("/home/ada/Pictures/b.raw", 2)})},
        .securityFindings =
            {
                file(securitySignal, "/home/ada/Downloads/setup.sh", 2048, "Shell script"),
                file(securitySignal, "/home/ada/Downloads/tool.pkg", 1024, "Installer package"),
                file(securitySignal, "/home/ada/Downloads/x.sh", 512, "Shell script"),
            },
        .skippedItems = {{FileURL("/home/ada/Downloads/new"), "Recently modified"}},
        .isTruncated = false,
        .systemSnapshot = {.capturedAt = kNow,
            .physicalMemoryBytes = 16ULL << 30U,
            .usedMemoryBytes = 4ULL << 30U,
            .memoryPressure = "Normal",
            .cpuLoadAverage = 0.523,
            .normalizedCPULoad = 0.13,
            .processorCount = 2,
            .activeProcessorCount = 2,
            .thermalState = "Unknown",
            .uptime = 3 * 86400.0},
    };
}

MacStorageInsightReport ordinaryInsights()
{
    return MacStorageInsightReport(ordinaryFields());
}

InsightSubject homeInsightSubject()
{
    return {.home = FileURL::folder("/home/ada")};
}

InsightTable::Settings settings(std::size_t columns, bool isVerbose = false)
{
    return {.style = homeStyle(columns, isVerbose), .glyphs = BarGlyphs::ascii};
}

std::string table(const MacStorageInsightReport& report, const InsightTable::Settings& settings,
    const InsightSubject& subject = homeInsightSubject())
{
    return InsightTable(report, subject, settings).text();
}

/// A report with a hundred of everything, names included that want to harm.
MacStorageInsightReport hostileReport()
{
    using enum FileInsightKind;
    const std::string hostile = "/home/ada/\x1b[2J\nSize map: 9 folders\r\u202egpj.exe\xff";
    auto fields = ordinaryFields();
    fields.isTruncated = true;
    for (int index = 0; index < 100; ++index) {
        const std::string path =
            hostile + std::to_string(index) + std::string(120, 'n') + "/한국어 이름이 아주 긴 파일";
        fields.heatmapItems.push_back(folder(path, path, index * kMegabyte, index, index % 2 == 0));
        fields.largeFiles.push_back(file(largeFile, path, 123'456'789'012));
        fields.downloadFiles.push_back(file(download, path, 1023));
        fields.duplicateGroups.emplace_back("h", 5, std::vector(20, copy(path + std::to_string(index))));
        fields.securityFindings.push_back(file(securitySignal, path, 7, "Suspicious filename pattern"));
        fields.skippedItems.push_back({FileURL(path), "odd \x1b[31mreason\n" + std::string(90, 'w')});
    }
    return MacStorageInsightReport(std::move(fields));
}

InsightSubject cutSubject()
{
    InsightSubject subject = homeInsightSubject();
    subject.folders = {FileURL::folder("/home/ada/" + std::string(120, 'f')), FileURL::folder("/srv/\x1b[2J")};
    subject.isIncomplete = true;
    subject.cuts = {.visits = true, .recentFiles = true, .duplicates = true};
    return subject;
}

} // namespace

TEST(InsightTable, ShowsEverySectionOfAReport)
{
    const std::vector<std::string> lines = linesOf(table(ordinaryInsights(), settings(80)));
    EXPECT_THAT(lines[0], StartsWith("Insights of /home/ada: 20"));
    const std::vector<std::string> rest(lines.begin() + 1, lines.end());
    EXPECT_EQ(rest,
        (std::vector<std::string>{
            "",
            "Size map: 3 folders, 500 MB",
            "     Size  Items  Folder",
            "   400 MB     12  ~/Downloads  #################################################",
            "   100 MB   1234  ~/Documents  ############",
            "  0 bytes      0  ~/Music",
            "",
            "Large files, 100 MB and more: 1 file, 300 MB",
            "       Size   Age  Name      Folder",
            "     300 MB   3 d  big.iso   ~/Downloads",
            "",
            "Older downloads: 2 files, 300 MB",
            "       Size   Age  Name      Folder",
            "     300 MB   3 d  big.iso   ~/Downloads",
            "       1 KB  60 d  b.txt     ~/Downloads",
            "",
            "Duplicates, 20 MB and more: 1 set, 3 files; the extra copies hold 60 MB",
            "  60 MB  in 2 extra copies of a file of 30 MB",
            "    keep   9 d  ~/Pictures/a.raw",
            "                because it lies in the better place, and it is older than a copy",
            "                in as good a place",
            "    extra  2 d  ~/Pictures/b.raw",
            "    extra  3 d  ~/Downloads/a (1).raw",
            "",
            "Installers and scripts: 3 items, 3.5 KB, by name alone",
            "       Size   Age  Name      Folder",
            "Shell script: 2 items, 2.5 KB",
            "       2 KB   3 d  setup.sh  ~/Downloads",
            "  512 bytes   3 d  x.sh      ~/Downloads",
            "Installer package: 1 item, 1 KB",
            "       1 KB   3 d  tool.pkg  ~/Downloads",
            "",
            "System: memory 4 GB of 16 GB used (25%), pressure normal; processors 13% busy,",
            "load 0.52 on 2 processors; thermal state unknown; up 3 d",
            "",
            "Skipped: 1 item",
            "  1  Recently modified",
            "",
            "Nothing was changed on disk. --verbose lists every item.",
        }));
}

TEST(InsightTable, FitsEveryWidthFromForty)
{
    for (std::size_t columns = 40; columns <= 170; columns += 1) {
        for (const bool isVerbose : {false, true}) {
            if (isVerbose && columns % 10 != 0) {
                continue;
            }
            auto chosen = settings(columns, isVerbose);
            chosen.glyphs = columns % 2 == 0 ? BarGlyphs::blocks : BarGlyphs::ascii;
            for (const std::string& line : linesOf(table(hostileReport(), chosen, cutSubject()))) {
                EXPECT_LE(TerminalText(line, TerminalText::Kind::sentence).columns(), columns) << line;
                EXPECT_FALSE(line.ends_with(' ')) << line;
            }
        }
    }
}

TEST(InsightTable, NoNameCanMoveTheCursorOrReorderALine)
{
    for (const std::size_t columns : {40U, 100U, 160U}) {
        const std::string text = table(hostileReport(), settings(columns, true), cutSubject());
        for (const char byte : text) {
            ASSERT_TRUE(byte == '\n' || static_cast<unsigned char>(byte) >= 0x20) << text;
        }
        EXPECT_THAT(text, Not(HasSubstr("\u202e")));
        EXPECT_THAT(text, Not(HasSubstr("\nSize map: 9 folders")));
    }
}

TEST(InsightTable, ShowsThePathAloneWhereItIsNarrow)
{
    EXPECT_THAT(table(ordinaryInsights(), settings(60)), HasSubstr("     300 MB   3 d  ~/Downloads/big.iso\n"));
}

TEST(InsightTable, MarksFoldersThatAreALowerBound)
{
    auto fields = ordinaryFields();
    fields.heatmapItems[1].isTruncated = true;
    fields.isTruncated = true;
    InsightSubject subject = homeInsightSubject();
    subject.cuts.visits = true;
    const std::string text = table(MacStorageInsightReport(std::move(fields)), settings(100), subject);
    EXPECT_THAT(text, HasSubstr("Size map: 3 folders, at least 500 MB\n"));
    EXPECT_THAT(text, HasSubstr(">  100 MB   1234  ~/Documents"));
    EXPECT_THAT(text, HasSubstr("   400 MB     12  ~/Downloads"));
    EXPECT_THAT(
        text, HasSubstr("\nCut short\n  Not every item was visited, so there may be more of everything in the "));
    EXPECT_THAT(text, HasSubstr("--max-visits"));
    EXPECT_THAT(table(ordinaryInsights(), settings(100)), Not(HasSubstr("Cut short")));
}

TEST(InsightTable, ShowsTheFirstOfEachListAndSumsUpTheRest)
{
    using enum FileInsightKind;
    MacStorageInsightReport::Fields fields{.scannedAt = kNow};
    for (int index = 1; index <= 25; ++index) {
        const std::string path = "/home/ada/Downloads/" + std::to_string(index);
        fields.largeFiles.push_back(file(largeFile, path, index * kMegabyte));
        fields.securityFindings.push_back(file(securitySignal, path, index * kMegabyte, "Disk image"));
        fields.duplicateGroups.emplace_back("h", kMegabyte, std::vector(static_cast<std::size_t>(index), copy(path)));
    }
    const MacStorageInsightReport report(std::move(fields));
    const std::string text = table(report, settings(80));
    EXPECT_THAT(text, HasSubstr("   6 MB  3 d  6     ~/Downloads\n  15 MB  in 5 more files\n"));
    EXPECT_THAT(text, HasSubstr("  16 MB  3 d  16    ~/Downloads\n  120 MB  in 15 more items\n"));
    EXPECT_THAT(text, HasSubstr("because its path comes first, where nothing else decides\n"));
    EXPECT_THAT(text, HasSubstr("and 19 more copies\n"));
    EXPECT_THAT(text, HasSubstr("in the extra copies of 15 more sets\n"));
    EXPECT_THAT(text, HasSubstr("--verbose lists every item."));

    const std::string verbose = table(report, settings(80, true));
    EXPECT_THAT(verbose, HasSubstr("   1 MB  3 d  1     ~/Downloads\n"));
    EXPECT_THAT(verbose, Not(HasSubstr(" more files")));
    EXPECT_THAT(verbose, Not(HasSubstr("more copies")));
    EXPECT_THAT(verbose, Not(HasSubstr("more sets")));
    EXPECT_THAT(verbose, Not(HasSubstr("--verbose")));
}

TEST(InsightTable, ShowsThePartAloneThatWasAskedFor)
{
    const std::vector<std::pair<InsightPart, std::string>> titles{{InsightPart::map, "Size map:"},
        {InsightPart::large, "Large files, "}, {InsightPart::downloads, "Older downloads:"},
        {InsightPart::duplicates, "Duplicates, "}, {InsightPart::security, "Installers and scripts:"}};
    for (const auto& [only, itsTitle] : titles) {
        InsightSubject subject = homeInsightSubject();
        subject.only = only;
        const std::string text = table(ordinaryInsights(), settings(80), subject);
        for (const auto& [part, title] : titles) {
            EXPECT_EQ(text.find("\n" + title) != std::string::npos, part == only) << title;
        }
        EXPECT_THAT(text, Not(HasSubstr("System:")));
    }
}

TEST(InsightTable, SaysWhatIsNotThere)
{
    const MacStorageInsightReport empty(
        {.scannedAt = kNow, .heatmapItems = {folder("/home/ada/Music", "~/Music", 0, 0)}});
    const std::string text = table(empty, settings(80));
    EXPECT_THAT(text, HasSubstr("Size map: 1 folder, 0 bytes\n"));
    EXPECT_THAT(text, HasSubstr("Large files, 100 MB and more: none\n"));
    EXPECT_THAT(text, HasSubstr("Older downloads: none\n"));
    EXPECT_THAT(text, HasSubstr("Duplicates, 20 MB and more: none\n"));
    EXPECT_THAT(text, HasSubstr("Installers and scripts: none\n"));
    EXPECT_THAT(text, HasSubstr("memory unknown; "));

    InsightSubject subject = homeInsightSubject();
    subject.hasNothingToLookAt = true;
    const MacStorageInsightReport nothing({.scannedAt = kNow});
    EXPECT_THAT(table(nothing, settings(80), subject), HasSubstr("This home has none of the usual folders"));
    EXPECT_THAT(table(nothing, settings(80), subject), Not(HasSubstr("none\n")));
    subject.isRefused = true;
    EXPECT_THAT(table(nothing, settings(80), subject), HasSubstr("Nothing was looked at.\n"));
}

TEST(InsightTable, NamesDownloadsOldOnlyWhereAgeCounts)
{
    InsightSubject subject = homeInsightSubject();
    subject.configuration.minimumReviewFileAge = 0;
    EXPECT_THAT(table(ordinaryInsights(), settings(80), subject), HasSubstr("\nDownloads: 2 files"));
}

TEST(InsightTable, UsesColourOnlyWhenToldAndForNothingElse)
{
    auto chosen = settings(80);
    chosen.style.painter = Painter(true);
    const std::string text = table(hostileReport(), chosen, cutSubject());
    EXPECT_THAT(text, HasSubstr("\x1b[1mSize map\x1b[0m: "));
    EXPECT_EQ(plain(text), table(hostileReport(), settings(80), cutSubject()));
}

TEST(InsightTable, RedactsWithTheTokensOfTheExport)
{
    auto chosen = settings(120, true);
    chosen.isRedacted = true;
    InsightSubject subject = homeInsightSubject();
    subject.folders = {FileURL::folder("/home/ada/secret")};
    const auto report = ordinaryInsights();
    const std::string text = table(report, chosen, subject);
    for (const char* const secret : {"ada", "big", "setup", "raw", "Pictures", "~/", "secret", "new"}) {
        EXPECT_THAT(text, Not(HasSubstr(secret)));
    }
    EXPECT_THAT(text, HasSubstr("Insights of the home folder, 1 given folder: "));
    const auto csv = CleanerCore::ScanResultExporter::data(
        report, {}, CleanerCore::ScanResultExportFormat::csv, CleanerCore::ReportExportPrivacyMode::redacted, kNow);
    ASSERT_TRUE(csv);
    for (const std::string_view token : {"<path:largefiles-4>", "<path:downloads-5>", "<path:duplicates-8>",
             "<name:security-11>", "<path:security-9>", "<name:heatmap-2>", "<path:skipped-12>"}) {
        EXPECT_THAT(text, HasSubstr(token));
        EXPECT_THAT(*csv, HasSubstr(token));
    }
    chosen.style.isVerbose = false;
    EXPECT_THAT(table(report, chosen, subject), HasSubstr("<path:security-9>")) << "numbers run on";
}

TEST(InsightTable, TellsOfEachLimitAndItsOption)
{
    const auto cutShort = [](const MacStorageInsightReport& report, const InsightSubject& subject) {
        const std::string text = table(report, settings(400), subject);
        const std::size_t begin = text.find("Cut short");
        return begin == std::string::npos ? std::string() : text.substr(begin, text.find("\n\n", begin) - begin);
    };
    InsightSubject subject = homeInsightSubject();
    EXPECT_EQ(cutShort(ordinaryInsights(), subject), "");
    subject.cuts.recentFiles = true;
    EXPECT_EQ(cutShort(ordinaryInsights(), subject),
        "Cut short\n  More files changed too lately to be listed than the 250 that are named. --max-recent names more, "
        "and --min-age 0 lists them all.");
    subject.cuts = {.duplicates = true};
    EXPECT_THAT(cutShort(ordinaryInsights(), subject),
        HasSubstr("The search for duplicates ended before the smallest files: it reads at most 500 files and 1 GB "));
    auto fields = ordinaryFields();
    fields.skippedItems.assign(2, {FileURL("/home/ada/x"), "Duplicate hash budget exceeded"});
    EXPECT_THAT(cutShort(MacStorageInsightReport(std::move(fields)), subject),
        HasSubstr(
            "2 files above 512 MB of the same size as others were not read, and no smaller files were compared. "));

    subject = homeInsightSubject();
    subject.configuration.maximumResultCount = 3;
    EXPECT_EQ(cutShort(ordinaryInsights(), subject),
        "Cut short\n  No list gets longer than 3; there may be more installers and scripts. --max-results goes "
        "further.");
}
