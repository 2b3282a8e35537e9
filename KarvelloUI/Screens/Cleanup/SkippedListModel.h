#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Sessions/CandidateIndex.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>
#include <memory>

namespace KarvelloUI {

/// What the scan passed over, and why. Words are made for rows on screen only.
class SkippedListModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The screen has it.")

public:
    enum Role : int {
        pathRole = Qt::UserRole + 1,
        reasonRole,
        /// A permission would help.
        isPermissionRole,
    };

    explicit SkippedListModel(const Platform::FileURL& home, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void show(std::shared_ptr<const CandidateIndex> index, const DashboardWords& words);

private:
    Platform::HomePathAbbreviation m_home;
    std::shared_ptr<const CandidateIndex> m_index;
    DashboardWords m_words{{AppLanguage::english}};
};

} // namespace KarvelloUI
