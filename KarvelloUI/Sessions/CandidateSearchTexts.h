#pragma once

#include "KarvelloUI/Sessions/CandidateListTextProvider.h"
#include "KarvelloUI/Sessions/CandidateSearchKeys.h"
#include "Platform/Base/RawValue.h"

#include <array>
#include <string>
#include <vector>

namespace KarvelloUI {

/// What one language adds to the keys of a report: few texts, each shared by many candidates. Immutable.
struct CandidateSearchTexts {
    CandidateSearchTexts(const CandidateSearchKeys& keys, const CandidateListTextProvider& provider);

    /// As they are shown.
    std::array<std::string, Platform::allCases<CleanerCore::CleanupCategory>().size()> categoryNames;
    std::array<std::string, Platform::allCases<CleanerCore::CleanupSafety>().size()> safetyNames;
    /// Folded: name, reason and recommended action of each category; the names of safety; each context of the keys.
    std::array<std::string, Platform::allCases<CleanerCore::CleanupCategory>().size()> categories;
    std::array<std::string, Platform::allCases<CleanerCore::CleanupSafety>().size()> safetyLevels;
    std::vector<std::string> contexts;
};

} // namespace KarvelloUI
