#pragma once

#include "CleanerCore/Safety/NoTouchRow.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Reads the pattern language of `NoTouchRow`, at compile time.
namespace CleanerCore::NoTouchPatterns {

enum class Shape : std::uint8_t { wholeName, beginning, ending, number, beginningThenNumber };

/// One alternative of one component.
struct Matcher {
    Shape shape = Shape::wholeName;
    /// What is fixed of the name.
    std::string_view text;
    /// How many digits a number has; 0 for any number of them, at least one.
    std::uint8_t digitCount = 0;

    friend constexpr bool operator==(const Matcher&, const Matcher&) = default;
};

constexpr Matcher parseMatcher(std::string_view alternative)
{
    constexpr std::string_view anyDigits = "<digits>";
    constexpr std::string_view sixDigits = "<6 digits>";
    if (alternative == anyDigits) {
        return {Shape::number, {}, 0};
    }
    if (alternative.ends_with(anyDigits)) {
        return {Shape::beginningThenNumber, alternative.substr(0, alternative.size() - anyDigits.size()), 0};
    }
    if (alternative.ends_with(sixDigits)) {
        return {Shape::beginningThenNumber, alternative.substr(0, alternative.size() - sixDigits.size()), 6};
    }
    if (alternative.starts_with('*')) {
        return {Shape::ending, alternative.substr(1), 0};
    }
    if (alternative.ends_with('*')) {
        return {Shape::beginning, alternative.substr(0, alternative.size() - 1), 0};
    }
    return {Shape::wholeName, alternative, 0};
}

/// Calls `visit` with each part of `text` between separators.
template <typename Visitor>
constexpr void forEachPart(std::string_view text, char separator, Visitor visit)
{
    for (;;) {
        const auto end = text.find(separator);
        visit(text.substr(0, end));
        if (end == std::string_view::npos) {
            return;
        }
        text.remove_prefix(end + 1);
    }
}

struct Pattern {
    static constexpr std::size_t kMaximumLength = 3;

    std::string_view components[kMaximumLength];
    std::size_t length = 0;
    bool isBelowHome = false;
};

constexpr Pattern parsePattern(std::string_view text)
{
    Pattern pattern;
    if (text.starts_with("~/")) {
        pattern.isBelowHome = true;
        text.remove_prefix(2);
    }
    // A fourth component is an error of the compiler: it would be written past the end.
    forEachPart(text, '/', [&](std::string_view component) { pattern.components[pattern.length++] = component; });
    return pattern;
}

} // namespace CleanerCore::NoTouchPatterns
