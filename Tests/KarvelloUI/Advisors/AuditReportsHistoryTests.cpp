#include "KarvelloUI/Advisors/AuditReports.h"

#include "KarvelloUI/Advisors/StorageTrendTimeline.h"
#include "Tests/KarvelloUI/Advisors/AuditEntries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <ranges>
#include <set>

namespace KarvelloUI {
namespace {

/// What lies in the Trash, item by item, as somebody would note it who watched.
struct WatchedMove {
    Platform::UUID id;
    CleanupAuditSource source = CleanupAuditSource::cleanupDashboard;
    std::vector<TrashedFile> inTrash;

    [[nodiscard]] std::int64_t bytes() const
    {
        std::int64_t sum = 0;
        for (const TrashedFile& file : inTrash) {
            sum += file.bytes;
        }
        return sum;
    }
};

struct History {
    std::vector<CleanupAuditEntry> entries;
    std::vector<WatchedMove> moves;

    [[nodiscard]] std::map<Platform::UUID, std::pair<std::int64_t, std::int64_t>> expected() const
    {
        std::map<Platform::UUID, std::pair<std::int64_t, std::int64_t>> left;
        for (const WatchedMove& move : moves) {
            if (!move.inTrash.empty()) {
                left[move.id] = {std::ssize(move.inTrash), move.bytes()};
            }
        }
        return left;
    }
};

/// What a user of the history restores at a time.
enum class RestoreHabit : std::uint8_t { upToFiveOfOneMove, oneItemOrAWholeMove, someOfTheLatest, anythingAtAll };

class HistoryMaker {
public:
    HistoryMaker(unsigned seed, RestoreHabit habit)
        : m_random(seed)
        , m_habit(habit)
    {
    }

