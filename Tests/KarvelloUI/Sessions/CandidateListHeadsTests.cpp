#include "KarvelloUI/Sessions/CandidateListModel.h"
#include "KarvelloUI/Sessions/CandidateReview.h"
#include "Tests/KarvelloUI/Sessions/CandidateSamples.h"

#include <array>
#include <gmock/gmock.h>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using Mode = CandidateListGroupingMode;
using Role = CandidateListModel::Role;
using testing::ElementsAre;

/// Two categories, each row with its name; heads in brackets.
class CandidateListHeadsTest : public testing::Test {
protected:
    CandidateListHeadsTest()
    {
        QObject::connect(&model, &QAbstractItemModel::modelReset, [this] { ++resets; });
        apply({kLog, kCache, kOtherCache});
    }

    void apply(const std::vector<SampleCandidate>& samples)
    {
        review.apply(indexOf(samples), CandidateReview::Filters::reconcile);
        show({.groupingMode = Mode::category});
    }
    void show(CandidateListFilters filters)
    {
        review.setFilters(std::move(filters));
        model.show(review.selection().sharedIndex(), review.visibleCandidateSections(english()), english());
    }
    std::vector<std::string> rows() const
    {
        std::vector<std::string> names;
        for (int row = 0; row < model.count(); ++row) {
            const auto name = model.data(model.index(row), Role::nameRole).toString().toStdString();
            names.push_back(model.data(model.index(row), Role::isHeaderRole).toBool() ? "[" + name + "]" : name);
        }
        return names;
    }
    int checkState(int row) const { return model.data(model.index(row), Role::checkStateRole).toInt(); }
    void select(const SampleCandidate& sample, bool isSelected)
    {
        review.selection().setSelected(idOf(sample), isSelected);
        model.announceSelection(idOf(sample));
    }

    static constexpr SampleCandidate kCache{"/h/cache", CleanupCategory::userCaches, CleanupSafety::safe, 40, true};
    static constexpr SampleCandidate kOtherCache{"/h/other", CleanupCategory::userCaches, CleanupSafety::safe, 30};
    static constexpr SampleCandidate kLog{"/h/log", CleanupCategory::userLogs, CleanupSafety::safe, 50};

    CandidateReview review;
    CandidateListModel model{review.selection(), nullptr, CandidateListHeaders::rows};
    int resets = 0;
};

TEST_F(CandidateListHeadsTest, PutsAHeadBeforeEachSection)
{
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "cache", "other", "[User Logs]", "log"));
    EXPECT_EQ(model.candidate(0), nullptr);
    EXPECT_EQ(model.section(0)->bytes, 70);
    EXPECT_EQ(model.section(2)->defaultCount, 1);
    EXPECT_EQ(model.row(idOf(kLog)), 4);
    EXPECT_EQ(model.visibleCount(), 3);
}

TEST_F(CandidateListHeadsTest, HasNoHeadWithoutGroups)
{
    show({});
    EXPECT_THAT(rows(), ElementsAre("log", "cache", "other"));
}

TEST_F(CandidateListHeadsTest, AHeadTellsHowMuchOfItsSectionIsSelected)
{
    EXPECT_EQ(checkState(0), Qt::Unchecked);
    select(kCache, true);
    EXPECT_EQ(checkState(0), Qt::PartiallyChecked);
    select(kOtherCache, true);
    EXPECT_EQ(checkState(0), Qt::Checked);
    EXPECT_EQ(checkState(3), Qt::Unchecked);
    review.selection().selectAll();
    model.announceSelection();
    EXPECT_EQ(checkState(3), Qt::Checked);
}

TEST_F(CandidateListHeadsTest, AClosedSectionKeepsItsHeadAndCounts)
{
    model.setSectionOpen(QStringLiteral("category.userCaches"), false);
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "[User Logs]", "log"));
    EXPECT_EQ(model.row(idOf(kCache)), -1);
    EXPECT_EQ(model.visibleCount(), 3);
    select(kCache, true);
    EXPECT_EQ(checkState(0), Qt::PartiallyChecked);
    EXPECT_EQ(model.hiddenSelectedCount(), 0);
    model.setSectionOpen(QStringLiteral("category.userCaches"), true);
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "cache", "other", "[User Logs]", "log"));
    EXPECT_EQ(resets, 0);
}

TEST_F(CandidateListHeadsTest, ASectionStaysClosedThroughFiltersAndReports)
{
    model.setSectionOpen(QStringLiteral("category.userCaches"), false);
    show({.searchText = "cache", .groupingMode = Mode::category});
    EXPECT_THAT(rows(), ElementsAre("[User Caches]"));
    apply({kLog, kCache});
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "[User Logs]", "log"));
    EXPECT_EQ(model.section(0)->candidates.size(), 1U);
}

TEST_F(CandidateListHeadsTest, RowsStayWhenOneGoes)
{
    const QPersistentModelIndex log(model.index(4));
    apply({kLog, kCache});
    EXPECT_THAT(rows(), ElementsAre("[User Caches]", "cache", "[User Logs]", "log"));
    EXPECT_EQ(log.row(), 3);
    EXPECT_EQ(resets, 0);
}

TEST_F(CandidateListHeadsTest, SelectsAnyNumberAtOnce)
{
    const std::array<std::uint32_t, 2> positions{0, 2};
    EXPECT_TRUE(review.selection().setSelected(positions, true));
    EXPECT_FALSE(review.selection().setSelected(positions, true));
    EXPECT_EQ(review.selection().count(), 2);
    EXPECT_EQ(review.selection().bytes(), 80);
}

} // namespace

} // namespace KarvelloUI
