#include "CleanerCore/Audit/LossyCleanupAuditEntryList.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// What becomes of a real log under every damage that a disk or a person can do to it. Each damaged log is loaded and
/// appended to, and judged by a reader of its own. With KARVELLO_FULL_RIGS set every damage is tried, else a part of
/// them that is spread evenly.
namespace CleanerCore {

namespace {

using namespace AuditTests;

constexpr std::size_t kLogBytes = std::size_t{64} * 1024;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kSlowness = 11;
#else
constexpr std::size_t kSlowness = 1;
#endif

/// The distance between two damages that are tried. Odd, so that every bit of a byte has its turn.
std::size_t stride(std::size_t quick)
{
    return std::getenv("KARVELLO_FULL_RIGS") != nullptr ? 1 : quick * kSlowness;
}

/// A log as the application writes it, of at least so many bytes.
Entries realEntries(std::size_t bytes)
{
    Entries entries;
    do {
        auto each = entry(static_cast<double>(entries.size()), static_cast<int>(entries.size() % 4));
        each.failureReasons = {"Access denied", "<text:audit-failure-reason-1>"};
        entries.push_back(each);
    } while (encoded(entries).size() < bytes);
    return entries;
}

/// What an independent parser makes of a log.
struct Verdict {
    bool isArray = false;
    /// Of the original entries, those that stand in it unharmed.
    std::vector<std::string> unharmedIds;
};

class Judge {
public:
    explicit Judge(const Entries& entries)
    {
        for (const auto& each : entries) {
            m_originals.emplace(each.id.string(), nlohmann::json::parse(encoded(each)));
        }
    }

    [[nodiscard]] Verdict verdict(std::string_view bytes) const
    {
        // The parser takes a NUL for the end.
        const auto document = bytes.find('\0') == std::string_view::npos
            ? nlohmann::json::parse(bytes, nullptr, false)
            : nlohmann::json(nlohmann::json::value_t::discarded);
        Verdict verdict{.isArray = document.is_array(), .unharmedIds = {}};
        if (verdict.isArray) {
            for (const auto& element : document) {
                if (const auto id = idOf(element); isOriginal(id, element)) {
                    verdict.unharmedIds.push_back(id);
                }
            }
        }
        return verdict;
    }

private:
    static std::string idOf(const nlohmann::json& element)
    {
        const auto id = element.is_object() ? element.find("id") : element.end();
        return id != element.end() && id->is_string() ? id->get<std::string>() : std::string();
    }

    [[nodiscard]] bool isOriginal(const std::string& id, const nlohmann::json& element) const
    {
        const auto original = m_originals.find(id);
        return original != m_originals.end() && original->second == element;
    }

    std::map<std::string, nlohmann::json> m_originals;
};

struct Tally {
    std::size_t damages = 0;
    std::size_t movedAside = 0;
    std::size_t salvaged = 0;
    /// What a reader that takes all or nothing would have lost, and this one kept.
    std::size_t lostByTheNaive = 0;

    void print(std::string_view name) const
    {
        std::printf("%.*s: %zu damages, %zu logs moved aside, %zu salvaged, %zu that a strict reader would have lost\n",
            static_cast<int>(name.size()), name.data(), damages, movedAside, salvaged, lostByTheNaive);
    }
};

bool containsInOrder(const std::vector<std::string>& all, const std::vector<std::string>& some)
{
    auto place = all.begin();
    for (const auto& each : some) {
        place = std::find(place, all.end(), each);
        if (place == all.end()) {
            return false;
        }
        ++place;
    }
    return true;
}

class AuditLogRig : public AuditStoreTest {
protected:
    /// The reader alone: what is unharmed is kept, and an array of nothing but sound entries is taken for sound.
    void expectReads(const Judge& judge, std::string_view bytes, Tally& tally)
    {
        ++tally.damages;
        const auto verdict = judge.verdict(bytes);
        const auto list = LossyCleanupAuditEntryList::read(bytes);
        if (!list) {
            ASSERT_TRUE(verdict.unharmedIds.empty()) << list.error().localizedDescription();
            return;
        }
        ASSERT_TRUE(verdict.isArray);
        ASSERT_TRUE(containsInOrder(ids(list->entries), verdict.unharmedIds));
        const bool isStrict = Platform::decodeJSON<Entries>(bytes).has_value();
        ASSERT_EQ(list->completeness == LossyCleanupAuditEntryList::Completeness::strict, isStrict);
        tally.salvaged += isStrict ? 0U : 1U;
        tally.lostByTheNaive += isStrict || verdict.unharmedIds.empty() ? 0U : 1U;
    }

