#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Dashboard/ScanExports.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQmlIntegration>
#include <cstdint>

namespace KarvelloUI {

/// The export button of a screen and the menu behind it. Main thread only.
class ExportMenuModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A screen has it.")
    Q_PROPERTY(QString title READ title NOTIFY wordsChanged FINAL)
    /// What the button is for, in full.
    Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY wordsChanged FINAL)
    /// What a file holds.
    Q_PROPERTY(QString explanation READ explanation NOTIFY wordsChanged FINAL)
    /// One for each way to export.
    Q_PROPERTY(QStringList entries READ entries NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString redactedHint READ redactedHint NOTIFY wordsChanged FINAL)
    /// Whether there is something to export that does not change at the moment.
    Q_PROPERTY(bool isEnabled READ isEnabled NOTIFY enabledChanged FINAL)
    Q_PROPERTY(bool isWriting READ isWriting NOTIFY writingChanged FINAL)

public:
    enum class Source : std::uint8_t { cleanupScan, insightScan, auditLog };

    /// `dashboard` must outlive the model.
    ExportMenuModel(MacCleanerDashboardModel& dashboard, Source source, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString accessibleName() const;
    [[nodiscard]] QString explanation() const;
    [[nodiscard]] QStringList entries() const;
    [[nodiscard]] QString redactedHint() const;
    [[nodiscard]] bool isEnabled() const;
    [[nodiscard]] bool isWriting() const { return m_exports.isWriting(); }

    /// Exports in the way that this entry names. Nothing happens while there is nothing to export.
    Q_INVOKABLE void choose(int entry);

Q_SIGNALS:
    void wordsChanged();
    void enabledChanged();
    void writingChanged();

private:
    MacCleanerDashboardModel& m_dashboard;
    Source m_source;
    ScanExports m_exports;
};

} // namespace KarvelloUI
