#include "KarvelloUI/Sessions/AccessBlockedRoots.h"

#include <utility>

namespace KarvelloUI {

AccessBlockedRoots::AccessBlockedRoots(std::span<const CleanerCore::SkippedItem> skippedItems)
{
    for (const auto& item : skippedItems) {
        m_reasons.insert_or_assign(item.url.path(), item.reason);
    }
}

std::optional<std::string_view> AccessBlockedRoots::reason(std::string_view path) const
{
    // The folders above an item, the deepest first: few, however many folders are blocked.
    for (std::string_view folder = path; !folder.empty(); folder = folder.substr(0, folder.rfind('/'))) {
        if (const auto found = m_reasons.find(folder); found != m_reasons.end()) {
            return found->second;
        }
    }
    return std::nullopt;
}

AccessBlockedRoots::Split AccessBlockedRoots::split(std::vector<CleanerCore::CleanupCandidate> candidates) const
{
    Split split;
    for (auto& candidate : candidates) {
        if (const auto why = reason(candidate.url.path())) {
            split.blocked.push_back({.candidate = std::move(candidate), .reason = std::string(*why)});
        } else {
            split.reachable.push_back(std::move(candidate));
        }
    }
    return split;
}

} // namespace KarvelloUI
