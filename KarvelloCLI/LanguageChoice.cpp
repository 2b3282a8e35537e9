#include "KarvelloCLI/LanguageChoice.h"

#include "KarvelloCLI/Terminal.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

using KarvelloUI::AppLanguage;

namespace {

constexpr std::string_view kOption = "--language";

/// "de_DE.UTF-8@euro" without what is no language or region.
std::string_view identifierOf(std::string_view locale)
{
    return locale.substr(0, locale.find_first_of(".@"));
}

bool isPlain(std::string_view identifier)
{
    return identifier == "C" || identifier == "POSIX";
}

std::string localeOfMessages(const Platform::Environment& environment)
{
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (std::string locale = environment.value(name).value_or(""); !locale.empty()) {
            return locale;
        }
    }
    return "C";
}

} // namespace

std::optional<AppLanguage> languageAskedFor(std::span<const std::string> arguments)
{
    std::optional<AppLanguage> language;
    for (std::size_t index = 0; index < arguments.size() && arguments[index] != "--"; ++index) {
        std::string_view code = arguments[index];
        if (!code.starts_with(kOption)) {
            continue;
        }
        code.remove_prefix(kOption.size());
        if (code.empty() && index + 1 < arguments.size()) {
            code = arguments[++index];
        } else if (code.starts_with('=')) {
            code.remove_prefix(1);
        } else {
            continue;
        }
        if (const auto known = Platform::fromRawValue<AppLanguage>(code)) {
            language = known;
        }
    }
    return language;
}

AppLanguage languageOf(const Platform::Environment& environment)
{
    const std::string locale = localeOfMessages(environment);
    if (isPlain(identifierOf(locale)) || !usesUTF8(environment)) {
        return AppLanguage::english;
    }
    std::vector<std::string> identifiers;
    const std::string list = environment.value("LANGUAGE").value_or("");
    for (std::string_view rest = list; !rest.empty();) {
        const std::string_view entry = rest.substr(0, rest.find(':'));
        rest.remove_prefix(std::min(entry.size() + 1, rest.size()));
        identifiers.emplace_back(isPlain(identifierOf(entry)) ? "en" : identifierOf(entry));
    }
    identifiers.emplace_back(identifierOf(locale));
    return KarvelloUI::preferredDefaultLanguage(identifiers);
}

} // namespace KarvelloCLI
