#include "KarvelloCLI/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanupScanMode;

namespace {

std::expected<Command, UsageError> parse(const std::vector<std::string>& words)
{
    return parseCommandLine(words);
}

template <typename Options>
Options optionsOf(const std::vector<std::string>& words)
{
    const auto command = parse(words);
    if (!command || !std::holds_alternative<Options>(*command)) {
        ADD_FAILURE() << "another command: " << (command ? "" : command.error().message);
        return {};
    }
    return std::get<Options>(*command);
}

ScanOptions scanOptions(const std::vector<std::string>& words)
{
    return optionsOf<ScanOptions>(words);
}

std::string information(const std::vector<std::string>& words)
{
    const auto command = parse(words);
    if (!command || !std::holds_alternative<Information>(*command)) {
        ADD_FAILURE() << "no information";
        return {};
    }
    return std::get<Information>(*command).text;
}

UsageError usageError(const std::vector<std::string>& words)
{
    const auto command = parse(words);
    if (command) {
        ADD_FAILURE() << "accepted";
        return {};
    }
    return command.error();
}

} // namespace

TEST(CommandLine, AScanWithoutOptionsIsOfTheHome)
{
    const ScanOptions options = scanOptions({"scan"});
    EXPECT_TRUE(options.scansHome());
    EXPECT_FALSE(options.mode);
    EXPECT_EQ(options.common.format, OutputFormat::table);
    EXPECT_EQ(options.common.progress, When::automatic);
    EXPECT_EQ(options.common.color, When::automatic);
    EXPECT_EQ(options.common.language, std::nullopt);
    EXPECT_EQ(options.common.jobs, 0U);
    EXPECT_EQ(options.minimumAge, 0);
}

