#include "Platform/Linux/LinuxRunningApplications.h"

#include "Platform/Base/Waiting.h"
#include "Platform/Linux/KernelText.h"

#include <algorithm>
#include <cerrno>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace Platform {

LinuxRunningApplications::Settings LinuxRunningApplications::Settings::current(const Environment& environment)
{
    const auto positive = [](long value, std::uint64_t fallback) {
        return value > 0 ? static_cast<std::uint64_t>(value) : fallback;
    };
    return {
        .user = geteuid(),
        .ownProcess = getpid(),
        .desktopFileFolders = DesktopEntries::foldersOf(environment),
        .languages = DesktopEntries::languagesOf(environment),
        .ticksPerSecond = positive(sysconf(_SC_CLK_TCK), 100),
        .pageBytes = positive(sysconf(_SC_PAGESIZE), 4096),
        .wait = waitUnlessStopped,
    };
}

LinuxRunningApplications::LinuxRunningApplications(Settings settings, const SystemStatistics& statistics)
    : m_settings(std::move(settings))
    , m_statistics(statistics)
{
    const auto stat = KernelText::read(m_settings.procRoot + "/stat");
    const auto start = stat ? KernelText::numberAfter("btime", *stat) : std::nullopt;
    if (start && std::in_range<std::int64_t>(*start)) {
        m_startOfMachine = static_cast<std::int64_t>(*start);
    }
}

std::expected<void, int> LinuxRunningApplications::forEachProcess(
    const std::function<void(const ProcessFolder&, ProcessState)>& take) const
{
    const auto processes = ProcessFolder::processes(m_settings.procRoot);
    if (!processes) {
        return std::unexpected(processes.error());
    }
    for (const auto process : *processes) {
        const auto folder = ProcessFolder::open(m_settings.procRoot, process);
        if (!folder || folder->owner() != m_settings.user) {
            continue;
        }
        if (auto state = folder->state(); state && !state->isTerminated) {
            take(*folder, *std::move(state));
        }
    }
    return {};
}

std::expected<std::vector<ApplicationGroup>, int> LinuxRunningApplications::groups(DesktopEntries& entries) const
{
    ApplicationGroups groups(entries, m_settings.ownProcess);
    const auto read = forEachProcess(
        [&groups](const ProcessFolder& folder, ProcessState state) { groups.add(folder, std::move(state)); });
    if (!read) {
        return std::unexpected(read.error());
    }
    return groups.groups();
}

RunningApplication LinuxRunningApplications::applicationOf(const ApplicationGroup& group) const
{
    RunningApplication application;
    application.displayName = group.entry != nullptr ? group.entry->name : group.programName;
    if (group.entry != nullptr) {
        application.bundleIdentifier = group.entry->identifier;
        application.isUserVisible = group.entry->isShown;
    }
    application.processIdentifier = group.leader.processIdentifier;
    application.processes.reserve(group.members.size());
    for (const auto& member : group.members) {
        application.processes.push_back(
            {.processIdentifier = member.processIdentifier, .startTicks = member.startTicks});
    }
    std::ranges::sort(application.processes, {}, [&group](const ProcessIdentity& process) {
        const bool follows = process.processIdentifier != group.leader.processIdentifier;
        return std::tuple(follows, process.startTicks, process.processIdentifier);
    });
    if (m_startOfMachine) {
        application.launchDate = Date::fromUnixTime(*m_startOfMachine)
                                     .addingSeconds(static_cast<double>(group.leader.startTicks)
                                         / static_cast<double>(m_settings.ticksPerSecond));
    }
    return application;
}

void LinuxRunningApplications::addMemory(
    RunningApplication& application, const ApplicationGroup& group, const std::stop_token& stop) const
{
    std::optional<std::uint64_t> sum;
    for (const auto& member : group.members) {
        if (stop.stop_requested()) {
            return;
        }
        const auto folder = ProcessFolder::open(m_settings.procRoot, member.processIdentifier);
        const auto state = folder ? folder->state() : std::nullopt;
        if (!state || state->startTicks != member.startTicks) {
            continue;
        }
        const auto share = folder->proportionalMemory();
        sum = sum.value_or(0) + share.value_or(state->residentPages * m_settings.pageBytes);
    }
    application.residentMemoryBytes = sum;
    const auto physical = m_statistics.physicalMemory().value_or(0);
    if (sum && physical > 0) {
        application.memoryFractionOfPhysicalMemory =
            static_cast<double>(std::min(*sum, physical)) / static_cast<double>(physical);
    }
}

