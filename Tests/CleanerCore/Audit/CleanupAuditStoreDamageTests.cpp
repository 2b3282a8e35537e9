#include "CleanerCore/Audit/CleanupAuditStore.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"
#include "Tests/Support/FaultyFileManager.h"

#include <cerrno>

namespace CleanerCore {

namespace {

using namespace AuditTests;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using Call = TestSupport::FileManagerCall;
using enum Call;

class CleanupAuditStoreDamageTest : public AuditStoreTest {
protected:
    /// What every damage without a good entry comes to: a load leaves it, an append moves it aside.
    void expectIsMovedAside(std::string_view reason, std::string_view bytes)
    {
        EXPECT_TRUE(m_store.loadEntries().empty());
        EXPECT_EQ(log(), bytes);
        EXPECT_TRUE(namesBesideLog().empty());
        const auto first = entry();
        EXPECT_EQ(m_store.append(first), Entries{first});
        EXPECT_EQ(strictEntries(log()), Entries{first});
        EXPECT_EQ(contentsOf(movedAside(reason).path()), bytes);
    }

    /// A store whose file manager fails.
    Entries appendWith(const FaultyFileManager& faulty, const CleanupAuditEntry& added)
    {
        return CleanupAuditStore(faulty, m_log).append(added);
    }

