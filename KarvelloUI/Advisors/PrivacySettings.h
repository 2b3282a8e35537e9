#pragma once

#include <functional>
#include <string_view>

namespace KarvelloUI {

/// Hands an address to the desktop; whether something there opened it. False as well for what is no address.
using AddressOpener = std::function<bool(std::string_view address)>;

/// Shows the system's settings of privacy, as near to access to files as this system's version allows. Nothing happens
/// where no address opens, nor where there is no opener because the desktop has no such settings: the guide on the
/// screen says where to go.
void openPrivacySettings(const AddressOpener& open);

} // namespace KarvelloUI
