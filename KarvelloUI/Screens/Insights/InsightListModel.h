#pragma once

#include "CleanerCore/Insights/FileInsight.h"

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <vector>

namespace KarvelloUI {

/// The files of one list of an insight scan as rows of a view. A row is named by its key, which no other row of the model
/// ever has, so that what is asked for a row that has gone reaches nothing. A click announces the rows that it changes.
class InsightListModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role : int {
        keyRole = Qt::UserRole + 1,
        nameRole,
        /// Of its folder, with "~" for the home.
        pathRole,
        iconNameRole,
        ageRole,
        sizeRole,
        /// Empty where the screen says nothing beside the file itself.
        reasonRole,
        pillRole,
        accessibleNameRole,
        /// Shown below the row while it is open.
        fullPathRole,
        explanationRole,
        isOpenRole,
        isSelectableRole,
        isSelectedRole,
    };

    struct Row {
        CleanerCore::FileInsight file;
        bool isSelectable = false;
        bool isSelected = false;
    };
    /// What a row says, in one language.
    struct Texts {
        QString name;
        QString path;
        QString iconName;
        QString age;
        QString size;
        QString reason;
        QString pill;
        QString accessibleName;
        QString explanation;
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Shows other files. `texts` has one for each.
    void show(std::vector<Row> rows, std::vector<Texts> texts);
    /// The same files in other words, as many as there are rows.
    void setTexts(std::vector<Texts> texts);
    /// The selection changed; one flag for each row.
    void setSelected(const std::vector<bool>& isSelected);
    void setOpen(int key, bool isOpen);

    [[nodiscard]] const std::vector<Row>& rows() const { return m_rows; }
    /// Nothing for a row that has gone.
    [[nodiscard]] const Row* row(int key) const;

private:
    std::vector<Row> m_rows;
    std::vector<Texts> m_texts;
    std::vector<bool> m_isOpen;
    /// Of the first row.
    int m_firstKey = 0;
};

} // namespace KarvelloUI
