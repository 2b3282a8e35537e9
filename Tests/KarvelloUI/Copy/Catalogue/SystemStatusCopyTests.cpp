#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/PercentText.h"
#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>

namespace KarvelloUI {
namespace {

using CleanerCore::ResourceReliefActionResult;
using CleanerCore::ResourceReliefActionStatus;
using CleanerCore::ResourceReliefCandidate;
using CleanerCore::ResourceReliefEligibility;
using CleanerCore::ResourceReliefProtectionReason;

TEST(SystemStatusCopy, TranslatesTheStatesItKnows)
{
    EXPECT_EQ(kKorean.localizedThermalState("Nominal"), "정상");
    EXPECT_EQ(kKorean.localizedThermalState("Fair"), "보통");
    EXPECT_EQ(kKorean.localizedThermalState("Serious"), "높음");
    EXPECT_EQ(kKorean.localizedThermalState("Critical"), "위험");
    EXPECT_EQ(kEnglish.localizedThermalState("Serious"), "Serious");
    EXPECT_EQ(kKorean.localizedPressure("High"), "높음");
    EXPECT_EQ(kGerman.localizedPressure("Moderate"), "Mittel");
}

TEST(SystemStatusCopy, ShowsAnUnknownStateAsItIs)
{
    // A word of the tables that is no state.
    EXPECT_EQ(kGerman.localizedThermalState("Cancel"), "Cancel");
    EXPECT_EQ(kEnglish.localizedThermalState(""), "");
    EXPECT_EQ(kKorean.localizedThermalState("Tepid"), "알 수 없음");
    EXPECT_EQ(kGerman.localizedPressure("Critical"), "Critical");
    EXPECT_EQ(kKorean.localizedPressure("Critical"), "알 수 없음");
}

TEST(SystemStatusCopy, SetsTheMarksOfBothLoadsAlike)
{
    EXPECT_EQ(loadLevelOfCPU(0.69), LoadLevel::nominal);
    EXPECT_EQ(loadLevelOfCPU(0.7), LoadLevel::elevated);
    EXPECT_EQ(loadLevelOfCPU(0.85), LoadLevel::high);
    EXPECT_EQ(loadLevelOfCPU(std::numeric_limits<double>::quiet_NaN()), LoadLevel::nominal);
    EXPECT_EQ(loadLevelOfMemory("Normal"), LoadLevel::nominal);
    EXPECT_EQ(loadLevelOfMemory("Moderate"), LoadLevel::elevated);
    EXPECT_EQ(loadLevelOfMemory("High"), LoadLevel::high);
    EXPECT_EQ(loadLevelOfMemory("Unknown"), LoadLevel::nominal);
}

TEST(SystemStatusCopy, WritesPercentages)
{
    EXPECT_EQ(percentText(0.425), "43%");
    EXPECT_EQ(percentText(-0.1), "0%");
    EXPECT_EQ(percentText(1.5), "100%");
    EXPECT_EQ(percentText(std::numeric_limits<double>::infinity()), "—");
    EXPECT_EQ(percentText(std::numeric_limits<double>::quiet_NaN()), "—");
}

TEST(SystemStatusCopy, ReadsATrendFromItsEnds)
{
    EXPECT_EQ(kEnglish.metricTrendAccessibilityValue({}), "No samples");
    EXPECT_EQ(kEnglish.metricTrendAccessibilityValue(std::array{0.42}), "1 sample, 42%");
    EXPECT_EQ(kEnglish.metricTrendAccessibilityValue(std::array{0.1, 0.9, 0.42}), "3 samples, 10% → 42%");
    EXPECT_EQ(kEnglish.systemTrendName("CPU"), "CPU trend");
}

TEST(SystemStatusCopy, ShowsTheLoadAverageInEveryLanguageWithAPoint)
{
    EXPECT_EQ(kEnglish.cpuSubtitle(1.256, 4), "Load Average 1.26 · Active Cores 4");
    EXPECT_EQ(kGerman.cpuLoadAverageSubtitle(1), "Mittlere Last 1.00");
}

TEST(ResourceReliefCopy, TellsWhatBecameOfARequest)
{
    ResourceReliefActionResult result;
    result.displayName = "Notes";
    result.status = ResourceReliefActionStatus::requestSent;
    EXPECT_EQ(kEnglish.resourceReliefResultText(result), "Sent a normal quit request to Notes.");
    result.displayName = "Notes, Inc. {0}\xff";
    EXPECT_EQ(KarvelloCopy{AppLanguage::french}.resourceReliefResultText(result),
        "Demande de fermeture normale envoyée à Notes, Inc. {0}\xff.");
    result.displayName = "Notes";
    result.status = ResourceReliefActionStatus::staleCandidate;
    EXPECT_EQ(kEnglish.resourceReliefResultText(result), "Notes changed state, so the quit request was skipped.");
    EXPECT_EQ(kKorean.resourceReliefResultText(result), "Notes 앱의 상태가 바뀌어 종료 요청을 건너뛰었습니다.");
}

TEST(ResourceReliefCopy, LeavesOutWhatIsNotKnownOfAnApp)
{
    ResourceReliefCandidate candidate;
    EXPECT_EQ(kEnglish.resourceReliefCandidateDetail(candidate), "");
    candidate.usage.residentMemoryBytes = 1536;
    EXPECT_EQ(kEnglish.resourceReliefCandidateDetail(candidate), "1.5 KB");
    candidate.bundleIdentifier = "com.example.Notes";
    candidate.eligibility = ResourceReliefEligibility::unavailable(ResourceReliefProtectionReason::notUserVisible);
    EXPECT_EQ(kEnglish.resourceReliefCandidateDetail(candidate), "Background process · com.example.Notes · 1.5 KB");
    candidate.usage.residentMemoryBytes = std::numeric_limits<std::uint64_t>::max();
    candidate.bundleIdentifier.reset();
    candidate.eligibility = ResourceReliefEligibility::actionable();
    EXPECT_EQ(kEnglish.resourceReliefCandidateDetail(candidate),
        kEnglish.smartCleanupSizeDetail(std::numeric_limits<std::int64_t>::max()));
}

TEST(ResourceReliefCopy, ShowsADashForAnUnknownShare)
{
    EXPECT_EQ(kEnglish.resourceReliefPercent(std::nullopt), "—");
    EXPECT_EQ(kEnglish.resourceReliefMetricAccessibility("Notes", ResourceReliefMetric::memory, 0.42),
        "Notes uses 42% of total physical memory");
}

} // namespace
} // namespace KarvelloUI
