#pragma once

#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "CleanerCore/Safety/SafePathPolicy.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <span>

namespace CleanerCore {

/// Which of the items that an insight scan shows may be cleaned. Built once for a batch; its answers look at the disk
/// anew each time.
class MacStorageInsightCleanupAllowance {
public:
    MacStorageInsightCleanupAllowance(
        std::span<const ScanLocation> allowedLocations, const Platform::FileManager& fileManager);

    /// Whether the item is no protected user data, lies in a location that is still the folder that was allowed, and
    /// passes the path rules.
    [[nodiscard]] bool allows(const Platform::FileURL& url, const Platform::FileManager& fileManager) const;

    [[nodiscard]] const CleanupEligibilityPolicy& eligibilityPolicy() const { return m_eligibilityPolicy; }
    [[nodiscard]] const SafePathPolicy& pathPolicy() const { return m_pathPolicy; }

private:
    CleanupEligibilityPolicy m_eligibilityPolicy;
    SafePathPolicy m_pathPolicy;
};

} // namespace CleanerCore
