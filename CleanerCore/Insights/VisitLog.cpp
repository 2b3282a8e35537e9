#include "CleanerCore/Insights/VisitLog.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <span>
#include <utility>

namespace CleanerCore {

void VisitLog::addItem(std::int64_t bytes)
{
    const auto counted = std::max<std::int64_t>(bytes, 0);
    m_visits.push_back(counted);
    m_totals.byteSize = Platform::saturatingAdd(m_totals.byteSize, counted);
    ++m_totals.itemCount;
}

void VisitLog::addFailure(SkippedItem item)
{
    m_failures.push_back({visits(), std::move(item)});
    addUncounted();
}

VisitLog::Totals VisitLog::totals(std::size_t visits) const
{
    if (visits >= m_visits.size()) {
        return m_totals;
    }
    Totals totals;
    for (const auto bytes : std::span(m_visits).first(visits)) {
        if (bytes != kUncounted) {
            totals.byteSize = Platform::saturatingAdd(totals.byteSize, bytes);
            ++totals.itemCount;
        }
    }
    return totals;
}

void VisitLog::moveSkippedItems(
    std::size_t visits, std::vector<SkippedItem>& failures, std::vector<SkippedItem>& enumerationErrors)
{
    for (auto& failure : m_failures) {
        if (failure.visitsBefore < visits) {
            failures.push_back(std::move(failure.thing));
        }
    }
    for (auto& error : m_enumerationErrors) {
        if (error.visitsBefore <= visits) {
            enumerationErrors.push_back(std::move(error.thing));
        }
    }
    m_failures.clear();
    m_enumerationErrors.clear();
}

} // namespace CleanerCore
