#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "KarvelloUI/Sessions/Errands.h"

#include <functional>
#include <vector>

namespace KarvelloUI {

/// The newest entries of the log, as one session shows them. What is recorded is on show at once and is written in the
/// background, also when this object is gone by then. Belongs to the thread of its session, which has an event loop.
class AuditTrail {
public:
    /// `changed` is called when the log has been read or written, and what is below is another. Loading starts at once.
    AuditTrail(CleanerCore::CleanupAuditStore store, JobExecutor& executor, std::function<void()> changed);

    /// At most `CleanupAuditStore::defaultLimit`, the newest first.
    [[nodiscard]] const std::vector<CleanerCore::CleanupAuditEntry>& entries() const { return m_entries; }
    /// Whether the log has been read or written once.
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }

    void record(const CleanerCore::CleanupAuditEntry& entry);

private:
    void load();
    void takeOver(std::vector<CleanerCore::CleanupAuditEntry> entries);

    CleanerCore::CleanupAuditStore m_store;
    std::function<void()> m_changed;
    std::vector<CleanerCore::CleanupAuditEntry> m_entries;
    bool m_isLoaded = false;
    Errands m_errands;
};

} // namespace KarvelloUI
