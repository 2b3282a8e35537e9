#pragma once

#include "KarvelloUI/Copy/Vocabulary/IOSStorageChecklistStep.h"

#include <QAbstractListModel>
#include <QString>
#include <vector>

namespace KarvelloUI {

/// The steps of the checklist as rows. There are always the same; what changes of them is announced for the row alone.
class IOSGuideStepList final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role : int {
        /// The raw value of the step, by which a screen names it.
        stepRole = Qt::UserRole + 1,
        numberRole,
        titleRole,
        detailRole,
        pathRole,
        safetyNoteRole,
        actorRole,
        /// Whether it is done outside of this application.
        isElsewhereRole,
        /// The raw value of the status.
        statusRole,
        isDoneRole,
        pickerNameRole,
    };

    /// What a row says in one language.
    struct Row {
        IOSStorageChecklistStep step;
        QString actor;
        QString pickerName;

        friend bool operator==(const Row&, const Row&) = default;
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The first time decides how many there are.
    void show(std::vector<Row> rows);

private:
    std::vector<Row> m_rows;
};

} // namespace KarvelloUI
