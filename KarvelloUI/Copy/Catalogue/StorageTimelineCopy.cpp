#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

std::string KarvelloCopy::storageTimelinePointTitle(StorageTrendTimelinePointKind kind) const
{
    using enum StorageTrendTimelinePointKind;
    switch (kind) {
    case currentStorage:
        return text("현재 여유 공간", "Current free space");
    case lowDiskReminder:
        return text("여유 공간 부족 알림", "Low free-space reminder");
    case cleanupScanEstimate:
        return text("정리 스캔 예상치", "Cleanup scan estimate");
    case insightReviewOpportunity:
        return text("검토 기회", "Review opportunity");
    case movedToTrashPending:
        return text("휴지통 이동 기록", "Trash move recorded");
    case recoveredSpace:
        return text("공간 확보 기록", "Space recovered record");
    }
    return {};
}

std::string KarvelloCopy::storageTimelinePointBody(StorageTrendTimelinePointKind kind, std::int64_t bytes,
    std::int64_t secondaryBytes, std::optional<MacDashboardSection> section) const
{
    using enum StorageTrendTimelinePointKind;
    const std::string size = byteSize(bytes);
    const std::string sectionTitle = macDashboardSectionTitle(section.value_or(MacDashboardSection::cleanup));
    switch (kind) {
    case currentStorage:
        return sentence("여유 공간 {}, 사용 중 {}입니다. 현재 시점의 수치입니다.",
            "{} free, {} used. This is the current snapshot.", size, byteSize(secondaryBytes));
    case lowDiskReminder:
        return sentence("여유 공간이 부족합니다. ‘{}’에서 후보를 검토하세요. 자동으로 실행되는 작업은 없습니다.",
            "Free space is low. Open {} to review candidates. Nothing runs automatically.", sectionTitle);
    case cleanupScanEstimate:
        return sentence("최근 정리 스캔의 예상치는 {}이며 아직 검토가 필요합니다. 항목을 선택하기 전에는 아무것도 "
                        "휴지통으로 이동하지 않습니다.",
            "{} is the latest cleanup scan estimate that still needs review. Nothing is moved to Trash before you "
            "choose items.",
            size);
    case insightReviewOpportunity:
        return sentence("‘{1}’에 검토할 수 있는 항목이 {0} 있습니다. 이 크기는 스캔 예상치와 합산하지 않습니다.",
            "{} review opportunity in {}. It is not added to scan estimates as one recovery total.", size,
            sectionTitle);
    case movedToTrashPending:
        return sentence("{} 분량을 휴지통으로 이동했습니다. 공간 확보를 기다리는 중이며, 휴지통을 비워야 여유 공간이 "
                        "늘어납니다.",
            "{} was moved to Trash. It is pending recovery; free space increases after Trash is emptied.", size);
    case recoveredSpace:
        return sentence("정리 기록에 따르면 {}의 공간이 확보되었습니다. 남은 예상치는 {}입니다.",
            "{} was recovered by a cleanup record. Remaining estimate is {}.", size, byteSize(secondaryBytes));
    }
    return {};
}

std::string KarvelloCopy::storageTimelinePointDetail(StorageTrendTimelinePointKind kind, std::int64_t itemCount) const
{
    using enum StorageTrendTimelinePointKind;
    switch (kind) {
    case currentStorage:
        return text("현재 수치", "Current snapshot");
    case lowDiskReminder:
        return {};
    case cleanupScanEstimate:
        return sentence("후보 {}개 · 검토 필요", "{} candidates · review required", itemCount);
    case insightReviewOpportunity:
        return sentence("항목 {}개 · 검토 기회", "{} items · review opportunity", itemCount);
    case movedToTrashPending:
        return sentence("항목 {}개 · 확보 대기", "{} items · pending recovery", itemCount);
    case recoveredSpace:
        return sentence("항목 {}개 · 확보됨", "{} items · recovered", itemCount);
    }
    return {};
}

} // namespace KarvelloUI
