#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

std::string KarvelloCopy::insightSectionTitle(MacInsightFileSection section) const
{
    switch (section) {
    case MacInsightFileSection::largeFiles:
        return text("큰 파일 후보", "Large File Candidates");
    case MacInsightFileSection::downloads:
        return text("다운로드 폴더", "Downloads Folder");
    case MacInsightFileSection::duplicates:
        return text("중복 파일 후보", "Duplicate Candidates");
    case MacInsightFileSection::security:
        return text("설치 파일 및 스크립트 검토", "Installers & Scripts Review");
    }
    return {};
}

std::string KarvelloCopy::insightDetail(MacInsightFileSection section) const
{
    switch (section) {
    case MacInsightFileSection::largeFiles:
        return text("오래된 큰 파일 검토", "Older large-file review");
    case MacInsightFileSection::downloads:
        return text("오래된 다운로드 검토", "Older Downloads review");
    case MacInsightFileSection::duplicates:
        return text("해시 기반 후보", "Hash-based candidates");
    case MacInsightFileSection::security:
        return text("검토 전용 신호", "Review-only signals");
    }
    return {};
}

std::string KarvelloCopy::noInsightItemsDescription(MacInsightFileSection section) const
{
    switch (section) {
    case MacInsightFileSection::largeFiles:
        return text("조건에 맞는 오래된 큰 파일이 없거나, 최근에 수정된 파일이라 검토 목록에 보류 중입니다.",
            "No older large files matched, or recently modified files are being held back from this review list.");
    case MacInsightFileSection::downloads:
        return text("조건에 맞는 오래된 다운로드 항목이 없거나, 최근에 다운로드한 항목이라 검토 목록에 보류 중입니다.",
            "No older Downloads items matched, or recent downloads are being held back from this review list.");
    case MacInsightFileSection::duplicates:
        return text("해시로 확인된 중복 그룹이 없거나, 현재 선택할 수 있는 추가 사본이 없습니다.",
            "No hash-confirmed duplicate groups were found, or no extra copies are currently selectable.");
    case MacInsightFileSection::security:
        return text("스캔 범위에서 조건에 맞고 접근할 수 있는 후보를 찾지 못했습니다.",
            "No matching candidates were found or accessible in the scan scope.");
    }
    return {};
}

std::string KarvelloCopy::insightControlDescription() const
{
    return text(
        "다운로드, 문서, 데스크탑, 미디어, 개발 폴더를 읽기 전용으로 스캔해 큰 파일, 중복 파일, 검토할 설치 파일과 "
        "스크립트를 찾습니다. macOS가 폴더 접근 권한을 요청할 수 있습니다.",
        "Read-only scan of Downloads, Documents, Desktop, media, and developer folders for large files, duplicates, "
        "and installer/script review items. macOS may request folder access permissions.");
}

std::string KarvelloCopy::insightExportBody() const
{
    return text(
        "지도, 큰 파일, 다운로드, 중복 파일, 보안 검토 항목을 포함한 현재 저장 공간 인사이트 스캔을 저장합니다. 전체 "
        "내보내기에는 경로가 포함됩니다. 공유할 때는 경로와 파일 이름을 토큰으로 바꾼 익명 처리 내보내기를 선택하고, "
        "공유하기 전에 내용을 확인하세요.",
        "Save the current Storage Insights scan, including the map, large files, downloads, duplicates, and security "
        "review items. Full exports include paths. For sharing, choose a redacted export that replaces paths and file "
        "names with tokens, then review before sharing.");
}

std::string KarvelloCopy::insightSkippedBody(std::int64_t itemCount) const
{
    return counted(itemCount,
        "항목 {}개는 최근에 수정되어 오래된 파일 검토에서 보류되었거나, 접근하지 못했거나 속성을 읽지 못해 "
        "건너뛰었습니다. 최근 항목의 보류는 권한 오류가 아니며, 시간이 지난 뒤 다시 스캔하면 나타날 수 있습니다.",
        "{} item was held back from older-file review because it was recently modified, or skipped because "
        "access/attributes could not be read. A recent holdback is not a permission error and may appear after it "
        "ages, then you scan again.",
        "{} items were held back from older-file review because they were recently modified, or skipped because "
        "access/attributes could not be read. Recent holdbacks are not permission errors and may appear after they "
        "age, then you scan again.",
        itemCount);
}

} // namespace KarvelloUI
