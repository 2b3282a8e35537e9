#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

namespace KarvelloUI {

/// Says that a choice could not be stored, unless it was.
inline void noticeUnlessStored(MacCleanerDashboardModel& dashboard, bool isStored)
{
    if (!isStored) {
        const auto words = dashboard.words();
        dashboard.showNotice({.title = shown(words.say("Setting not saved")),
            .message = shown(words.say("This choice could not be stored, so the previous one still holds."))});
    }
}

} // namespace KarvelloUI
