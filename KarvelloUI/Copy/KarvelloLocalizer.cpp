#include "KarvelloUI/Copy/KarvelloLocalizer.h"

#include <span>

namespace KarvelloUI {

std::string KarvelloLocalizer::string(KarvelloI18nKey key, const KarvelloLocalizationResources& resources) const
{
    return resources.resolve(Platform::rawValue(key), language).value;
}

std::string KarvelloLocalizer::string(KarvelloI18nKey key, std::initializer_list<FormatArgument> arguments,
    const KarvelloLocalizationResources& resources) const
{
    std::string text = string(key, resources);
    return arguments.size() == 0 ? text : formatted(text, std::span(arguments), Platform::rawValue(language));
}

} // namespace KarvelloUI
