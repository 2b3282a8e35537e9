#include "KarvelloUI/Screens/Home/ProjectPanelModel.h"

#include "KarvelloUI/Advisors/DeveloperProjectAdvisoryAnalyzer.h"
#include "KarvelloUI/Controls/NamedValue.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"

#include <fmt/format.h>
#include <utility>
#include <vector>

namespace KarvelloUI {

ProjectPanelModel::ProjectPanelModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_refresh(dashboard, {MacDashboardSection::dashboard, MacDashboardSection::reviewEvidence}, [this] { refresh(); })
{
    const auto request = [this] { m_refresh.request(); };
    connect(&dashboard.cleaner(), &CleanerViewModel::reportChanged, this, request);
    connect(&dashboard.customFolders(), &CustomScanFolderStore::foldersChanged, this, request);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, request);
    refresh();
}

void ProjectPanelModel::summarize()
{
    const auto& index = m_dashboard.cleaner().index();
    if (m_summarized != index) {
        m_summarized = index;
        m_summary =
            DeveloperProjectAdvisoryAnalyzer::summary(index->report().candidates, m_dashboard.services().session.now());
    }
}

void ProjectPanelModel::showSummary(const DashboardWords& words)
{
    const auto number = [](std::int64_t count) { return QString::number(count); };
    m_figures.show(std::vector<NamedValue>{
        {.name = shown(words.text("프로젝트", "Projects")), .value = number(m_summary.projectCount())},
        {.name = shown(words.text("오래된 항목", "Older hints")), .value = number(m_summary.inactiveOrStaleCount())},
        {.name = shown(words.text("검토할 예상 크기", "Estimated size to review")),
            .value = shown(words.byteSize(m_summary.estimatedBytes()))},
    });

    const Platform::HomePathAbbreviation home(m_dashboard.services().homeDirectory);
    std::vector<ProjectRow> rows;
    for (const auto& opportunity : m_summary.topOpportunities()) {
        rows.push_back({
            .name = shownText(opportunity.displayName),
            .path = shownText(home.abbreviate(opportunity.projectPath)),
            .detail = shown(DashboardWords::joinedParts({
                words.developerProjectAdvisoryArtifactName(opportunity.artifact),
                words.developerProjectAdvisoryActivity(opportunity.activityLevel, opportunity.ageInDays.value_or(0)),
            })),
            .note = shown(words.developerProjectAdvisoryNote(opportunity.artifact)),
            .size = shown(words.byteSize(opportunity.sizeBytes)),
        });
    }
    m_projects.show(rows);
}

void ProjectPanelModel::refresh()
{
    summarize();
    const auto words = m_dashboard.words();
    showSummary(words);
    Texts texts{
        .title = shown(words.text("프로젝트 빌드/캐시 검토", "Project build/cache review")),
        .subtitle = shown(words.text(
            "직접 추가한 프로젝트 폴더의 스캔 근거만으로 로컬 빌드와 캐시 후보를 설명합니다. 앱은 도구 명령을 실행하지 "
            "않습니다.",
            "Uses only scan evidence from user-added project folders to explain local build and cache candidates. The "
            "app does not run tool commands.")),
        .pillText = shown(words.text("안내 전용 · 명령 실행 안 함", "Advisory only · no commands")),
        .hasProjects = !m_summary.opportunities.empty(),
        .emptyTitle = shown(words.dashboardReviewEvidenceProjectSummary(0, 0)),
        .emptyText = shown(m_dashboard.customFolders().folders().empty()
                ? words.text("설정에서 프로젝트 폴더를 추가한 뒤 직접 스캔하면 프로젝트의 로컬 산출물을 안내합니다.",
                      "Add a project folder in Settings, then run a manual scan to show project-local artifact "
                      "guidance.")
                : words.text("추가한 폴더를 직접 스캔하면 프로젝트의 로컬 산출물을 안내합니다.",
                      "Run a manual scan for the added folder to show project-local artifact guidance.")),
        .note =
            shown(words.text("전역 개발자 캐시와 시스템 위치는 여기에서 제외됩니다. 선택은 기존 검토 화면에서 합니다.",
                "Global developer caches and system locations are excluded here. Choices stay in the existing review "
                "screen.")),
        .openReviewTitle = shown(words.text("정리 검토 열기", "Open cleanup review")),
        .openSettingsTitle = shown(words.text("프로젝트 폴더 설정", "Project folder settings")),
    };
    if (texts != m_texts) {
        m_texts = std::move(texts);
        Q_EMIT changed();
    }
}

void ProjectPanelModel::openReview()
{
    m_dashboard.selectSection(MacDashboardSection::cleanup);
}

void ProjectPanelModel::openSettings()
{
    m_dashboard.selectSection(MacDashboardSection::settings);
}

} // namespace KarvelloUI
