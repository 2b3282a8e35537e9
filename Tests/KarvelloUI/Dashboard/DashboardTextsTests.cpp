#include "KarvelloUI/Dashboard/DashboardWords.h"

#include <gtest/gtest.h>
#include <string_view>

namespace {

using namespace KarvelloUI;

/// Names of keys are what stands on the keyboard, which in most countries is English.
bool namesKeys(std::string_view english)
{
    return english.starts_with("Ctrl+") || english.starts_with("Tab, ") || english == "F1";
}

/// Words that are the same in the language.
bool isSameWord(AppLanguage language, std::string_view english)
{
    return english == "Version {}" && (language == AppLanguage::french || language == AppLanguage::german);
}

TEST(DashboardTexts, StandInEveryLanguage)
{
    const auto english = Dashboard::textsIn(AppLanguage::english);
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        const auto texts = Dashboard::textsIn(language);
        ASSERT_EQ(texts.size(), english.size());
        for (std::size_t index = 0; index < texts.size() && language != AppLanguage::english; ++index) {
            if (!namesKeys(english[index])) {
                EXPECT_EQ(texts[index] == english[index], isSameWord(language, english[index]))
                    << displayName(language) << ": " << english[index];
            }
        }
    }
}

TEST(DashboardTexts, SpeakOfTheLinuxDesktop)
{
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        EXPECT_EQ(DashboardWords(language).host, CopyHost::linuxDesktop);
    }
    EXPECT_EQ(
        DashboardWords(AppLanguage::german).finderRevealFailedTitle(), "Öffnen in der Dateiverwaltung nicht möglich");
}

} // namespace
