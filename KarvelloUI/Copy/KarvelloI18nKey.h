#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace KarvelloUI {

/// The texts that lie in the resource files. Every other text is one of `KarvelloCopy`.
enum class KarvelloI18nKey : std::uint8_t {
    languageTitle,
    macOnboardingLanguageTitle,
    macOnboardingLanguageBody,
    macOnboardingSafetyTitle,
    macOnboardingSafetyBody,
    settingsLanguageBody,
    homeAccessGrantedStatus
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::KarvelloI18nKey> {
    static constexpr std::array<std::string_view, 7> names{"language.title", "mac.onboarding.language.title",
        "mac.onboarding.language.body", "mac.onboarding.safety.title", "mac.onboarding.safety.body",
        "settings.language.body", "home.access.granted.status"};
};
