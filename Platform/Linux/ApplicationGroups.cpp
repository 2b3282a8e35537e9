#include "Platform/Linux/ApplicationGroups.h"

#include "Platform/Linux/KernelText.h"

#include <tuple>
#include <utility>

namespace Platform {

namespace {

constexpr std::string_view kOwnKey = "own";
constexpr int kMaximumAncestors = 64;

bool startedBefore(const ProcessState& left, const ProcessState& right)
{
    return std::tie(left.startTicks, left.processIdentifier) < std::tie(right.startTicks, right.processIdentifier);
}

/// The name of the application in the note of a Flatpak (flatpak-metadata(5)).
std::optional<std::string_view> flatpakName(std::string_view text)
{
    bool isInGroup = false;
    while (const auto line = KernelText::takeLine(text)) {
        constexpr std::string_view key = "name=";
        if (line->starts_with('[')) {
            isInGroup = *line == "[Application]";
        } else if (isInGroup && line->starts_with(key)) {
            return KernelText::stripped(line->substr(key.size()));
        }
    }
    return std::nullopt;
}

} // namespace

const DesktopEntry* ApplicationGroups::entryOfUnit(const ApplicationUnit& unit)
{
    const auto [known, isNew] = m_entryOfUnit.try_emplace(unit.path, nullptr);
    if (isNew) {
        for (const auto& identifier : unit.identifiers) {
            if (const auto* const entry = m_entries.find(identifier)) {
                known->second = entry;
                break;
            }
        }
    }
    return known->second;
}

const DesktopEntry* ApplicationGroups::entryNamed(std::string_view path)
{
    constexpr std::string_view ending = ".desktop";
    path.remove_prefix(path.rfind('/') + 1);
    if (!path.ends_with(ending)) {
        return nullptr;
    }
    return m_entries.find(path.substr(0, path.size() - ending.size()));
}

const DesktopEntry* ApplicationGroups::entryOfTraces(
    const ProcessFolder& folder, const ProcessState& state, std::string_view program)
{
    if (const auto note = folder.read("root/.flatpak-info")) {
        const auto name = flatpakName(*note);
        if (const auto* const entry = name ? m_entries.find(*name) : nullptr) {
            return entry;
        }
    }
    if (const auto hint = folder.environmentValue("BAMF_DESKTOP_FILE_HINT")) {
        if (const auto* const entry = entryNamed(*hint)) {
            return entry;
        }
    }
    // Children inherit the variables of what started them, so the number says whom they speak of.
    const auto launched = folder.environmentValue("GIO_LAUNCHED_DESKTOP_FILE_PID");
    if (launched && KernelText::number<std::int32_t>(*launched) == state.processIdentifier) {
        const auto file = folder.environmentValue("GIO_LAUNCHED_DESKTOP_FILE");
        if (const auto* const entry = file ? entryNamed(*file) : nullptr) {
            return entry;
        }
    }
    return program.empty() ? nullptr : m_entries.ofProgram(program);
}

void ApplicationGroups::add(const ProcessFolder& folder, ProcessState state)
{
    const auto controlGroups = folder.read("cgroup");
    Process process{.state = std::move(state),
        .unit = controlGroups ? ApplicationUnit::fromControlGroups(*controlGroups) : std::nullopt,
        .program = folder.program().value_or("")};
    const bool isOwn = process.state.processIdentifier == m_ownProcess;
    const auto* const unitEntry = process.unit ? entryOfUnit(*process.unit) : nullptr;
    const bool isDesktop = process.unit && process.unit->kind == ApplicationUnit::Kind::desktop;
    if (isOwn) {
        process.entry = unitEntry != nullptr && unitEntry->program == process.program
            ? unitEntry
            : m_entries.ofProgram(process.program);
    } else if (unitEntry == nullptr && !isDesktop) {
        process.entry = entryOfTraces(folder, process.state, process.program);
    }
    m_indexes.emplace(process.state.processIdentifier, m_processes.size());
    m_processes.push_back(std::move(process));
}

/// A unit whose name says nothing is what the first of its processes is: those that came later may be anything.
void ApplicationGroups::nameUnitsAfterTheirFirstProcess()
{
    std::map<std::string_view, const Process*> first;
    for (const auto& process : m_processes) {
        if (process.unit && process.state.processIdentifier != m_ownProcess) {
            auto& oldest = first.try_emplace(process.unit->path, &process).first->second;
            oldest = startedBefore(process.state, oldest->state) ? &process : oldest;
        }
    }
    for (const auto& [path, process] : first) {
        auto& entry = m_entryOfUnit[std::string(path)];
        entry = entry == nullptr ? process->entry : entry;
    }
}

std::optional<std::string> ApplicationGroups::keyOf(const Process& process) const
{
    if (process.unit && process.unit->kind == ApplicationUnit::Kind::application) {
        const auto* const entry = m_entryOfUnit.at(process.unit->path);
        return entry != nullptr ? "entry:" + entry->identifier : "unit:" + process.unit->path;
    }
    return process.entry != nullptr ? std::optional("entry:" + process.entry->identifier) : std::nullopt;
}

/// What an application starts belongs to it, unless it is one itself. What the desktop starts does not belong to it.
std::optional<std::string> ApplicationGroups::inheritedKey(const Process& process) const
{
    const auto* descendant = &process;
    for (int generation = 0; generation < kMaximumAncestors; ++generation) {
        const auto index = m_indexes.find(descendant->state.parent);
        if (index == m_indexes.end()) {
            break;
        }
        const auto& ancestor = m_processes[index->second];
        // The number of a parent that has ended may belong to somebody else by now.
        const bool isOlder = startedBefore(ancestor.state, descendant->state);
        if (!isOlder || ancestor.unit || ancestor.state.processIdentifier == m_ownProcess) {
            break;
        }
        if (ancestor.entry != nullptr) {
            return ancestor.entry->isShown ? keyOf(ancestor) : std::nullopt;
        }
        descendant = &ancestor;
    }
    return std::nullopt;
}

std::vector<ApplicationGroup> ApplicationGroups::groups()
{
    nameUnitsAfterTheirFirstProcess();
    std::map<std::string, ApplicationGroup, std::less<>> groups;
    for (const auto& process : m_processes) {
        const bool isOwn = process.state.processIdentifier == m_ownProcess;
        const bool isDesktop = process.unit && process.unit->kind == ApplicationUnit::Kind::desktop;
        if (isDesktop && !isOwn) {
            continue;
        }
        std::optional<std::string> key;
        if (isOwn) {
            key = process.entry != nullptr ? "entry:" + process.entry->identifier : std::string(kOwnKey);
        } else {
            key = keyOf(process);
            key = key || process.unit ? key : inheritedKey(process);
        }
        if (!key) {
            continue;
        }
        auto& group = groups[*key];
        const bool leads = group.members.empty() || isOwn
            || (group.leader.processIdentifier != m_ownProcess && startedBefore(process.state, group.leader));
        if (leads) {
            group.leader = process.state;
            group.programName = process.program.empty() ? process.state.name : process.program;
        }
        group.members.push_back(process.state);
        constexpr std::string_view entryKey = "entry:";
        if (key->starts_with(entryKey)) {
            group.entry = m_entries.find(std::string_view(*key).substr(entryKey.size()));
        }
    }
    std::vector<ApplicationGroup> result;
    result.reserve(groups.size());
    for (auto& [key, group] : groups) {
        result.push_back(std::move(group));
    }
    return result;
}

} // namespace Platform
