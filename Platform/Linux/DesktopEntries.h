#pragma once

#include "Platform/Services/Environment.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// One application as its desktop file tells of it (Desktop Entry Specification 1.5).
struct DesktopEntry {
    /// The name of the file without its ending; "a-b" for "b.desktop" in the folder "a".
    std::string identifier;
    /// In the first of the user's languages that the file has, and otherwise in its own.
    std::string name;
    /// It is of the type "Application" and menus show it.
    bool isShown = false;
    bool runsInTerminal = false;
    /// The last component of the program that it starts; empty where it starts none of its own.
    std::string program;
    /// How it is started, for `DesktopCommandLine`; empty if only the session bus starts it.
    std::string commandLine;
    /// The session bus starts it by its identifier.
    bool isDBusActivatable = false;

    /// Nothing for a text that is no desktop file, or one that counts as deleted ("Hidden").
    static std::optional<DesktopEntry> parse(
        std::string identifier, std::string_view text, const std::vector<std::string>& languages);
};

/// The desktop files of a machine, of several with one identifier the first. Each is read when it is asked for, once: an
/// object serves one look at the machine and belongs to one thread.
class DesktopEntries {
public:
    /// `folders` are those named "applications", in the order in which they count. A file or folder that cannot be read
    /// is not there. `languages` are keys such as "de_AT" and "de", the best first.
    DesktopEntries(const std::vector<std::string>& folders, std::vector<std::string> languages);

    /// The folders of the user, of the system, and of Flatpak and snap whether or not the environment tells of them.
    [[nodiscard]] static std::vector<std::string> foldersOf(const Environment& environment);
    [[nodiscard]] static std::vector<std::string> languagesOf(const Environment& environment);

    /// Null if there is no such file. Valid as long as this object.
    [[nodiscard]] const DesktopEntry* find(std::string_view identifier);
    /// The one application that starts a program of this name, null if there is none or several that could be meant.
    [[nodiscard]] const DesktopEntry* ofProgram(std::string_view program);

private:
    struct Slot {
        std::string path;
        bool isRead = false;
        std::optional<DesktopEntry> entry = {};
    };

    void addFolder(const std::string& path, const std::string& prefix, int depth);
    [[nodiscard]] const DesktopEntry* read(const std::string& identifier, Slot& slot);

    std::map<std::string, Slot, std::less<>> m_slots;
    std::vector<std::string> m_languages;
    std::optional<std::multimap<std::string, const DesktopEntry*, std::less<>>> m_programs;
};

} // namespace Platform
