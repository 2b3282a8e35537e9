#include "KarvelloCLI/Say.h"

#include "KarvelloCLI/Texts/TextTables.h"
#include "KarvelloUI/Copy/SentenceShapes.h"

#include <fmt/ranges.h>

#include <span>
#include <utility>

namespace KarvelloCLI {

using KarvelloUI::AppLanguage;

namespace {

AppLanguage& language()
{
    static AppLanguage value = AppLanguage::english;
    return value;
}

} // namespace

AppLanguage spokenLanguage()
{
    return language();
}

void speak(AppLanguage value)
{
    language() = value;
}

KarvelloUI::KarvelloCopy catalogue()
{
    return {{{spokenLanguage(), KarvelloUI::CopyHost::linuxDesktop}}};
}

std::string_view textAt(std::size_t index)
{
    return textsIn(spokenLanguage())[index];
}

bool isSingular(std::size_t count)
{
    return count == 1 || (count == 0 && spokenLanguage() == AppLanguage::french);
}

std::string joined(std::span<const std::string> parts)
{
    return fmt::format("{}", fmt::join(parts, say(", ")));
}

std::string sayReason(std::string_view english)
{
    if (spokenLanguage() == AppLanguage::english) {
        return std::string(english);
    }
    const auto ofOthers = [](std::span<const std::string_view> texts) { return texts.subspan(kFirstSentenceOfOthers); };
    const KarvelloUI::SentenceShapes shapes{ofOthers(kEnglishTexts), ofOthers(textsIn(spokenLanguage()))};
    if (auto translation = shapes.translation(english)) {
        return *std::move(translation);
    }
    return catalogue().skippedReason(english);
}

std::string withFullStop(std::string_view sentence)
{
    return sentence.ends_with('.') || sentence.ends_with("。") ? std::string(sentence) : say("{}.", sentence);
}

} // namespace KarvelloCLI
