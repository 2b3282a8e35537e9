#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// A section in the sidebar.
struct SidebarItem {
    Q_GADGET
    /// The section's raw value.
    Q_PROPERTY(QString section MEMBER section CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString iconName MEMBER iconName CONSTANT FINAL)
    /// How much there is to review; empty for nothing.
    Q_PROPERTY(QString count MEMBER count CONSTANT FINAL)

public:
    QString section = {};
    QString title = {};
    QString iconName = {};
    QString count = {};

    friend bool operator==(const SidebarItem&, const SidebarItem&) = default;
};

/// The sections in their three groups, and the disk at their foot. Main thread only.
class SidebarModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window's model")
    /// Lists of `SidebarItem`.
    Q_PROPERTY(QVariantList primaryItems READ primaryItems NOTIFY itemsChanged FINAL)
    Q_PROPERTY(QVariantList advancedItems READ advancedItems NOTIFY itemsChanged FINAL)
    Q_PROPERTY(QVariantList supportItems READ supportItems NOTIFY itemsChanged FINAL)
    /// Names of the groups; the first is spoken, not shown.
    Q_PROPERTY(QString primaryTitle READ primaryTitle NOTIFY itemsChanged FINAL)
    Q_PROPERTY(QString advancedTitle READ advancedTitle NOTIFY itemsChanged FINAL)
    Q_PROPERTY(QString supportTitle READ supportTitle NOTIFY itemsChanged FINAL)
    Q_PROPERTY(QString selectedSection READ selectedSection NOTIFY selectedSectionChanged FINAL)
    /// Where Tab stops: the selected section, or while that is none of these, the one before it.
    Q_PROPERTY(QString stopSection READ stopSection NOTIFY advancedShownChanged FINAL)
    /// The group that folds away shows its sections.
    Q_PROPERTY(bool isAdvancedShown READ isAdvancedShown NOTIFY advancedShownChanged FINAL)
    /// It holds the selection, and cannot be folded away.
    Q_PROPERTY(bool isAdvancedHeld READ isAdvancedHeld NOTIFY selectedSectionChanged FINAL)
    /// What is said of both.
    Q_PROPERTY(QString advancedText READ advancedText NOTIFY advancedShownChanged FINAL)
    Q_PROPERTY(QString storageTitle READ storageTitle NOTIFY itemsChanged FINAL)
    Q_PROPERTY(QString freeText READ freeText NOTIFY diskChanged FINAL)
    Q_PROPERTY(QString usedText READ usedText NOTIFY diskChanged FINAL)
    /// From 0 to 1; below 0 where the disk is not known.
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY diskChanged FINAL)

public:
    /// `dashboard` outlives the model.
    explicit SidebarModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QVariantList primaryItems() const { return m_primary; }
    [[nodiscard]] QVariantList advancedItems() const { return m_advanced; }
    [[nodiscard]] QVariantList supportItems() const { return m_support; }
    [[nodiscard]] QString primaryTitle() const;
    [[nodiscard]] QString advancedTitle() const;
    [[nodiscard]] QString supportTitle() const;
    [[nodiscard]] QString selectedSection() const { return m_dashboard.selectedSectionText(); }
    [[nodiscard]] QString stopSection() const;
    [[nodiscard]] bool isAdvancedShown() const;
    [[nodiscard]] bool isAdvancedHeld() const;
    [[nodiscard]] QString advancedText() const;
    [[nodiscard]] QString storageTitle() const;
    [[nodiscard]] QString freeText() const;
    [[nodiscard]] QString usedText() const;
    [[nodiscard]] double usedFraction() const;

    Q_INVOKABLE void select(const QString& section) { m_dashboard.selectSectionText(section); }
    /// The section at this place of the whole sidebar, from 1; nothing happens for a place without one. A group that is
    /// folded away counts.
    Q_INVOKABLE void selectAt(int place);
    /// The section before or after the stop of Tab, of those on show; -2 and 2 for the first and the last.
    Q_INVOKABLE void selectStep(int step);
    Q_INVOKABLE void setAdvancedShown(bool isShown) { m_dashboard.preferences().setAdvancedExpanded(isShown); }

Q_SIGNALS:
    void itemsChanged();
    void selectedSectionChanged();
    void advancedShownChanged();
    void diskChanged();

private:
    void refresh();
    [[nodiscard]] MacDashboardSection stop() const;

    MacCleanerDashboardModel& m_dashboard;
    /// The last one of the groups that was selected.
    MacDashboardSection m_lastOfGroups = MacDashboardSection::dashboard;
    QVariantList m_primary;
    QVariantList m_advanced;
    QVariantList m_support;
};

} // namespace KarvelloUI
