#include "KarvelloMac/PreferredText.h"

#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

namespace KarvelloMac {

using namespace KarvelloUI;

namespace {

class PreferredText : public testing::Test {
protected:
    [[nodiscard]] bool hasRoomForCJK() const
    {
        return m_design.title()->lineHeight() == 32 && m_design.body()->lineHeight() == 19
            && m_design.title()->font().letterSpacing() == 0;
    }

    TestSupport::TemporaryTree m_tree;
    Platform::PosixFileManager m_files;
    Platform::FileUserDefaults m_defaults{m_files, m_tree.url("Karvello/preferences.json")};
    DashboardPreferences m_preferences{m_defaults, {"en"}};
    DesignTokens m_design{nullptr};
};

} // namespace

TEST_F(PreferredText, GivesCJKItsRoomFromTheStart)
{
    ASSERT_TRUE(m_preferences.setLanguage(AppLanguage::japanese));
    followPreferredText(m_design, m_preferences);
    EXPECT_TRUE(hasRoomForCJK());
}

TEST_F(PreferredText, FollowsTheLanguage)
{
    followPreferredText(m_design, m_preferences);
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        ASSERT_TRUE(m_preferences.setLanguage(language));
        const bool isCJK = language == AppLanguage::korean || language == AppLanguage::japanese
            || language == AppLanguage::simplifiedChinese || language == AppLanguage::traditionalChinese;
        EXPECT_EQ(hasRoomForCJK(), isCJK) << displayName(language);
    }
}

TEST_F(PreferredText, FollowsTheSizeAndKeepsTheScript)
{
    ASSERT_TRUE(m_preferences.setLanguage(AppLanguage::simplifiedChinese));
    followPreferredText(m_design, m_preferences);
    const qreal factor = m_design.textFactor();
    ASSERT_TRUE(m_preferences.setTextScale(KarvelloTextScale::extraLarge));
    EXPECT_GT(m_design.textFactor(), factor);
    EXPECT_EQ(m_design.title()->font().letterSpacing(), 0);
}

} // namespace KarvelloMac
