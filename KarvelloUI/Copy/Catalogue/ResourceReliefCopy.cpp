#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/PercentText.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace KarvelloUI {

using CleanerCore::ResourceReliefActionResult;
using CleanerCore::ResourceReliefActionStatus;
using CleanerCore::ResourceReliefCandidate;
using CleanerCore::ResourceReliefProtectionReason;

std::string KarvelloCopy::resourceReliefPercent(std::optional<double> fraction) const
{
    return percentText(fraction.value_or(std::numeric_limits<double>::quiet_NaN()));
}

std::string KarvelloCopy::resourceReliefCandidateDetail(const ResourceReliefCandidate& candidate) const
{
    std::vector<std::string> parts;
    if (candidate.eligibility.reason) {
        parts.push_back(resourceReliefProtectionReason(*candidate.eligibility.reason));
    }
    if (candidate.bundleIdentifier && !candidate.bundleIdentifier->empty()) {
        parts.push_back(*candidate.bundleIdentifier);
    }
    if (const auto bytes = candidate.usage.residentMemoryBytes) {
        constexpr std::uint64_t kMaximum = std::numeric_limits<std::int64_t>::max();
        parts.push_back(byteSize(static_cast<std::int64_t>(std::min(*bytes, kMaximum))));
    }
    return joinedParts(parts);
}

std::string KarvelloCopy::resourceReliefMetricAccessibility(
    std::string_view appName, ResourceReliefMetric metric, std::optional<double> fraction) const
{
    const std::string percent = resourceReliefPercent(fraction);
    switch (metric) {
    case ResourceReliefMetric::cpu:
        return own("{} uses {} of total CPU capacity", appName, percent);
    case ResourceReliefMetric::memory:
        return own("{} uses {} of total physical memory", appName, percent);
    }
    return {};
}

std::string KarvelloCopy::resourceReliefQuitButton(std::int64_t selectedCount) const
{
    return sentence("종료 요청({})", "Request Quit ({})", selectedCount);
}

std::string KarvelloCopy::resourceReliefConfirmButton(std::int64_t selectedCount) const
{
    return sentence("종료 요청 보내기({})", "Send Quit Request ({})", selectedCount);
}

std::string KarvelloCopy::resourceReliefConfirmMessage(std::int64_t selectedCount) const
{
    return sentence("Karvello는 앱을 강제로 종료하지 않습니다. 선택한 앱 {}개에 일반 종료 요청을 보내므로, "
                    "앱이 작업을 저장할지 물을 수 있습니다.",
        "Karvello does not force quit. It sends normal quit requests to {} selected app(s), so apps may ask to save "
        "work.",
        selectedCount);
}

std::string KarvelloCopy::resourceReliefProtectionReason(ResourceReliefProtectionReason reason) const
{
    switch (reason) {
    case ResourceReliefProtectionReason::currentApplication:
        return text("현재 앱 보호됨", "Current app protected");
    case ResourceReliefProtectionReason::protectedSystemApplication:
        return text("보호된 시스템 앱", "Protected system app");
    case ResourceReliefProtectionReason::missingUserFacingIdentity:
        return text("표시할 식별 정보 없음", "Missing display identity");
    case ResourceReliefProtectionReason::alreadyTerminated:
        return text("이미 종료됨", "Already exited");
    case ResourceReliefProtectionReason::notUserVisible:
        return text("백그라운드 프로세스", "Background process");
    case ResourceReliefProtectionReason::sandboxUnavailable:
        return text("샌드박스에서 사용할 수 없음", "Sandbox unavailable");
    }
    return {};
}

std::string KarvelloCopy::resourceReliefResultText(const ResourceReliefActionResult& result) const
{
    const std::string& name = result.displayName;
    switch (result.status) {
    case ResourceReliefActionStatus::requestSent:
        return around(name, "{}에 일반 종료 요청을 보냈습니다.", "Sent a normal quit request to {}.");
    case ResourceReliefActionStatus::failedToSend:
        return around(name, "{}에 종료 요청을 보내지 못했습니다.", "Could not send a quit request to {}.");
    case ResourceReliefActionStatus::unavailableInSandbox:
        return around(name, "샌드박스 제한 때문에 {} 앱을 직접 종료할 수 없습니다.",
            "Sandbox limits prevent directly quitting {}.");
    case ResourceReliefActionStatus::alreadyExited:
        return around(name, "{} 앱은 이미 종료되었습니다.", "{} already exited.");
    case ResourceReliefActionStatus::isProtected:
        return around(name, "{} 앱은 Karvello 정책에 따라 보호됩니다.", "{} is protected by Karvello policy.");
    case ResourceReliefActionStatus::staleCandidate:
        return around(name, "{} 앱의 상태가 바뀌어 종료 요청을 건너뛰었습니다.",
            "{} changed state, so the quit request was skipped.");
    }
    return {};
}

} // namespace KarvelloUI
