#include "KarvelloUI/Copy/CopyWording.h"

#include "CleanerCore/Scan/ByteSizeFormatter.h"
#include "KarvelloUI/Copy/SentenceShapes.h"

#include <fmt/ranges.h>
#include <span>

namespace KarvelloUI {

std::string CopyWording::engineSentence(std::string_view english) const
{
    if (language == AppLanguage::english) {
        return std::string(english);
    }
    const auto ofOthers = [](std::span<const std::string_view> texts) {
        return texts.subspan(Copy::kFirstSentenceOfOthers);
    };
    const SentenceShapes shapes{ofOthers(Copy::kEnglishTexts), ofOthers(Copy::textsIn(language))};
    return shapes.translation(english).value_or(std::string(english));
}

std::string CopyWording::byteSize(std::int64_t bytes) const
{
    return CleanerCore::ByteSizeFormatter::string(bytes, locale());
}

std::string CopyWording::joinedParts(const std::vector<std::string>& parts)
{
    return fmt::format("{}", fmt::join(parts, " · "));
}

} // namespace KarvelloUI
