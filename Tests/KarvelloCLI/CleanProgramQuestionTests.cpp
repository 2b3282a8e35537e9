#include "Tests/KarvelloCLI/CleanProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

using namespace KarvelloCLITests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(CleanProgram, WithoutATerminalItAsksForConsentBeforehand)
{
    const auto before = snapshot();
    const ProgramResult result = run({"clean", "--root", "home/Downloads", "--all"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, HasSubstr("There is no terminal to ask on, so nothing was moved; --yes"));
    EXPECT_EQ(snapshot(), before);
    EXPECT_FALSE(exists("home/.local"));
}

TEST_F(CleanProgram, AYesMovesWhatWasShown)
{
    for (const std::string keys : {"y\n", "YES\n"}) {
        const ProgramResult result = runAnswering({"clean", "--root", "home/Downloads", "--all"}, keys);
        EXPECT_EQ(result.status, 0);
        // Standard output is no terminal here, so what is asked about is shown beside the question.
        EXPECT_THAT(result.messages, HasSubstr("~/Downloads/folder"));
        EXPECT_THAT(result.messages, HasSubstr("Move 4 items (112 KB) to the Trash? [y/N] "));
        EXPECT_THAT(result.output, HasSubstr("Moved to the Trash: 4 items"));
        EXPECT_THAT(trashed(), SizeIs(4));
        const ProgramResult back = runAnswering({"restore", "--all"}, keys);
        EXPECT_EQ(back.status, 0);
        EXPECT_THAT(back.messages, HasSubstr("Put 4 items (112 KB) back? [y/N] "));
        EXPECT_THAT(trashed(), IsEmpty());
    }
}

TEST_F(CleanProgram, EverythingElseIsANo)
{
    const auto before = snapshot();
    for (const std::string keys : {"n\n", "\n", "yep\n", "yn\n", "\x04"}) {
        const ProgramResult result = runAnswering({"clean", "--root", "home/Downloads", "--all"}, keys);
        EXPECT_EQ(result.status, 3) << keys;
        EXPECT_THAT(result.messages, HasSubstr("Nothing was moved."));
        EXPECT_EQ(snapshot(), before);
        EXPECT_FALSE(exists("home/.local"));
    }
}

TEST_F(CleanProgram, WhatWasTypedBeforeTheQuestionIsNoAnswer)
{
    ProgramSettings settings = with({"clean", "--root", "home/Downloads", "--all"});
    settings.isAttended = true;
    RunningProgram program(settings);
    program.type("y\n");
    ASSERT_TRUE(program.hasSaid("? [y/N] "));
    program.type("n\n");
    EXPECT_EQ(program.wait().status, 3);
    EXPECT_TRUE(exists("home/Downloads/big.iso"));
}

TEST_F(CleanProgram, CtrlCAtTheQuestionLeavesEverything)
{
    const auto before = snapshot();
    ProgramSettings settings = with({"clean", "--root", "home/Downloads", "--all"});
    settings.isAttended = true;
    RunningProgram program(settings);
    ASSERT_TRUE(program.hasSaid("? [y/N] "));
    program.signal(SIGINT);
    const ProgramResult result = program.wait();
    EXPECT_EQ(result.status, 130);
    EXPECT_THAT(result.messages, HasSubstr("Interrupted: nothing was moved."));
    EXPECT_EQ(snapshot(), before);
    EXPECT_FALSE(exists("home/.local"));
}

TEST_F(CleanProgram, AnItemThatChangedWhileTheQuestionWaitsStays)
{
    ProgramSettings settings = with({"clean", "--root", "home/Downloads", "--all"});
    settings.isAttended = true;
    RunningProgram program(settings);
    ASSERT_TRUE(program.hasSaid("? [y/N] "));
    writeFile(path("home/Downloads/big.iso"), "something new that nobody confirmed");
    program.type("y\n");
    const ProgramResult result = program.wait();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, HasSubstr("Moved to the Trash: 3 items"));
    EXPECT_THAT(result.output, HasSubstr("Refused or failed: 1 item"));
    EXPECT_THAT(result.output, HasSubstr("Refusing to clean because the item changed since it was scanned: "));
    EXPECT_EQ(contentsOf(path("home/Downloads/big.iso")), "something new that nobody confirmed");
    EXPECT_THAT(trashed(), SizeIs(3));
    EXPECT_EQ(history().at("entries").at(0).at("failedItemCount"), 1);
}

TEST_F(CleanProgram, AFolderThatWasSwappedWhileTheQuestionWaitsIsNotCleaned)
{
    ProgramSettings settings = with({"clean", "--root", "home/Downloads", "--all"});
    settings.isAttended = true;
    RunningProgram program(settings);
    ASSERT_TRUE(program.hasSaid("? [y/N] "));
    ASSERT_EQ(rename(path("home/Downloads").c_str(), path("home/aside").c_str()), 0);
    m_tree.add("home/Downloads/\n    big.iso text=\"precious\"");
    program.type("y\n");
    const ProgramResult result = program.wait();
    EXPECT_EQ(result.status, 3) << "nothing was done";
    EXPECT_THAT(result.output, HasSubstr("Path is outside the active scan scope: "));
    EXPECT_EQ(contentsOf(path("home/Downloads/big.iso")), "precious");
    EXPECT_TRUE(exists("home/aside/big.iso"));
    EXPECT_THAT(trashed(), IsEmpty());
}

TEST_F(CleanProgram, ANoLeavesTheTrashAsItIs)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    EXPECT_EQ(runAnswering({"restore", "--all"}, "n\n").status, 3);
    EXPECT_THAT(trashed(), ElementsAre("picture.png", "second.png"));
    EXPECT_THAT(history().at("entries"), SizeIs(1)) << "what was not tried is not logged";
    EXPECT_EQ(run({"restore", "--all"}).status, 3) << "no terminal, no consent";
}
