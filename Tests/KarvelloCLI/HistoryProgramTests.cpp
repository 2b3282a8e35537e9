#include "Tests/KarvelloCLI/CleanProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <string>

using namespace KarvelloCLITests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

TEST_F(CleanProgram, AnEmptyHistoryIsNoError)
{
    const ProgramResult table = run({"history"});
    EXPECT_EQ(table.status, 0);
    EXPECT_EQ(table.output, "Nothing has been cleaned or restored yet.\n");
    EXPECT_THAT(history().at("entries"), IsEmpty());
    const ProgramResult list = run({"restore"});
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(list.output, "Nothing that the log keeps can be put back.\n");
    EXPECT_FALSE(exists("home/.local"));
}

TEST_F(CleanProgram, HistoryShowsTheNewestFirst)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    ASSERT_EQ(run({"restore", "--all", "--yes"}).status, 0);
    const ProgramResult result = run({"history"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("Date"));
    const auto restore = result.output.find("Restore    cleanup      2     2       0  24 KB");
    const auto clean = result.output.find("Clean      cleanup      2     2       0  24 KB");
    EXPECT_LT(restore, clean) << result.output;
    EXPECT_NE(clean, std::string::npos) << result.output;

    const ProgramResult one = run({"history", "--limit", "1"});
    EXPECT_THAT(one.output, HasSubstr("Restore"));
    EXPECT_THAT(one.output, Not(HasSubstr("Clean ")));
    EXPECT_THAT(history().at("entries"), SizeIs(2)) << "a short look does not shorten the log";
}

TEST_F(CleanProgram, HistoryIsExportedInFullAndRedacted)
{
    ASSERT_EQ(run({"clean", "--root", "home/Downloads", "--all", "--yes"}).status, 0);
    for (const std::string format : {"json", "csv"}) {
        const std::string full = run({"history", "--format", format}).output;
        EXPECT_THAT(full, HasSubstr("big.iso"));
        const std::string file = path("history." + format);
        const ProgramResult result = run({"history", "--format", format, "--redacted", "--output", file});
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.output, IsEmpty());
        EXPECT_THAT(contentsOf(file), HasSubstr("redacted"));
        EXPECT_THAT(contentsOf(file), Not(HasSubstr("big.iso")));
        EXPECT_THAT(contentsOf(file), Not(HasSubstr("Downloads")));
    }
}

TEST_F(CleanProgram, ADamagedLogIsToldOfAndLeftAlone)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    const std::string sound = contentsOf(logPath());
    const std::string ofNewerVersion = "[{\"operation\": \"archive\"}," + sound.substr(sound.find('[') + 1);
    struct Damage {
        std::string bytes;
        std::string words;
        bool keepsEntries;
    };
    for (const Damage& damage : {Damage{sound.substr(0, sound.size() / 2), "is damaged, nothing", false},
             Damage{"{}", "is damaged, nothing", false}, Damage{std::string(1'048'577, ' '), "is too large", false},
             Damage{ofNewerVersion, "is damaged or of a newer version", true}}) {
        writeFile(logPath(), damage.bytes);
        for (const std::string command : {"history", "restore"}) {
            const ProgramResult result = run({command});
            EXPECT_EQ(result.status, 1) << damage.words;
            EXPECT_THAT(result.messages, HasSubstr(damage.words));
            EXPECT_EQ(contentsOf(logPath()), damage.bytes);
            const std::string shown = command == "history" ? "clean" : "picture.png";
            EXPECT_EQ(result.output.find(shown) != std::string::npos, damage.keepsEntries) << result.output;
        }
    }
    EXPECT_THAT(std::filesystem::directory_iterator(path("home/.local/share/Karvello")),
        testing::Truly([](const auto& entries) { return std::distance(begin(entries), end(entries)) == 2; }))
        << "the log and its lock, and nothing moved aside";
}

TEST_F(CleanProgram, ALogThatIsNoFileIsToldOf)
{
    m_tree.add("home/.local/share/Karvello/cleanup-audit-log.json/");
    EXPECT_EQ(run({"history"}).status, 1);
    EXPECT_THAT(run({"history"}).messages, HasSubstr("could not be read"));
    m_tree.remove("home/.local/share/Karvello/cleanup-audit-log.json");
    ASSERT_EQ(mkfifo(logPath().c_str(), 0600), 0);
    EXPECT_EQ(run({"history"}).status, 1) << "and nothing is waited for";
}

TEST_F(CleanProgram, SizesThatNoDiskHasAreNotSummedUp)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    auto log = nlohmann::json::parse(contentsOf(logPath()));
    for (auto& item : log.at(0).at("cleanedItems")) {
        item.at("candidate").at("sizeBytes") = INT64_MAX;
    }
    writeFile(logPath(), log.dump());
    EXPECT_EQ(run({"restore"}).status, 0);
    const ProgramResult result = run({"restore", "--all", "--yes"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, HasSubstr("the sizes in the log are no sizes of files"));
    EXPECT_THAT(trashed(), SizeIs(2));
}

TEST_F(CleanProgram, AForgedLogPutsNothingElsewhere)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    m_tree.add("home/.ssh/");
    auto log = nlohmann::json::parse(contentsOf(logPath()));
    auto& candidate = log.at(0).at("cleanedItems").at(0).at("candidate");
    candidate.at("url") = "file://" + path("home/.ssh/authorized_keys");
    writeFile(logPath(), log.dump());
    EXPECT_THAT(run({"restore", "--all", "--yes"}).output, HasSubstr("Put back: 1 item\n"));
    EXPECT_FALSE(exists("home/.ssh/authorized_keys"));
    EXPECT_THAT(trashed(), SizeIs(1));
}
