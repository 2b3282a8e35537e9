#include "KarvelloUI/Screens/System/ReliefScreenModel.h"

#include "KarvelloUI/Sessions/ShownText.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

using CleanerCore::ResourceReliefActionResult;
using CleanerCore::ResourceReliefActionStatus;
using CleanerCore::ResourceReliefCapability;

ReliefScreenModel::ReliefScreenModel(MacCleanerDashboardModel& dashboard, ResourceReliefMetric metric, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_metric(metric)
    , m_candidates(metric)
    , m_isLoaded(!dashboard.resourceRelief().candidates().empty())
{
    connect(&dashboard.insights(), &MacInsightsViewModel::systemMetricsChanged, this, &ReliefScreenModel::takeSample);
    connect(&relief(), &MacResourceReliefViewModel::candidatesChanged, this, [this] {
        m_isLoaded = true;
        takeCandidates();
        Q_EMIT listStateChanged();
        Q_EMIT requestChanged();
    });
    connect(&relief(), &MacResourceReliefViewModel::refreshingChanged, this, &ReliefScreenModel::listStateChanged);
    connect(&relief(), &MacResourceReliefViewModel::selectionChanged, this, [this] {
        takeCandidates();
        Q_EMIT requestChanged();
    });
    connect(&relief(), &MacResourceReliefViewModel::requestingQuitChanged, this, &ReliefScreenModel::requestChanged);
    connect(&relief(), &MacResourceReliefViewModel::lastResultsChanged, this, [this] {
        m_areResultsRead = false;
        Q_EMIT resultsChanged();
    });
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &ReliefScreenModel::takeLanguage);
    takeSample();
    takeCandidates();
}

QString ReliefScreenModel::title() const
{
    return shown(m_dashboard.words().macDashboardSectionTitle(
        isCPU() ? MacDashboardSection::cpuAnalysis : MacDashboardSection::memoryAnalysis));
}

QString ReliefScreenModel::subtitle() const
{
    const auto words = m_dashboard.words();
    return shown(isCPU()
            ? words.text("현재 CPU 사용률, 1분 평균 부하, 활성 코어, 최근 추이를 읽기 전용 화면 한곳에서 해석합니다.",
                  "Interpret current CPU usage, 1-minute load average, active cores, and recent trend in one read-only "
                  "system analysis view.")
            : words.text("사용 중인 메모리, 여유 메모리, 압박 수준, 최근 추이를 함께 검토합니다. 메모리를 비우지 않고 "
                         "안전하게 해석하도록 안내합니다.",
                  "Review used memory, free memory, pressure level, and recent trend together. It guides safe "
                  "interpretation without purging memory."));
}

QString ReliefScreenModel::refreshTitle() const
{
    return shown(m_dashboard.words().text("측정값 새로 고침", "Refresh Metrics"));
}

QString ReliefScreenModel::monitorTitle() const
{
    return shown(m_dashboard.words().say("Open System Monitor"));
}

QString ReliefScreenModel::interpretationTitle() const
{
    return shown(m_dashboard.words().text("해석", "Interpretation"));
}

QString ReliefScreenModel::interpretation() const
{
    return m_interpretation;
}

QString ReliefScreenModel::suggestedAction() const
{
    const auto words = m_dashboard.words();
    if (!hasReading()) {
        return {};
    }
    return shown(isCPU() ? words.cpuAnalysisPrimaryAction(level()) : words.memoryAnalysisPrimaryAction(level()));
}

QString ReliefScreenModel::guarantee() const
{
    const auto words = m_dashboard.words();
    return shown(isCPU()
            ? words.text("CPU 분석은 정리를 자동으로 시작하지 않습니다. 지원되는 경우 사용자가 확인한 일반 종료 요청만 "
                         "보냅니다.",
                  "CPU analysis never starts cleanup automatically. It only sends user-confirmed normal quit requests "
                  "when supported.")
            : words.text("메모리 분석은 메모리를 비우거나 앱을 강제 종료하지 않습니다.",
                  "Memory analysis never purges memory or force-quits apps."));
}

QString ReliefScreenModel::reliefTitle() const
{
    const auto words = m_dashboard.words();
    return shown(isCPU() ? words.text("CPU 부담 줄이기", "CPU Resource Relief")
                         : words.text("메모리 부담 줄이기", "Memory Resource Relief"));
}

QString ReliefScreenModel::reliefBody() const
{
    const auto words = m_dashboard.words();
    return shown(isCPU()
            ? words.text(
                  "직접 선택한 일반 앱에만 일반 종료 요청을 보내 CPU 부하를 줄입니다. 목록의 백분율은 모든 코어의 "
                  "전체 CPU 용량 중 현재 사용하는 비율입니다.",
                  "Reduce CPU pressure by sending normal quit requests only to user-selected regular apps. List "
                  "percentages are current use against total CPU capacity across all cores.")
            : words.text("메모리를 비우지 않습니다. 쓰지 않는 일반 앱에 일반 종료 요청을 보낼 수 있습니다. 목록의 "
                         "백분율은 전체 물리 메모리 중 각 앱이 차지하는 비율입니다.",
                  "It does not purge memory. It can request normal quits for unused regular apps. List percentages are "
                  "each app's resident memory against total physical memory."));
}

QString ReliefScreenModel::refreshAppsTitle() const
{
    return shown(m_dashboard.words().text("앱 새로 고침", "Refresh Apps"));
}

QString ReliefScreenModel::closeTitle() const
{
    return shown(m_dashboard.words().say("Close"));
}