TEST(CommandLine, ReadsEveryOption)
{
    const ScanOptions options =
        scanOptions({"scan", "--mode", "direct", "--home", "/h", "--folder", "a", "--folder", "b", "--root", "/r",
            "--min-age", "3600", "--hidden", "--packages", "--format", "json", "--redacted", "--output", "o.json",
            "--progress", "never", "--color", "always", "--language", "zh-Hant", "--jobs", "3", "--verbose"});
    EXPECT_EQ(options.mode, CleanupScanMode::direct);
    EXPECT_EQ(options.home, "/h");
    EXPECT_EQ(options.folders, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(options.roots, (std::vector<std::string>{"/r"}));
    EXPECT_EQ(options.minimumAge, 3600);
    EXPECT_TRUE(options.includesHiddenFiles);
    EXPECT_TRUE(options.includesPackageDescendants);
    EXPECT_EQ(options.common.format, OutputFormat::json);
    EXPECT_TRUE(options.common.isRedacted);
    EXPECT_EQ(options.common.output, "o.json");
    EXPECT_EQ(options.common.progress, When::never);
    EXPECT_EQ(options.common.color, When::always);
    EXPECT_EQ(options.common.language, KarvelloUI::AppLanguage::traditionalChinese);
    EXPECT_EQ(options.common.jobs, 3U);
    EXPECT_TRUE(options.common.isVerbose);
}

TEST(CommandLine, FoldersOfOnesOwnReplaceTheHome)
{
    EXPECT_FALSE(scanOptions({"scan", "--root", "/r"}).scansHome());
    EXPECT_FALSE(scanOptions({"scan", "--folder", "/f"}).scansHome());
    EXPECT_TRUE(scanOptions({"scan", "--root", "/r", "--mode", "standard"}).scansHome());
    EXPECT_TRUE(scanOptions({"scan", "--folder", "/f", "--home", "/h"}).scansHome());
}

TEST(CommandLine, TakesFolderNamesAsBytes)
{
    const std::vector<std::string> strange{"[a,b]", "{}", "%%", "\xff\xfe", "a\nb", "=x", " ", "a,b"};
    for (const std::string& name : strange) {
        EXPECT_EQ(scanOptions({"scan", "--root", name}).roots, std::vector<std::string>{name});
        EXPECT_EQ(scanOptions({"scan", "--home=" + name}).home, name);
    }
}

TEST(CommandLine, OneMentionTakesOneFolder)
{
    EXPECT_NE(usageError({"scan", "--root", "/a", "/b"}).message.find("/b"), std::string::npos);
}

TEST(CommandLine, KnowsTheEightLanguages)
{
    for (const auto language : Platform::allCases<KarvelloUI::AppLanguage>()) {
        const std::string code(Platform::rawValue(language));
        EXPECT_EQ(scanOptions({"scan", "--language", code}).common.language, language);
    }
    EXPECT_NE(usageError({"scan", "--language", "zh"}).message.find("zh-Hans"), std::string::npos);
}

TEST(CommandLine, RefusesWrongValuesInWords)
{
    EXPECT_EQ(
        usageError({"scan", "--mode", "fast"}).message, "--mode: “fast” is not one of standard, aggressive, direct.");
    EXPECT_EQ(usageError({"scan", "--format", "xml"}).message, "--format: “xml” is not one of table, json, csv.");
    EXPECT_EQ(
        usageError({"scan", "--min-age", "-1", "--root", "/r"}).message, "--min-age: “-1” is no number of seconds.");
    for (const char* const age : {"soon", "1h", "nan", "inf", ""}) {
        EXPECT_FALSE(parse({"scan", "--root", "/r", "--min-age", age})) << age;
    }
    for (const char* const jobs : {"0", "-1", "257", "many", "1.5", ""}) {
        EXPECT_FALSE(parse({"scan", "--jobs", jobs})) << jobs;
    }
    EXPECT_FALSE(parse({"scan", "--root", ""}));
    EXPECT_FALSE(parse({"scan", "--output", ""}));
    EXPECT_EQ(usageError({"scan", "--jobs"}).message, "--jobs needs a value.");
    EXPECT_EQ(usageError({"scan", "--root"}).message, "--root needs a value.");
    EXPECT_FALSE(parse({"scan", "--wrong"}));
    EXPECT_FALSE(parse({"scan", "folder"}));
}

TEST(CommandLine, ALaterMentionWins)
{
    const ScanOptions options = scanOptions(
        {"scan", "--mode", "direct", "--mode", "standard", "--jobs", "2", "--jobs", "4", "--verbose", "--verbose"});
    EXPECT_EQ(options.mode, CleanupScanMode::standard);
    EXPECT_EQ(options.common.jobs, 4U);
    EXPECT_TRUE(options.common.isVerbose);
}

TEST(CommandLine, OptionsOfPlainRootsNeedOne)
{
    for (const std::vector<std::string>& words :
        {std::vector<std::string>{"scan", "--hidden"}, {"scan", "--packages"}, {"scan", "--min-age", "5"}}) {
        EXPECT_NE(usageError(words).message.find("--root"), std::string::npos);
    }
}

TEST(CommandLine, AnErrorTellsWhereToReadOn)
{
    EXPECT_EQ(usageError({"scan", "--wrong"}).hint, "Try 'karvello-cli scan --help'.");
    EXPECT_EQ(usageError({"sacn"}).hint, "Try 'karvello-cli --help'.");
    EXPECT_EQ(usageError({"sacn"}).message, "There is no command “sacn”.");
}

TEST(CommandLine, AHostileWordCannotMoveTheCursor)
{
    EXPECT_EQ(usageError({"\x1b[2J"}).message, "There is no command “\\x1b[2J”.");
    for (const std::vector<std::string>& words : {std::vector<std::string>{"scan", "\x1b[2J"}, {"scan", "--\x1b[2J"},
             {"scan", "--jobs", "\x1b[2J"}, {"scan", "--mode", "\x1b[2J"}}) {
        EXPECT_EQ(usageError(words).message.find('\x1b'), std::string::npos) << words.back();
    }
}

TEST(CommandLine, AloneItHelps)
{
    const std::string help = information({});
    EXPECT_NE(help.find("karvello-cli COMMAND"), std::string::npos) << help;
    EXPECT_NE(help.find("scan"), std::string::npos);
    EXPECT_EQ(information({"--help"}), help);
}

TEST(CommandLine, HelpNamesEveryOptionAndFitsAScreen)
{
    const std::vector<std::string> common{"--format", "--redacted", "--output", "--progress", "--color", "--language",
        "--jobs", "--verbose", "--version", "--help", "Exit status"};
    const std::vector<std::string> scan{
        "--mode", "--home", "--folder", "--root", "--min-age", "--hidden", "--packages"};
    std::vector<std::string> clean = scan;
    clean.insert(clean.end(), {"--default", "--id", "--all", "--yes", "130"});
    const std::vector<std::pair<std::string, std::vector<std::string>>> commands{{"scan", scan}, {"clean", clean},
        {"restore", {"--entry", "--id", "--all", "--home", "--yes", "130"}}, {"history", {"--limit"}}};
    for (const auto& [command, options] : commands) {
        const std::string help = information({command, "--help"});
        EXPECT_NE(help.find("Usage: karvello-cli " + command), std::string::npos) << help;
        for (const auto& names : {common, options}) {
            for (const std::string& option : names) {
                EXPECT_NE(help.find(option), std::string::npos) << command << " " << option;
            }
        }
        std::size_t begin = 0;
        for (std::size_t end = help.find('\n'); end != std::string::npos; end = help.find('\n', begin)) {
            EXPECT_LE(end - begin, 80U) << help.substr(begin, end - begin);
            begin = end + 1;
        }
    }
}

TEST(CommandLine, ACleanHasTheOptionsOfAScan)
{
    const CleanOptions options = optionsOf<CleanOptions>(
        {"clean", "--root", "/r", "--min-age", "5", "--mode", "direct", "--format", "csv", "--all", "--yes"});
    EXPECT_EQ(options.scan.roots, std::vector<std::string>{"/r"});
    EXPECT_EQ(options.scan.minimumAge, 5);
    EXPECT_EQ(options.scan.mode, CleanupScanMode::direct);
    EXPECT_EQ(options.scan.common.format, OutputFormat::csv);
    EXPECT_EQ(options.selection, CleanSelection::all);
    EXPECT_TRUE(options.isConfirmed);
}

TEST(CommandLine, ACleanNeedsOneKindOfSelection)
{
    EXPECT_EQ(optionsOf<CleanOptions>({"clean", "--default"}).selection, CleanSelection::preselected);
    EXPECT_FALSE(optionsOf<CleanOptions>({"clean", "--default"}).isConfirmed);
    const CleanOptions named = optionsOf<CleanOptions>({"clean", "--id", "[a,b]", "--id", "c:/d e"});
    EXPECT_EQ(named.selection, CleanSelection::byId);
    EXPECT_EQ(named.ids, (std::vector<std::string>{"[a,b]", "c:/d e"}));
    EXPECT_EQ(usageError({"clean"}).message, "What shall be moved? One of --default, --id and --all is needed.");
    EXPECT_EQ(usageError({"clean"}).hint, "Try 'karvello-cli clean --help'.");
    for (const std::vector<std::string>& words : {std::vector<std::string>{"clean", "--default", "--all"},
             {"clean", "--id", "x", "--all"}, {"clean", "--id", "x", "--default"}}) {
        EXPECT_EQ(usageError(words).message, "--default, --id and --all exclude each other.");
    }
    EXPECT_FALSE(parse({"clean", "--id", "a", "b"})) << "one mention takes one id";
    EXPECT_FALSE(parse({"clean", "--id", ""}));
    EXPECT_FALSE(parse({"clean", "--all", "--permanently"}));
}

TEST(CommandLine, ARestoreListsUnlessItIsToldWhatToPutBack)
{
    EXPECT_EQ(optionsOf<RestoreOptions>({"restore"}).selection, RestoreSelection::none);
    EXPECT_EQ(optionsOf<RestoreOptions>({"restore", "--all"}).selection, RestoreSelection::all);
    const RestoreOptions options = optionsOf<RestoreOptions>(
        {"restore", "--entry", "9b6c2d0e-7a41-4e53-8e11-0c6e7c5a2f10", "--id", "x", "--yes", "--home", "/h"});
    EXPECT_EQ(options.selection, RestoreSelection::byId);
    EXPECT_EQ(options.ids, std::vector<std::string>{"x"});
    EXPECT_EQ(options.entry->string(), "9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10");
    EXPECT_EQ(options.home, "/h");
    EXPECT_TRUE(options.isConfirmed);
    EXPECT_EQ(usageError({"restore", "--yes"}).message, "--yes needs --id or --all.");
    EXPECT_EQ(usageError({"restore", "--id", "x", "--all"}).message, "--id and --all exclude each other.");
    EXPECT_EQ(usageError({"restore", "--entry", "12"}).message, "--entry: “12” is no id of an entry.");
}

TEST(CommandLine, ATableOfWhatMovesIsNotRedacted)
{
    EXPECT_FALSE(parse({"clean", "--all", "--redacted"}));
    EXPECT_FALSE(parse({"restore", "--redacted"}));
    EXPECT_TRUE(parse({"clean", "--all", "--redacted", "--format", "json"}));
    EXPECT_TRUE(parse({"restore", "--redacted", "--format", "csv"}));
    EXPECT_TRUE(parse({"history", "--redacted"}));
}

TEST(CommandLine, AHistoryHasALimit)
{
    EXPECT_FALSE(optionsOf<HistoryOptions>({"history"}).limit);
    EXPECT_EQ(optionsOf<HistoryOptions>({"history", "--limit", "3"}).limit, 3);
    for (const char* const limit : {"0", "-1", "some", "1.5", ""}) {
        EXPECT_FALSE(parse({"history", "--limit", limit})) << limit;
    }
}

TEST(CommandLine, OneLineHoldsOneCommand)
{
    EXPECT_FALSE(parse({"scan", "clean", "--all"}));
    EXPECT_FALSE(parse({"clean", "--all", "restore"}));
}

TEST(CommandLine, TellsItsVersion)
{
    EXPECT_TRUE(information({"--version"}).starts_with("karvello-cli ")) << information({"--version"});
    EXPECT_EQ(information({"scan", "--version"}), information({"--version"}));
}

TEST(CommandLine, InsightsHaveTheApplicationsLimitsUnlessTold)
{
    const auto options = optionsOf<InsightsOptions>({"insights"});
    EXPECT_EQ(options.configuration, CleanerCore::InsightConfiguration::standard());
    EXPECT_TRUE(options.looksAtHome());
    EXPECT_FALSE(options.only);
    EXPECT_TRUE(options.wants(InsightPart::map) && options.wants(InsightPart::security));
    const std::string help = information({"insights", "--help"});
    for (const char* const text : {"(100M)", "(20M)", "(86400)", "(250)", "(8000)", "(500)", "(1G)", "(512M)"}) {
        EXPECT_NE(help.find(text), std::string::npos) << text;
    }
}

TEST(CommandLine, ReadsEveryOptionOfInsights)
{
    const auto options = optionsOf<InsightsOptions>({"insights", "--home", "/h", "--root", "a", "--root", "b", "--only",
        "duplicates", "--min-large", "1", "--min-duplicate", "2k", "--min-age", "3.5", "--max-visits", "128",
        "--max-results", "20", "--max-recent", "0", "--max-hash-files", "1", "--max-hash-bytes", "3 GiB",
        "--max-hash-file-bytes", "1M", "--format", "csv", "--redacted", "--jobs", "2", "--verbose"});
    EXPECT_EQ(options.home, "/h");
    EXPECT_EQ(options.roots, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(options.only, InsightPart::duplicates);
    EXPECT_TRUE(options.wants(InsightPart::duplicates));
    EXPECT_FALSE(options.wants(InsightPart::map));
    EXPECT_EQ(options.configuration,
        CleanerCore::InsightConfiguration({
            .minimumLargeFileBytes = 1,
            .minimumDuplicateFileBytes = 2048,
            .minimumReviewFileAge = 3.5,
            .maximumVisitedItemsPerRoot = 128,
            .maximumResultCount = 20,
            .maximumRecentReviewSkippedItems = 0,
            .maximumDuplicateHashFiles = 1,
            .maximumDuplicateFullHashBytesPerFile = 1'048'576,
            .maximumDuplicateHashBytes = 3'221'225'472,
        }));
    EXPECT_EQ(options.common.format, OutputFormat::csv);
    EXPECT_TRUE(options.common.isRedacted && options.common.isVerbose);
    EXPECT_EQ(options.common.jobs, 2U);
    EXPECT_FALSE(optionsOf<InsightsOptions>({"insights", "--root", "a"}).looksAtHome());
    EXPECT_EQ(options.paths(), (std::vector<std::string>{"a", "b", "/h"}));
}

TEST(CommandLine, SizesTakeAUnit)
{
    const auto sizeOf = [](const char* text) {
        return optionsOf<InsightsOptions>({"insights", "--min-large", text}).configuration.minimumLargeFileBytes;
    };
    EXPECT_EQ(sizeOf("104857600"), 104'857'600);
    for (const char* const text : {"100M", "100m", "100MB", "100 MB", "100MiB", "102400K", "102400kb"}) {
        EXPECT_EQ(sizeOf(text), 104'857'600) << text;
    }
    EXPECT_EQ(sizeOf("7B"), 7);
    EXPECT_EQ(sizeOf("2T"), 2'199'023'255'552);
    EXPECT_EQ(sizeOf("9223372036854775807"), INT64_MAX);
    for (const char* const text :
        {"", "M", "0", "-1", "1.5G", "100X", "100MBB", "1M2", "8388608T", "1e6", "0x10", " 1"}) {
        EXPECT_NE(usageError({"insights", "--min-large", text}).message.find("is no number of bytes from 1 on"),
            std::string::npos)
            << text;
    }
}

TEST(CommandLine, RefusesLimitsThatTheScanWouldRaise)
{
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{"--max-visits", "127"},
             {"--max-results", "19"}, {"--max-recent", "-1"}, {"--max-hash-files", "0"},
             {"--max-hash-bytes", "1048575"}, {"--max-hash-file-bytes", "1023K"}, {"--min-duplicate", "0"},
             {"--min-age", "2592001"}, {"--min-age", "-1"}, {"--min-age", "nan"}, {"--only", "Map"}, {"--root", ""}}) {
        const UsageError error = usageError({"insights", words[0], words[1]});
        EXPECT_NE(error.message.find(words[0]), std::string::npos) << error.message;
        EXPECT_EQ(error.hint, "Try 'karvello-cli insights --help'.");
    }
    EXPECT_NE(usageError({"insights", "--min-age", "2592001"}).message.find("from 0 to 2592000"), std::string::npos);
}

TEST(CommandLine, ReadsHowOftenToTellTheStatus)
{
    EXPECT_EQ(optionsOf<StatusOptions>({"status"}).watch, std::nullopt);
    EXPECT_EQ(optionsOf<StatusOptions>({"status", "--watch", "0.1"}).watch, 0.1);
    EXPECT_EQ(optionsOf<StatusOptions>({"status", "--format", "csv", "--watch", "86400"}).watch, 86400);
    for (const auto* const interval : {"0", "0.09", "86401", "-1", "nan", "inf", "x", ""}) {
        EXPECT_FALSE(parse({"status", "--watch", interval})) << interval;
    }
    EXPECT_FALSE(parse({"status", "--watch", "1", "--output", "file"}));
    EXPECT_FALSE(parse({"status", "more"}));
}

TEST(CommandLine, ReadsHowToListTheApplications)
{
    EXPECT_TRUE(optionsOf<AppsOptions>({"apps", "--verbose"}).common.isVerbose);
    EXPECT_TRUE(optionsOf<AppsOptions>({"apps", "--redacted"}).common.isRedacted);
    EXPECT_FALSE(parse({"apps", "--yes"}));
}
