#include "Platform/Base/TextOrder.h"

#include <cstdint>
#include <memory>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/stringpiece.h>

namespace Platform::Text {

namespace {

enum class Numbers : std::uint8_t { byDigits, byValue };

/// Null where ICU has no data at all. Comparing with one that nobody changes is safe in all threads.
std::unique_ptr<const icu::Collator> makeCollator(icu::Collator::ECollationStrength strength, Numbers numbers)
{
    UErrorCode status = U_ZERO_ERROR;
    // An environment that names no language stands for the order of bytes there, which is nobody's.
    const auto& locale = icu::Locale::getDefault();
    const bool hasLanguage = std::string_view(locale.getVariant()) != "POSIX";
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(hasLanguage ? locale : icu::Locale::getRoot(), status));
    if (U_FAILURE(status) || collator == nullptr) {
        return nullptr;
    }
    collator->setStrength(strength);
    if (numbers == Numbers::byValue) {
        collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    }
    return collator;
}

std::weak_ordering compare(const icu::Collator* collator, std::string_view left, std::string_view right)
{
    if (collator == nullptr) {
        return left <=> right;
    }
    UErrorCode status = U_ZERO_ERROR;
    const auto piece = [](std::string_view text) {
        return icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size()));
    };
    switch (collator->compareUTF8(piece(left), piece(right), status)) {
    case UCOL_LESS:
        return std::weak_ordering::less;
    case UCOL_GREATER:
        return std::weak_ordering::greater;
    case UCOL_EQUAL:
        break;
    }
    return std::weak_ordering::equivalent;
}

} // namespace

std::weak_ordering localizedCaseInsensitiveCompare(std::string_view left, std::string_view right)
{
    static const auto collator = makeCollator(icu::Collator::SECONDARY, Numbers::byDigits);
    return compare(collator.get(), left, right);
}

std::strong_ordering localizedStandardCompare(std::string_view left, std::string_view right)
{
    static const auto collator = makeCollator(icu::Collator::TERTIARY, Numbers::byValue);
    const auto order = compare(collator.get(), left, right);
    if (order != std::weak_ordering::equivalent) {
        return order < 0 ? std::strong_ordering::less : std::strong_ordering::greater;
    }
    return left <=> right;
}

} // namespace Platform::Text
