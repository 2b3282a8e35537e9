#pragma once

#include <QAbstractListModel>
#include <QByteArray>
#include <QHash>
#include <QVariant>
#include <QtQmlIntegration>
#include <vector>

namespace KarvelloUI {

/// A short list of values, each a row by its place: a row that stays the same is not touched, so that what has the
/// keyboard keeps it. A delegate has `required property var entry`.
class RowList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A model of the screen has it.")
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    enum Role : int { entryRole = Qt::UserRole + 1 };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] const QVariant& row(int index) const { return m_rows.at(static_cast<std::size_t>(index)); }

    /// The rows are gadgets that can be compared.
    template <typename Row>
    void show(const std::vector<Row>& rows)
    {
        std::vector<QVariant> next;
        next.reserve(rows.size());
        for (const Row& row : rows) {
            next.push_back(QVariant::fromValue(row));
        }
        replace(std::move(next));
    }

Q_SIGNALS:
    void countChanged();

private:
    void replace(std::vector<QVariant> rows);

    std::vector<QVariant> m_rows;
};

} // namespace KarvelloUI