    FaultyFileManager m_faulty{m_fileManager};
};

std::string logOfSize(std::size_t size)
{
    auto bytes = encoded(Entries{entry()});
    bytes.resize(size, ' ');
    return bytes;
}

} // namespace

TEST_F(CleanupAuditStoreDamageTest, MovesAsideWhatIsNoJSON)
{
    setLog("[{");
    expectIsMovedAside("undecodable", "[{");
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideWhatIsNoArray)
{
    const auto bytes = encoded(entry());
    setLog(bytes);
    expectIsMovedAside("undecodable", bytes);
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideALogWithoutAGoodElement)
{
    setLog("[null, 17]");
    expectIsMovedAside("undecodable", "[null, 17]");
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideALogWithAnElementThatIsTooDeep)
{
    const auto bytes = "[" + encoded(entry()) + "," + std::string(66, '[') + std::string(66, ']') + "]";
    setLog(bytes);
    expectIsMovedAside("undecodable", bytes);
}

TEST_F(CleanupAuditStoreDamageTest, ReadsAFileOfExactlyTheMaximumSize)
{
    setLog(logOfSize(CleanupAuditStore::kMaximumBytes));
    EXPECT_EQ(m_store.loadEntries().size(), 1);
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideAFileOfOneByteMore)
{
    const auto bytes = logOfSize(CleanupAuditStore::kMaximumBytes + 1);
    setLog(bytes);
    expectIsMovedAside("oversized", bytes);
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideAFileThatGrewAfterTheLookAtIt)
{
    setLog("[]");
    m_faulty.fail({.call = readFile, .systemError = EFBIG});
    EXPECT_EQ(appendWith(m_faulty, entry()).size(), 1);
    EXPECT_EQ(contentsOf(movedAside("oversized").path()), "[]");
}

TEST_F(CleanupAuditStoreDamageTest, DoesNotReadAHugeSparseFile)
{
    setLog("");
    std::filesystem::resize_file(m_log.path(), std::uintmax_t{8} << 40U);
    EXPECT_TRUE(CleanupAuditStore(m_faulty, m_log).loadEntries().empty());
    EXPECT_EQ(m_faulty.count(readFile), 0);
    EXPECT_EQ(appendWith(m_faulty, entry()).size(), 1);
    EXPECT_EQ(m_faulty.count(readFile), 0);
    EXPECT_EQ(std::filesystem::file_size(movedAside("oversized").path()), std::uintmax_t{8} << 40U);
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideAFileWhoseAttributesCannotBeRead)
{
    m_store.append(entry());
    const auto before = log();
    m_faulty.fail({.call = resourceValues, .systemError = EIO, .duration = FaultDuration::fromThenOn});
    EXPECT_TRUE(CleanupAuditStore(m_faulty, m_log).loadEntries().empty());
    EXPECT_EQ(log(), before);
    EXPECT_EQ(appendWith(m_faulty, entry()).size(), 1);
    EXPECT_EQ(contentsOf(movedAside("unreadable").path()), before);
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideAFileThatCannotBeRead)
{
    for (const int error : {EACCES, EIO, EMFILE, ENOMEM}) {
        m_store.append(entry());
        const auto before = log();
        FaultyFileManager faulty(m_fileManager);
        faulty.fail({.call = readFile, .systemError = error, .duration = FaultDuration::fromThenOn});
        EXPECT_TRUE(CleanupAuditStore(faulty, m_log).loadEntries().empty());
        EXPECT_EQ(log(), before);
        EXPECT_EQ(appendWith(faulty, entry()).size(), 1);
        EXPECT_EQ(contentsOf(movedAside("unreadable").path()), before);
        m_tree.remove("Karvello");
        m_tree.add("Karvello/");
    }
}

TEST_F(CleanupAuditStoreDamageTest, SavesTheGoodEntriesOnALoadAndKeepsNoCopyOfTheBad)
{
    const auto good = entry();
    setLog("[17, " + encoded(good) + ", {}]");
    EXPECT_EQ(m_store.loadEntries(), Entries{good});
    EXPECT_EQ(log(), encoded(Entries{good}));
    EXPECT_TRUE(namesBesideLog().empty());
}

TEST_F(CleanupAuditStoreDamageTest, SavesTheGoodEntriesOnAnAppendAndKeepsTheOldFile)
{
    const auto good = entry(1);
    const auto bytes = "[17, " + encoded(good) + ", {}]";
    setLog(bytes);
    const auto added = entry(0);
    EXPECT_EQ(m_store.append(added), (Entries{added, good}));
    EXPECT_EQ(strictEntries(log()), (Entries{added, good}));
    EXPECT_EQ(contentsOf(movedAside("undecodable").path()), bytes);
}

TEST_F(CleanupAuditStoreDamageTest, KeepsALogOfANewerVersionAsideBeforeItWritesItsOwn)
{
    const auto good = entry(1);
    auto newer = encoded(entry(0));
    newer.replace(newer.rfind("\"clean\""), 7, "\"archive\"");
    const auto bytes = "[" + newer + "," + encoded(good) + "]";
    setLog(bytes);
    const auto added = entry(-1);
    EXPECT_EQ(m_store.append(added), (Entries{added, good}));
    EXPECT_EQ(contentsOf(movedAside("undecodable").path()), bytes);
}

TEST_F(CleanupAuditStoreDamageTest, MovesAsideNothingForCleanedItemsOfAWrongType)
{
    auto bare = entry(1);
    bare.cleanedItems.clear();
    auto text = encoded(Entries{bare});
    const auto place = text.find("[\n\n");
    text.replace(place, text.find(']', place) + 1 - place, "\"lost\"");
    setLog(text);
    const auto added = entry(0);
    EXPECT_EQ(m_store.append(added), (Entries{added, bare}));
    EXPECT_TRUE(namesBesideLog().empty());
}

TEST_F(CleanupAuditStoreDamageTest, ReplacesADamagedFileThatCannotBeMoved)
{
    setLog("no log");
    m_faulty.fail({.call = moveItem, .systemError = EPERM});
    const auto added = entry();
    EXPECT_EQ(appendWith(m_faulty, added), Entries{added});
    EXPECT_EQ(m_faulty.failureCount(), 1);
    EXPECT_EQ(strictEntries(log()), Entries{added});
}

TEST_F(CleanupAuditStoreDamageTest, AnswersAsIfItHadWrittenWhereItCannot)
{
    const auto first = entry(1);
    m_store.append(first);
    const auto before = log();
    m_faulty.fail({.call = writeAtomically, .systemError = ENOSPC, .duration = FaultDuration::fromThenOn});
    const auto added = entry(0);
    EXPECT_EQ(appendWith(m_faulty, added), (Entries{added, first}));
    CleanupAuditStore(m_faulty, m_log).replaceEntries({added}, 100);
    EXPECT_EQ(m_faulty.failureCount(), 2);
    EXPECT_EQ(log(), before);
}

TEST_F(CleanupAuditStoreDamageTest, LoadsEvenWhereItCannotTidy)
{
    auto old = entry();
    old.samplePaths = {"/a"};
    const auto bytes = encoded(Entries{old});
    setLog(bytes);
    m_faulty.fail({.call = writeAtomically, .systemError = EROFS});
    EXPECT_EQ(CleanupAuditStore(m_faulty, m_log).loadEntries().size(), 1);
    EXPECT_EQ(m_faulty.failureCount(), 1);
    EXPECT_EQ(log(), bytes);
}

TEST_F(CleanupAuditStoreDamageTest, LeavesAFileAloneThatCannotBeReadAgainToTidyIt)
{
    auto old = entry();
    old.samplePaths = {"/a"};
    const auto bytes = encoded(Entries{old});
    setLog(bytes);
    m_faulty.fail({.call = readFile, .systemError = EIO, .nth = 2});
    EXPECT_TRUE(CleanupAuditStore(m_faulty, m_log).loadEntries().empty());
    EXPECT_EQ(m_faulty.failureCount(), 1);
    EXPECT_EQ(log(), bytes);
}

TEST_F(CleanupAuditStoreDamageTest, AnswersEvenWhereItsFolderCannotBeMade)
{
    m_tree.add("file size=1");
    const CleanupAuditStore store(m_fileManager, m_tree.url("file/log.json"));
    EXPECT_TRUE(store.loadEntries().empty());
    m_faulty.fail({.call = createDirectory, .systemError = EACCES});
    m_faulty.fail({.call = writeAtomically, .systemError = ENOENT});
    const auto added = entry();
    EXPECT_EQ(CleanupAuditStore(m_faulty, m_tree.url("a/log.json")).append(added), Entries{added});
    EXPECT_EQ(m_faulty.failureCount(), 2);
}

TEST_F(CleanupAuditStoreDamageTest, WritesNothingWhereTheFileIsAsItWouldWriteIt)
{
    m_store.append(entry(1));
    m_store.append(entry(0, 20));
    const CleanupAuditStore store(m_faulty, m_log);
    EXPECT_EQ(store.loadEntries().size(), 2);
    EXPECT_EQ(store.loadEntries(1).size(), 1);
    EXPECT_EQ(m_faulty.count(writeAtomically), 0);
    EXPECT_EQ(m_faulty.count(createDirectory), 0);
}

} // namespace CleanerCore
