#include "CleanerCore/Relief/ResourceReliefPolicy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace CleanerCore {

namespace {

using enum ResourceReliefProtectionReason;
using Snapshot = ResourceReliefProcessSnapshot;

constexpr std::int32_t kOwnProcess = 7;

Snapshot application(std::string name, std::string identifier, std::int32_t process = 100)
{
    return {.displayName = std::move(name),
        .bundleIdentifier = std::move(identifier),
        .processIdentifier = process,
        .isUserVisible = true,
        .launchDate = Platform::Date{1000}};
}

ResourceReliefPolicy policy(ResourceReliefCapability capability = ResourceReliefCapability::supported())
{
    return {kOwnProcess, "Org.Karvello.Karvello", capability};
}

std::optional<ResourceReliefProtectionReason> reasonOf(
    const Snapshot& snapshot, ResourceReliefCapability capability = ResourceReliefCapability::supported())
{
    const auto candidate = policy(capability).candidate(snapshot);
    EXPECT_TRUE(candidate);
    EXPECT_EQ(candidate->eligibility.isActionable, !candidate->eligibility.reason);
    return candidate->eligibility.reason;
}

std::vector<std::int32_t> orderOf(const std::vector<Snapshot>& snapshots)
{
    std::vector<std::int32_t> order;
    for (const auto& candidate : policy().candidates(snapshots)) {
        order.push_back(candidate.processIdentifier);
    }
    return order;
}

} // namespace

TEST(ResourceReliefPolicy, ProtectsTheNineProgramsOfTheMac)
{
    EXPECT_THAT(ResourceReliefPolicy::protectedBundleIdentifiers(),
        testing::UnorderedElementsAre("com.apple.finder", "com.apple.systempreferences", "com.apple.systemsettings",
            "com.apple.dock", "com.apple.loginwindow", "com.apple.windowmanager", "com.apple.controlcenter",
            "com.apple.notificationcenterui", "com.apple.systemuiserver"));
}

TEST(ResourceReliefPolicy, AnOrdinaryApplicationMayBeAsked)
{
    const auto candidate = policy().candidate(application("Editor", "org.example.Editor"));
    ASSERT_TRUE(candidate);
    EXPECT_EQ(candidate->eligibility, ResourceReliefEligibility::actionable());
}

TEST(ResourceReliefPolicy, ACandidateCarriesWhatTheSnapshotTells)
{
    auto snapshot = application("  Editor\n", "org.example.Editor ", 42);
    snapshot.isFrontmost = true;
    snapshot.usage = {
        .cpuFractionOfTotalCapacity = 0.5, .residentMemoryBytes = 3, .memoryFractionOfPhysicalMemory = 0.1};
    const auto candidate = policy().candidate(snapshot);
    ASSERT_TRUE(candidate);
    EXPECT_EQ(*candidate,
        (ResourceReliefCandidate{.id = ResourceReliefCandidateID("org.example.editor:42"),
            .displayName = "Editor",
            .bundleIdentifier = "org.example.Editor ",
            .processIdentifier = 42,
            .isFrontmost = true,
            .launchDate = Platform::Date{1000},
            .usage = snapshot.usage,
            .eligibility = ResourceReliefEligibility::actionable()}));
}

TEST(ResourceReliefPolicy, TheOwnApplicationIsNeverAsked)
{
    EXPECT_EQ(reasonOf(application("Karvello", "org.example.Other", kOwnProcess)), currentApplication);
    EXPECT_EQ(reasonOf(application("Karvello", "ORG.karvello.karvello\t", 8)), currentApplication);
}

TEST(ResourceReliefPolicy, WithoutAnIdentifierOfItsOwnItKnowsItselfByNumberAlone)
{
    for (const auto& own : {std::optional<std::string>(), std::optional<std::string>(" ")}) {
        const ResourceReliefPolicy anonymous(kOwnProcess, own, ResourceReliefCapability::supported());
        Snapshot other{.displayName = "Tool", .processIdentifier = 8, .isUserVisible = true};
        EXPECT_TRUE(anonymous.candidate(other)->eligibility.isActionable);
        other.processIdentifier = kOwnProcess;
        EXPECT_EQ(anonymous.candidate(other)->eligibility.reason, currentApplication);
    }
}

TEST(ResourceReliefPolicy, IdentifiersAreComparedNormalized)
{
    EXPECT_EQ(reasonOf(application("Finder", "COM.APPLE.FINDER ")), protectedSystemApplication);
    const ResourceReliefPolicy own(
        kOwnProcess, std::nullopt, ResourceReliefCapability::supported(), {" Org.Example.KEEP\n"});
    EXPECT_EQ(own.candidate(application("Keep", "org.example.keep"))->eligibility.reason, protectedSystemApplication);
    EXPECT_TRUE(own.candidate(application("Finder", "com.apple.finder"))->eligibility.isActionable);
}