QString ReliefScreenModel::emptyTitle() const
{
    const auto words = m_dashboard.words();
    if (!m_candidates.rows().empty()) {
        return {};
    }
    return shown(m_isLoaded ? words.text("종료를 요청할 수 있는 일반 앱이 없습니다.",
                                  "No regular app candidates are available for quit requests.")
                            : words.say("Looking for running apps…"));
}

QString ReliefScreenModel::limit() const
{
    const auto words = m_dashboard.words();
    if (!m_isLoaded) {
        return {};
    }
    switch (relief().capability().reason) {
    case ResourceReliefCapability::Reason::supported:
        return {};
    case ResourceReliefCapability::Reason::appSandbox:
        return shown(
            words.say("In this sandbox, Karvello cannot request other apps to quit. Use the system monitor instead."));
    case ResourceReliefCapability::Reason::unknown:
        return shown(words.say("Karvello could not find out whether it may request other apps to quit. Refresh the "
                               "list, or use the system monitor."));
    }
    return {};
}

QStringList ReliefScreenModel::results() const
{
    QStringList texts;
    if (!m_areResultsRead) {
        const auto words = m_dashboard.words();
        for (const auto& result : relief().lastResults()) {
            texts.push_back(shownText(words.resourceReliefResultText(result)));
        }
    }
    return texts;
}

bool ReliefScreenModel::areAllSent() const
{
    return std::ranges::all_of(relief().lastResults(), [](const ResourceReliefActionResult& result) {
        return result.status == ResourceReliefActionStatus::requestSent;
    });
}

QString ReliefScreenModel::footerText() const
{
    const auto words = m_dashboard.words();
    const auto count = relief().selectedCount();
    return shown(count > 0 ? words.resourceReliefConfirmMessage(count)
                           : words.text("종료를 요청할 앱 선택", "Select Apps to Request Quit"));
}

QString ReliefScreenModel::quitTitle() const
{
    return shown(m_dashboard.words().resourceReliefQuitButton(relief().selectedCount()));
}

bool ReliefScreenModel::canRequestQuit() const
{
    return relief().canRequestQuit() && relief().selectedCount() > 0 && !relief().isRequestingQuit();
}

QString ReliefScreenModel::quitDisabledReason() const
{
    if (const QString limit = this->limit(); !limit.isEmpty()) {
        return limit;
    }
    return relief().selectedCount() == 0 ? footerText() : QString();
}

void ReliefScreenModel::refresh()
{
    m_dashboard.insights().refreshSystemSnapshot();
    refreshApps();
}

void ReliefScreenModel::toggle(int row)
{
    const auto* const chosen = m_candidates.row(row);
    if (chosen != nullptr && !relief().isRequestingQuit()) {
        // A copy: the change of the selection changes the rows.
        const auto candidate = chosen->candidate;
        relief().setSelected(candidate, !chosen->isSelected);
    }
}

void ReliefScreenModel::clearSelection()
{
    if (!relief().isRequestingQuit()) {
        relief().clearSelection();
    }
}

void ReliefScreenModel::requestQuit()
{
    if (canRequestQuit()) {
        m_dashboard.requestQuitSelected();
    }
}

void ReliefScreenModel::dismissResults()
{
    m_areResultsRead = true;
    Q_EMIT resultsChanged();
}

bool ReliefScreenModel::hasReading() const
{
    const auto& snapshot = m_dashboard.insights().currentSystemSnapshot();
    return isCPU() ? snapshot.activeProcessorCount > 0 : snapshot.physicalMemoryBytes > 0;
}

LoadLevel ReliefScreenModel::level() const
{
    const auto& snapshot = m_dashboard.insights().currentSystemSnapshot();
    return isCPU() ? loadLevelOfCPU(snapshot.normalizedCPULoad) : loadLevelOfMemory(snapshot.memoryPressure);
}

void ReliefScreenModel::takeSample()
{
    const auto words = m_dashboard.words();
    const auto& snapshot = m_dashboard.insights().currentSystemSnapshot();
    const auto& history = m_dashboard.insights().systemMetricHistory();
    LoadChart chart =
        isCPU() ? LoadChart::cpuLoad(snapshot, history, words) : LoadChart::memoryPressure(snapshot, history, words);
    if (chart != m_chart) {
        m_chart = std::move(chart);
        Q_EMIT chartChanged();
    }
    const QString interpretation = !hasReading() ? QString()
        : isCPU()                                ? shown(words.cpuAnalysisInterpretation(level()))
                                                 : shown(words.memoryAnalysisInterpretation(level()));
    if (interpretation != m_interpretation) {
        m_interpretation = interpretation;
        Q_EMIT interpretationChanged();
    }
}

void ReliefScreenModel::takeCandidates()
{
    const auto language = m_dashboard.preferences().language();
    const auto& selected = relief().selectedIDs();
    std::vector<ReliefListRow> rows;
    for (const auto& candidate : isCPU() ? relief().cpuSortedCandidates() : relief().memorySortedCandidates()) {
        rows.push_back({.candidate = candidate, .isSelected = selected.contains(candidate.id), .language = language});
    }
    m_candidates.show(std::move(rows));
}

void ReliefScreenModel::takeLanguage()
{
    takeSample();
    takeCandidates();
    Q_EMIT languageChanged();
    Q_EMIT listStateChanged();
    Q_EMIT resultsChanged();
    Q_EMIT requestChanged();
}

} // namespace KarvelloUI
