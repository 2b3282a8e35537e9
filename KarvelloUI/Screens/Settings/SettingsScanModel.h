#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// How far scans reach, and the grant for the home folder. Main thread only.
class SettingsScanModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString modeTitle READ modeTitle NOTIFY changed FINAL)
    /// What the modes are, and what becomes of the results on show.
    Q_PROPERTY(QString modeText READ modeText NOTIFY changed FINAL)
    /// Of { value, text }: those that the build offers.
    Q_PROPERTY(QVariantList modes READ modes NOTIFY changed FINAL)
    Q_PROPERTY(QString mode READ mode NOTIFY changed FINAL)
    /// A change would drop what a session is about to bring.
    Q_PROPERTY(bool isModeEnabled READ isModeEnabled NOTIFY changed FINAL)
    Q_PROPERTY(QString modeDisabledReason READ modeDisabledReason NOTIFY changed FINAL)
    Q_PROPERTY(QString accessTitle READ accessTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString accessText READ accessText NOTIFY changed FINAL)
    Q_PROPERTY(bool isGranted READ isGranted NOTIFY changed FINAL)
    /// Nothing can be scanned before it is granted.
    Q_PROPERTY(bool isGrantNeeded READ isGrantNeeded NOTIFY changed FINAL)
    Q_PROPERTY(QString grantText READ grantText NOTIFY changed FINAL)
    Q_PROPERTY(QString revokeText READ revokeText NOTIFY changed FINAL)
    /// Empty for none.
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit SettingsScanModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString modeTitle() const;
    [[nodiscard]] QString modeText() const;
    [[nodiscard]] QVariantList modes() const;
    [[nodiscard]] QString mode() const;
    [[nodiscard]] bool isModeEnabled() const { return m_dashboard.canChooseScanMode(); }
    [[nodiscard]] QString modeDisabledReason() const;
    [[nodiscard]] QString accessTitle() const;
    [[nodiscard]] QString accessText() const;
    [[nodiscard]] bool isGranted() const { return m_dashboard.homeAccess().isAuthorized(); }
    [[nodiscard]] bool isGrantNeeded() const { return !m_dashboard.hasHomeAccess(); }
    [[nodiscard]] QString grantText() const;
    [[nodiscard]] QString revokeText() const;
    [[nodiscard]] QString errorText() const;

    /// The results of both sessions go. Nothing happens for a mode that the build does not offer, nor while a session is
    /// busy.
    Q_INVOKABLE void chooseMode(const QString& value);
    /// Asks for the home folder, to grant it for the first time or anew.
    Q_INVOKABLE void grant();
    Q_INVOKABLE void revoke();
    Q_INVOKABLE void dismissError();

Q_SIGNALS:
    void changed();

private:
    MacCleanerDashboardModel& m_dashboard;
};

} // namespace KarvelloUI
