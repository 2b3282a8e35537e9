#include "KarvelloUI/MenuBar/KarvelloMenuBarStrings.h"
#include "Tests/KarvelloUI/MenuBar/MenuBarSnapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

using namespace MenuBarTests;
using KarvelloUI::AppLanguage;
using Strings = KarvelloUI::KarvelloMenuBarStrings;
using testing::EndsWith;
using testing::StartsWith;

const Strings kEnglish{{AppLanguage::english}};
const Strings kKorean{{AppLanguage::korean}};
const Strings kSpanish{{AppLanguage::spanish}};
const Strings kGerman{{AppLanguage::german}};

const std::vector<KarvelloMenuBarReminder> kAll{kLowDisk, kHighMemory, kCriticalHeat};

KarvelloMenuBarStatusSnapshot large()
{
    return withDisk(500LL << 30, 50LL << 30);
}

TEST(KarvelloMenuBarStrings, PercentIsLimitedAndRounded)
{
    EXPECT_EQ(Strings::percent(0.424), "42%");
    EXPECT_EQ(Strings::percent(0.425), "43%");
    EXPECT_EQ(Strings::percent(-1), "0%");
    EXPECT_EQ(Strings::percent(7), "100%");
}

TEST(KarvelloMenuBarStrings, ANonFiniteFractionIsADash)
{
    EXPECT_EQ(Strings::percent(std::numeric_limits<double>::quiet_NaN()), "—");
    EXPECT_EQ(Strings::percent(std::numeric_limits<double>::infinity()), "—");
    EXPECT_EQ(Strings::percent(-std::numeric_limits<double>::infinity()), "—");
    auto snapshot = calm();
    snapshot.systemSnapshot.normalizedCPULoad = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(kEnglish.compactStatus(snapshot), "Free 50% · CPU —");
}

TEST(KarvelloMenuBarStrings, TellTheDisk)
{
    EXPECT_EQ(kEnglish.compactStatus(large()), "Free 10% · CPU 25%");
    EXPECT_EQ(kKorean.compactStatus(large()), "여유 10% · CPU 25%");
    EXPECT_EQ(kEnglish.storageValue(large()), "50 GB · 10% free");
    EXPECT_EQ(kKorean.storageValue(large()), "50GB · 여유 10%");
    EXPECT_EQ(kEnglish.storageSubtitle(large()), "450 GB / 500 GB used");
    EXPECT_EQ(kKorean.storageSubtitle(large()), "450GB / 500GB 사용");
    EXPECT_EQ(kSpanish.storageSubtitle(large()), "Usado: 450 GB / 500 GB");
}

TEST(KarvelloMenuBarStrings, TellTheDiskAndTheTimeInEveryLanguage)
{
    EXPECT_EQ(kGerman.storageValue(large()), "50 GB · 10% frei");
    EXPECT_EQ(kSpanish.storageValue(large()), "50 GB · libre: 10%");
    EXPECT_THAT(kGerman.updated({800'000'000}), testing::MatchesRegex("Aktualisiert: [0-9]+:[0-9]+"));
    for (const auto language : Platform::allCases<AppLanguage>()) {
        const Strings strings{{language}};
        EXPECT_EQ(strings.storageValue(large()) == kEnglish.storageValue(large()), language == AppLanguage::english);
        EXPECT_EQ(strings.updated({800'000'000}).starts_with("Updated"), language == AppLanguage::english);
    }
}

// The rows for these wait for a parenthesis that no sentence has.
TEST(KarvelloMenuBarStrings, TheLinesWithoutARowStayEnglish)
{
    EXPECT_EQ(kGerman.compactStatus(large()), "Free 10% · CPU 25%");
    EXPECT_EQ(kGerman.reminderDetail(kLowDisk, large()), "Free space 10% · 50 GB left");
}

TEST(KarvelloMenuBarStrings, TellTheTimeOfTheSnapshot)
{
    EXPECT_THAT(kEnglish.updated({800'000'000}), testing::MatchesRegex("Updated [0-9]+:[0-9]+.*[AP]M"));
    EXPECT_THAT(kKorean.updated({800'000'000}), StartsWith("최근 갱신 오"));
}

TEST(KarvelloMenuBarStrings, ThermalStatesAreTranslated)
{
    const std::vector<std::string> states{"Nominal", "Fair", "Serious", "Critical"};
    std::vector<std::string> english;
    std::vector<std::string> korean;
    std::vector<std::string> spanish;
    for (const auto& state : states) {
        english.push_back(kEnglish.localizedThermalState(state));
        korean.push_back(kKorean.localizedThermalState(state));
        spanish.push_back(kSpanish.localizedThermalState(state));
    }
    EXPECT_EQ(english, states);
    EXPECT_EQ(korean, (std::vector<std::string>{"정상", "보통", "높음", "위험"}));
    EXPECT_EQ(spanish, (std::vector<std::string>{"Nominal", "Moderado", "Grave", "Crítico"}));
}

TEST(KarvelloMenuBarStrings, AnUnknownThermalTextStaysAsItIsButInKorean)
{
    for (const auto& strings : {kEnglish, kSpanish, kGerman}) {
        EXPECT_EQ(strings.localizedThermalState("Melting, <b>\n"), "Melting, <b>\n");
    }
    EXPECT_EQ(kKorean.localizedThermalState("Melting"), "알 수 없음");
}

