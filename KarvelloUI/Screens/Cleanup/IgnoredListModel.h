#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Stores/IgnoredCleanupItem.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>
#include <vector>

namespace KarvelloUI {

/// What the user has hidden from the review, and until when.
class IgnoredListModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The screen has it.")

public:
    enum Role : int {
        nameRole = Qt::UserRole + 1,
        pathRole,
        durationRole,
        sizeRole,
    };

    explicit IgnoredListModel(const Platform::FileURL& home, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Rows that stay keep their place.
    void show(const std::vector<IgnoredCleanupItem>& items, const DashboardWords& words);
    /// Empty outside of the rows.
    [[nodiscard]] std::string itemID(int row) const;

private:
    Platform::HomePathAbbreviation m_home;
    std::vector<IgnoredCleanupItem> m_items;
    DashboardWords m_words{{AppLanguage::english}};
};

} // namespace KarvelloUI
