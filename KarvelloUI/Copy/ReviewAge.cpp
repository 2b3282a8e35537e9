#include "KarvelloUI/Copy/ReviewAge.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <unicode/measfmt.h>
#include <unicode/measunit.h>
#include <unicode/measure.h>

namespace KarvelloUI {

namespace {

constexpr std::int64_t kSecondsOfDay = 86400;
constexpr std::int64_t kDaysOfMonth = 30;
constexpr std::int64_t kDaysOfYear = 365;
/// Far more than any date has, so that no number is out of range.
constexpr double kMaximumDays = 1e9;

} // namespace

std::string reviewAge(double seconds, std::string_view locale)
{
    const double rawDays = seconds / kSecondsOfDay;
    const std::int64_t days = !(rawDays >= 1) ? 1 : static_cast<std::int64_t>(std::min(rawDays, kMaximumDays));
    UErrorCode status = U_ZERO_ERROR;
    std::int64_t count = days;
    std::unique_ptr<icu::MeasureUnit> unit;
    if (days < kDaysOfMonth) {
        unit.reset(icu::MeasureUnit::createDay(status));
    } else if (days < kDaysOfYear) {
        count = days / kDaysOfMonth;
        unit.reset(icu::MeasureUnit::createMonth(status));
    } else {
        count = days / kDaysOfYear;
        unit.reset(icu::MeasureUnit::createYear(status));
    }
    const icu::Locale icuLocale =
        icu::Locale::forLanguageTag(icu::StringPiece(locale.data(), static_cast<std::int32_t>(locale.size())), status);
    const icu::MeasureFormat format(icuLocale, UMEASFMT_WIDTH_WIDE, status);
    const icu::Measure measure(icu::Formattable(count), unit.release(), status);
    icu::UnicodeString text;
    icu::FieldPosition position;
    format.formatMeasures(&measure, 1, text, position, status);
    std::string utf8;
    text.toUTF8String(utf8);
    return utf8;
}

} // namespace KarvelloUI
