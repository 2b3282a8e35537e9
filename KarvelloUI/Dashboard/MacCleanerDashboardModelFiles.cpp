#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"
#include "Platform/Base/UnseenText.h"

#include <algorithm>
#include <utility>

namespace KarvelloUI {

void MacCleanerDashboardModel::revealInFinder(const Platform::FileURL& item)
{
    m_waitingAlerts.clear();
    dismissAlert();
    dismissNotice();
    if (!isStanding(item)) {
        openParent(item);
        return;
    }
    m_services.fileViewer.select(item, [this, item](bool isTaken) {
        if (!isTaken) {
            openParent(item);
        }
    });
}

void MacCleanerDashboardModel::openParent(const Platform::FileURL& item)
{
    const Platform::FileURL parent = item.deletingLastPathComponent();
    const auto shownPath = [home = m_services.homeDirectory](const Platform::FileURL& url) {
        return Platform::Text::escapingUnseen(Platform::HomePathAbbreviation(home).abbreviate(url.path()));
    };
    if (!isStanding(parent)) {
        const auto copy = words();
        showAlert({.title = shown(copy.finderRevealFailedTitle()),
            .message =
                shownLines(copy.say("Neither the item nor its folder exists any more.") + "\n" + shownPath(item))});
        return;
    }
    m_services.fileViewer.open(parent, [this, item, shownPath](bool isOpened) {
        const auto copy = words();
        if (!isOpened) {
            showAlert({.title = shown(copy.finderRevealFailedTitle()),
                .message = shownLines(copy.finderRevealFailedMessage(shownPath(item)))});
        } else if (!isStanding(item)) {
            showNotice({.title = shown(copy.text("상위 폴더를 열었습니다", "Opened Parent Folder")),
                .message = shownLines(copy.finderItemMissingMessage(shownPath(item.deletingLastPathComponent())))});
        }
    });
}

bool MacCleanerDashboardModel::isStanding(const Platform::FileURL& item) const
{
    return m_services.session.fileManager.identityValues(Platform::ItemReference(item)).has_value();
}

void MacCleanerDashboardModel::showAlert(FinderRevealAlert alert)
{
    const auto saysTheSame = [&alert](const FinderRevealAlert& other) {
        return other.title == alert.title && other.message == alert.message;
    };
    if (m_alert) {
        if (!saysTheSame(*m_alert) && std::ranges::none_of(m_waitingAlerts, saysTheSame)) {
            m_waitingAlerts.push_back(std::move(alert));
        }
        return;
    }
    m_alert = std::move(alert);
    Q_EMIT alertChanged();
}

void MacCleanerDashboardModel::showNotice(FinderRevealNotice notice)
{
    m_notice = std::move(notice);
    Q_EMIT noticeChanged();
}

void MacCleanerDashboardModel::dismissAlert()
{
    if (std::exchange(m_alert, std::nullopt)) {
        if (!m_waitingAlerts.empty()) {
            m_alert = std::move(m_waitingAlerts.front());
            m_waitingAlerts.pop_front();
        }
        Q_EMIT alertChanged();
    }
}

void MacCleanerDashboardModel::dismissNotice()
{
    if (std::exchange(m_notice, std::nullopt)) {
        Q_EMIT noticeChanged();
    }
}

void MacCleanerDashboardModel::openActivityMonitor()
{
    m_services.tools.openSystemMonitor([this](bool isOpened) {
        if (!isOpened) {
            const auto copy = words();
            showNotice({.title = shown(copy.say("System monitor not found")),
                .message = shown(copy.say("No system monitor is installed that Karvello knows."))});
        }
    });
}

} // namespace KarvelloUI
