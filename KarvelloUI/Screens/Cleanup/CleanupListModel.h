#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Screens/Cleanup/CleanupRow.h"
#include "KarvelloUI/Sessions/CandidateListModel.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <QHash>
#include <QtQmlIntegration>
#include <array>
#include <unordered_set>

namespace KarvelloUI {

/// The rows of the review with their words, which are made for rows on screen only, and which of them are open.
class CleanupListModel final : public CandidateListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The screen has it.")

public:
    enum CleanupRole : int {
        /// A `CleanupRow`; nothing for a head.
        contentRole = derivedRole,
        /// A `CleanupSectionHead`; nothing for a candidate.
        headRole,
        /// All that an assistant says of the candidate.
        spokenRole,
        isOpenRole,
    };

    CleanupListModel(const CandidateSelection& selection, const Platform::FileURL& home, QObject* parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The same as the list shows, with ages as of `now`. What is open and has gone is forgotten.
    void showAt(Platform::Date now, std::shared_ptr<const CandidateIndex> index,
        const std::vector<CandidateListSection>& sections, const DashboardWords& words);

    void setOpen(const std::string& candidateID, bool isOpen);
    [[nodiscard]] bool isOpen(const std::string& candidateID) const { return m_openIDs.contains(candidateID); }
    /// The head of the section that the row lies in.
    [[nodiscard]] Q_INVOKABLE QVariant headOf(int row) const;
    [[nodiscard]] Q_INVOKABLE bool isHead(int row) const;

private:
    using Categories = std::array<QString, Platform::allCases<CleanerCore::CleanupCategory>().size()>;

    void setWords(const DashboardWords& words);
    [[nodiscard]] CleanupRow content(const CleanerCore::CleanupCandidate& candidate) const;
    [[nodiscard]] CleanupSectionHead head(const CandidateListRows::Section& section) const;
    [[nodiscard]] QString age(std::optional<Platform::Date> lastModified) const;
    [[nodiscard]] QString warning(const CleanerCore::CleanupCandidate& candidate) const;

    Platform::HomePathAbbreviation m_home;
    DashboardWords m_words{{AppLanguage::english}};
    Platform::Date m_now;
    Categories m_reasons;
    std::array<QString, Platform::allCases<CleanerCore::CleanupSafety>().size()> m_pills;
    /// By days: many candidates have the same age.
    mutable QHash<qint64, QString> m_ages;
    std::unordered_set<std::string> m_openIDs;
};

} // namespace KarvelloUI
