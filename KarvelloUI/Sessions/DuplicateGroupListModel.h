#pragma once

#include "KarvelloUI/Sessions/MacInsightsViewModel.h"

#include <QAbstractListModel>
#include <cstddef>
#include <vector>

namespace KarvelloUI {

/// The groups of duplicates of a session as rows of a view, in the order of the report. A click announces the rows of the
/// groups that it changed, and no others; a new report resets the model.
class DuplicateGroupListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    enum Role : int {
        idRole = Qt::UserRole + 1,
        /// Of each file, in bytes.
        sizeBytesRole,
        totalExtraBytesRole,
        selectableExtraBytesRole,
        selectedExtraBytesRole,
        /// "unavailable", "none", "partial" or "all".
        selectionStateRole,
        /// A list of objects in the order of the group, the keeper first: id, name, path, sizeBytes, isKeeper,
        /// isSelectable, isSelected. Names and paths are shown texts.
        filesRole,
        /// Where a screen's own roles begin.
        firstOtherRole,
    };

    /// `session` outlives the model.
    explicit DuplicateGroupListModel(const MacInsightsViewModel& session, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int count() const { return m_count; }

Q_SIGNALS:
    void countChanged();

protected:
    /// Nothing outside of the rows.
    [[nodiscard]] const DuplicateReviewGroupPresentation* group(int row) const;
    [[nodiscard]] const MacInsightsViewModel& session() const { return m_session; }
    /// What a click in a group changes.
    [[nodiscard]] virtual QList<int> selectionRoles() const;

private:
    void showReport();
    void announce(const std::vector<std::size_t>& positions);

    const MacInsightsViewModel& m_session;
    int m_count = 0;
};

} // namespace KarvelloUI
