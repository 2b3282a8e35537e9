#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Sessions/DuplicateGroupListModel.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <QVariantMap>
#include <functional>

namespace KarvelloUI {

/// The groups of duplicates as cards: adds what they say. A click changes neither the files of a card nor their texts, only
/// the flags beside them, so that a view keeps their rows.
class DuplicateCardListModel final : public DuplicateGroupListModel {
    Q_OBJECT

public:
    enum CardRole : int {
        titleRole = firstOtherRole,
        stateTextRole,
        bytesTextRole,
        /// A `Qt::CheckState`.
        checkStateRole,
        isLockedRole,
        /// Whether all that can be selected is, so that the button clears.
        isAllSelectedRole,
        /// One flag for each of the files.
        selectedFilesRole,
    };

    struct Presentation {
        std::function<DashboardWords()> words;
        std::function<Platform::Date()> now;
        Platform::HomePathAbbreviation home;
    };

    /// `session` outlives the model.
    DuplicateCardListModel(const MacInsightsViewModel& session, Presentation presentation, QObject* parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// All texts are others now.
    void announceLanguage();

    /// Nothing where the row shows another group by now, or none.
    [[nodiscard]] const CleanerCore::DuplicateFileGroup* groupOfRow(int row, const QString& id) const;

protected:
    [[nodiscard]] QList<int> selectionRoles() const override;

private:
    [[nodiscard]] QVariantMap shownFile(const DuplicateReviewFilePresentation& file, const DashboardWords& copy) const;

    Presentation m_presentation;
};

} // namespace KarvelloUI
