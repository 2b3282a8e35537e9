#pragma once

#include "KarvelloUI/Advisors/StoragePermissionWizardStep.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <cstdint>
#include <optional>
#include <vector>

namespace KarvelloUI {

/// One step of the guide, to read.
struct AccessGuidanceStep {
    Q_GADGET
    Q_PROPERTY(int number MEMBER number CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    /// What kept the scan out and how often; empty for a step that is about no items.
    Q_PROPERTY(QString diagnosis MEMBER diagnosis CONSTANT FINAL)
    Q_PROPERTY(QString samplesTitle MEMBER samplesTitle CONSTANT FINAL)
    Q_PROPERTY(QStringList samples MEMBER samples CONSTANT FINAL)
    /// "Step 1 of 3".
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)

public:
    int number = 1;
    QString title = {};
    QString text = {};
    QString diagnosis = {};
    QString samplesTitle = {};
    QStringList samples = {};
    QString label = {};

    friend bool operator==(const AccessGuidanceStep&, const AccessGuidanceStep&) = default;
};

/// What kept the last scans out of folders, and what the user can do about it, step by step. Karvello itself changes no
/// permission. Main thread only.
class AccessGuidanceModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    /// What the last scans tell of access.
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    /// Over the steps; empty without any.
    Q_PROPERTY(QString stepsTitle READ stepsTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString stepsText READ stepsText NOTIFY changed FINAL)
    /// A list of `AccessGuidanceStep`; none without a diagnosis.
    Q_PROPERTY(QVariantList steps READ steps NOTIFY changed FINAL)
    Q_PROPERTY(QString copyText READ copyText NOTIFY changed FINAL)
    /// Not every desktop has such settings.
    Q_PROPERTY(bool hasPrivacySettings READ hasPrivacySettings NOTIFY changed FINAL)
    Q_PROPERTY(QString privacySettingsText READ privacySettingsText NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit AccessGuidanceModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString stepsTitle() const;
    [[nodiscard]] QString stepsText() const;
    [[nodiscard]] QVariantList steps() const;
    [[nodiscard]] QString copyText() const;
    [[nodiscard]] bool hasPrivacySettings() const;
    [[nodiscard]] QString privacySettingsText() const;

    /// Puts the sample paths of the step with this number on the clipboard, one a line.
    Q_INVOKABLE void copySamples(int number);
    Q_INVOKABLE void openPrivacySettings();

Q_SIGNALS:
    void changed();

private:
    struct Guide {
        /// Items that the last scans skipped for want of permission.
        std::int64_t blockedCount = 0;
        std::vector<StoragePermissionWizardStep> steps = {};
    };

    /// Reports are judged when somebody looks, and once.
    void forgetSteps();
    void announceIfShown();
    [[nodiscard]] const Guide& guide() const;
    [[nodiscard]] bool hasCustomFolders() const { return m_dashboard.customFolders().count() > 0; }

    MacCleanerDashboardModel& m_dashboard;
    mutable std::optional<Guide> m_guide;
};

} // namespace KarvelloUI
