#include "Tests/KarvelloCLI/ScanProgramFixture.h"
#include "Tests/Support/TemporaryTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

using namespace KarvelloCLITests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using TestSupport::TemporaryTree;

namespace {

std::set<std::string> pathsOf(const nlohmann::json& rows)
{
    std::set<std::string> paths;
    for (const auto& row : rows) {
        paths.insert(row.at("path").get<std::string>());
    }
    return paths;
}

} // namespace

TEST_F(ScanProgram, ShowsWhatTheHomeHolds)
{
    const ProgramResult result = run({"scan"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.messages, IsEmpty());
    EXPECT_THAT(result.output, StartsWith("Scan of " + path("home") + " (mode standard): 20"));
    EXPECT_THAT(result.output,
        HasSubstr("Safe: 2 items, 80 KB\n  64 KB  30 d  http-v2      ~/.cache/pip\n"
                  "* 16 KB  30 d  picture.png  ~/.cache/thumbnails/large\n"));
    EXPECT_THAT(result.output, HasSubstr("  1  Recently modified\n"));
    EXPECT_THAT(result.output, HasSubstr("  1  Empty item\n"));
    EXPECT_THAT(result.output, HasSubstr("* Preselected  16 KB  1 item\n"));
    EXPECT_THAT(result.output, Not(HasSubstr("\x1b"))) << "no colour without a terminal";
    EXPECT_THAT(result.output, Not(HasSubstr(".ssh")));
}

TEST_F(ScanProgram, ScansOnlyTheFoldersThatAreNamed)
{
    ProgramSettings settings = with({"scan", "--root", "Downloads"});
    settings.workingDirectory = path("home");
    const ProgramResult result = runProgram(settings);
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("Scan of ~/Downloads: 20"));
    EXPECT_THAT(result.output, HasSubstr("Manual Review: 2 items"));
    EXPECT_THAT(result.output, HasSubstr("new\\nline"));
    EXPECT_THAT(result.output, Not(HasSubstr("http-v2")));
    EXPECT_THAT(result.output, Not(HasSubstr(".part")));
    EXPECT_THAT(result.output, Not(HasSubstr("Preselected")));
}

TEST_F(ScanProgram, PlainRootsTakeItemsOfAnyAgeUntilAnAgeIsGiven)
{
    m_tree.setAge("elsewhere/a", 60);
    EXPECT_THAT(run({"scan", "--root", "elsewhere"}).output, HasSubstr("Manual Review: 2 items"));
    EXPECT_THAT(run({"scan", "--root", "elsewhere", "--min-age", "3600"}).output, HasSubstr("Manual Review: 1 item"));
    EXPECT_THAT(run({"scan", "--folder", "elsewhere"}).output, HasSubstr("Manual Review: 1 item"))
        << "an added folder holds back what changed within a day";
}

TEST_F(ScanProgram, HiddenFilesCountWhenAskedFor)
{
    EXPECT_THAT(run({"scan", "--root", "home/Downloads", "--hidden"}).output, HasSubstr("  4 KB  30 d  .part"));
}

TEST_F(ScanProgram, FoldersAddToTheHomeWhenAModeIsGiven)
{
    const ProgramResult result =
        run({"scan", "--mode", "standard", "--folder", "home/Downloads", "--root", "elsewhere", "--format", "json"});
    EXPECT_EQ(result.status, 0);
    const auto document = nlohmann::json::parse(result.output);
    EXPECT_EQ(pathsOf(document.at("candidates")),
        (std::set<std::string>{path("home/.cache/pip/http-v2"), path("home/.cache/thumbnails/large/picture.png"),
            path("home/Downloads/big.iso"), path("home/Downloads/new\nline"), path("elsewhere/a"),
            path("elsewhere/b")}));
    for (const auto& row : document.at("candidates")) {
        EXPECT_EQ(row.at("selected"), row.at("selectedByDefault"));
        EXPECT_EQ(row.at("selected").get<bool>(), row.at("displayName") == "picture.png") << row;
    }
}

TEST_F(ScanProgram, AnotherHomeIsScannedByItsOwnFolders)
{
    TemporaryTree other("home/\n    .cache/pip/wheels/\n        w size=16K");
    ProgramSettings settings = with({"scan", "--home", other.path("home")});
    settings.environment["XDG_CACHE_HOME"] = path("home/.cache");
    const ProgramResult result = runProgram(settings);
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("Safe: 1 item, 16 KB"));
    EXPECT_THAT(result.output, HasSubstr("~/.cache/pip"));
}

