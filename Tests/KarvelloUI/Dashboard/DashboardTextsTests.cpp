#include "KarvelloUI/Dashboard/DashboardWords.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

using namespace KarvelloUI;

/// Texts that are the same in a language as in English, and rightly so.
const std::set<std::pair<AppLanguage, std::string_view>>& sameAsEnglish()
{
    using enum AppLanguage;
    static const std::set<std::pair<AppLanguage, std::string_view>> texts{};
    return texts;
}

TEST(DashboardTexts, StandInEveryLanguage)
{
    const auto english = Dashboard::textsIn(AppLanguage::english);
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        const auto texts = Dashboard::textsIn(language);
        ASSERT_EQ(texts.size(), english.size());
        for (std::size_t index = 0; index < texts.size() && language != AppLanguage::english; ++index) {
            EXPECT_EQ(texts[index] == english[index], sameAsEnglish().contains({language, english[index]}))
                << displayName(language) << ": " << english[index];
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
