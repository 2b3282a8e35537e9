#include "KarvelloUI/Screens/Insights/InsightListScreenModel.h"

#include "Tests/KarvelloUI/Screens/Insights/InsightScreenFixture.h"

#include <gmock/gmock.h>

namespace InsightScreenTests {

namespace {

using testing::ElementsAre;
using Role = InsightListModel::Role;

class InsightListScreenModelTest : public InsightScreenTest {
protected:
    using InsightScreenTest::InsightScreenTest;

    [[nodiscard]] static QVariant value(InsightListScreenModel& screen, int row, Role role)
    {
        return screen.rows()->index(row, 0).data(role);
    }
    [[nodiscard]] static std::string text(InsightListScreenModel& screen, int row, Role role)
    {
        return value(screen, row, role).toString().toStdString();
    }
    [[nodiscard]] static std::vector<std::string> names(InsightListScreenModel& screen)
    {
        std::vector<std::string> found;
        for (int row = 0; row < screen.rows()->rowCount(); ++row) {
            found.push_back(text(screen, row, Role::nameRole));
        }
        return found;
    }
    static int key(InsightListScreenModel& screen, int row) { return value(screen, row, Role::keyRole).toInt(); }
};

} // namespace

TEST_F(InsightListScreenModelTest, ListsTheFilesOfItsSectionBySize)
{
    InsightListScreenModel large(*dashboard, largeFiles);
    InsightListScreenModel downloaded(*dashboard, downloads);
    EXPECT_EQ(large.content(), InsightScreenModel::Idle);
    EXPECT_EQ(large.count(), 0);
    scan();
    EXPECT_EQ(large.content(), InsightScreenModel::Results);
    EXPECT_THAT(names(large), ElementsAre("film.mov", "engine.bin", "disc.img", "disc.img", "thesis.pdf"));
    EXPECT_THAT(names(downloaded), ElementsAre("film.mov", "disc.img", "photo.jpg", "setup.sh"));
    EXPECT_EQ(large.count(), 5);
    EXPECT_EQ(large.title().toStdString(), "Large Files");
    EXPECT_EQ(text(large, 0, Role::pathRole), "~/Downloads/film.mov");
    EXPECT_EQ(text(large, 0, Role::ageRole), "1 month");
    EXPECT_EQ(text(large, 0, Role::sizeRole), "128 KB");
    EXPECT_EQ(text(large, 0, Role::iconNameRole), "film");
    EXPECT_EQ(text(large, 0, Role::fullPathRole), tree.path("home/Downloads/film.mov"));
}

TEST_F(InsightListScreenModelTest, LetsOnlyFilesBeSelectedThatMayBeCleaned)
{
    InsightListScreenModel screen(*dashboard, largeFiles);
    scan();
    EXPECT_FALSE(value(screen, 1, Role::isSelectableRole).toBool()) << "it lies in the library";
    screen.toggle(key(screen, 1));
    EXPECT_EQ(session().selectedCount(), 0);
    screen.toggle(key(screen, 0));
    EXPECT_TRUE(value(screen, 0, Role::isSelectedRole).toBool());
    EXPECT_EQ(screen.selectionTitle().toStdString(), "1 selected · 128 KB");
    EXPECT_EQ(screen.selectionState(), Qt::PartiallyChecked);
    screen.toggle(key(screen, 0));
    EXPECT_EQ(session().selectedCount(), 0);
    EXPECT_EQ(screen.selectionTitle().toStdString(), "No items selected");
    EXPECT_FALSE(screen.canClean());
    EXPECT_EQ(screen.cleanDisabledReason().toStdString(), "No items selected");
}

TEST_F(InsightListScreenModelTest, SelectsAllAndNoneOfItsOwnSection)
{
    InsightListScreenModel large(*dashboard, largeFiles);
    InsightListScreenModel downloaded(*dashboard, downloads);
    scan();
    downloaded.selectAll();
    EXPECT_EQ(downloaded.selectionState(), Qt::Checked);
    EXPECT_FALSE(downloaded.canSelectAll());
    EXPECT_EQ(large.selectionState(), Qt::Unchecked) << "each list has its own selection";
    large.toggleAll();
    EXPECT_EQ(large.selectionState(), Qt::Checked);
    downloaded.toggleAll();
    EXPECT_EQ(downloaded.selectionState(), Qt::Unchecked);
    EXPECT_EQ(large.selectionState(), Qt::Checked);
    large.clearSelection();
    EXPECT_EQ(session().selectedCount(), 0);
}

TEST_F(InsightListScreenModelTest, AnnouncesOnlyTheRowThatAClickChanges)
{
    InsightListScreenModel screen(*dashboard, largeFiles);
    scan();
    QSignalSpy changes(screen.rows(), &QAbstractItemModel::dataChanged);
    QSignalSpy resets(screen.rows(), &QAbstractItemModel::modelReset);
    screen.toggle(key(screen, 4));
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 4);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 4);
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(InsightListScreenModelTest, AsksBeforeAnythingMoves)
{
    InsightListScreenModel screen(*dashboard, downloads);
    scan();
    screen.requestClean();
    EXPECT_FALSE(dashboard->isShowingInsightCleanConfirmation()) << "nothing is selected";
    screen.toggle(key(screen, 0));
    screen.requestClean();
    EXPECT_EQ(dashboard->pendingInsightSection(), downloads);
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(InsightListScreenModelTest, TellsWhatWasMovedAndLeadsToTheRestoreCenter)
{
    InsightListScreenModel screen(*dashboard, downloads);
    scan();
    EXPECT_EQ(screen.banner(), InsightScreenModel::NoBanner);
    screen.toggle(key(screen, 0));
    screen.requestClean();
    dashboard->cleanSelectedInsight();
    EXPECT_TRUE(screen.isCleaning());
    EXPECT_EQ(screen.content(), InsightScreenModel::Results) << "the list stays while it is worked on";
    EXPECT_FALSE(screen.canClean());
    settle();
    EXPECT_EQ(trashedCount(), 1);
    EXPECT_EQ(screen.count(), 3);
    EXPECT_EQ(screen.banner(), InsightScreenModel::DoneBanner);
    EXPECT_EQ(screen.bannerText().toStdString(), "1 moved to Trash, 0 failed · 128 KB");
    screen.runBannerAction();
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::reviewEvidence);
    screen.closeBanner();
    EXPECT_EQ(screen.banner(), InsightScreenModel::NoBanner);
    scan();
    EXPECT_EQ(screen.banner(), InsightScreenModel::NoBanner);
}

