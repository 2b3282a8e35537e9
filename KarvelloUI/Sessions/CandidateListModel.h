#pragma once

#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Sessions/CandidateIndex.h"
#include "KarvelloUI/Sessions/CandidateListProjection.h"
#include "KarvelloUI/Sessions/CandidateSelection.h"
#include "Platform/Base/RawValue.h"

#include <QAbstractListModel>
#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The list of candidates as rows of a view, the sections one behind another. A row is known by the id of its candidate;
/// what stays on show keeps its row, so that views keep their place: rows come and go in runs, and only a change of nearly
/// everything resets the model.
class CandidateListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    enum Role : int {
        idRole = Qt::UserRole + 1,
        nameRole,
        pathRole,
        sizeBytesRole,
        sizeTextRole,
        categoryRole,
        categoryNameRole,
        safetyRole,
        safetyNameRole,
        isSelectedRole,
        /// Those of the row's section.
        sectionIDRole,
        sectionTitleRole,
    };

    /// `selection` outlives the model.
    explicit CandidateListModel(const CandidateSelection& selection, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int count() const { return static_cast<int>(m_content.rows.size()); }
    /// The candidate of a row; nothing outside of the rows.
    [[nodiscard]] const CleanerCore::CleanupCandidate* candidate(int row) const;

    /// Shows `sections` of `index`, in the language of `copy`. To be called after each change of the report, the filters
    /// or the language.
    void show(std::shared_ptr<const CandidateIndex> index, const std::vector<CandidateListSection>& sections,
        const KarvelloCopy& copy);

    /// The selection changed: of one candidate, or of any number.
    void announceSelection(std::string_view candidateID);
    void announceSelection();

    /// How many selected candidates the list does not show.
    [[nodiscard]] std::int64_t hiddenSelectedCount() const;

Q_SIGNALS:
    void countChanged();

private:
    struct Row {
        /// In the report on show.
        std::uint32_t position = 0;
        std::uint32_t section = 0;
    };
    struct Section {
        QString id;
        QString title;
    };
    struct Content {
        std::shared_ptr<const CandidateIndex> index;
        std::vector<Row> rows;
        std::vector<Section> sections;
    };
    class Change;

    [[nodiscard]] static Content contentOf(
        std::shared_ptr<const CandidateIndex> index, const std::vector<CandidateListSection>& sections);
    void setLanguage(const KarvelloCopy& copy);
    void reorder(Content content, const Change& change);
    void removeAndInsert(Content content, const Change& change);
    /// Rows that stayed and say something else now.
    void announceChangedRows(const Content& before, const Change& change, bool areTextsNew);
    [[nodiscard]] bool isSelected(const Row& row) const;

    const CandidateSelection& m_selection;
    KarvelloCopy m_copy{AppLanguage::english};
    std::array<QString, Platform::allCases<CleanerCore::CleanupCategory>().size()> m_categoryNames;
    std::array<QString, Platform::allCases<CleanerCore::CleanupSafety>().size()> m_safetyNames;
    Content m_content;
    /// By position in the report; -1 for what the list does not show.
    std::vector<int> m_rowOfPosition;
};

} // namespace KarvelloUI
