#pragma once

#include "Platform/Services/DesktopTools.h"
#include "Platform/Services/Environment.h"
#include "PlatformDesktop/DesktopBus.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace PlatformDesktop {

/// The tools of the usual desktops, the first that is installed. They go on when this program ends.
class LinuxDesktopTools final : public Platform::DesktopTools {
public:
    struct Settings {
        /// Those named "applications", in the order in which they count.
        std::vector<std::string> applicationFolders = {};
        /// Where programs are looked for.
        std::vector<std::string> programFolders = {};
        /// The user's desktop is KDE's, so its settings come first.
        bool isPlasma = false;
        /// How long a tool that the session bus starts is waited for.
        std::chrono::milliseconds patience = std::chrono::seconds(10);

        /// Those of the session that this process runs in.
        static Settings current(const Platform::Environment& environment);
    };
    using CopyText = std::function<void(const std::string&)>;

    LinuxDesktopTools(std::shared_ptr<DesktopBus> bus, Settings settings, CopyText copyText);

    void openSystemMonitor(Answer answer) override;
    void openPrivacySettings(Answer answer) override;
    void copyText(const std::string& text) override;

private:
    class Search;

    void tryNext(const std::shared_ptr<Search>& search);
    [[nodiscard]] bool startSettings() const;

    const std::shared_ptr<DesktopBus> m_bus;
    const Settings m_settings;
    const CopyText m_copyText;
    QObject m_context;
};

} // namespace PlatformDesktop