std::expected<LinuxRunningApplications::Sample, int> LinuxRunningApplications::sample() const
{
    Sample sample{.time = m_settings.now(), .ticks = {}};
    const auto read = forEachProcess([&sample](const ProcessFolder&, const ProcessState& state) {
        sample.ticks.emplace(std::pair(state.processIdentifier, state.startTicks), state.cpuTicks);
    });
    if (!read) {
        return std::unexpected(read.error());
    }
    return sample;
}

std::optional<double> LinuxRunningApplications::cpuFraction(
    const ApplicationGroup& group, const Sample& first, Clock::time_point now) const
{
    const auto keyOf = [](const ProcessState& state) { return std::pair(state.processIdentifier, state.startTicks); };
    const auto elapsed = std::chrono::duration<double>(now - first.time).count();
    const auto capacity = elapsed * static_cast<double>(m_statistics.processorCount());
    if (!first.ticks.contains(keyOf(group.leader)) || elapsed <= 0 || capacity <= 0) {
        return std::nullopt;
    }
    std::uint64_t ticks = 0;
    for (const auto& member : group.members) {
        const auto before = first.ticks.find(keyOf(member));
        // All that a process has done that was not there before, it did since.
        const auto ticksBefore = before == first.ticks.end() ? 0 : before->second;
        if (member.cpuTicks < ticksBefore) {
            return std::nullopt;
        }
        ticks += member.cpuTicks - ticksBefore;
    }
    const auto seconds = static_cast<double>(ticks) / static_cast<double>(m_settings.ticksPerSecond);
    // Ticks are coarse: a program that was busy all the time may seem to have done a little more than can be.
    return std::min(seconds / capacity, 1.0);
}

RunningApplications::Listing LinuxRunningApplications::applications() const
{
    DesktopEntries entries(m_settings.desktopFileFolders, m_settings.languages);
    const auto found = groups(entries);
    if (!found) {
        return std::unexpected(found.error());
    }
    std::vector<RunningApplication> applications;
    applications.reserve(found->size());
    for (const auto& group : *found) {
        applications.push_back(applicationOf(group));
    }
    return applications;
}

RunningApplications::Listing LinuxRunningApplications::measuredApplications(const std::stop_token& stop) const
{
    const auto first = sample();
    if (!first) {
        return std::unexpected(first.error());
    }
    m_settings.wait(kSamplingTime, stop);
    if (stop.stop_requested()) {
        return std::unexpected(ECANCELED);
    }
    DesktopEntries entries(m_settings.desktopFileFolders, m_settings.languages);
    const auto now = m_settings.now();
    const auto found = groups(entries);
    if (!found) {
        return std::unexpected(found.error());
    }
    std::vector<RunningApplication> applications;
    applications.reserve(found->size());
    for (const auto& group : *found) {
        auto application = applicationOf(group);
        application.cpuFractionOfTotalCapacity = cpuFraction(group, *first, now);
        addMemory(application, group, stop);
        applications.push_back(std::move(application));
        if (stop.stop_requested()) {
            return std::unexpected(ECANCELED);
        }
    }
    return applications;
}

std::optional<RunningApplication> LinuxRunningApplications::application(std::int32_t processIdentifier) const
{
    DesktopEntries entries(m_settings.desktopFileFolders, m_settings.languages);
    const auto found = groups(entries);
    if (!found) {
        return std::nullopt;
    }
    const auto group = std::ranges::find(
        *found, processIdentifier, [](const ApplicationGroup& each) { return each.leader.processIdentifier; });
    if (group == found->end()) {
        return std::nullopt;
    }
    auto application = applicationOf(*group);
    addMemory(application, *group);
    return application;
}

} // namespace Platform
