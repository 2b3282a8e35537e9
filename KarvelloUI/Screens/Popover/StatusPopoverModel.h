#pragma once

#include "KarvelloUI/Dashboard/DashboardPreferences.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusModel.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStrings.h"
#include "KarvelloUI/Screens/Popover/PopoverMetric.h"
#include "KarvelloUI/Screens/Popover/TriageListModel.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <qqml.h>

namespace KarvelloUI {

/// What the popover of the status item shows: the machine, and the way to the screens that deal with it. It acts on
/// nothing itself. Main thread only.
class StatusPopoverModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString brand READ brand NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString updatedText READ updatedText NOTIFY textsChanged FINAL)
    Q_PROPERTY(KarvelloUI::PopoverMetric storage READ storage NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString storageDetail READ storageDetail NOTIFY textsChanged FINAL)
    Q_PROPERTY(KarvelloUI::PopoverMetric cpu READ cpu NOTIFY textsChanged FINAL)
    Q_PROPERTY(KarvelloUI::PopoverMetric memory READ memory NOTIFY textsChanged FINAL)
    Q_PROPERTY(KarvelloUI::PopoverMetric thermal READ thermal NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString triageTitle READ triageTitle NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString triageBody READ triageBody NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString triageEmptyTitle READ triageEmptyTitle NOTIFY textsChanged FINAL)
    Q_PROPERTY(bool isCalm READ isCalm NOTIFY textsChanged FINAL)
    Q_PROPERTY(QAbstractItemModel* triage READ triage CONSTANT FINAL)
    Q_PROPERTY(QString openDashboardTitle READ openDashboardTitle NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString quitTitle READ quitTitle NOTIFY textsChanged FINAL)

public:
    /// `preferences` outlives this model; `status` may go before it, and the last figures stay on show then.
    StatusPopoverModel(
        KarvelloMenuBarStatusModel& status, DashboardPreferences& preferences, QObject* parent = nullptr);
    ~StatusPopoverModel() override;

    [[nodiscard]] QString brand() const { return m_texts.brand; }
    [[nodiscard]] QString updatedText() const { return m_texts.updated; }
    [[nodiscard]] PopoverMetric storage() const { return m_texts.storage; }
    [[nodiscard]] QString storageDetail() const { return m_texts.storageDetail; }
    [[nodiscard]] PopoverMetric cpu() const { return m_texts.cpu; }
    [[nodiscard]] PopoverMetric memory() const { return m_texts.memory; }
    [[nodiscard]] PopoverMetric thermal() const { return m_texts.thermal; }
    [[nodiscard]] QString triageTitle() const { return m_texts.triageTitle; }
    [[nodiscard]] QString triageBody() const { return m_texts.triageBody; }
    [[nodiscard]] QString triageEmptyTitle() const { return m_texts.triageEmptyTitle; }
    /// Nothing asks for a look.
    [[nodiscard]] bool isCalm() const { return m_texts.isCalm; }
    [[nodiscard]] QAbstractItemModel* triage() { return &m_triage; }
    [[nodiscard]] QString openDashboardTitle() const { return m_texts.openDashboard; }
    [[nodiscard]] QString quitTitle() const { return m_texts.quit; }

    /// The popover appears or disappears: while it is there, the machine is looked at more often.
    Q_INVOKABLE void setVisible(bool isVisible);
    [[nodiscard]] bool isVisible() const { return m_isVisible; }

    Q_INVOKABLE void openDashboard();
    /// To the screen that a row of the triage leads to; nothing for a row that there is not.
    Q_INVOKABLE void review(int row);
    Q_INVOKABLE void quit() { Q_EMIT quitRequested(); }
    Q_INVOKABLE void close() { Q_EMIT closeRequested(); }

Q_SIGNALS:
    void textsChanged();
    /// The raw value of a `KarvelloDashboardLaunchDestination`.
    void openDashboardRequested(const QString& destination);
    void quitRequested();
    void closeRequested();

private:
    struct Texts {
        QString brand = {};
        QString updated = {};
        PopoverMetric storage = {};
        QString storageDetail = {};
        PopoverMetric cpu = {};
        PopoverMetric memory = {};
        PopoverMetric thermal = {};
        QString triageTitle = {};
        QString triageBody = {};
        QString triageEmptyTitle = {};
        QString openDashboard = {};
        QString quit = {};
        bool isCalm = true;

        friend bool operator==(const Texts&, const Texts&) = default;
    };

    void refresh();
    [[nodiscard]] Texts texts(const KarvelloMenuBarStrings& strings) const;
    [[nodiscard]] PopoverLevel::Value levelOf(KarvelloMenuBarReminder::Kind kind) const;

    QPointer<KarvelloMenuBarStatusModel> m_status;
    DashboardPreferences& m_preferences;
    Texts m_texts;
    TriageListModel m_triage;
    bool m_isVisible = false;
};

} // namespace KarvelloUI
