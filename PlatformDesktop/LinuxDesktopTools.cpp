#include "PlatformDesktop/LinuxDesktopTools.h"

#include "Platform/Linux/DesktopCommandLine.h"
#include "Platform/Linux/DesktopEntries.h"
#include "PlatformDesktop/DetachedProgram.h"

#include <QtCore/QVariant>
#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace PlatformDesktop {

using Platform::DesktopEntries;
using Platform::DesktopEntry;

namespace {

/// By their desktop files.
constexpr auto kSystemMonitors = std::to_array<const char*>({"org.gnome.SystemMonitor", "gnome-system-monitor",
    "org.kde.plasma-systemmonitor", "org.kde.ksysguard", "mate-system-monitor", "xfce4-taskmanager", "lxtask"});

} // namespace

/// One way through the applications that could be meant.
class LinuxDesktopTools::Search {
public:
    Search(const std::vector<std::string>& folders, Answer answer)
        : m_answer(std::move(answer))
        , m_entries(folders, {})
    {
    }

    /// Null after the last.
    const DesktopEntry* next()
    {
        while (!m_rest.empty()) {
            const auto* const entry = m_entries.find(m_rest.front());
            m_rest = m_rest.subspan(1);
            if (entry != nullptr && !entry->runsInTerminal) {
                return entry;
            }
        }
        return nullptr;
    }

    void answer(bool isStarted) const { m_answer(isStarted); }

private:
    const Answer m_answer;
    DesktopEntries m_entries;
    std::span<const char* const> m_rest = kSystemMonitors;
};

LinuxDesktopTools::Settings LinuxDesktopTools::Settings::current(const Platform::Environment& environment)
{
    // A list with colons, such as "ubuntu:GNOME".
    const auto desktops = ":" + environment.value("XDG_CURRENT_DESKTOP").value_or("") + ":";
    return {
        .applicationFolders = DesktopEntries::foldersOf(environment),
        .programFolders = DetachedProgram::foldersOf(environment.value("PATH").value_or("")),
        .isPlasma = desktops.contains(":KDE:"),
    };
}

LinuxDesktopTools::LinuxDesktopTools(std::shared_ptr<DesktopBus> bus, Settings settings, CopyText copyText)
    : m_bus(std::move(bus))
    , m_settings(std::move(settings))
    , m_copyText(std::move(copyText))
{
}

void LinuxDesktopTools::openSystemMonitor(Answer answer)
{
    const auto search = std::make_shared<Search>(m_settings.applicationFolders, std::move(answer));
    QMetaObject::invokeMethod(&m_context, [this, search] { tryNext(search); }, Qt::QueuedConnection);
}

void LinuxDesktopTools::tryNext(const std::shared_ptr<Search>& search)
{
    const auto* const entry = search->next();
    if (entry == nullptr) {
        search->answer(false);
        return;
    }
    const auto startProgram = [this, search, entry] {
        const auto words = Platform::DesktopCommandLine::words(entry->commandLine);
        if (words && DetachedProgram::start(*words, m_settings.programFolders)) {
            search->answer(true);
        } else {
            tryNext(search);
        }
    };
    if (!entry->isDBusActivatable) {
        startProgram();
        return;
    }
    auto message = QDBusMessage::createMethodCall(QString::fromStdString(entry->identifier),
        SessionBus::objectPathOf(entry->identifier), QStringLiteral("org.freedesktop.Application"),
        QStringLiteral("Activate"));
    message.setArguments({QVariantMap()});
    m_bus->call(&m_context, message, m_settings.patience, SessionBus::AbsentService::isStarted,
        [search, startProgram](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage) {
                search->answer(true);
            } else if (SessionBus::isLate(reply)) {
                // It may still come, and one is enough.
                search->answer(false);
            } else {
                startProgram();
            }
        });
}

void LinuxDesktopTools::openPrivacySettings(Answer answer)
{
    QMetaObject::invokeMethod(
        &m_context, [this, answer = std::move(answer)] { answer(startSettings()); }, Qt::QueuedConnection);
}

bool LinuxDesktopTools::startSettings() const
{
    const auto start = [this](const std::vector<std::string>& words) {
        return DetachedProgram::start(words, m_settings.programFolders);
    };
    const auto startGnome = [&] { return start({"gnome-control-center", "privacy"}); };
    const auto startPlasma = [&] {
        // A module that is not installed is an error message instead of settings.
        const bool hasModule = DesktopEntries(m_settings.applicationFolders, {}).find("kcm_recentFiles") != nullptr;
        return hasModule ? start({"systemsettings", "kcm_recentFiles"}) : start({"systemsettings"});
    };
    return m_settings.isPlasma ? startPlasma() || startGnome() : startGnome() || startPlasma();
}

void LinuxDesktopTools::copyText(const std::string& text)
{
    m_copyText(text);
}

} // namespace PlatformDesktop
