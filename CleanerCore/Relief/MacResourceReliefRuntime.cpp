#include "CleanerCore/Relief/MacResourceReliefRuntime.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

using Platform::ProcessIdentity;
using Platform::RunningApplication;

namespace {

/// Only the desktop knows which application is in front.
ResourceReliefProcessSnapshot snapshotOf(
    RunningApplication application, const std::optional<std::int32_t>& frontmostProcess)
{
    const auto isFrontmost = [&](const ProcessIdentity& process) {
        return process.processIdentifier == frontmostProcess;
    };
    application.isFrontmost = std::ranges::any_of(application.processes, isFrontmost);
    return ResourceReliefProcessSnapshot::of(application);
}

bool isThatOf(const RunningApplication& application, const ResourceReliefProcessSnapshot& snapshot)
{
    return application.processIdentifier == snapshot.processIdentifier && snapshot.launchDate
        && application.launchDate == snapshot.launchDate && application.bundleIdentifier == snapshot.bundleIdentifier;
}

} // namespace

MacResourceReliefRuntime::MacResourceReliefRuntime(const Platform::RunningApplications& applications,
    const Platform::DesktopApplications& desktop, SandboxEntitlement sandboxEntitlement)
    : m_applications(applications)
    , m_desktop(desktop)
    , m_sandboxEntitlement(std::move(sandboxEntitlement))
{
}

std::vector<ResourceReliefProcessSnapshot> MacResourceReliefRuntime::runningApplicationSnapshots(
    const std::stop_token& stop) const
{
    auto applications = m_applications.measuredApplications(stop);
    if (!applications) {
        return {};
    }
    const auto frontmost = m_desktop.frontmostProcess();
    std::vector<ResourceReliefProcessSnapshot> snapshots;
    snapshots.reserve(applications->size());
    for (auto& application : *applications) {
        snapshots.push_back(snapshotOf(std::move(application), frontmost));
    }
    return snapshots;
}

std::optional<ResourceReliefProcessSnapshot> MacResourceReliefRuntime::revalidatedSnapshot(
    const ResourceReliefCandidate& candidate) const
{
    auto application = m_applications.application(candidate.processIdentifier);
    if (!application) {
        return std::nullopt;
    }
    return snapshotOf(*std::move(application), m_desktop.frontmostProcess());
}

bool MacResourceReliefRuntime::requestNormalQuit(const ResourceReliefProcessSnapshot& snapshot) const
{
    const auto applications = m_applications.applications();
    if (!applications) {
        return false;
    }
    const auto found = std::ranges::find_if(
        *applications, [&snapshot](const RunningApplication& each) { return isThatOf(each, snapshot); });
    return found != applications->end() && m_desktop.requestQuit(*found);
}

ResourceReliefCapability MacResourceReliefRuntime::currentCapability() const
{
    const auto capability = MacResourceReliefRuntime::capability(m_sandboxEntitlement());
    if (capability.canRequestQuitOtherApplications && !m_desktop.canRequestQuit()) {
        return ResourceReliefCapability::unknown();
    }
    return capability;
}

ResourceReliefCapability MacResourceReliefRuntime::capability(std::optional<bool> sandboxEntitlementValue)
{
    if (!sandboxEntitlementValue) {
        return ResourceReliefCapability::unknown();
    }
    return *sandboxEntitlementValue ? ResourceReliefCapability::appSandbox() : ResourceReliefCapability::supported();
}

} // namespace CleanerCore
