#pragma once

#include "KarvelloUI/Screens/Insights/InsightListModel.h"
#include "KarvelloUI/Screens/Insights/InsightReviewScreenModel.h"

#include <QAbstractItemModel>

namespace KarvelloUI {

/// The list of large files, of downloads, or of what the installer review found. The last one is only to look at.
// The base is named in full for the tool that writes down the types.
class InsightListScreenModel final : public KarvelloUI::InsightReviewScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A screen has it.")
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)

public:
    /// `section` is not that of the duplicates, which have a screen of their own.
    InsightListScreenModel(
        MacCleanerDashboardModel& dashboard, MacInsightFileSection section, QObject* parent = nullptr);

    [[nodiscard]] int count() const override;
    [[nodiscard]] QAbstractItemModel* rows() { return &m_rows; }

    /// Nothing happens to a row that has gone or cannot be selected, or while the session works.
    Q_INVOKABLE void toggle(int key);
    Q_INVOKABLE void setOpen(int key, bool isOpen) { m_rows.setOpen(key, isOpen); }
    Q_INVOKABLE void reveal(int key);

protected:
    [[nodiscard]] std::string resultsLine() const override;
    [[nodiscard]] std::string noticeLine() const override;
    [[nodiscard]] bool isNoticeOnHeldBackFiles() const override { return hasFooter(); }

private:
    void showFiles();
    void showSelection();
    [[nodiscard]] std::vector<InsightListModel::Texts> textsOfRows(
        const std::vector<InsightListModel::Row>& rows) const;
    [[nodiscard]] InsightListModel::Texts textsOf(const InsightListModel::Row& row, const DashboardWords& copy) const;

    InsightListModel m_rows;
};

} // namespace KarvelloUI
