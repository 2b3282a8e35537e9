#include "KarvelloCLI/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanupScanMode;

namespace {

std::expected<Command, UsageError> parse(const std::vector<std::string>& words)
{
    return parseCommandLine(words);
}

ScanOptions scanOptions(const std::vector<std::string>& words)
{
    const auto command = parse(words);
    if (!command || !std::holds_alternative<ScanOptions>(*command)) {
        ADD_FAILURE() << "no scan: " << (command ? "information" : command.error().message);
        return {};
    }
    return std::get<ScanOptions>(*command);
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
    EXPECT_EQ(options.common.language, "en");
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
    EXPECT_EQ(options.common.language, "zh-Hant");
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
    for (const auto code : kLanguageCodes) {
        EXPECT_EQ(scanOptions({"scan", "--language", std::string(code)}).common.language, code);
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
    const std::string help = information({"scan", "--help"});
    for (const char* const option :
        {"--mode", "--home", "--folder", "--root", "--min-age", "--hidden", "--packages", "--format", "--redacted",
            "--output", "--progress", "--color", "--language", "--jobs", "--verbose", "--version", "--help", "130"}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
    std::size_t begin = 0;
    for (std::size_t end = help.find('\n'); end != std::string::npos; end = help.find('\n', begin)) {
        EXPECT_LE(end - begin, 80U) << help.substr(begin, end - begin);
        begin = end + 1;
    }
}

TEST(CommandLine, TellsItsVersion)
{
    EXPECT_TRUE(information({"--version"}).starts_with("karvello-cli ")) << information({"--version"});
    EXPECT_EQ(information({"scan", "--version"}), information({"--version"}));
}
