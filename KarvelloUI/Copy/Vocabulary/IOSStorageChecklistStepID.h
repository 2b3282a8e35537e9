#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// What people can do by hand where an application may not clean, in the order in which it is shown.
enum class IOSStorageChecklistStepID : std::uint8_t {
    iphoneStorageRecommendations,
    offloadUnusedApps,
    photosReview,
    messagesAttachments,
    messagesRetentionPolicy,
    safariWebsiteData,
    karvelloSandbox,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::IOSStorageChecklistStepID> {
    static constexpr std::array<std::string_view, 7> names{"iphoneStorageRecommendations", "offloadUnusedApps",
        "photosReview", "messagesAttachments", "messagesRetentionPolicy", "safariWebsiteData", "karvelloSandbox"};
};
