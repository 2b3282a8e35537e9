#pragma once

#include "KarvelloUI/Stores/SystemMetricHistory.h"
#include "Platform/Services/UserDefaults.h"

#include <string>
#include <string_view>
#include <utility>

namespace KarvelloUI {

/// The history in the stored preferences, as JSON. Charts can do without it, so nothing that fails here is told to
/// anybody. May be used from any thread.
class SystemMetricHistoryStore {
public:
    static constexpr std::string_view defaultStorageKey = "karvello.systemMetricHistory.v1";

    /// `defaults` must outlive the store and its copies.
    explicit SystemMetricHistoryStore(
        Platform::UserDefaults& defaults, std::string storageKey = std::string(defaultStorageKey))
        : m_defaults(&defaults)
        , m_storageKey(std::move(storageKey))
    {
    }

    /// Empty where nothing is stored. What cannot be read is taken away.
    [[nodiscard]] SystemMetricHistory load() const;
    void save(const SystemMetricHistory& history) const;
    void clear() const;

private:
    Platform::UserDefaults* m_defaults;
    std::string m_storageKey;
};

} // namespace KarvelloUI
