#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/KeyedListModel.h"
#include "KarvelloUI/Stores/IgnoredCleanupItem.h"
#include "Platform/Base/FileURL.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <string>
#include <vector>

namespace KarvelloUI {

/// A candidate that the user has hidden, as it is on show.
struct IgnoredItemRow {
    /// The candidate's.
    std::string id = {};
    QString name = {};
    /// With a tilde for the home folder.
    QString path = {};
    QString size = {};
    /// Until when, in a sentence.
    QString duration = {};

    [[nodiscard]] const std::string& key() const { return id; }
    friend bool operator==(const IgnoredItemRow&, const IgnoredItemRow&) = default;
};

/// What the user has hidden from the review, and until when. Main thread only.
class IgnoredItemList final : public KeyedListModel<IgnoredItemRow> {
    Q_OBJECT

public:
    enum Role : int { nameRole = Qt::UserRole + 1, pathRole, sizeRole, durationRole };

    using KeyedListModel::KeyedListModel;

    /// In the order of `items`.
    void showItems(
        const std::vector<IgnoredCleanupItem>& items, const Platform::FileURL& home, const DashboardWords& words);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace KarvelloUI
