#include "Tests/KarvelloCLI/CleanProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace KarvelloCLITests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

TEST_F(CleanProgram, WhatIsCleanedComesBackAsItWas)
{
    const auto before = snapshot();
    const auto found = candidates({"--root", "home/Downloads"});
    ASSERT_THAT(found, SizeIs(4));

    const ProgramResult cleaned = run({"clean", "--root", "home/Downloads", "--all", "--yes"});
    EXPECT_EQ(cleaned.status, 0) << cleaned.messages;
    EXPECT_THAT(cleaned.output, StartsWith("To the Trash: 4 items, "));
    EXPECT_THAT(cleaned.output, HasSubstr("  ~/Downloads/new\\nline \\xff\n"));
    EXPECT_THAT(cleaned.output, HasSubstr("\nMoved to the Trash: 4 items, "));
    EXPECT_THAT(cleaned.output, HasSubstr("The space returns when the Trash is emptied."));
    EXPECT_TRUE(std::filesystem::is_empty(path("home/Downloads")));
    EXPECT_THAT(trashed(), SizeIs(4));
    EXPECT_EQ(trashed(), recorded());

    const ProgramResult list = run({"restore"});
    EXPECT_EQ(list.status, 0);
    EXPECT_THAT(list.output, HasSubstr("id customFolder:" + path("home/Downloads/big.iso") + "\n"));
    EXPECT_THAT(list.output, HasSubstr("now at ~/.local/share/Trash/files/big.iso\n"));
    EXPECT_THAT(list.output, HasSubstr("\n4 items can be put back: "));
    EXPECT_THAT(trashed(), SizeIs(4)) << "a list moves nothing";

    const ProgramResult restored = run({"restore", "--all", "--yes"});
    EXPECT_EQ(restored.status, 0) << restored.messages;
    EXPECT_THAT(restored.output, HasSubstr("\nPut back: 4 items\n"));
    EXPECT_EQ(snapshot(), before);
    EXPECT_THAT(trashed(), IsEmpty());
    EXPECT_THAT(recorded(), IsEmpty());

    const auto log = history();
    ASSERT_THAT(log.at("entries"), SizeIs(2));
    EXPECT_EQ(log.at("entries").at(0).at("operation"), "restore");
    EXPECT_EQ(log.at("entries").at(0).at("succeededItemCount"), 4);
    EXPECT_EQ(log.at("entries").at(1).at("operation"), "clean");
    EXPECT_EQ(log.at("entries").at(1).at("source"), "cleanupDashboard");
    EXPECT_EQ(log.at("entries").at(1).at("mode"), "moveToTrash");
    EXPECT_EQ(log.at("entries").at(1).at("cleanedItems").size(), 4);
}

TEST_F(CleanProgram, DefaultMovesWhatAScanPreselects)
{
    const ProgramResult result = run({"clean", "--default", "--yes"});
    EXPECT_EQ(result.status, 0) << result.messages;
    EXPECT_THAT(trashed(), ElementsAre("picture.png", "second.png"));
    EXPECT_TRUE(exists("home/Downloads/big.iso"));
    EXPECT_THAT(result.output, Not(HasSubstr("your own review")));
}

TEST_F(CleanProgram, AnIdOfTheExportNamesOneItem)
{
    for (const auto& candidate : candidates({"--root", "home/Downloads"})) {
        const auto id = candidate.at("id").get<std::string>();
        const ProgramResult result = run({"clean", "--root", "home/Downloads", "--id", id, "--yes"});
        EXPECT_EQ(result.status, 0) << id << result.messages;
        EXPECT_THAT(result.output, StartsWith("To the Trash: 1 item, "));
        EXPECT_THAT(result.output, HasSubstr("! 1 item needs your own review"));
    }
    EXPECT_THAT(trashed(), SizeIs(4));
    EXPECT_THAT(history().at("entries"), SizeIs(4));
}

TEST_F(CleanProgram, AnUnknownIdIsRefusedInWords)
{
    const ProgramResult none = run({"clean", "--root", "home/Downloads", "--id", "customFolder:/x\x1b[2J", "--yes"});
    EXPECT_EQ(none.status, 3);
    EXPECT_THAT(none.messages, HasSubstr("no item with the id “customFolder:/x\\x1b[2J”"));
    EXPECT_THAT(none.messages, HasSubstr("Nothing was moved."));
    EXPECT_THAT(trashed(), IsEmpty());

    const ProgramResult some = run({"clean", "--root", "home/Downloads", "--id", "customFolder:/x", "--id",
        "customFolder:" + path("home/Downloads/big.iso"), "--yes"});
    EXPECT_EQ(some.status, 1) << "done in part";
    EXPECT_THAT(trashed(), ElementsAre("big.iso"));
}