TEST(ResourceReliefPolicy, TheDesktopIsProtectedWhateverElseIs)
{
    const ResourceReliefPolicy bare(kOwnProcess, std::nullopt, ResourceReliefCapability::supported(), {});
    for (const auto* const identifier : {"org.gnome.Shell", "org.kde.plasmashell", "cinnamon", "xfce4-panel",
             "xfdesktop", "mate-panel", "caja", "lxqt-panel", "pcmanfm-qt", "sway", "Hyprland", "gnome-session",
             "ksmserver", "sddm", "org.gnome.SettingsDaemon.Color", "xdg-desktop-portal-gtk",
             "org.freedesktop.impl.portal.desktop.kde", "nemo-desktop", "org.freedesktop.IBus.Setup"}) {
        EXPECT_EQ(bare.candidate(application("Desktop", identifier))->eligibility.reason, protectedSystemApplication)
            << identifier;
    }
    for (const auto* const identifier : {"org.gnome.Nautilus", "firefox", "org.gnome.ShellExtensions", "swayimg"}) {
        EXPECT_TRUE(bare.candidate(application("Other", identifier))->eligibility.isActionable) << identifier;
    }
}

TEST(ResourceReliefPolicy, ABackgroundProcessIsListedOnlyWithAName)
{
    auto snapshot = application("Sync", "org.example.sync");
    snapshot.isUserVisible = false;
    EXPECT_EQ(reasonOf(snapshot), notUserVisible);
    snapshot.displayName = " ";
    snapshot.bundleIdentifier = std::nullopt;
    EXPECT_FALSE(policy().candidate(snapshot));
}

TEST(ResourceReliefPolicy, WithNeitherNameNorIdentifierThereIsNoCandidate)
{
    Snapshot snapshot{.displayName = "\n ", .bundleIdentifier = "\t", .processIdentifier = 3, .isUserVisible = true};
    EXPECT_FALSE(policy().candidate(snapshot));
    EXPECT_EQ(policy().eligibility(snapshot).reason, missingUserFacingIdentity);
    EXPECT_TRUE(policy().candidates(std::vector{snapshot}).empty());
}

TEST(ResourceReliefPolicy, AnIdentifierStandsInForAName)
{
    auto snapshot = application(" ", " org.example.Editor ");
    EXPECT_EQ(policy().candidate(snapshot)->displayName, "org.example.Editor");
    snapshot.displayName = std::nullopt;
    EXPECT_EQ(policy().candidate(snapshot)->displayName, "org.example.Editor");
    EXPECT_TRUE(policy().candidate(snapshot)->eligibility.isActionable);
}

TEST(ResourceReliefPolicy, ANameIsEnoughOfAnIdentity)
{
    auto snapshot = application("Tool", " ");
    EXPECT_TRUE(policy().candidate(snapshot)->eligibility.isActionable);
    EXPECT_EQ(policy().candidate(snapshot)->id.rawValue, "pid:100");
}

TEST(ResourceReliefPolicy, ATerminatedApplicationIsThatEvenWhereItIsProtected)
{
    auto snapshot = application("Finder", "com.apple.finder");
    snapshot.isTerminated = true;
    EXPECT_EQ(reasonOf(snapshot), alreadyTerminated);
    snapshot.isUserVisible = false;
    EXPECT_EQ(reasonOf(snapshot), alreadyTerminated);
    snapshot.processIdentifier = kOwnProcess;
    EXPECT_EQ(reasonOf(snapshot), currentApplication);
}

TEST(ResourceReliefPolicy, WhatIsNotVisibleIsThatEvenWhereItIsProtected)
{
    auto snapshot = application("Finder", "com.apple.finder");
    snapshot.isUserVisible = false;
    EXPECT_EQ(reasonOf(snapshot), notUserVisible);
}

TEST(ResourceReliefPolicy, InASandboxOnlyWhatWasAllowedChangesItsReason)
{
    const auto sandbox = ResourceReliefCapability::appSandbox();
    EXPECT_EQ(reasonOf(application("Editor", "org.example.Editor"), sandbox), sandboxUnavailable);
    EXPECT_EQ(reasonOf(application("Finder", "com.apple.finder"), sandbox), protectedSystemApplication);
    EXPECT_EQ(reasonOf(application("Karvello", "x", kOwnProcess), sandbox), currentApplication);
    EXPECT_EQ(
        reasonOf(application("Editor", "org.example.Editor"), ResourceReliefCapability::unknown()), sandboxUnavailable);
}

