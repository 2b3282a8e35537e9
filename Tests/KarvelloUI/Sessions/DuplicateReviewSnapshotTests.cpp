#include "KarvelloUI/Sessions/DuplicateReviewSnapshot.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace KarvelloUI {

namespace {

using CleanerCore::DuplicateFileGroup;
using CleanerCore::FileInsight;
using CleanerCore::FileInsightKind;
using State = DuplicateGroupSelectionState;
using IDs = std::unordered_set<std::string>;

FileInsight copyAt(std::string_view path, std::int64_t sizeBytes = 10)
{
    return FileInsight(
        {.url = Platform::FileURL(path), .sizeBytes = sizeBytes, .kind = FileInsightKind::duplicate, .detail = {}});
}

std::string idAt(std::string_view path)
{
    return copyAt(path).id;
}

/// Groups and a selection as a session has them.
class DuplicateReview : public testing::Test {
protected:
    /// "Documents" is where the keeper lies.
    DuplicateReview()
    {
        use({DuplicateFileGroup("a1", 10, {copyAt("/h/Documents/a"), copyAt("/h/x/a", 11), copyAt("/h/y/a", 12)}),
            DuplicateFileGroup("b2", 20, {copyAt("/h/Documents/b", 20), copyAt("/h/x/b", 21)})});
    }

    /// All but the keepers can be selected.
    void use(std::vector<DuplicateFileGroup> groups)
    {
        source = std::make_shared<const std::vector<DuplicateFileGroup>>(std::move(groups));
        selectable.clear();
        for (const auto& group : *source) {
            for (const auto& file : group.extraCopies()) {
                selectable.insert(file.id);
            }
        }
        makeSnapshot();
    }
    void makeSnapshot() { snapshot = DuplicateReviewSnapshot(source, selection()); }

    DuplicateReviewSelection selection() const { return {selectable, selected}; }

    /// Changes the selection of one file, and has the snapshot follow.
    std::vector<std::size_t> click(std::string_view path)
    {
        const auto id = idAt(path);
        if (selected.erase(id) == 0) {
            selected.insert(id);
        }
        return snapshot.refresh({{id}}, selection());
    }

    const DuplicateReviewGroupPresentation& group(std::size_t index) const { return snapshot.groups()[index]; }

    static std::vector<std::string> pathsOf(const DuplicateReviewSnapshot::Files& files)
    {
        std::vector<std::string> paths;
        for (const auto* const file : files) {
            paths.push_back(file->url.path());
        }
        return paths;
    }

    /// Whatever came before: what stands is what a snapshot made now would hold.
    void expectFresh() const
    {
        const DuplicateReviewSnapshot fresh(source, selection());
        ASSERT_EQ(snapshot.groups().size(), fresh.groups().size());
        for (std::size_t index = 0; index < fresh.groups().size(); ++index) {
            ASSERT_EQ(group(index).selectionState, fresh.groups()[index].selectionState);
            ASSERT_EQ(group(index).selectedExtraBytes, fresh.groups()[index].selectedExtraBytes);
            ASSERT_TRUE(std::ranges::equal(group(index).rows, fresh.groups()[index].rows, {},
                &DuplicateReviewFilePresentation::isSelected, &DuplicateReviewFilePresentation::isSelected));
        }
        ASSERT_EQ(snapshot.files(), fresh.files());
        ASSERT_EQ(snapshot.selectableFiles(), fresh.selectableFiles());
        ASSERT_EQ(snapshot.selectedFiles(), fresh.selectedFiles());
        ASSERT_EQ(snapshot.selectableIDs(), fresh.selectableIDs());
        ASSERT_EQ(snapshot.selectedIDs(), fresh.selectedIDs());
        ASSERT_EQ(snapshot.selectedBytes(), fresh.selectedBytes());
    }

    std::shared_ptr<const std::vector<DuplicateFileGroup>> source;
    IDs selectable;
    IDs selected;
    DuplicateReviewSnapshot snapshot;
};

} // namespace

TEST_F(DuplicateReview, ShowsOneRowForEachFileInTheOrderOfTheGroup)
{
    const auto& rows = group(0).rows;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].file->url.path(), "/h/Documents/a");
    EXPECT_EQ(rows[0].role, DuplicateReviewFileRole::keeper);
    EXPECT_EQ(rows[1].role, DuplicateReviewFileRole::extra);
    EXPECT_EQ(rows[2].id(), idAt("/h/y/a"));
    EXPECT_EQ(group(0).keeper(), rows.data());
    EXPECT_EQ(group(0).totalExtraBytes, 23);
    EXPECT_EQ(group(0).selectableExtraBytes, 23);
    EXPECT_EQ(group(0).selectedExtraBytes, 0);
    EXPECT_EQ(group(0).selectionState, State::none);
}

