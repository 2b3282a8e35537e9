#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <array>

namespace KarvelloUI {

/// What the window says over and beside its screens: that access is missing, a failure to dismiss, a soft note. Main thread
/// only.
class WindowMessagesModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window's model")
    /// Nothing can be scanned as things are.
    Q_PROPERTY(bool isAccessMissing READ isAccessMissing NOTIFY accessChanged FINAL)
    /// That is asked for over the screen, unless the screen tells a failure of its own.
    Q_PROPERTY(bool asksForAccess READ asksForAccess NOTIFY accessChanged FINAL)
    Q_PROPERTY(QString accessTitle READ accessTitle NOTIFY accessChanged FINAL)
    /// Why a grant was lost, or what it is for.
    Q_PROPERTY(QString accessText READ accessText NOTIFY accessChanged FINAL)
    Q_PROPERTY(QString accessActionText READ accessActionText NOTIFY accessChanged FINAL)

    Q_PROPERTY(bool hasAlert READ hasAlert NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString alertText READ alertText NOTIFY alertChanged FINAL)
    Q_PROPERTY(QString okText READ okText NOTIFY wordsChanged FINAL)

    Q_PROPERTY(bool hasNotice READ hasNotice NOTIFY noticeChanged FINAL)
    Q_PROPERTY(QString noticeTitle READ noticeTitle NOTIFY noticeChanged FINAL)
    Q_PROPERTY(QString noticeText READ noticeText NOTIFY noticeChanged FINAL)
    Q_PROPERTY(QString closeText READ closeText NOTIFY wordsChanged FINAL)

public:
    /// `dashboard` outlives the model.
    explicit WindowMessagesModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] bool isAccessMissing() const { return !m_dashboard.hasHomeAccess(); }
    [[nodiscard]] bool asksForAccess() const;
    [[nodiscard]] QString accessTitle() const;
    [[nodiscard]] QString accessText() const;
    [[nodiscard]] QString accessActionText() const;
    /// On a screen that waits for access to scan, the scan begins then.
    Q_INVOKABLE void grantAccess();

    [[nodiscard]] bool hasAlert() const { return m_dashboard.alert().has_value(); }
    [[nodiscard]] QString alertTitle() const;
    [[nodiscard]] QString alertText() const;
    [[nodiscard]] QString okText() const;
    Q_INVOKABLE void dismissAlert() { m_dashboard.dismissAlert(); }

    [[nodiscard]] bool hasNotice() const { return m_dashboard.notice().has_value(); }
    [[nodiscard]] QString noticeTitle() const;
    [[nodiscard]] QString noticeText() const;
    [[nodiscard]] QString closeText() const;
    Q_INVOKABLE void dismissNotice() { m_dashboard.dismissNotice(); }

Q_SIGNALS:
    void accessChanged();
    void alertChanged();
    void noticeChanged();
    void wordsChanged();

private:
    /// What a screen of this section scans, if it does.
    void scanFor(MacDashboardSection section);
    [[nodiscard]] std::array<const PreferenceStore*, 3> storesOfTheSettings() const;

    MacCleanerDashboardModel& m_dashboard;
};

} // namespace KarvelloUI
