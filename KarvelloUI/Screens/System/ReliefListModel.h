#pragma once

#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "KarvelloUI/Copy/Vocabulary/ResourceReliefMetric.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/KeyedListModel.h"

#include <QHash>
#include <QVariant>

namespace KarvelloUI {

struct ReliefListRow {
    CleanerCore::ResourceReliefCandidate candidate = {};
    bool isSelected = false;
    AppLanguage language = AppLanguage::english;

    [[nodiscard]] const CleanerCore::ResourceReliefCandidateID& key() const { return candidate.id; }
    friend bool operator==(const ReliefListRow&, const ReliefListRow&) = default;
};

/// The running applications by what they take of the processors or of the memory.
class ReliefListModel final : public KeyedListModel<ReliefListRow> {
    Q_OBJECT

public:
    /// From this share of the machine on, an application is one of those that weigh on it.
    static constexpr double kHeavyFraction = 0.2;

    enum Role : int {
        idRole = Qt::UserRole + 1,
        nameRole,
        identifierRole,
        /// Why it may not be asked to quit; empty if it may.
        lockReasonRole,
        isSelectableRole,
        isSelectedRole,
        /// From 0 to 1; 0 if it is not known.
        fractionRole,
        isHeavyRole,
        percentTextRole,
        /// Empty where the list is not about memory.
        sizeTextRole,
        accessibleNameRole,
    };

    explicit ReliefListModel(ResourceReliefMetric metric, QObject* parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] std::optional<double> fractionOf(const CleanerCore::ResourceReliefCandidate& candidate) const;
    [[nodiscard]] QString accessibleName(const ReliefListRow& row, const DashboardWords& words) const;

    ResourceReliefMetric m_metric;
};

} // namespace KarvelloUI
