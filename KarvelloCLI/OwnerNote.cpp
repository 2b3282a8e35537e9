#include "KarvelloCLI/OwnerNote.h"

#include "KarvelloCLI/Say.h"

namespace KarvelloCLI {

std::string ownerNote(const std::optional<CleanerCore::AppCacheContext>& context, OwnerName name)
{
    if (!context || context->runningState != CleanerCore::AppCacheRunningState::running) {
        return {};
    }
    const auto& owner = context->matchedRunningDisplayName;
    return owner && name == OwnerName::shown ? say("{} is running and may be using it", *owner)
                                             : say("its application is running and may be using it");
}

} // namespace KarvelloCLI