TEST(ResourceReliefPolicy, TheFrontmostStandsFirstThenNamesInTheOrderOfADictionary)
{
    auto front = application("zsh", "z", 4);
    front.isFrontmost = true;
    EXPECT_THAT(orderOf({application("editor", "b", 1), application("Browser", "c", 2), application("Éditeur", "d", 3),
                    front, application("EDITOR", "a", 5)}),
        testing::ElementsAre(4, 2, 3, 5, 1));
}

TEST(ResourceReliefPolicy, OfOneNameTheIdentifierThenTheNumberDecides)
{
    auto nameless = application("Editor", "", 9);
    nameless.bundleIdentifier = std::nullopt;
    EXPECT_THAT(orderOf({application("Editor", "b", 1), application("Editor", "a", 30), application("Editor", "a", 4),
                    nameless}),
        testing::ElementsAre(9, 4, 30, 1));
}

TEST(ResourceReliefPolicy, AnIdKeepsOnlyWhatCanStandInOne)
{
    EXPECT_EQ(ResourceReliefCandidateID(42, " Org.Example/My App_2-é!\n").rawValue, "org.examplemyapp_2-é:42");
    EXPECT_EQ(ResourceReliefCandidateID(42, "// \xFF").rawValue, "pid:42");
    EXPECT_EQ(ResourceReliefCandidateID(-1, std::nullopt).rawValue, "pid:-1");
}

TEST(ResourceReliefPolicy, TheSameApplicationMatchesItself)
{
    auto snapshot = application("Editor", "org.example.Editor", 42);
    const auto candidate = *policy().candidate(snapshot);
    snapshot.displayName = " Editor ";
    snapshot.bundleIdentifier = "ORG.example.editor\n";
    snapshot.isTerminated = true;
    EXPECT_TRUE(ResourceReliefPolicy::identityMatches(snapshot, candidate));
}

TEST(ResourceReliefPolicy, AnyDifferenceOfIdentityIsAMismatch)
{
    const auto original = application("Editor", "org.example.Editor", 42);
    const auto candidate = *policy().candidate(original);
    auto other = original;
    other.processIdentifier = 43;
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(other, candidate));
    other = original;
    other.bundleIdentifier = "org.example.Edit";
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(other, candidate));
    other.bundleIdentifier = std::nullopt;
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(other, candidate));
    other = original;
    other.displayName = "editor";
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(other, candidate));
    other = original;
    other.launchDate = Platform::Date{1000.25};
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(other, candidate));
    other.launchDate = std::nullopt;
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(other, candidate));
}

TEST(ResourceReliefPolicy, AbsentOnBothSidesMatches)
{
    Snapshot snapshot{.displayName = "Tool", .processIdentifier = 42, .isUserVisible = true};
    const auto candidate = *policy().candidate(snapshot);
    EXPECT_TRUE(ResourceReliefPolicy::identityMatches(snapshot, candidate));
    snapshot.bundleIdentifier = " ";
    EXPECT_TRUE(ResourceReliefPolicy::identityMatches(snapshot, candidate));
    snapshot.launchDate = Platform::Date{1};
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(snapshot, candidate));
}

TEST(ResourceReliefPolicy, ASnapshotWithoutANameNeverMatches)
{
    const Snapshot snapshot{.processIdentifier = 42};
    ResourceReliefCandidate candidate;
    candidate.processIdentifier = 42;
    EXPECT_FALSE(ResourceReliefPolicy::identityMatches(snapshot, candidate));
}

TEST(ResourceReliefPolicy, EachEligibilityHasItsStatus)
{
    using enum ResourceReliefActionStatus;
    const std::pair<ResourceReliefEligibility, ResourceReliefActionStatus> statuses[]{
        {ResourceReliefEligibility::actionable(), requestSent},
        {ResourceReliefEligibility{}, isProtected},
        {ResourceReliefEligibility::unavailable(currentApplication), isProtected},
        {ResourceReliefEligibility::unavailable(protectedSystemApplication), isProtected},
        {ResourceReliefEligibility::unavailable(missingUserFacingIdentity), isProtected},
        {ResourceReliefEligibility::unavailable(notUserVisible), isProtected},
        {ResourceReliefEligibility::unavailable(alreadyTerminated), alreadyExited},
        {ResourceReliefEligibility::unavailable(sandboxUnavailable), unavailableInSandbox},
    };
    for (const auto& [eligibility, status] : statuses) {
        EXPECT_EQ(ResourceReliefPolicy::actionStatus(eligibility), status)
            << (eligibility.reason ? Platform::rawValue(*eligibility.reason) : "none");
    }
}

} // namespace CleanerCore
