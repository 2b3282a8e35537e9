#pragma once

#include "CleanerCore/Scan/AppCacheContext.h"
#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/CleanupSafety.h"

#include <functional>
#include <optional>
#include <string>

namespace KarvelloUI {

struct KarvelloCopy;

/// The words of one language that a list of candidates shows and that a search finds.
struct CandidateListTextProvider {
    std::function<std::string(CleanerCore::CleanupCategory)> categoryName;
    std::function<std::string(CleanerCore::CleanupSafety)> safetyName;
    std::function<std::string(CleanerCore::CleanupRecommendationReason)> reasonText;
    std::function<std::string(CleanerCore::CleanupCategory)> actionText;
    /// Nothing where there is no context.
    std::function<std::optional<std::string>(const std::optional<CleanerCore::AppCacheContext>&)> appCacheContextText;
};

[[nodiscard]] CandidateListTextProvider candidateListTextProvider(const KarvelloCopy& copy);

} // namespace KarvelloUI
