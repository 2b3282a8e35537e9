#include "KarvelloUI/Copy/SentenceShapes.h"

#include <algorithm>
#include <cstddef>
#include <fmt/args.h>
#include <fmt/format.h>
#include <vector>

namespace KarvelloUI {

namespace {

constexpr std::string_view kPlaceholder = "{}";

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

/// A whole sentence, translated; anything else as it is.
std::string causeIn(const SentenceShapes& shapes, std::string_view cause)
{
    const auto found = std::ranges::find(shapes.english, cause);
    return std::string(found == shapes.english.end()
            ? cause
            : shapes.translated[static_cast<std::size_t>(found - shapes.english.begin())]);
}

} // namespace

std::optional<std::string> SentenceShapes::translation(std::string_view sentence) const
{
    for (std::size_t index = 0; index < english.size(); ++index) {
        const auto parts = partsOf(sentence, english[index]);
        if (!parts) {
            continue;
        }
        fmt::dynamic_format_arg_store<fmt::format_context> values;
        std::string_view shape = english[index];
        for (const std::string_view part : *parts) {
            const std::size_t place = shape.find(kPlaceholder);
            values.push_back(shape.substr(0, place).ends_with("because ") ? causeIn(*this, part) : std::string(part));
            shape.remove_prefix(place + kPlaceholder.size());
        }
        return fmt::vformat(translated[index], values);
    }
    return std::nullopt;
}

} // namespace KarvelloUI
