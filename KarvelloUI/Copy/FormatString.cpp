#include "KarvelloUI/Copy/FormatString.h"

#include "Platform/Base/ASCII.h"

#include <cstddef>
#include <optional>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

namespace KarvelloUI {

namespace {

constexpr int kDefaultFractionDigits = 6;
constexpr int kMaximumFractionDigits = 100;
constexpr std::size_t kMaximumNumber = 1000;

struct Conversion {
    std::optional<std::size_t> position; // counted from 1
    int fractionDigits = kDefaultFractionDigits;
    char kind = 0;
};

std::optional<std::size_t> takeNumber(std::string_view& rest)
{
    std::optional<std::size_t> number;
    while (!rest.empty() && Platform::ASCII::isDigit(rest.front()) && number.value_or(0) < kMaximumNumber) {
        number = number.value_or(0) * 10 + static_cast<std::size_t>(rest.front() - '0');
        rest.remove_prefix(1);
    }
    return number;
}

bool take(std::string_view& rest, char character)
{
    const bool isThere = rest.starts_with(character);
    rest.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

/// Takes what stands behind a "%" off the front of `rest`, or nothing if it is no conversion.
std::optional<Conversion> takeConversion(std::string_view& rest)
{
    std::string_view ahead = rest;
    Conversion conversion;
    if (const auto number = takeNumber(ahead)) {
        if (*number == 0 || !take(ahead, '$')) {
            return std::nullopt;
        }
        conversion.position = number;
    }
    if (take(ahead, '.')) {
        conversion.fractionDigits = std::min(static_cast<int>(takeNumber(ahead).value_or(0)), kMaximumFractionDigits);
    }
    while (take(ahead, 'l')) {}
    if (ahead.empty() || std::string_view("@diuf").find(ahead.front()) == std::string_view::npos) {
        return std::nullopt;
    }
    conversion.kind = ahead.front();
    rest = ahead.substr(1);
    return conversion;
}

template <typename Number>
std::string numberText(Number number, const icu::number::Precision& precision, const icu::Locale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto formatter = icu::number::NumberFormatter::withLocale(locale).precision(precision);
    std::string text;
    if constexpr (std::is_integral_v<Number>) {
        formatter.formatInt(number, status).toString(status).toUTF8String(text);
    } else {
        formatter.formatDouble(number, status).toString(status).toUTF8String(text);
    }
    return text;
}

std::string argumentText(const FormatArgument& argument, const Conversion& conversion, const icu::Locale& locale)
{
    using icu::number::Precision;
    if (const auto* const text = std::get_if<std::string>(&argument)) {
        return *text;
    }
    const auto digits = conversion.kind == 'f' ? Precision::fixedFraction(conversion.fractionDigits)
                                               : Precision::minMaxFraction(0, kDefaultFractionDigits);
    if (const auto* const whole = std::get_if<std::int64_t>(&argument)) {
        return numberText(*whole, digits, locale);
    }
    return numberText(std::get<double>(argument), digits, locale);
}

} // namespace

std::string formatted(
    std::string_view format, std::span<const FormatArgument> arguments, std::string_view localeIdentifier)
{
    const auto locale = icu::Locale::createFromName(std::string(localeIdentifier).c_str());
    std::string result;
    std::size_t next = 0;
    while (!format.empty()) {
        const auto percent = std::min(format.find('%'), format.size());
        result += format.substr(0, percent);
        format.remove_prefix(percent);
        if (!take(format, '%')) {
            break;
        }
        const std::string_view behind = format;
        const auto conversion = take(format, '%') ? std::nullopt : takeConversion(format);
        const std::size_t index = !conversion ? 0 : conversion->position ? *conversion->position - 1 : next++;
        if (conversion && index < arguments.size()) {
            result += argumentText(arguments[index], *conversion, locale);
        } else {
            // "%%" is one percent sign, and anything else here stays.
            result += '%';
            result += behind.starts_with('%') ? std::string_view() : behind.substr(0, behind.size() - format.size());
        }
    }
    return result;
}

} // namespace KarvelloUI
