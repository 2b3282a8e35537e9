#include "Tests/KarvelloUI/Sessions/MacInsightsViewModelFixture.h"

namespace MacInsightsViewModelTests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using State = DuplicateGroupSelectionState;

class MacInsightsViewModelDuplicatesTest : public MacInsightsViewModelTest {
protected:
    MacInsightsViewModelDuplicatesTest() { scan(); }

    [[nodiscard]] State stateOf(std::string_view path) const
    {
        return session->duplicateReviewGroupPresentation(group(path)).selectionState;
    }
};

} // namespace

TEST_F(MacInsightsViewModelDuplicatesTest, ReviewsGroupsInTheOrderOfTheReport)
{
    std::vector<std::string> ids;
    for (const auto& review : session->duplicateReviewGroups()) {
        ids.push_back(review.id());
    }
    EXPECT_THAT(ids,
        ElementsAre(group("Documents/photo.jpg").id, group("Documents/disc.img").id,
            group("Library/Application Support/first.part").id));
}

TEST_F(MacInsightsViewModelDuplicatesTest, SelectsTheExtrasOfOneGroup)
{
    session->selectDuplicateExtras(group("Documents/photo.jpg"));
    EXPECT_THAT(paths(session->selectedFiles(duplicates)), ElementsAre("Pictures/copy.jpg", "Downloads/photo.jpg"));
    EXPECT_EQ(stateOf("Documents/photo.jpg"), State::all);
    EXPECT_EQ(stateOf("Documents/disc.img"), State::none);
    EXPECT_EQ(session->duplicateSelectedBytes(), session->selectedBytes());
    session->clearDuplicateGroupSelection(group("Documents/photo.jpg"));
    EXPECT_EQ(stateOf("Documents/photo.jpg"), State::none);
    EXPECT_EQ(session->selectedBytes(), 0);
}

TEST_F(MacInsightsViewModelDuplicatesTest, SelectsNothingWhereNothingMayBeCleaned)
{
    const auto& unreachable = group("Library/Application Support/first.part");
    EXPECT_EQ(stateOf("Library/Application Support/first.part"), State::unavailable);
    session->selectDuplicateExtras(unreachable);
    EXPECT_THAT(session->selectedIDs(), IsEmpty());
}

TEST_F(MacInsightsViewModelDuplicatesTest, ClearsItsOwnGroupOnly)
{
    session->selectAll(duplicates);
    const auto other = session->duplicateReviewGroupPresentation(group("Documents/disc.img"));
    session->clearDuplicateGroupSelection(group("Documents/photo.jpg"));
    EXPECT_EQ(session->duplicateReviewGroupPresentation(group("Documents/disc.img")), other);
    EXPECT_THAT(paths(session->selectedFiles(duplicates)), ElementsAre("Downloads/disc.img"));
}

TEST_F(MacInsightsViewModelDuplicatesTest, TellsWhichGroupsChangedBeforeTheSelection)
{
    std::vector<std::string> told;
    QObject::connect(session.get(), &MacInsightsViewModel::duplicateReviewGroupsChanged, session.get(),
        [&](const std::vector<std::size_t>& positions) {
            for (const auto position : positions) {
                told.push_back("group " + std::to_string(position));
            }
        });
    QObject::connect(
        session.get(), &MacInsightsViewModel::selectionChanged, session.get(), [&] { told.emplace_back("selection"); });
    select(duplicates, "Downloads/disc.img");
    EXPECT_THAT(told, ElementsAre("group 1", "selection"));
    told.clear();
    select(largeFiles, "Downloads/film.mov");
    EXPECT_THAT(told, ElementsAre("selection"));
    told.clear();
    session->selectAll(duplicates);
    EXPECT_THAT(told, ElementsAre("group 0", "selection"));
    told.clear();
    // A new report is told as a whole.
    scan();
    EXPECT_THAT(told, ElementsAre("selection"));
}

TEST_F(MacInsightsViewModelDuplicatesTest, TellsHowToReviewAGroupThatTheReportDoesNotKnow)
{
    auto files = group("Documents/photo.jpg").files;
    files.erase(files.begin());
    select(duplicates, "Downloads/photo.jpg");
    const CleanerCore::DuplicateFileGroup other("other", 1, std::move(files));
    const auto review = session->duplicateReviewGroupPresentation(other);
    EXPECT_EQ(review.keeper()->file->url, tree.url("home/Pictures/copy.jpg"));
    EXPECT_EQ(review.selectionState, State::all);
}

TEST_F(MacInsightsViewModelDuplicatesTest, RecommendsAKeeperToEveryFileOfItsGroup)
{
    for (const auto& copy : group("Documents/photo.jpg").files) {
        const auto* const recommendation = session->duplicateKeeperRecommendation(copy);
        ASSERT_NE(recommendation, nullptr);
        EXPECT_EQ(recommendation->keeperPath, tree.path("home/Documents/photo.jpg"));
    }
    EXPECT_EQ(session->duplicateKeeperRecommendation(file(largeFiles, "Downloads/film.mov")), nullptr);
    EXPECT_FALSE(session->isDuplicateKeeper(file(largeFiles, "Downloads/film.mov")));
}

TEST_F(MacInsightsViewModelDuplicatesTest, LeavesTheKeeperWhenTheExtrasAreCleaned)
{
    session->selectAll(duplicates);
    clean(duplicates);
    EXPECT_EQ(trashedCount(), 3);
    EXPECT_TRUE(stands("home/Documents/photo.jpg"));
    EXPECT_TRUE(stands("home/Documents/disc.img"));
    EXPECT_EQ(session->duplicateReviewGroups().size(), 1U);
}

} // namespace MacInsightsViewModelTests
