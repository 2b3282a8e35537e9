#include "KarvelloUI/Screens/Cleanup/CleanupScreenModel.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <QPointer>

namespace KarvelloUI {

using CleanerCore::CleanupScanMode;
using Phase = CleanerViewModel::Phase;

// One at a time, the most severe.
CleanupScreenModel::Notice CleanupScreenModel::notice() const
{
    const auto shownFace = face();
    if (session().errorMessage()) {
        return Notice::failure;
    }
    if (isMoving() || shownFace == Face::Scanning) {
        return Notice::none;
    }
    const bool hasResult = session().lastCleanResult() || session().lastRestoreResult();
    if (session().phase() == Phase::finished && hasResult && !m_isResultClosed) {
        return Notice::result;
    }
    // The window asks for access over the screen, and nothing can be scanned before.
    if (!m_dashboard.hasHomeAccess()) {
        return Notice::none;
    }
    // Without candidates there is nothing to take care with.
    if (shownFace != Face::Empty && m_dashboard.scanMode() != CleanupScanMode::standard) {
        return Notice::aggressive;
    }
    return m_diagnoses.empty() || m_isPermissionClosed ? Notice::none : Notice::permission;
}

QVariant CleanupScreenModel::banner() const
{
    const auto shownNotice = notice();
    return shownNotice == Notice::none ? QVariant::fromValue(nullptr) : QVariant::fromValue(bannerOf(shownNotice));
}

CleanupBanner CleanupScreenModel::bannerOf(Notice notice) const
{
    const auto copy = words();
    switch (notice) {
    case Notice::failure:
        return {.kind = CleanupBanner::review,
            .text = shownText(copy.skippedReason(*session().errorMessage())),
            .iconName = QStringLiteral("warning"),
            .canClose = true};
    case Notice::result: {
        const auto& restored = session().lastRestoreResult();
        const auto mode = CleanerCore::CleaningMode::moveToTrash;
        return {.kind = CleanupBanner::accent,
            .title = shown(restored ? copy.lastRestoreTitle() : copy.lastCleanTitle(mode)),
            .text = shown(restored ? copy.lastRestoreSubtitle(*restored)
                                   : copy.lastCleanSubtitle(*session().lastCleanResult(), mode)),
            .actionText = shown(copy.text("검토 및 증거 열기", "Open Review & Evidence")),
            .iconName = QStringLiteral("done"),
            .canClose = true};
    }
    case Notice::aggressive:
        return {.kind = CleanupBanner::caution,
            .title = shown(copy.aggressiveWarningTitle()),
            .text = shown(copy.aggressiveWarningBody()),
            .iconName = QStringLiteral("warning")};
    case Notice::permission: {
        const auto& first = m_diagnoses.front();
        return {.kind = CleanupBanner::caution,
            .title = shown(copy.permissionDiagnosticTitle(first.kind, static_cast<std::int64_t>(first.items.size()))),
            .text = shown(copy.permissionDiagnosticAction(first.kind)),
            .actionText = shown(copy.macDashboardSectionTitle(MacDashboardSection::settings)),
            .iconName = QStringLiteral("warning"),
            .canClose = true};
    }
    case Notice::none:
        break;
    }
    return {};
}

void CleanupScreenModel::closeBanner()
{
    switch (notice()) {
    case Notice::failure:
        session().dismissError();
        return;
    case Notice::result:
        m_isResultClosed = true;
        break;
    case Notice::permission:
        m_isPermissionClosed = true;
        break;
    case Notice::aggressive:
    case Notice::none:
        return;
    }
    Q_EMIT bannerChanged();
}

void CleanupScreenModel::followBanner()
{
    switch (notice()) {
    case Notice::result:
        m_dashboard.selectSection(MacDashboardSection::reviewEvidence);
        return;
    case Notice::permission:
        openSettings();
        return;
    case Notice::failure:
    case Notice::aggressive:
    case Notice::none:
        return;
    }
}

void CleanupScreenModel::grantAccess()
{
    // The dialog may be open for longer than the screen.
    m_dashboard.requestHomeAccess([model = QPointer(this)](bool isGranted) {
        if (isGranted && model) {
            model->scan();
        }
    });
}

} // namespace KarvelloUI
