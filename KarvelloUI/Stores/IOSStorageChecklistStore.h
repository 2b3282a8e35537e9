#pragma once

#include "KarvelloUI/Copy/Vocabulary/IOSStorageChecklistStatus.h"
#include "KarvelloUI/Copy/Vocabulary/IOSStorageChecklistStepID.h"
#include "Platform/Services/UserDefaults.h"

#include <expected>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace KarvelloUI {

/// How far someone is with each step of the checklist, in the stored preferences. What cannot be read counts as not
/// started, and nobody is told.
class IOSStorageChecklistStore {
public:
    using Statuses = std::map<IOSStorageChecklistStepID, IOSStorageChecklistStatus>;

    static constexpr std::string_view defaultStorageKey = "karvello.iosStorageChecklist.statuses.v1";

    /// `defaults` must outlive the store.
    explicit IOSStorageChecklistStore(
        Platform::UserDefaults& defaults, std::string storageKey = std::string(defaultStorageKey))
        : m_defaults(defaults)
        , m_storageKey(std::move(storageKey))
    {
    }

    /// Every step, in the order in which the checklist shows them.
    [[nodiscard]] Statuses statuses() const;
    [[nodiscard]] IOSStorageChecklistStatus status(IOSStorageChecklistStepID step) const;
    /// After a failure every status is as it was.
    [[nodiscard]] std::expected<void, Platform::FileError> setStatus(
        IOSStorageChecklistStatus status, IOSStorageChecklistStepID step);
    [[nodiscard]] std::expected<void, Platform::FileError> reset();

private:
    [[nodiscard]] Platform::DefaultsDictionary storedRawStatuses() const;

    Platform::UserDefaults& m_defaults;
    std::string m_storageKey;
};

} // namespace KarvelloUI
