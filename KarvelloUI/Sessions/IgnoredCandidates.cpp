#include "KarvelloUI/Sessions/IgnoredCandidates.h"

namespace KarvelloUI {

std::unordered_set<std::string> IgnoredCandidates::activeIDs(Platform::Date now) const
{
    const auto ids = m_store.activeIgnoredIDs(now);
    return {ids.begin(), ids.end()};
}

std::unordered_set<std::string> IgnoredCandidates::hide(const CleanerCore::ScanReport& report, Platform::Date now)
{
    m_store.pruneExpired(now);
    const auto active = m_store.activeIgnoredIDs(now);
    m_idsInReport.clear();
    if (!active.empty()) {
        for (const auto& candidate : report.candidates) {
            if (active.contains(candidate.id)) {
                m_idsInReport.insert(candidate.id);
            }
        }
    }
    return m_idsInReport;
}

bool IgnoredCandidates::snooze(
    const CleanerCore::CleanupCandidate& candidate, CleanupIgnoreDuration duration, Platform::Date now)
{
    // A rule that was there already, and is stored, holds as well as a new one.
    if (!m_store.ignore(candidate, duration, now) && !m_store.isIgnored(candidate, now)) {
        return false;
    }
    m_idsInReport.insert(candidate.id);
    return true;
}

bool IgnoredCandidates::remove(const std::string& id)
{
    if (!m_store.remove(id)) {
        return false;
    }
    m_idsInReport.erase(id);
    return true;
}

void IgnoredCandidates::removeAll(Platform::Date now)
{
    m_store.removeAll();
    const auto active = m_store.activeIgnoredIDs(now);
    std::erase_if(m_idsInReport, [&](const std::string& id) { return !active.contains(id); });
}

} // namespace KarvelloUI
