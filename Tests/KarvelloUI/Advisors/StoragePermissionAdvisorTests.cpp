#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace KarvelloUI {
namespace {

using namespace StoragePermissionAdvisor;
using CleanerCore::SkippedItem;
using testing::ElementsAre;
using testing::IsEmpty;
using IssueKind = StoragePermissionIssueKind;
using Role = StoragePermissionWizardStepRole;
using Items = std::vector<SkippedItem>;

struct Row {
    IssueKind kind;
    std::vector<std::string> markers;
};

/// Wording that says more stands first.
const std::vector<Row> kRows{
    {IssueKind::securityScopedAccess, {"security-scoped access", "stale bookmark", "security scoped"}},
    {IssueKind::fullDiskAccess, {"full disk access"}},
    {IssueKind::filesAndFolders, {"files & folders", "folder access"}},
    {IssueKind::authorization, {"not authorized", "unauthorized"}},
    {IssueKind::unreadableAttributes, {"could not verify file attributes safely", "inaccessible", "unreadable"}},
    {IssueKind::readOrEnumerateAccess,
        {"permission", "operation not permitted", "not permitted", "denied", "could not read", "could not enumerate",
            "could not open", "couldn’t be opened"}},
};

SkippedItem item(std::string_view path, std::string_view reason)
{
    return {.url = Platform::FileURL(path), .reason = std::string(reason)};
}

std::vector<StoragePermissionWizardStep> stepsFor(const Items& items, bool includesCustomFolders)
{
    return wizardSteps(diagnoses(items), includesCustomFolders);
}

std::vector<Role> rolesOf(const std::vector<StoragePermissionWizardStep>& steps)
{
    std::vector<Role> roles;
    for (const auto& step : steps) {
        roles.push_back(step.role);
    }
    return roles;
}

TEST(StoragePermissionAdvisor, FindsNothingInAnEmptyListAndOffersNoGuide)
{
    EXPECT_THAT(diagnoses({}), IsEmpty());
    EXPECT_THAT(wizardSteps({}, false), IsEmpty());
}

TEST(StoragePermissionAdvisor, KnowsEachWording)
{
    for (const Row& row : kRows) {
        for (const std::string& marker : row.markers) {
            EXPECT_EQ(issueKind("x" + marker + "x"), row.kind) << marker;
            EXPECT_TRUE(isPermissionRelated(marker));
        }
    }
}

TEST(StoragePermissionAdvisor, TakesOperationNotPermittedForReading)
{
    EXPECT_EQ(issueKind("Operation not permitted"), IssueKind::readOrEnumerateAccess);
}

TEST(StoragePermissionAdvisor, TakesAStaleBookmarkForOneWhateverIsSaidOfPermission)
{
    EXPECT_EQ(issueKind("Stale bookmark: permission"), IssueKind::securityScopedAccess);
}

TEST(StoragePermissionAdvisor, LooksPastTheCaseOfLetters)
{
    EXPECT_EQ(issueKind("UNREADABLE"), IssueKind::unreadableAttributes);
    EXPECT_EQ(issueKind("COULDN’T BE OPENED"), IssueKind::readOrEnumerateAccess);
}

TEST(StoragePermissionAdvisor, KnowsTheTypographicApostropheOnly)
{
    EXPECT_EQ(issueKind("It couldn't be opened"), std::nullopt);
}

TEST(StoragePermissionAdvisor, FindsNothingInReasonsOfAnotherLanguage)
{
    EXPECT_EQ(issueKind("파일을 열 수 있는 권한이 없습니다."), std::nullopt);
    EXPECT_EQ(issueKind("Zugriff verweigert: keine Berechtigung"), std::nullopt);
    EXPECT_EQ(issueKind("アクセス権がありません"), std::nullopt);
    EXPECT_EQ(issueKind(""), std::nullopt);
}

TEST(StoragePermissionAdvisor, ReadsReasonsThatAreNoText)
{
    EXPECT_EQ(issueKind("\xFF\xFE denied \xC3"), IssueKind::readOrEnumerateAccess);
    EXPECT_EQ(issueKind(std::string_view("a\0denied", 8)), IssueKind::readOrEnumerateAccess);
    EXPECT_EQ(issueKind("\xFF"), std::nullopt);
}

TEST(StoragePermissionAdvisor, GoesByTheWordingThatSaysMost)
{
    EXPECT_EQ(issueKind("No permission without Full Disk Access"), IssueKind::fullDiskAccess);
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        const auto& first = kRows[random() % kRows.size()];
        const auto& second = kRows[random() % kRows.size()];
        std::string reason =
            first.markers[random() % first.markers.size()] + " / " + second.markers[random() % second.markers.size()];
        for (char& byte : reason) {
            if (random() % 2 == 0 && byte >= 'a' && byte <= 'z') {
                byte = static_cast<char>(byte - 'a' + 'A');
            }
        }
        EXPECT_EQ(issueKind(reason), std::min(&first, &second)->kind) << reason;
    }
}

