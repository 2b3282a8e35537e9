#include "KarvelloCLI/InsightRun.h"

#include <gtest/gtest.h>

#include <string>

using namespace KarvelloCLI;
using CleanerCore::MacStorageInsightReport;
using Platform::FileURL;
using Duplicates = InsightCuts::Duplicates;

namespace {

MacStorageInsightReport::Fields cutFields()
{
    return {.scannedAt = {}, .isTruncated = true};
}

InsightCuts cuts(MacStorageInsightReport::Fields fields, const InsightSubject& subject = {})
{
    return cutsOf(MacStorageInsightReport(std::move(fields)), subject);
}

void skip(MacStorageInsightReport::Fields& fields, std::size_t count, const std::string& reason)
{
    fields.skippedItems.insert(fields.skippedItems.end(), count, {FileURL("/home/ada/x"), reason});
}

} // namespace

TEST(InsightCuts, AreNoneInAReportThatIsComplete)
{
    auto fields = cutFields();
    fields.isTruncated = false;
    skip(fields, 250, "Recently modified");
    const InsightCuts found = cuts(std::move(fields));
    EXPECT_FALSE(found.visits || found.recentFiles);
    EXPECT_EQ(found.duplicates, Duplicates::no) << "exactly as many as may be named is no overflow";
}

TEST(InsightCuts, AreOfTheDuplicatesWhereNothingElseWasCut)
{
    EXPECT_EQ(cuts(cutFields()).duplicates, Duplicates::yes);
    EXPECT_EQ(cuts(cutFields(), {.home = {}, .only = InsightPart::large}).duplicates, Duplicates::no);
    auto fields = cutFields();
    skip(fields, 249, "Recently modified");
    EXPECT_FALSE(cuts(fields).recentFiles);
    EXPECT_EQ(cuts(fields).duplicates, Duplicates::yes);
    skip(fields, 1, "Recently modified");
    EXPECT_TRUE(cuts(fields).recentFiles);
    EXPECT_EQ(cuts(fields).duplicates, Duplicates::maybe);
    EXPECT_FALSE(cuts(fields, {.home = {}, .only = InsightPart::duplicates}).recentFiles)
        << "no list of files was made";
}

TEST(InsightCuts, AreOfTheVisitsWhereAFolderIsALowerBound)
{
    auto fields = cutFields();
    fields.heatmapItems.push_back(CleanerCore::StorageMapItem(
        {.url = FileURL::folder("/home/ada/a"), .displayName = "~/a", .isTruncated = true}));
    EXPECT_TRUE(cuts(fields).visits);
    EXPECT_EQ(cuts(fields).duplicates, Duplicates::maybe);
    skip(fields, 1, "Duplicate hash budget exceeded");
    EXPECT_EQ(cuts(fields).duplicates, Duplicates::yes);
    EXPECT_FALSE(cuts(cutFields()).visits);
}
