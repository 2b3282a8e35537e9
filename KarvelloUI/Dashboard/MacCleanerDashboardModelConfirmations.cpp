#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <utility>

namespace KarvelloUI {

void MacCleanerDashboardModel::requestCleanSelected()
{
    cancelConfirmation();
    if (m_selectedSection != MacDashboardSection::cleanup || cleaner().isBusy()) {
        return;
    }
    const auto visible = cleaner().visibleCandidateIDs(words());
    auto snapshot = cleaner().review().selectionSnapshot(&visible);
    if (snapshot.count == 0) {
        return;
    }
    m_pendingCleanPreview = cleaner().review().cleanupPreview(&snapshot);
    m_pendingCleanSelection = std::move(snapshot);
    Q_EMIT confirmationChanged();
}

void MacCleanerDashboardModel::cleanSelected()
{
    if (!m_pendingCleanSelection) {
        return;
    }
    const auto confirmed = std::exchange(m_pendingCleanSelection, std::nullopt);
    const auto copy = words();
    cancelConfirmation();
    Q_EMIT confirmationChanged();
    cleaner().cleanSelected(
        CleanerCore::CleaningMode::moveToTrash, confirmed, copy.cleanFailureMessage(), copy.cleanCancelledMessage());
}

void MacCleanerDashboardModel::requestInsightClean(MacInsightFileSection section)
{
    cancelConfirmation();
    if (insights().isBusy() || insights().selectedFiles(section).empty()) {
        return;
    }
    m_pendingInsightSection = section;
    Q_EMIT confirmationChanged();
}

void MacCleanerDashboardModel::cleanSelectedInsight()
{
    if (const auto section = std::exchange(m_pendingInsightSection, std::nullopt)) {
        const auto copy = words();
        Q_EMIT confirmationChanged();
        insights().cleanSelected(*section, copy.cleanFailureMessage(), copy.cleanCancelledMessage());
    }
}

void MacCleanerDashboardModel::requestQuitSelected()
{
    cancelConfirmation();
    if (resourceRelief().selectedCount() > 0 && !resourceRelief().isRequestingQuit()) {
        m_isResourceReliefPending = true;
        Q_EMIT confirmationChanged();
    }
}

void MacCleanerDashboardModel::quitSelected()
{
    if (std::exchange(m_isResourceReliefPending, false)) {
        Q_EMIT confirmationChanged();
        resourceRelief().requestQuitForSelection();
    }
}

void MacCleanerDashboardModel::cancelConfirmation()
{
    const bool isShowing =
        m_pendingCleanSelection.has_value() || m_pendingInsightSection.has_value() || m_isResourceReliefPending;
    m_pendingCleanSelection.reset();
    m_pendingCleanPreview = {};
    m_pendingInsightSection.reset();
    m_isResourceReliefPending = false;
    if (isShowing) {
        Q_EMIT confirmationChanged();
    }
}

} // namespace KarvelloUI
