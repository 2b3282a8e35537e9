#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

std::string KarvelloCopy::macDashboardSectionTitle(MacDashboardSection section) const
{
    using enum MacDashboardSection;
    switch (section) {
    case dashboard:
        return text("실시간 대시보드", "Live Dashboard");
    case cleanup:
        return text("정리 검토", "Cleanup Review");
    case reviewEvidence:
        return text("검토와 근거", "Review & Evidence");
    case heatmap:
        return text("저장 공간 지도", "Storage Map");
    case largeFiles:
        return text("큰 파일", "Large Files");
    case downloads:
        return text("다운로드", "Downloads");
    case duplicates:
        return text("중복 파일", "Duplicates");
    case security:
        return text("설치 파일 검토", "Installer Review");
    case system:
        return text("시스템 상태", "System Pulse");
    case cpuAnalysis:
        return text("CPU 분석", "CPU Analysis");
    case memoryAnalysis:
        return text("메모리 분석", "Memory Analysis");
    case iosGuide:
        return text("iOS 안내", "iOS Guide");
    case settings:
        return text("설정", "Settings");
    }
    return {};
}

std::string KarvelloCopy::dashboardAccessButtonTitle(bool hasAccess) const
{
    return hasAccess ? text("접근 권한 변경", "Change Access") : text("접근 허용", "Grant Access");
}

std::string KarvelloCopy::dashboardHomeScanSummaryBody(HomeScanState state) const
{
    switch (state) {
    case HomeScanState::needsAccess:
        return text("시스템 상태는 이미 볼 수 있습니다. 홈 폴더 접근을 허용한 뒤 스캔하면 정리 후보를 찾습니다.",
            "System status is already visible. Grant home access, then scan to find cleanup candidates.");
    case HomeScanState::ready:
        return text("스캔을 시작하면 정리 후보, 확보할 수 있는 공간, 카테고리별 사용량을 볼 수 있습니다. 모든 항목은 "
                    "먼저 휴지통으로 이동하며, 여유 공간은 휴지통을 비운 뒤에 반영됩니다.",
            "Start a scan to see cleanup candidates, reclaimable space, and per-category usage. All items move to "
            "Trash first, and free space is reflected after you empty Trash.");
    case HomeScanState::scanned:
        return text("홈에는 수치만 표시됩니다. 항목별 이유와 경로는 정리 검토에서 확인하세요.",
            "Home shows only the numbers. Review per-item reasons and paths in Cleanup Review.");
    }
    return {};
}

std::string KarvelloCopy::dashboardReviewEvidenceProjectSummary(
    std::int64_t projectCount, std::int64_t estimatedBytes) const
{
    return projectCount <= 0
        ? text("아직 프로젝트 스캔 근거 없음", "No project scan evidence yet")
        : sentence("{} · 휴지통으로 이동하기 전에 검토", "{} · review before Trash move", byteSize(estimatedBytes));
}

} // namespace KarvelloUI
