#include "KarvelloCLI/OwnerNote.h"

#include <fmt/format.h>

namespace KarvelloCLI {

std::string ownerNote(const std::optional<CleanerCore::AppCacheContext>& context, OwnerName name)
{
    if (!context || context->runningState != CleanerCore::AppCacheRunningState::running) {
        return {};
    }
    const auto& owner = context->matchedRunningDisplayName;
    return fmt::format("{} is running and may be using it",
        owner && name == OwnerName::shown ? std::string_view(*owner) : "its application");
}

} // namespace KarvelloCLI
