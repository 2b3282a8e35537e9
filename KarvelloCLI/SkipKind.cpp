#include "KarvelloCLI/SkipKind.h"

#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"

#include <algorithm>
#include <array>
#include <string>

namespace KarvelloCLI {

namespace {

namespace Reason = CleanerCore::StorageScannerSkipReason;

constexpr std::array kRules{
    Reason::symbolicLink,
    Reason::noTouchPath,
    Reason::noTouchDescendant,
    Reason::recentlyModified,
    Reason::emptyItem,
    Reason::inventoryItemLimitExceeded,
    Reason::duplicateHashBudgetExceeded,
};

bool isRefusalOfRoot(std::string_view reason)
{
    using CleanerCore::CleaningError;
    static const std::string sentence =
        CleaningError{.kind = CleaningError::Kind::pathNotAllowed, .path = {}}.errorDescription();
    return reason == Reason::folderDoesNotExist || reason == Reason::scanRootItself || reason.starts_with(sentence);
}

} // namespace

SkipKind skipKind(std::string_view reason)
{
    if (std::ranges::find(kRules, reason) != kRules.end()) {
        return SkipKind::protection;
    }
    return isRefusalOfRoot(reason) ? SkipKind::refusal : SkipKind::failure;
}

} // namespace KarvelloCLI
