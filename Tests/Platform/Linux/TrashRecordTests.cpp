#include "Platform/Linux/TrashRecord.h"

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <set>

namespace {

using Platform::trashedName;
using Platform::TrashRecord;

constexpr std::size_t kLongestName = NAME_MAX - TrashRecord::kSuffix.size();

TEST(TrashRecord, IsWrittenInTheOrderThatReadersExpect)
{
    const TrashRecord record{.path = "/home/me/a", .deletionDate = "2026-11-20T12:00:00", .isOurs = false};
    EXPECT_EQ(record.text(), "[Trash Info]\nPath=/home/me/a\nDeletionDate=2026-11-20T12:00:00\n");
}

TEST(TrashRecord, MarksWhatThisProgramWrote)
{
    const TrashRecord record{.path = "/a", .deletionDate = "2026-11-20T12:00:00", .isOurs = true};
    EXPECT_EQ(record.text(), "[Trash Info]\nPath=/a\nDeletionDate=2026-11-20T12:00:00\nX-Karvello=1\n");
    EXPECT_TRUE(TrashRecord::parse(record.text())->isOurs);
    EXPECT_FALSE(TrashRecord::parse("[Trash Info]\nPath=/a\n")->isOurs);
}

TEST(TrashRecord, KeepsEveryByteOfAPathOnOneLineOfASCII)
{
    for (int byte = 1; byte < 256; ++byte) {
        const TrashRecord record{
            .path = std::string("/x/") + static_cast<char>(byte) + "y", .deletionDate = "d", .isOurs = true};
        const auto text = record.text();
        EXPECT_EQ(std::ranges::count(text, '\n'), 4) << byte;
        for (const char letter : text) {
            EXPECT_TRUE(letter == '\n' || (letter >= ' ' && letter <= '~')) << byte;
        }
        const auto read = TrashRecord::parse(text);
        ASSERT_TRUE(read) << byte;
        EXPECT_EQ(read->path, record.path) << byte;
    }
}

TEST(TrashRecord, EncodesThePercentSignAndTheLineBreak)
{
    const TrashRecord record{.path = "/100%\n\xFF", .deletionDate = "d", .isOurs = false};
    EXPECT_EQ(record.text(), "[Trash Info]\nPath=/100%25%0A%FF\nDeletionDate=d\n");
}

TEST(TrashRecord, ReadsTheRecordsOfOtherPrograms)
{
    const auto record = TrashRecord::parse(
        "[Trash Info]\nX-Other=1\nDeletionDate=2020-01-02T03:04:05\n# a comment\n\nPath=docs/a%20b\nno equals sign\n");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->path, "docs/a b");
    EXPECT_EQ(record->deletionDate, "2020-01-02T03:04:05");
    EXPECT_FALSE(record->isOurs);
}

TEST(TrashRecord, TakesTheFirstOfAKeyThatComesTwice)
{
    const auto record = TrashRecord::parse("[Trash Info]\nPath=/a\nPath=/b\nDeletionDate=1\nDeletionDate=2");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->path, "/a");
    EXPECT_EQ(record->deletionDate, "1");
}

TEST(TrashRecord, ReadsNothingFromALineThatIsOnlyAKey)
{
    const auto record = TrashRecord::parse("[Trash Info]\nPath\nPath=/a\n");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->path, "/a");
}

TEST(TrashRecord, ReadsALastLineWithoutALineBreak)
{
    ASSERT_TRUE(TrashRecord::parse("[Trash Info]\nPath=/a"));
    EXPECT_EQ(TrashRecord::parse("[Trash Info]\nPath=/a")->path, "/a");
}

