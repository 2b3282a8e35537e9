#pragma once

#include "KarvelloUI/Copy/CopyWording.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarReminder.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"
#include "Platform/Base/Date.h"

#include <span>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// The texts of the menu bar and of its notifications in one language.
struct KarvelloMenuBarStrings : CopyWording {
    /// "42%"; a fraction outside of 0 to 1 counts as the nearer end, and what is no number is "—".
    [[nodiscard]] static std::string percent(double value);

    [[nodiscard]] std::string compactStatus(const KarvelloMenuBarStatusSnapshot& snapshot) const;
    /// With the time of day, in the system's time zone.
    [[nodiscard]] std::string updated(Platform::Date date) const;

    [[nodiscard]] std::string storageTitle() const;
    [[nodiscard]] std::string storageValue(const KarvelloMenuBarStatusSnapshot& snapshot) const;
    [[nodiscard]] std::string storageSubtitle(const KarvelloMenuBarStatusSnapshot& snapshot) const;
    [[nodiscard]] std::string cpuTitle() const;
    [[nodiscard]] std::string memoryTitle() const;
    [[nodiscard]] std::string thermalTitle() const;
    /// A state that nobody knows is shown as it stands.
    [[nodiscard]] std::string localizedThermalState(std::string_view state) const;

    [[nodiscard]] std::string triageTitle() const;
    [[nodiscard]] std::string triageBody() const;
    [[nodiscard]] std::string triageEmptyTitle() const;
    [[nodiscard]] std::string triageReviewButtonTitle(KarvelloMenuBarReminder::Kind kind) const;
    [[nodiscard]] std::string openDashboardTitle() const;
    [[nodiscard]] std::string quitTitle() const;

    [[nodiscard]] std::string reminderDetail(
        const KarvelloMenuBarReminder& reminder, const KarvelloMenuBarStatusSnapshot& snapshot) const;
    [[nodiscard]] std::string reminderNotificationTitle(std::span<const KarvelloMenuBarReminder> reminders) const;
    [[nodiscard]] std::string reminderNotificationBody(
        std::span<const KarvelloMenuBarReminder> reminders, const KarvelloMenuBarStatusSnapshot& snapshot) const;

    friend bool operator==(const KarvelloMenuBarStrings&, const KarvelloMenuBarStrings&) = default;
};

} // namespace KarvelloUI
