#include "KarvelloCLI/Say.h"

#include "KarvelloCLI/Texts/TextTables.h"

#include <fmt/args.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

namespace KarvelloCLI {

using KarvelloUI::AppLanguage;

namespace {

constexpr std::string_view kPlaceholder = "{}";

AppLanguage& language()
{
    static AppLanguage value = AppLanguage::english;
    return value;
}

/// What stands in the places of the placeholders of `shape`, if `text` has this shape. The parts are the shortest that
/// fit, but for the last one.
std::optional<std::vector<std::string_view>> partsOf(std::string_view text, std::string_view shape)
{
    std::size_t next = shape.find(kPlaceholder);
    if (next == std::string_view::npos) {
        return text == shape ? std::optional(std::vector<std::string_view>()) : std::nullopt;
    }
    if (!text.starts_with(shape.substr(0, next))) {
        return std::nullopt;
    }
    text.remove_prefix(next);
    std::vector<std::string_view> parts;
    for (;;) {
        shape.remove_prefix(next + kPlaceholder.size());
        next = shape.find(kPlaceholder);
        const bool isLast = next == std::string_view::npos;
        const std::string_view behind = shape.substr(0, next);
        if (isLast && !text.ends_with(behind)) {
            return std::nullopt;
        }
        const std::size_t end = isLast ? text.size() - behind.size() : text.find(behind);
        if (end == std::string_view::npos || end == 0) {
            return std::nullopt;
        }
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + behind.size());
        if (isLast) {
            return parts;
        }
    }
}

/// A sentence of `Texts` without placeholders, translated; anything else as it is.
std::string sayCause(std::string_view english)
{
    const auto causes = std::span(kEnglishTexts).subspan(kFirstSentenceOfOthers);
    const auto found = std::ranges::find(causes, english);
    return std::string(found == causes.end()
            ? english
            : textAt(kFirstSentenceOfOthers + static_cast<std::size_t>(found - causes.begin())));
}

/// Names and paths come in as they are, even one that reads like a sentence of ours; only causes are translated.
std::string putTogether(std::string_view form, std::string_view shape, const std::vector<std::string_view>& parts)
{
    fmt::dynamic_format_arg_store<fmt::format_context> values;
    for (const std::string_view part : parts) {
        const std::size_t place = shape.find(kPlaceholder);
        values.push_back(shape.substr(0, place).ends_with("because ") ? sayCause(part) : std::string(part));
        shape.remove_prefix(place + kPlaceholder.size());
    }
    return fmt::vformat(form, values);
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
    return {spokenLanguage()};
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
    for (std::size_t index = kFirstSentenceOfOthers; index < kEnglishTexts.size(); ++index) {
        if (const auto parts = partsOf(english, kEnglishTexts[index])) {
            return putTogether(textAt(index), kEnglishTexts[index], *parts);
        }
    }
    return catalogue().skippedReason(english);
}

std::string withFullStop(std::string_view sentence)
{
    return sentence.ends_with('.') || sentence.ends_with("。") ? std::string(sentence) : say("{}.", sentence);
}

} // namespace KarvelloCLI
