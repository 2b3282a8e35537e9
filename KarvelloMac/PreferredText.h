#pragma once

#include "KarvelloUI/Controls/DesignTokens.h"
#include "KarvelloUI/Dashboard/DashboardPreferences.h"

namespace KarvelloMac {

/// Gives the design the text size and the script of the user's language, now and whenever one of them changes, for as long
/// as both objects live. Main thread only.
void followPreferredText(KarvelloUI::DesignTokens& design, const KarvelloUI::DashboardPreferences& preferences);

} // namespace KarvelloMac
