#include "CleanerCore/Audit/CleanupAuditStore.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"

#include <functional>
#include <limits>
#include <map>
#include <regex>

namespace CleanerCore {

namespace {

using namespace AuditTests;

class CleanupAuditStoreTest : public AuditStoreTest {};

/// A log as a hand-written loop makes it: the last entry goes, and all is encoded again, until it fits.
std::string trimmedOneByOne(Entries entries)
{
    auto text = encoded(entries);
    while (text.size() > CleanupAuditStore::kMaximumBytes && !entries.empty()) {
        entries.pop_back();
        text = encoded(entries);
    }
    return text;
}

/// An entry whose encoded form grows by one byte with each step of `bytes`.
CleanupAuditEntry entryOfSize(double age, std::size_t bytes)
{
    auto large = entry(age, 0);
    large.failureReasons = {std::string(bytes, 'x')};
    return large;
}

} // namespace

TEST_F(CleanupAuditStoreTest, TouchesNothingWhenItIsMade)
{
    const CleanupAuditStore store(m_fileManager, m_tree.url("Elsewhere/log.json"));
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("Elsewhere")));
    EXPECT_EQ(store.fileURL(), m_tree.url("Elsewhere/log.json"));
}

TEST_F(CleanupAuditStoreTest, MakesTheFolderOnTheFirstWriteAndNotOnALoad)
{
    const CleanupAuditStore store(m_fileManager, m_tree.url("a/b/log.json"));
    EXPECT_TRUE(store.loadEntries().empty());
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("a")));
    const auto first = entry();
    EXPECT_EQ(store.append(first), Entries{first});
    EXPECT_EQ(store.loadEntries(), Entries{first});
}

TEST_F(CleanupAuditStoreTest, KeepsAnEntryByteForByteThroughTheFile)
{
    const auto first = entry(0, 3);
    EXPECT_EQ(m_store.append(first), Entries{first});
    EXPECT_EQ(log(), encoded(Entries{first}));
    EXPECT_EQ(m_store.loadEntries(), Entries{first});
}

TEST_F(CleanupAuditStoreTest, KeepsAPathThatIsNotUTF8)
{
    auto odd = entry(0, 0);
    odd.cleanedItems = {trashedItem("/home/ada/.cache/caf\xE9\n%41")};
    EXPECT_EQ(m_store.append(odd).size(), 1);
    const auto loaded = m_store.loadEntries();
    ASSERT_EQ(loaded.size(), 1);
    ASSERT_EQ(loaded[0].cleanedItems.size(), 1);
    EXPECT_EQ(loaded[0].cleanedItems[0].candidate.url, odd.cleanedItems[0].candidate.url);
    EXPECT_EQ(loaded[0].cleanedItems[0].destinationURL, odd.cleanedItems[0].destinationURL);
    EXPECT_EQ(loaded[0].cleanedItems[0].candidate.id, odd.cleanedItems[0].candidate.id);
}

TEST_F(CleanupAuditStoreTest, PutsTheNewestFirst)
{
    const auto middle = entry(5);
    const auto newest = entry(1);
    const auto oldest = entry(9);
    m_store.append(middle);
    m_store.append(newest);
    EXPECT_EQ(m_store.append(oldest), (Entries{newest, middle, oldest}));
    EXPECT_EQ(m_store.loadEntries(), (Entries{newest, middle, oldest}));
}

TEST_F(CleanupAuditStoreTest, PutsTheGreaterIdFirstAtTheSameMoment)
{
    Entries entries;
    for (const std::string_view id : {"4", "F", "0", "A", "9"}) {
        entries.push_back(entry());
        entries.back().id = *UUID::fromString(std::string(id) + "0000000-0000-4000-8000-000000000000");
        m_store.append(entries.back());
    }
    const auto expected = ids({entries[1], entries[3], entries[4], entries[0], entries[2]});
    EXPECT_EQ(ids(m_store.loadEntries()), expected);
    setLog(encoded(entries));
    EXPECT_EQ(ids(m_store.loadEntries()), expected);
    EXPECT_EQ(ids(strictEntries(log())), expected);
    setLog(encoded(entries));
    EXPECT_EQ(ids(m_store.append(entry(100))).front(), expected.front());
}

TEST_F(CleanupAuditStoreTest, StoresNoSamplePathsAndReturnsNone)
{
    auto full = entry();
    full.samplePaths = {"/home/ada/secret"};
    const auto appended = m_store.append(full);
    ASSERT_EQ(appended.size(), 1);
    EXPECT_TRUE(appended[0].samplePaths.empty());
    EXPECT_EQ(log().find("secret"), std::string::npos);
}

