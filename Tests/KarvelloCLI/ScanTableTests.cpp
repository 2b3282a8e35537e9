#include "KarvelloCLI/ScanTable.h"

#include "CleanerCore/Scan/StorageScannerSkipReason.h"

#include "Tests/KarvelloCLI/SpokenLanguage.h"
#include "Tests/KarvelloCLI/TableSamples.h"
#include "Tests/KarvelloCLI/TextLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using CleanerCore::CleanupScanMode;
using CleanerCore::ScanReport;
using CleanerCore::SkippedItem;
using KarvelloCLITests::kMegabyte;
using KarvelloCLITests::kNow;
using KarvelloCLITests::linesOf;
using KarvelloCLITests::plain;
using Platform::FileURL;
using testing::HasSubstr;
using testing::Not;

namespace Reason = CleanerCore::StorageScannerSkipReason;

namespace {

CleanupCandidate candidate(std::string_view path, std::int64_t size, CleanupSafety safety, double ageInDays = 3)
{
    CleanupCandidate::Fields fields;
    fields.url = FileURL(path);
    fields.category = CleanupCategory::packageManagerCaches;
    fields.sizeBytes = size;
    fields.lastModified = kNow.addingSeconds(-ageInDays * 86400);
    fields.isSelectedByDefault = safety == CleanupSafety::safe;
    fields.safety = safety;
    return CleanupCandidate(std::move(fields));
}

SkippedItem skipped(std::string_view path, std::string_view reason)
{
    return {FileURL(path), std::string(reason)};
}

ScanSubject homeScanSubject()
{
    return {.home = FileURL::folder("/home/ada"), .mode = CleanupScanMode::standard, .folders = {}};
}

ScanReport ordinaryScan()
{
    return ScanReport(kNow,
        {
            candidate("/home/ada/.cache/pip/wheels", 5 * kMegabyte, CleanupSafety::safe, 54),
            candidate("/home/ada/.cache/pip/http-v2", 60 * kMegabyte, CleanupSafety::safe),
            candidate("/home/ada/.gradle/caches/8.4", 3 * kMegabyte, CleanupSafety::caution, 150),
            candidate("/home/ada/Downloads/installer.run", kMegabyte, CleanupSafety::manualReview, 0.2),
        },
        {
            skipped("/home/ada/.cache/pip/selfcheck", Reason::recentlyModified),
            skipped("/home/ada/.npm/_cacache/tmp", Reason::emptyItem),
            skipped("/home/ada/.npm/_cacache/new", Reason::recentlyModified),
        });
}

std::string table(
    const ScanReport& report, ScanTable::Settings settings, const ScanSubject& subject = homeScanSubject())
{
    return ScanTable(report, subject, std::move(settings)).text();
}

} // namespace

TEST(ScanTable, GroupsBySafetyWithTheLargestFirst)
{
    const std::vector<std::string> lines = linesOf(table(ordinaryScan(), {.columns = 80}));
    EXPECT_THAT(lines[0], testing::StartsWith("Scan of /home/ada (mode standard): 20"));
    const std::vector<std::string> rest(lines.begin() + 1, lines.end());
    EXPECT_EQ(rest,
        (std::vector<std::string>{
            "",
            "   Size   Age  Name           Folder",
            "",
            "Safe: 2 items, 65 MB",
            "* 60 MB   3 d  http-v2        ~/.cache/pip",
            "*  5 MB  54 d  wheels         ~/.cache/pip",
            "",
            "Caution: 1 item, 3 MB",
            "   3 MB  4 mo  8.4            ~/.gradle/caches",
            "",
            "Manual Review: 1 item, 1 MB",
            "   1 MB   4 h  installer.run  ~/Downloads",
            "",
            "Skipped: 3 items",
            "  2  Recently modified",
            "  1  Empty item",
            "",
            "  Reclaimable  69 MB  4 items",
            "* Preselected  65 MB  2 items",
            "",
            "Nothing was changed on disk. --verbose lists every item.",
        }));
}

