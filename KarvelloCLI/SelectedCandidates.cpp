#include "KarvelloCLI/SelectedCandidates.h"

#include <algorithm>
#include <unordered_set>

namespace KarvelloCLI {

using CleanerCore::CleanupCandidate;

SelectedCandidates SelectedCandidates::of(
    std::span<const CleanupCandidate> found, CleanSelection selection, std::span<const std::string> ids)
{
    const std::unordered_set<std::string> wanted(ids.begin(), ids.end());
    const auto isSelected = [&](const CleanupCandidate& candidate) {
        switch (selection) {
        case CleanSelection::preselected:
            return candidate.isSelectedByDefault;
        case CleanSelection::byId:
            return wanted.contains(candidate.id);
        case CleanSelection::all:
            return true;
        }
        return false;
    };
    SelectedCandidates selected;
    std::unordered_set<std::string> known;
    for (const CleanupCandidate& candidate : found) {
        known.insert(candidate.id);
        if (isSelected(candidate)) {
            selected.candidates.push_back(candidate);
        }
    }
    for (const std::string& id : ids) {
        if (known.insert(id).second) {
            selected.unknownIds.push_back(id);
        }
    }
    return selected;
}

} // namespace KarvelloCLI
