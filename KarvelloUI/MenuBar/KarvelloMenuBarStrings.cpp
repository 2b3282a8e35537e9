#include "KarvelloUI/MenuBar/KarvelloMenuBarStrings.h"

#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/PercentText.h"
#include "Platform/Base/LocalizedText.h"

#include <algorithm>
#include <vector>

namespace KarvelloUI {

using Kind = KarvelloMenuBarReminder::Kind;
using Severity = KarvelloMenuBarReminder::Severity;

std::string KarvelloMenuBarStrings::percent(double value)
{
    return percentText(value);
}

std::string KarvelloMenuBarStrings::compactStatus(const KarvelloMenuBarStatusSnapshot& snapshot) const
{
    return sentence("여유 {} · CPU {}", "Free {} · CPU {}", percent(snapshot.diskFreeFraction()),
        percent(snapshot.cpuLoadFraction()));
}

std::string KarvelloMenuBarStrings::updated(Platform::Date date) const
{
    return own("Updated {}", Platform::LocalizedText::shortTime(date, locale()));
}

std::string KarvelloMenuBarStrings::storageTitle() const
{
    return text("저장 공간", "Storage");
}

std::string KarvelloMenuBarStrings::storageValue(const KarvelloMenuBarStatusSnapshot& snapshot) const
{
    return own("{} · {} free", byteSize(snapshot.diskFreeBytes), percent(snapshot.diskFreeFraction()));
}

std::string KarvelloMenuBarStrings::storageSubtitle(const KarvelloMenuBarStatusSnapshot& snapshot) const
{
    return sentence(
        "{} / {} 사용", "{} / {} used", byteSize(snapshot.diskUsedBytes()), byteSize(snapshot.diskTotalBytes));
}

std::string KarvelloMenuBarStrings::cpuTitle() const
{
    return text("CPU", "CPU");
}

std::string KarvelloMenuBarStrings::memoryTitle() const
{
    return text("메모리", "Memory");
}

std::string KarvelloMenuBarStrings::thermalTitle() const
{
    return text("발열", "Thermal");
}

std::string KarvelloMenuBarStrings::localizedThermalState(std::string_view state) const
{
    return KarvelloCopy{{{language}}}.localizedThermalState(state);
}

std::string KarvelloMenuBarStrings::triageTitle() const
{
    return text("빠른 상태 확인", "Quick Triage");
}

std::string KarvelloMenuBarStrings::triageBody() const
{
    return text("현재 경고를 적절한 검토 화면으로만 연결합니다. 메뉴 막대에서는 정리나 앱 종료를 실행하지 않습니다.",
        "Routes current alerts to the right review surface only. The menu bar does not clean files or quit apps.");
}

std::string KarvelloMenuBarStrings::triageEmptyTitle() const
{
    return text("지금 검토할 경고 없음", "No alerts need review now");
}

std::string KarvelloMenuBarStrings::triageReviewButtonTitle(Kind kind) const
{
    switch (kind) {
    case Kind::lowDiskSpace:
        return text("정리할 항목 검토", "Review Cleanup");
    case Kind::highMemoryPressure:
        return text("메모리 분석 열기", "Open Memory Analysis");
    case Kind::thermalPressure:
        return text("시스템 상태 보기", "Review System Status");
    }
    return {};
}

std::string KarvelloMenuBarStrings::openDashboardTitle() const
{
    return text("대시보드 열기", "Open Dashboard");
}

std::string KarvelloMenuBarStrings::quitTitle() const
{
    return text("종료", "Quit");
}

std::string KarvelloMenuBarStrings::reminderDetail(
    const KarvelloMenuBarReminder& reminder, const KarvelloMenuBarStatusSnapshot& snapshot) const
{
    switch (reminder.kind) {
    case Kind::lowDiskSpace:
        return sentence("여유 공간 {} · {} 남음", "Free space {} · {} left", percent(snapshot.diskFreeFraction()),
            byteSize(snapshot.diskFreeBytes));
    case Kind::highMemoryPressure:
        return text("메모리 압박 높음 · 메모리 분석에서 실행 중인 앱을 검토하세요",
            "High memory pressure · review running apps in Memory Analysis");
    case Kind::thermalPressure:
        return around(localizedThermalState(snapshot.systemSnapshot.thermalState), "열 압박 {} · 작업을 잠시 줄이세요",
            "Thermal pressure {} · pause heavy work");
    }
    return {};
}

std::string KarvelloMenuBarStrings::reminderNotificationTitle(std::span<const KarvelloMenuBarReminder> reminders) const
{
    const bool isCritical =
        std::ranges::find(reminders, Severity::critical, &KarvelloMenuBarReminder::severity) != reminders.end();
    return isCritical ? text("Karvello 긴급 상태", "Karvello Critical Status")
                      : text("Karvello 확인 필요", "Karvello Needs Review");
}

std::string KarvelloMenuBarStrings::reminderNotificationBody(
    std::span<const KarvelloMenuBarReminder> reminders, const KarvelloMenuBarStatusSnapshot& snapshot) const
{
    std::vector<std::string> details;
    details.reserve(reminders.size());
    for (const auto& reminder : reminders) {
        details.push_back(reminderDetail(reminder, snapshot));
    }
    return around(Platform::LocalizedText::list(details, locale()).value_or(joinedParts(details)),
        "{} · 검토 알림일 뿐이며 정리를 실행하지 않습니다.",
        "{} · Review only; Karvello does not clean anything from notifications.");
}

} // namespace KarvelloUI