TEST(KarvelloMenuBarStrings, DetailsTellWhatIsWrong)
{
    EXPECT_EQ(kEnglish.reminderDetail(kLowDisk, large()), "Free space 10% · 50 GB left");
    EXPECT_EQ(kKorean.reminderDetail(kLowDisk, large()), "여유 공간 10% · 50GB 남음");
    EXPECT_EQ(
        kEnglish.reminderDetail(kHighMemory, calm()), "High memory pressure · review running apps in Memory Analysis");
    EXPECT_EQ(
        kKorean.reminderDetail(kHighMemory, calm()), "메모리 압박 높음 · 메모리 분석에서 실행 중인 앱을 검토하세요");
    EXPECT_EQ(kEnglish.reminderDetail(kSeriousHeat, strained()), "Thermal pressure Serious · pause heavy work");
    EXPECT_EQ(kKorean.reminderDetail(kSeriousHeat, strained()), "열 압박 높음 · 작업을 잠시 줄이세요");
}

TEST(KarvelloMenuBarStrings, ACriticalReminderTitlesTheNotification)
{
    EXPECT_EQ(kEnglish.reminderNotificationTitle(kAll), "Karvello Critical Status");
    EXPECT_EQ(kKorean.reminderNotificationTitle(kAll), "Karvello 긴급 상태");
    EXPECT_EQ(kSpanish.reminderNotificationTitle(kAll), "Karvello: estado crítico");
    const std::vector warnings{kLowDisk, kSeriousHeat};
    EXPECT_EQ(kEnglish.reminderNotificationTitle(warnings), "Karvello Needs Review");
    EXPECT_EQ(kKorean.reminderNotificationTitle(warnings), "Karvello 확인 필요");
}

TEST(KarvelloMenuBarStrings, TheBodyListsAllDetailsAndSaysThatNothingIsCleaned)
{
    const auto snapshot = strained("Critical");
    EXPECT_EQ(kEnglish.reminderNotificationBody(kAll, snapshot),
        "Free space 5% · 50 bytes left, High memory pressure · review running apps in Memory Analysis, and Thermal "
        "pressure Critical · pause heavy work · Review only; Karvello does not clean anything from notifications.");
    EXPECT_EQ(kKorean.reminderNotificationBody(std::vector{kLowDisk, kHighMemory}, snapshot),
        "여유 공간 5% · 50byte 남음 및 메모리 압박 높음 · 메모리 분석에서 실행 중인 앱을 검토하세요 · 검토 알림일 "
        "뿐이며 "
        "정리를 실행하지 않습니다.");
}

TEST(KarvelloMenuBarStrings, AListWithCommasIsTranslatedAroundIt)
{
    const auto body = kSpanish.reminderNotificationBody(kAll, strained("Critical"));
    EXPECT_THAT(body, EndsWith(" · Solo para revisar; Karvello no limpia nada desde las notificaciones."));
    EXPECT_EQ(body.find("Review only"), std::string::npos);
    EXPECT_NE(body.find(" y "), std::string::npos) << body;
}

TEST(KarvelloMenuBarStrings, TitlesAndButtonsExistInEveryLanguage)
{
    for (const auto language : Platform::allCases<AppLanguage>()) {
        const Strings strings{{language}};
        const std::vector<std::string> own{strings.triageTitle(), strings.triageBody(), strings.triageEmptyTitle(),
            strings.triageReviewButtonTitle(Kind::lowDiskSpace),
            strings.triageReviewButtonTitle(Kind::highMemoryPressure),
            strings.triageReviewButtonTitle(Kind::thermalPressure), strings.openDashboardTitle(), strings.quitTitle()};
        const std::vector<std::string> english{kEnglish.triageTitle(), kEnglish.triageBody(),
            kEnglish.triageEmptyTitle(), kEnglish.triageReviewButtonTitle(Kind::lowDiskSpace),
            kEnglish.triageReviewButtonTitle(Kind::highMemoryPressure),
            kEnglish.triageReviewButtonTitle(Kind::thermalPressure), kEnglish.openDashboardTitle(),
            kEnglish.quitTitle()};
        for (std::size_t index = 0; index < own.size(); ++index) {
            EXPECT_EQ(own[index] == english[index], language == AppLanguage::english) << own[index];
        }
    }
}

TEST(KarvelloMenuBarStrings, AreThoseOfTheKoreanTable)
{
    EXPECT_EQ(kKorean.triageReviewButtonTitle(Kind::lowDiskSpace), "정리할 항목 검토");
    EXPECT_EQ(kKorean.triageReviewButtonTitle(Kind::highMemoryPressure), "메모리 분석 열기");
    EXPECT_EQ(kKorean.triageReviewButtonTitle(Kind::thermalPressure), "시스템 상태 보기");
    EXPECT_EQ(kKorean.storageTitle(), "저장 공간");
    EXPECT_EQ(kKorean.thermalTitle(), "발열");
    EXPECT_EQ(kKorean.quitTitle(), "종료");
}

} // namespace
