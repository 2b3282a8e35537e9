#include "KarvelloUI/Screens/Cleanup/CleanupScreenModel.h"

#include "KarvelloUI/Dashboard/ChoiceNotices.h"
#include "KarvelloUI/Dashboard/RawText.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using CleanerCore::CleanupScanMode;
using Phase = CleanerViewModel::Phase;

CleanupScreenModel::CleanupScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_list(dashboard.cleaner().review().selection(), dashboard.services().homeDirectory)
    , m_skipped(dashboard.services().homeDirectory)
    , m_exportMenu(dashboard, ExportMenuModel::Source::cleanupScan)
{
    // Who has a model can import its screen.
    const auto on = [this](auto signal, auto slot) { connect(&session(), signal, this, slot); };
    on(&CleanerViewModel::phaseChanged, &CleanupScreenModel::takeUpPhase);
    on(&CleanerViewModel::phaseChanged, &CleanupScreenModel::canChooseScanModeChanged);
    on(&CleanerViewModel::reportChanged, &CleanupScreenModel::takeUpReport);
    on(&CleanerViewModel::selectionChanged, &CleanupScreenModel::takeUpSelection);
    on(&CleanerViewModel::filtersChanged, &CleanupScreenModel::showList);
    on(&CleanerViewModel::filtersChanged, &CleanupScreenModel::filtersChanged);
    on(&CleanerViewModel::progressChanged, &CleanupScreenModel::progressChanged);
    on(&CleanerViewModel::ignoredItemsChanged, &CleanupScreenModel::takeUpIgnoredItems);
    on(&CleanerViewModel::errorMessageChanged, &CleanupScreenModel::bannerChanged);
    connect(&session(), &CleanerViewModel::resultsChanged, this, [this] {
        m_isResultClosed = false;
        Q_EMIT bannerChanged();
    });
    connect(&dashboard.insights(), &MacInsightsViewModel::phaseChanged, this,
        &CleanupScreenModel::canChooseScanModeChanged);
    connect(&dashboard, &MacCleanerDashboardModel::accessChanged, this, &CleanupScreenModel::faceChanged);
    connect(&dashboard, &MacCleanerDashboardModel::accessChanged, this, &CleanupScreenModel::bannerChanged);
    connect(
        &dashboard.preferences(), &DashboardPreferences::languageChanged, this, &CleanupScreenModel::takeUpLanguage);
    connect(&dashboard.preferences(), &DashboardPreferences::scanModeChanged, this, [this] {
        Q_EMIT scanModeChanged();
        Q_EMIT bannerChanged();
    });
    takeUpReport();
    takeUpIgnoredItems();
}

CleanupScreenModel::Face CleanupScreenModel::face() const
{
    switch (session().phase()) {
    case Phase::scanning:
        return Face::Scanning;
    case Phase::idle:
        return m_dashboard.hasHomeAccess() ? Face::Idle : Face::Denied;
    case Phase::cleaning:
    case Phase::restoring:
        return Face::List;
    case Phase::ready:
    case Phase::finished:
        break;
    }
    return session().report().candidates.empty() ? Face::Empty : Face::List;
}

QString CleanupScreenModel::faceName() const
{
    switch (face()) {
    case Face::Idle:
        return QStringLiteral("idle");
    case Face::Denied:
        return QStringLiteral("denied");
    case Face::Scanning:
        return QStringLiteral("scanning");
    case Face::Empty:
        return QStringLiteral("empty");
    case Face::List:
        return QStringLiteral("list");
    }
    return {};
}

QString CleanupScreenModel::scanText() const
{
    const bool hasReport = session().phase() != Phase::idle && session().phase() != Phase::scanning;
    return shown(hasReport ? words().scanAgain() : words().text("새 스캔 시작", "Start New Scan"));
}

QString CleanupScreenModel::scanMode() const
{
    return rawText(m_dashboard.scanMode());
}

void CleanupScreenModel::setScanMode(const QString& rawValue)
{
    const auto mode = fromRawText<CleanupScanMode>(rawValue);
    if (mode && canChooseScanMode() && *mode != m_dashboard.scanMode()) {
        noticeUnlessStored(m_dashboard, m_dashboard.preferences().setScanMode(*mode));
    }
}

void CleanupScreenModel::setSearchText(const QString& text)
{
    auto filters = session().filters();
    filters.searchText = text.toStdString();
    setFilters(filters);
}

QString CleanupScreenModel::category() const
{
    return rawText(session().filters().category);
}

void CleanupScreenModel::setCategory(const QString& rawValue)
{
    auto filters = session().filters();
    filters.category = fromRawText<CleanupCategory>(rawValue);
    setFilters(filters);
}

QString CleanupScreenModel::safety() const
{
    return rawText(session().filters().safety);
}

void CleanupScreenModel::setSafety(const QString& rawValue)
{
    auto filters = session().filters();
    filters.safety = fromRawText<CleanupSafety>(rawValue);
    setFilters(filters);
}

