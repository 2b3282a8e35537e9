#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Exports/ExportMenuModel.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// What the screens over the insights session have in common: whether there is something to show, what stands in its place
/// while there is not, what the session has to tell, and the scan. `dashboard` outlives it. Main thread only.
class InsightScreenModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A screen has it.")
    Q_PROPERTY(Content content READ content NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY stateChanged FINAL)
    /// How many items the screen lists.
    Q_PROPERTY(int count READ count NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool isCleaning READ isCleaning NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString scanText READ scanText NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool canScan READ canScan NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString scanDisabledReason READ scanDisabledReason NOTIFY stateChanged FINAL)
    /// What stands in the place of the results.
    Q_PROPERTY(QString blankIconName READ blankIconName NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString blankTitle READ blankTitle NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString blankText READ blankText NOTIFY stateChanged FINAL)
    /// Nothing where there is nothing to do about it.
    Q_PROPERTY(QString blankActionText READ blankActionText NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool isBlankGoodNews READ isBlankGoodNews NOTIFY stateChanged FINAL)
    /// The work that is under way.
    Q_PROPERTY(QString workTitle READ workTitle NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString workHint READ workHint NOTIFY stateChanged FINAL)
    /// Where a scan is, and how far: below 0 while that is not known.
    Q_PROPERTY(QString visiting READ visiting NOTIFY progressChanged FINAL)
    Q_PROPERTY(qreal progress READ progress NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged FINAL)
    /// Each is { value, label }.
    Q_PROPERTY(QVariantList figures READ figures NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString cancelText READ cancelText NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool isCancelling READ isCancelling NOTIFY stateChanged FINAL)
    Q_PROPERTY(Banner banner READ banner NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString bannerTitle READ bannerTitle NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString bannerText READ bannerText NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString bannerActionText READ bannerActionText NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString bannerCloseName READ bannerCloseName NOTIFY stateChanged FINAL)
    /// What to know about the results; nothing where there are none.
    Q_PROPERTY(QString noticeText READ noticeText NOTIFY stateChanged FINAL)
    Q_PROPERTY(KarvelloUI::ExportMenuModel* exports READ exports CONSTANT FINAL)

public:
    // QML reads only enumerators with a capital letter, and four bytes of a property that has one.
    // NOLINTBEGIN(readability-identifier-naming,performance-enum-size)
    enum Content : int {
        /// Nothing was looked for yet.
        Idle,
        /// Nothing may be looked for.
        Denied,
        Scanning,
        /// Nothing was found.
        Nothing,
        Results,
    };
    Q_ENUM(Content)
    /// The more severe of what there is to tell.
    enum Banner : int { NoBanner, FailedBanner, DoneBanner };
    Q_ENUM(Banner)
    // NOLINTEND(readability-identifier-naming,performance-enum-size)

    [[nodiscard]] Content content() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] virtual int count() const = 0;
    [[nodiscard]] bool isCleaning() const { return insights().phase() == MacInsightsViewModel::Phase::cleaning; }
    [[nodiscard]] QString scanText() const;
    [[nodiscard]] bool canScan() const;
    [[nodiscard]] QString scanDisabledReason() const;
    [[nodiscard]] QString blankIconName() const;
    [[nodiscard]] QString blankTitle() const;
    [[nodiscard]] QString blankText() const;
    [[nodiscard]] QString blankActionText() const;
    [[nodiscard]] bool isBlankGoodNews() const;
    [[nodiscard]] QString workTitle() const;
    [[nodiscard]] QString workHint() const;
    [[nodiscard]] QString visiting() const;
    [[nodiscard]] qreal progress() const;
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] QVariantList figures() const;
    [[nodiscard]] QString cancelText() const;
    [[nodiscard]] bool isCancelling() const { return m_isCancelling; }
    [[nodiscard]] Banner banner() const;
    [[nodiscard]] QString bannerTitle() const;
    [[nodiscard]] QString bannerText() const;
    [[nodiscard]] QString bannerActionText() const;
    [[nodiscard]] QString bannerCloseName() const;
    [[nodiscard]] QString noticeText() const;
    [[nodiscard]] ExportMenuModel* exports() { return &m_exports; }

    /// Nothing happens where no scan can start.
    Q_INVOKABLE void scan();
    /// What the button in the place of the results does: it scans, or asks for the home folder and scans then.
    Q_INVOKABLE void runBlankAction();
    Q_INVOKABLE void cancel();
    /// To where what was moved can be restored.
    Q_INVOKABLE void runBannerAction();
    Q_INVOKABLE void closeBanner();

Q_SIGNALS:
    /// Any of the above, the language as well.
    void stateChanged();
    void progressChanged();

protected:
    InsightScreenModel(MacCleanerDashboardModel& dashboard, MacDashboardSection section, QObject* parent);

    [[nodiscard]] MacCleanerDashboardModel& dashboard() const { return m_dashboard; }
    [[nodiscard]] MacInsightsViewModel& insights() const { return m_dashboard.insights(); }
    [[nodiscard]] DashboardWords words() const { return m_dashboard.words(); }
    /// A path with "~" for the home folder.
    [[nodiscard]] QString shownPath(const Platform::FileURL& url) const;

    /// The line below the title, with results and without.
    [[nodiscard]] virtual std::string resultsLine() const = 0;
    [[nodiscard]] virtual std::string purposeLine() const = 0;
    [[nodiscard]] virtual std::string nothingFoundText() const = 0;
    /// What to know about these results; nothing if there is nothing.
    [[nodiscard]] virtual std::string noticeLine() const = 0;
    /// Whether what was skipped says the same in more words.
    [[nodiscard]] virtual bool isNoticeOnHeldBackFiles() const { return false; }

private:
    [[nodiscard]] bool isDone() const;
    /// All folders were walked; what is left is to compare files.
    [[nodiscard]] bool isComparing() const;

    MacCleanerDashboardModel& m_dashboard;
    MacDashboardSection m_section;
    ExportMenuModel m_exports;
    bool m_isCancelling = false;
    bool m_isBannerClosed = false;
};

} // namespace KarvelloUI
