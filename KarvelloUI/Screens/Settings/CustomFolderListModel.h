#pragma once

#include "KarvelloUI/Dashboard/KeyedListModel.h"
#include "Platform/Base/UUID.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <string>

namespace KarvelloUI {

/// A folder that the user added, as it is on show.
struct CustomFolderRow {
    Platform::UUID id = {};
    /// As the file system has it.
    std::string rawPath = {};
    QString path = {};
    QString added = {};
    /// What to do about a folder that the last scan could not look into; empty for one that it could.
    QString problem = {};

    [[nodiscard]] const Platform::UUID& key() const { return id; }
    friend bool operator==(const CustomFolderRow&, const CustomFolderRow&) = default;
};

class CustomFolderListModel final : public KeyedListModel<CustomFolderRow> {
    Q_OBJECT

public:
    enum Role : int { pathRole = Qt::UserRole + 1, addedRole, problemRole };

    using KeyedListModel::KeyedListModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace KarvelloUI
