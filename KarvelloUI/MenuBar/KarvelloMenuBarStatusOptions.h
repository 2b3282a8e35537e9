#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderPolicy.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"
#include "KarvelloUI/Stores/DelayedCall.h"
#include "KarvelloUI/Stores/PreferenceStore.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace KarvelloUI {

/// How the menu bar's model behaves.
struct KarvelloMenuBarStatusSettings {
    static constexpr std::uint64_t defaultBackgroundRefreshIntervalNanoseconds = 60'000'000'000;
    static constexpr std::uint64_t defaultVisibleRefreshIntervalNanoseconds = 5'000'000'000;
    static constexpr std::uint64_t defaultRefreshIntervalNanoseconds = defaultVisibleRefreshIntervalNanoseconds;

    /// While the menu bar's popover is on the screen, unless the interval for that is set.
    std::uint64_t refreshIntervalNanoseconds = defaultRefreshIntervalNanoseconds;
    std::uint64_t backgroundRefreshIntervalNanoseconds = defaultBackgroundRefreshIntervalNanoseconds;
    std::optional<std::uint64_t> visibleRefreshIntervalNanoseconds = {};
    KarvelloMenuBarReminderPolicy reminderPolicy = {};
    bool startsPolling = true;
    /// Whether a stored wish for reminders is held against what the desktop allows now.
    bool validatesPersistedAuthorizationOnInit = true;
};

/// What the menu bar's model takes from outside.
struct KarvelloMenuBarStatusProviders {
    /// Called off the main thread; may take a while, and may still run when the model has gone.
    std::function<KarvelloMenuBarStatusSnapshot()> snapshotProvider = currentSnapshot;
    /// None: the language that is stored in the preferences, else the one of the system.
    LanguageProvider languageProvider = {};
    std::function<Platform::Date()> now = Platform::Date::now;
    /// In nanoseconds, never going back.
    std::function<std::uint64_t()> uptime = currentUptime;
    std::unique_ptr<DelayedCall> pollingTimer = std::make_unique<TimedCall>();

private:
    /// With the volume of the user's home.
    static KarvelloMenuBarStatusSnapshot currentSnapshot();
    static std::uint64_t currentUptime();
};

} // namespace KarvelloUI