TEST_F(DuplicateReview, OnlyTheRowOfTheKeeperHasTheRecommendation)
{
    ASSERT_NE(group(0).keeperRecommendation, nullptr);
    EXPECT_EQ(*group(0).keeperRecommendation, source->front().keeperRecommendation());
    EXPECT_EQ(group(0).rows[0].keeperRecommendation, group(0).keeperRecommendation);
    EXPECT_EQ(group(0).rows[1].keeperRecommendation, nullptr);
}

TEST_F(DuplicateReview, FindsGroupsByTheirIdAndByTheirFiles)
{
    EXPECT_EQ(snapshot.groupByID("b2"), &group(1));
    EXPECT_EQ(snapshot.groupByID("c3"), nullptr);
    EXPECT_EQ(snapshot.groupIndexByID("a1"), 0U);
    EXPECT_EQ(snapshot.groupIndexByFileID(idAt("/h/x/b")), 1U);
    EXPECT_EQ(snapshot.groupIndexByFileID("largeFile:/h/x/b"), std::nullopt);
    EXPECT_EQ(pathsOf(snapshot.files()),
        (std::vector<std::string>{"/h/Documents/a", "/h/x/a", "/h/y/a", "/h/Documents/b", "/h/x/b"}));
    EXPECT_EQ(pathsOf(snapshot.selectableFiles()), (std::vector<std::string>{"/h/x/a", "/h/y/a", "/h/x/b"}));
    EXPECT_TRUE(snapshot.isSelectable(idAt("/h/x/a")));
    EXPECT_FALSE(snapshot.isSelectable(idAt("/h/Documents/a")));
}

TEST_F(DuplicateReview, AnEmptySnapshotHasNothing)
{
    const DuplicateReviewSnapshot empty;
    EXPECT_TRUE(empty.groups().empty());
    EXPECT_TRUE(empty.selectedFiles().empty());
    EXPECT_EQ(empty.groupByID("a1"), nullptr);
    EXPECT_EQ(empty.selectedBytes(), 0);
}

TEST_F(DuplicateReview, AGroupWhoseExtrasAreAllOutsideTheAllowedRootsIsUnavailable)
{
    selectable = {idAt("/h/x/b")};
    makeSnapshot();
    EXPECT_EQ(group(0).selectionState, State::unavailable);
    EXPECT_EQ(group(0).selectableExtraBytes, 0);
    EXPECT_TRUE(selectDuplicateExtras(group(0), selected).empty());
    EXPECT_TRUE(selected.empty());
}

TEST_F(DuplicateReview, AGroupWithNoKeeperHasOnlyExtrasStillLimitedByWhatIsSelectable)
{
    // A keeper is a file of its group, so only a group without files has none.
    use({DuplicateFileGroup("e0", 10, {})});
    EXPECT_EQ(group(0).keeper(), nullptr);
    EXPECT_EQ(group(0).keeperRecommendation, nullptr);
    EXPECT_EQ(group(0).selectionState, State::unavailable);

    const auto a = copyAt("/h/a");
    const auto b = copyAt("/h/b");
    const DuplicateReviewGroupPresentation without{
        .group = &source->front(), .rows = {{.file = &a, .isSelectable = true}, {.file = &b}}};
    EXPECT_EQ(without.keeper(), nullptr);
    EXPECT_EQ(std::ranges::distance(without.extras()), 2);
    EXPECT_EQ(std::ranges::distance(without.selectableExtras()), 1);
}

TEST_F(DuplicateReview, SelectingSomeExtrasIsPartialAndTheRestMakesAll)
{
    click("/h/x/a");
    EXPECT_EQ(group(0).selectionState, State::partial);
    EXPECT_EQ(group(0).selectedExtraBytes, 11);
    EXPECT_EQ(selectDuplicateExtras(group(0), selected), std::vector{idAt("/h/y/a")});
    snapshot.refreshForSelectionDelta(selection());
    EXPECT_EQ(group(0).selectionState, State::all);
    EXPECT_EQ(group(0).selectedExtraBytes, 23);
    EXPECT_EQ(snapshot.selectedBytes(), 23);
}

TEST_F(DuplicateReview, AKeeperIsNeitherSelectableNorSelectedWhateverTheSessionSays)
{
    selectable.insert(idAt("/h/Documents/a"));
    selected.insert(idAt("/h/Documents/a"));
    makeSnapshot();
    EXPECT_EQ(std::ranges::distance(group(0).selectableExtras()), 2);
    EXPECT_TRUE(snapshot.selectedFiles().empty());
    EXPECT_FALSE(snapshot.selectedIDs().contains(idAt("/h/Documents/a")));
    EXPECT_EQ(group(0).selectionState, State::none);
}

TEST_F(DuplicateReview, WhatIsSelectedAndNotSelectableDoesNotCount)
{
    selected.insert(idAt("/h/x/a"));
    selectable.erase(idAt("/h/x/a"));
    makeSnapshot();
    EXPECT_EQ(group(0).selectionState, State::none);
    EXPECT_TRUE(snapshot.selectedFiles().empty());
}

