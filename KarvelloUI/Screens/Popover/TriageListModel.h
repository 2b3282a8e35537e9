#pragma once

#include "KarvelloUI/Dashboard/KeyedListModel.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarTriagePanel.h"

#include <QHash>
#include <QVariant>

namespace KarvelloUI {

struct TriageListRow {
    KarvelloMenuBarTriagePanel::Row row = {};

    [[nodiscard]] KarvelloMenuBarReminder::Kind key() const { return row.kind; }
    friend bool operator==(const TriageListRow&, const TriageListRow&) = default;
};

/// The reminders of the popover, one row for each kind.
class TriageListModel final : public KeyedListModel<TriageListRow> {
    Q_OBJECT

public:
    enum Role : int {
        iconNameRole = Qt::UserRole + 1,
        detailRole,
        buttonTitleRole,
        /// The raw value.
        destinationRole,
        isCriticalRole,
    };

    using KeyedListModel::KeyedListModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace KarvelloUI
