#pragma once

#include "CleanerCore/Export/ExportError.h"
#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Export/ScanResultExportFormat.h"
#include "KarvelloUI/Copy/CleanupCopy.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Sessions/Errands.h"

#include <QObject>
#include <expected>
#include <functional>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// Writes what the sessions have found, and the log, into files where the user wants them. What is written is what was on
/// show when it was asked for. A file is made and written in the background, to its end also when this object has gone by
/// then. Main thread only.
class ScanExports final : public QObject {
    Q_OBJECT

public:
    using Format = CleanerCore::ScanResultExportFormat;
    using PrivacyMode = CleanerCore::ReportExportPrivacyMode;

    /// `dashboard` must outlive this object.
    explicit ScanExports(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    /// These ask where to; without an answer nothing is written. A failure is an alert of the dashboard.
    void exportCleanupScan(Format format, PrivacyMode privacyMode);
    void exportInsightScan(Format format, PrivacyMode privacyMode);
    void exportAuditLog(Format format, PrivacyMode privacyMode);

    [[nodiscard]] bool isWriting() const { return m_files.areUnderWay(); }

Q_SIGNALS:
    void writingChanged();

private:
    using Outcome = std::expected<void, CleanerCore::ExportError>;
    /// Called on a background thread: it holds values only.
    using Write = std::function<Outcome(const Platform::FileURL& destination)>;
    using FailedMessage = std::string (CleanupCopy::*)(std::string_view reason) const;

    struct Request {
        std::string panelMessage;
        std::string suggestedName;
        FailedMessage failedMessage;
        Write write;
    };

    void save(Request request);
    void write(const Platform::FileURL& destination, Write write, FailedMessage failedMessage);
    void tellFailure(FailedMessage failedMessage, std::string_view reason);

    MacCleanerDashboardModel& m_dashboard;
    Errands m_files;
};

} // namespace KarvelloUI
