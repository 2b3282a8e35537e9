#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/SkippedItem.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The folders to which access could not be opened, and what of a clean that holds up.
class AccessBlockedRoots {
public:
    struct Split {
        std::vector<CleanerCore::CleanupCandidate> reachable;
        std::vector<CleanerCore::FailedCleanItem> blocked;
    };

    /// Of two items for one folder the later one counts.
    explicit AccessBlockedRoots(std::span<const CleanerCore::SkippedItem> skippedItems);

    /// Why the item at this path is out of reach: the reason of the deepest folder that is the item or holds it.
    [[nodiscard]] std::optional<std::string_view> reason(std::string_view path) const;
    /// Both lists keep the order of the candidates.
    [[nodiscard]] Split split(std::vector<CleanerCore::CleanupCandidate> candidates) const;

private:
    std::map<std::string, std::string, std::less<>> m_reasons;
};

} // namespace KarvelloUI
