#include "Tests/KarvelloCLI/CleanProgramFixture.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <set>
#include <thread>

using namespace KarvelloCLITests;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

std::size_t countIn(const std::string& folder)
{
    std::size_t count = 0;
    std::error_code error;
    for (auto entry = std::filesystem::directory_iterator(folder, error);
        !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        ++count;
    }
    return count;
}

/// False if that does not happen within some seconds.
bool waitForItemsIn(const std::string& folder, std::size_t count)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (countIn(folder) < count) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

} // namespace

TEST_F(CleanProgram, CtrlCInTheMiddleIsToldAndLogged)
{
    constexpr std::size_t kItems = 2000;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        m_tree.add(fmt::format("home/many{}/\n    item count={} size=1", signal, kItems));
        const std::string folder = path(fmt::format("home/many{}", signal));
        const std::size_t inTrashBefore = trashed().size();
        RunningProgram program(with({"clean", "--root", folder, "--all", "--yes"}));
        ASSERT_TRUE(waitForItemsIn(path("home/.local/share/Trash/files"), inTrashBefore + 20));
        program.signal(signal);
        // An impatient person must not cost the log its entry. Another signal, since two of a kind may count as one.
        program.signal(signal == SIGINT ? SIGTERM : SIGINT);
        const ProgramResult result = program.wait();
        EXPECT_EQ(result.status, 130);
        EXPECT_THAT(result.messages, HasSubstr("Interrupted: what was moved until then has been logged."));

        const std::size_t moved = trashed().size() - inTrashBefore;
        EXPECT_LT(moved, kItems) << "the clean was not interrupted at all";
        EXPECT_EQ(moved + countIn(folder), kItems) << "every item is in exactly one place";
        EXPECT_EQ(trashed(), recorded());
        EXPECT_THAT(result.output, HasSubstr(fmt::format("Moved to the Trash: {} items", moved)));
        EXPECT_THAT(result.output, HasSubstr(fmt::format("Not reached, still in place: {} items", kItems - moved)));

        const auto entry = history().at("entries").at(0);
        EXPECT_EQ(entry.at("wasCancelled"), true);
        EXPECT_EQ(entry.at("requestedItemCount"), kItems);
        EXPECT_EQ(entry.at("succeededItemCount"), moved);
        EXPECT_EQ(entry.at("failedItemCount"), 0);
    }
}

TEST_F(CleanProgram, TellsHowFarALongCleanIs)
{
    m_tree.add("home/many/\n    item count=4000 size=1");
    ProgramSettings settings = with({"clean", "--root", path("home/many"), "--all", "--yes"});
    settings.messagesOnTerminal = true;
    const std::string cleaned = runProgram(settings).messages;
    EXPECT_THAT(cleaned, ContainsRegex("[0-9]%  [1-9][0-9]* of 4000 items"));
    EXPECT_TRUE(cleaned.ends_with("\r\x1b[K")) << "the line is taken off at the end";
}

TEST_F(CleanProgram, TwoAtOnceLoseNothing)
{
    constexpr std::size_t kItems = 400;
    m_tree.add(fmt::format("home/many/\n    item count={} size=100", kItems));
    ProgramSettings settings = with({"clean", "--root", path("home/many"), "--all"});
    settings.isAttended = true;
    RunningProgram first(settings);
    RunningProgram second(settings);
    // Both have seen all items before either moves one.
    ASSERT_TRUE(first.hasSaid("? [y/N] "));
    ASSERT_TRUE(second.hasSaid("? [y/N] "));
    first.type("y\n");
    second.type("y\n");
    const ProgramResult results[] = {first.wait(), second.wait()};

    EXPECT_EQ(countIn(path("home/many")), 0);
    EXPECT_THAT(trashed(), SizeIs(kItems));
    EXPECT_EQ(trashed(), recorded());
    const auto entries = history().at("entries");
    ASSERT_THAT(entries, SizeIs(2));
    std::size_t moved = 0;
    for (const auto& entry : entries) {
        const auto succeeded = entry.at("succeededItemCount").get<std::size_t>();
        EXPECT_EQ(entry.at("requestedItemCount"), kItems);
        EXPECT_EQ(succeeded + entry.at("failedItemCount").get<std::size_t>(), kItems);
        moved += succeeded;
    }
    EXPECT_EQ(moved, kItems) << "each item moved exactly once";
    for (const ProgramResult& result : results) {
        EXPECT_TRUE(result.status == 0 || result.status == 1 || result.status == 3) << result.status;
    }
}

