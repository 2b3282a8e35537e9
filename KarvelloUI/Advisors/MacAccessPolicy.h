#pragma once

namespace KarvelloUI {

/// What Karvello may reach at the moment.
struct MacAccessPolicy {
    bool supportsDirectDistributionScans = false;
    bool isHomeBookmarkStored = false;
    /// A scan, a clean or a restore is under way.
    bool isBusy = false;

    /// The home folder can be scanned.
    [[nodiscard]] bool hasHomeAccess() const { return supportsDirectDistributionScans || isHomeBookmarkStored; }

    friend bool operator==(const MacAccessPolicy&, const MacAccessPolicy&) = default;
};

} // namespace KarvelloUI
