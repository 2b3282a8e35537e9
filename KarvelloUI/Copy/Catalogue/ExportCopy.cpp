#include "KarvelloUI/Copy/CleanupCopy.h"

namespace KarvelloUI {

std::string CleanupCopy::scanExportTitle() const
{
    return text("스캔 결과 내보내기", "Export Scan Results");
}

std::string CleanupCopy::scanExportBody() const
{
    return text("현재 표시된 후보, 건너뛴 항목, 선택 상태를 파일로 저장합니다. 전체 내보내기에는 경로가 포함됩니다. "
                "공유할 때는 경로와 파일 이름을 토큰으로 바꾼 익명 처리 내보내기를 선택하고, 공유하기 전에 내용을 "
                "확인하세요.",
        "Save the current visible candidates, skipped items, and selection state to a file. Full exports include "
        "paths. For sharing, choose a redacted export that replaces paths and file names with tokens, then review "
        "before sharing.");
}

std::string CleanupCopy::scanExportPanelMessage() const
{
    return text(
        "Karvello 스캔 결과를 저장할 위치를 선택하세요.", "Choose where to save the Karvello scan result export.");
}

std::string CleanupCopy::scanExportFailedTitle() const
{
    return text("내보내기 실패", "Export Failed");
}

std::string CleanupCopy::scanExportFailedMessage(std::string_view reason) const
{
    return around(engineSentence(reason), "Karvello가 스캔 결과를 저장하지 못했습니다: {}",
        "Karvello could not save the scan results: {}");
}

std::string CleanupCopy::exportJSON() const
{
    return text("JSON 내보내기", "Export JSON");
}

std::string CleanupCopy::exportCSV() const
{
    return text("CSV 내보내기", "Export CSV");
}

std::string CleanupCopy::exportRedactedJSON() const
{
    return text("익명 처리 JSON 내보내기", "Export Redacted JSON");
}

std::string CleanupCopy::exportRedactedCSV() const
{
    return text("익명 처리 CSV 내보내기", "Export Redacted CSV");
}

std::string CleanupCopy::redactedExportHint() const
{
    return text("익명 처리 내보내기는 로컬 경로, 파일 이름, 경로에서 만든 ID를 토큰으로 바꿉니다. 익명성을 보장하는 "
                "것은 아니므로, 공유하기 전에 파일을 확인하세요.",
        "Redacted exports replace local paths, file names, and path-based IDs with tokens. This is not a guarantee of "
        "anonymity; review the file before sharing.");
}

} // namespace KarvelloUI
