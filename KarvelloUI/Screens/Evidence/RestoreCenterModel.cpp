#include "KarvelloUI/Screens/Evidence/RestoreCenterModel.h"

#include "Platform/Base/LocalizedText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace KarvelloUI {

RestoreCenterModel::RestoreCenterModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_rows(dashboard)
    , m_refresh(dashboard, {MacDashboardSection::reviewEvidence}, [this] { refresh(); })
{
    const auto request = [this] { m_refresh.request(); };
    connect(&dashboard.cleaner(), &CleanerViewModel::resultsChanged, this, request);
    connect(&dashboard.cleaner(), &CleanerViewModel::auditEntriesChanged, this, [this] {
        // The log only tells where the session has nothing to.
        if (!m_dashboard.cleaner().lastCleanResult()) {
            m_refresh.request();
        }
    });
    connect(&dashboard.cleaner(), &CleanerViewModel::phaseChanged, this, [this] {
        Q_EMIT changed();
        Q_EMIT selectionChanged();
    });
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        m_rows.showOtherWords();
        m_refresh.request();
    });
    connect(
        &dashboard, &MacCleanerDashboardModel::restoreCenterSelectionChanged, this, &RestoreCenterModel::showSelection);
    refresh();
}

void RestoreCenterModel::refresh()
{
    const auto snapshot = m_dashboard.cleaner().restoreCenterSnapshot();
    m_facts = {.summary = m_dashboard.words().restoreCenterSummary(snapshot),
        .auditSource = snapshot.auditSource,
        .recordedAt = snapshot.recordedAt};
    const auto outcome = m_rows.show(snapshot);
    if (outcome == RestoreCenterList::Outcome::others) {
        // What was chosen was chosen among other rows.
        m_dashboard.setRestoreCenterSelectedIDs({});
    } else if (outcome == RestoreCenterList::Outcome::fewer) {
        RestoreCenterList::IDs remaining;
        std::ranges::set_intersection(
            m_dashboard.restoreCenterSelectedIDs(), m_rows.selectableIDs(), std::inserter(remaining, remaining.end()));
        m_dashboard.setRestoreCenterSelectedIDs(std::move(remaining));
    }
    Q_EMIT changed();
    showSelection();
}

void RestoreCenterModel::showSelection()
{
    m_rows.setSelected(m_dashboard.restoreCenterSelectedIDs());
    Q_EMIT selectionChanged();
}

QString RestoreCenterModel::title() const
{
    return shown(m_dashboard.words().restoreCenterTitle());
}

QString RestoreCenterModel::body() const
{
    return shown(m_dashboard.words().restoreCenterBody());
}

QString RestoreCenterModel::summary() const
{
    return isEmpty() ? QString() : shown(m_facts.summary);
}

QString RestoreCenterModel::eligibleText() const
{
    return offersRestore()
        ? shown(m_dashboard.words().count(m_rows.selectableCount(), "{} eligible item", "{} eligible items"))
        : QString();
}

QString RestoreCenterModel::ledgerNote() const
{
    if (!m_facts.auditSource || !m_facts.recordedAt) {
        return {};
    }
    const auto words = m_dashboard.words();
    return shown(words.restoreCenterLedgerNote(
        *m_facts.auditSource, Platform::LocalizedText::mediumMoment(*m_facts.recordedAt, words.locale())));
}

QString RestoreCenterModel::trashNote() const
{
    return shown(m_dashboard.words().text("휴지통을 비운 뒤에는 Karvello가 해당 항목을 복원할 수 없습니다. 먼저 원래 "
                                          "경로와 휴지통 위치를 다시 확인하세요.",
        "After Trash is emptied, Karvello cannot restore those items. Recheck original paths and Trash locations "
        "first."));
}

QString RestoreCenterModel::emptyTitle() const
{
    return shown(m_dashboard.words().say("Nothing to restore"));
}

QString RestoreCenterModel::emptyText() const
{
    return shown(m_dashboard.words().say("Items that a cleanup moves to Trash are listed here."));
}

QString RestoreCenterModel::revealOriginalTitle() const
{
    return shown(m_dashboard.words().restoreCenterRevealOriginal());
}

QString RestoreCenterModel::revealTrashTitle() const
{
    return shown(m_dashboard.words().restoreCenterRevealTrashLocation());
}

QString RestoreCenterModel::menuName() const
{
    return shown(m_dashboard.words().say("More"));
}

bool RestoreCenterModel::canSelect() const
{
    return offersRestore() && !m_dashboard.cleaner().isBusy();
}

QString RestoreCenterModel::selectionHint() const
{
    return offersRestore()
        ? shown(m_dashboard.words().restoreCenterSelectionHint(m_rows.selectedCount(), m_rows.selectableCount()))
        : QString();
}

Qt::CheckState RestoreCenterModel::checkState() const
{
    return m_rows.selectedCount() == 0                       ? Qt::Unchecked
        : m_rows.selectedCount() == m_rows.selectableCount() ? Qt::Checked
                                                             : Qt::PartiallyChecked;
}

QString RestoreCenterModel::checkName() const
{
    const auto words = m_dashboard.words();
    return shown(words.selectAll() + ", "
        + words.bulkSelectionAccessibilityValue(m_rows.selectedCount(), m_rows.selectableCount()));
}

QString RestoreCenterModel::restoreTitle() const
{
    return shown(m_dashboard.words().restoreCenterRestoreSelected(m_rows.selectedCount()));
}

bool RestoreCenterModel::canRestore() const
{
    return m_rows.selectedCount() > 0 && !m_dashboard.cleaner().isBusy();
}

bool RestoreCenterModel::isRestoring() const
{
    return m_dashboard.cleaner().phase() == CleanerViewModel::Phase::restoring;
}

void RestoreCenterModel::toggle(int key)
{
    const auto* const row = m_rows.row(key);
    if (row == nullptr || !row->isSelectable || !canSelect()) {
        return;
    }
    auto ids = m_dashboard.restoreCenterSelectedIDs();
    if (row->isSelected) {
        ids.erase(row->item.candidate.id);
    } else {
        ids.insert(row->item.candidate.id);
    }
    m_dashboard.setRestoreCenterSelectedIDs(std::move(ids));
}

void RestoreCenterModel::selectAll()
{
    if (canSelect()) {
        m_dashboard.setRestoreCenterSelectedIDs(m_rows.selectableIDs());
    }
}

void RestoreCenterModel::clearSelection()
{
    if (canSelect()) {
        m_dashboard.setRestoreCenterSelectedIDs({});
    }
}

void RestoreCenterModel::toggleAll()
{
    if (checkState() == Qt::Checked) {
        clearSelection();
    } else {
        selectAll();
    }
}

void RestoreCenterModel::restore()
{
    if (canRestore()) {
        m_dashboard.restoreSelectedTrashMoves();
    }
}

void RestoreCenterModel::revealOriginal(int key)
{
    if (const auto* const row = m_rows.row(key)) {
        m_dashboard.revealInFinder(row->item.candidate.url);
    }
}

void RestoreCenterModel::revealTrashLocation(int key)
{
    const auto* const row = m_rows.row(key);
    if (row != nullptr && row->item.destinationURL) {
        m_dashboard.revealInFinder(*row->item.destinationURL);
    }
}

} // namespace KarvelloUI
