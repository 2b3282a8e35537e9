#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "Platform/Base/FileURL.h"

namespace KarvelloUI {

using CleanerCore::CleanupCategory;

namespace {

/// A cache of one virtual device, and not one that all of them share.
bool isSimulatorDeviceCache(std::string_view path)
{
    constexpr std::string_view kDevices = "/Library/Developer/CoreSimulator/Devices/";
    constexpr std::string_view kCaches = "/data/Library/Caches";
    const Platform::FileURL url(path);
    const auto devices = url.path().find(kDevices);
    return devices != std::string::npos && url.path().find(kCaches, devices + kDevices.size()) != std::string::npos;
}

} // namespace

std::optional<DeveloperCleanupAdvisory> KarvelloCopy::developerCleanupAdvisory(
    CleanupCategory category, std::string_view path) const
{
    switch (category) {
    case CleanupCategory::xcodeDerivedData:
        return developerCleanupAdvisory(DeveloperCleanupAdvisoryKind::xcodeDerivedData);
    case CleanupCategory::simulatorCaches:
        return developerCleanupAdvisory(isSimulatorDeviceCache(path)
                ? DeveloperCleanupAdvisoryKind::simulatorDeviceCaches
                : DeveloperCleanupAdvisoryKind::simulatorCaches);
    case CleanupCategory::xcodeDeviceSupport:
        return developerCleanupAdvisory(DeveloperCleanupAdvisoryKind::xcodeDeviceSupport);
    default:
        return std::nullopt;
    }
}

DeveloperCleanupAdvisory KarvelloCopy::developerCleanupAdvisory(DeveloperCleanupAdvisoryKind kind) const
{
    DeveloperCleanupAdvisory advisory;
    advisory.kind = kind;
    switch (kind) {
    case DeveloperCleanupAdvisoryKind::xcodeDerivedData:
        advisory.title = text("Xcode 빌드 산출물 안내", "Xcode build artifact guidance");
        advisory.summary = text("DerivedData에는 Xcode가 프로젝트별로 만든 인덱스와 중간 빌드 결과물이 저장됩니다.",
            "DerivedData stores per-project indexes and intermediate build products created by Xcode.");
        advisory.regeneration = text("프로젝트에 다시 필요해지면 Xcode가 이 산출물을 다시 만들 수 있습니다.",
            "Xcode can rebuild these artifacts when the project needs them again.");
        advisory.impact =
            text("다음 인덱싱이나 빌드가 더 오래 걸릴 수 있고, 진행 중인 빌드는 다시 시작해야 할 수 있습니다.",
                "The next indexing pass or build may take longer, and active builds may need to restart.");
        advisory.prerequisite =
            text("진행 중인 Xcode 빌드와 테스트를 멈추고, 프로젝트 산출물이 없어도 되는지 확인하세요.",
                "Stop active Xcode builds and tests, then confirm the project artifacts are disposable.");
        advisory.action = text(
            "Karvello에서 스캔된 항목을 검토하고, 현재 빌드 상태가 더 이상 필요 없을 때만 휴지통으로 이동하세요.",
            "In Karvello, review scanned items and move them to Trash only when you no longer need the current build "
            "state.");
        break;
    case DeveloperCleanupAdvisoryKind::simulatorCaches:
        advisory.title = text("iOS 시뮬레이터 캐시 안내", "iOS Simulator cache guidance");
        advisory.summary =
            text("CoreSimulator 캐시에는 런타임과 앱을 실행할 때 iOS 시뮬레이터가 다시 만들 수 있는 데이터가 있습니다.",
                "CoreSimulator caches hold data the iOS Simulator can recreate while runtimes and apps launch.");
        advisory.regeneration = text("이 캐시는 대부분 다시 필요할 때 시뮬레이터가 다시 만들 수 있습니다.",
            "Simulator can recreate most of this cache when it is needed again.");
        advisory.impact = text("다음 시뮬레이터 실행이나 앱 설치가 잠시 느려질 수 있습니다.",
            "The next Simulator launch or app install may be slower for a short time.");
        advisory.prerequisite = text("이 항목을 검토하기 전에 실행 중인 시뮬레이터와 Xcode 테스트 세션을 종료하세요.",
            "Quit running Simulators and Xcode test sessions before reviewing these items.");
        advisory.action = text("검토한 시뮬레이터 캐시 항목만 휴지통으로 이동하세요.",
            "Move only reviewed Simulator cache items to Trash.");
        break;
    case DeveloperCleanupAdvisoryKind::simulatorDeviceCaches:
        advisory.title = text("기기별 시뮬레이터 캐시 안내", "Per-device Simulator cache guidance");
        advisory.summary = text(
            "CoreSimulator/Devices 아래의 data/Library/Caches는 가상 기기 하나와 그 기기에 설치된 앱에 속합니다.",
            "data/Library/Caches under CoreSimulator/Devices belongs to one virtual device and its installed apps.");
        advisory.regeneration =
            text("해당 시뮬레이터 기기를 다시 실행하면 필요한 앱 및 런타임 캐시 데이터를 다시 만들 수 있습니다.",
                "That Simulator device can recreate needed app and runtime cache data after relaunch.");
        advisory.impact =
            text("앱의 상태나 테스트 준비 시간이 달라질 수 있으므로 이 항목은 수동 검토 대상으로 남습니다.",
                "App-specific state or test setup time can change, so these items stay manual-review.");
        advisory.prerequisite = text(
            "해당 가상 기기를 쓰는 테스트와 시뮬레이터를 종료하고, 그 기기 경로가 더 이상 중요하지 않은지 확인하세요.",
            "Quit tests and Simulators using that virtual device, then confirm the device path is no longer "
            "important.");
        advisory.action = text("기기 식별자 경로를 검토하고 필요 없는 캐시 항목만 휴지통으로 이동하세요.",
            "Review the device identifier path and move only unneeded cache items to Trash.");
        break;
    case DeveloperCleanupAdvisoryKind::xcodeDeviceSupport:
        advisory.title = text("Xcode DeviceSupport 안내", "Xcode DeviceSupport guidance");
        advisory.summary =
            text("DeviceSupport 폴더에는 Xcode가 실제 기기의 디버깅과 심볼에 쓰는 버전별 파일이 저장됩니다.",
                "DeviceSupport folders store version-specific files Xcode uses for physical-device debugging and "
                "symbols.");
        advisory.regeneration = text("기기에 필요해지면 대개 Xcode가 지원 파일을 다시 가져오거나 준비할 수 있습니다.",
            "Xcode can usually fetch or prepare support files again when a device requires them.");
        advisory.impact = text("제거한 iOS 버전의 기기를 다시 연결하면 다음 디버깅 준비가 더 오래 걸릴 수 있습니다.",
            "Reconnecting a device for a removed iOS version may make the next debugging setup slower.");
        advisory.prerequisite = text("아직 디버깅하는 기기와 iOS 버전의 폴더는 유지하세요.",
            "Keep folders for devices and iOS versions you still debug.");
        advisory.action = text("확인을 마친 오래된 지원 폴더만 휴지통으로 이동하세요.",
            "Move only confirmed old support folders to Trash.");
        break;
    }
    return advisory;
}

std::string KarvelloCopy::developerProjectAdvisoryArtifactName(DeveloperProjectArtifact artifact) const
{
    using enum DeveloperProjectArtifact;
    switch (artifact) {
    case dependencyFolder:
        return text("로컬 의존성 폴더", "Local dependency folder");
    case swiftBuildFolder:
        return text("Swift 빌드 폴더", "Swift build folder");
    case toolMetadataFolder:
        return text("도구 메타데이터 폴더", "Tool metadata folder");
    case podsFolder:
        return text("프로젝트 Pods 폴더", "Project Pods folder");
    case webFrameworkFolder:
        return text("웹 프레임워크 폴더", "Web framework folder");
    case turboFolder:
        return text("Turbo 작업 폴더", "Turbo work folder");
    case genericBuildFolder:
        return text("조건부 build 폴더", "Conditional build folder");
    case genericDistributionFolder:
        return text("조건부 dist 폴더", "Conditional dist folder");
    case genericTargetFolder:
        return text("조건부 target 폴더", "Conditional target folder");
    }
    return {};
}

std::string KarvelloCopy::developerProjectAdvisoryActivity(
    DeveloperProjectActivityLevel level, std::int64_t ageInDays) const
{
    switch (level) {
    case DeveloperProjectActivityLevel::inactive:
        return sentence("마지막 변경이 약 {}일 전입니다. 아직 진행 중인 프로젝트인지 확인하세요.",
            "Last changed about {} days ago. Confirm whether the project is still active.", ageInDays);
    case DeveloperProjectActivityLevel::stale:
        return sentence("마지막 변경이 약 {}일 전입니다. 지금 하는 작업인지 확인하세요.",
            "Last changed about {} days ago. Check whether this project is current work.", ageInDays);
    case DeveloperProjectActivityLevel::recent:
        return text("최근 활동이 보이므로 지금 하는 작업일 수 있습니다.",
            "Recent activity is visible, so this may be current work.");
    case DeveloperProjectActivityLevel::unknown:
        return text("수정 날짜를 확인할 수 없으니 신중하게 검토하세요.",
            "No modification-date evidence is available; review conservatively.");
    }
    return {};
}

std::string KarvelloCopy::developerProjectAdvisoryNote(DeveloperProjectArtifact artifact) const
{
    using enum DeveloperProjectArtifact;
    switch (artifact) {
    case dependencyFolder:
        return text("프로젝트 안의 의존성 폴더 후보입니다. 선택하기 전에 잠금 파일과 프로젝트 도구를 확인하세요.",
            "Candidate dependency folder inside a project. Verify lockfiles and project tooling before choosing "
            "anything.");
    case swiftBuildFolder:
        return text("Swift 프로젝트의 로컬 빌드 결과물 후보입니다. 선택하기 전에 빌드 설정을 확인하세요.",
            "Candidate local build output for a Swift project. Verify the build setup before choosing anything.");
    case toolMetadataFolder:
        return text("도구 메타데이터 후보입니다. 선택하기 전에 프로젝트 상태를 검토하세요.",
            "Candidate tool metadata. Review the project state before choosing anything.");
    case podsFolder:
        return text("프로젝트 로컬 의존성 폴더 후보입니다. 현재 iOS 작업에 아직 필요한지 확인하세요.",
            "Candidate project-local dependency folder. Confirm whether current iOS work still needs it.");
    case webFrameworkFolder:
    case turboFolder:
        return text("프로젝트 로컬 작업 폴더 후보입니다. 선택하기 전에 프로젝트 도구를 확인하세요.",
            "Candidate project-local work folder. Verify project tooling before choosing anything.");
    case genericBuildFolder:
    case genericDistributionFolder:
    case genericTargetFolder:
        return text("이 폴더가 프로젝트의 빌드 산출물일 때만 선택하세요. 결정은 사용자에게 맡깁니다.",
            "Use this only if the folder is a project build artifact. The app leaves the decision with you.");
    }
    return {};
}

} // namespace KarvelloUI
