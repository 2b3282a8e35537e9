#pragma once

#include "KarvelloUI/Copy/Vocabulary/IOSStorageChecklistActor.h"
#include "KarvelloUI/Copy/Vocabulary/IOSStorageChecklistStatus.h"
#include "KarvelloUI/Copy/Vocabulary/IOSStorageChecklistStepID.h"

#include <string>

namespace KarvelloUI {

/// A step of the checklist as it is shown.
struct IOSStorageChecklistStep {
    IOSStorageChecklistStepID id = IOSStorageChecklistStepID::iphoneStorageRecommendations;
    IOSStorageChecklistActor actor = IOSStorageChecklistActor::appleSettings;
    std::string title;
    std::string detail;
    /// Where the step is done: the way through settings or apps.
    std::string path;
    std::string safetyNote;
    /// The name of a symbol, the same in every language.
    std::string systemImage;
    IOSStorageChecklistStatus status = IOSStorageChecklistStatus::notStarted;

    friend bool operator==(const IOSStorageChecklistStep&, const IOSStorageChecklistStep&) = default;
};

} // namespace KarvelloUI
