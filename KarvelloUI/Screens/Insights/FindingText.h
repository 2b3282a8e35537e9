#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"

#include <string>
#include <string_view>

namespace KarvelloUI {

/// The scanner's reason for a security finding in the language of `copy`; one that it does not have comes back as it is.
[[nodiscard]] std::string findingText(const DashboardWords& copy, std::string_view detail);

} // namespace KarvelloUI
