#include "KarvelloUI/Stores/SystemMetricHistoryStore.h"

#include <tuple>

namespace KarvelloUI {

SystemMetricHistory SystemMetricHistoryStore::load() const
{
    const auto bytes = m_defaults->data(m_storageKey);
    if (!bytes) {
        return {};
    }
    auto history = Platform::decodeJSON<SystemMetricHistory>(*bytes);
    if (!history) {
        clear();
        return {};
    }
    return *std::move(history);
}

void SystemMetricHistoryStore::save(const SystemMetricHistory& history) const
{
    if (auto bytes = Platform::encodeJSON(history)) {
        std::ignore = m_defaults->set(m_storageKey, Platform::DefaultsData{*std::move(bytes)});
    }
}

void SystemMetricHistoryStore::clear() const
{
    std::ignore = m_defaults->remove(m_storageKey);
}

} // namespace KarvelloUI
