#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Copy/BundledTexts.h"
#include "KarvelloUI/Copy/StringsFile.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace KarvelloUI {

struct KarvelloLocalizationResolution {
    std::string value;
    std::optional<AppLanguage> resolvedLanguage;
    bool usedEnglishFallback;
    bool isMissing;

    friend bool operator==(const KarvelloLocalizationResolution&, const KarvelloLocalizationResolution&) = default;
};

/// The texts of the resource files. A file that is not there or cannot be read gives its language no texts, and that is
/// no error. Never changes once built, so any thread may ask.
class KarvelloLocalizationResources {
public:
    explicit KarvelloLocalizationResources(std::span<const BundledText> texts);

    /// Those that are part of the program, read at the first call.
    static const KarvelloLocalizationResources& bundled();

    /// The text in the language, else in English, else the key between two "‼️", which nobody overlooks on a screen. An
    /// empty text counts as none.
    [[nodiscard]] KarvelloLocalizationResolution resolve(std::string_view rawKey, AppLanguage language) const;

private:
    [[nodiscard]] const std::string* text(std::string_view rawKey, AppLanguage language) const;

    std::array<StringsEntries, Platform::RawValues<AppLanguage>::names.size()> m_entries;
};

} // namespace KarvelloUI
