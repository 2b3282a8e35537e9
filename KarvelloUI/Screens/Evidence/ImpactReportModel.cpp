#include "KarvelloUI/Screens/Evidence/ImpactReportModel.h"

#include "Platform/Base/LocalizedText.h"

#include <algorithm>
#include <vector>

namespace KarvelloUI {

using CleanerCore::CleaningMode;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupStorageImpactReport;

namespace {

double share(std::int64_t bytes, std::int64_t expected)
{
    return expected < 1 ? 0 : std::clamp(static_cast<double>(bytes) / static_cast<double>(expected), 0.0, 1.0);
}

ImpactBar::Kind outcomeKind(const CleanupStorageImpactReport& report)
{
    return !report.mode                             ? ImpactBar::plain
        : *report.mode == CleaningMode::moveToTrash ? ImpactBar::pending
                                                    : ImpactBar::recovered;
}

} // namespace

ImpactReportModel::ImpactReportModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_refresh(dashboard, {MacDashboardSection::reviewEvidence}, [this] { refresh(); })
{
    const auto request = [this] { m_refresh.request(); };
    connect(&dashboard, &MacCleanerDashboardModel::auditEntriesChanged, this, request);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, request);
    refresh();
}

void ImpactReportModel::refresh()
{
    const auto words = m_dashboard.words();
    m_texts = {.title = shown(words.cleanupImpactTitle())};
    const auto entries = m_dashboard.auditEntries();
    const auto last = std::ranges::find(entries, CleanupAuditOperation::clean, &CleanupAuditEntry::operation);
    if (last == entries.end()) {
        m_bars.show(std::vector<ImpactBar>{});
        m_texts.empty = shown(m_dashboard.isAuditLogLoaded() ? words.auditLogEmpty() : words.auditLogLoading());
    } else if (const auto report = CleanupStorageImpactReport::fromAuditEntry(*last)) {
        showReport(*report, words);
    }
    Q_EMIT changed();
}

void ImpactReportModel::showReport(const CleanupStorageImpactReport& report, const DashboardWords& words)
{
    m_texts.subtitle = shown(words.joinedParts(
        {words.lastCleanTitle(report.mode), Platform::LocalizedText::mediumMoment(report.occurredAt, words.locale())}));
    m_texts.summary = shown(words.cleanupImpactSummary(report));
    m_texts.accessibleName = shown(words.cleanupImpactAccessibilityLabel(report));

    // What was moved takes its space until the Trash is emptied, so nothing of it is left to be expected.
    const bool isPending = report.mode == CleaningMode::moveToTrash;
    const auto left = isPending ? report.actualRecoveredBytes() : report.remainingExpectedBytes();
    m_bars.show(std::vector<ImpactBar>{
        {.label = shown(words.cleanupImpactExpectedLabel(report.mode)),
            .value = shown(words.byteSize(report.expectedBytes)),
            .fraction = report.expectedBytes > 0 ? 1.0 : 0.0,
            .kind = ImpactBar::plain},
        {.label = shown(words.cleanupImpactActualLabel(report.mode)),
            .value = shown(words.byteSize(report.outcomeBytes())),
            .fraction = report.outcomeFraction().value_or(0),
            .kind = outcomeKind(report)},
        {.label = shown(isPending ? words.text("실제로 확보됨", "Actually recovered")
                                  : words.cleanupImpactUnreclaimedLabel(report.mode)),
            .value = shown(isPending ? words.cleanupImpactUnreclaimedLabel(report.mode) : words.byteSize(left)),
            .fraction = share(left, report.expectedBytes),
            .kind = isPending ? ImpactBar::recovered : ImpactBar::plain},
    });
}

} // namespace KarvelloUI
