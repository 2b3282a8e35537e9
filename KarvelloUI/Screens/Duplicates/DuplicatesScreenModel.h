#pragma once

#include "KarvelloUI/Screens/Duplicates/DuplicateCardListModel.h"
#include "KarvelloUI/Screens/Insights/InsightReviewScreenModel.h"

#include <QAbstractItemModel>

namespace KarvelloUI {

/// Groups of duplicates, a card for each. All clicks go to the session, which never lets a keeper be selected.
// The base is named in full for the tool that writes down the types.
class DuplicatesScreenModel final : public KarvelloUI::InsightReviewScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A screen has it.")
    Q_PROPERTY(QAbstractItemModel* groups READ groups CONSTANT FINAL)
    Q_PROPERTY(QString selectExtrasText READ selectExtrasText NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString clearGroupText READ clearGroupText NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString keeperText READ keeperText NOTIFY stateChanged FINAL)

public:
    explicit DuplicatesScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] int count() const override;
    [[nodiscard]] QAbstractItemModel* groups() { return &m_groups; }
    [[nodiscard]] QString selectExtrasText() const;
    [[nodiscard]] QString clearGroupText() const;
    /// Why a keeper cannot be selected.
    [[nodiscard]] QString keeperText() const;

    /// A group is named by its row and its id; nothing happens if that row has gone, or while the session works.
    Q_INVOKABLE void toggleFile(int row, const QString& groupID, int file);
    /// All extras of the group, or none if all are selected.
    Q_INVOKABLE void toggleGroup(int row, const QString& groupID);
    Q_INVOKABLE void reveal(int row, const QString& groupID, int file);

protected:
    [[nodiscard]] std::string resultsLine() const override;
    [[nodiscard]] std::string noticeLine() const override;

private:
    [[nodiscard]] const CleanerCore::FileInsight* file(int row, const QString& groupID, int file) const;

    DuplicateCardListModel m_groups;
};

} // namespace KarvelloUI
