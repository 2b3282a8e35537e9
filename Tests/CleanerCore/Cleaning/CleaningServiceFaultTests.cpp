#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/SteppingFileManager.h"
#include "Tests/Support/UnsettledTrash.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <thread>

namespace CleaningTests {

using testing::IsEmpty;
using testing::SizeIs;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::SteppingFileManager;
using TestSupport::UnsettledTrash;

constexpr std::string_view kThreeItems = R"(
home/Caches/
    a size=10
    b/
        x size=5000
        y/
            z size=10
    c size=20
)";

enum class Whereabouts { missing, original, trash, both };

/// The desktop's Trash and three items, of which each must be in exactly one place at the end, and the result must say
/// in which.
class CleaningServiceFaultTest : public CleaningTest {
protected:
    CleaningServiceFaultTest() { m_trash = &m_unsettled; }

    /// A fresh tree for each round.
    void begin()
    {
        for (const auto* const folder : {"home/Caches", "home/.local/share/Trash"}) {
            if (exists(m_tree.path(folder))) {
                m_tree.remove(folder);
            }
        }
        m_tree.add(kThreeItems);
        m_fileManager = &m_posix;
        m_candidates = scan();
        m_numbers.clear();
        for (const auto& candidate : m_candidates) {
            m_numbers[candidate.displayName] = fileNumber(candidate.url.path());
        }
        ASSERT_THAT(m_candidates, SizeIs(3));
    }

    [[nodiscard]] static ino_t fileNumber(const std::string& path)
    {
        struct stat status{};
        return lstat(path.c_str(), &status) == 0 ? status.st_ino : 0;
    }

    [[nodiscard]] Whereabouts whereabouts(const std::string& name) const
    {
        const bool isHere = fileNumber(path(name)) == m_numbers.at(name);
        const auto trashed = names(trashFolder());
        const bool isThere = std::ranges::any_of(trashed, [&](const std::string& trashedName) {
            return fileNumber(trashFolder().path() + "/" + trashedName) == m_numbers.at(name);
        });
        return isHere && isThere ? Whereabouts::both
            : isHere             ? Whereabouts::original
            : isThere            ? Whereabouts::trash
                                 : Whereabouts::missing;
    }

    /// Every item is in one place, and the result names the same. One that is told to have failed for want of a
    /// verification has moved.
    void expectTruth(const CleanResult& result, const std::string& round) const
    {
        std::map<std::string, Whereabouts> told;
        for (const auto& candidate : m_candidates) {
            told[candidate.displayName] = Whereabouts::original;
        }
        for (const auto& cleaned : result.cleanedItems) {
            told[cleaned.candidate.displayName] = Whereabouts::trash;
            ASSERT_TRUE(cleaned.destinationURL);
            EXPECT_EQ(fileNumber(cleaned.destinationURL->path()), m_numbers.at(cleaned.candidate.displayName)) << round;
        }
        for (const auto& failed : result.failedItems) {
            EXPECT_FALSE(failed.reason.empty()) << round;
            EXPECT_EQ(told[failed.candidate.displayName], Whereabouts::original) << round << " is told twice";
            if (failed.reason == words(Kind::cleanupPostOperationVerificationFailed, failed.candidate.url)) {
                told[failed.candidate.displayName] = Whereabouts::trash;
            }
        }
        if (!result.wasCancelled) {
            EXPECT_EQ(result.cleanedItems.size() + result.failedItems.size(), m_candidates.size()) << round;
        }
        for (const auto& [name, place] : told) {
            EXPECT_EQ(whereabouts(name), place) << round << ": " << name;
        }
        expectSoundTrash();
    }

    std::vector<CleanupCandidate> m_candidates;
    std::map<std::string, ino_t> m_numbers;
    UnsettledTrash m_unsettled{m_linuxTrash};
};

constexpr std::array kCallsOfAClean{FileManagerCall::existence, FileManagerCall::resourceValues,
    FileManagerCall::identityValues, FileManagerCall::attributes, FileManagerCall::volumeSupportsCaseSensitiveNames,
    FileManagerCall::makeEnumerator, FileManagerCall::resolvingSymbolicLinks, FileManagerCall::listFolder,
    FileManagerCall::nextEntry, FileManagerCall::entryResourceValues};

TEST_F(CleaningServiceFaultTest, TellsTheTruthWhateverCallFailsOnceOrFromThenOn)
{
    std::size_t rounds = 0;
    for (const auto call : kCallsOfAClean) {
        for (const auto duration : {FaultDuration::once, FaultDuration::fromThenOn}) {
            for (std::size_t nth = 1;; ++nth) {
                begin();
                FaultyFileManager faulty(m_posix);
                faulty.fail({.call = call, .systemError = EIO, .nth = nth, .duration = duration});
                m_fileManager = &faulty;
                const auto result = clean(m_candidates);
                if (faulty.failureCount() == 0) {
                    break;
                }
                ++rounds;
                expectTruth(result, "call " + std::to_string(static_cast<int>(call)) + ", nth " + std::to_string(nth));
            }
        }
    }
    EXPECT_GT(rounds, 200U);
}

