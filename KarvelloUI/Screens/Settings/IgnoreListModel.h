#pragma once

#include "KarvelloUI/Dashboard/KeyedListModel.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <string>

namespace KarvelloUI {

/// A candidate that the user has hidden, as it is on show.
struct IgnoreListRow {
    /// The candidate's.
    std::string id = {};
    QString path = {};
    QString size = {};
    QString duration = {};

    [[nodiscard]] const std::string& key() const { return id; }
    friend bool operator==(const IgnoreListRow&, const IgnoreListRow&) = default;
};

class IgnoreListModel final : public KeyedListModel<IgnoreListRow> {
    Q_OBJECT

public:
    enum Role : int { pathRole = Qt::UserRole + 1, sizeRole, durationRole };

    using KeyedListModel::KeyedListModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace KarvelloUI
