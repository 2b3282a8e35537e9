#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/CleaningMode.h"
#include "CleanerCore/Cleaning/ItemProgress.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloUI/Sessions/ActiveScan.h"
#include "KarvelloUI/Sessions/SessionServices.h"

#include <functional>
#include <span>
#include <stop_token>
#include <vector>

namespace KarvelloUI {

/// What the user confirmed, and what it is judged against.
struct CleanRequest {
    std::vector<CleanerCore::CleanupCandidate> candidates;
    ActiveScan scanned;
    CleanerCore::CleaningMode mode = CleanerCore::CleaningMode::moveToTrash;
};

/// Cleans the candidates that it is given, which are some of the request's. Called on a background thread.
using CleanAction = std::function<CleanerCore::CleanResult(std::span<const CleanerCore::CleanupCandidate> candidates,
    const CleanRequest& request, const std::stop_token& stop, const CleanerCore::ItemProgressReport& report)>;

/// The cleaning service.
[[nodiscard]] CleanAction cleaningServiceAction(const SessionServices& services);

/// Carries out a request on the calling thread, with access to its folders opened. What lies in a folder to which there
/// is no access never reaches the action: it is told as failed, before what the action tells.
[[nodiscard]] CleanerCore::CleanResult performConfirmedClean(const SessionServices& services, CleanRequest request,
    const CleanAction& clean, const std::stop_token& stop, const CleanerCore::ItemProgressReport& report = {});

} // namespace KarvelloUI
