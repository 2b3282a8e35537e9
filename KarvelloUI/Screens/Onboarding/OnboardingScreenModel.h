#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// A step of the first run, to read.
struct OnboardingCard {
    Q_GADGET
    Q_PROPERTY(QString iconName MEMBER iconName CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)

public:
    QString iconName = {};
    QString title = {};
    QString text = {};

    friend bool operator==(const OnboardingCard&, const OnboardingCard&) = default;
};

/// The first run: what Karvello does and does not do, the language, and the first scan or none. Main thread only.
class OnboardingScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the window")
    Q_PROPERTY(QString eyebrow READ eyebrow NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString body READ body NOTIFY changed FINAL)
    Q_PROPERTY(QString primaryText READ primaryText NOTIFY changed FINAL)
    Q_PROPERTY(QString primaryIconName READ primaryIconName NOTIFY changed FINAL)
    Q_PROPERTY(bool isPrimaryEnabled READ isPrimaryEnabled NOTIFY changed FINAL)
    Q_PROPERTY(QString secondaryText READ secondaryText NOTIFY changed FINAL)
    Q_PROPERTY(QString skipCaption READ skipCaption NOTIFY changed FINAL)
    /// Why access was not granted; empty for no reason.
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed FINAL)
    /// What went another way than chosen; empty for nothing.
    Q_PROPERTY(QString noticeTitle READ noticeTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString noticeText READ noticeText NOTIFY changed FINAL)
    Q_PROPERTY(QString closeText READ closeText NOTIFY changed FINAL)
    Q_PROPERTY(QString languageTitle READ languageTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString languageText READ languageText NOTIFY changed FINAL)
    /// The names of the languages, each in itself.
    Q_PROPERTY(QStringList languages READ languages CONSTANT FINAL)
    Q_PROPERTY(int languageIndex READ languageIndex NOTIFY changed FINAL)
    /// A list of `OnboardingCard`: scan first, access, safety.
    Q_PROPERTY(QVariantList cards READ cards NOTIFY changed FINAL)
    /// What it stands for, in a few words.
    Q_PROPERTY(QString principles READ principles NOTIFY changed FINAL)

public:
    /// `dashboard` outlives the model.
    explicit OnboardingScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString eyebrow() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString body() const;
    [[nodiscard]] QString primaryText() const;
    [[nodiscard]] QString primaryIconName() const;
    [[nodiscard]] bool isPrimaryEnabled() const;
    [[nodiscard]] QString secondaryText() const;
    [[nodiscard]] QString skipCaption() const;
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] QString noticeTitle() const;
    [[nodiscard]] QString noticeText() const;
    [[nodiscard]] QString closeText() const;
    [[nodiscard]] QString languageTitle() const;
    [[nodiscard]] QString languageText() const;
    [[nodiscard]] QStringList languages() const;
    [[nodiscard]] int languageIndex() const;
    [[nodiscard]] QVariantList cards() const;
    [[nodiscard]] QString principles() const;

    /// Holds at once, unless it cannot be stored, which a notice says then.
    Q_INVOKABLE void chooseLanguage(int index);
    Q_INVOKABLE void dismissNotice() { m_dashboard.dismissNotice(); }
    /// Scans, after it has asked for the home folder where it must. The first run is over once a scan may begin.
    Q_INVOKABLE void begin();
    /// The first run is over, and nothing is scanned.
    Q_INVOKABLE void setUpLater();

Q_SIGNALS:
    void changed();

private:
    void completeAndScan();

    MacCleanerDashboardModel& m_dashboard;
};

} // namespace KarvelloUI