TEST_F(CleanProgram, AnIdOfAnotherScanIsUnknown)
{
    // The item exists, but lies outside of what this scan looked at.
    const ProgramResult result =
        run({"clean", "--root", "home/.cache", "--id", "customFolder:" + path("home/Downloads/big.iso"), "--yes"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(exists("home/Downloads/big.iso"));
}

TEST_F(CleanProgram, WhereNothingIsSelectedNothingIsDone)
{
    const ProgramResult result = run({"clean", "--root", "home/Downloads", "--default", "--yes"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.messages, HasSubstr("none of the 4 items found is preselected"));
    EXPECT_FALSE(exists("home/.local")) << "neither a Trash nor a log is made";
}

TEST_F(CleanProgram, AFolderThatMayNotBeScannedIsNotCleaned)
{
    const ProgramResult result = run({"clean", "--root", "/usr/lib", "--all", "--yes"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, HasSubstr("Not scanned: "));
    EXPECT_FALSE(exists("home/.local"));
}

TEST_F(CleanProgram, LogAndTrashLieInTheDataFolderOfTheUserWhoRunsIt)
{
    m_tree.add("other/.cache/thumbnails/large/\n    theirs.png size=4K\ndata/");
    ProgramSettings settings = with({"clean", "--home", path("other"), "--default", "--yes"});
    settings.environment["XDG_DATA_HOME"] = path("data");
    const ProgramResult result = runProgram(settings);
    EXPECT_EQ(result.status, 0) << result.messages;
    EXPECT_TRUE(exists("data/Trash/files/theirs.png"));
    EXPECT_TRUE(exists("data/Karvello/cleanup-audit-log.json"));
    EXPECT_FALSE(exists("other/.local"));
    EXPECT_FALSE(exists("home/.local"));

    settings.arguments = {"restore", "--home", "other", "--all", "--yes"};
    EXPECT_EQ(runProgram(settings).status, 0);
    EXPECT_TRUE(exists("other/.cache/thumbnails/large/theirs.png"));

    settings.environment["XDG_DATA_HOME"] = "relative";
    settings.arguments = {"clean", "--default", "--yes"};
    EXPECT_EQ(runProgram(settings).status, 0);
    EXPECT_THAT(trashed(), ElementsAre("picture.png", "second.png")) << "a relative path does not count";
}

TEST_F(CleanProgram, ATrashThatIsALinkIsRefusedInWords)
{
    m_tree.add("home/.local/share/\n    Trash -> ../../../elsewhere\nelsewhere/files/\nelsewhere/info/");
    const ProgramResult result = run({"clean", "--default", "--yes"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.output, HasSubstr("Refused or failed: 2 items"));
    EXPECT_THAT(result.output, HasSubstr("has no Trash that is safe to use"));
    EXPECT_THAT(result.output, HasSubstr("\nNothing was moved to the Trash.\n"));
    EXPECT_TRUE(exists("home/.cache/thumbnails/large/picture.png"));
    EXPECT_TRUE(std::filesystem::is_empty(path("elsewhere/files")));
    EXPECT_EQ(history().at("entries").at(0).at("failedItemCount"), 2);
}

TEST_F(CleanProgram, WhatCannotBeLoggedIsTold)
{
    m_tree.add("home/.local/share/\n    Karvello text=\"in the way\"");
    const ProgramResult result = run({"clean", "--default", "--yes"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.messages, HasSubstr("This run could not be logged"));
    EXPECT_THAT(trashed(), SizeIs(2));
    EXPECT_EQ(trashed(), recorded());
}

TEST_F(CleanProgram, WhatNobodyCanSeeDoesNotMove)
{
    ProgramSettings settings = with({"clean", "--default", "--yes"});
    settings.outputHasNoReader = true;
    const ProgramResult result = runProgram(settings);
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, HasSubstr("could not be shown, so nothing was moved"));
    EXPECT_TRUE(exists("home/.cache/thumbnails/large/picture.png"));
}

TEST_F(CleanProgram, TheResultIsDataOnRequest)
{
    const ProgramResult json = run({"clean", "--default", "--yes", "--format", "json"});
    EXPECT_EQ(json.status, 0);
    EXPECT_THAT(json.messages, StartsWith("To the Trash: 2 items")) << "what a person reads stays off the data";
    const auto document = nlohmann::json::parse(json.output);
    EXPECT_EQ(document.at("kind"), "cleanupAudit");
    ASSERT_THAT(document.at("entries"), SizeIs(1));
    const auto& entry = document.at("entries").at(0);
    EXPECT_EQ(entry.at("succeededItemCount"), 2);
    EXPECT_EQ(entry.at("cleanedItems").at(0).at("originalPath"), path("home/.cache/thumbnails/large/picture.png"));
    EXPECT_EQ(entry.at("id"), history().at("entries").at(0).at("id"));

    const ProgramResult csv = run({"restore", "--all", "--yes", "--format", "csv"});
    EXPECT_EQ(csv.status, 0);
    EXPECT_THAT(csv.output, StartsWith("audit_id,"));
    EXPECT_THAT(csv.output, HasSubstr(",restore,cleanupDashboard,,2,"));
    EXPECT_THAT(csv.output, HasSubstr(path("home/.cache")));
}

TEST_F(CleanProgram, RedactedDataTellsNoPath)
{
    for (const std::string format : {"json", "csv"}) {
        const std::string file = path("out." + format);
        const ProgramResult result = run({"clean", "--root", "home/Downloads", "--all", "--yes", "--format", format,
            "--redacted", "--output", file});
        EXPECT_EQ(result.status, 0) << result.messages;
        EXPECT_THAT(result.output, HasSubstr("~/Downloads/big.iso")) << "the person still sees what moves";
        const std::string data = contentsOf(file);
        EXPECT_THAT(data, HasSubstr("redacted"));
        EXPECT_THAT(data, Not(HasSubstr("big.iso")));
        EXPECT_THAT(data, Not(HasSubstr("Downloads")));
        EXPECT_EQ(run({"restore", "--all", "--yes"}).status, 0);
    }
}