TEST_F(CleaningServiceFaultTest, TellsTheTruthWhenTheTrashItselfCannotReadItsItems)
{
    std::size_t rounds = 0;
    for (const auto call :
        {FileManagerCall::resourceValues, FileManagerCall::identityValues, FileManagerCall::attributes}) {
        for (std::size_t nth = 1;; ++nth) {
            begin();
            FaultyFileManager faulty(m_posix);
            faulty.fail({.call = call, .systemError = EACCES, .nth = nth});
            Platform::LinuxTrash trash(faulty, m_tree.url("home/.local/share/"));
            UnsettledTrash unsettled(trash);
            m_trash = &unsettled;
            const auto result = clean(m_candidates);
            m_trash = &m_unsettled;
            if (faulty.failureCount() == 0) {
                break;
            }
            ++rounds;
            expectTruth(
                result, "trash, call " + std::to_string(static_cast<int>(call)) + ", nth " + std::to_string(nth));
        }
    }
    EXPECT_GE(rounds, 15U);
}

TEST_F(CleaningServiceFaultTest, TellsTheTruthWhereverItIsStopped)
{
    std::size_t step = 0;
    std::size_t cancelled = 0;
    for (bool wasReached = true; wasReached;) {
        ++step;
        begin();
        std::stop_source source;
        const SteppingFileManager stepping(m_posix, [&](std::size_t number, FileManagerCall) {
            if (number == step) {
                source.request_stop();
            }
        });
        m_fileManager = &stepping;
        const auto result = clean(m_candidates, CleaningMode::moveToTrash, source.get_token());
        wasReached = stepping.count() >= step;
        cancelled += result.wasCancelled ? 1 : 0;
        EXPECT_THAT(result.failedItems, IsEmpty()) << step;
        if (!result.wasCancelled) {
            EXPECT_THAT(result.cleanedItems, SizeIs(3)) << step;
        }
        expectTruth(result, "stop before step " + std::to_string(step));
    }
    EXPECT_GT(step, 50U);
    // Only what comes after the last check of the last item goes on to the end.
    EXPECT_GT(cancelled, step - 10);
}

/// Before each step in turn, what stands at the path is exchanged for something newer, which must never move.
TEST_F(CleaningServiceFaultTest, NeverMovesWhatTookTheItemsPlaceAtAnyStep)
{
    std::size_t step = 0;
    std::size_t moved = 0;
    for (bool wasReached = true; wasReached;) {
        ++step;
        begin();
        m_tree.add("home/newer/\n    x size=10");
        const auto newer = fileNumber(m_tree.path("home/newer"));
        const SteppingFileManager stepping(m_posix, [&](std::size_t number, FileManagerCall) {
            // At the last steps the item has moved already.
            if (number == step && exists(path("b"))) {
                ASSERT_EQ(renameat2(AT_FDCWD, path("b").c_str(), AT_FDCWD, m_tree.path("home/newer").c_str(),
                              RENAME_EXCHANGE),
                    0);
            }
        });
        m_fileManager = &stepping;
        const auto result = clean({m_candidates.at(1)});
        wasReached = stepping.count() >= step;
        for (const auto& name : names(trashFolder())) {
            EXPECT_NE(fileNumber(trashFolder().path() + "/" + name), newer) << step;
        }
        EXPECT_EQ(result.cleanedItems.size(), names(trashFolder()).size()) << step;
        moved += result.cleanedItems.size();
        expectSoundTrash();
        m_tree.remove("home/newer");
    }
    EXPECT_GT(step, 20U);
    EXPECT_LE(moved, 10U);
}

TEST_F(CleaningServiceFaultTest, TwoServicesThatCleanTheSameItemsMoveEachOnce)
{
    for (int round = 0; round < 20; ++round) {
        begin();
        m_tree.add("home/Caches/part count=50 size=3");
        m_candidates = scan();
        for (const auto& candidate : m_candidates) {
            m_numbers[candidate.displayName] = fileNumber(candidate.url.path());
        }
        Platform::LinuxTrash otherTrash(m_posix, m_tree.url("home/.local/share/"));
        UnsettledTrash otherUnsettled(otherTrash);
        CleanResult first;
        CleanResult second;
        {
            const std::jthread other([&] {
                second = CleaningService(m_posix, otherUnsettled)
                             .clean(m_candidates, m_locations, CleaningMode::moveToTrash, *m_policy, {}, home());
            });
            first = clean(m_candidates);
        }
        EXPECT_EQ(first.cleanedItems.size() + second.cleanedItems.size(), m_candidates.size());
        EXPECT_EQ(first.failedItems.size() + second.failedItems.size(), m_candidates.size());
        EXPECT_THAT(names(item("")), IsEmpty());
        for (const auto& candidate : m_candidates) {
            EXPECT_EQ(whereabouts(candidate.displayName), Whereabouts::trash) << candidate.displayName;
        }
        expectSoundTrash();
    }
}

} // namespace CleaningTests
