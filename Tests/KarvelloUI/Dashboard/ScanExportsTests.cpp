#include "KarvelloUI/Dashboard/ScanExports.h"

#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"
#include "Tests/Support/FaultyFileManager.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <memory>

namespace DashboardTests {

using CleanerCore::ReportExportPrivacyMode;
using CleanerCore::ScanResultExportFormat;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using TestSupport::FileManagerCall;

class ScanExportsTest : public DashboardTest {
protected:
    ScanExportsTest()
    {
        tree.add("exports/");
        makeExports();
    }

    void makeExports() { exports = std::make_unique<ScanExports>(*dashboard); }

    /// From now on the dashboard's file manager fails to write as told.
    void failWriting(int systemError)
    {
        exports.reset();
        faulty.fail({.call = FileManagerCall::writeAtomically,
            .systemError = systemError,
            .duration = TestSupport::FaultDuration::fromThenOn,
            .path = destination.path()});
        restart(faulty);
        makeExports();
    }

    [[nodiscard]] std::string written() const
    {
        std::ifstream file(destination.path(), std::ios::binary);
        return {std::istreambuf_iterator(file), {}};
    }

    [[nodiscard]] std::string alertMessage() const
    {
        return dashboard->alert() ? dashboard->alert()->message.toStdString() : std::string("no alert");
    }

