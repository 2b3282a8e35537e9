#include "KarvelloUI/Copy/KarvelloLocalizer.h"

#include "KarvelloUI/Copy/KarvelloLocalizationResources.h"

#include <span>

namespace KarvelloUI {

std::string KarvelloLocalizer::string(KarvelloI18nKey key) const
{
    return KarvelloLocalizationResources::bundled().resolve(Platform::rawValue(key), language).value;
}

std::string KarvelloLocalizer::string(KarvelloI18nKey key, std::initializer_list<FormatArgument> arguments) const
{
    const std::string format = string(key);
    return arguments.size() == 0 ? format : formatted(format, std::span(arguments), Platform::rawValue(language));
}

} // namespace KarvelloUI
