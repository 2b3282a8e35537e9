#include "KarvelloCLI/SkipKind.h"

#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "Platform/Files/FileError.h"

#include <gtest/gtest.h>

#include <cerrno>

using namespace KarvelloCLI;
using CleanerCore::CleaningError;

namespace Reason = CleanerCore::StorageScannerSkipReason;

TEST(SkipKind, WhatTheRulesLeaveOutIsProtection)
{
    for (const auto reason :
        {Reason::symbolicLink, Reason::noTouchPath, Reason::noTouchDescendant, Reason::recentlyModified,
            Reason::emptyItem, Reason::inventoryItemLimitExceeded, Reason::duplicateHashBudgetExceeded}) {
        EXPECT_EQ(skipKind(reason), SkipKind::protection) << reason;
    }
}

TEST(SkipKind, ARootThatIsNoneOrNotAllowedIsRefused)
{
    EXPECT_EQ(skipKind(Reason::folderDoesNotExist), SkipKind::refusal);
    const CleaningError error{CleaningError::Kind::pathNotAllowed, "/usr"};
    EXPECT_EQ(skipKind(error.errorDescription()), SkipKind::refusal);
}

TEST(SkipKind, EverythingElseIsAFailure)
{
    EXPECT_EQ(skipKind(Reason::couldNotEnumerateFolder), SkipKind::failure);
    const auto error = Platform::FileError::fromSystemError(EACCES, Platform::FileOperation::read, "/x");
    EXPECT_EQ(skipKind(error.localizedDescription()), SkipKind::failure);
    EXPECT_EQ(skipKind(""), SkipKind::failure);
}
