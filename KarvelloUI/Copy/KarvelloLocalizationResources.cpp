#include "KarvelloUI/Copy/KarvelloLocalizationResources.h"

#include <cstddef>

namespace KarvelloUI {

namespace {

constexpr std::string_view kMissingMarker = "‼️";

} // namespace

KarvelloLocalizationResources::KarvelloLocalizationResources(std::span<const BundledText> texts)
{
    for (const BundledText& text : texts) {
        auto entries = readStringsFile(text.contents);
        if (const auto language = Platform::fromRawValue<AppLanguage>(text.languageCode); language && entries) {
            m_entries[static_cast<std::size_t>(*language)] = std::move(*entries);
        }
    }
}

const KarvelloLocalizationResources& KarvelloLocalizationResources::bundled()
{
    static const KarvelloLocalizationResources resources(bundledTexts());
    return resources;
}

KarvelloLocalizationResolution KarvelloLocalizationResources::resolve(
    std::string_view rawKey, AppLanguage language) const
{
    if (const std::string* const own = text(rawKey, language)) {
        return {*own, language, false, false};
    }
    const bool isAnother = language != AppLanguage::english;
    if (const std::string* const english = text(rawKey, AppLanguage::english)) {
        return {*english, AppLanguage::english, isAnother, false};
    }
    std::string marked(kMissingMarker);
    marked.append(rawKey).append(kMissingMarker);
    return {std::move(marked), std::nullopt, isAnother, true};
}

const std::string* KarvelloLocalizationResources::text(std::string_view rawKey, AppLanguage language) const
{
    const StringsEntries& entries = m_entries[static_cast<std::size_t>(language)];
    const auto entry = entries.find(rawKey);
    return entry == entries.end() || entry->second.empty() ? nullptr : &entry->second;
}

} // namespace KarvelloUI