TEST(ScanTable, ShowsThePathAloneWhereItIsNarrowAndTheKindWhereItIsWide)
{
    const std::string narrow = table(ordinaryScan(), {.columns = 60});
    EXPECT_THAT(narrow, HasSubstr("* 60 MB   3 d  ~/.cache/pip/http-v2\n"));
    EXPECT_THAT(narrow, Not(HasSubstr("Folder")));
    const std::string wide = table(ordinaryScan(), {.columns = 140});
    EXPECT_THAT(wide, HasSubstr("* 60 MB   3 d  http-v2        Package Manager Caches  ~/.cache/pip\n"));
}

TEST(ScanTable, FitsEveryWidthFromForty)
{
    ScanReport report = ordinaryScan();
    report.candidates.push_back(
        candidate("/home/ada/" + std::string(200, 'n') + "/한국어 이름이 아주 긴 파일 이름입니다 정말로", 1023,
            CleanupSafety::manualReview, 4000));
    report.candidates.push_back(
        candidate("/srv/" + std::string(255, '\x1b'), 123'456'789'012, CleanupSafety::manualReview));
    report.skippedItems.push_back(skipped("/home/ada/" + std::string(300, 's'),
        "The file “" + std::string(90, 'w') + "” couldn’t be opened because you don’t have permission to view it."));
    ScanSubject subject = homeScanSubject();
    subject.folders = {FileURL::folder("/home/ada/" + std::string(120, 'f')), FileURL::folder("/srv/x")};
    subject.isIncomplete = true;
    for (std::size_t columns = 40; columns <= 170; ++columns) {
        for (const bool isVerbose : {false, true}) {
            for (const std::string& line :
                linesOf(table(report, {.columns = columns, .isVerbose = isVerbose}, subject))) {
                EXPECT_LE(TerminalText(line, TerminalText::Kind::sentence).columns(), columns) << line;
                EXPECT_FALSE(line.ends_with(' ')) << line;
            }
        }
    }
}

TEST(ScanTable, LinesUpSizesUnderEachOtherWhateverTheNames)
{
    ScanReport report(kNow,
        {
            candidate("/home/ada/d/가나다", 1536, CleanupSafety::safe),
            candidate("/home/ada/d/abc", 1023, CleanupSafety::safe),
            candidate("/home/ada/d/e\u0301", 1, CleanupSafety::safe),
        },
        {});
    const std::string text = table(report, {.columns = 80});
    EXPECT_THAT(text, HasSubstr("*     1.5 KB  3 d  가나다  ~/d\n"));
    EXPECT_THAT(text, HasSubstr("* 1023 bytes  3 d  abc     ~/d\n"));
    EXPECT_THAT(text, HasSubstr("*    1 bytes  3 d  e\u0301       ~/d\n"));
}

TEST(ScanTable, NoNameCanMoveTheCursorOrReorderALine)
{
    const std::string hostile = "/home/ada/\x1b[2J\nSafe: 9 items\r\u202egpj.exe\xff";
    const ScanReport report(
        kNow, {candidate(hostile, 1, CleanupSafety::safe)}, {skipped(hostile, "odd \x1b[31mreason\n")});
    ScanSubject subject = homeScanSubject();
    subject.folders = {FileURL::folder(hostile)};
    for (const std::size_t columns : {40U, 100U, 160U}) {
        const std::string text = table(report, {.columns = columns, .isVerbose = true}, subject);
        for (const char byte : text) {
            EXPECT_TRUE(byte == '\n' || static_cast<unsigned char>(byte) >= 0x20) << text;
        }
        EXPECT_THAT(text, Not(HasSubstr("\u202e")));
        EXPECT_THAT(text, Not(HasSubstr("\nSafe: 9 items")));
    }
    EXPECT_THAT(table(report, {.columns = 160}), HasSubstr("\\x1b[2J\\nSafe: 9 items\\r\\u202egpj.exe\\xff"));
}

TEST(ScanTable, ShowsTheLargestOfAGroupAndSumsUpTheRest)
{
    std::vector<CleanupCandidate> candidates;
    for (int index = 1; index <= 25; ++index) {
        const std::string folder = index % 2 == 0 ? "/home/ada/even/" : "/home/ada/odd/";
        candidates.push_back(candidate(folder + std::to_string(index), index * kMegabyte, CleanupSafety::safe));
    }
    const ScanReport report(kNow, std::move(candidates), {});
    const std::string brief = table(report, {});
    EXPECT_THAT(brief,
        HasSubstr("*  6 MB  3 d  6     ~/even\n"
                  "  15 MB  in 5 more items\n"
                  "   9 MB    3 items in ~/odd\n"
                  "   6 MB    2 items in ~/even\n"));
    EXPECT_THAT(brief, Not(HasSubstr("*  5 MB")));
    EXPECT_THAT(brief, HasSubstr("--verbose lists every item."));
    EXPECT_THAT(table(report, {.isRedacted = true}), Not(HasSubstr("even")));
    const std::string verbose = table(report, {.isVerbose = true});
    EXPECT_THAT(verbose, HasSubstr("*  1 MB"));
    EXPECT_THAT(verbose, Not(HasSubstr("more")));
    EXPECT_THAT(verbose, Not(HasSubstr("--verbose")));
}

TEST(ScanTable, AnUnknownAgeIsADash)
{
    CleanupCandidate::Fields fields;
    fields.url = FileURL("/home/ada/x");
    fields.sizeBytes = 1;
    EXPECT_THAT(table(ScanReport(kNow, {CleanupCandidate(fields)}, {}), {}), HasSubstr("  1 bytes    -  x     ~\n"));
}

TEST(ScanTable, ListsSkippedItemsWhenVerbose)
{
    const std::string text = table(ordinaryScan(), {.isVerbose = true});
    EXPECT_THAT(text,
        HasSubstr("Skipped: 3 items\n"
                  "  2  Recently modified\n"
                  "     ~/.cache/pip/selfcheck\n"
                  "     ~/.npm/_cacache/new\n"
                  "  1  Empty item\n"
                  "     ~/.npm/_cacache/tmp\n"));
}

TEST(ScanTable, GathersReasonsThatDifferInTheQuotedNameOnly)
{
    ScanReport report(kNow, {}, {});
    for (int index = 0; index < 40; ++index) {
        const std::string name = std::to_string(index);
        report.skippedItems.push_back(skipped("/home/ada/" + name, "The file “" + name + "” couldn’t be opened."));
    }
    report.skippedItems.push_back(skipped("/home/ada/x", "The folder “x” couldn’t be opened."));
    EXPECT_THAT(table(report, {}),
        HasSubstr("Skipped: 41 items\n"
                  "  40  The file “…” couldn’t be opened.\n"
                  "   1  The folder “x” couldn’t be opened.\n"));
}

TEST(ScanTable, ShowsTheMostFrequentReasonsAndCountsTheRest)
{
    ScanReport report = ordinaryScan();
    for (int index = 0; index < 40; ++index) {
        report.skippedItems.push_back(skipped("/home/ada/x", "Reason " + std::to_string(index)));
    }
    const std::string text = table(report, {});
    EXPECT_THAT(text, HasSubstr("   2  Recently modified\n   1  Empty item\n   1  Reason 0\n"));
    EXPECT_THAT(text, HasSubstr("   1  Reason 9\n  30  for 30 other reasons\n"));
    EXPECT_THAT(table(report, {.isVerbose = true}), HasSubstr("  1  Reason 39\n"));
}

TEST(ScanTable, UsesColourOnlyWhenTold)
{
    EXPECT_THAT(table(ordinaryScan(), {}), Not(HasSubstr("\x1b")));
    const std::string text = table(ordinaryScan(), {.usesColor = true});
    EXPECT_THAT(text, HasSubstr("\x1b[1;32mSafe\x1b[0m: 2 items, 65 MB\n"));
    EXPECT_EQ(plain(text), table(ordinaryScan(), {})) << "colour changes no column";
}

TEST(ScanTable, SizesFollowTheLanguage)
{
    const SpokenLanguage spoken(KarvelloUI::AppLanguage::korean);
    EXPECT_THAT(table(ordinaryScan(), {}), HasSubstr("안전: 항목 2개, 65MB\n"));
}

TEST(ScanTable, RedactsPathsAndNamesEverywhere)
{
    ScanReport report = ordinaryScan();
    report.skippedItems.push_back(skipped("/home/ada/x", "Path is outside the active scan scope: /home/ada/x"));
    ScanSubject subject = homeScanSubject();
    subject.folders = {FileURL::folder("/home/ada/Downloads")};
    for (const std::size_t columns : {40U, 100U, 160U}) {
        const std::string text = table(report, {.columns = columns, .isVerbose = true, .isRedacted = true}, subject);
        for (const char* const secret : {"ada", "http-v2", "wheels", "Downloads", "installer", ".cache", "selfcheck"}) {
            EXPECT_THAT(text, Not(HasSubstr(secret)));
        }
    }
    const std::string text = table(report, {.columns = 100, .isVerbose = true, .isRedacted = true}, subject);
    EXPECT_THAT(text, HasSubstr("Scan of the home folder (mode standard), 1 given folder: "));
    EXPECT_THAT(text, HasSubstr("* 60 MB   3 d  <name:cleanup-candidate-1>  <path:cleanup-candidate-1>\n"));
    EXPECT_THAT(text, HasSubstr("     <path:skipped-5>\n")) << "paths are numbered through the whole report";
    EXPECT_THAT(text, HasSubstr("  2  Recently modified\n")) << "what tells nothing of a path stays readable";
    EXPECT_THAT(text, HasSubstr("<text:skipped-reason-1>\n"));
}

TEST(ScanTable, SaysKindlyThatNothingWasFound)
{
    const ScanReport report(
        kNow, {}, {skipped("/home/ada/a", Reason::recentlyModified), skipped("/home/ada/b", Reason::recentlyModified)});
    const std::string text = table(report, {});
    EXPECT_THAT(text, HasSubstr("Nothing to clean up was found.\n"));
    EXPECT_THAT(text, HasSubstr("2 items changed recently"));
    EXPECT_THAT(text, HasSubstr("--mode direct"));
    EXPECT_THAT(text, Not(HasSubstr("Reclaimable")));

    ScanSubject direct = homeScanSubject();
    direct.mode = CleanupScanMode::direct;
    EXPECT_THAT(table(report, {}, direct), Not(HasSubstr("--mode direct")));
}

TEST(ScanTable, DoesNotSpeakOfFindingsWhereNothingWasScanned)
{
    const ScanSubject subject{.home = FileURL::folder("/home/ada"),
        .mode = std::nullopt,
        .folders = {FileURL::folder("/usr")},
        .isRefused = true};
    const std::string text = table(ScanReport(kNow, {}, {skipped("/usr", "not allowed")}), {}, subject);
    EXPECT_THAT(text, HasSubstr("Nothing was scanned.\n"));
    EXPECT_THAT(text, Not(HasSubstr("found")));
}

TEST(ScanTable, MarksAnAccountThatIsIncomplete)
{
    ScanSubject subject = homeScanSubject();
    subject.isIncomplete = true;
    const std::vector<std::string> lines = linesOf(table(ordinaryScan(), {}, subject));
    EXPECT_THAT(lines[1], testing::StartsWith("Incomplete"));
    EXPECT_THAT(table(ordinaryScan(), {}), Not(HasSubstr("Incomplete")));
}

TEST(ScanTable, NamesTheFoldersThatWereGiven)
{
    ScanSubject subject{.home = FileURL::folder("/home/ada"), .mode = std::nullopt, .folders = {}};
    for (const char* const path : {"/home/ada/a", "/srv/b", "/c", "/d", "/e", "/f"}) {
        subject.folders.push_back(FileURL::folder(path));
    }
    EXPECT_THAT(
        table(ordinaryScan(), {}, subject), testing::StartsWith("Scan of ~/a, /srv/b, /c, /d, 2 more folders: "));
}
