#include "Platform/Base/TextOrder.h"

#include <memory>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/stringpiece.h>

namespace Platform::Text {

namespace {

/// Null where ICU has no data at all. Comparing with one that nobody changes is safe in all threads.
std::unique_ptr<const icu::Collator> makeCollator()
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
    collator->setStrength(icu::Collator::SECONDARY);
    return collator;
}

} // namespace

std::weak_ordering localizedCaseInsensitiveCompare(std::string_view left, std::string_view right)
{
    static const auto collator = makeCollator();
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

} // namespace Platform::Text