TEST_F(InsightListScreenModelTest, TellsAFailureInTheWordsOfTheSession)
{
    InsightListScreenModel screen(*dashboard, downloads);
    scan();
    screen.selectAll();
    tree.remove("home/Downloads");
    screen.requestClean();
    dashboard->cleanSelectedInsight();
    settle();
    ASSERT_TRUE(session().errorMessage().has_value());
    EXPECT_EQ(screen.banner(), InsightScreenModel::FailedBanner);
    EXPECT_EQ(screen.bannerTitle().toStdString(), *session().errorMessage());
    EXPECT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_NE(screen.bannerTitle().toStdString(), *session().errorMessage());
    EXPECT_EQ(screen.content(), InsightScreenModel::Results) << "what was found stays in use";
}

TEST_F(InsightListScreenModelTest, TellsTheSameFailureAgainThoughItWasClosed)
{
    InsightListScreenModel screen(*dashboard, downloads);
    scan();
    tree.remove("home/Downloads");
    for (int time = 0; time < 2; ++time) {
        screen.selectAll();
        screen.requestClean();
        dashboard->cleanSelectedInsight();
        EXPECT_EQ(screen.banner(), InsightScreenModel::NoBanner);
        settle();
        EXPECT_EQ(screen.banner(), InsightScreenModel::FailedBanner);
        EXPECT_THAT(screen.bannerTitle().toStdString(), testing::StartsWith("Some selected items are no longer"));
        screen.closeBanner();
        EXPECT_EQ(screen.banner(), InsightScreenModel::NoBanner);
    }
}

TEST_F(InsightListScreenModelTest, DoesNothingToRowsThatHaveGone)
{
    InsightListScreenModel screen(*dashboard, downloads);
    scan();
    const int before = key(screen, 0);
    scan();
    EXPECT_NE(key(screen, 0), before);
    screen.toggle(before);
    screen.reveal(before);
    screen.setOpen(before, true);
    EXPECT_EQ(session().selectedCount(), 0);
    EXPECT_TRUE(fileViewer.selected.empty());
    EXPECT_FALSE(value(screen, 0, Role::isOpenRole).toBool());
    screen.reveal(key(screen, 1));
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/Downloads/disc.img")));
}

