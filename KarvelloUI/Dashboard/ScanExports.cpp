#include "KarvelloUI/Dashboard/ScanExports.h"

#include "CleanerCore/Audit/CleanupAuditExporter.h"
#include "CleanerCore/Export/ScanResultExporter.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <QPointer>
#include <utility>

namespace KarvelloUI {

using CleanerCore::ScanResultExportSource;
namespace CleanupAuditExporter = CleanerCore::CleanupAuditExporter;
namespace ScanResultExporter = CleanerCore::ScanResultExporter;

ScanExports::ScanExports(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_files(dashboard.services().session.executor)
{
}

void ScanExports::exportCleanupScan(Format format, PrivacyMode privacyMode)
{
    const auto& session = m_dashboard.cleaner();
    const auto& services = m_dashboard.services().session;
    save({
        .panelMessage = m_dashboard.words().scanExportPanelMessage(),
        .suggestedName = ScanResultExporter::defaultFilename(
            ScanResultExportSource::cleanup, session.report().scannedAt, format, privacyMode),
        .failedMessage = &CleanupCopy::scanExportFailedMessage,
        .write =
            [index = session.index(), selectedIDs = session.review().selection().ids(), format, privacyMode,
                exportedAt = services.now(), &files = services.fileManager](const Platform::FileURL& destination) {
                return ScanResultExporter::write(
                    index->report(), selectedIDs, format, privacyMode, destination, exportedAt, files);
            },
    });
}

void ScanExports::exportInsightScan(Format format, PrivacyMode privacyMode)
{
    const auto& session = m_dashboard.insights();
    const auto& services = m_dashboard.services().session;
    save({
        .panelMessage = m_dashboard.words().scanExportPanelMessage(),
        .suggestedName = ScanResultExporter::defaultFilename(
            ScanResultExportSource::macInsights, session.report().scannedAt, format, privacyMode),
        .failedMessage = &CleanupCopy::scanExportFailedMessage,
        .write =
            [index = session.index(), selectedIDs = session.selectedIDs(), format, privacyMode,
                exportedAt = services.now(), &files = services.fileManager](const Platform::FileURL& destination) {
                return ScanResultExporter::write(
                    index->report(), selectedIDs, format, privacyMode, destination, exportedAt, files);
            },
    });
}

void ScanExports::exportAuditLog(Format format, PrivacyMode privacyMode)
{
    const auto& services = m_dashboard.services().session;
    const Platform::Date exportedAt = services.now();
    save({
        .panelMessage = m_dashboard.words().auditLogExportPanelMessage(),
        .suggestedName = CleanupAuditExporter::defaultFilename(exportedAt, format, privacyMode),
        .failedMessage = &CleanupCopy::auditLogExportFailedMessage,
        .write =
            [entries = m_dashboard.auditEntries(), format, privacyMode, exportedAt, &files = services.fileManager](
                const Platform::FileURL& destination) {
                return CleanupAuditExporter::write(entries, format, privacyMode, destination, exportedAt, files);
            },
    });
}

void ScanExports::save(Request request)
{
    const auto& services = m_dashboard.services();
    services.fileDialogs.chooseDestination(
        {
            .message = std::move(request.panelMessage),
            .suggestedName = std::move(request.suggestedName),
            .directory = services.homeDirectory,
        },
        // The dialog may be open longer than this object lives.
        [self = QPointer(this), write = std::move(request.write), failedMessage = request.failedMessage](
            const std::optional<Platform::FileURL>& destination) {
            if (self && destination) {
                self->write(*destination, write, failedMessage);
            }
        });
}

void ScanExports::write(const Platform::FileURL& destination, Write write, FailedMessage failedMessage)
{
    m_files.run([destination, write = std::move(write)] { return write(destination); },
        [this, failedMessage](const JobOutcome<Outcome>& outcome) {
            Q_EMIT writingChanged();
            if (!outcome) {
                tellFailure(failedMessage, outcome.error().reason);
            } else if (!*outcome) {
                tellFailure(failedMessage, outcome->error().localizedDescription());
            }
        });
    Q_EMIT writingChanged();
}

void ScanExports::tellFailure(FailedMessage failedMessage, std::string_view reason)
{
    const auto words = m_dashboard.words();
    m_dashboard.showAlert(
        {.title = shown(words.scanExportFailedTitle()), .message = shownText((words.*failedMessage)(reason))});
}

} // namespace KarvelloUI
