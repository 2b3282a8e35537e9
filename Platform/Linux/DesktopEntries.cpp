#include "Platform/Linux/DesktopEntries.h"

#include "Platform/Linux/DesktopCommandLine.h"
#include "Platform/Linux/KernelText.h"
#include "Platform/Services/UserDirectories.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fmt/format.h>
#include <system_error>
#include <utility>

namespace Platform {

namespace {

constexpr std::string_view kEnding = ".desktop";
/// Vendors put their files into a folder; nobody puts folders into that.
constexpr int kMaximumDepth = 3;

/// Programs that run what others wrote: they tell nothing of the application.
constexpr auto kInterpreters =
    std::to_array<std::string_view>({"bash", "bwrap", "dash", "dbus-launch", "dbus-run-session", "electron", "env",
        "exo-open", "fish", "flatpak", "gjs", "gtk-launch", "java", "ksh", "mono", "node", "perl", "pkexec", "python",
        "ruby", "sh", "snap", "sudo", "systemd-run", "wine", "wine64", "xdg-open", "xterm", "zsh"});

bool isInterpreter(std::string_view program)
{
    // "python3.11" is one as well.
    const auto bare = program.substr(0, program.find_first_of("0123456789"));
    return std::ranges::find(kInterpreters, program) != kInterpreters.end()
        || std::ranges::find(kInterpreters, bare) != kInterpreters.end();
}

/// The escapes that every string of a desktop file may have.
std::string unescapedString(std::string_view value)
{
    std::string text;
    for (std::size_t index = 0; index < value.size(); ++index) {
        if (value[index] != '\\' || index + 1 == value.size()) {
            text += value[index];
            continue;
        }
        switch (value[++index]) {
        case 's':
            text += ' ';
            break;
        case 'n':
            text += '\n';
            break;
        case 't':
            text += '\t';
            break;
        case 'r':
            text += '\r';
            break;
        default:
            text += value[index];
        }
    }
    return text;
}

std::string programOf(std::string_view commandLine)
{
    auto program = DesktopCommandLine::takeArgument(commandLine);
    const auto name = [&program] { return program.substr(program.rfind('/') + 1); };
    if (name() == "env") {
        do {
            program = DesktopCommandLine::takeArgument(commandLine);
        } while (program.find('=') != std::string::npos);
    }
    return isInterpreter(name()) ? std::string() : name();
}

/// How good the language of a key such as "Name[de]" is: its place in the list; nothing for one that is not in it.
std::optional<std::size_t> rankOf(std::string_view language, const std::vector<std::string>& languages)
{
    const auto place = std::ranges::find(languages, language);
    return place == languages.end() ? std::nullopt : std::optional(static_cast<std::size_t>(place - languages.begin()));
}

bool endsWithName(std::string_view identifier, std::string_view name)
{
    return identifier == name || (identifier.ends_with(name) && identifier[identifier.size() - name.size() - 1] == '.');
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::parse(
    std::string identifier, std::string_view text, const std::vector<std::string>& languages)
{
    DesktopEntry entry;
    entry.identifier = std::move(identifier);
    bool isInGroup = false;
    bool isApplication = false;
    bool isHidden = false;
    bool isOutOfMenus = false;
    std::optional<std::size_t> nameRank;
    while (const auto line = KernelText::takeLine(text)) {
        const auto content = KernelText::stripped(*line);
        if (content.starts_with('[')) {
            isInGroup = content == "[Desktop Entry]";
            continue;
        }
        const auto equals = content.find('=');
        if (!isInGroup || content.starts_with('#') || equals == std::string_view::npos) {
            continue;
        }
        const auto key = KernelText::stripped(content.substr(0, equals));
        const auto value = KernelText::stripped(content.substr(equals + 1));
        if (key == "Type") {
            isApplication = value == "Application";
        } else if (key == "Hidden") {
            isHidden = value == "true";
        } else if (key == "NoDisplay") {
            isOutOfMenus = value == "true";
        } else if (key == "Terminal") {
            entry.runsInTerminal = value == "true";
        } else if (key == "Exec") {
            entry.commandLine = unescapedString(value);
            entry.program = programOf(entry.commandLine);
        } else if (key == "DBusActivatable") {
            entry.isDBusActivatable = value == "true";
        } else if (key == "Name" && !nameRank) {
            entry.name = unescapedString(value);
        } else if (key.starts_with("Name[") && key.ends_with(']')) {
            const auto rank = rankOf(key.substr(5, key.size() - 6), languages);
            if (rank && *rank < nameRank.value_or(languages.size())) {
                nameRank = rank;
                entry.name = unescapedString(value);
            }
        }
    }
    // "Name" and "Type" are the keys that every such file must have.
    if (isHidden || !isApplication || entry.name.empty()) {
        return std::nullopt;
    }
    entry.isShown = !isOutOfMenus;
    return entry;
}

DesktopEntries::DesktopEntries(const std::vector<std::string>& folders, std::vector<std::string> languages)
    : m_languages(std::move(languages))
{
    for (const auto& folder : folders) {
        addFolder(folder, {}, 0);
    }
}

void DesktopEntries::addFolder(const std::string& path, const std::string& prefix, int depth)
{
    for (const auto& name : KernelText::namesIn(path)) {
        auto place = fmt::format("{}/{}", path, name);
        if (name.ends_with(kEnding)) {
            m_slots.try_emplace(prefix + name.substr(0, name.size() - kEnding.size()), Slot{.path = std::move(place)});
            continue;
        }
        std::error_code error;
        if (depth < kMaximumDepth && std::filesystem::is_directory(std::filesystem::symlink_status(place, error))) {
            addFolder(place, fmt::format("{}{}-", prefix, name), depth + 1);
        }
    }
}

std::vector<std::string> DesktopEntries::foldersOf(const Environment& environment)
{
    const auto dataHome = dataDirectoryForCurrentUser(environment).path();
    std::vector<std::string> folders;
    const auto add = [&folders](std::string_view base) {
        auto folder = std::string(base).append("/applications");
        if (base.starts_with('/') && std::ranges::find(folders, folder) == folders.end()) {
            folders.push_back(std::move(folder));
        }
    };
    add(dataHome);
    const auto shared = environment.value("XDG_DATA_DIRS").value_or("/usr/local/share:/usr/share");
    for (std::string_view rest = shared; !rest.empty();) {
        const auto colon = std::min(rest.find(':'), rest.size());
        auto base = rest.substr(0, colon);
        base.remove_suffix(base.size() > 1 && base.ends_with('/') ? 1 : 0);
        add(base);
        rest.remove_prefix(std::min(colon + 1, rest.size()));
    }
    add(dataHome + "/flatpak/exports/share");
    add("/var/lib/flatpak/exports/share");
    add("/var/lib/snapd/desktop");
    return folders;
}

std::vector<std::string> DesktopEntries::languagesOf(const Environment& environment)
{
    std::string locale;
    for (const auto* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const auto value = environment.value(variable)) {
            locale = *value;
            break;
        }
    }
    // "lang_COUNTRY.ENCODING@MODIFIER"
    const auto at = locale.find('@');
    const auto modifier = at == std::string::npos ? std::string() : locale.substr(at);
    const auto country = locale.substr(0, std::min(locale.find('.'), at));
    const auto language = country.substr(0, country.find('_'));
    if (language.empty() || language == "C" || language == "POSIX") {
        return {};
    }
    std::vector<std::string> keys;
    for (auto key : {country + modifier, country, language + modifier, language}) {
        if (std::ranges::find(keys, key) == keys.end()) {
            keys.push_back(std::move(key));
        }
    }
    return keys;
}

const DesktopEntry* DesktopEntries::read(const std::string& identifier, Slot& slot)
{
    if (!std::exchange(slot.isRead, true)) {
        if (const auto text = KernelText::readThroughLinks(slot.path)) {
            slot.entry = DesktopEntry::parse(identifier, *text, m_languages);
        }
    }
    return slot.entry ? &*slot.entry : nullptr;
}

const DesktopEntry* DesktopEntries::find(std::string_view identifier)
{
    const auto slot = m_slots.find(identifier);
    return slot == m_slots.end() ? nullptr : read(slot->first, slot->second);
}

const DesktopEntry* DesktopEntries::ofProgram(std::string_view program)
{
    if (!m_programs) {
        m_programs.emplace();
        for (auto& [identifier, slot] : m_slots) {
            const auto* const entry = read(identifier, slot);
            if (entry != nullptr && entry->isShown && !entry->runsInTerminal && !entry->program.empty()) {
                m_programs->emplace(entry->program, entry);
            }
        }
    }
    const auto [first, last] = m_programs->equal_range(program);
    if (first == last || std::next(first) == last) {
        return first == last ? nullptr : first->second;
    }
    const auto named = std::find_if(
        first, last, [program](const auto& each) { return endsWithName(each.second->identifier, program); });
    return named == last ? nullptr : named->second;
}

} // namespace Platform
