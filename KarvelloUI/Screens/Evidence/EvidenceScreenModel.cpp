#include "KarvelloUI/Screens/Evidence/EvidenceScreenModel.h"

#include "KarvelloUI/Copy/PercentText.h"
#include "KarvelloUI/Sessions/ShownText.h"

namespace KarvelloUI {

using Phase = CleanerViewModel::Phase;

EvidenceScreenModel::EvidenceScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_restoreCenter(dashboard)
    , m_history(dashboard)
    , m_impactReport(dashboard)
    , m_lastClean(dashboard, LastResultModel::Run::clean)
    , m_lastRestore(dashboard, LastResultModel::Run::restore)
    , m_reviewLoop(dashboard)
    , m_projects(dashboard)
{
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        Q_EMIT wordsChanged();
        Q_EMIT workChanged();
    });
    connect(&dashboard.cleaner(), &CleanerViewModel::errorMessageChanged, this, &EvidenceScreenModel::errorChanged);
    connect(&dashboard.cleaner(), &CleanerViewModel::phaseChanged, this, &EvidenceScreenModel::workChanged);
    connect(&dashboard.cleaner(), &CleanerViewModel::progressChanged, this, &EvidenceScreenModel::workChanged);
}

QString EvidenceScreenModel::title() const
{
    return shown(m_dashboard.words().macDashboardSectionTitle(MacDashboardSection::reviewEvidence));
}

QString EvidenceScreenModel::subtitle() const
{
    return shown(m_dashboard.words().text(
        "정기 검토, 저장 공간 근거, 프로젝트 빌드 및 캐시 안내를 한곳에 모았습니다. 홈에는 다음에 할 유용한 작업만 "
        "표시됩니다.",
        "Recurring review, storage evidence, and project build/cache guidance now live together. Home shows only the "
        "next useful actions."));
}

QString EvidenceScreenModel::notice() const
{
    return shown(m_dashboard.words().text(
        "휴지통으로 이동한 용량은 확보된 디스크 공간과 같지 않습니다. 휴지통을 비우기 전에 복원하거나 위치를 볼 항목을 "
        "검토하세요.",
        "Bytes moved to Trash are not the same as recovered disk space. Review restore and reveal options before "
        "emptying Trash."));
}

QString EvidenceScreenModel::closeName() const
{
    return shown(m_dashboard.words().say("Close"));
}

QString EvidenceScreenModel::cancelTitle() const
{
    return shown(m_dashboard.words().cancelOperation());
}

QString EvidenceScreenModel::errorText() const
{
    return shownText(m_dashboard.words().skippedReason(m_dashboard.cleaner().errorMessage().value_or("")));
}

QString EvidenceScreenModel::workTitle() const
{
    const auto words = m_dashboard.words();
    switch (m_dashboard.cleaner().phase()) {
    case Phase::cleaning:
        return shown(words.cleaningMessage());
    case Phase::restoring:
        return shown(words.restoringMessage());
    case Phase::idle:
    case Phase::scanning:
    case Phase::ready:
    case Phase::finished:
        break;
    }
    return {};
}

double EvidenceScreenModel::workProgress() const
{
    const auto& progress = m_dashboard.cleaner().itemProgress();
    return progress.allItems == 0 ? -1
                                  : static_cast<double>(progress.doneItems) / static_cast<double>(progress.allItems);
}

QString EvidenceScreenModel::workProgressText() const
{
    return workProgress() < 0 ? QString() : shown(percentText(workProgress()));
}

void EvidenceScreenModel::closeError()
{
    m_dashboard.cleaner().dismissError();
}

void EvidenceScreenModel::cancelWork()
{
    m_dashboard.cleaner().cancelCurrentOperation();
}

} // namespace KarvelloUI
