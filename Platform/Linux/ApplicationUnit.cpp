#include "Platform/Linux/ApplicationUnit.h"

#include "Platform/Base/HexDigits.h"
#include "Platform/Linux/KernelText.h"

#include <algorithm>
#include <utility>

namespace Platform {

namespace {

constexpr std::string_view kDesktopSlice = "session.slice";
/// Of an id with its launcher and its random part; what has more is no name of an application.
constexpr std::size_t kMaximumParts = 16;
constexpr std::size_t kUUIDLength = 36;

/// The path in the hierarchy of systemd: that of version 2, or its own of version 1.
std::string_view controlGroupPath(std::string_view text)
{
    std::string_view unified;
    std::string_view named;
    while (const auto line = KernelText::takeLine(text)) {
        constexpr std::string_view unifiedPrefix = "0::";
        constexpr std::string_view name = ":name=systemd:";
        if (line->starts_with(unifiedPrefix)) {
            unified = line->substr(unifiedPrefix.size());
        } else if (const auto place = line->find(name); place != std::string_view::npos) {
            named = line->substr(place + name.size());
        }
    }
    return unified.empty() || unified == "/" ? named : unified;
}

/// systemd.unit(5): a byte that cannot stand in a name is written as "\x2d".
std::string unescapedUnitName(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const bool isEscape = text.size() >= 4 && text.starts_with("\\x");
        const auto high = isEscape ? valueOfHexDigit(text[2]) : std::nullopt;
        const auto low = isEscape ? valueOfHexDigit(text[3]) : std::nullopt;
        if (high && low) {
            result += static_cast<char>(*high * 16 + *low);
            text.remove_prefix(4);
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

bool removePrefix(std::string_view& text, std::string_view prefix)
{
    if (!text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

bool removeSuffix(std::string_view& text, std::string_view suffix)
{
    if (!text.ends_with(suffix)) {
        return false;
    }
    text.remove_suffix(suffix.size());
    return true;
}

void add(std::vector<std::string>& identifiers, std::string_view escaped)
{
    auto identifier = unescapedUnitName(escaped);
    // A name that leaves the folder of desktop files is none.
    const bool isName = !identifier.empty() && identifier.find('/') == std::string::npos && identifier.front() != '.';
    if (isName && std::ranges::find(identifiers, identifier) == identifiers.end()) {
        identifiers.push_back(std::move(identifier));
    }
}

/// The parts of "launcher-id-random", any of which may have dashes of its own: first as the rule has it, then all that
/// begins with the launcher or behind it, the longest first. The launcher alone is no id.
std::vector<std::string> readings(std::string_view text, bool hasRandomPart)
{
    std::vector<std::string_view> ends;
    std::vector<std::string_view> starts;
    for (std::size_t begin = 0;;) {
        const auto end = std::min(text.find('-', begin), text.size());
        starts.push_back(text.substr(begin));
        ends.push_back(text.substr(0, end));
        if (end == text.size() || starts.size() > kMaximumParts) {
            break;
        }
        begin = end + 1;
    }
    const auto count = starts.size();
    if (count > kMaximumParts) {
        return {};
    }
    const auto range = [&](std::size_t first, std::size_t last) {
        const auto begin = static_cast<std::size_t>(starts[first].data() - text.data());
        return text.substr(begin, ends[last].size() - begin);
    };
    const auto behindId = hasRandomPart && count > 1 ? count - 1 : count;
    std::vector<std::string> identifiers;
    add(identifiers, range(behindId > 1 ? 1 : 0, behindId - 1));
    for (auto length = count; length > 0; --length) {
        for (const std::size_t first : {std::size_t{0}, std::size_t{1}}) {
            const bool isLauncherAlone = first == 0 && length == 1 && behindId > 1;
            if (first + length <= count && !isLauncherAlone) {
                add(identifiers, range(first, first + length - 1));
            }
        }
    }
    return identifiers;
}

/// "firefox.firefox-<uuid>": the desktop file of a snap is named for its package and its program.
std::vector<std::string> snapReadings(std::string_view text)
{
    const auto point = text.find('.');
    if (point == std::string_view::npos) {
        return {};
    }
    const auto package = text.substr(0, point);
    auto program = text.substr(point + 1);
    const auto separator = program.size() > kUUIDLength ? program[program.size() - kUUIDLength - 1] : ' ';
    if (separator == '-' || separator == '.') {
        program.remove_suffix(kUUIDLength + 1);
    }
    program = program.substr(0, program.find('.'));
    std::vector<std::string> identifiers;
    add(identifiers, std::string(package).append("_").append(program));
    add(identifiers, package);
    return identifiers;
}

/// What stands behind "dbus-" and the number of the connection, up to the instance.
std::vector<std::string> busReadings(std::string_view text)
{
    const auto dash = text.find('-');
    std::vector<std::string> identifiers;
    if (dash != std::string_view::npos) {
        add(identifiers, text.substr(dash + 1, text.find('@') - dash - 1));
    }
    return identifiers;
}

std::vector<std::string> identifiersOf(std::string_view component)
{
    const bool isScope = removeSuffix(component, ".scope");
    const bool isSlice = !isScope && removeSuffix(component, ".slice");
    const bool isService = !isScope && !isSlice && removeSuffix(component, ".service");
    if (!isScope && !isSlice && !isService) {
        return {};
    }
    if (removePrefix(component, "app-")) {
        if (isService) {
            component = component.substr(0, component.find('@'));
            removeSuffix(component, "-autostart");
        }
        // A slice around further scopes has the id and nothing behind it.
        return readings(component, isScope);
    }
    if (removePrefix(component, "snap.")) {
        return snapReadings(component);
    }
    return isService && removePrefix(component, "dbus-:") ? busReadings(component) : std::vector<std::string>();
}

} // namespace

std::optional<ApplicationUnit> ApplicationUnit::fromControlGroups(std::string_view text)
{
    const auto path = controlGroupPath(text);
    std::optional<ApplicationUnit> unit;
    for (std::size_t begin = 0; begin < path.size();) {
        const auto end = std::min(path.find('/', begin), path.size());
        const auto component = path.substr(begin, end - begin);
        if (component == kDesktopSlice) {
            return ApplicationUnit{.kind = Kind::desktop, .path = std::string(path), .identifiers = {}};
        }
        // The last one counts: units lie in slices that may be named for an application, too.
        if (auto identifiers = identifiersOf(component); !identifiers.empty()) {
            unit = ApplicationUnit{
                .path = std::string(path.substr(0, end)),
                .identifiers = std::move(identifiers),
            };
        }
        begin = end + 1;
    }
    return unit;
}

} // namespace Platform
