#include "KarvelloUI/Copy/CleanupCopy.h"
#include "KarvelloUI/Copy/ReviewAge.h"

#include <array>

namespace KarvelloUI {

using CleanerCore::CleanupCandidate;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupRecommendationReason;
using CleanerCore::CleanupSafety;
using CleanerCore::FileInsight;
using CleanerCore::FileInsightKind;

namespace {

struct CategoryWords {
    std::string_view koreanReason;
    std::string_view englishReason;
    std::string_view koreanAction;
    std::string_view englishAction;
};

/// In the order of the categories, which is that of the reasons; empty where the tables have no row.
constexpr std::array<CategoryWords, Platform::RawValues<CleanupCategory>::names.size()> kWords{{
    {"앱이 필요할 때 다시 만들 수 있는 사용자 캐시라서 표시되었습니다.",
        "Flagged because apps can regenerate this user cache when needed.",
        "앱 경로를 검토한 뒤 오래된 캐시 폴더를 휴지통으로 이동하세요. 앱이 다시 만들 수 있습니다.",
        "Review the app path, then move stale cache folders to Trash; apps can rebuild them."},
    {"디버깅이 끝나면 검토하고 제거할 수 있는 경우가 많은 진단 로그라서 표시되었습니다.",
        "Flagged because diagnostic logs can often be reviewed and removed after debugging.",
        "디버깅에 아직 필요한 로그는 열어 확인하고, 검토를 마친 오래된 로그를 휴지통으로 이동하세요.",
        "Open logs you still need for debugging; move old reviewed logs to Trash."},
    {"Xcode가 다시 만들 수 있는 산출물이라서 표시되었습니다. 현재 빌드 상태가 없어져도 되는지 확인하세요.",
        "Flagged because Xcode can rebuild these derived artifacts; confirm the current build state is disposable.",
        "먼저 Xcode 빌드와 테스트를 중지하고, 현재 빌드 산출물이 없어져도 될 때만 휴지통으로 이동하세요.",
        "Stop Xcode builds and tests first; move to Trash only when current build artifacts are disposable."},
    {"시뮬레이터가 다시 만들 수 있는 캐시라서 표시되었습니다. 검토하기 전에 실행 중인 시뮬레이터를 종료하세요.",
        "Flagged because Simulator can recreate this cache; quit running Simulators before review.",
        "먼저 실행 중인 시뮬레이터와 테스트를 종료한 다음, 검토한 시뮬레이터 캐시를 휴지통으로 이동하세요.",
        "Quit running Simulators and tests first, then move reviewed Simulator caches to Trash."},
    {"이 앱의 제한된 샌드박스 범위 안에 있는 캐시 데이터라서 표시되었습니다.",
        "Flagged because this is cache data inside this app's limited sandbox scope.",
        "이 앱의 샌드박스 캐시를 검토하고 더 이상 필요하지 않은 캐시 데이터만 정리하세요.",
        "Review this app's sandbox cache and clean only cache data you no longer need."},
    {"앱을 다시 실행하면 대개 다시 만들어지는 앱 컨테이너 캐시라서 표시되었습니다.",
        "Flagged because this app-container cache is usually regenerable after app relaunch.",
        "먼저 해당 앱을 종료한 다음, 앱이 다시 만들 수 있는 캐시 폴더를 휴지통으로 이동하세요.",
        "Quit the owning app first, then move cache folders that the app can rebuild to Trash."},
    {"공유 컨테이너 캐시로 표시되었습니다. 여러 앱이 사용할 수 있으므로 경로를 검토하세요.",
        "Flagged as shared-container cache; review the path because multiple apps may use it.",
        "그룹 식별자와 실행 중인 관련 앱을 검토하세요. 여러 앱이 이 경로를 사용할 수 있습니다.",
        "Review the group identifier and any running matching app; multiple apps may use this path."},
    {"Xcode가 대개 다시 내려받거나 만들 수 있는 기기 지원 파일이라서 표시되었습니다. 아직 디버깅하는 버전은 남겨 "
     "두세요.",
        "Flagged because Xcode can usually re-download or regenerate device support files; keep versions you still "
        "debug.",
        "아직 디버깅하는 기기와 iOS 버전은 남겨 두고, 오래된 지원 폴더만 휴지통으로 이동하세요.",
        "Keep devices and iOS versions you still debug; move only old support folders to Trash."},
    {},
    {},
    {},
    {"오래 보관할 필요가 없는 임시 항목이라서 표시되었습니다.",
        "Flagged because temporary items are not expected to be kept long term.",
        "열려 있거나 사용 중인 항목이 아닌지 확인한 다음, 오래된 임시 파일을 휴지통으로 이동하세요.",
        "Confirm the item is not open or in use, then move stale temporary files to Trash."},
    {"직접 추가한 폴더라서 표시되었습니다. 수동 검토가 필요합니다.",
        "Flagged because you explicitly added this folder; manual review is required.",
        "경로를 하나씩 직접 검토하세요. Karvello는 사용자 지정 폴더의 항목을 자동으로 선택하지 않습니다.",
        "Review each path manually; Karvello never auto-selects custom-folder items."},
}};

const CategoryWords& wordsOf(CleanupCategory category)
{
    return kWords.at(static_cast<std::size_t>(category));
}

/// Without the mark at its end, which the sentence around it has.
std::string_view withoutFullStop(std::string_view sentence)
{
    for (const std::string_view mark : {".", "。"}) {
        if (sentence.ends_with(mark)) {
            return sentence.substr(0, sentence.size() - mark.size());
        }
    }
    return sentence;
}

} // namespace

std::string CleanupCopy::categoryName(CleanupCategory category) const
{
    return engineSentence(CleanerCore::displayName(category));
}

std::string CleanupCopy::categoryExplanation(CleanupCategory category) const
{
    if (isLinux()) {
        switch (category) {
        case CleanupCategory::userCaches:
            return own("Regenerable files that apps keep in the current user's cache folder.");
        case CleanupCategory::userLogs:
            return own("Diagnostic logs of the current user's apps. Useful for debugging, but often safe to archive or "
                       "remove.");
        case CleanupCategory::appContainerCaches:
            return own(
                "Caches of apps that run in a sandbox. Review carefully because apps may recreate them while running.");
        default:
            break;
        }
    }
    return engineSentence(CleanerCore::explanation(category));
}

std::string CleanupCopy::categoryRecommendedAction(CleanupCategory category) const
{
    switch (category) {
    case CleanupCategory::developerToolCaches:
        return own("Stop the tools that use this path first; move only caches that no active project needs to Trash.");
    case CleanupCategory::packageManagerCaches:
        return own("Check offline and pinned dependency needs before moving reviewed package caches to Trash.");
    case CleanupCategory::buildArchives:
        return own("Keep archives of released versions; move only archives that you know you no longer need to Trash.");
    default:
        return text(wordsOf(category).koreanAction, wordsOf(category).englishAction);
    }
}

std::string CleanupCopy::recommendationReason(CleanupRecommendationReason reason) const
{
    switch (reason) {
    case CleanupRecommendationReason::developerToolCache:
        return own(
            "Flagged because developer tools can usually rebuild these files; active projects may still rely on them.");
    case CleanupRecommendationReason::packageManagerCache:
        return own("Flagged because packages can usually be downloaded again; offline work or pinned dependencies may "
                   "need them.");
    case CleanupRecommendationReason::buildArchive:
        return own(
            "Flagged because old build archives take space; symbolication or re-distribution may still need them.");
    default: {
        const CategoryWords& words = kWords.at(static_cast<std::size_t>(reason));
        return text(words.koreanReason, words.englishReason);
    }
    }
}

std::string CleanupCopy::safetyName(CleanupSafety safety) const
{
    // "Safe" has a row.
    return safety == CleanupSafety::safe ? text("안전", CleanerCore::displayName(safety))
                                         : engineSentence(CleanerCore::displayName(safety));
}

std::string CleanupCopy::cleanupCandidateTrustExplanation(const CleanupCandidate& candidate) const
{
    return recommendationReason(candidate.recommendationReason()) + text(" ", " ")
        + categoryRecommendedAction(candidate.category);
}

std::string CleanupCopy::cleanupCandidateAccessibilityLabel(
    const CleanupCandidate& candidate, std::string_view appContext, std::string_view developerGuidance) const
{
    const std::string gap = text(" ", " ");
    std::string label = around(candidate.displayName, "정리 후보 {}.", "Cleanup candidate {}.");
    label += gap + sentence("안전 등급: {}.", "Safety: {}.", safetyName(candidate.safety));
    label += gap + sentence("크기: {}.", "Size: {}.", byteSize(candidate.sizeBytes));
    label += gap + around(candidate.url.path(), "위치: {}.", "Location: {}.");
    label += gap + sentence("카테고리: {}.", "Category: {}.", categoryName(candidate.category));
    if (!appContext.empty()) {
        label += gap + around(withoutFullStop(appContext), "앱 정보: {}.", "App context: {}.");
    }
    if (!developerGuidance.empty()) {
        label += gap
            + around(withoutFullStop(developerGuidance), "개발 도구 정리 안내: {}.", "Developer cleanup guidance: {}.");
    }
    const std::string reason = recommendationReason(candidate.recommendationReason());
    label += gap + around(withoutFullStop(reason), "이유: {}.", "Reason: {}.");
    label += gap + around(categoryRecommendedAction(candidate.category), "권장 조치: {}", "Recommended action: {}");
    return label;
}

std::string CleanupCopy::reviewAgeText(Platform::Date lastModified, Platform::Date now) const
{
    return reviewAge(now.secondsSince(lastModified), locale());
}

std::string CleanupCopy::reviewDetail(const FileInsight& file, Platform::Date now) const
{
    const auto label = [&] {
        switch (file.kind) {
        case FileInsightKind::largeFile:
            return text("큰 파일", "Large file");
        case FileInsightKind::download:
            return text("다운로드 항목", "Downloads item");
        case FileInsightKind::duplicate:
            return text("추가 사본", "Extra copy");
        case FileInsightKind::securitySignal:
            return text("검토 전용", "Review only");
        }
        return std::string();
    }();
    if (file.lastModified) {
        return sentence("{} · {} 전에 수정됨", "{} · modified {} ago", label, reviewAgeText(*file.lastModified, now));
    }
    // A signal is never moved.
    return file.kind == FileInsightKind::securitySignal
        ? label
        : sentence("{} · 휴지통으로 이동하기 전에 검토", "{} · review before Trash move", label);
}

} // namespace KarvelloUI
