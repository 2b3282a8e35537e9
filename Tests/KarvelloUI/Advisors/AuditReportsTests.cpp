#include "KarvelloUI/Advisors/AuditReports.h"

#include "Tests/KarvelloUI/Advisors/AuditEntries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace KarvelloUI {
namespace {

using CleanerCore::CleaningMode;

/// What a move has left.
struct Left {
    int number = 0;
    std::int64_t itemCount = 0;
    std::int64_t bytes = 0;

    friend bool operator==(const Left&, const Left&) = default;
    friend void PrintTo(const Left& left, std::ostream* out)
    {
        *out << '#' << left.number << ": " << left.itemCount << " items, " << left.bytes << " bytes";
    }
};

std::vector<Left> leftOf(const std::vector<CleanupAuditEntry>& entries)
{
    std::vector<Left> all;
    for (const auto& [id, report] : auditReportsLessRestores(entries)) {
        int number = 0;
        while (auditId(number) != id) {
            ++number;
        }
        all.push_back({number, report.succeededItemCount, report.affectedBytes});
    }
    return all;
}

/// The same with and without paths.
void expectLeft(const std::vector<CleanupAuditEntry>& entries, const std::vector<Left>& left)
{
    EXPECT_EQ(leftOf(entries), left) << "with paths";
    EXPECT_EQ(leftOf(stored(entries)), left) << "as stored";
}

const TrashedFile kA{"/home/ada/.cache/a", 100};
const TrashedFile kB{"/home/ada/.cache/b", 20};
const TrashedFile kC{"/home/ada/.cache/c", 3};

TEST(AuditReports, HaveEveryMoveWithoutARestore)
{
    expectLeft({moveOf(1, 10, {kA, kB}), moveOf(2, 20, {kC})}, {{1, 2, 120}, {2, 1, 3}});
    expectLeft({}, {});
}

TEST(AuditReports, LeaveOutAMoveOfWhichEverythingWentBack)
{
    expectLeft({moveOf(1, 10, {kA, kB}), restoreOf(2, 20, {kA, kB})}, {});
    expectLeft({moveOf(1, 10, {kA, kB}), restoreOf(2, 20, {kB}), restoreOf(3, 30, {kA})}, {});
}

TEST(AuditReports, TellOfAPartlyRestoredMoveWhatIsLeft)
{
    expectLeft({moveOf(1, 10, {kA, kB, kC}), restoreOf(2, 20, {kA})}, {{1, 2, 23}});
    expectLeft({moveOf(1, 10, {kA, kB, kC}), restoreOf(2, 20, {kA, kC})}, {{1, 1, 20}});
}

TEST(AuditReports, PairAPathThatWasTrashedTwiceWithTheLatestMoveBeforeTheRestore)
{
    expectLeft({moveOf(1, 10, {kA, kB}), moveOf(2, 20, {kA, kC}), restoreOf(3, 30, {kA})}, {{1, 2, 120}, {2, 1, 3}});
    expectLeft({moveOf(1, 10, {kA, kB}), restoreOf(2, 20, {kA}), moveOf(3, 30, {kA, kC})}, {{1, 1, 20}, {3, 2, 103}});
}

TEST(AuditReports, PairASecondRestoreOfAPathWithTheMoveBefore)
{
    expectLeft({moveOf(1, 10, {kA, kB}), moveOf(2, 20, {kA, kC}), restoreOf(3, 30, {kA}), restoreOf(4, 40, {kA})},
        {{1, 1, 20}, {2, 1, 3}});
}

TEST(AuditReports, TakeNothingFromAMoveAfterTheRestore)
{
    expectLeft({restoreOf(1, 10, {kA}), moveOf(2, 20, {kA})}, {{2, 1, 100}});
}

TEST(AuditReports, TakeARestoreOfTheSameDateForALaterOne)
{
    expectLeft({restoreOf(1, 10, {kA}), moveOf(2, 10, {kA, kB})}, {{2, 1, 20}});
}

TEST(AuditReports, KeepTheSourcesApart)
{
    expectLeft({moveOf(1, 10, {kA}, CleanupAuditSource::macInsights), restoreOf(2, 20, {kA})}, {{1, 1, 100}});
    expectLeft({moveOf(1, 10, {kA}, CleanupAuditSource::macInsights), moveOf(2, 15, {kA}),
                   restoreOf(3, 20, {kA}, CleanupAuditSource::macInsights)},
        {{2, 1, 100}});
}

TEST(AuditReports, GiveNothingBackFromAPermanentDeletion)
{
    auto deletion = moveOf(1, 10, {kA});
    deletion.mode = CleaningMode::deletePermanently;
    expectLeft({deletion, restoreOf(2, 20, {kA})}, {{1, 1, 100}});
    expectLeft({moveOf(3, 5, {kA}), deletion, restoreOf(2, 20, {kA})}, {{1, 1, 100}});
}

TEST(AuditReports, TakeFromACleanOfUnknownModeToo)
{
    auto clean = moveOf(2, 20, {kA});
    clean.mode = std::nullopt;
    expectLeft({moveOf(1, 10, {kA}), clean, restoreOf(3, 30, {kA})}, {{1, 1, 100}});
}

TEST(AuditReports, FindTheWholeMoveThatWentBackByItsFigures)
{
    expectLeft({moveOf(1, 10, {kA}), moveOf(2, 20, {kA, kB}), moveOf(3, 30, {kC}), restoreOf(4, 40, {kA, kB})},
        {{1, 1, 100}, {3, 1, 3}});
    // What is left of a move is a whole, too.
    expectLeft({moveOf(1, 10, {kA, kB, kC}), moveOf(2, 20, {TrashedFile{"/x", 7}, TrashedFile{"/y", 9}}),
                   restoreOf(3, 30, {kA}), restoreOf(4, 40, {kB, kC})},
        {{2, 2, 16}});
}

TEST(AuditReports, FindTheOneItemThatWentBackByItsSize)
{
    expectLeft({moveOf(1, 10, {kA, kC}), moveOf(2, 20, {kA, kB}), restoreOf(3, 30, {kC})}, {{1, 1, 100}, {2, 2, 120}});
    // Of two equal ones the later goes first.
    expectLeft({moveOf(1, 10, {kC}), moveOf(2, 20, {kA, kC}), restoreOf(3, 30, {kC})}, {{1, 1, 3}, {2, 1, 100}});
}

TEST(AuditReports, TakeFromTheLatestMoveWhatNothingElseTells)
{
    EXPECT_EQ(leftOf(stored({moveOf(1, 10, {kA, kB, kC}), moveOf(2, 20, {kA, kB, kC}), restoreOf(3, 30, {kA, kC})})),
        (std::vector<Left>{{1, 3, 123}, {2, 1, 20}}));
}

TEST(AuditReports, PairOneRestoreWithSeveralMoves)
{
    expectLeft(
        {moveOf(1, 10, {kC}), moveOf(2, 20, {kA}), moveOf(3, 30, {kB}), restoreOf(4, 40, {kB, kA})}, {{1, 1, 3}});
}

TEST(AuditReports, TakeUnnamedItemsFromTheMoveOfTheNamedOnes)
{
    std::vector<TrashedFile> files;
    for (int index = 0; index < 12; ++index) {
        files.push_back({fmt::format("/home/ada/.cache/{}", index), 10 + index});
    }
    const std::vector<TrashedFile> restored(files.begin(), files.begin() + 8);
    // Of eight paths the entry names five.
    EXPECT_EQ(leftOf({moveOf(1, 10, files), moveOf(2, 20, {kA, kB, kC}), restoreOf(3, 30, restored)}),
        (std::vector<Left>{{1, 4, 18 + 19 + 20 + 21}, {2, 3, 123}}));
}

TEST(AuditReports, PairPathsOfWhichNoSizeIsKnown)
{
    auto move = moveOf(1, 10, {kA, kB, kC});
    move.cleanedItems.clear();
    EXPECT_EQ(leftOf({move, restoreOf(2, 20, {kA})}), (std::vector<Left>{{1, 2, 23}}));
    EXPECT_EQ(leftOf({move, restoreOf(2, 20, {kA, kB, kC})}), (std::vector<Left>{}));
    // What a move without items had is settled before what another has left.
    auto later = moveOf(3, 15, {kC});
    later.cleanedItems.clear();
    EXPECT_EQ(leftOf({move, later, restoreOf(4, 20, {kA, kC})}), (std::vector<Left>{{1, 2, 23}}));
}

TEST(AuditReports, TakeNothingForAPathWhoseMoveHasLeftTheLog)
{
    EXPECT_EQ(leftOf({moveOf(1, 10, {kA}), restoreOf(2, 20, {kB})}), (std::vector<Left>{{1, 1, 100}}));
}

TEST(AuditReports, TakeNothingForARestoreThatFailed)
{
    auto failed = restoreOf(2, 20, {});
    failed.failedItemCount = 3;
    failed.wasCancelled = true;
    expectLeft({moveOf(1, 10, {kA}), failed}, {{1, 1, 100}});
}

TEST(AuditReports, KeepAnItemWhileBytesAreLeft)
{
    auto restore = stored({restoreOf(3, 30, {kA, kB})})[0];
    restore.affectedBytes = 50;
    EXPECT_EQ(leftOf({moveOf(1, 10, {kA, kB}), restore}), (std::vector<Left>{{1, 1, 70}}));
}

TEST(AuditReports, TakeNoMoreThanThereIs)
{
    auto restore = stored({restoreOf(3, 30, {kA})})[0];
    restore.succeededItemCount = std::numeric_limits<std::int64_t>::max();
    restore.affectedBytes = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(leftOf({moveOf(1, 10, {kA, kB}), moveOf(2, 20, {kC}), restore}), (std::vector<Left>{}));
    restore.succeededItemCount = std::numeric_limits<std::int64_t>::min();
    restore.affectedBytes = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(leftOf({moveOf(1, 10, {kA, kB}), restore}), (std::vector<Left>{{1, 2, 120}}));
}

TEST(AuditReports, DoNotDependOnTheOrderOfTheEntries)
{
    std::vector<CleanupAuditEntry> entries{moveOf(1, 10, {kA, kB}), moveOf(2, 10, {kA, kC}), restoreOf(3, 30, {kA}),
        restoreOf(4, 30, {kB}), moveOf(5, 40, {kB})};
    const auto expected = auditReportsLessRestores(entries);
    const auto byId = [](const auto& left, const auto& right) { return left.id < right.id; };
    do {
        EXPECT_EQ(auditReportsLessRestores(entries), expected);
    } while (std::ranges::next_permutation(entries, byId).found);
}

TEST(AuditReports, TakeNamesForBytesAndNothingElse)
{
    const TrashedFile hostile{"/home/ada/\xff\n\u202e" + std::string(255, 'x'), 7};
    expectLeft({moveOf(1, 10, {hostile, kA}), restoreOf(2, 20, {hostile})}, {{1, 1, 100}});
}

} // namespace
} // namespace KarvelloUI
