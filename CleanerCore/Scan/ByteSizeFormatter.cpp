#include "CleanerCore/Scan/ByteSizeFormatter.h"

#include "Platform/Base/Text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace CleanerCore::ByteSizeFormatter {

namespace {

constexpr double kStep = 1024;
constexpr std::array<std::string_view, 6> kUnits{"bytes", "KB", "MB", "GB", "TB", "PB"};
constexpr std::string_view kKoreanByteUnit = "byte";

/// Rounds as printf does, whatever the locale of the process.
std::string fixed(double value, int fractionDigits)
{
    std::array<char, 32> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, fractionDigits);
    return {digits.data(), end.ptr};
}

/// Without the zeros at the end of a fraction, and without the point when nothing of the fraction is left.
std::string withoutTrailingZeros(std::string number)
{
    number.resize(number.find_last_not_of('0') + 1);
    if (number.ends_with('.')) {
        number.pop_back();
    }
    return number;
}

std::string number(double value)
{
    if (value >= 100) {
        return fixed(value, 0);
    }
    return withoutTrailingZeros(fixed(value, value >= 10 ? 1 : 2));
}

} // namespace

std::string string(std::int64_t byteCount, std::string_view locale)
{
    const bool isKorean = Platform::Text::lowercased(locale).starts_with("ko");
    const std::string_view separator = isKorean ? "" : " ";
    const auto count = std::max<std::int64_t>(byteCount, 0);
    std::string text;
    if (static_cast<double>(count) < kStep) {
        return text.append(std::to_string(count)).append(separator).append(isKorean ? kKoreanByteUnit : kUnits.front());
    }
    auto value = static_cast<double>(count);
    std::size_t unit = 0;
    while (value >= kStep && unit + 1 < kUnits.size()) {
        value /= kStep;
        ++unit;
    }
    return text.append(number(value)).append(separator).append(kUnits[unit]);
}

} // namespace CleanerCore::ByteSizeFormatter