    History make(int steps)
    {
        History history;
        for (int step = 0; step < steps; ++step) {
            // Two of three entries share a date with another now and then.
            m_date += static_cast<double>(below(3));
            if (below(5) < 3) {
                addMove(history, step);
            } else {
                addRestore(history, step);
            }
        }
        std::ranges::shuffle(history.entries, m_random);
        return history;
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    CleanupAuditSource anySource()
    {
        return Platform::allCases<CleanupAuditSource>()[static_cast<std::size_t>(below(3))];
    }

    void addMove(History& history, int step)
    {
        m_date += 1;
        WatchedMove move{.id = auditId(step), .source = anySource(), .inTrash = {}};
        std::set<int> names;
        for (int count = 1 + below(12); count > 0; --count) {
            // Few names, so that many paths are trashed again; sizes of which no two sums are likely to be equal.
            if (const int name = below(25); names.insert(name).second) {
                move.inTrash.push_back({fmt::format("/home/ada/.cache/{}", name),
                    1 + std::uniform_int_distribution<std::int64_t>(0, std::int64_t{1} << 40)(m_random)});
            }
        }
        history.entries.push_back(moveOf(step, m_date, move.inTrash, move.source));
        history.moves.push_back(std::move(move));
    }

    /// The latest move of a source that still has a path has its file.
    static bool isShadowed(const History& history, std::size_t move, const TrashedFile& file)
    {
        for (std::size_t later = move + 1; later < history.moves.size(); ++later) {
            if (history.moves[later].source == history.moves[move].source
                && std::ranges::find(history.moves[later].inTrash, file.path, &TrashedFile::path)
                    != history.moves[later].inTrash.end()) {
                return true;
            }
        }
        return false;
    }

    void addRestore(History& history, int step)
    {
        const auto source = anySource();
        std::vector<std::size_t> choices;
        for (std::size_t move = 0; move < history.moves.size(); ++move) {
            if (history.moves[move].source == source && !history.moves[move].inTrash.empty()) {
                choices.push_back(move);
            }
        }
        if (choices.empty()) {
            return;
        }
        const std::size_t chosen = m_habit == RestoreHabit::someOfTheLatest
            ? choices.back()
            : choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
        auto files = history.moves[chosen].inTrash;
        std::ranges::shuffle(files, m_random);
        switch (m_habit) {
        case RestoreHabit::upToFiveOfOneMove:
            std::erase_if(files, [&](const TrashedFile& file) { return isShadowed(history, chosen, file); });
            files.resize(std::min<std::size_t>(files.size(), static_cast<std::size_t>(1 + below(5))));
            break;
        case RestoreHabit::oneItemOrAWholeMove:
            files.resize(below(2) == 0 ? 1 : files.size());
            break;
        case RestoreHabit::someOfTheLatest:
        case RestoreHabit::anythingAtAll:
            files.resize(static_cast<std::size_t>(1 + below(static_cast<int>(files.size()))));
            break;
        }
        for (const TrashedFile& file : files) {
            std::erase(history.moves[chosen].inTrash, file);
        }
        history.entries.push_back(restoreOf(step, m_date, files, source));
    }

    std::mt19937 m_random;
    RestoreHabit m_habit;
    double m_date = 0;
};

auto leftIn(const std::vector<CleanupAuditEntry>& entries)
{
    std::map<Platform::UUID, std::pair<std::int64_t, std::int64_t>> left;
    for (const auto& [id, report] : auditReportsLessRestores(entries)) {
        left[id] = {report.succeededItemCount, report.pendingRecoveryBytes()};
    }
    return left;
}

constexpr int kHistories = 200;
constexpr int kSteps = 100;

TEST(AuditReportsHistory, IsExactWithPaths)
{
    for (unsigned seed = 0; seed < kHistories; ++seed) {
        const History history = HistoryMaker(seed, RestoreHabit::upToFiveOfOneMove).make(kSteps);
        ASSERT_EQ(leftIn(history.entries), history.expected()) << seed;
    }
}

TEST(AuditReportsHistory, IsExactAsStoredForWholeMovesAndSingleItems)
{
    for (unsigned seed = 0; seed < kHistories; ++seed) {
        const History history = HistoryMaker(seed, RestoreHabit::oneItemOrAWholeMove).make(kSteps);
        ASSERT_EQ(leftIn(stored(history.entries)), history.expected()) << seed;
    }
}

TEST(AuditReportsHistory, IsExactAsStoredForTheLatestMove)
{
    for (unsigned seed = 0; seed < kHistories; ++seed) {
        const History history = HistoryMaker(seed, RestoreHabit::someOfTheLatest).make(kSteps);
        ASSERT_EQ(leftIn(stored(history.entries)), history.expected()) << seed;
    }
}

TEST(AuditReportsHistory, LosesNoByteOfAnySourceWhateverWasRestored)
{
    for (unsigned seed = 0; seed < kHistories; ++seed) {
        const History history = HistoryMaker(seed, RestoreHabit::anythingAtAll).make(kSteps);
        std::map<CleanupAuditSource, std::int64_t> expected;
        for (const WatchedMove& move : history.moves) {
            expected[move.source] += move.bytes();
        }
        std::map<CleanupAuditSource, std::int64_t> found;
        for (const CleanupAuditSource source : Platform::allCases<CleanupAuditSource>()) {
            found[source] = 0;
            expected[source] += 0;
        }
        for (const auto& [id, report] : auditReportsLessRestores(stored(history.entries))) {
            found[report.source] += report.pendingRecoveryBytes();
            EXPECT_GE(report.succeededItemCount, 1);
            EXPECT_GE(report.affectedBytes, 1);
            EXPECT_LE(report.affectedBytes, report.expectedBytes);
        }
        ASSERT_EQ(found, expected) << seed;
    }
}

TEST(AuditReportsHistory, ShowsTheThreeLatestMovesThatHaveSomethingLeft)
{
    for (unsigned seed = 0; seed < kHistories; ++seed) {
        History history = HistoryMaker(seed, RestoreHabit::upToFiveOfOneMove).make(kSteps);
        std::vector<StorageTrendTimeline::Point> expected;
        for (const WatchedMove& move : history.moves | std::views::reverse) {
            if (!move.inTrash.empty() && expected.size() < 3) {
                const auto entry = std::ranges::find(history.entries, move.id, &CleanupAuditEntry::id);
                expected.push_back({.id = "audit-trash-" + move.id.string(),
                    .kind = StorageTrendTimelinePointKind::movedToTrashPending,
                    .bytes = move.bytes(),
                    .secondaryBytes = move.bytes(),
                    .occurredAt = entry->occurredAt,
                    .source = move.source,
                    .itemCount = std::ssize(move.inTrash)});
            }
        }
        ASSERT_EQ(StorageTrendTimeline::of({}, {}, {}, history.entries).points, expected) << seed;
        std::ranges::reverse(history.entries);
        ASSERT_EQ(StorageTrendTimeline::of({}, {}, {}, history.entries).points, expected) << seed;
    }
}

} // namespace
} // namespace KarvelloUI
