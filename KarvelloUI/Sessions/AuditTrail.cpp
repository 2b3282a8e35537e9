#include "KarvelloUI/Sessions/AuditTrail.h"

#include "CleanerCore/Audit/AuditEntryRetention.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace KarvelloUI {

namespace {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditStore;
using Entries = std::vector<CleanupAuditEntry>;

} // namespace

AuditTrail::AuditTrail(CleanupAuditStore store, JobExecutor& executor, std::function<void()> changed)
    : m_store(std::move(store))
    , m_changed(std::move(changed))
    , m_errands(executor)
{
    load();
}

void AuditTrail::load()
{
    m_errands.run([store = m_store] { return store.loadEntries(CleanupAuditStore::defaultLimit); },
        [this](JobOutcome<Entries> loaded) {
            // What was recorded while the file was read stays.
            auto entries = std::move(loaded).value_or(Entries());
            std::ranges::copy(m_entries, std::back_inserter(entries));
            takeOver(CleanerCore::AuditEntryRetention::limited(std::move(entries), CleanupAuditStore::defaultLimit));
        });
}

void AuditTrail::record(const CleanupAuditEntry& entry)
{
    const auto safe = entry.storageSafeForAuditPersistence();
    Entries entries{safe};
    std::ranges::copy(m_entries, std::back_inserter(entries));
    m_entries = CleanerCore::AuditEntryRetention::limited(std::move(entries), CleanupAuditStore::defaultLimit);
    m_errands.run([store = m_store, safe] { return store.append(safe, CleanupAuditStore::defaultLimit); },
        [this, safe](JobOutcome<Entries> persisted) {
            if (persisted) {
                takeOver(
                    CleanerCore::AuditEntryRetention::reconciledAfterAppend(*std::move(persisted), m_entries, safe));
            }
        });
}

void AuditTrail::takeOver(Entries entries)
{
    m_entries = std::move(entries);
    m_isLoaded = true;
    m_changed();
}

} // namespace KarvelloUI