TEST_F(DuplicateReview, ClearingAGroupTouchesOnlyIt)
{
    selected = {idAt("/h/x/a"), idAt("/h/y/a"), idAt("/h/x/b"), "largeFile:/h/other"};
    makeSnapshot();
    const auto other = group(1);
    const auto changed = clearDuplicateGroupSelection(group(0), selected);
    EXPECT_EQ(changed, (std::vector{idAt("/h/x/a"), idAt("/h/y/a")}));
    EXPECT_EQ(selected, (IDs{idAt("/h/x/b"), "largeFile:/h/other"}));
    EXPECT_EQ(snapshot.refresh(changed, selection()), std::vector<std::size_t>{0});
    EXPECT_EQ(group(0).selectionState, State::none);
    EXPECT_EQ(group(1), other);
    EXPECT_EQ(snapshot.selectedBytes(), 21);
}

TEST_F(DuplicateReview, AFileThatIsSelectedInAnotherSectionIsSelectedHereByItsId)
{
    // Another section selects by id and tells only which ids changed, among them some that are in no group.
    selected.insert(idAt("/h/x/b"));
    const std::vector<std::string> changed{"largeFile:/h/other", idAt("/h/x/b")};
    EXPECT_EQ(snapshot.refresh(changed, selection()), std::vector<std::size_t>{1});
    EXPECT_EQ(group(1).selectionState, State::all);
    EXPECT_TRUE(group(1).rows[1].isSelected);
}

TEST_F(DuplicateReview, AChangeOutsideOfAllGroupsMakesNothingAnew)
{
    selected.insert("largeFile:/h/other");
    EXPECT_TRUE(snapshot.refresh({{"largeFile:/h/other"}}, selection()).empty());
    EXPECT_TRUE(snapshot.refreshForSelectionDelta(selection()).empty());
}

TEST_F(DuplicateReview, FindsOutItselfWhichGroupsChanged)
{
    selected = {idAt("/h/x/a")};
    EXPECT_EQ(snapshot.refreshForSelectionDelta(selection()), std::vector<std::size_t>{0});
    selected = {idAt("/h/x/b")};
    EXPECT_EQ(snapshot.refreshForSelectionDelta(selection()), (std::vector<std::size_t>{0, 1}));
    EXPECT_TRUE(snapshot.refreshForSelectionDelta(selection()).empty());
    expectFresh();
}

TEST_F(DuplicateReview, WhatBecameUnselectableLeavesAllLists)
{
    click("/h/x/a");
    selectable.erase(idAt("/h/x/a"));
    EXPECT_EQ(snapshot.refresh({{idAt("/h/x/a")}}, selection()), std::vector<std::size_t>{0});
    EXPECT_EQ(pathsOf(snapshot.selectableFiles()), (std::vector<std::string>{"/h/y/a", "/h/x/b"}));
    EXPECT_TRUE(snapshot.selectedFiles().empty());
    expectFresh();
}

TEST_F(DuplicateReview, SelectedFilesComeInTheOrderOfTheGroups)
{
    click("/h/x/b");
    click("/h/y/a");
    click("/h/x/a");
    EXPECT_EQ(pathsOf(snapshot.selectedFiles()), (std::vector<std::string>{"/h/x/a", "/h/y/a", "/h/x/b"}));
}

TEST_F(DuplicateReview, LivesAsLongAsItsGroups)
{
    click("/h/x/a");
    const auto kept = snapshot;
    source.reset();
    snapshot = {};
    EXPECT_EQ(pathsOf(kept.selectedFiles()), (std::vector<std::string>{"/h/x/a"}));
    EXPECT_TRUE(kept.selectedIDs().contains(idAt("/h/x/a")));
}

TEST_F(DuplicateReview, IsWhatAFreshOneWouldBeAfterAnySequenceOfClicks)
{
    std::vector<DuplicateFileGroup> groups;
    for (int number = 0; number < 20; ++number) {
        std::vector<FileInsight> copies;
        for (int file = 0; file < 2 + number % 4; ++file) {
            copies.push_back(copyAt("/h/" + std::to_string(file) + "/" + std::to_string(number), number + file));
        }
        groups.emplace_back("group" + std::to_string(number), 1, std::move(copies));
    }
    use(std::move(groups));
    std::mt19937 random(3);
    for (int step = 0; step < 500; ++step) {
        const auto number = random() % 20;
        const auto& any = group(number);
        std::vector<std::string> changed;
        switch (random() % 4) {
        case 0:
            changed = selectDuplicateExtras(any, selected);
            break;
        case 1:
            changed = clearDuplicateGroupSelection(any, selected);
            break;
        default:
            click(any.rows[random() % any.rows.size()].file->url.path());
        }
        snapshot.refresh(changed, selection());
        expectFresh();
    }
}

} // namespace KarvelloUI
