#include "KarvelloUI/Stores/CleanupReviewPreferences.h"

namespace KarvelloUI {

namespace {

template <Platform::RawRepresentable E>
E storedCase(const Platform::UserDefaults& defaults, std::string_view key, E otherwise)
{
    const auto raw = defaults.string(key);
    return raw ? Platform::fromRawValue<E>(*raw).value_or(otherwise) : otherwise;
}

} // namespace

CleanupReviewPreferences CleanupReviewPreferences::read(const Platform::UserDefaults& defaults)
{
    CleanupReviewPreferences preferences;
    preferences.cadence = storedCase(defaults, cadenceDefaultsKey, preferences.cadence);
    preferences.selectedProfileID = storedCase(defaults, selectedProfileIDDefaultsKey, preferences.selectedProfileID);
    if (const auto seconds = defaults.number(lastReviewedAtDefaultsKey); seconds > 0.0) {
        preferences.lastReviewedAt = Platform::Date::fromSecondsSince1970(*seconds);
    }
    return preferences;
}

} // namespace KarvelloUI
