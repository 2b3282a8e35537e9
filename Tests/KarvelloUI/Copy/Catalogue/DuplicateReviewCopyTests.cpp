#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using Reason = CleanerCore::DuplicateKeeperRecommendationReason;

TEST(DuplicateReviewCopy, TellsHowMuchOfAGroupIsSelected)
{
    EXPECT_EQ(kEnglish.duplicateGroupSelectionSummary(0, 0, 3), "3 extra copies · none currently selectable");
    EXPECT_EQ(kEnglish.duplicateGroupSelectionSummary(0, 2, 3), "0 selected / 2 selectable · 3 extra copies");
    EXPECT_EQ(
        kEnglish.duplicateGroupSelectionSummary(1, 2, 3), "Partially selected: 1 / 2 selectable · 3 extra copies");
    EXPECT_EQ(kEnglish.duplicateGroupSelectionSummary(2, 2, 3), "All 2 selectable extras selected · 3 extra copies");
    EXPECT_EQ(kKorean.duplicateGroupSelectionSummary(1, 2, 3), "일부 선택: 1 / 선택 가능 2개 · 추가 사본 3개");
}

TEST(DuplicateReviewCopy, CountsOneExtraByItself)
{
    EXPECT_EQ(kEnglish.duplicateReviewCenterSubtitle(1, 2), "1 duplicate group · 2 files");
    EXPECT_EQ(KarvelloCopy{AppLanguage::japanese}.duplicateReviewCenterSubtitle(1, 2), "重複グループ1件 · ファイル2個");
    EXPECT_EQ(kEnglish.duplicateGroupSelectionSummary(0, 0, 1), "1 extra copy · none currently selectable");
    EXPECT_EQ(kEnglish.duplicateGroupSelectionSummary(0, 1, 1), "0 selected / 1 selectable · 1 extra copy");
    EXPECT_EQ(kEnglish.duplicateSelectedExtrasSubtitle(1), "1 selected extra will be moved to Trash");
    EXPECT_EQ(kEnglish.duplicateSelectedExtrasSubtitle(0), "0 selected extras will be moved to Trash");
    EXPECT_EQ(kEnglish.duplicateSelectedExtrasSubtitle(2), "2 selected extras will be moved to Trash");
}

TEST(DuplicateReviewCopy, GivesEveryReasonForAKeeper)
{
    CleanerCore::DuplicateKeeperRecommendation recommendation;
    recommendation.reasons = {Reason::preferredLocation, Reason::deterministicPathTieBreak};
    EXPECT_EQ(kEnglish.duplicateKeeperRecommendationSummary(recommendation),
        "Keeper recommendation: preferred folder · stable path order");
    EXPECT_EQ(kKorean.duplicateKeeperRecommendationSummary(recommendation),
        "유지할 파일 추천 이유: 우선하는 폴더 · 고정된 경로 순서");
    EXPECT_EQ(KarvelloCopy{AppLanguage::french}.duplicateKeeperRecommendationSummary(recommendation),
        "Recommandation pour la copie conservée : dossier privilégié · ordre stable des chemins");
}

} // namespace
} // namespace KarvelloUI
