#pragma once

#include "KarvelloUI/Sessions/CandidateIndex.h"
#include "KarvelloUI/Sessions/CandidateListProjection.h"

#include <QSet>
#include <QString>
#include <cstdint>
#include <memory>
#include <span>

#include <vector>

namespace KarvelloUI {

/// Whether the sections of a list have a row of their own before their candidates.
enum class CandidateListHeaders : std::uint8_t { none, rows };

/// The rows of a list of candidates, the sections one behind another.
struct CandidateListRows {
    struct Row {
        static constexpr std::uint32_t kHeader = 0xFFFF'FFFF;

        /// In the report, or `kHeader`.
        std::uint32_t position = 0;
        std::uint32_t section = 0;

        [[nodiscard]] bool isHeader() const { return position == kHeader; }
    };

    struct Section {
        QString id;
        QString title;
        /// All of its candidates, with rows or without: positions in the report, ascending.
        std::vector<std::uint32_t> candidates;
        std::int64_t bytes = 0;
        /// How many of them the scan selects by default.
        std::int64_t defaultCount = 0;
        std::int64_t selectedCount = 0;
        bool isOpen = true;
        /// The row of its head, -1 without one.
        int headerRow = -1;
    };

    CandidateListRows();
    /// A section without a title has no head, and is always open.
    CandidateListRows(std::shared_ptr<const CandidateIndex> ofIndex,
        const std::vector<CandidateListSection>& ofSections, CandidateListHeaders headers,
        const QSet<QString>& closedSections);
    /// The same candidates with other sections closed.
    [[nodiscard]] CandidateListRows withClosed(const QSet<QString>& closedSections) const;

    [[nodiscard]] const Section* section(const QString& id) const;

    std::shared_ptr<const CandidateIndex> index;
    std::vector<Row> rows;
    std::vector<Section> sections;

private:
    void addRows(const QSet<QString>& closedSections);

    CandidateListHeaders m_headers = CandidateListHeaders::none;
};

/// How the rows of a list become others.
struct CandidateListChange {
    /// Rows from `first` to `last`, both included.
    struct Run {
        int first;
        int last;
    };

    CandidateListChange(const CandidateListRows& from, const CandidateListRows& to);

    /// For each old row the new one, -1 for what goes.
    std::vector<int> newRows;
    /// In old rows, and in new ones.
    std::vector<Run> removed;
    std::vector<Run> inserted;
    /// What stays stays in its order.
    bool isOrdered = true;
};

} // namespace KarvelloUI