    /// The store: a load gives what is unharmed and moves nothing; an append keeps that and the new entry, and keeps a
    /// file that is not sound aside, byte for byte.
    void expectSurvives(const Judge& judge, const std::string& bytes, Tally& tally)
    {
        ++tally.damages;
        const auto verdict = judge.verdict(bytes);
        setLog(bytes);
        const auto loaded = ids(m_store.loadEntries());
        ASSERT_TRUE(containsInOrder(loaded, verdict.unharmedIds));
        ASSERT_TRUE(namesBesideLog().empty());
        if (loaded.empty()) {
            ASSERT_EQ(log(), bytes);
        }

        setLog(bytes);
        const auto added = entry(-1, 0);
        const auto kept = m_store.append(added);
        ASSERT_EQ(kept.front().id, added.id);
        ASSERT_TRUE(containsInOrder(ids(kept), verdict.unharmedIds));
        ASSERT_EQ(strictEntries(log()), kept);
        const bool isSound = bytes.empty() || Platform::decodeJSON<Entries>(bytes).has_value();
        if (isSound) {
            ASSERT_TRUE(namesBesideLog().empty());
            return;
        }
        const auto aside = movedAside("undecodable");
        ASSERT_EQ(contentsOf(aside.path()), bytes);
        std::filesystem::remove(aside.path());
        ++tally.movedAside;
        tally.salvaged += kept.size() > 1 ? 1U : 0U;
        tally.lostByTheNaive += verdict.unharmedIds.empty() ? 0U : 1U;
    }

    /// Puts what `place` makes at the log's path, which is no file to read, and expects an append to keep it aside.
    void expectIsKeptAside(const std::function<void(const std::string&)>& place, std::filesystem::file_type type)
    {
        place(m_log.path());
        EXPECT_TRUE(m_store.loadEntries().empty());
        EXPECT_EQ(std::filesystem::symlink_status(m_log.path()).type(), type);
        EXPECT_TRUE(namesBesideLog().empty());
        const auto added = entry();
        EXPECT_EQ(m_store.append(added), Entries{added});
        EXPECT_EQ(std::filesystem::symlink_status(m_log.path()).type(), std::filesystem::file_type::regular);
        EXPECT_EQ(strictEntries(log()), Entries{added});
        EXPECT_EQ(std::filesystem::symlink_status(movedAside("unreadable").path()).type(), type);
    }

