#include "CleanerCore/Scan/CustomFolderLocation.h"
#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Sessions/RunMessages.h"
#include "KarvelloUI/Stores/CustomScanFolderAccess.h"
#include "KarvelloUI/Stores/CustomScanFolderResolver.h"
#include "KarvelloUI/Stores/HomeAccessBookmark.h"
#include "KarvelloUI/Stores/HomeAccessSecurityScope.h"
#include "KarvelloUI/Stores/StoredData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace KarvelloUI;

/// What the sessions and the stores say in English and a screen shows.
std::vector<std::string> messages()
{
    using CleanerCore::CustomScanFolderError;
    return {
        std::string(RunMessages::kCleanFailed),
        std::string(RunMessages::kCleanCancelled),
        std::string(RunMessages::kNoLongerEligible),
        std::string(RunMessages::kRestoreFailed),
        std::string(RunMessages::kRestoreCancelled),
        std::string(CustomScanFolderResolution::staleReason),
        std::string(CustomScanFolderAccess::unavailableReason),
        std::string(HomeAccessSecurityScope::unavailableReason),
        StoredData::kUnreadable,
        StoredData::kUnwritable,
        HomeAccessBookmarkError{HomeAccessBookmarkError::Kind::notDirectory, "/h/x"}.errorDescription(),
        HomeAccessBookmarkError{HomeAccessBookmarkError::Kind::notCurrentUserHome, "/h/x"}.errorDescription(),
        CustomScanFolderError{CustomScanFolderError::Kind::notDirectory, "/h/x"}.errorDescription(),
        CustomScanFolderError{CustomScanFolderError::Kind::unsafeRoot, "/h/x"}.errorDescription(),
    };
}

TEST(SpokenMessages, StandInEveryLanguage)
{
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        const KarvelloCopy copy{language};
        for (const std::string& message : messages()) {
            EXPECT_EQ(copy.skippedReason(message) == message, language == AppLanguage::english) << message;
        }
    }
}

TEST(SpokenMessages, NameNoPermissionOfTheOtherHost)
{
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        const KarvelloCopy copy{{{language, CopyHost::linuxDesktop}}};
        const std::string text = copy.skippedReason(CustomScanFolderAccess::unavailableReason);
        EXPECT_NE(text, CustomScanFolderAccess::unavailableReason);
        EXPECT_NE(text, KarvelloCopy{language}.skippedReason(CustomScanFolderAccess::unavailableReason));
    }
    EXPECT_EQ((KarvelloCopy{{{AppLanguage::english, CopyHost::linuxDesktop}}}.skippedReason(
                  CustomScanFolderAccess::unavailableReason)),
        "The custom folder could not be opened. Remove and add the folder again, or check who may read it.");
}

TEST(SpokenMessages, AMessageOfAStoreGivesItsReasonInTheLanguageToo)
{
    const KarvelloCopy german{AppLanguage::german};
    EXPECT_THAT(german.customScanFoldersSaveFailedMessage(StoredData::kUnwritable),
        testing::EndsWith("Die Daten konnten nicht geschrieben werden, weil ihr Format nicht stimmt."));
}

} // namespace
