#include "KarvelloMac/StatusItem.h"

#include "KarvelloUI/MenuBar/KarvelloMenuBarStrings.h"

namespace KarvelloMac {

using Destination = KarvelloUI::KarvelloDashboardLaunchDestination;
using KarvelloUI::shown;

StatusItem::StatusItem(const QIcon& icon, const KarvelloUI::DashboardPreferences& preferences, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_dashboard(m_menu.addAction(QString()))
    , m_cleanup(m_menu.addAction(QString()))
    , m_memory(m_menu.addAction(QString()))
    , m_system(m_menu.addAction(QString()))
    , m_quit((m_menu.addSeparator(), m_menu.addAction(QString())))
{
    const auto opens = [this](QAction* action, Destination destination) {
        connect(action, &QAction::triggered, this, [this, destination] { Q_EMIT openRequested(destination); });
    };
    opens(m_dashboard, Destination::dashboard);
    opens(m_cleanup, Destination::cleanupReview);
    opens(m_memory, Destination::memoryReview);
    opens(m_system, Destination::systemReview);
    connect(m_quit, &QAction::triggered, this, &StatusItem::quitRequested);
    connect(&m_item, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // The second click of a double click would close what the first one opened.
        if (reason != QSystemTrayIcon::Context && reason != QSystemTrayIcon::DoubleClick) {
            Q_EMIT activated();
        }
    });
    connect(&preferences, &KarvelloUI::DashboardPreferences::languageChanged, this, &StatusItem::setTexts);
    setTexts();
    m_item.setIcon(icon);
    m_item.setToolTip(QStringLiteral("Karvello"));
    m_item.setContextMenu(&m_menu);
    m_item.show();
}

bool StatusItem::isShown() const
{
    return QSystemTrayIcon::isSystemTrayAvailable() && m_item.isVisible();
}

void StatusItem::setTexts()
{
    const auto words = m_preferences.words();
    const KarvelloUI::KarvelloMenuBarStrings strings{m_preferences.language()};
    using Section = KarvelloUI::MacDashboardSection;
    m_dashboard->setText(shown(words.macDashboardSectionTitle(Section::dashboard)));
    m_cleanup->setText(shown(words.macDashboardSectionTitle(Section::cleanup)));
    m_memory->setText(shown(words.macDashboardSectionTitle(Section::memoryAnalysis)));
    m_system->setText(shown(words.macDashboardSectionTitle(Section::system)));
    m_quit->setText(shown(strings.quitTitle()));
}

} // namespace KarvelloMac
