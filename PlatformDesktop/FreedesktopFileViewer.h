#pragma once

#include "Platform/Services/Environment.h"
#include "Platform/Services/FileViewer.h"
#include "PlatformDesktop/DesktopBus.h"
#include "PlatformDesktop/ShownItem.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace PlatformDesktop {

/// The file manager by its name on the session bus (org.freedesktop.FileManager1), else by the portal, else the program
/// that the user opens folders with (xdg-open), which is given a folder only. Files are named, or handed over as
/// something that cannot be read: none is ever opened, whatever it is.
///
/// Who does not answer in time is not followed by the next one: it may still show what it was asked for.
class FreedesktopFileViewer final : public Platform::FileViewer {
public:
    struct Settings {
        /// Where xdg-open is looked for.
        std::vector<std::string> programFolders = {};
        /// How long each of them is waited for: a file manager may have to be started.
        std::chrono::milliseconds patience = std::chrono::seconds(10);

        static Settings current(const Platform::Environment& environment);
    };

    FreedesktopFileViewer(std::shared_ptr<DesktopBus> bus, Settings settings);

    void select(const Platform::FileURL& item, Answer answer) override;
    void open(const Platform::FileURL& folder, Answer answer) override;

private:
    /// What is shown, and the folder that is opened where nothing can be shown.
    struct Request {
        Platform::FileURL item;
        ShownItemKind kind;
        Platform::FileURL folder;
        Answer answer;
    };

    void askManager(const QString& method, Request request);
    void askPortal(Request request);
    void startProgram(const Request& request) const;

    const std::shared_ptr<DesktopBus> m_bus;
    const Settings m_settings;
    QObject m_context;
};

} // namespace PlatformDesktop
