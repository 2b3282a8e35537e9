#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

using CleanerCore::CleanupAuditSource;
using CleanerCore::CleanupRestoreCenterSnapshot;

std::string CleanupCopy::restoreCenterTitle() const
{
    return text("복원 센터", "Restore Center");
}

std::string CleanupCopy::restoreCenterBody() const
{
    return text("복원 센터에는 Karvello가 휴지통으로 이동했다고 기록한 항목이 표시됩니다. 복원 정보가 기록된 항목만 "
                "복원을 시도합니다. 경로를 하나씩 검토하세요. 정보가 부족한 항목도 표시되지만 선택할 수 없습니다.",
        "Restore Center lists items Karvello recorded as moved to Trash. It only tries restoring entries with recorded "
        "restore details. Review each path; entries without enough details remain visible but disabled.");
}

std::string CleanupCopy::restoreCenterSummary(const CleanupRestoreCenterSnapshot& snapshot) const
{
    const std::size_t moves = snapshot.trashMovedItems.size();
    return sentence(
        "최근 정리 {0}개 · {2} {1}건 · 복원 시도 가능 {3}개 · 기록된 휴지통 이동 크기 {4} · 복원 가능한 기록 "
        "크기 {5}",
        "{} recently cleaned · {} {} · {} eligible to try restore · Recorded Trash size {} · Eligible recorded size "
        "{}",
        snapshot.recentItems.size(), moves,
        moves == 1 ? text("기록된 휴지통 이동", "recorded Trash move")
                   : text("기록된 휴지통 이동", "recorded Trash moves"),
        snapshot.restoreAuthorizedItems.size(), byteSize(snapshot.trashMovedBytes()),
        byteSize(snapshot.restorableBytes()));
}

std::string CleanupCopy::restoreCenterLedgerNote(CleanupAuditSource source, std::string_view recordedAt) const
{
    return around(recordedAt,
        "{1}의 {0} 기록에서 불러왔습니다. 기록에서 가져온 항목은 원래 위치와 휴지통 위치를 검토하는 데만 쓰이며, "
        "복원은 "
        "현재 정리 세션 중에만 시도할 수 있습니다.",
        "Loaded from {1} history on {0}. History-backed entries are for original/Trash location review; restore "
        "attempts are available only during the current cleanup session.",
        auditSourceName(source));
}

std::string CleanupCopy::restoreCenterSelectionHint(std::int64_t selectedCount, std::int64_t eligibleCount) const
{
    return sentence("{2} {1}개 중 {0}개 선택됨. 복원을 시도하면 검토한 항목을 기록된 휴지통 위치에서 가능한 경우 원래 "
                    "경로로 되돌립니다.",
        "{} of {} {} selected. Restore attempts try to move reviewed items from their recorded Trash locations back to "
        "original paths when possible.",
        selectedCount, eligibleCount,
        eligibleCount == 1 ? text("복원 가능한 항목", "eligible item") : text("복원 가능한 항목", "eligible items"));
}

std::string CleanupCopy::restoreCenterRestoreSelected(std::int64_t itemCount) const
{
    return sentence("선택한 {1} {0}개 복원 시도", "Try Restoring {} Selected {}", itemCount,
        itemCount == 1 ? text("항목", "Item") : text("항목", "Items"));
}

std::string CleanupCopy::restoreCenterItemSubtitle(
    std::int64_t bytes, std::optional<std::string_view> trashLocation) const
{
    const std::string size = byteSize(bytes);
    return trashLocation ? around(*trashLocation, "{1} · 휴지통 위치: {0}", "{1} · Trash location: {0}", size)
                         : sentence("{} · 휴지통 위치를 알 수 없음", "{} · Trash location unavailable", size);
}

std::string CleanupCopy::restoreCenterTrashLocationLabel() const
{
    return text("휴지통 위치:", "Trash location:");
}

std::string CleanupCopy::restoreCenterTrashLocationUnavailable() const
{
    return text("휴지통 위치를 알 수 없음", "Trash location unavailable");
}

std::string CleanupCopy::restoreCenterReadyStatus() const
{
    return text(
        "복원 정보 있음 — 선택하면 복원을 시도할 수 있음", "Restore details recorded — select to try restoring");
}

std::string CleanupCopy::restoreCenterUnavailableStatus() const
{
    return text("복원 정보 없음 — 검토용으로 표시되며 선택할 수 없음",
        "Restore details missing — visible for review but disabled");
}

std::string CleanupCopy::restoreCenterHistoryOnlyStatus() const
{
    return text("기록 항목 — 위치 보기만 가능하며 현재 세션에서는 복원할 수 없음",
        "History record — reveal-only; current-session restore is disabled");
}

std::string CleanupCopy::restoreCenterRevealOriginal() const
{
    return text("원래 위치 보기", "Reveal Original");
}

std::string CleanupCopy::restoreCenterRevealTrashLocation() const
{
    return text("휴지통 위치 보기", "Reveal Trash");
}

} // namespace KarvelloUI
