#pragma once

#include "KarvelloUI/Advisors/DiskCapacitySnapshot.h"
#include "KarvelloUI/Sessions/SessionServices.h"
#include "Platform/Services/DesktopTools.h"
#include "Platform/Services/FileDialogs.h"
#include "Platform/Services/FileViewer.h"
#include "Platform/Services/UserDefaults.h"

#include <functional>

namespace KarvelloUI {

/// What the dashboard stands on. All of it outlives the dashboard.
struct DashboardServices {
    SessionServices session;
    Platform::UserDefaults& defaults;
    Platform::FileViewer& fileViewer;
    Platform::FileDialogs& fileDialogs;
    Platform::DesktopTools& tools;
    /// Where the user lives: what scans look at without a grant, and "~" of the paths on show.
    Platform::FileURL homeDirectory;
    /// Whether the build may scan without a grant for the home folder; asked anew each time.
    std::function<bool()> supportsDirectDistributionScans;
    /// The disk of the home. Called on any thread; may take a while.
    std::function<DiskCapacitySnapshot()> diskSnapshot;
};

} // namespace KarvelloUI
