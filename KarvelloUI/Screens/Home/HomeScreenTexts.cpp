#include "KarvelloUI/Screens/Home/HomeScreenModel.h"

#include <optional>
#include <string>

namespace KarvelloUI {

using Phase = CleanerViewModel::Phase;

namespace {

/// Why no scan can start; empty if one can.
std::string scanObstacle(const MacCleanerDashboardModel& dashboard, const DashboardWords& words)
{
    switch (dashboard.cleaner().phase()) {
    case Phase::scanning:
        return words.scanningMessage();
    case Phase::cleaning:
        return words.cleaningMessage();
    case Phase::restoring:
        return words.restoringMessage();
    case Phase::idle:
    case Phase::ready:
    case Phase::finished:
        break;
    }
    return dashboard.hasHomeAccess() ? std::string()
                                     : words.text("스캔을 시작하기 전에 홈 폴더 접근을 허용하세요.",
                                           "Grant home folder access before starting a scan.");
}

std::optional<HomeScanState> unscannedState(const MacCleanerDashboardModel& dashboard)
{
    if (!dashboard.hasHomeAccess()) {
        return HomeScanState::needsAccess;
    }
    return dashboard.cleaner().phase() == Phase::idle ? std::optional(HomeScanState::ready) : std::nullopt;
}

} // namespace

void HomeScreenModel::refreshTexts()
{
    const auto words = m_dashboard.words();
    const auto state = unscannedState(m_dashboard);
    m_texts = {
        .title = shown(words.macDashboardSectionTitle(MacDashboardSection::dashboard)),
        .subtitle = shown(words.text("시스템 상태를 바로 확인하세요. 정리 검토는 스캔한 뒤에 시작합니다.",
            "See system status now. Review cleanup only after scanning.")),
        .startScanTitle = shown(words.text("새 스캔 시작", "Start New Scan")),
        .startScanReason = shown(scanObstacle(m_dashboard, words)),
        .summary = state ? shown(words.dashboardHomeScanSummaryBody(*state)) : QString(),
        .coachTitle = shown(words.text("스마트 정리 코치", "Smart Cleanup Coach")),
        .coachSubtitle = shown(words.text("최근 스캔을 바탕으로 먼저 검토할 곳을 안내합니다. 자동으로 정리되는 항목은 "
                                          "없습니다.",
            "Prioritized review paths from the latest scan. Nothing is cleaned automatically.")),
        .timelineTitle = shown(words.text("저장 공간 근거 타임라인", "Storage Evidence Timeline")),
        .timelineSubtitle = shown(words.text("현재 저장 공간과 최근에 기록된 스캔 및 정리 내역입니다. 예상치, 휴지통 "
                                             "이동, 확보된 공간은 따로 표시합니다.",
            "Current storage snapshot plus recent recorded scan and cleanup events. Estimates, Trash moves, and "
            "recovered space stay separate.")),
        .timelineEmptyText =
            shown(words.text("아직 저장 공간 근거가 없습니다. 스캔과 정리 기록은 생기는 대로 따로 표시됩니다.",
                "No storage-evidence events yet. Scans and cleanup records appear separately when recorded.")),
        .baselineTitle = shown(words.text("안전 기준", "Safety baseline")),
        .baselineLines =
            {
                shown(words.text(
                    "홈에는 상태와 요약만 표시됩니다. 정리할 때는 검토에서 선택한 항목만 휴지통으로 이동합니다.",
                    "Home stays status-and-summary only. Cleanup moves only selected review items to Trash.")),
                shown(words.text("상태 수치는 현재 샘플이며, 판단에 쓰는 수치에는 평균이나 추이라고 표시합니다.",
                    "Status metrics use current samples; decision metrics are labeled as averages/trends.")),
                shown(words.text("정리 동작은 검토 화면에서만 강조됩니다.",
                    "Cleanup actions are emphasized only in the review screen.")),
                shown(words.text("건너뛴 항목은 오류가 아니라 보호된 항목으로 설명합니다.",
                    "Skipped items are explained as protected, not as errors.")),
            },
    };
    Q_EMIT textsChanged();
}

} // namespace KarvelloUI