    std::unique_ptr<ScanExports> exports;
    TestSupport::FaultyFileManager faulty{fileManager};
    Platform::FileURL destination = tree.url("exports/result");
};

TEST_F(ScanExportsTest, AsksWhereToWithAMessageANameAndTheHome)
{
    scanForCleanup();
    exports->exportCleanupScan(ScanResultExportFormat::csv, ReportExportPrivacyMode::redacted);
    ASSERT_EQ(fileDialogs.saveRequests.size(), 1U);
    const auto& request = fileDialogs.saveRequests.front();
    EXPECT_EQ(request.message, "Choose where to save the Karvello scan result export.");
    EXPECT_THAT(request.suggestedName, AllOf(StartsWith("karvello-cleanup-redacted-"), testing::EndsWith(".csv")));
    EXPECT_EQ(request.directory, tree.url("home/"));
}

TEST_F(ScanExportsTest, NamesTheFilesOfTheOtherTwoAfterWhatTheyHold)
{
    exports->exportInsightScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(std::nullopt);
    exports->exportAuditLog(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    ASSERT_EQ(fileDialogs.saveRequests.size(), 2U);
    EXPECT_THAT(fileDialogs.saveRequests[0].suggestedName, StartsWith("karvello-macInsights-"));
    EXPECT_THAT(fileDialogs.saveRequests[1].suggestedName, StartsWith("karvello-cleanup-history-"));
    EXPECT_EQ(fileDialogs.saveRequests[1].message, "Choose where to save the Karvello cleanup history export.");
}

TEST_F(ScanExportsTest, WritesTheCandidatesAndWhatIsSelectedOfThem)
{
    scanForCleanup();
    const auto& report = dashboard->cleaner().report();
    ASSERT_FALSE(report.candidates.empty());
    dashboard->cleaner().clearSelection();
    dashboard->cleaner().setSelected(report.candidates.front(), true);
    exports->exportCleanupScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(destination);
    settle();
    EXPECT_THAT(written(),
        AllOf(HasSubstr(R"("kind" : "cleanup")"), HasSubstr(report.candidates.front().displayName),
            HasSubstr(R"("selectedCount" : 1)")));
    EXPECT_FALSE(dashboard->alert());
}

TEST_F(ScanExportsTest, HidesPathsAndNamesInARedactedFile)
{
    scanForCleanup();
    exports->exportCleanupScan(ScanResultExportFormat::json, ReportExportPrivacyMode::redacted);
    fileDialogs.answer(destination);
    settle();
    EXPECT_THAT(written(), AllOf(HasSubstr("<path:"), Not(HasSubstr(tree.path("home")))));
}

TEST_F(ScanExportsTest, WritesTheScanThatWasOnShowWhenItWasAskedFor)
{
    scanForCleanup();
    exports->exportCleanupScan(ScanResultExportFormat::csv, ReportExportPrivacyMode::full);
    dashboard->cleaner().clearScanResults();
    fileDialogs.answer(destination);
    settle();
    EXPECT_THAT(written(), HasSubstr("candidate"));
}

TEST_F(ScanExportsTest, WritesAnInsightScanWithItsSelection)
{
    dashboard->scanInsights();
    settle();
    ASSERT_EQ(dashboard->insights().phase(), MacInsightsViewModel::Phase::ready);
    exports->exportInsightScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(destination);
    settle();
    EXPECT_THAT(written(), HasSubstr(R"("kind" : "macInsights")"));
}

TEST_F(ScanExportsTest, WritesWhatBothSessionsRecorded)
{
    scanForCleanup();
    dashboard->requestCleanSelected();
    dashboard->cleanSelected();
    dashboard->scanInsights();
    settle();
    dashboard->insights().selectAll(MacInsightFileSection::downloads);
    dashboard->requestInsightClean(MacInsightFileSection::downloads);
    dashboard->cleanSelectedInsight();
    settle();
    exports->exportAuditLog(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(destination);
    settle();
    EXPECT_THAT(written(),
        AllOf(HasSubstr(R"("kind" : "cleanupAudit")"), HasSubstr(R"("entryCount" : 2)"),
            HasSubstr(R"("source" : "cleanupDashboard")"), HasSubstr(R"("source" : "macInsights")")));
}

TEST_F(ScanExportsTest, WritesAnEmptyHistoryToo)
{
    exports->exportAuditLog(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(destination);
    settle();
    EXPECT_THAT(written(), HasSubstr(R"("entryCount" : 0)"));
}

TEST_F(ScanExportsTest, WritesNothingAfterACancel)
{
    scanForCleanup();
    exports->exportCleanupScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(std::nullopt);
    settle();
    EXPECT_TRUE(std::filesystem::is_empty(tree.path("exports")));
    EXPECT_FALSE(dashboard->alert());
}

TEST_F(ScanExportsTest, WritesInTheBackgroundAndTellsThatItDoes)
{
    scanForCleanup();
    int changes = 0;
    QObject::connect(exports.get(), &ScanExports::writingChanged, exports.get(), [&changes] { ++changes; });
    exports->exportCleanupScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    EXPECT_FALSE(exports->isWriting());
    fileDialogs.answer(destination);
    EXPECT_TRUE(exports->isWriting());
    EXPECT_FALSE(stands("exports/result"));
    settle();
    EXPECT_FALSE(exports->isWriting());
    EXPECT_TRUE(stands("exports/result"));
    EXPECT_EQ(changes, 2);
}

TEST_F(ScanExportsTest, EndsAFileThatNobodyWaitsForAnyMore)
{
    scanForCleanup();
    exports->exportCleanupScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(destination);
    exports.reset();
    settle();
    EXPECT_TRUE(stands("exports/result"));
}

TEST_F(ScanExportsTest, WritesNothingWhenTheAnswerComesTooLate)
{
    scanForCleanup();
    exports->exportCleanupScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    exports.reset();
    fileDialogs.answer(destination);
    settle();
    EXPECT_FALSE(stands("exports/result"));
}

TEST_F(ScanExportsTest, TellsOfAFullDisk)
{
    failWriting(ENOSPC);
    scanForCleanup();
    exports->exportCleanupScan(ScanResultExportFormat::json, ReportExportPrivacyMode::full);
    fileDialogs.answer(destination);
    settle();
    ASSERT_TRUE(dashboard->alert());
    EXPECT_EQ(dashboard->alert()->title.toStdString(), "Export Failed");
    EXPECT_THAT(alertMessage(), AllOf(StartsWith("Karvello could not save the scan results: "), HasSubstr("“result”")));
    EXPECT_FALSE(exports->isWriting());
}

TEST_F(ScanExportsTest, TellsOfAFolderThatCannotBeWrittenTo)
{
    failWriting(EACCES);
    exports->exportAuditLog(ScanResultExportFormat::csv, ReportExportPrivacyMode::full);
    fileDialogs.answer(destination);
    settle();
    EXPECT_THAT(
        alertMessage(), AllOf(StartsWith("Karvello could not save the cleanup history: "), HasSubstr("permission")));
}

TEST_F(ScanExportsTest, TellsOfAFolderThatHasGone)
{
    exports->exportAuditLog(ScanResultExportFormat::csv, ReportExportPrivacyMode::full);
    fileDialogs.answer(tree.url("gone/result"));
    settle();
    EXPECT_THAT(alertMessage(), StartsWith("Karvello could not save the cleanup history: "));
    EXPECT_FALSE(stands("gone"));
}

TEST_F(ScanExportsTest, TellsFailuresInTheLanguageOfTheMoment)
{
    exports->exportAuditLog(ScanResultExportFormat::csv, ReportExportPrivacyMode::full);
    ASSERT_TRUE(preferences->setLanguage(AppLanguage::german));
    fileDialogs.answer(tree.url("gone/result"));
    settle();
    ASSERT_TRUE(dashboard->alert());
    EXPECT_EQ(dashboard->alert()->title.toStdString(), dashboard->words().scanExportFailedTitle());
    EXPECT_NE(dashboard->alert()->title.toStdString(), "Export Failed");
}

} // namespace DashboardTests