TEST(TrashRecord, RefusesADamagedText)
{
    for (const auto* text : {"", "\n", "[Trash Info]", "[Trash Info]\n", "Path=/a\n", "[Other]\nPath=/a\n",
             "[Trash Info]\nPath=\n", "[Trash Info]\nPath=%\n", "[Trash Info]\nPath=/a%0\n", "[Trash Info]\nPath=%zz\n",
             "[Trash Info]\nPath=/a%00b\n", "[Trash Info]\nDeletionDate=2020-01-01T00:00:00\n",
             "[trash info]\nPath=/a\n"}) {
        EXPECT_FALSE(TrashRecord::parse(text)) << text;
    }
}

TEST(TrashRecord, ReadsNoPathOutOfACutText)
{
    const std::string whole = TrashRecord{.path = "/home/x", .deletionDate = "d", .isOurs = true}.text();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto record = TrashRecord::parse(whole.substr(0, length));
        EXPECT_TRUE(!record || whole.find(record->path) != std::string::npos) << length;
    }
}

TEST(TrashRecord, TellsTheTimeInTheFormOfTheFormat)
{
    const auto now = TrashRecord::now();
    ASSERT_EQ(now.size(), 19U);
    EXPECT_EQ(now[4], '-');
    EXPECT_EQ(now[10], 'T');
    EXPECT_EQ(now[16], ':');
}

TEST(TrashedName, IsTheItemsOwnWhereItIsFree)
{
    for (const auto* name : {"a", "a.txt", ".hidden", "a.tar.gz", "...", "a.", "x y\n", "-rf", "\xFF\xFE"}) {
        EXPECT_EQ(trashedName(name, 0), name);
    }
}

TEST(TrashedName, NumbersBeforeTheExtension)
{
    EXPECT_EQ(trashedName("a.txt", 1), "a.2.txt");
    EXPECT_EQ(trashedName("a", 1), "a.2");
    EXPECT_EQ(trashedName(".hidden", 2), ".hidden.3");
    EXPECT_EQ(trashedName("a.tar.gz", 9), "a.tar.10.gz");
}

TEST(TrashedName, DiffersForEachAttempt)
{
    for (const auto& name : {std::string("a.txt"), std::string(255, 'x'), std::string(250, 'x') + ".txt"}) {
        std::set<std::string> found;
        for (std::size_t attempt = 0; attempt < 1000; ++attempt) {
            found.insert(trashedName(name, attempt));
        }
        EXPECT_EQ(found.size(), 1000U);
    }
}

TEST(TrashedName, LeavesRoomForTheSuffixOfTheRecordAndKeepsTheExtension)
{
    for (const std::size_t attempt : {std::size_t{0}, std::size_t{1}, std::size_t{4'294'967'295}}) {
        const auto name = trashedName(std::string(251, 'x') + ".txt", attempt);
        EXPECT_EQ(name.size(), kLongestName);
        EXPECT_TRUE(name.ends_with(".txt"));
    }
    EXPECT_EQ(trashedName(std::string(kLongestName, 'x'), 0).size(), kLongestName);
}

TEST(TrashedName, TakesALongTailForNoExtension)
{
    const auto name = trashedName("a." + std::string(253, 'y'), 1);
    EXPECT_EQ(name.size(), kLongestName);
    EXPECT_TRUE(name.ends_with("y.2"));
}

TEST(TrashedName, CutsNoCharacterInTwo)
{
    for (const std::string_view character : {"é", "€", "😀"}) {
        for (std::size_t before = 0; before < 5; ++before) {
            std::string name(before, 'a');
            while (name.size() + character.size() <= NAME_MAX) {
                name += character;
            }
            const auto cut = trashedName(name, 0);
            EXPECT_LE(cut.size(), kLongestName);
            EXPECT_GT(cut.size() + character.size(), kLongestName);
            EXPECT_EQ((cut.size() - before) % character.size(), 0U) << cut;
        }
    }
}

TEST(TrashedName, IsNotEmptyForBytesThatAreNoText)
{
    for (const char byte : {'\x80', '\xBF', '\xFF'}) {
        const auto name = trashedName(std::string(NAME_MAX, byte), 0);
        EXPECT_EQ(name.size(), kLongestName);
    }
}

} // namespace
