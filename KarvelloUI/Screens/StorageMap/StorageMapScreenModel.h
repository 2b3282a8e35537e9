#pragma once

#include "KarvelloUI/Design/Palette.h"
#include "KarvelloUI/Design/StorageTreemapCell.h"
#include "KarvelloUI/Screens/Insights/InsightScreenModel.h"
#include "KarvelloUI/Screens/StorageMap/StorageMapArea.h"

#include <QList>
#include <QString>
#include <QVariantList>
#include <vector>

namespace KarvelloUI {

/// The size map: the same folders as cells and as rows of a table, with one selection for both.
// The base is named in full for the tool that writes down the types.
class StorageMapScreenModel final : public KarvelloUI::InsightScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A screen has it.")
    /// `StorageMapArea`s, the largest first: all of them, and those that have a cell.
    Q_PROPERTY(QVariantList areas READ areas NOTIFY mapChanged FINAL)
    Q_PROPERTY(QVariantList cells READ cells NOTIFY mapChanged FINAL)
    Q_PROPERTY(QVariantList legend READ legend NOTIFY mapChanged FINAL)
    Q_PROPERTY(QString legendText READ legendText NOTIFY mapChanged FINAL)
    Q_PROPERTY(QString tableTitle READ tableTitle NOTIFY mapChanged FINAL)
    Q_PROPERTY(QString tableSummary READ tableSummary NOTIFY mapChanged FINAL)
    /// Stands where an area is told of, while there is none to tell of.
    Q_PROPERTY(QString detailHint READ detailHint NOTIFY mapChanged FINAL)
    Q_PROPERTY(QString revealText READ revealText NOTIFY mapChanged FINAL)
    Q_PROPERTY(QString largeFilesText READ largeFilesText NOTIFY mapChanged FINAL)
    /// The id of an area, or -1.
    Q_PROPERTY(int selectedId READ selectedId NOTIFY selectedIdChanged FINAL)
    /// Which colours the map has: those of the scheme on show.
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY mapChanged FINAL)

public:
    explicit StorageMapScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] int count() const override;
    [[nodiscard]] const QVariantList& areas() const { return m_areas; }
    [[nodiscard]] const QVariantList& cells() const { return m_cells; }
    [[nodiscard]] QVariantList legend() const;
    [[nodiscard]] QString legendText() const;
    [[nodiscard]] QString tableTitle() const;
    [[nodiscard]] QString tableSummary() const;
    [[nodiscard]] QString detailHint() const;
    [[nodiscard]] QString revealText() const;
    [[nodiscard]] QString largeFilesText() const;
    [[nodiscard]] int selectedId() const { return m_selectedId; }
    [[nodiscard]] bool isDark() const { return m_isDark; }
    void setDark(bool isDark);

    /// Anything that is no id takes the selection away.
    Q_INVOKABLE void select(int id);
    /// Shows the folder in the file manager.
    Q_INVOKABLE void reveal(int id);
    Q_INVOKABLE void showLargeFiles();

Q_SIGNALS:
    void mapChanged();
    void selectedIdChanged();

protected:
    [[nodiscard]] std::string resultsLine() const override;
    [[nodiscard]] std::string purposeLine() const override;
    [[nodiscard]] std::string nothingFoundText() const override;
    [[nodiscard]] std::string noticeLine() const override;

private:
    void layOut();
    void describe();
    [[nodiscard]] StorageMapArea areaOf(int id, const DashboardWords& copy) const;
    [[nodiscard]] const KarvelloDesign::Palette& palette() const;

    /// Computed once for a report.
    std::vector<StorageTreemapCell> m_layout;
    std::int64_t m_maximumBytes = 0;
    QVariantList m_areas;
    QVariantList m_cells;
    int m_selectedId = -1;
    /// What is selected, to find it in the next report.
    std::string m_selectedPath;
    bool m_isDark = false;
};

} // namespace KarvelloUI
