#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <cstdint>
#include <set>
#include <string>
#include <unordered_set>

namespace KarvelloUI {

/// What of one category is asked about.
struct ConfirmationLine {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString count MEMBER count CONSTANT FINAL)
    Q_PROPERTY(QString size MEMBER size CONSTANT FINAL)

public:
    QString name = {};
    QString count = {};
    QString size = {};
};

/// The question that stands between the user and each thing that the dashboard does to the machine: a clean of the review,
/// a clean of an insight section, a request to quit. Its figures are those of the request for as long as it is open; only
/// its language follows the user. A question about a selection that has become another is withdrawn. Main thread only.
class ConfirmationModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY openChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString message READ message NOTIFY contentChanged FINAL)
    /// The head over pills and lines; empty without them.
    Q_PROPERTY(QString previewTitle READ previewTitle NOTIFY contentChanged FINAL)
    /// List of `ConfidencePill`; the next of `ConfirmationLine`.
    Q_PROPERTY(QVariantList pills READ pills NOTIFY contentChanged FINAL)
    Q_PROPERTY(QVariantList lines READ lines NOTIFY contentChanged FINAL)
    /// "2 more categories"; empty where the lines are all.
    Q_PROPERTY(QString moreLines READ moreLines NOTIFY contentChanged FINAL)
    /// Of selected items that the list does not show; empty without them.
    Q_PROPERTY(QString hiddenItemsWarning READ hiddenItemsWarning NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString footnote READ footnote NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString acceptText READ acceptText NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString cancelText READ cancelText NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString iconName READ iconName NOTIFY contentChanged FINAL)

public:
    static constexpr int kMostLines = 5;

    /// `dashboard` outlives the model.
    explicit ConfirmationModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] bool isOpen() const { return m_kind != Kind::none; }
    [[nodiscard]] const QString& title() const { return m_title; }
    [[nodiscard]] const QString& message() const { return m_message; }
    [[nodiscard]] const QString& previewTitle() const { return m_previewTitle; }
    [[nodiscard]] const QVariantList& pills() const { return m_pills; }
    [[nodiscard]] const QVariantList& lines() const { return m_lines; }
    [[nodiscard]] const QString& moreLines() const { return m_moreLines; }
    [[nodiscard]] const QString& hiddenItemsWarning() const { return m_hiddenItemsWarning; }
    [[nodiscard]] const QString& footnote() const { return m_footnote; }
    [[nodiscard]] const QString& acceptText() const { return m_acceptText; }
    [[nodiscard]] const QString& cancelText() const { return m_cancelText; }
    [[nodiscard]] const QString& iconName() const { return m_iconName; }

    /// Does what was asked about. Nothing happens without a question.
    Q_INVOKABLE void accept();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void openChanged();
    void contentChanged();

private:
    enum class Kind : std::uint8_t { none, clean, insightClean, quit };

    [[nodiscard]] Kind pendingKind() const;
    void takeUp();
    void withdrawIfSelectionIsOther();
    [[nodiscard]] std::unordered_set<std::string> selectedInsightIDs() const;
    void describe();
    void describeClean(const DashboardWords& words);
    void describeInsightClean(const DashboardWords& words);
    void describeQuit(const DashboardWords& words);

    MacCleanerDashboardModel& m_dashboard;
    Kind m_kind = Kind::none;
    /// What was selected when the question was asked.
    std::unordered_set<std::string> m_insightIDs;
    std::set<CleanerCore::ResourceReliefCandidateID> m_applicationIDs;

    QString m_title;
    QString m_message;
    QString m_previewTitle;
    QVariantList m_pills;
    QVariantList m_lines;
    QString m_moreLines;
    QString m_hiddenItemsWarning;
    QString m_footnote;
    QString m_acceptText;
    QString m_cancelText;
    QString m_iconName;
};

} // namespace KarvelloUI
