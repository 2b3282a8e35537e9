#include "KarvelloUI/Sessions/CandidateSearchTexts.h"

#include "Platform/Base/TextFolding.h"

#include <cstddef>

namespace KarvelloUI {

using Platform::Text::foldedForSearch;

CandidateSearchTexts::CandidateSearchTexts(const CandidateSearchKeys& keys, const CandidateListTextProvider& provider)
{
    for (const auto category : Platform::allCases<CleanerCore::CleanupCategory>()) {
        const auto index = static_cast<std::size_t>(category);
        categoryNames[index] = provider.categoryName(category);
        categories[index] = foldedForSearch(categoryNames[index] + ' '
            + provider.reasonText(CleanerCore::recommendationReason(category)) + ' ' + provider.actionText(category));
    }
    for (const auto safety : Platform::allCases<CleanerCore::CleanupSafety>()) {
        const auto index = static_cast<std::size_t>(safety);
        safetyNames[index] = provider.safetyName(safety);
        safetyLevels[index] = foldedForSearch(safetyNames[index]);
    }
    contexts.reserve(keys.contexts().size());
    for (const auto& context : keys.contexts()) {
        contexts.push_back(foldedForSearch(provider.appCacheContextText(context).value_or("")));
    }
}

} // namespace KarvelloUI
