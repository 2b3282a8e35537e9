#pragma once

#include "CleanerCore/Cleaning/CleanupStorageImpactReport.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Home/RowList.h"
#include "KarvelloUI/Screens/Home/ShownRefresh.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>
#include <cstdint>

namespace KarvelloUI {

/// One bar of the report.
struct ImpactBar {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(bool isPending READ isPending FINAL)
    Q_PROPERTY(bool isRecovered READ isRecovered FINAL)

public:
    enum Kind : std::uint8_t {
        /// What was expected, or is left of it.
        plain,
        /// In the Trash: not free yet.
        pending,
        /// Free again.
        recovered,
    };

    QString label = {};
    QString value = {};
    /// Of what was expected, 0 to 1.
    double fraction = 0;
    Kind kind = plain;

    [[nodiscard]] bool isPending() const { return kind == pending; }
    [[nodiscard]] bool isRecovered() const { return kind == recovered; }

    friend bool operator==(const ImpactBar&, const ImpactBar&) = default;
};

/// What the last clean was expected to do beside what it did. Moved bytes never count as recovered ones.
/// Main thread only.
class ImpactReportModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The screen has it.")
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(bool hasReport READ hasReport NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY changed FINAL)
    Q_PROPERTY(QString accessibleName READ accessibleName NOTIFY changed FINAL)
    /// Of `ImpactBar`.
    Q_PROPERTY(KarvelloUI::RowList* bars READ bars CONSTANT FINAL)

public:
    /// `dashboard` must outlive the model.
    explicit ImpactReportModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const { return m_texts.title; }
    [[nodiscard]] QString subtitle() const { return m_texts.subtitle; }
    [[nodiscard]] bool hasReport() const { return m_bars.count() > 0; }
    [[nodiscard]] QString emptyText() const { return m_texts.empty; }
    [[nodiscard]] QString summary() const { return m_texts.summary; }
    [[nodiscard]] QString accessibleName() const { return m_texts.accessibleName; }
    [[nodiscard]] RowList* bars() { return &m_bars; }

Q_SIGNALS:
    void changed();

private:
    struct Texts {
        QString title;
        QString subtitle = {};
        QString empty = {};
        QString summary = {};
        QString accessibleName = {};
    };

    void refresh();
    void showReport(const CleanerCore::CleanupStorageImpactReport& report, const DashboardWords& words);

    MacCleanerDashboardModel& m_dashboard;
    Texts m_texts;
    RowList m_bars;
    ShownRefresh m_refresh;
};

} // namespace KarvelloUI