TEST_F(InsightListScreenModelTest, OnlyShowsWhatTheInstallerReviewFound)
{
    InsightListScreenModel screen(*dashboard, security);
    scan();
    ASSERT_EQ(screen.count(), 1);
    EXPECT_FALSE(screen.hasFooter());
    EXPECT_EQ(text(screen, 0, Role::nameRole), "setup.sh");
    EXPECT_EQ(text(screen, 0, Role::reasonRole), "Shell script");
    EXPECT_EQ(text(screen, 0, Role::pillRole), "Review only");
    EXPECT_FALSE(value(screen, 0, Role::isSelectableRole).toBool());
    screen.toggle(key(screen, 0));
    screen.selectAll();
    screen.requestClean();
    EXPECT_EQ(session().selectedCount(), 0);
    EXPECT_FALSE(dashboard->isShowingInsightCleanConfirmation());
    EXPECT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(text(screen, 0, Role::reasonRole), "Shell-Skript");
}

TEST_F(InsightListScreenModelTest, TellsWhatIsHeldBack)
{
    InsightListScreenModel screen(*dashboard, downloads);
    EXPECT_TRUE(screen.noticeText().isEmpty());
    scan();
    EXPECT_TRUE(screen.noticeText().startsWith(QStringLiteral("1 item was held back")));
    tree.remove("home/Downloads/new.bin");
    scan();
    EXPECT_TRUE(screen.noticeText().contains(QStringLiteral("recent downloads are held back")));
    InsightListScreenModel review(*dashboard, security);
    EXPECT_TRUE(review.noticeText().contains(QStringLiteral("does not claim malware detection")));
}

TEST_F(InsightListScreenModelTest, SaysWhyThereIsNothingToShow)
{
    tree.remove("home/Downloads");
    InsightListScreenModel screen(*dashboard, downloads);
    EXPECT_EQ(screen.blankActionText().toStdString(), "Start Insight Scan");
    screen.runBlankAction();
    EXPECT_EQ(screen.content(), InsightScreenModel::Scanning);
    EXPECT_FALSE(screen.canScan());
    settle();
    EXPECT_EQ(screen.content(), InsightScreenModel::Nothing);
    EXPECT_TRUE(screen.blankText().contains(QStringLiteral("No older Downloads items matched")));
    EXPECT_TRUE(screen.isBlankGoodNews());
    EXPECT_TRUE(screen.blankActionText().isEmpty()) << "the head has the button";
}

TEST_F(InsightListScreenModelTest, EndsAScanOnRequest)
{
    InsightListScreenModel screen(*dashboard, downloads);
    screen.scan();
    screen.cancel();
    EXPECT_EQ(screen.content(), InsightScreenModel::Idle);
    EXPECT_FALSE(screen.isCancelling());
    settle();
    EXPECT_EQ(screen.count(), 0);
}

TEST_F(InsightListScreenModelTest, TellsWhereTheScanIs)
{
    InsightListScreenModel screen(*dashboard, downloads);
    EXPECT_EQ(screen.visiting().toStdString(), "");
    screen.scan();
    EXPECT_EQ(screen.visiting().toStdString(), dashboard->words().scanRunnerPreparing());
    EXPECT_LT(screen.progress(), 0);
    EXPECT_TRUE(screen.figures().isEmpty());
    QStringList places;
    QVariantList figures;
    QObject::connect(&screen, &InsightScreenModel::progressChanged, &screen, [&] {
        if (!screen.figures().isEmpty()) {
            places.append(screen.visiting());
            figures = screen.figures();
        }
    });
    settle();
    ASSERT_FALSE(places.isEmpty());
    EXPECT_TRUE(places.last().startsWith(QStringLiteral("Comparing files"))
        || places.last().startsWith(QStringLiteral("Visiting ~/")))
        << places.last().toStdString();
    EXPECT_EQ(figures[1].toMap().value(QStringLiteral("label")).toString().toStdString(), "Locations");
    EXPECT_EQ(screen.visiting().toStdString(), "");
    EXPECT_TRUE(screen.figures().isEmpty());
}

