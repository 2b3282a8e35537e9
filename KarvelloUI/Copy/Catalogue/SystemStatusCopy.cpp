#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/PercentText.h"

namespace KarvelloUI {

namespace {

constexpr std::string_view kUnknownStateInKorean = "알 수 없음";

std::string loadAverageText(double loadAverage)
{
    return fmt::format("{:.2f}", loadAverage);
}

} // namespace

std::string KarvelloCopy::localizedPressure(std::string_view pressure) const
{
    if (pressure == "Normal") {
        return text("정상", "Normal");
    }
    if (pressure == "Moderate") {
        return text("보통", "Moderate");
    }
    if (pressure == "High") {
        return text("높음", "High");
    }
    return std::string(language == AppLanguage::korean ? kUnknownStateInKorean : pressure);
}

std::string KarvelloCopy::localizedThermalState(std::string_view state) const
{
    if (state == "Nominal") {
        return text("정상", "Nominal");
    }
    if (state == "Fair") {
        return text("보통", "Fair");
    }
    if (state == "Serious") {
        return text("높음", "Serious");
    }
    if (state == "Critical") {
        return text("위험", "Critical");
    }
    return std::string(language == AppLanguage::korean ? kUnknownStateInKorean : state);
}

std::string KarvelloCopy::memoryPressure(std::string_view pressure) const
{
    return sentence("추정 메모리 사용 수준: {}", "Estimated memory use: {}", localizedPressure(pressure));
}

std::string KarvelloCopy::processorSubtitle(std::int64_t processorCount, std::int64_t activeProcessorCount) const
{
    return counted(processorCount, "프로세서 {}개 · 활성 {}개", "{} processor · {} active", "{} processors · {} active",
        processorCount, activeProcessorCount);
}

std::string KarvelloCopy::cpuLoadAverageSubtitle(double loadAverage) const
{
    return fmt::format("{} {}", text("평균 부하", "Load Average"), loadAverageText(loadAverage));
}

std::string KarvelloCopy::cpuSubtitle(double loadAverage, std::int64_t activeProcessorCount) const
{
    return joinedParts({cpuLoadAverageSubtitle(loadAverage),
        fmt::format("{} {}", text("활성 코어", "Active Cores"), activeProcessorCount)});
}

std::string KarvelloCopy::cpuAnalysisInterpretation(LoadLevel level) const
{
    switch (level) {
    case LoadLevel::nominal:
        return text("CPU 부하에 여유가 있습니다. 백그라운드에서 저장 공간 스캔을 시작해도 반응 속도에 큰 영향은 없을 "
                    "것입니다.",
            "CPU load has headroom. Starting a background storage scan is unlikely to affect responsiveness much.");
    case LoadLevel::elevated:
        return text(
            "CPU 부하가 다소 높습니다. 큰 파일이나 중복 파일처럼 무거운 스캔을 실행하기 전에 반응 속도와 팬 소음을 "
            "살펴보세요.",
            "CPU load is elevated. Watch responsiveness or fan noise before running heavier large-file or duplicate "
            "scans.");
    case LoadLevel::high:
        return text("CPU 부하가 높습니다. 무거운 앱이나 빌드 작업이 끝난 뒤에 스캔하거나 정리하세요.",
            "CPU pressure is high. Wait for heavy apps or build jobs to finish before scanning or cleaning.");
    }
    return {};
}

std::string KarvelloCopy::cpuAnalysisPrimaryAction(LoadLevel level) const
{
    switch (level) {
    case LoadLevel::nominal:
        return text("정리 스캔을 실행하기 좋은 때입니다.", "Good time to run a cleanup scan.");
    case LoadLevel::elevated:
        return text("CPU를 많이 쓰는 앱을 확인하고, 반응 속도가 중요하면 잠시 멈추세요.",
            "Check CPU-heavy apps and pause if responsiveness matters.");
    case LoadLevel::high:
        return text("빌드, 인코딩, 백업 같은 무거운 작업이 끝난 뒤 다시 측정하세요.",
            "Re-measure after builds, encoding, backups, or other heavy work finish.");
    }
    return {};
}

std::string KarvelloCopy::memoryAnalysisInterpretation(LoadLevel level) const
{
    switch (level) {
    case LoadLevel::nominal:
        if (isLinux()) {
            return own("Memory has headroom. Let the system manage caches and proceed with normal scans.");
        }
        return text("메모리에 여유가 있습니다. 캐시 관리는 macOS에 맡기고 평소처럼 스캔하세요.",
            "Memory has headroom. Let macOS manage caches and proceed with normal scans.");
    case LoadLevel::elevated:
        return text("메모리 사용량이 다소 높습니다. 큰 파일이나 중복 파일을 스캔하기 전에 무거운 앱을 종료하면 더 "
                    "안정적입니다.",
            "Memory use is elevated. Closing heavy apps before large-file or duplicate scans can improve stability.");
    case LoadLevel::high:
        return text("메모리 압박이 높습니다. 앱을 종료하거나 재시동한 뒤 다시 측정하세요.",
            "Memory pressure is high. Close apps or restart, then re-measure.");
    }
    return {};
}

std::string KarvelloCopy::memoryAnalysisPrimaryAction(LoadLevel level) const
{
    switch (level) {
    case LoadLevel::nominal:
        return text("추가 조치 없이 지켜보세요.", "Monitor without extra action.");
    case LoadLevel::elevated:
        return text("무거운 작업을 하기 전에 쓰지 않는 앱이나 브라우저 탭을 닫으세요.",
            "Close unused apps or browser tabs before heavy work.");
    case LoadLevel::high:
        return text("우선 앱을 종료하거나 재시동한 뒤 다시 측정하세요.",
            "Prefer quitting apps or restarting, then re-measure.");
    }
    return {};
}

std::string KarvelloCopy::systemTrendName(std::string_view metricName) const
{
    return around(metricName, "{} 추이", "{} trend");
}

std::string KarvelloCopy::systemTrendSubtitle(std::int64_t sampleCount) const
{
    if (sampleCount <= 0) {
        return text("샘플 없음", "No samples");
    }
    return sampleCount == 1 ? text("샘플 1개", "1 sample") : sentence("샘플 {}개", "{} samples", sampleCount);
}

std::string KarvelloCopy::metricTrendAccessibilityValue(std::span<const double> samples) const
{
    std::string count = systemTrendSubtitle(static_cast<std::int64_t>(samples.size()));
    if (samples.empty()) {
        return count;
    }
    if (samples.size() == 1) {
        return sentence("{}, {}", "{}, {}", count, percentText(samples.front()));
    }
    // An arrow and no word: the shape of two parts with a comma between them comes first and would leave it English.
    return sentence("{}, {} → {}", "{}, {} → {}", count, percentText(samples.front()), percentText(samples.back()));
}

} // namespace KarvelloUI
