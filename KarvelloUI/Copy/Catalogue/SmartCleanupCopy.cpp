#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

std::string KarvelloCopy::smartCleanupTitle(StorageRecommendationKind kind) const
{
    using enum StorageRecommendationKind;
    switch (kind) {
    case lowDiskReview:
        return text("여유 공간이 얼마 남지 않았습니다", "Free space is running low");
    case duplicateReview:
        return text("중복 파일 후보 검토", "Review duplicate candidates");
    case permissionGuide:
        return text("접근이 제한된 경로 검토", "Review access-limited paths");
    case cleanupReview:
        return text("정리 후보 검토", "Review cleanup candidates");
    case largeFileReview:
        return text("큰 파일부터 검토", "Review large files first");
    case downloadsReview:
        return text("다운로드 검토 목록", "Downloads review queue");
    case scanPrimer:
        return text("스캔하면 추천이 표시됩니다", "Scan to unlock recommendations");
    }
    return {};
}

std::string KarvelloCopy::smartCleanupSizeDetail(std::int64_t bytes) const
{
    return byteSize(bytes);
}

std::string KarvelloCopy::smartCleanupOpenSectionCTA(std::string_view sectionTitle) const
{
    return own("Open {}", sectionTitle);
}

std::string KarvelloCopy::smartCleanupLowDiskBody(std::int64_t freeBytes, std::string_view sectionTitle) const
{
    return sentence("여유 공간이 {}입니다. ‘{}’에서 큰 후보부터 검토해 보세요.",
        "Free space is {}. Start by reviewing larger candidates in {}.", byteSize(freeBytes), sectionTitle);
}

std::string KarvelloCopy::smartCleanupDuplicatesBody(std::int64_t groupCount) const
{
    return sentence("해시가 일치하는 그룹 {}개를 찾았습니다. 추가 사본을 선택하기 전에 유지할 파일을 확인하세요.",
        "Found {} hash-matched groups. Confirm the keeper before selecting extras.", groupCount);
}

std::string KarvelloCopy::smartCleanupPermissionBody(std::int64_t blockedCount) const
{
    if (blockedCount <= 0) {
        return text("빠짐없는 스캔 결과를 얻으려면 홈 폴더 접근 권한이 필요합니다. 설정에서 접근 상태를 확인하세요.",
            "Home folder access is needed for complete scan results. Review access status in Settings.");
    }
    return sentence("권한 또는 보안 범위 때문에 항목 {}개를 건너뛰었습니다. 설정에서 접근 상태를 확인하세요.",
        "{} items were skipped because of permissions or security scope. Review access status in Settings.",
        blockedCount);
}

std::string KarvelloCopy::smartCleanupPermissionDetail(std::int64_t blockedCount) const
{
    return blockedCount <= 0 ? text("접근 권한 확인 필요", "Access check needed")
                             : sentence("{}개 건너뜀", "{} skipped", blockedCount);
}

std::string KarvelloCopy::smartCleanupCandidatesBody(std::int64_t candidateCount) const
{
    return sentence(
        "정리 후보 {}개가 준비되었습니다. 선택한 항목을 휴지통으로 이동하기 전에 경로와 안전 등급을 검토하세요.",
        "{} candidates are ready. Review paths and safety before moving selected items to Trash.", candidateCount);
}

std::string KarvelloCopy::smartCleanupLargeFilesBody(std::int64_t fileCount) const
{
    // The other languages have their sentence under the one with its verb.
    return language == AppLanguage::english
        ? fmt::format("{} large files by size. Review what you recognize; nothing is removed automatically.", fileCount)
        : sentence(
              "큰 파일 {}개를 크기순으로 보여 줍니다. 아는 파일부터 검토하세요. 자동으로 정리되는 파일은 없습니다.",
              "Shows {} large files by size. Review what you recognize; nothing is removed automatically.", fileCount);
}

std::string KarvelloCopy::smartCleanupDownloadsBody(std::int64_t itemCount) const
{
    return sentence(
        "다운로드 후보 {}개를 크기순으로 검토하세요.", "Review {} Downloads candidates by size.", itemCount);
}

std::string KarvelloCopy::smartCleanupPrimerBody() const
{
    return text("정리 스캔이나 인사이트 스캔을 실행하면 가장 안전한 검토 화면부터 안내합니다.",
        "Run cleanup or insight scans to prioritize the safest review screens.");
}

std::string KarvelloCopy::smartCleanupPrimerDetail() const
{
    return text("검토 우선 · 휴지통 우선", "Review-first · Trash-first");
}

} // namespace KarvelloUI
