#include "KarvelloCLI/ScanRun.h"

#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleaningError;
using CleanerCore::ScanReport;
using CleanerCore::SkippedItem;
using Platform::FileURL;

namespace Reason = CleanerCore::StorageScannerSkipReason;

namespace {

ScanReport reportOf(std::vector<SkippedItem> skipped)
{
    return ScanReport(Platform::Date{}, {}, std::move(skipped));
}

SkippedItem skippedFolder(const char* path, std::string_view reason)
{
    return {FileURL::folder(path), std::string(reason)};
}

SkippedItem notAllowed(const char* path)
{
    return skippedFolder(path, CleaningError{CleaningError::Kind::pathNotAllowed, path}.errorDescription());
}

ScanPlan planOf(const std::vector<const char*>& roots)
{
    ScanPlan plan;
    for (const char* const root : roots) {
        plan.roots.push_back(FileURL::folder(root));
        plan.subject.folders.push_back(FileURL::folder(root));
    }
    return plan;
}

ScanPlan planOfHome()
{
    ScanPlan plan;
    plan.subject.mode = CleanerCore::CleanupScanMode::standard;
    return plan;
}

} // namespace

TEST(ScanJudgement, ProtectionIsNoFailure)
{
    const ScanReport report = reportOf({
        skippedFolder("/h/a", Reason::recentlyModified),
        skippedFolder("/h/b", Reason::noTouchPath),
        skippedFolder("/h/c", Reason::noTouchDescendant),
        skippedFolder("/h/d", Reason::emptyItem),
        skippedFolder("/h/e", Reason::symbolicLink),
        skippedFolder("/h/f", Reason::inventoryItemLimitExceeded),
    });
    EXPECT_EQ(ScanJudgement::of(report, planOfHome()).exitCode, ExitCode::done);
}

TEST(ScanJudgement, AMissingLocationOfTheHomeIsNoFailure)
{
    const ScanReport report =
        reportOf({skippedFolder("/h/Library/Logs", Reason::folderDoesNotExist), notAllowed("/h/x")});
    const ScanJudgement judgement = ScanJudgement::of(report, planOfHome());
    EXPECT_EQ(judgement.exitCode, ExitCode::done);
    EXPECT_TRUE(judgement.refusals.empty());
}

TEST(ScanJudgement, WhatCouldNotBeReadMakesItPartial)
{
    const ScanReport report = reportOf({
        skippedFolder("/h/a", "The file “a” couldn’t be opened because you don’t have permission to view it."),
        skippedFolder("/h/b", Reason::couldNotEnumerateFolder),
    });
    const ScanJudgement judgement = ScanJudgement::of(report, planOfHome());
    EXPECT_EQ(judgement.exitCode, ExitCode::partial);
    EXPECT_EQ(judgement.failures, 2U);
}

TEST(ScanJudgement, IsRefusedOnlyWhenEveryGivenFolderIs)
{
    const ScanReport report = reportOf({notAllowed("/a"), skippedFolder("/b", Reason::folderDoesNotExist)});
    EXPECT_EQ(ScanJudgement::of(report, planOf({"/a", "/b"})).exitCode, ExitCode::refused);
    EXPECT_EQ(ScanJudgement::of(report, planOf({"/a", "/b", "/c"})).exitCode, ExitCode::partial);

    ScanPlan withHome = planOf({"/a", "/b"});
    withHome.subject.mode = CleanerCore::CleanupScanMode::standard;
    EXPECT_EQ(ScanJudgement::of(report, withHome).exitCode, ExitCode::partial);
}

TEST(ScanJudgement, CountsTheFoldersThatThePlanRefused)
{
    ScanPlan plan;
    plan.subject.folders = {FileURL::folder("/")};
    plan.refusedFolders = {skippedFolder("/", "Selected folder is too broad")};
    const ScanJudgement judgement = ScanJudgement::of(reportOf({}), plan);
    EXPECT_EQ(judgement.exitCode, ExitCode::refused);
    EXPECT_EQ(judgement.refusals.size(), 1U);
}
