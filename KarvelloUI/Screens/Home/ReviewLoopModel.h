#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Home/ShownRefresh.h"
#include "KarvelloUI/Stores/CleanupReviewCadence.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// The panel of the review loop: how often to be reminded of a review, of what, and when the last one was. It reminds and
/// leads to the review; it neither scans nor selects. Main thread only.
class ReviewLoopModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the screens.")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(QString statusText READ statusText NOTIFY changed FINAL)
    Q_PROPERTY(bool isDue READ isDue NOTIFY changed FINAL)
    /// Empty before the first review.
    Q_PROPERTY(QString lastReviewText READ lastReviewText NOTIFY changed FINAL)
    Q_PROPERTY(QString cadenceTitle READ cadenceTitle NOTIFY changed FINAL)
    /// Of { value, text }, like `profiles`.
    Q_PROPERTY(QVariantList cadences READ cadences NOTIFY changed FINAL)
    Q_PROPERTY(QString cadence READ cadence NOTIFY changed FINAL)
    Q_PROPERTY(QString profileTitle READ profileTitle NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList profiles READ profiles NOTIFY changed FINAL)
    /// A place in `profiles`.
    Q_PROPERTY(int profileIndex READ profileIndex NOTIFY changed FINAL)
    Q_PROPERTY(QString profileSummary READ profileSummary NOTIFY changed FINAL)
    Q_PROPERTY(QString guardrail READ guardrail NOTIFY changed FINAL)
    Q_PROPERTY(QString markReviewedTitle READ markReviewedTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString openReviewTitle READ openReviewTitle NOTIFY changed FINAL)
    /// Empty unless the last choice could not be stored.
    Q_PROPERTY(QString failureText READ failureText NOTIFY changed FINAL)

public:
    /// `dashboard` must outlive the model.
    explicit ReviewLoopModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const { return m_state.title; }
    [[nodiscard]] QString subtitle() const { return m_state.subtitle; }
    [[nodiscard]] QString statusText() const { return m_state.statusText; }
    [[nodiscard]] bool isDue() const { return m_state.isDue; }
    [[nodiscard]] QString lastReviewText() const { return m_state.lastReviewText; }
    [[nodiscard]] QString cadenceTitle() const { return m_state.cadenceTitle; }
    [[nodiscard]] QVariantList cadences() const { return m_state.cadences; }
    [[nodiscard]] QString cadence() const { return m_state.cadence; }
    [[nodiscard]] QString profileTitle() const { return m_state.profileTitle; }
    [[nodiscard]] QVariantList profiles() const { return m_state.profiles; }
    [[nodiscard]] int profileIndex() const { return m_state.profileIndex; }
    [[nodiscard]] QString profileSummary() const { return m_state.profileSummary; }
    [[nodiscard]] QString guardrail() const { return m_state.guardrail; }
    [[nodiscard]] QString markReviewedTitle() const { return m_state.markReviewedTitle; }
    [[nodiscard]] QString openReviewTitle() const { return m_state.openReviewTitle; }
    [[nodiscard]] QString failureText() const { return m_state.failureText; }

    /// The raw values of `cadences` and `profiles`; others change nothing.
    Q_INVOKABLE void chooseCadence(const QString& rawValue);
    Q_INVOKABLE void chooseProfile(const QString& rawValue);
    Q_INVOKABLE void markReviewed();
    Q_INVOKABLE void openReview();

Q_SIGNALS:
    void changed();

private:
    struct State {
        QString title;
        QString subtitle;
        QString statusText;
        bool isDue = false;
        QString lastReviewText;
        QString cadenceTitle;
        QVariantList cadences;
        QString cadence;
        QString profileTitle;
        QVariantList profiles;
        int profileIndex = 0;
        QString profileSummary;
        QString guardrail;
        QString markReviewedTitle;
        QString openReviewTitle;
        QString failureText;

        friend bool operator==(const State&, const State&) = default;
    };

    [[nodiscard]] CleanupReviewCadenceStatus status() const;
    [[nodiscard]] State made() const;
    void refresh();
    void noteStored(bool isStored);

    MacCleanerDashboardModel& m_dashboard;
    bool m_hasFailed = false;
    CleanupReviewCadenceStatus m_status;
    State m_state;
    ShownRefresh m_refresh;
};

} // namespace KarvelloUI
