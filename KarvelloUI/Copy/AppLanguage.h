#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Platform {
class UserDefaults;
}

namespace KarvelloUI {

/// The languages that every text of Karvello exists in. The raw value is the code of the resources and the identifier
/// of the locale.
enum class AppLanguage : std::uint8_t {
    korean,
    english,
    japanese,
    simplifiedChinese,
    traditionalChinese,
    spanish,
    french,
    german
};

/// The key of the user's choice in the preferences.
inline constexpr std::string_view kLanguageStorageKey = "karvello.language";

/// The language's name in itself.
[[nodiscard]] std::string_view displayName(AppLanguage language);

/// The language that an identifier of the system asks for ("de-DE", "zh_TW"), or nothing.
[[nodiscard]] std::optional<AppLanguage> languageMatchingPreferredIdentifier(std::string_view identifier);
/// The first of the identifiers that match, else English.
[[nodiscard]] AppLanguage preferredDefaultLanguage(std::span<const std::string> identifiers);
/// What is stored under `kLanguageStorageKey` if it is a raw value, else the default for the identifiers. A stored value
/// that is none is left alone.
[[nodiscard]] AppLanguage persistedLanguage(
    std::optional<std::string_view> storedValue, std::span<const std::string> preferredIdentifiers);
/// The same for what `defaults` hold under the key; anything but a string counts as nothing.
[[nodiscard]] AppLanguage persistedLanguage(
    const Platform::UserDefaults& defaults, std::span<const std::string> preferredIdentifiers);

/// A finished English sentence, values included, in another language; English for what no table knows. Korean texts do
/// not come from here, so Korean gives the sentence back.
[[nodiscard]] std::string localizedEnglishCopy(AppLanguage language, std::string_view text);

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::AppLanguage> {
    static constexpr std::array<std::string_view, 8> names{"ko", "en", "ja", "zh-Hans", "zh-Hant", "es", "fr", "de"};
};
