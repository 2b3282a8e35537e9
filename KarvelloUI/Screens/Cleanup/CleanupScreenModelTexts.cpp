#include "KarvelloUI/Advisors/DeveloperProjectAdvisoryAnalyzer.h"
#include "KarvelloUI/Controls/NamedValue.h"
#include "KarvelloUI/Dashboard/ConfidencePills.h"
#include "KarvelloUI/Dashboard/PickerChoices.h"
#include "KarvelloUI/Screens/Cleanup/CleanupScreenModel.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/LocalizedText.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace KarvelloUI {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using CleanerCore::CleanupScanMode;
using Phase = CleanerViewModel::Phase;

namespace {

QVariantMap mapOf(const std::vector<std::pair<const char*, std::string>>& texts)
{
    QVariantMap map;
    for (const auto& [name, text] : texts) {
        map.insert(QString::fromLatin1(name), shown(text));
    }
    return map;
}

QLocale localeOf(const DashboardWords& words)
{
    return QLocale(QString::fromStdString(std::string(words.locale())));
}

QVariantMap figure(const QString& value, const std::string& label)
{
    return {{QStringLiteral("value"), value}, {QStringLiteral("label"), shown(label)}};
}

} // namespace

QVariantMap CleanupScreenModel::texts() const
{
    const auto copy = words();
    return mapOf({
        {"title", copy.macDashboardSectionTitle(MacDashboardSection::cleanup)},
        {"subtitle", copy.appSubtitle()},
        {"scanMode", copy.scanModeTitle()},
        {"scanModeHint",
            copy.scanModeAccessibilityHint(m_dashboard.accessPolicy().supportsDirectDistributionScans)
                + copy.text(" ", " ") + copy.say("Another mode clears the results on show.")},
        {"scanModeDisabledReason", copy.say("The mode can be changed once the current operation has ended.")},
        {"search", copy.candidateListSearchPrompt()},
        {"clearSearch", copy.say("Clear the search")},
        {"category", copy.candidateListCategoryFilterTitle()},
        {"safety", copy.candidateListSafetyFilterTitle()},
        {"grouping", copy.candidateListGroupingTitle()},
        {"filters", copy.say("Filter and group")},
        {"list", copy.cleanupCandidatesTitle()},
        {"showInFileManager", copy.say("Show in File Manager")},
        {"snooze", copy.ignoreCleanupCandidate()},
        {"showDetails", copy.text("자세히 보기", "Show details")},
        {"hideDetails", copy.say("Hide details")},
        {"cancel", copy.cancelOperation()},
        {"close", copy.say("Close")},
        {"more", copy.say("More")},
        {"flow", copy.text("정리 흐름", "Cleanup Flow")},
        {"flowAccess",
            copy.text("넓은 범위를 스캔하기 전에 권한과 범위를 확인합니다.",
                "Permission and scope check before scanning broad roots.")},
        {"flowScan",
            copy.say(
                "Scan with protected skips: synced folders, mail, and keyrings become block logs, not candidates.")},
        {"flowReview",
            copy.text("검토 화면에 크기, 최근 사용, 안전 이유, 휴지통 우선 동작이 표시됩니다.",
                "Review preview shows size, recency, safety reason, and Trash-first behavior.")},
        {"scanHint", copy.scanRunnerHint()},
        {"trashOnly",
            copy.text("정리는 항목을 휴지통으로 이동할 뿐, 영구적으로 삭제하지 않습니다.",
                "Cleanup moves items to Trash only; it does not permanently delete them.")},
        {"selectAll", copy.selectAll()},
        {"clear", copy.clearSelection()},
        {"moveToTrash", copy.moveSelectedToTrash()},
        {"skipped", copy.skippedTitle()},
        {"skippedNote",
            copy.text("건너뛴 항목은 오류가 아니라 보호된 항목으로 설명됩니다.",
                "Skipped items are explained as protected, not as errors.")},
        {"ignored", copy.ignoredCandidatesTitle()},
        {"ignoredNote", copy.ignoredCandidatesDescription()},
        {"ignoredEmpty", copy.ignoredCandidatesEmpty()},
        {"showAgain", copy.showIgnoredCandidateAgain()},
        {"clearIgnored", copy.clearIgnoredCandidates()},
        {"filteredTitle", copy.noFilteredCleanupCandidatesTitle()},
        {"filteredText", copy.noFilteredCleanupCandidatesDescription()},
        {"clearFilters", copy.say("Clear filters")},
        {"needsAccess",
            copy.text(
                "스캔을 시작하기 전에 홈 폴더 접근을 허용하세요.", "Grant home folder access before starting a scan.")},
    });
}

