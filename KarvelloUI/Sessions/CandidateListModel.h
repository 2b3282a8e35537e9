#pragma once

#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Sessions/CandidateIndex.h"
#include "KarvelloUI/Sessions/CandidateListProjection.h"
#include "KarvelloUI/Sessions/CandidateListRows.h"
#include "KarvelloUI/Sessions/CandidateSelection.h"
#include "Platform/Base/RawValue.h"

#include <QAbstractListModel>
#include <QSet>
#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include <vector>

namespace KarvelloUI {

/// The list of candidates as rows of a view, the sections one behind another. A row is known by the id of its candidate;
/// what stays on show keeps its row, so that views keep their place: rows come and go in runs, and only a change of nearly
/// everything resets the model. With heads, each section has a row before its candidates, and can be closed; one that is
/// closed counts all the same.
class CandidateListModel : public QAbstractListModel {
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
        isHeaderRole,
        /// A `Qt::CheckState`: of the candidate, or of all candidates of a head's section.
        checkStateRole,
        /// The first role that a derived model may have.
        derivedRole,
    };

    /// `selection` outlives the model.
    explicit CandidateListModel(const CandidateSelection& selection, QObject* parent = nullptr,
        CandidateListHeaders headers = CandidateListHeaders::none);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int count() const { return static_cast<int>(m_content.rows.size()); }
    /// The candidate of a row; nothing for a head and outside of the rows.
    [[nodiscard]] const CleanerCore::CleanupCandidate* candidate(int row) const;
    [[nodiscard]] const std::vector<CandidateListRows::Section>& sections() const { return m_content.sections; }
    /// The section of a row; nothing outside of the rows.
    [[nodiscard]] const CandidateListRows::Section* section(int row) const;
    /// The row of a candidate; -1 for one that has none.
    [[nodiscard]] int row(std::string_view candidateID) const;
    /// How many candidates pass the filters, with rows or without.
    [[nodiscard]] std::int64_t visibleCount() const;

    /// A section without a head stays open.
    void setSectionOpen(const QString& id, bool isOpen);

    /// Shows `sections` of `index`, in the language of `copy`. To be called after each change of the report, the filters
    /// or the language.
    void show(std::shared_ptr<const CandidateIndex> index, const std::vector<CandidateListSection>& sections,
        const KarvelloCopy& copy);

    /// The selection changed: that of one candidate is another one now, or that of any number.
    void announceSelection(std::string_view candidateID);
    void announceSelection();

    /// How many selected candidates the list does not show.
    [[nodiscard]] std::int64_t hiddenSelectedCount() const;

Q_SIGNALS:
    void countChanged();

protected:
    /// Of the texts on show.
    [[nodiscard]] const KarvelloCopy& copy() const { return m_copy; }
    [[nodiscard]] const std::shared_ptr<const CandidateIndex>& candidateIndex() const { return m_content.index; }

private:
    using Row = CandidateListRows::Row;

    void setLanguage(const KarvelloCopy& copy);
    void apply(CandidateListRows content, bool areTextsNew);
    void reorder(CandidateListRows content, const CandidateListChange& change);
    void removeAndInsert(CandidateListRows content, const CandidateListChange& change);
    /// Rows that stayed and say something else now.
    void announceChangedRows(const CandidateListRows& before, const CandidateListChange& change, bool areTextsNew);
    void announceHeaders(const QList<int>& roles = {});
    void countSelected(CandidateListRows& content) const;
    [[nodiscard]] std::int64_t selectedCount(const CandidateListRows::Section& section) const;
    [[nodiscard]] bool isSelected(const CandidateListRows& content, std::uint32_t position) const;
    [[nodiscard]] QVariant headerData(const Row& row, int role) const;

    const CandidateSelection& m_selection;
    CandidateListHeaders m_headers;
    QSet<QString> m_closedSections;
    KarvelloCopy m_copy{AppLanguage::english};
    std::array<QString, Platform::allCases<CleanerCore::CleanupCategory>().size()> m_categoryNames;
    std::array<QString, Platform::allCases<CleanerCore::CleanupSafety>().size()> m_safetyNames;
    CandidateListRows m_content;
    struct Place {
        /// -1 for what has no row.
        int row = -1;
        /// -1 for what the filters hide.
        int section = -1;
    };
    /// By position in the report.
    std::vector<Place> m_places;
};

} // namespace KarvelloUI
