#pragma once

#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloUI/Stores/CleanupIgnoreStore.h"

#include <optional>
#include <string>
#include <unordered_set>

namespace KarvelloUI {

/// Which candidates of the report on show the user's rules keep out of it. Belongs to the thread of its session.
class IgnoredCandidates {
public:
    /// `store` must outlive this object.
    explicit IgnoredCandidates(CleanupIgnoreStore& store)
        : m_store(store)
    {
    }

    [[nodiscard]] CleanupIgnoreStore& store() { return m_store; }
    [[nodiscard]] std::size_t countInReport() const { return m_idsInReport.size(); }

    /// The ids that are ignored at `now`.
    [[nodiscard]] std::unordered_set<std::string> activeIDs(Platform::Date now) const;
    /// Another report is on show: which of its candidates have to go. Rules that are over go, too.
    [[nodiscard]] std::unordered_set<std::string> hide(const CleanerCore::ScanReport& report, Platform::Date now);
    /// Whether the candidate is ignored now, and so has to leave the report.
    bool snooze(const CleanerCore::CleanupCandidate& candidate, CleanupIgnoreDuration duration, Platform::Date now);
    /// Whether there was such a rule, and it is gone. The candidate comes back with the next scan.
    bool remove(const std::string& id);
    void removeAll(Platform::Date now);
    /// No report is on show.
    void forgetReport() { m_idsInReport.clear(); }

private:
    CleanupIgnoreStore& m_store;
    std::unordered_set<std::string> m_idsInReport;
};

} // namespace KarvelloUI
