#include "KarvelloCLI/RestoreCatalog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanedItem;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::RestoreResult;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

CleanedItem item(const std::string& name, const std::string& trashName, std::int64_t bytes = 10)
{
    CleanerCore::CleanupCandidate::Fields fields;
    fields.url = FileURL("/h/" + name);
    fields.sizeBytes = bytes;
    CleanedItem cleaned;
    cleaned.candidate = CleanerCore::CleanupCandidate(fields);
    cleaned.destinationURL = FileURL("/h/.local/share/Trash/files/" + trashName);
    return cleaned;
}

CleanupAuditEntry entry(std::vector<CleanedItem> items)
{
    CleanupAuditEntry made;
    made.id = Platform::UUID::random();
    made.succeededItemCount = static_cast<std::int64_t>(items.size());
    made.cleanedItems = std::move(items);
    return made;
}

/// Refuses what is trashed under a name that begins with "gone".
RestoreResult rehearse(std::span<const CleanedItem> items)
{
    RestoreResult result;
    for (const CleanedItem& each : items) {
        if (each.destinationURL->lastPathComponent().starts_with("gone")) {
            result.failedItems.push_back({each, "it is gone"});
        } else {
            result.restoredItems.push_back({each, each.candidate.url});
        }
    }
    return result;
}

std::vector<std::string> trashNames(const RestoreCatalog::Selection& selection)
{
    std::vector<std::string> names;
    for (const CleanedItem& each : selection.items) {
        names.emplace_back(each.destinationURL->lastPathComponent());
    }
    return names;
}

} // namespace

TEST(RestoreCatalog, EachItemHasItsOwnObstacle)
{
    const std::vector entries{entry({item("a", "gone1"), item("b", "b")}), entry({item("c", "c"), item("d", "gone2")})};
    const RestoreCatalog catalog(entries, rehearse);
    ASSERT_THAT(catalog.cleans(), SizeIs(2));
    EXPECT_EQ(catalog.cleans()[0].items[0].obstacle, "it is gone");
    EXPECT_FALSE(catalog.cleans()[0].items[1].obstacle);
    EXPECT_FALSE(catalog.cleans()[1].items[0].obstacle);
    EXPECT_EQ(catalog.cleans()[1].items[1].obstacle, "it is gone");
    EXPECT_THAT(trashNames(catalog.everything()), ElementsAre("b", "c"));
}

TEST(RestoreCatalog, OnlyCleansThatKeepItemsCount)
{
    CleanupAuditEntry forged = entry({item("a", "a")});
    forged.operation = CleanerCore::CleanupAuditOperation::restore;
    const std::vector entries{forged, entry({}), entry({item("b", "b")})};
    const RestoreCatalog catalog(entries, rehearse);
    ASSERT_THAT(catalog.cleans(), SizeIs(1));
    EXPECT_EQ(catalog.cleans()[0].entry, entries[2].id);
}

TEST(RestoreCatalog, OnePlaceInTheTrashBelongsToTheNewestCleanOfIt)
{
    const std::vector entries{entry({item("a", "a")}), entry({item("a", "a"), item("b", "b")})};
    const RestoreCatalog catalog(entries, rehearse);
    EXPECT_THAT(trashNames(catalog.everything()), ElementsAre("a", "b"));
    EXPECT_EQ(catalog.cleans()[1].repeatedCount, 1);
}

TEST(RestoreCatalog, AnIdMeansTheNewestItemThatCanGoBack)
{
    const std::vector entries{
        entry({item("a", "gone")}), entry({item("a", "a.2")}), entry({item("a", "a"), item("b", "b")})};
    const std::vector<std::string> ids{"customFolder:/h/a", "customFolder:/h/a"};
    const auto selection = RestoreCatalog(entries, rehearse).named(ids);
    EXPECT_THAT(trashNames(selection), ElementsAre("a.2"));
    EXPECT_THAT(selection.complaints, IsEmpty());
}

TEST(RestoreCatalog, WhatCannotGoBackIsTold)
{
    const std::vector entries{entry({item("a", "gone")})};
    const std::vector<std::string> ids{"customFolder:/h/a", "customFolder:/h/\x1b"};
    const auto selection = RestoreCatalog(entries, rehearse).named(ids);
    EXPECT_THAT(selection.items, IsEmpty());
    EXPECT_THAT(
        selection.complaints, ElementsAre("it is gone", "The log keeps no item with the id “customFolder:/h/\\x1b”."));
}

TEST(RestoreCatalog, ASumOfSizesThatNoDiskHasIsNone)
{
    EXPECT_EQ(totalBytes(std::vector{item("a", "a", 1), item("b", "b", 2)}), 3);
    EXPECT_FALSE(totalBytes(std::vector{item("a", "a", INT64_MAX), item("b", "b", 1)}));
}
