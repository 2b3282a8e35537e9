#include "KarvelloUI/Copy/AppLanguage.h"

#include "KarvelloUI/Copy/KarvelloEnglishCopyTranslations.h"
#include "Platform/Base/ASCII.h"
#include "Platform/Base/Text.h"
#include "Platform/Services/UserDefaults.h"

#include <algorithm>
#include <array>
#include <vector>

namespace KarvelloUI {

namespace {

constexpr std::string_view kChinese = "zh";

/// The parts between the hyphens, but for empty ones, in lower case.
std::vector<std::string> lowercasedParts(const std::string& identifier)
{
    std::vector<std::string> parts;
    for (std::size_t start = 0; start < identifier.size();) {
        const auto end = std::min(identifier.find('-', start), identifier.size());
        if (end > start) {
            parts.push_back(Platform::Text::lowercased(std::string_view(identifier).substr(start, end - start)));
        }
        start = end + 1;
    }
    return parts;
}

bool isRegion(std::string_view part)
{
    const auto isLetter = [](char character) { return character >= 'a' && character <= 'z'; };
    return (part.size() == 2 && std::ranges::all_of(part, isLetter))
        || (part.size() == 3 && std::ranges::all_of(part, Platform::ASCII::isDigit));
}

/// Chinese by its script, else by what is written in its region. The first of the parts is the language itself.
AppLanguage chineseLanguage(std::span<const std::string> parts)
{
    if (std::ranges::find(parts, "hant") != parts.end()) {
        return AppLanguage::traditionalChinese;
    }
    if (std::ranges::find(parts, "hans") != parts.end()) {
        return AppLanguage::simplifiedChinese;
    }
    constexpr std::array<std::string_view, 3> traditional{"tw", "hk", "mo"};
    for (const std::string& part : parts.subspan(1)) {
        if (isRegion(part)) {
            return std::ranges::find(traditional, part) != traditional.end() ? AppLanguage::traditionalChinese
                                                                             : AppLanguage::simplifiedChinese;
        }
    }
    return AppLanguage::simplifiedChinese;
}

} // namespace

std::string_view displayName(AppLanguage language)
{
    switch (language) {
    case AppLanguage::korean:
        return "한국어";
    case AppLanguage::english:
        return "English";
    case AppLanguage::japanese:
        return "日本語";
    case AppLanguage::simplifiedChinese:
        return "简体中文";
    case AppLanguage::traditionalChinese:
        return "繁體中文";
    case AppLanguage::spanish:
        return "Español";
    case AppLanguage::french:
        return "Français";
    case AppLanguage::german:
        return "Deutsch";
    }
    return {};
}

std::optional<AppLanguage> languageMatchingPreferredIdentifier(std::string_view identifier)
{
    std::string hyphenated(identifier);
    std::ranges::replace(hyphenated, '_', '-');
    const std::string lowercased = Platform::Text::lowercased(hyphenated);
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        if (Platform::Text::lowercased(Platform::rawValue(language)) == lowercased) {
            return language;
        }
    }
    const auto parts = lowercasedParts(hyphenated);
    if (parts.empty()) {
        return std::nullopt;
    }
    return parts.front() == kChinese ? chineseLanguage(parts) : Platform::fromRawValue<AppLanguage>(parts.front());
}

AppLanguage preferredDefaultLanguage(std::span<const std::string> identifiers)
{
    for (const std::string& identifier : identifiers) {
        if (const auto language = languageMatchingPreferredIdentifier(identifier)) {
            return *language;
        }
    }
    return AppLanguage::english;
}

AppLanguage persistedLanguage(
    std::optional<std::string_view> storedValue, std::span<const std::string> preferredIdentifiers)
{
    const auto stored = storedValue ? Platform::fromRawValue<AppLanguage>(*storedValue) : std::nullopt;
    return stored ? *stored : preferredDefaultLanguage(preferredIdentifiers);
}

AppLanguage persistedLanguage(const Platform::UserDefaults& defaults, std::span<const std::string> preferredIdentifiers)
{
    return persistedLanguage(defaults.string(kLanguageStorageKey), preferredIdentifiers);
}

std::string localizedEnglishCopy(AppLanguage language, std::string_view text)
{
    if (language == AppLanguage::english || language == AppLanguage::korean) {
        return std::string(text);
    }
    return KarvelloEnglishCopyTranslations::translate(text, language);
}

} // namespace KarvelloUI