QString CleanupScreenModel::grouping() const
{
    return rawText(session().filters().groupingMode);
}

void CleanupScreenModel::setGrouping(const QString& rawValue)
{
    auto filters = session().filters();
    filters.groupingMode = fromRawText<CandidateListGroupingMode>(rawValue).value_or(filters.groupingMode);
    setFilters(filters);
}

void CleanupScreenModel::clearFilters()
{
    setFilters({.groupingMode = session().filters().groupingMode});
}

void CleanupScreenModel::setFilters(const CandidateListFilters& filters)
{
    if (filters != session().filters()) {
        session().setFilters(filters);
    }
}

void CleanupScreenModel::takeUpLanguage()
{
    showList();
    takeUpIgnoredItems();
    Q_EMIT textsChanged();
    Q_EMIT faceChanged();
    Q_EMIT choicesChanged();
    Q_EMIT bannerChanged();
    Q_EMIT progressChanged();
}

void CleanupScreenModel::takeUpReport()
{
    auto diagnoses = StoragePermissionAdvisor::diagnoses(session().report().skippedItems);
    if (diagnoses != m_diagnoses) {
        m_diagnoses = std::move(diagnoses);
        m_isPermissionClosed = false;
    }
    showList();
    Q_EMIT choicesChanged();
    Q_EMIT faceChanged();
    Q_EMIT bannerChanged();
}

void CleanupScreenModel::showList()
{
    m_list.showAt(
        m_dashboard.services().session.now(), session().index(), session().visibleCandidateSections(words()), words());
    m_skipped.show(session().index(), words());
    Q_EMIT listChanged();
    Q_EMIT selectionChanged();
}

void CleanupScreenModel::takeUpSelection()
{
    if (const auto id = std::exchange(m_toggledID, {}); id.empty()) {
        m_list.announceSelection();
    } else {
        m_list.announceSelection(id);
    }
    Q_EMIT selectionChanged();
}

void CleanupScreenModel::takeUpPhase()
{
    Q_EMIT faceChanged();
    Q_EMIT progressChanged();
    Q_EMIT bannerChanged();
    Q_EMIT selectionChanged();
}

void CleanupScreenModel::takeUpIgnoredItems()
{
    m_ignored.showItems(session().ignoredItems(), m_dashboard.services().homeDirectory, words());
    Q_EMIT listChanged();
}

void CleanupScreenModel::followPlaceholder()
{
    switch (face()) {
    case Face::Denied:
        grantAccess();
        return;
    case Face::List:
        clearFilters();
        return;
    case Face::Idle:
    case Face::Empty:
        scan();
        return;
    case Face::Scanning:
        return;
    }
}

void CleanupScreenModel::toggle(int row)
{
    const auto* const candidate = m_list.candidate(row);
    if (candidate == nullptr || isBusy()) {
        return;
    }
    m_toggledID = candidate->id;
    session().setSelected(*candidate, !session().isSelected(*candidate));
    m_toggledID.clear();
}

void CleanupScreenModel::toggleSection(const QString& id)
{
    const auto section = std::ranges::find(m_list.sections(), id, &CandidateListRows::Section::id);
    if (section == m_list.sections().end() || isBusy()) {
        return;
    }
    const auto positions = section->candidates;
    session().setSelected(positions, section->selectedCount < std::ssize(positions));
}

void CleanupScreenModel::setOpen(int row, bool isOpen)
{
    if (const auto* const candidate = m_list.candidate(row)) {
        m_list.setOpen(candidate->id, isOpen);
    }
}

bool CleanupScreenModel::isRowOpen(int row) const
{
    const auto* const candidate = m_list.candidate(row);
    return candidate != nullptr && m_list.isOpen(candidate->id);
}

void CleanupScreenModel::selectAll()
{
    if (canSelectAll()) {
        session().selectAllCandidates();
    }
}

void CleanupScreenModel::clearSelection()
{
    if (!isBusy()) {
        session().clearSelection();
    }
}

void CleanupScreenModel::toggleAll()
{
    if (session().areAllCandidatesSelected()) {
        clearSelection();
    } else {
        selectAll();
    }
}

void CleanupScreenModel::snooze(int row, const QString& duration)
{
    const auto* const candidate = m_list.candidate(row);
    const auto wanted = fromRawText<CleanupIgnoreDuration>(duration);
    if (candidate != nullptr && wanted && !isBusy()) {
        // The row goes with the call.
        const auto hidden = *candidate;
        session().snoozeCandidate(hidden, *wanted);
    }
}

void CleanupScreenModel::reveal(int row)
{
    if (const auto* const candidate = m_list.candidate(row)) {
        m_dashboard.revealInFinder(candidate->url);
    }
}

void CleanupScreenModel::showAgain(int row)
{
    if (const auto* const item = m_ignored.row(row)) {
        // A copy: the row goes with the item.
        session().removeIgnoredItem(std::string(item->id));
    }
}

} // namespace KarvelloUI