QVariantMap CleanupScreenModel::placeholder() const
{
    const auto copy = words();
    const auto scan = scanText().toStdString();
    switch (face()) {
    case Face::Denied:
        return mapOf({{"icon", "lock"}, {"title", copy.homeAccessOnboardingTitle()},
            {"text",
                copy.text("스캔을 시작하기 전에 홈 폴더 접근을 허용하세요.",
                    "Grant home folder access before starting a scan.")
                    + copy.text(" ", " ")
                    + copy.text("접근을 허용하지 않아도 시스템 상태는 볼 수 있습니다. 정리 스캔은 홈 폴더 접근을 "
                                "허용하면 사용할 수 있습니다.",
                        "You can still view system status without access. Cleanup scans unlock after home folder "
                        "access is granted.")},
            {"action", copy.text("접근을 허용하고 스캔", "Grant Access to Scan")}, {"actionIcon", "folder"}});
    case Face::Empty:
        return mapOf({{"icon", "done"}, {"title", copy.noCleanupCandidatesTitle()},
            {"text", copy.noCleanupCandidatesDescription()}, {"action", scan}, {"actionIcon", "refresh"},
            {"secondary", copy.text("스캔 설정", "Scan Settings")}});
    case Face::Idle:
    case Face::Scanning:
    case Face::List:
        break;
    }
    return mapOf({{"icon", "scan"}, {"title", copy.text("스캔 준비 완료", "Ready to scan")},
        {"text", copy.dashboardHomeScanSummaryBody(HomeScanState::ready)}, {"action", scan}, {"actionIcon", "scan"}});
}

QVariantList CleanupScreenModel::scanModes() const
{
    const auto copy = words();
    return pickerChoices(CleanerCore::availableModes(m_dashboard.accessPolicy().supportsDirectDistributionScans),
        [&copy](CleanupScanMode mode) { return copy.scanModeName(mode); });
}

QVariantList CleanupScreenModel::categories() const
{
    const auto copy = words();
    return QVariantList{pickerChoice({}, copy.candidateListAllCategoriesFilter())}
    + pickerChoices(session().index()->availableCategories(),
        [&copy](CleanupCategory category) { return copy.categoryName(category); });
}

QVariantList CleanupScreenModel::safetyLevels() const
{
    const auto copy = words();
    return QVariantList{pickerChoice({}, copy.candidateListAllSafetyFilter())}
    + pickerChoices(
        session().index()->availableSafetyLevels(), [&copy](CleanupSafety safety) { return copy.safetyName(safety); });
}

QVariantList CleanupScreenModel::groupings() const
{
    const auto copy = words();
    return pickerChoices(Platform::allCases<CandidateListGroupingMode>(),
        [&copy](CandidateListGroupingMode mode) { return copy.candidateListGroupingModeName(mode); });
}

QString CleanupScreenModel::summary() const
{
    const auto copy = words();
    const auto total = static_cast<std::int64_t>(session().index()->size());
    return shown(DashboardWords::joinedParts({copy.visibleCleanupCandidatesSummary(m_list.visibleCount(), total),
        copy.byteSize(session().report().reclaimableBytes())}));
}

QString CleanupScreenModel::scannedAt() const
{
    const auto copy = words();
    return shown(DashboardWords::joinedParts({copy.text("마지막 스캔 · 현재 세션", "Last scan · current session"),
        Platform::LocalizedText::shortTime(session().report().scannedAt, copy.locale())}));
}

QString CleanupScreenModel::skippedText() const
{
    const auto count = static_cast<std::int64_t>(session().report().skippedItems.size());
    return count == 0 ? QString() : shown(words().say("{} skipped", count));
}

QString CleanupScreenModel::skippedCount() const
{
    return shown(words().cleanupPreviewItemCount(static_cast<std::int64_t>(session().report().skippedItems.size())));
}

QString CleanupScreenModel::skippedSummary() const
{
    return shown(words().skippedSummary(static_cast<std::int64_t>(session().report().skippedItems.size())));
}

QString CleanupScreenModel::ignoredText() const
{
    const auto count = static_cast<std::int64_t>(session().ignoredItems().size());
    return count == 0 ? QString() : shown(words().say("{} hidden", count));
}

QString CleanupScreenModel::ignoredSummary() const
{
    return shown(words().ignoredCandidatesSummary(static_cast<std::int64_t>(session().ignoredItems().size())));
}

QString CleanupScreenModel::progressTitle() const
{
    switch (session().phase()) {
    case Phase::cleaning:
        return shown(words().cleaningMessage());
    case Phase::restoring:
        return shown(words().restoringMessage());
    default:
        return shown(words().scanningMessage());
    }
}

QString CleanupScreenModel::visiting() const
{
    const auto copy = words();
    if (isMoving()) {
        const auto& items = session().itemProgress();
        return shown(copy.say(
            "{} of {} items", static_cast<std::int64_t>(items.doneItems), static_cast<std::int64_t>(items.allItems)));
    }
    const auto& url = session().scanProgress().currentURL;
    if (!url) {
        return shown(copy.scanRunnerPreparing());
    }
    const Platform::HomePathAbbreviation home(m_dashboard.services().homeDirectory);
    return shown(copy.scanRunnerVisiting()) + u' ' + shownText(home.abbreviate(url->path()));
}

