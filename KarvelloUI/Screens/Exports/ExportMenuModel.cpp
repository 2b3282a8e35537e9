#include "KarvelloUI/Screens/Exports/ExportMenuModel.h"

#include <array>

namespace KarvelloUI {

namespace {

using CleanerCore::ReportExportPrivacyMode;
using CleanerCore::ScanResultExportFormat;

struct Way {
    ScanResultExportFormat format;
    ReportExportPrivacyMode privacyMode;
    std::string (CleanupCopy::*name)() const;
};

constexpr std::array kWays{
    Way{ScanResultExportFormat::json, ReportExportPrivacyMode::full, &CleanupCopy::exportJSON},
    Way{ScanResultExportFormat::csv, ReportExportPrivacyMode::full, &CleanupCopy::exportCSV},
    Way{ScanResultExportFormat::json, ReportExportPrivacyMode::redacted, &CleanupCopy::exportRedactedJSON},
    Way{ScanResultExportFormat::csv, ReportExportPrivacyMode::redacted, &CleanupCopy::exportRedactedCSV},
};

/// Whether a session holds a report, and works at nothing that changes it.
template <typename Session>
bool hasRestingReport(const Session& session)
{
    return session.phase() == Session::Phase::ready || session.phase() == Session::Phase::finished;
}

} // namespace

ExportMenuModel::ExportMenuModel(MacCleanerDashboardModel& dashboard, Source source, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_source(source)
    , m_exports(dashboard)
{
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &ExportMenuModel::wordsChanged);
    connect(&m_exports, &ScanExports::writingChanged, this, &ExportMenuModel::writingChanged);
    switch (source) {
    case Source::cleanupScan:
        connect(&dashboard.cleaner(), &CleanerViewModel::phaseChanged, this, &ExportMenuModel::enabledChanged);
        break;
    case Source::insightScan:
        connect(&dashboard.insights(), &MacInsightsViewModel::phaseChanged, this, &ExportMenuModel::enabledChanged);
        break;
    case Source::auditLog:
        connect(&dashboard, &MacCleanerDashboardModel::auditEntriesChanged, this, &ExportMenuModel::enabledChanged);
        break;
    }
}

QString ExportMenuModel::title() const
{
    return shown(m_dashboard.words().say("Export"));
}

QString ExportMenuModel::accessibleName() const
{
    const auto words = m_dashboard.words();
    return shown(m_source == Source::auditLog ? words.say("Export Cleanup History") : words.scanExportTitle());
}

QString ExportMenuModel::explanation() const
{
    const auto words = m_dashboard.words();
    switch (m_source) {
    case Source::cleanupScan:
        return shown(words.scanExportBody());
    case Source::insightScan:
        return shown(words.insightExportBody());
    case Source::auditLog:
        return shown(words.auditLogExportBody());
    }
    return {};
}

QStringList ExportMenuModel::entries() const
{
    const auto words = m_dashboard.words();
    QStringList names;
    for (const Way& way : kWays) {
        names.append(shown((words.*way.name)()));
    }
    return names;
}

QString ExportMenuModel::redactedHint() const
{
    return shown(m_dashboard.words().redactedExportHint());
}

bool ExportMenuModel::isEnabled() const
{
    switch (m_source) {
    case Source::cleanupScan:
        return hasRestingReport(m_dashboard.cleaner());
    case Source::insightScan:
        return hasRestingReport(m_dashboard.insights());
    case Source::auditLog:
        return m_dashboard.isAuditLogLoaded();
    }
    return false;
}

void ExportMenuModel::choose(int entry)
{
    if (!isEnabled() || entry < 0 || entry >= static_cast<int>(kWays.size())) {
        return;
    }
    const Way& way = kWays[static_cast<std::size_t>(entry)];
    switch (m_source) {
    case Source::cleanupScan:
        m_exports.exportCleanupScan(way.format, way.privacyMode);
        break;
    case Source::insightScan:
        m_exports.exportInsightScan(way.format, way.privacyMode);
        break;
    case Source::auditLog:
        m_exports.exportAuditLog(way.format, way.privacyMode);
        break;
    }
}

} // namespace KarvelloUI
