#include "KarvelloUI/Screens/Duplicates/DuplicatesScreenModel.h"

namespace KarvelloUI {

DuplicatesScreenModel::DuplicatesScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : InsightReviewScreenModel(dashboard, MacDashboardSection::duplicates, MacInsightFileSection::duplicates, parent)
    , m_groups(dashboard.insights(),
          {.words = [&dashboard] { return dashboard.words(); },
              .now = dashboard.services().session.now,
              .home = Platform::HomePathAbbreviation(dashboard.services().homeDirectory)})
{
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this,
        [this] { m_groups.announceLanguage(); });
}

int DuplicatesScreenModel::count() const
{
    return static_cast<int>(insights().duplicateReviewGroups().size());
}

QString DuplicatesScreenModel::selectExtrasText() const
{
    return shown(words().text("추가 사본 선택", "Select extras"));
}

QString DuplicatesScreenModel::clearGroupText() const
{
    return shown(words().text("그룹 선택 해제", "Clear group"));
}

QString DuplicatesScreenModel::keeperText() const
{
    return shown(words().text(
        "중복 후보는 해시가 같습니다. 문서·미디어 위치의 사본과 더 오래된 사본을 우선해 유지하며, "
        "추가 사본만 선택할 수 있습니다.",
        "Duplicate candidates share the same hash. The keeper favors document/media locations and older copies; only "
        "extras are selectable."));
}

const CleanerCore::FileInsight* DuplicatesScreenModel::file(int row, const QString& groupID, int file) const
{
    const auto* const group = m_groups.groupOfRow(row, groupID);
    return group == nullptr || file < 0 || file >= std::ssize(group->files)
        ? nullptr
        : &group->files[static_cast<std::size_t>(file)];
}

void DuplicatesScreenModel::toggleFile(int row, const QString& groupID, int file)
{
    const auto* const found = this->file(row, groupID, file);
    if (found != nullptr && !insights().isBusy()) {
        insights().setSelected(*found, !insights().isSelected(*found));
    }
}

void DuplicatesScreenModel::toggleGroup(int row, const QString& groupID)
{
    const auto* const group = m_groups.groupOfRow(row, groupID);
    if (group == nullptr || insights().isBusy()) {
        return;
    }
    if (insights().duplicateReviewGroupPresentation(*group).selectionState == DuplicateGroupSelectionState::all) {
        insights().clearDuplicateGroupSelection(*group);
    } else {
        insights().selectDuplicateExtras(*group);
    }
}

void DuplicatesScreenModel::reveal(int row, const QString& groupID, int file)
{
    if (const auto* const found = this->file(row, groupID, file)) {
        dashboard().revealInFinder(found->url);
    }
}

std::string DuplicatesScreenModel::resultsLine() const
{
    const auto copy = words();
    return DashboardWords::joinedParts({copy.duplicateReviewCenterSubtitle(count(), insights().duplicateFileCount()),
        copy.say("{} in extra copies", copy.byteSize(insights().report().duplicateWastedBytes()))});
}

std::string DuplicatesScreenModel::noticeLine() const
{
    return words().text(
        "각 그룹은 해시로 확인되었으며, 유지할 파일과 추가 사본을 함께 표시합니다. 유지할 파일은 선택할 "
        "수 없습니다. 휴지통으로 이동할 추가 사본을 선택하기 전에 경로를 검토하세요.",
        "Each group is hash-confirmed and shows the keeper plus extra copies. The keeper cannot be selected; review "
        "paths before choosing which extras to move to Trash.");
}

} // namespace KarvelloUI