    /// Runs `body` in a process that may not do what permissions forbid; a failed expectation in it fails the test.
    void runUnprivileged(const std::function<void()>& body)
    {
        constexpr id_t nobody = 65534;
        const bool isPrivileged = geteuid() == 0;
        if (isPrivileged) {
            for (const auto& item : std::filesystem::recursive_directory_iterator(m_tree.root().path())) {
                ASSERT_EQ(lchown(item.path().c_str(), nobody, nobody), 0);
            }
            ASSERT_EQ(chmod(m_tree.root().path().c_str(), 0777), 0);
        }
        const auto child = fork();
        if (child == 0) {
            if (isPrivileged && (setgid(nobody) != 0 || setuid(nobody) != 0)) {
                _exit(2);
            }
            body();
            std::fflush(nullptr);
            _exit(HasFailure() ? 1 : 0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    }
};

std::string withBitFlipped(std::string bytes, std::size_t bit)
{
    bytes[bit / 8] = static_cast<char>(static_cast<unsigned char>(bytes[bit / 8]) ^ (1U << (bit % 8)));
    return bytes;
}

} // namespace

TEST_F(AuditLogRig, SurvivesACutAtEveryLength)
{
    const auto entries = realEntries(6'000);
    const Judge judge(entries);
    const auto whole = encoded(entries);
    Tally tally;
    const auto step = stride(7);
    for (std::size_t length = 0; length <= whole.size(); length += step) {
        SCOPED_TRACE(length);
        ASSERT_NO_FATAL_FAILURE(expectSurvives(judge, whole.substr(0, length), tally));
    }
    tally.print("cuts");
    EXPECT_EQ(tally.damages, whole.size() / step + 1);
    EXPECT_GE(tally.movedAside + 2, tally.damages); // All but the empty and the whole file.
}

TEST_F(AuditLogRig, ReadsALargeLogCutAtEveryLength)
{
    const auto entries = realEntries(kLogBytes);
    const Judge judge(entries);
    const auto whole = encoded(entries);
    Tally tally;
    for (std::size_t length = 0; length < whole.size(); length += stride(61)) {
        SCOPED_TRACE(length);
        ASSERT_NO_FATAL_FAILURE(expectReads(judge, std::string_view(whole).substr(0, length), tally));
    }
    tally.print("cuts of a large log");
}

TEST_F(AuditLogRig, ReadsALogWithAnyBitFlipped)
{
    const auto entries = realEntries(kLogBytes);
    const Judge judge(entries);
    const auto whole = encoded(entries);
    Tally tally;
    for (std::size_t bit = 0; bit < whole.size() * 8; bit += stride(61)) {
        SCOPED_TRACE(bit);
        ASSERT_NO_FATAL_FAILURE(expectReads(judge, withBitFlipped(whole, bit), tally));
    }
    tally.print("bits, read");
    EXPECT_GT(tally.lostByTheNaive, 0);
}

TEST_F(AuditLogRig, SurvivesAFlippedBit)
{
    const auto entries = realEntries(kLogBytes);
    const Judge judge(entries);
    const auto whole = encoded(entries);
    Tally tally;
    for (std::size_t bit = 0; bit < whole.size() * 8; bit += stride(1021)) {
        SCOPED_TRACE(bit);
        ASSERT_NO_FATAL_FAILURE(expectSurvives(judge, withBitFlipped(whole, bit), tally));
    }
    tally.print("bits, stored");
    EXPECT_GT(tally.movedAside, 0);
    EXPECT_GT(tally.lostByTheNaive, 0);
}

TEST_F(AuditLogRig, SurvivesZeroedAndLostBlocks)
{
    const auto entries = realEntries(kLogBytes);
    const Judge judge(entries);
    const auto whole = encoded(entries);
    Tally tally;
    for (const std::size_t blockBytes : {512UL, 4096UL}) {
        for (std::size_t start = 0; start < whole.size(); start += blockBytes) {
            SCOPED_TRACE(start);
            const auto length = std::min(blockBytes, whole.size() - start);
            for (const char filler : {'\0', ' ', '\xFF', '['}) {
                auto damaged = whole;
                damaged.replace(start, length, length, filler);
                ASSERT_NO_FATAL_FAILURE(expectSurvives(judge, damaged, tally));
            }
            auto shortened = whole;
            shortened.erase(start, length);
            ASSERT_NO_FATAL_FAILURE(expectSurvives(judge, shortened, tally));
        }
    }
    tally.print("blocks");
    EXPECT_GT(tally.movedAside, 0);
}

TEST_F(AuditLogRig, KeepsAFolderInPlaceOfTheLogAside)
{
    expectIsKeptAside([](const std::string& path) { std::filesystem::create_directories(path + "/with/content"); },
        std::filesystem::file_type::directory);
    EXPECT_TRUE(std::filesystem::exists(movedAside("unreadable").path() + "/with/content"));
}

TEST_F(AuditLogRig, KeepsAFIFOInPlaceOfTheLogAsideWithoutWaitingForIt)
{
    expectIsKeptAside(
        [](const std::string& path) { ASSERT_EQ(mkfifo(path.c_str(), 0600), 0); }, std::filesystem::file_type::fifo);
}

TEST_F(AuditLogRig, KeepsALinkInPlaceOfTheLogAsideAndDoesNotFollowIt)
{
    const auto target = m_tree.url("target.json");
    const auto bytes = encoded(Entries{entry()});
    setContent(target, bytes);
    expectIsKeptAside([&](const std::string& path) { std::filesystem::create_symlink(target.path(), path); },
        std::filesystem::file_type::symlink);
    EXPECT_EQ(contentsOf(target.path()), bytes);
}

TEST_F(AuditLogRig, KeepsALinkThatLeadsNowhereAside)
{
    expectIsKeptAside([](const std::string& path) { std::filesystem::create_symlink("nowhere", path); },
        std::filesystem::file_type::symlink);
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("Karvello/nowhere")));
}

TEST_F(AuditLogRig, AppendsToAReadOnlyFile)
{
    const auto first = entry(1);
    m_store.append(first);
    ASSERT_EQ(chmod(m_log.path().c_str(), 0444), 0);
    runUnprivileged([&] {
        const CleanupAuditStore store(m_posix, m_log);
        EXPECT_EQ(store.append(entry(0)).size(), 2);
        EXPECT_EQ(strictEntries(log()).size(), 2);
    });
    struct stat found{};
    ASSERT_EQ(stat(m_log.path().c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777U, 0444U);
}

TEST_F(AuditLogRig, KeepsAFileWithoutPermissionToReadAside)
{
    m_store.append(entry(1));
    const auto bytes = log();
    ASSERT_EQ(chmod(m_log.path().c_str(), 0), 0);
    runUnprivileged([&] {
        const CleanupAuditStore store(m_posix, m_log);
        EXPECT_TRUE(store.loadEntries().empty());
        EXPECT_EQ(store.append(entry(0)).size(), 1);
    });
    const auto aside = movedAside("unreadable");
    ASSERT_EQ(chmod(aside.path().c_str(), 0600), 0);
    EXPECT_EQ(contentsOf(aside.path()), bytes);
    EXPECT_EQ(strictEntries(log()).size(), 1);
}

TEST_F(AuditLogRig, LeavesALogInAReadOnlyFolderAsItIs)
{
    auto old = entry(1);
    old.samplePaths = {"/a"};
    const auto bytes = encoded(Entries{old});
    setLog(bytes);
    ASSERT_EQ(chmod(m_tree.path("Karvello").c_str(), 0555), 0);
    runUnprivileged([&] {
        const CleanupAuditStore store(m_posix, m_log);
        EXPECT_EQ(store.loadEntries().size(), 1);
        EXPECT_EQ(store.append(entry(0)).size(), 2);
        store.replaceEntries({entry()}, 100);
    });
    EXPECT_EQ(log(), bytes);
    EXPECT_TRUE(namesBesideLog().empty());
    EXPECT_FALSE(std::filesystem::exists(m_log.path() + ".lock"));
}

TEST_F(AuditLogRig, StartsAnewBesideADamagedLogInAReadOnlyFolder)
{
    setLog("no log");
    ASSERT_EQ(chmod(m_tree.path("Karvello").c_str(), 0555), 0);
    runUnprivileged([&] {
        const CleanupAuditStore store(m_posix, m_log);
        EXPECT_EQ(store.append(entry(0)).size(), 1);
    });
    EXPECT_EQ(log(), "no log");
}

} // namespace CleanerCore