TEST_F(CleanProgram, ARecordThatAnotherProgramRemovedIsMissed)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    std::filesystem::remove(path("home/.local/share/Trash/info/picture.png.trashinfo"));

    const ProgramResult list = run({"restore"});
    EXPECT_THAT(list.output, HasSubstr("because the Trash has no record that says where it was"));
    EXPECT_THAT(list.output, HasSubstr("1 item can be put back"));

    const std::string id = "userCaches:" + path("home/.cache/thumbnails/large/picture.png");
    const ProgramResult result = run({"restore", "--id", id, "--yes"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, HasSubstr("because the Trash has no record that says where it was"));
    EXPECT_TRUE(exists("home/.local/share/Trash/files/picture.png")) << "it stays where it is";
    EXPECT_FALSE(exists("home/.cache/thumbnails/large/picture.png"));
}

TEST_F(CleanProgram, ARecordThatGoesWhileTheQuestionWaitsIsMissed)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    ProgramSettings settings = with({"restore", "--all"});
    settings.isAttended = true;
    RunningProgram program(settings);
    ASSERT_TRUE(program.hasSaid("? [y/N] "));
    std::filesystem::remove(path("home/.local/share/Trash/info/picture.png.trashinfo"));
    program.type("y\n");
    const ProgramResult result = program.wait();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, HasSubstr("Put back: 1 item\n"));
    EXPECT_THAT(result.output, HasSubstr("Refused or failed: 1 item\n"));
    EXPECT_TRUE(exists("home/.local/share/Trash/files/picture.png"));
    EXPECT_TRUE(exists("home/.cache/thumbnails/large/second.png"));
    EXPECT_EQ(history().at("entries").at(0).at("failedItemCount"), 1);
}

TEST_F(CleanProgram, NothingIsPutInThePlaceOfSomethingElse)
{
    ASSERT_EQ(run({"clean", "--root", "home/Downloads", "--all", "--yes"}).status, 0);
    writeFile(path("home/Downloads/big.iso"), "newer");
    const std::string id = "customFolder:" + path("home/Downloads/big.iso");
    const ProgramResult result = run({"restore", "--id", id, "--yes"});
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.messages, HasSubstr("Could not restore because an item already exists at: "));
    EXPECT_EQ(contentsOf(path("home/Downloads/big.iso")), "newer");
    EXPECT_THAT(trashed(), SizeIs(4));

    EXPECT_EQ(run({"restore", "--all", "--yes"}).status, 0) << "everything that can be";
    EXPECT_THAT(trashed(), SizeIs(1));
    EXPECT_EQ(contentsOf(path("home/Downloads/big.iso")), "newer");
}

TEST_F(CleanProgram, OneEntryIsRestoredAlone)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    ASSERT_EQ(run({"clean", "--root", "home/Downloads", "--all", "--yes"}).status, 0);
    const auto entry = history().at("entries").at(1).at("id").get<std::string>();
    EXPECT_EQ(run({"restore", "--entry", entry, "--all", "--yes"}).status, 0);
    EXPECT_TRUE(exists("home/.cache/thumbnails/large/picture.png"));
    EXPECT_THAT(trashed(), SizeIs(4));
    EXPECT_EQ(run({"restore", "--entry", "00000000-0000-0000-0000-000000000000"}).status, 3);
}

TEST_F(CleanProgram, AnIdThatWasCleanedTwiceMeansTheNewestThatCanGoBack)
{
    const std::string item = path("home/Downloads/big.iso");
    const std::string id = "customFolder:" + item;
    ASSERT_EQ(run({"clean", "--root", "home/Downloads", "--id", id, "--yes"}).status, 0);
    writeFile(item, "the newer one");
    ASSERT_EQ(run({"clean", "--root", "home/Downloads", "--id", id, "--yes"}).status, 0);
    EXPECT_THAT(trashed(), SizeIs(2));
    EXPECT_EQ(run({"restore", "--id", id, "--yes"}).status, 0);
    EXPECT_EQ(contentsOf(item), "the newer one");
    EXPECT_THAT(trashed(), SizeIs(1));
}

TEST_F(CleanProgram, AnItemThatChangedInTheTrashStaysThere)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    writeFile(path("home/.local/share/Trash/files/picture.png"), "edited in the Trash");
    const ProgramResult list = run({"restore"});
    EXPECT_THAT(list.output, HasSubstr("Could not restore because the trashed item changed: "));
    EXPECT_EQ(run({"restore", "--all", "--yes"}).status, 0);
    EXPECT_EQ(contentsOf(path("home/.local/share/Trash/files/picture.png")), "edited in the Trash");
}

TEST_F(CleanProgram, WhatIsCleanedAgainAfterARestoreIsListedOnce)
{
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
        if (round == 0) {
            ASSERT_EQ(run({"restore", "--all", "--yes"}).status, 0);
        }
    }
    const ProgramResult list = run({"restore"});
    EXPECT_THAT(list.output, HasSubstr("2 items were cleaned once more, which is listed above."));
    EXPECT_THAT(list.output, HasSubstr("\n2 items can be put back: "));
    EXPECT_EQ(run({"restore", "--all", "--yes"}).status, 0);
    EXPECT_THAT(trashed(), IsEmpty());
}
