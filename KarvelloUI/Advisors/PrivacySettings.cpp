#include "KarvelloUI/Advisors/PrivacySettings.h"

#include <algorithm>
#include <array>

namespace KarvelloUI {

namespace {

/// From the pane that is meant, in the newest System Settings, to the general one of the oldest.
constexpr std::array<std::string_view, 4> kAddresses{
    "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_AllFiles",
    "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles",
    "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension",
    "x-apple.systempreferences:com.apple.preference.security?Privacy",
};

} // namespace

void openPrivacySettings(const AddressOpener& open)
{
    if (open) {
        static_cast<void>(std::ranges::any_of(kAddresses, open));
    }
}

} // namespace KarvelloUI