qreal CleanupScreenModel::progress() const
{
    if (isMoving()) {
        const auto& items = session().itemProgress();
        return items.allItems == 0 ? -1 : static_cast<qreal>(items.doneItems) / static_cast<qreal>(items.allItems);
    }
    const auto& scan = session().scanProgress();
    return scan.totalLocations == 0 ? -1 : scan.fractionCompleted;
}

QString CleanupScreenModel::progressText() const
{
    return progress() < 0 ? QString() : QStringLiteral("%1%").arg(std::lround(progress() * 100));
}

QVariantList CleanupScreenModel::figures() const
{
    if (isMoving()) {
        return {};
    }
    const auto copy = words();
    const auto locale = localeOf(copy);
    const auto& scan = session().scanProgress();
    return {figure(locale.toString(qlonglong(scan.completedItems)), copy.scanRunnerScannedLabel()),
        figure(locale.toString(qlonglong(scan.foundCandidates)), copy.scanRunnerCandidatesLabel()),
        figure(locale.toString(qlonglong(scan.skippedItems)), copy.scanRunnerSkippedLabel()),
        figure(QStringLiteral("%1 / %2").arg(scan.completedLocations).arg(scan.totalLocations), copy.say("Locations"))};
}

QString CleanupScreenModel::selectionTitle() const
{
    const auto copy = words();
    return shown(hasSelection()
            ? copy.selectedSummary(session().selectedCount(), session().selectedBytes(), m_list.hiddenSelectedCount())
            : copy.bulkSelectionAccessibilityValue(0, 0));
}

QVariantList CleanupScreenModel::selectionPills() const
{
    return confidencePills(words(), session().review().selection().preview().safetyBreakdown, PillsOfNone::leftOut);
}

int CleanupScreenModel::selectionState() const
{
    return !hasSelection() ? Qt::Unchecked : session().areAllCandidatesSelected() ? Qt::Checked : Qt::PartiallyChecked;
}

QString CleanupScreenModel::selectionValue() const
{
    return shown(words().bulkSelectionAccessibilityValue(
        session().selectedCount(), static_cast<std::int64_t>(session().index()->size())));
}

bool CleanupScreenModel::canSelectAll() const
{
    return face() == Face::List && !isBusy() && session().index()->size() > 0 && !session().areAllCandidatesSelected();
}

QVariantList CleanupScreenModel::factsOf(int row) const
{
    const auto* const candidate = m_list.candidate(row);
    if (candidate == nullptr) {
        return {};
    }
    const auto copy = words();
    QVariantList facts;
    const auto add = [&facts](const std::string& title, const std::string& text) {
        facts.append(QVariant::fromValue(NamedValue{.name = shown(title), .value = shownText(text)}));
    };
    add(copy.say("Path"), candidate->url.path());
    add(copy.text("표시되는 이유", "Why is this listed?"), copy.cleanupCandidateTrustExplanation(*candidate));
    add(copy.categoryName(candidate->category), copy.categoryExplanation(candidate->category));
    if (const auto& context = candidate->appCacheContext) {
        add(copy.say("Application"), copy.appCacheContextSummary(*context));
    }
    if (const auto advisory = copy.developerCleanupAdvisory(candidate->category, candidate->url.path())) {
        const auto gap = copy.text(" ", " ");
        add(advisory->title, advisory->summary + gap + advisory->regeneration + gap + advisory->impact);
        add(copy.say("Before you move it"), advisory->prerequisite + gap + advisory->action);
    }
    const auto now = m_dashboard.services().session.now();
    if (const auto project = DeveloperProjectAdvisoryAnalyzer::opportunity(*candidate, now)) {
        add(copy.developerProjectAdvisoryArtifactName(project->artifact),
            copy.developerProjectAdvisoryActivity(project->activityLevel, project->ageInDays.value_or(0))
                + copy.text(" ", " ") + copy.developerProjectAdvisoryNote(project->artifact));
    }
    return facts;
}

QString CleanupScreenModel::menuNameOf(int row) const
{
    const auto* const candidate = m_list.candidate(row);
    return candidate == nullptr ? QString() : shownText(words().say("Actions for {}", candidate->displayName));
}

QVariantList CleanupScreenModel::snoozesOf(int row) const
{
    const auto* const candidate = m_list.candidate(row);
    if (candidate == nullptr) {
        return {};
    }
    const auto copy = words();
    return pickerChoices(availableIgnoreDurations(*candidate),
        [&copy](CleanupIgnoreDuration duration) { return copy.cleanupIgnoreDurationTitle(duration); });
}

} // namespace KarvelloUI
