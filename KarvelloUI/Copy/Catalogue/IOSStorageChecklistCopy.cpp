#include "KarvelloUI/Copy/KarvelloCopy.h"

namespace KarvelloUI {

namespace {

/// What a step says, in one language.
struct StepTexts {
    std::string_view title;
    std::string_view detail;
    std::string_view path;
    std::string_view safetyNote;
};

IOSStorageChecklistActor actorOf(IOSStorageChecklistStepID id)
{
    using enum IOSStorageChecklistStepID;
    switch (id) {
    case photosReview:
    case messagesAttachments:
        return IOSStorageChecklistActor::appleApp;
    case karvelloSandbox:
        return IOSStorageChecklistActor::karvelloSandbox;
    case iphoneStorageRecommendations:
    case offloadUnusedApps:
    case messagesRetentionPolicy:
    case safariWebsiteData:
        break;
    }
    return IOSStorageChecklistActor::appleSettings;
}

std::string_view symbolOf(IOSStorageChecklistStepID id)
{
    using enum IOSStorageChecklistStepID;
    switch (id) {
    case iphoneStorageRecommendations:
        return "internaldrive";
    case offloadUnusedApps:
        return "icloud.and.arrow.down";
    case photosReview:
        return "photo.on.rectangle";
    case messagesAttachments:
        return "paperclip";
    case messagesRetentionPolicy:
        return "clock.arrow.circlepath";
    case safariWebsiteData:
        return "safari";
    case karvelloSandbox:
        return "checklist";
    }
    return {};
}

StepTexts koreanTexts(IOSStorageChecklistStepID id)
{
    using enum IOSStorageChecklistStepID;
    switch (id) {
    case iphoneStorageRecommendations:
        return {"iPhone 저장 공간 추천", "무엇이든 삭제하기 전에 Apple의 저장 공간 추천과 앱별 사용량을 검토하세요.",
            "설정 > 일반 > iPhone 저장 공간",
            "Karvello는 이 단계를 안내하기만 하며, 임의의 시스템 데이터를 삭제할 수 없습니다."};
    case offloadUnusedApps:
        return {"사용하지 않는 앱 정리하기", "문서와 데이터는 그대로 두고 사용하지 않는 앱만 iOS가 제거하게 합니다.",
            "설정 > 앱 > App Store > 사용하지 않는 앱 정리하기(이전 iOS에서는 설정 > App Store)",
            "다시 설치하려면 네트워크 연결이 필요할 수 있고, 앱이 계속 제공되고 있어야 합니다."};
    case photosReview:
        return {"사진 검토", "더 이상 필요 없는 대용량 비디오와 최근 삭제된 항목을 검토하세요.",
            "사진 앱 > 최근 삭제된 항목 및 대용량 비디오",
            "iCloud 사진을 사용하면 같은 Apple 계정으로 로그인한 모든 기기에서 삭제될 수 있습니다."};
    case messagesAttachments:
        return {"메시지 첨부 파일", "메시지의 대화 상세 정보에서 용량이 큰 사진, 비디오, 파일을 검토하세요.",
            "메시지 앱 > 대화 상세 정보 > 첨부 파일",
            "iCloud에 메시지를 보관하면 삭제한 메시지나 첨부 파일이 다른 기기에서도 제거될 수 있습니다."};
    case messagesRetentionPolicy:
        return {"메시지 보관 기간", "오래된 메시지를 영구히 보관할지, 1년 또는 30일 동안만 보관할지 선택하세요.",
            "설정 > 앱 > 메시지 > 메시지 유지(이전 iOS에서는 설정 > 메시지)",
            "보관 기간을 바꾸면 선택한 기간이 지난 대화가 제거될 수 있으니 신중하게 선택하세요."};
    case safariWebsiteData:
        return {"Safari 웹 사이트 데이터", "준비되었을 때 Safari 방문 기록과 웹 사이트 데이터를 지우세요.",
            "설정 > 앱 > Safari > 방문 기록 및 웹 사이트 데이터 지우기(이전 iOS에서는 설정 > Safari)",
            "웹 사이트에서 로그아웃되거나 사이트 데이터가 제거될 수 있습니다."};
    case karvelloSandbox:
        return {"Karvello 샌드박스 캐시", "Karvello가 만든 캐시나 임시 파일만 스캔하고 검토합니다.",
            "Karvello > 이 앱의 샌드박스 > 앱 캐시 스캔",
            "iOS에서는 사용자가 직접 삭제해야 하며 영구적으로 삭제됩니다. 선택한 후보를 먼저 검토하세요."};
    }
    return {};
}

StepTexts englishTexts(IOSStorageChecklistStepID id)
{
    using enum IOSStorageChecklistStepID;
    switch (id) {
    case iphoneStorageRecommendations:
        return {"iPhone Storage recommendations",
            "Review Apple's storage recommendations and app-by-app usage before deleting anything.",
            "Settings > General > iPhone Storage",
            "Karvello only guides this step; it cannot delete arbitrary System Data."};
    case offloadUnusedApps:
        return {"Offload unused apps", "Let iOS remove unused app binaries while keeping documents and data.",
            "Settings > Apps > App Store > Offload Unused Apps (or Settings > App Store on older iOS)",
            "Reinstalling may require a network connection and app availability."};
    case photosReview:
        return {"Photos review", "Review large videos and Recently Deleted items you no longer need.",
            "Photos app > Recently Deleted and large videos",
            "With iCloud Photos, deletions may affect all devices signed in to the same Apple Account."};
    case messagesAttachments:
        return {"Messages attachments", "Review large photos, videos, or files from conversation details in Messages.",
            "Messages app > conversation details > attachments",
            "Messages in iCloud may remove deleted messages or attachments from other devices."};
    case messagesRetentionPolicy:
        return {"Messages retention policy",
            "Choose whether older messages should be kept forever, 1 year, or 30 days.",
            "Settings > Apps > Messages > Keep Messages (or Settings > Messages on older iOS)",
            "Changing retention can remove conversations after the chosen period; choose deliberately."};
    case safariWebsiteData:
        return {"Safari website data", "Clear Safari history and website data when you are ready.",
            "Settings > Apps > Safari > Clear History and Website Data (or Settings > Safari on older iOS)",
            "This may sign you out of websites or remove site data."};
    case karvelloSandbox:
        return {"Karvello sandbox cache", "Scan and review cache or temporary files created by Karvello only.",
            "Karvello > This app sandbox > Scan App Cache",
            "Deleting remains explicit and permanent on iOS; review selected candidates first."};
    }
    return {};
}

} // namespace

std::string KarvelloCopy::iOSStorageChecklistTitle() const
{
    return text("안전한 iOS 저장 공간 체크리스트", "Safe iOS storage checklist");
}

std::string KarvelloCopy::iOSStorageChecklistSubtitle() const
{
    return text(
        "Apple 설정이나 기본 앱에서 하는 단계와, Karvello가 할 수 있는 유일한 정리인 이 앱의 샌드박스 정리를 나누어 "
        "보여 줍니다.",
        "Separate Apple Settings or first-party app steps from the only cleanup Karvello can perform: this app "
        "sandbox.");
}

std::string KarvelloCopy::iOSStorageChecklistReset() const
{
    return text("체크리스트 재설정", "Reset checklist");
}

std::string KarvelloCopy::iOSStorageChecklistActorName(IOSStorageChecklistActor actor) const
{
    switch (actor) {
    case IOSStorageChecklistActor::appleSettings:
        return text("Apple 설정", "Apple Settings");
    case IOSStorageChecklistActor::appleApp:
        return text("Apple 앱", "Apple app");
    case IOSStorageChecklistActor::karvelloSandbox:
        return text("Karvello 샌드박스", "Karvello sandbox");
    }
    return {};
}

std::string KarvelloCopy::iOSStorageChecklistStatusName(IOSStorageChecklistStatus status) const
{
    switch (status) {
    case IOSStorageChecklistStatus::notStarted:
        return text("시작 전", "Not started");
    case IOSStorageChecklistStatus::reviewed:
        return text("검토함", "Reviewed");
    case IOSStorageChecklistStatus::done:
        return text("완료", "Done");
    }
    return {};
}

std::string KarvelloCopy::iOSStorageChecklistProgress(std::int64_t reviewedCount, std::int64_t stepCount) const
{
    return sentence("{1}개 중 {0}개 검토함", "{} of {} reviewed", reviewedCount, stepCount);
}

std::string KarvelloCopy::iOSStorageChecklistStatusPickerLabel(std::string_view stepTitle) const
{
    return around(stepTitle, "{} 상태", "{} status");
}

std::string KarvelloCopy::iOSStorageChecklistStatusAccessibilityHint() const
{
    return text("이 안내 단계의 상태만 저장합니다. 파일이나 기기의 저장 용량은 저장하지 않습니다.",
        "Stores only this guidance step status. It does not store files or device storage amounts.");
}

IOSStorageChecklistStep KarvelloCopy::iOSStorageChecklistStep(
    IOSStorageChecklistStepID id, IOSStorageChecklistStatus status) const
{
    return language == AppLanguage::korean ? koreanIOSStorageChecklistStep(id, status)
                                           : englishIOSStorageChecklistStep(id, status);
}

IOSStorageChecklistStep KarvelloCopy::koreanIOSStorageChecklistStep(
    IOSStorageChecklistStepID id, IOSStorageChecklistStatus status)
{
    const StepTexts texts = koreanTexts(id);
    return {id, actorOf(id), std::string(texts.title), std::string(texts.detail), std::string(texts.path),
        std::string(texts.safetyNote), std::string(symbolOf(id)), status};
}

IOSStorageChecklistStep KarvelloCopy::englishIOSStorageChecklistStep(
    IOSStorageChecklistStepID id, IOSStorageChecklistStatus status) const
{
    const StepTexts texts = englishTexts(id);
    return {id, actorOf(id), localizedEnglishCopy(language, texts.title), localizedEnglishCopy(language, texts.detail),
        localizedEnglishCopy(language, texts.path), localizedEnglishCopy(language, texts.safetyNote),
        std::string(symbolOf(id)), status};
}

std::vector<IOSStorageChecklistStep> KarvelloCopy::iOSStorageChecklistSteps(
    const std::function<IOSStorageChecklistStatus(IOSStorageChecklistStepID)>& statusOf) const
{
    std::vector<IOSStorageChecklistStep> steps;
    for (const auto id : Platform::allCases<IOSStorageChecklistStepID>()) {
        steps.push_back(iOSStorageChecklistStep(id, statusOf(id)));
    }
    return steps;
}

} // namespace KarvelloUI
