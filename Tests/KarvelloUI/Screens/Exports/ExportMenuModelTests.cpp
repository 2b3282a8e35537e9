#include "KarvelloUI/Screens/Exports/ExportMenuModel.h"

#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace DashboardTests {

using testing::HasSubstr;
using testing::StartsWith;
using Source = ExportMenuModel::Source;

class ExportMenuModelTest : public DashboardTest {};

TEST_F(ExportMenuModelTest, OffersTwoFormatsInFullAndRedacted)
{
    const ExportMenuModel menu(*dashboard, Source::cleanupScan);
    EXPECT_EQ(menu.entries(),
        QStringList({QStringLiteral("Export JSON"), QStringLiteral("Export CSV"),
            QStringLiteral("Export Redacted JSON"), QStringLiteral("Export Redacted CSV")}));
    EXPECT_THAT(menu.redactedHint().toStdString(), HasSubstr("not a guarantee of anonymity"));
}

TEST_F(ExportMenuModelTest, ExportsInTheWayOfEachEntry)
{
    scanForCleanup();
    ExportMenuModel menu(*dashboard, Source::cleanupScan);
    for (int entry = 0; entry < 4; ++entry) {
        menu.choose(entry);
        fileDialogs.answer(std::nullopt);
    }
    ASSERT_EQ(fileDialogs.saveRequests.size(), 4U);
    for (const std::size_t entry : {0U, 2U}) {
        EXPECT_TRUE(fileDialogs.saveRequests[entry].suggestedName.ends_with(".json"));
        EXPECT_TRUE(fileDialogs.saveRequests[entry + 1].suggestedName.ends_with(".csv"));
    }
    EXPECT_THAT(fileDialogs.saveRequests[1].suggestedName, StartsWith("karvello-cleanup-2"));
    EXPECT_THAT(fileDialogs.saveRequests[2].suggestedName, StartsWith("karvello-cleanup-redacted-2"));
    EXPECT_THAT(fileDialogs.saveRequests[3].suggestedName, StartsWith("karvello-cleanup-redacted-2"));
}

TEST_F(ExportMenuModelTest, IgnoresAnEntryThatIsNotThere)
{
    scanForCleanup();
    ExportMenuModel menu(*dashboard, Source::cleanupScan);
    menu.choose(-1);
    menu.choose(4);
    EXPECT_TRUE(fileDialogs.saveRequests.empty());
}

TEST_F(ExportMenuModelTest, OffersACleanupScanOnceThereIsOneAndWhileItRests)
{
    ExportMenuModel menu(*dashboard, Source::cleanupScan);
    EXPECT_FALSE(menu.isEnabled());
    menu.choose(0);
    EXPECT_TRUE(fileDialogs.saveRequests.empty());

    const QSignalSpy changes(&menu, &ExportMenuModel::enabledChanged);
    dashboard->scanCleanup();
    EXPECT_FALSE(menu.isEnabled());
    settle();
    EXPECT_TRUE(menu.isEnabled());
    EXPECT_GE(changes.count(), 2);
    dashboard->cleaner().clearScanResults();
    EXPECT_FALSE(menu.isEnabled());
}

TEST_F(ExportMenuModelTest, OffersAnInsightScanOfItsOwnSession)
{
    scanForCleanup();
    ExportMenuModel menu(*dashboard, Source::insightScan);
    EXPECT_FALSE(menu.isEnabled());
    dashboard->scanInsights();
    settle();
    EXPECT_TRUE(menu.isEnabled());
    menu.choose(0);
    ASSERT_EQ(fileDialogs.saveRequests.size(), 1U);
    EXPECT_THAT(fileDialogs.saveRequests[0].suggestedName, StartsWith("karvello-macInsights-"));
}

TEST_F(ExportMenuModelTest, OffersTheHistoryOnceItIsRead)
{
    ExportMenuModel menu(*dashboard, Source::auditLog);
    EXPECT_TRUE(menu.isEnabled());
    menu.choose(3);
    ASSERT_EQ(fileDialogs.saveRequests.size(), 1U);
    EXPECT_THAT(fileDialogs.saveRequests[0].suggestedName, StartsWith("karvello-cleanup-history-redacted-"));
}

TEST_F(ExportMenuModelTest, NamesWhatItExports)
{
    EXPECT_EQ(ExportMenuModel(*dashboard, Source::cleanupScan).accessibleName().toStdString(), "Export Scan Results");
    EXPECT_EQ(ExportMenuModel(*dashboard, Source::auditLog).accessibleName().toStdString(), "Export Cleanup History");
    EXPECT_THAT(ExportMenuModel(*dashboard, Source::insightScan).explanation().toStdString(),
        HasSubstr("Storage Insights scan"));
}

TEST_F(ExportMenuModelTest, FollowsTheLanguageAtOnce)
{
    const ExportMenuModel menu(*dashboard, Source::auditLog);
    const QSignalSpy changes(&menu, &ExportMenuModel::wordsChanged);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(menu.title().toStdString(), "Exportieren");
}

} // namespace DashboardTests
