#pragma once

#include "KarvelloUI/Screens/Settings/AccessGuidanceModel.h"
#include "KarvelloUI/Screens/Settings/SettingsAppearanceModel.h"
#include "KarvelloUI/Screens/Settings/SettingsFoldersModel.h"
#include "KarvelloUI/Screens/Settings/SettingsIgnoreModel.h"
#include "KarvelloUI/Screens/Settings/SettingsScanModel.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <cstdint>

namespace KarvelloUI {

/// Keys, and what they do.
struct SettingsShortcut {
    Q_GADGET
    Q_PROPERTY(QString keys MEMBER keys CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)

public:
    QString keys = {};
    QString text = {};

    friend bool operator==(const SettingsShortcut&, const SettingsShortcut&) = default;
};

/// What the user decides for the application as a whole, in groups, and what there is to know about it. Main thread only.
class SettingsScreenModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the window")
    Q_PROPERTY(QString title READ title NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY wordsChanged FINAL)
    Q_PROPERTY(KarvelloUI::SettingsAppearanceModel* appearance READ appearance CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::SettingsScanModel* scan READ scan CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::SettingsIgnoreModel* ignoreList READ ignoreList CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::SettingsFoldersModel* customFolders READ customFolders CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::AccessGuidanceModel* accessGuidance READ accessGuidance CONSTANT FINAL)
    Q_PROPERTY(QString shortcutsTitle READ shortcutsTitle NOTIFY wordsChanged FINAL)
    /// A list of `SettingsShortcut`.
    Q_PROPERTY(QVariantList shortcuts READ shortcuts NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString aboutTitle READ aboutTitle NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString applicationName READ applicationName NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString applicationText READ applicationText NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString versionText READ versionText NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString iosGuideTitle READ iosGuideTitle NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString iosGuideText READ iosGuideText NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString iosGuideButton READ iosGuideButton NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString closeText READ closeText NOTIFY wordsChanged FINAL)
    /// Whose failure is told: one at a time, the worst first.
    Q_PROPERTY(FailingGroup failingGroup READ failingGroup NOTIFY failingGroupChanged FINAL)

public:
    // QML reads only enumerators with a capital letter.
    // NOLINTNEXTLINE(readability-identifier-naming)
    enum FailingGroup : std::uint8_t { NoGroup, ScanGroup, IgnoreListGroup, CustomFoldersGroup };
    Q_ENUM(FailingGroup)

    /// `dashboard` outlives the model.
    explicit SettingsScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] SettingsAppearanceModel* appearance() { return &m_appearance; }
    [[nodiscard]] SettingsScanModel* scan() { return &m_scan; }
    [[nodiscard]] SettingsIgnoreModel* ignoreList() { return &m_ignoreList; }
    [[nodiscard]] SettingsFoldersModel* customFolders() { return &m_customFolders; }
    [[nodiscard]] AccessGuidanceModel* accessGuidance() { return &m_accessGuidance; }
    [[nodiscard]] QString shortcutsTitle() const;
    [[nodiscard]] QVariantList shortcuts() const;
    [[nodiscard]] QString aboutTitle() const;
    [[nodiscard]] QString applicationName() const;
    [[nodiscard]] QString applicationText() const;
    [[nodiscard]] QString versionText() const;
    [[nodiscard]] QString iosGuideTitle() const;
    [[nodiscard]] QString iosGuideText() const;
    [[nodiscard]] QString iosGuideButton() const;
    [[nodiscard]] QString closeText() const;
    [[nodiscard]] FailingGroup failingGroup() const;

    Q_INVOKABLE void openIOSGuide();

Q_SIGNALS:
    void wordsChanged();
    void failingGroupChanged();

private:
    MacCleanerDashboardModel& m_dashboard;
    SettingsAppearanceModel m_appearance;
    SettingsScanModel m_scan;
    SettingsIgnoreModel m_ignoreList;
    SettingsFoldersModel m_customFolders;
    AccessGuidanceModel m_accessGuidance;
};

} // namespace KarvelloUI
