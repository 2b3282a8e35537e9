#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/CleaningMode.h"
#include "CleanerCore/Cleaning/ItemProgress.h"
#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Files/Trash.h"

#include <optional>
#include <span>
#include <stop_token>

namespace CleanerCore {

/// Carries out a confirmed cleanup. It trusts nothing that it is handed: each candidate is proved again to lie in a live
/// scan root, outside of what is protected, free of links, and to be the item that was reviewed; only then does it move,
/// and what is left on the disk is looked at afterwards. One item's refusal leaves the others alone. Nothing is retried.
class CleaningService {
public:
    /// Both must outlive the service.
    CleaningService(const Platform::FileManager& fileManager, Platform::Trash& trash)
        : m_fileManager(fileManager)
        , m_trash(trash)
    {
    }

    /// `allowedLocations` and `cleanupEligibilityPolicy` are those of the scan that found the candidates. A stop is
    /// honoured between the steps, never during a move, and reports what was done. The moves are on the disk when this
    /// returns. Roots are judged against `homeDirectory`, or without one against the person's real home.
    [[nodiscard]] CleanResult clean(std::span<const CleanupCandidate> candidates,
        std::span<const ScanLocation> allowedLocations, CleaningMode mode,
        const CleanupEligibilityPolicy& cleanupEligibilityPolicy, const std::stop_token& stop = {},
        const std::optional<Platform::FileURL>& homeDirectory = std::nullopt,
        const ItemProgressReport& report = {}) const;

private:
    const Platform::FileManager& m_fileManager;
    Platform::Trash& m_trash;
};

} // namespace CleanerCore
