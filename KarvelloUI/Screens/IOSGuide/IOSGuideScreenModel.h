#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/IOSGuide/IOSGuideStepList.h"
#include "KarvelloUI/Stores/IOSStorageChecklistStore.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// The checklist of what people can do by hand on their iPhone. It stores how far they say to be and does nothing else.
/// Main thread only.
class IOSGuideScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window has it.")
    Q_PROPERTY(QString title READ title NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString notice READ notice NOTIFY wordsChanged FINAL)
    /// What is stored, and what is not.
    Q_PROPERTY(QString storageNote READ storageNote NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString resetTitle READ resetTitle NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString backTitle READ backTitle NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString backName READ backName NOTIFY backChanged FINAL)
    /// Of { value, text }.
    Q_PROPERTY(QVariantList statuses READ statuses NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QAbstractItemModel* steps READ steps CONSTANT FINAL)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged FINAL)
    /// Between 0 and 1.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
    Q_PROPERTY(bool canReset READ canReset NOTIFY progressChanged FINAL)
    /// Empty unless the last choice could not be stored.
    Q_PROPERTY(QString failureText READ failureText NOTIFY failureChanged FINAL)

public:
    /// `dashboard` must outlive the model.
    explicit IOSGuideScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString notice() const;
    [[nodiscard]] QString storageNote() const;
    [[nodiscard]] QString resetTitle() const;
    [[nodiscard]] QString backTitle() const;
    [[nodiscard]] QString backName() const;
    [[nodiscard]] QVariantList statuses() const;
    [[nodiscard]] QAbstractItemModel* steps() { return &m_steps; }
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] double progress() const;
    [[nodiscard]] bool canReset() const { return m_reviewedCount > 0; }
    [[nodiscard]] QString failureText() const;

    /// Both are raw values; nothing happens for others.
    Q_INVOKABLE void setStatus(const QString& step, const QString& status);
    /// No step is reviewed then.
    Q_INVOKABLE void reset();
    /// To the section that led here.
    Q_INVOKABLE void goBack();

Q_SIGNALS:
    void wordsChanged();
    void backChanged();
    void progressChanged();
    void failureChanged();

private:
    void refresh();
    void noteStored(bool isStored);
    void followSection();

    MacCleanerDashboardModel& m_dashboard;
    IOSStorageChecklistStore m_store;
    IOSGuideStepList m_steps;
    int m_reviewedCount = 0;
    bool m_hasFailed = false;
    MacDashboardSection m_lastSection = MacDashboardSection::dashboard;
};

} // namespace KarvelloUI
