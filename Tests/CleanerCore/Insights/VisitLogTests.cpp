#include "CleanerCore/Insights/VisitLog.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace CleanerCore {

namespace {

std::vector<std::string> reasons(const std::vector<SkippedItem>& items)
{
    std::vector<std::string> reasons;
    for (const auto& item : items) {
        reasons.push_back(item.reason);
    }
    return reasons;
}

VisitLog log()
{
    VisitLog log;
    log.addEnumerationError({{}, "before the first"});
    log.addItem(5);
    log.addFailure({{}, "the second"});
    log.addUncounted();
    log.addEnumerationError({{}, "before the fourth"});
    log.addItem(7);
    log.addEnumerationError({{}, "at the end"});
    return log;
}

} // namespace

TEST(VisitLog, CountsItemsAndTheirBytes)
{
    EXPECT_EQ(log().visits(), 4U);
    EXPECT_EQ(log().totals().byteSize, 12);
    EXPECT_EQ(log().totals().itemCount, 2);
}

TEST(VisitLog, CanBeCutAfterAnyVisit)
{
    const std::int64_t bytes[] = {0, 5, 5, 5, 12};
    const std::int64_t items[] = {0, 1, 1, 1, 2};
    const std::vector<std::string> failed[] = {{}, {}, {"the second"}, {"the second"}, {"the second"}};
    const std::vector<std::string> unlisted[] = {{"before the first"}, {"before the first"}, {"before the first"},
        {"before the first", "before the fourth"}, {"before the first", "before the fourth", "at the end"}};
    for (std::size_t visits = 0; visits <= 4; ++visits) {
        auto cut = log();
        EXPECT_EQ(cut.totals(visits).byteSize, bytes[visits]);
        EXPECT_EQ(cut.totals(visits).itemCount, items[visits]);
        std::vector<SkippedItem> failures;
        std::vector<SkippedItem> errors;
        cut.moveSkippedItems(visits, failures, errors);
        EXPECT_EQ(reasons(failures), failed[visits]) << visits;
        EXPECT_EQ(reasons(errors), unlisted[visits]) << visits;
    }
}

TEST(VisitLog, StaysAtTheLimitForFilesOfEightExbibytes)
{
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    VisitLog log;
    log.addItem(most);
    log.addItem(most);
    log.addItem(-1);
    EXPECT_EQ(log.totals().byteSize, most);
    EXPECT_EQ(log.totals(2).byteSize, most);
    EXPECT_EQ(log.totals().itemCount, 3);
}

} // namespace CleanerCore
