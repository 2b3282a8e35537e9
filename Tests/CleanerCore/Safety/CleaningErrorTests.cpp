#include "CleanerCore/Safety/CleaningError.h"

#include <gtest/gtest.h>
#include <string_view>
#include <utility>

namespace CleanerCore {
namespace {

using Kind = CleaningError::Kind;

TEST(CleaningError, HasTheWordsOfItsKindAndThePath)
{
    const std::pair<Kind, std::string_view> expected[] = {
        {Kind::pathNotAllowed, "Path is outside the active scan scope: /a/b"},
        {Kind::criticalPath, "Refusing to clean critical path: /a/b"},
        {Kind::protectedUserData, "Refusing to clean protected user data path: /a/b"},
        {Kind::symbolicLink, "Refusing to clean symbolic link: /a/b"},
        {Kind::unreadableAttributes, "Could not verify file attributes safely: /a/b"},
        {Kind::cleanupCandidateChanged, "Refusing to clean because the item changed since it was scanned: /a/b"},
        {Kind::cleanupCandidateRecentlyModified,
            "Refusing to clean because the item changed since the scan result: /a/b"},
        {Kind::cleanupValidationItemLimitExceeded,
            "Refusing to clean because validation exceeded the scanned item limit: /a/b"},
        {Kind::cleanupPostOperationVerificationFailed, "Could not verify cleanup operation after it completed: /a/b"},
        {Kind::restoreDestinationMissing, "Could not restore because the trashed item is missing: /a/b"},
        {Kind::restoreDestinationExists, "Could not restore because an item already exists at: /a/b"},
        {Kind::missingRestoreSourceIdentity,
            "Could not restore because the trashed item identity is unavailable: /a/b"},
        {Kind::restoreSourceChanged, "Could not restore because the trashed item changed: /a/b"},
    };
    for (const auto& [kind, words] : expected) {
        EXPECT_EQ((CleaningError{kind, "/a/b"}.errorDescription()), words);
    }
}

TEST(CleaningError, NamesNoPathWhereThereIsNoTrash)
{
    EXPECT_EQ((CleaningError{Kind::moveToTrashUnavailable, "/a"}.errorDescription()),
        "Move to Trash is only available on macOS");
}

TEST(CleaningError, EscapesBytesThatAreNoText)
{
    EXPECT_EQ(
        (CleaningError{Kind::symbolicLink, "/a\xFF"}.errorDescription()), "Refusing to clean symbolic link: /a\\xFF");
}

} // namespace
} // namespace CleanerCore
