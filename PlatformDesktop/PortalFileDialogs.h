#pragma once

#include "Platform/Services/FileDialogs.h"
#include "PlatformDesktop/DesktopBus.h"
#include "PlatformDesktop/PortalRequest.h"

#include <chrono>
#include <functional>
#include <memory>

namespace PlatformDesktop {

/// The dialogs of the desktop's portal (org.freedesktop.portal.FileChooser), and other ones where no portal has any. An
/// open dialog is closed with this object.
class PortalFileDialogs final : public Platform::FileDialogs {
public:
    struct Settings {
        /// How long the portal is waited for until it shows a dialog: it may have to be started.
        std::chrono::milliseconds patience = std::chrono::seconds(10);
    };

    /// Without a fallback, nothing is picked where no portal has dialogs.
    PortalFileDialogs(
        std::shared_ptr<DesktopBus> bus, std::unique_ptr<Platform::FileDialogs> fallback, Settings settings);

    void chooseFolder(FolderRequest request, Answer answer) override;
    void chooseDestination(SaveRequest request, Answer answer) override;

private:
    using UseFallback = std::function<void(Platform::FileDialogs&, Answer)>;

    void ask(const QString& method, const std::string& title, const QVariantMap& options, Platform::DirectoryHint hint,
        UseFallback useFallback, Answer answer);
    /// What answers once, later, when another dialog may be opened; it may be the end of this object.
    [[nodiscard]] Answer ending(Answer answer);

    const std::shared_ptr<DesktopBus> m_bus;
    const std::unique_ptr<Platform::FileDialogs> m_fallback;
    const Settings m_settings;
    bool m_isOpen = false;
    QObject m_context;
};

} // namespace PlatformDesktop
