#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// Language, appearance and size of the texts. A choice holds at once; one that cannot be stored does not hold, and a notice
/// says so. Main thread only.
class SettingsAppearanceModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the screen")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString languageTitle READ languageTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString languageText READ languageText NOTIFY changed FINAL)
    /// These lists are of { value, text }, and the choices are values.
    Q_PROPERTY(QVariantList languages READ languages CONSTANT FINAL)
    Q_PROPERTY(QString language READ language NOTIFY changed FINAL)
    Q_PROPERTY(QString appearanceTitle READ appearanceTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString appearanceText READ appearanceText NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList appearances READ appearances NOTIFY changed FINAL)
    Q_PROPERTY(QString appearance READ appearance NOTIFY changed FINAL)
    Q_PROPERTY(QString textSizeTitle READ textSizeTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString textSizeText READ textSizeText NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList textSizes READ textSizes NOTIFY changed FINAL)
    Q_PROPERTY(QString textSize READ textSize NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit SettingsAppearanceModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString languageTitle() const;
    [[nodiscard]] QString languageText() const;
    [[nodiscard]] QVariantList languages() const;
    [[nodiscard]] QString language() const;
    [[nodiscard]] QString appearanceTitle() const;
    [[nodiscard]] QString appearanceText() const;
    [[nodiscard]] QVariantList appearances() const;
    [[nodiscard]] QString appearance() const;
    [[nodiscard]] QString textSizeTitle() const;
    [[nodiscard]] QString textSizeText() const;
    [[nodiscard]] QVariantList textSizes() const;
    [[nodiscard]] QString textSize() const;

    /// Nothing happens for what is no choice.
    Q_INVOKABLE void chooseLanguage(const QString& value);
    Q_INVOKABLE void chooseAppearance(const QString& value);
    Q_INVOKABLE void chooseTextSize(const QString& value);

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] DashboardPreferences& preferences() const { return m_dashboard.preferences(); }

    MacCleanerDashboardModel& m_dashboard;
};

} // namespace KarvelloUI