TEST_F(ScanProgram, WrongUsageIsStatusTwo)
{
    for (const std::vector<std::string>& arguments :
        {std::vector<std::string>{"scan", "--mode", "fast"}, {"sacn"}, {"scan", "--hidden"}, {"scan", "--jobs", "0"},
            {"scan", "--output", "/"}, {"scan", "--output", "no/file"}}) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.back();
        EXPECT_THAT(result.output, IsEmpty());
        EXPECT_THAT(result.messages, StartsWith("karvello-cli: ")) << arguments.back();
    }
}

TEST_F(ScanProgram, WhatIsRefusedIsStatusThree)
{
    for (const std::vector<std::string>& arguments :
        {std::vector<std::string>{"scan", "--root", "missing"}, {"scan", "--root", path("home")},
            {"scan", "--root", "/usr"}, {"scan", "--folder", path("home")}, {"scan", "--folder", "missing"},
            {"scan", "--folder", "/", "--root", "/"}, {"scan", "--home", "missing"}}) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 3) << arguments.back();
        EXPECT_THAT(result.messages, Not(IsEmpty())) << arguments.back();
    }
}

TEST_F(ScanProgram, OneRefusedFolderAmongOthersIsStatusOne)
{
    const ProgramResult result = run({"scan", "--root", "elsewhere", "--root", "missing"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, HasSubstr("Manual Review: 2 items"));
    EXPECT_THAT(result.output, HasSubstr("  1  Folder does not exist\n"));
    EXPECT_THAT(
        result.messages, HasSubstr("karvello-cli: Not scanned: Folder does not exist: " + path("missing") + "\n"));
    EXPECT_EQ(run({"scan", "--mode", "standard", "--root", "missing"}).status, 1)
        << "the home was scanned all the same";
}

TEST_F(ScanProgram, ARefusedFolderIsASkippedItemOfTheReport)
{
    const ProgramResult result = run({"scan", "--root", "elsewhere", "--folder", "/usr", "--format", "json"});
    const auto skipped = nlohmann::json::parse(result.output).at("skippedItems");
    ASSERT_EQ(skipped.size(), 1U);
    EXPECT_EQ(skipped[0].at("reason"), "Selected folder is too broad or protected for cleanup scanning: /usr");
}

TEST_F(ScanProgram, TellsOfALinkInARefusedPath)
{
    m_tree.add("link -> elsewhere");
    const ProgramResult result = run({"scan", "--root", "link"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, HasSubstr("the folder itself is " + path("elsewhere")));
}

TEST_F(ScanProgram, WarnsOfFoldersInEachOther)
{
    const ProgramResult result = run({"scan", "--root", path(""), "--root", "elsewhere"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.messages, HasSubstr("counts twice"));
    EXPECT_THAT(run({"scan", "--root", "elsewhere", "--root", "./elsewhere/"}).messages, IsEmpty())
        << "one folder, named twice";
}

TEST_F(ScanProgram, HelpAndVersionGoToStandardOutput)
{
    for (const std::vector<std::string>& arguments :
        {std::vector<std::string>{}, {"--help"}, {"scan", "--help"}, {"--version"}}) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.output, HasSubstr("karvello-cli"));
        EXPECT_THAT(result.messages, IsEmpty());
    }
}

TEST_F(ScanProgram, ChangesNothingOnDiskNotEvenAccessTimes)
{
    std::vector<std::string> paths{m_tree.root().path()};
    for (const auto& entry : std::filesystem::recursive_directory_iterator(m_tree.root().path())) {
        paths.push_back(entry.path().native());
    }
    // An access time of long ago is one that even a sparing mount option (relatime) renews on the next access.
    const timespec times[2] = {{.tv_sec = 1'500'000'000, .tv_nsec = 7}, {.tv_sec = 0, .tv_nsec = UTIME_OMIT}};
    for (const std::string& path : paths) {
        ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW), 0) << path;
    }
    const auto snapshot = [&paths] {
        std::string text;
        for (const std::string& path : paths) {
            struct stat status{};
            EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
            text += path + " " + std::to_string(status.st_ino) + " " + std::to_string(status.st_size);
            for (const timespec& time : {status.st_atim, status.st_mtim, status.st_ctim}) {
                text += " " + std::to_string(time.tv_sec) + "." + std::to_string(time.tv_nsec);
            }
            text += "\n";
        }
        return text;
    };
    const std::string before = snapshot();
    const ProgramResult result = run({"scan", "--mode", "direct", "--folder", "home/Downloads", "--root", "elsewhere"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("big.iso"));
    EXPECT_EQ(snapshot(), before);
}