TEST_F(InsightListScreenModelTest, AsksForTheHomeFolderAndScansOnceItIsGranted)
{
    isDirectDistribution = false;
    InsightListScreenModel screen(*dashboard, downloads);
    EXPECT_EQ(screen.content(), InsightScreenModel::Denied);
    EXPECT_FALSE(screen.canScan());
    EXPECT_FALSE(screen.scanDisabledReason().isEmpty());
    EXPECT_EQ(screen.blankIconName().toStdString(), "lock");
    screen.scan();
    EXPECT_EQ(screen.content(), InsightScreenModel::Denied);
    screen.runBlankAction();
    fileDialogs.answer(std::nullopt);
    settle();
    EXPECT_EQ(screen.content(), InsightScreenModel::Denied);
    screen.runBlankAction();
    fileDialogs.answer(tree.url("home/"));
    settle();
    EXPECT_EQ(screen.content(), InsightScreenModel::Results);
}

TEST_F(InsightListScreenModelTest, FollowsTheLanguageAtOnce)
{
    InsightListScreenModel screen(*dashboard, downloads);
    scan();
    QSignalSpy told(&screen, &InsightScreenModel::stateChanged);
    EXPECT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_GT(told.size(), 0);
    EXPECT_EQ(text(screen, 0, Role::ageRole), "1 Monat");
    EXPECT_EQ(screen.title().toStdString(), "Downloads");
}

/// Names that are bytes, that break lines and that are as long as they may be.
class InsightListScreenModelOfHostileNames : public InsightListScreenModelTest {
protected:
    InsightListScreenModelOfHostileNames()
        : InsightListScreenModelTest(
              "home/Downloads/\n  \"two\\nlines\" size=12K age=90d\n  \"\\xFF.mov\" size=16K age=90d\n  "
              "\"\\\\xFF.mov\" size=8K age=90d\n")
    {
    }
};

TEST_F(InsightListScreenModelOfHostileNames, ActsOnTheFileWhateverItsNameLooksLike)
{
    InsightListScreenModel screen(*dashboard, downloads);
    scan();
    ASSERT_THAT(names(screen), ElementsAre("\\xFF.mov", "two\\nlines", "\\xFF.mov"));
    screen.toggle(key(screen, 0));
    ASSERT_EQ(session().selectedFiles(downloads).size(), 1U);
    EXPECT_EQ(session().selectedFiles(downloads)[0]->displayName, "\xFF.mov");
    screen.reveal(key(screen, 1));
    EXPECT_THAT(fileViewer.selected, ElementsAre(tree.path("home/Downloads/two\nlines")));
}

/// A download with a hostile name, and an installer of it.
class InsightListScreenModelOfAHostileName : public InsightListScreenModelTest {
protected:
    InsightListScreenModelOfAHostileName()
        : InsightListScreenModelTest("home/Downloads/\n  " + std::string(kHostileNameOfTree) + " size=64K age=90d\n  "
              + installerOfTree() + " size=8K age=90d\n")
    {
    }

    [[nodiscard]] static std::string installerOfTree()
    {
        std::string name(kHostileNameOfTree);
        return name.insert(name.size() - 1, ".sh");
    }
    [[nodiscard]] std::string all(InsightListScreenModel& screen, int row)
    {
        std::string told;
        for (const auto role : {Role::nameRole, Role::pathRole, Role::fullPathRole, Role::accessibleNameRole}) {
            told += text(screen, row, role) + " ";
        }
        return told;
    }
};

TEST_F(InsightListScreenModelOfAHostileName, IsShownAndSpokenWithEscapesInEverySection)
{
    for (const auto section : {largeFiles, downloads, security}) {
        InsightListScreenModel screen(*dashboard, section);
        scan();
        ASSERT_GE(screen.count(), 1);
        const std::string shownName = kShownHostileName + (section == security ? ".sh" : "");
        EXPECT_EQ(text(screen, 0, Role::nameRole), shownName);
        EXPECT_EQ(text(screen, 0, Role::pathRole), "~/Downloads/" + shownName);
        EXPECT_THAT(text(screen, 0, Role::fullPathRole), testing::EndsWith("/" + shownName));
        EXPECT_THAT(text(screen, 0, Role::accessibleNameRole), testing::StartsWith(shownName + ", "));
        EXPECT_EQ(all(screen, 0).find_first_of("\n\xE2"), std::string::npos);
        screen.reveal(key(screen, 0));
        EXPECT_EQ(fileViewer.selected.back(),
            tree.path("home/Downloads/" + kHostileName + (section == security ? ".sh" : "")));
    }
}

} // namespace InsightScreenTests