TEST(StoragePermissionAdvisor, KeepsTheOrderOfTheItems)
{
    const Items items{item("/b", "denied"), item("/x", "Recently modified"), item("/a", "unreadable")};
    EXPECT_THAT(permissionRelatedSkippedItems(items), ElementsAre(items[0], items[2]));
}

TEST(StoragePermissionAdvisor, DiagnosesInTheOrderOfTheKinds)
{
    const Items items{item("/1", "unreadable"), item("/2", "denied"), item("/3", "needs full disk access"),
        item("/4", "Recently modified"), item("/5", "could not read")};
    EXPECT_THAT(diagnoses(items),
        ElementsAre(StoragePermissionDiagnosis{IssueKind::fullDiskAccess, {items[2]}},
            StoragePermissionDiagnosis{IssueKind::readOrEnumerateAccess, {items[1], items[4]}},
            StoragePermissionDiagnosis{IssueKind::unreadableAttributes, {items[0]}}));
}

TEST(StoragePermissionAdvisor, ShowsThreePathsOfFourItems)
{
    const Items items{item("/1", "denied"), item("/2", "denied"), item("/3\xFF\n", "denied"), item("/4", "denied")};
    const auto steps = stepsFor(items, false);
    ASSERT_THAT(rolesOf(steps), ElementsAre(Role::reviewBlockedItems, Role::grantSystemAccess, Role::rescan));
    EXPECT_EQ(steps[0].issueKind, IssueKind::readOrEnumerateAccess);
    EXPECT_EQ(steps[0].count, 4);
    EXPECT_THAT(steps[0].samplePaths, ElementsAre("/1", "/2", "/3\xFF\n"));
    EXPECT_EQ(steps[1], StoragePermissionWizardStep{.role = Role::grantSystemAccess});
    EXPECT_EQ(steps[2], StoragePermissionWizardStep{.role = Role::rescan});
}

TEST(StoragePermissionAdvisor, RefreshesCustomFoldersAfterAFailedBookmark)
{
    const Items items{item("/1", "stale bookmark"), item("/2", "denied")};
    const auto steps = stepsFor(items, false);
    EXPECT_THAT(rolesOf(steps),
        ElementsAre(Role::reviewBlockedItems, Role::reviewBlockedItems, Role::refreshCustomFolders,
            Role::grantSystemAccess, Role::rescan));
    EXPECT_EQ(steps[2], StoragePermissionWizardStep{.role = Role::refreshCustomFolders});
}

TEST(StoragePermissionAdvisor, RefreshesCustomFoldersWhereThereAreSome)
{
    const Items items{item("/1", "full disk access")};
    EXPECT_THAT(rolesOf(stepsFor(items, true)),
        ElementsAre(Role::reviewBlockedItems, Role::refreshCustomFolders, Role::grantSystemAccess, Role::rescan));
}

TEST(StoragePermissionAdvisor, OffersNoGuideForCustomFoldersAlone)
{
    EXPECT_THAT(wizardSteps({}, true), IsEmpty());
    EXPECT_THAT(stepsFor({item("/1", "Recently modified")}, true), IsEmpty());
}

TEST(StoragePermissionAdvisor, LosesNoItemAndShowsNoneTwice)
{
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        Items items;
        for (auto left = random() % 20; left > 0; --left) {
            const auto& row = kRows[random() % kRows.size()];
            const bool isRelated = random() % 4 != 0;
            items.push_back(item("/" + std::to_string(items.size()), isRelated ? row.markers.front() : "Empty item"));
        }
        const auto found = diagnoses(items);
        EXPECT_TRUE(std::ranges::is_sorted(found, std::less(), &StoragePermissionDiagnosis::kind));
        Items diagnosed;
        for (const auto& diagnosis : found) {
            EXPECT_FALSE(diagnosis.items.empty());
            for (const auto& of : diagnosis.items) {
                EXPECT_EQ(issueKind(of.reason), diagnosis.kind);
                diagnosed.push_back(of);
            }
        }
        EXPECT_THAT(diagnosed, testing::UnorderedElementsAreArray(permissionRelatedSkippedItems(items)));

        std::set<std::string> ids;
        const auto steps = wizardSteps(found, random() % 2 == 0);
        for (const auto& step : steps) {
            ids.insert(step.id());
            EXPECT_EQ(step.samplePaths.size(), std::min<std::size_t>(static_cast<std::size_t>(step.count), 3));
        }
        EXPECT_EQ(ids.size(), steps.size());
    }
}

TEST(StoragePermissionWizardStep, IsNumberedFromOne)
{
    const auto steps = stepsFor({item("/1", "denied")}, false);
    const auto indexed = indexedWizardSteps(steps);
    ASSERT_EQ(indexed.size(), 3U);
    for (std::size_t index = 0; index < indexed.size(); ++index) {
        EXPECT_EQ(indexed[index].index, static_cast<std::int64_t>(index) + 1);
        EXPECT_EQ(indexed[index].step, steps[index]);
        EXPECT_EQ(indexed[index].id(), std::to_string(index + 1) + "-" + steps[index].id());
    }
    EXPECT_THAT(indexedWizardSteps({}), IsEmpty());
}

} // namespace
} // namespace KarvelloUI
