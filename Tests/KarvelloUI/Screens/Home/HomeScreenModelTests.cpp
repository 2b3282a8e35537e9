#include "Tests/KarvelloUI/Screens/Home/HomeFixture.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <set>

namespace HomeTests {

using testing::HasSubstr;
using testing::UnorderedElementsAre;

class HomeScreenModelTest : public HomeTest {
protected:
    /// What QML can call.
    static std::set<std::string> waysIn(const QObject& object)
    {
        std::set<std::string> names;
        const QMetaObject* const type = object.metaObject();
        for (int index = QObject::staticMetaObject.methodCount(); index < type->methodCount(); ++index) {
            if (type->method(index).methodType() != QMetaMethod::Signal) {
                names.insert(type->method(index).name().toStdString());
            }
        }
        return names;
    }
    static bool hasWritableProperty(const QObject& object)
    {
        const QMetaObject* const type = object.metaObject();
        for (int index = QObject::staticMetaObject.propertyCount(); index < type->propertyCount(); ++index) {
            if (type->property(index).isWritable()) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(HomeScreenModelTest, HasNoWayToSelectOrToMoveAnything)
{
    EXPECT_THAT(waysIn(*home), UnorderedElementsAre("startScan", "openSection"));
    EXPECT_THAT(waysIn(*home->reviewLoop()),
        UnorderedElementsAre("chooseCadence", "chooseProfile", "markReviewed", "openReview"));
    EXPECT_THAT(waysIn(*home->projects()), UnorderedElementsAre("openReview", "openSettings"));
    for (const QObject* const object :
        std::initializer_list<const QObject*>{home.get(), home->reviewLoop(), home->projects()}) {
        EXPECT_FALSE(hasWritableProperty(*object)) << object->metaObject()->className();
    }
}

TEST_F(HomeScreenModelTest, ChangesNoSelectionAndNoDiskWhateverIsPressed)
{
    addProjects();
    scanEverything();
    const auto selected = dashboard->cleaner().selectedCount();
    const auto selectedInsights = dashboard->insights().selectedIDs();
    for (int index = 0; index < home->flow()->count(); ++index) {
        home->openSection(step(index).section);
    }
    for (int index = 0; index < home->coach()->count(); ++index) {
        home->openSection(card(index).section);
    }
    for (int index = 0; index < home->timeline()->count(); ++index) {
        home->openSection(point(index).section);
    }
    home->projects()->openReview();
    home->projects()->openSettings();
    home->reviewLoop()->openReview();
    home->reviewLoop()->markReviewed();
    settle();
    EXPECT_EQ(dashboard->cleaner().selectedCount(), selected);
    EXPECT_EQ(dashboard->insights().selectedIDs(), selectedInsights);
    EXPECT_FALSE(dashboard->isShowingCleanConfirmation());
    EXPECT_EQ(trashedCount(), 0);
}

TEST_F(HomeScreenModelTest, SaysWhatAScanWouldBringUntilThereIsOne)
{
    EXPECT_THAT(home->texts().summary.toStdString(), HasSubstr("Start a scan to see cleanup candidates"));
    home->startScan();
    EXPECT_EQ(home->texts().summary, QString()) << "while it runs";
    settle();
    EXPECT_EQ(home->texts().summary, QString());
}

TEST_F(HomeScreenModelTest, SaysThatAccessIsNeededAndStartsNoScanWithoutIt)
{
    isDirectDistribution = false;
    remake();
    EXPECT_FALSE(home->canStartScan());
    EXPECT_EQ(home->texts().startScanReason, QStringLiteral("Grant home folder access before starting a scan."));
    EXPECT_THAT(home->texts().summary.toStdString(), HasSubstr("Grant home access"));
    home->startScan();
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
    EXPECT_EQ(card(0).section, QStringLiteral("settings"));

    ASSERT_TRUE(dashboard->homeAccess().setBookmark(tree.url("home/"), fileManager, now));
    EXPECT_TRUE(home->canStartScan());
    EXPECT_EQ(home->texts().startScanReason, QString());
}

TEST_F(HomeScreenModelTest, StartsOneScanAndSaysWhyNotAnother)
{
    EXPECT_TRUE(home->canStartScan());
    home->startScan();
    EXPECT_TRUE(home->isScanning());
    EXPECT_FALSE(home->canStartScan());
    EXPECT_EQ(home->texts().startScanReason, QStringLiteral("Scanning safe default locations…"));
    settle();
    EXPECT_FALSE(home->isScanning());
    EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::ready);
    EXPECT_EQ(dashboard->selectedSection(), MacDashboardSection::dashboard);
}

TEST_F(HomeScreenModelTest, LeadsThroughTheFourSteps)
{
    EXPECT_TRUE(step(0).isDone);
    EXPECT_TRUE(step(1).isCurrent);
    EXPECT_EQ(step(1).detail, QStringLiteral("No scan yet"));
    EXPECT_EQ(step(2).detail, QStringLiteral("Shown after scan"));
    EXPECT_EQ(step(3).detail, QStringLiteral("Nothing recorded yet"));
    home->startScan();
    EXPECT_TRUE(step(1).isCurrent);
    EXPECT_THAT(step(1).detail.toStdString(), HasSubstr("% complete"));
    settle();
    EXPECT_TRUE(step(1).isDone);
    EXPECT_EQ(step(1).detail, QStringLiteral("now"));
    EXPECT_TRUE(step(2).isCurrent);
    EXPECT_EQ(step(2).detail, QStringLiteral("2 candidates"));
    EXPECT_FALSE(step(3).isCurrent || step(3).isDone);

    cleanEverything();
    EXPECT_TRUE(step(2).isDone);
    EXPECT_EQ(step(2).detail, QStringLiteral("0 candidates"));
    EXPECT_TRUE(step(3).isCurrent);
    EXPECT_EQ(step(3).detail, QStringLiteral("1 recorded move"));
}

TEST_F(HomeScreenModelTest, HasNoCurrentStepWhenAScanFindsNothingAndNothingCanBeRestored)
{
    tree.remove("home/.cache");
    scan();
    EXPECT_EQ(step(2).detail, QStringLiteral("0 candidates"));
    EXPECT_TRUE(step(2).isDone);
    EXPECT_FALSE(step(3).isCurrent);
}

TEST_F(HomeScreenModelTest, TellsHowLongAgoTheScanWasAsTimeGoesBy)
{
    scan();
    now = now.addingSeconds(11 * 60 + 5);
    sample();
    EXPECT_EQ(step(1).detail, QStringLiteral("11 minutes ago"));
}

TEST_F(HomeScreenModelTest, EachStepLeadsToItsSection)
{
    const std::array expected{MacDashboardSection::dashboard, MacDashboardSection::cleanup,
        MacDashboardSection::cleanup, MacDashboardSection::reviewEvidence};
    for (int index = 0; index < 4; ++index) {
        home->openSection(step(index).section);
        EXPECT_EQ(dashboard->selectedSection(), expected.at(static_cast<std::size_t>(index))) << index;
        dashboard->selectSection(MacDashboardSection::dashboard);
    }
}

TEST_F(HomeScreenModelTest, RecommendsAScanBeforeThereIsOneAndTheLargestFindsAfterIt)
{
    ASSERT_EQ(home->coach()->count(), 1);
    EXPECT_EQ(card(0).figure, QStringLiteral("Scan to unlock recommendations"));
    EXPECT_EQ(card(0).pillText, QStringLiteral("Review first"));
    addLargeFiles();
    scanEverything();
    ASSERT_EQ(home->coach()->count(), 3);
    EXPECT_EQ(card(0).section, QStringLiteral("cleanup"));
    EXPECT_EQ(card(1).section, QStringLiteral("largeFiles"));
    EXPECT_EQ(card(1).actionTitle, QStringLiteral("Open Large Files"));
    EXPECT_EQ(card(1).pillText, QString());
    EXPECT_EQ(card(2).section, QStringLiteral("downloads"));
}

TEST_F(HomeScreenModelTest, TellsTheStoryOfTheDisk)
{
    ASSERT_EQ(home->timeline()->count(), 1);
    EXPECT_EQ(point(0).kind, QStringLiteral("currentStorage"));
    EXPECT_EQ(point(0).date, QString());
    EXPECT_EQ(point(0).section, QString());
    scanEverything();
    ASSERT_EQ(home->timeline()->count(), 3);
    EXPECT_EQ(point(1).kind, QStringLiteral("cleanupScanEstimate"));
    EXPECT_EQ(point(1).actionTitle, QStringLiteral("Cleanup Review"));
    EXPECT_EQ(point(2).kind, QStringLiteral("insightReviewOpportunity"));
    EXPECT_EQ(point(2).section, QStringLiteral("downloads"));
    cleanEverything();
    ASSERT_EQ(home->timeline()->count(), 3) << "the estimate has become a move";
    EXPECT_EQ(point(2).kind, QStringLiteral("movedToTrashPending"));
    EXPECT_NE(point(2).date, QString());
}

TEST_F(HomeScreenModelTest, ShowsAMoveOfEitherSession)
{
    scanEverything();
    dashboard->selectSection(MacDashboardSection::downloads);
    dashboard->insights().selectAll(MacInsightFileSection::downloads);
    dashboard->requestInsightClean(MacInsightFileSection::downloads);
    dashboard->cleanSelectedInsight();
    settle();
    dashboard->selectSection(MacDashboardSection::dashboard);
    ASSERT_EQ(trashedCount(), 1);
    EXPECT_EQ(step(3).detail, QStringLiteral("1 recorded move"));
    EXPECT_EQ(point(home->timeline()->count() - 1).kind, QStringLiteral("movedToTrashPending"));
}

TEST_F(HomeScreenModelTest, ShowsWhatIsFreeAndWhatCouldBe)
{
    EXPECT_EQ(home->hero().percent, QStringLiteral("40%"));
    EXPECT_EQ(home->hero().freeText, QStringLiteral("186 GB free"));
    EXPECT_EQ(home->hero().usedText, QStringLiteral("279 GB / 466 GB used"));
    EXPECT_DOUBLE_EQ(home->hero().usedFraction, 0.6);
    EXPECT_EQ(home->hero().reclaimableText, QString());
    scan();
    EXPECT_THAT(home->hero().reclaimableText.toStdString(), testing::StartsWith("Reclaimable "));
    EXPECT_GT(home->hero().reclaimableFraction, 0);
}

TEST_F(HomeScreenModelTest, SaysThatTheDiskIsUnknown)
{
    disk = {};
    remake();
    EXPECT_EQ(home->hero().percent, QStringLiteral("—"));
    EXPECT_EQ(home->hero().freeText, QString());
    EXPECT_EQ(home->hero().pillText, QString());
    EXPECT_EQ(home->hero().usedText, QStringLiteral("Disk capacity unknown"));
    EXPECT_EQ(home->hero().usedFraction, 0);
    EXPECT_EQ(home->timeline()->count(), 0);
}

TEST_F(HomeScreenModelTest, LooksAtTheDiskAgainAfterAMoveAndNowAndThen)
{
    disk.freeBytes = 100'000'000'000;
    sample();
    EXPECT_EQ(home->hero().percent, QStringLiteral("40%")) << "not for each sample";
    now = now.addingSeconds(HomeScreenModel::kDiskSnapshotIntervalSeconds);
    sample();
    EXPECT_EQ(home->hero().percent, QStringLiteral("20%"));
    scan();
    disk.freeBytes = 150'000'000'000;
    cleanEverything();
    EXPECT_EQ(home->hero().percent, QStringLiteral("30%"));
}

TEST_F(HomeScreenModelTest, ASampleTouchesNothingButTheTilesThatItChanges)
{
    scanEverything();
    sample();
    sample();
    const QSignalSpy tiles(home->metrics(), &QAbstractItemModel::dataChanged);
    const QSignalSpy cards(home->coach(), &QAbstractItemModel::dataChanged);
    const QSignalSpy points(home->timeline(), &QAbstractItemModel::dataChanged);
    const QSignalSpy steps(home->flow(), &QAbstractItemModel::dataChanged);
    const QSignalSpy texts(home.get(), &HomeScreenModel::textsChanged);
    const QSignalSpy disks(home.get(), &HomeScreenModel::heroChanged);
    const QSignalSpy loops(home->reviewLoop(), &ReviewLoopModel::changed);
    systemSnapshot.normalizedCPULoad = 0.5;
    sample();
    EXPECT_EQ(metric(0).figure, QStringLiteral("50%"));
    EXPECT_GE(tiles.count(), 1);
    EXPECT_EQ(cards.count() + points.count() + steps.count() + texts.count() + disks.count() + loops.count(), 0);
}

TEST_F(HomeScreenModelTest, LeavesItsFiguresAloneWhileAnotherSectionIsOnShow)
{
    dashboard->selectSection(MacDashboardSection::system);
    const QSignalSpy tiles(home->metrics(), &QAbstractItemModel::dataChanged);
    systemSnapshot.normalizedCPULoad = 0.5;
    sample();
    dashboard->scanCleanup();
    settle();
    EXPECT_EQ(tiles.count(), 0);
    EXPECT_EQ(step(2).detail, QStringLiteral("Shown after scan"));
    dashboard->selectSection(MacDashboardSection::dashboard);
    EXPECT_EQ(metric(0).figure, QStringLiteral("50%"));
    EXPECT_EQ(step(2).detail, QStringLiteral("2 candidates"));
}

TEST_F(HomeScreenModelTest, FollowsTheLanguageAtOnce)
{
    scan();
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    settle();
    EXPECT_EQ(home->texts().title, QStringLiteral("Live-Dashboard"));
    EXPECT_EQ(home->hero().freeText, QStringLiteral("186 GB frei"));
    EXPECT_EQ(step(2).detail, QStringLiteral("2 Kandidaten"));
    EXPECT_EQ(metric(1).name, QStringLiteral("RAM"));
    EXPECT_EQ(card(0).pillText, QStringLiteral("Erst prüfen"));
    EXPECT_EQ(point(0).title, QStringLiteral("Aktuell freier Speicher"));
    EXPECT_EQ(home->reviewLoop()->cadenceTitle(), QStringLiteral("Prüfintervall"));
    EXPECT_EQ(home->projects()->openSettingsTitle(), QStringLiteral("Einstellungen für Projektordner"));
}

TEST_F(HomeScreenModelTest, SaysWhatHoldsWhateverIsShown)
{
    EXPECT_EQ(home->texts().baselineTitle.toStdString(), "Safety baseline");
    EXPECT_EQ(home->texts().baselineLines.join(u'\n').toStdString(),
        "Home stays status-and-summary only. Cleanup moves only selected review items to Trash.\n"
        "Status metrics use current samples; decision metrics are labeled as averages/trends.\n"
        "Cleanup actions are emphasized only in the review screen.\n"
        "Skipped items are explained as protected, not as errors.");
}

TEST_F(HomeScreenModelTest, LeavesNoTextInEnglishInAnyLanguage)
{
    addProjects();
    scanEverything();
    home->reviewLoop()->chooseCadence(QStringLiteral("weekly"));
    home->reviewLoop()->markReviewed();
    const auto all = [this] {
        std::vector<std::string> texts;
        const auto add = [&texts](const QString& text) { texts.push_back(text.toStdString()); };
        const HomeTexts& page = home->texts();
        for (const QString& text : QStringList{page.title, page.subtitle, page.startScanTitle, page.coachTitle,
                 page.coachSubtitle, page.timelineTitle, page.timelineSubtitle, page.timelineEmptyText,
                 page.baselineTitle, page.baselineLines.join(u'\n')}) {
            add(text);
        }
        for (int index = 0; index < home->flow()->count(); ++index) {
            add(step(index).detail);
        }
        for (int index = 0; index < home->coach()->count(); ++index) {
            add(card(index).body);
            add(card(index).actionTitle);
        }
        for (int index = 0; index < home->timeline()->count(); ++index) {
            add(point(index).text);
        }
        add(metric(0).text);
        add(metric(2).text);
        add(home->reviewLoop()->title());
        add(home->reviewLoop()->statusText());
        add(home->reviewLoop()->lastReviewText());
        add(home->reviewLoop()->guardrail());
        add(home->projects()->subtitle());
        add(home->projects()->note());
        add(project(0).note);
        add(figure(1).name);
        return texts;
    };
    const auto english = all();
    for (const auto language : Platform::allCases<AppLanguage>()) {
        if (language == AppLanguage::english) {
            continue;
        }
        ASSERT_TRUE(preferences->setLanguage(language));
        settle();
        const auto translated = all();
        for (std::size_t index = 0; index < english.size(); ++index) {
            EXPECT_NE(translated[index], english[index]) << Platform::rawValue(language);
        }
    }
}

} // namespace HomeTests
