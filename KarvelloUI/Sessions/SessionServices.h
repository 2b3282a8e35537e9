#pragma once

#include "KarvelloUI/Sessions/JobExecutor.h"
#include "Platform/Base/Date.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Files/Trash.h"
#include "Platform/Services/Bookmarks.h"
#include "Platform/Services/Environment.h"

#include <functional>

namespace KarvelloUI {

/// What sessions stand on. All of it outlives them and serves any thread.
struct SessionServices {
    const Platform::FileManager& fileManager;
    Platform::Trash& trash;
    const Platform::Bookmarks& bookmarks;
    const Platform::Environment& environment;
    JobExecutor& executor;
    std::function<Platform::Date()> now = Platform::Date::now;
};

} // namespace KarvelloUI
