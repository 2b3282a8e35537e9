#include "CleanerCore/Insights/RootScan.h"

#include "CleanerCore/Insights/WalkReader.h"
#include "CleanerCore/Safety/SafePathPolicy.h"
#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace CleanerCore {

RootScan::RootScan(InsightScanRun& run, const RootPlan& plan)
    : m_run(run)
    , m_plan(plan)
{
}

RootScanResult RootScan::perform()
{
    const auto& root = m_plan.root();
    if (const auto safe = SafePathPolicy::validateScanRoot(root, m_run.homeDirectory, m_run.fileManager); !safe) {
        m_run.skippedItems.push_back({root, safe.error().errorDescription()});
        return {};
    }
    walk({.fileManager = m_run.fileManager, .configuration = m_run.configuration, .plan = m_plan});
    std::ranges::move(m_enumerationErrors, std::back_inserter(m_run.skippedItems));
    return m_result;
}

void RootScan::walk(const WalkRules& rules)
{
    WalkReader reader(rules, m_run.pool, m_run.stop);
    if (!reader.couldEnumerate()) {
        m_run.skippedItems.push_back({m_plan.root(), "Could not enumerate folder"});
        return;
    }
    auto remaining = m_run.configuration.maximumVisitedItemsPerRoot;
    while (auto segment = reader.next(remaining, m_run.packageVisitBudget)) {
        const auto visits = static_cast<std::int64_t>(segment->log.visits());
        const auto allowed = std::min(visits, remaining);
        add(*std::move(segment), static_cast<std::size_t>(allowed));
        remaining -= allowed;
        if (allowed < visits) {
            m_result.isTruncated = true;
            return;
        }
    }
}

void RootScan::add(WalkSegment segment, std::size_t visits)
{
    const bool isWhole = visits == segment.log.visits();
    const auto totals = segment.log.totals(visits);
    count(totals.byteSize, totals.itemCount);
    segment.log.moveSkippedItems(visits, m_run.skippedItems, m_enumerationErrors);
    for (auto& record : segment.records) {
        if (record.visitsBefore < visits) {
            m_run.records.push_back(std::move(record.thing));
        }
    }
    m_run.visited(static_cast<std::int64_t>(visits));
    if (isWhole && segment.package) {
        add(*std::move(segment.package));
    }
}

void RootScan::add(PackageVisit package)
{
    auto known = m_run.packages.find(package.url.path());
    if (known == m_run.packages.end()) {
        known = m_run.packages.emplace(package.url.path(), inventory(package)).first;
    }
    const auto& inside = known->second;
    count(inside.byteSize, inside.itemCount);
    m_result.isTruncated = m_result.isTruncated || inside.isTruncated;
    if (package.record) {
        auto& record = *package.record;
        record.allocatedSizeBytes = std::max(inside.byteSize, record.allocatedSizeBytes);
        record.logicalSizeBytes = record.allocatedSizeBytes;
        m_run.records.push_back(std::move(record));
    }
}

/// Takes the package's visits from the budget of all packages: the one that is too many counts, too.
RootScanResult RootScan::inventory(PackageVisit& package)
{
    const auto visits = static_cast<std::int64_t>(package.inside.visits());
    const auto allowed = std::min(visits, std::max<std::int64_t>(m_run.packageVisitBudget, 0));
    const bool isTruncated = visits > allowed;
    m_run.packageVisitBudget -= isTruncated ? allowed + 1 : allowed;
    const auto totals = package.inside.totals(static_cast<std::size_t>(allowed));
    std::vector<SkippedItem> errors;
    package.inside.moveSkippedItems(static_cast<std::size_t>(allowed), m_run.skippedItems, errors);
    std::ranges::move(errors, std::back_inserter(m_run.skippedItems));
    m_run.visited(allowed);
    return {.byteSize = totals.byteSize, .itemCount = totals.itemCount, .isTruncated = isTruncated};
}

void RootScan::count(std::int64_t byteSize, std::int64_t itemCount)
{
    m_result.byteSize = Platform::saturatingAdd(m_result.byteSize, byteSize);
    m_result.itemCount = Platform::checkedAdd(m_result.itemCount, itemCount);
}

} // namespace CleanerCore