TEST_F(CleanupAuditStoreTest, StoresAReasonWithAPathInItAsAToken)
{
    auto first = entry(1);
    first.failureReasons = {"Could not move ~/Documents/report.pdf", "Access denied"};
    auto second = entry(0);
    second.failureReasons = {"Could not move ~/Documents/report.pdf"};
    m_store.replaceEntries({first, second}, 100);
    const auto loaded = m_store.loadEntries();
    ASSERT_EQ(loaded.size(), 2);
    EXPECT_EQ(loaded[0].failureReasons, std::vector<std::string>{"<text:audit-failure-reason-1>"});
    EXPECT_EQ(loaded[1].failureReasons, (std::vector<std::string>{"<text:audit-failure-reason-1>", "Access denied"}));
}

TEST_F(CleanupAuditStoreTest, CountsTokensFromOneInEveryWrite)
{
    auto first = entry(1);
    first.failureReasons = {"Could not move /a/b"};
    auto second = entry(0);
    second.failureReasons = {"Could not move /a/c"};
    m_store.append(first);
    const auto entries = m_store.append(second);
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].failureReasons, std::vector<std::string>{"<text:audit-failure-reason-1>"});
    EXPECT_EQ(entries[1].failureReasons, std::vector<std::string>{"<text:audit-failure-reason-1>"});
}

TEST_F(CleanupAuditStoreTest, StoresNoItemsOfAPermanentDeletionNorOfARestore)
{
    auto deleted = entry(0);
    deleted.mode = CleaningMode::deletePermanently;
    auto restored = entry(1);
    restored.operation = CleanupAuditOperation::restore;
    restored.mode.reset();
    m_store.append(deleted);
    m_store.append(restored);
    const auto stored = strictEntries(log());
    ASSERT_EQ(stored.size(), 2);
    EXPECT_TRUE(stored[0].cleanedItems.empty());
    EXPECT_TRUE(stored[1].cleanedItems.empty());
    EXPECT_EQ(log().find("item-0"), std::string::npos);
}

TEST_F(CleanupAuditStoreTest, LoadsFewAndKeepsAll)
{
    for (int age = 50; age > 0; --age) {
        m_store.append(entry(age));
    }
    const auto before = log();
    EXPECT_EQ(m_store.loadEntries(3).size(), 3);
    EXPECT_EQ(strictEntries(log()).size(), 50);
    EXPECT_EQ(log(), before);
}

TEST_F(CleanupAuditStoreTest, AppendsUpToTheLimitAndDropsTheOldest)
{
    for (int age = 50; age > 1; --age) {
        m_store.append(entry(age));
    }
    const auto newest = entry(1);
    const auto kept = m_store.append(newest, 3);
    ASSERT_EQ(kept.size(), 3);
    EXPECT_EQ(kept.front(), newest);
    EXPECT_EQ(kept.back().occurredAt, entry(3).occurredAt);
    EXPECT_EQ(strictEntries(log()), kept);
}

TEST_F(CleanupAuditStoreTest, KeepsAHundredEntriesByDefault)
{
    Entries entries;
    for (int age = 0; age < 120; ++age) {
        entries.push_back(entry(age, 0));
    }
    setLog(encoded(entries));
    EXPECT_EQ(m_store.loadEntries(), Entries(entries.begin(), entries.begin() + 100));
    EXPECT_EQ(strictEntries(log()).size(), 100);
    EXPECT_EQ(m_store.append(entry(-1)).size(), 100);
}

TEST_F(CleanupAuditStoreTest, LoadsMoreThanAHundredWhereMoreAreAskedFor)
{
    Entries entries;
    for (int age = 0; age < 120; ++age) {
        entries.push_back(entry(age, 0));
    }
    setLog(encoded(entries));
    EXPECT_EQ(m_store.loadEntries(110).size(), 110);
    EXPECT_EQ(strictEntries(log()).size(), 110);
}

TEST_F(CleanupAuditStoreTest, LoadsNothingForALimitBelowOne)
{
    setLog("not touched");
    EXPECT_TRUE(m_store.loadEntries(0).empty());
    EXPECT_TRUE(m_store.loadEntries(-1).empty());
    EXPECT_EQ(log(), "not touched");
}

TEST_F(CleanupAuditStoreTest, EmptiesTheLogWhenAppendingWithALimitBelowOne)
{
    for (const std::int64_t limit : {0, -7}) {
        m_store.append(entry());
        EXPECT_TRUE(m_store.append(entry(), limit).empty());
        EXPECT_EQ(log(), "[\n\n]");
    }
    const CleanupAuditStore store(m_fileManager, m_tree.url("a/log.json"));
    EXPECT_TRUE(store.append(entry(), 0).empty());
    EXPECT_EQ(contentsOf(store.fileURL().path()), "[\n\n]");
}

TEST_F(CleanupAuditStoreTest, ReplacesAllEntries)
{
    m_store.append(entry());
    const auto older = entry(2);
    const auto newer = entry(1);
    m_store.replaceEntries({older, newer}, 100);
    EXPECT_EQ(m_store.loadEntries(), (Entries{newer, older}));
    m_store.replaceEntries({older, newer}, 1);
    EXPECT_EQ(m_store.loadEntries(), Entries{newer});
    m_store.replaceEntries({older, newer}, 0);
    EXPECT_EQ(log(), "[\n\n]");
}

