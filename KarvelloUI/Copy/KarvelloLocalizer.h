#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Copy/FormatString.h"
#include "KarvelloUI/Copy/KarvelloI18nKey.h"
#include "KarvelloUI/Copy/KarvelloLocalizationResources.h"

#include <initializer_list>
#include <string>

namespace KarvelloUI {

/// The texts of the resource files in one language.
struct KarvelloLocalizer {
    AppLanguage language;

    /// The text as it stands, a "%" in it too.
    [[nodiscard]] std::string string(KarvelloI18nKey key,
        const KarvelloLocalizationResources& resources = KarvelloLocalizationResources::bundled()) const;
    /// The text as a format string (`formatted`), with the language's numbers; as it stands if there are no arguments.
    [[nodiscard]] std::string string(KarvelloI18nKey key, std::initializer_list<FormatArgument> arguments,
        const KarvelloLocalizationResources& resources = KarvelloLocalizationResources::bundled()) const;

    friend bool operator==(const KarvelloLocalizer&, const KarvelloLocalizer&) = default;
};

} // namespace KarvelloUI
