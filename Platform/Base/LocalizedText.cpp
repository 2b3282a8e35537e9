#include "Platform/Base/LocalizedText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <unicode/datefmt.h>
#include <unicode/listformatter.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>
#include <vector>

namespace Platform::LocalizedText {

namespace {

icu::StringPiece pieceOf(std::string_view text)
{
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

icu::Locale localeOf(std::string_view identifier)
{
    UErrorCode status = U_ZERO_ERROR;
    auto locale = icu::Locale::forLanguageTag(pieceOf(identifier), status);
    return U_SUCCESS(status) ? locale : icu::Locale::getRoot();
}

UDate milliseconds(Date date)
{
    constexpr double kLimit = 8.64e15;
    const double seconds =
        std::isnan(date.secondsSinceReferenceDate) ? Date().secondsSince1970() : date.secondsSince1970();
    return std::clamp(seconds * 1000, -kLimit, kLimit);
}

std::string formatted(const std::unique_ptr<icu::DateFormat>& format, Date date, std::string_view timeZone)
{
    if (!format) {
        return {};
    }
    if (!timeZone.empty()) {
        format->adoptTimeZone(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(pieceOf(timeZone))));
    }
    icu::UnicodeString formatted;
    format->format(milliseconds(date), formatted);
    std::string text;
    return formatted.toUTF8String(text);
}

} // namespace

std::optional<std::string> list(std::span<const std::string> items, std::string_view locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::ListFormatter> formatter(icu::ListFormatter::createInstance(localeOf(locale), status));
    if (U_FAILURE(status) || !formatter) {
        return std::nullopt;
    }
    std::vector<icu::UnicodeString> texts;
    texts.reserve(items.size());
    for (const auto& item : items) {
        texts.push_back(icu::UnicodeString::fromUTF8(pieceOf(item)));
    }
    icu::UnicodeString joined;
    formatter->format(texts.data(), static_cast<std::int32_t>(texts.size()), joined, status);
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    std::string text;
    return joined.toUTF8String(text);
}

std::string mediumMoment(Date date, std::string_view locale, std::string_view timeZone)
{
    return formatted(std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateTimeInstance(
                         icu::DateFormat::kMedium, icu::DateFormat::kShort, localeOf(locale))),
        date, timeZone);
}

std::string shortTime(Date date, std::string_view locale, std::string_view timeZone)
{
    return formatted(std::unique_ptr<icu::DateFormat>(
                         icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, localeOf(locale))),
        date, timeZone);
}

} // namespace Platform::LocalizedText