TEST_F(CleanupAuditStoreTest, LoadsNothingFromAFileOfNoBytesAndAppendsToIt)
{
    setLog("");
    EXPECT_TRUE(m_store.loadEntries().empty());
    EXPECT_EQ(log(), "");
    const auto first = entry();
    EXPECT_EQ(m_store.append(first), Entries{first});
    EXPECT_TRUE(namesBesideLog().empty());
}

TEST_F(CleanupAuditStoreTest, TrimsToTheSizeByDroppingTheOldest)
{
    Entries entries;
    for (int age = 0; age < 100; ++age) {
        entries.push_back(entryOfSize(age, 20'000));
    }
    m_store.replaceEntries(entries, 100);
    EXPECT_LE(log().size(), CleanupAuditStore::kMaximumBytes);
    EXPECT_EQ(log(), trimmedOneByOne(entries));
    EXPECT_EQ(m_store.loadEntries(), strictEntries(log()));
}

TEST_F(CleanupAuditStoreTest, TrimsToTheByte)
{
    const auto few = Entries{entryOfSize(0, 1), entryOfSize(1, 1), entryOfSize(2, 1)};
    const auto room = CleanupAuditStore::kMaximumBytes - encoded(few).size();
    for (const std::size_t over : {0UL, 1UL}) {
        auto entries = few;
        entries[1].failureReasons = {std::string(1 + room + over, 'x')};
        m_store.replaceEntries(entries, 100);
        EXPECT_EQ(strictEntries(log()).size(), 3 - over);
        EXPECT_EQ(log(), trimmedOneByOne(entries));
    }
    EXPECT_LT(log().size(), CleanupAuditStore::kMaximumBytes);
}

TEST_F(CleanupAuditStoreTest, DropsAnEntryThatAloneIsTooLarge)
{
    m_store.append(entry(1));
    EXPECT_TRUE(m_store.append(entryOfSize(0, CleanupAuditStore::kMaximumBytes)).empty());
    EXPECT_EQ(log(), "[\n\n]");
}

TEST_F(CleanupAuditStoreTest, LeavesTheFileAloneWhereAnEntryHasNoJSON)
{
    const auto first = entry();
    m_store.append(first);
    auto bad = entry();
    bad.occurredAt = Date{std::numeric_limits<double>::quiet_NaN()};
    EXPECT_TRUE(m_store.append(bad).empty());
    m_store.replaceEntries({bad, entry()}, 100);
    EXPECT_EQ(strictEntries(log()), Entries{first});
}

TEST_F(CleanupAuditStoreTest, TidiesAnOlderFileOnTheFirstLoad)
{
    auto old = entry();
    old.samplePaths = {"/home/ada/secret"};
    old.failureReasons = {"Could not move /home/ada/secret"};
    setLog(encoded(Entries{old}));
    const auto loaded = m_store.loadEntries();
    ASSERT_EQ(loaded.size(), 1);
    EXPECT_EQ(loaded[0].failureReasons, std::vector<std::string>{"<text:audit-failure-reason-1>"});
    EXPECT_EQ(log().find("secret"), std::string::npos);
    EXPECT_EQ(strictEntries(log()), loaded);
    EXPECT_TRUE(namesBesideLog().empty());
}

TEST_F(CleanupAuditStoreTest, NamesAFileThatItMovesAside)
{
    setLog("no log");
    const auto before = static_cast<std::int64_t>(Date::now().secondsSince1970());
    m_store.append(entry());
    const auto after = static_cast<std::int64_t>(Date::now().secondsSince1970());
    const auto aside = movedAside("undecodable");
    const std::string name(aside.lastPathComponent());
    const std::regex form(R"(cleanup-audit-log\.json\.undecodable-(\d+)-([0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}))");
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(name, parts, form)) << name;
    EXPECT_GE(std::stoll(parts[1]), before);
    EXPECT_LE(std::stoll(parts[1]), after);
    EXPECT_EQ(contentsOf(aside.path()), "no log");
}

TEST_F(CleanupAuditStoreTest, LiesInTheUsersDataFolder)
{
    using Platform::Environment;
    using Variables = std::map<std::string, std::string, std::less<>>;
    EXPECT_EQ(CleanupAuditStore::defaultFileURL(Environment(Variables{{"XDG_DATA_HOME", "/d"}, {"HOME", "/home/ada"}})),
        FileURL("/d/Karvello/cleanup-audit-log.json"));
    EXPECT_EQ(CleanupAuditStore::defaultFileURL(Environment(Variables{{"HOME", "/home/ada"}})),
        FileURL("/home/ada/.local/share/Karvello/cleanup-audit-log.json"));
}

} // namespace CleanerCore
