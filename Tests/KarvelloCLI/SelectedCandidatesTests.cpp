#include "KarvelloCLI/SelectedCandidates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanupCandidate;
using Platform::FileURL;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

CleanupCandidate candidate(const std::string& name, bool isSelectedByDefault)
{
    CleanupCandidate::Fields fields;
    fields.url = FileURL("/home/ada/.cache/" + name);
    fields.category = CleanerCore::CleanupCategory::userCaches;
    fields.safety = CleanerCore::CleanupSafety::safe;
    fields.isSelectedByDefault = isSelectedByDefault;
    return CleanupCandidate(fields);
}

const std::vector<CleanupCandidate> kFound{candidate("a", false), candidate("b", true), candidate("c", false)};

std::vector<std::string> namesOf(const SelectedCandidates& selected)
{
    std::vector<std::string> names;
    for (const CleanupCandidate& each : selected.candidates) {
        names.emplace_back(each.url.lastPathComponent());
    }
    return names;
}

} // namespace

TEST(SelectedCandidates, DefaultTakesThePreselectedOnes)
{
    EXPECT_THAT(namesOf(SelectedCandidates::of(kFound, CleanSelection::preselected, {})), ElementsAre("b"));
}

TEST(SelectedCandidates, AllTakesAllInTheOrderOfTheScan)
{
    EXPECT_THAT(namesOf(SelectedCandidates::of(kFound, CleanSelection::all, {})), ElementsAre("a", "b", "c"));
}

TEST(SelectedCandidates, IdsAreComparedWholeAndKeepTheOrderOfTheScan)
{
    const std::vector<std::string> ids{
        "userCaches:/home/ada/.cache/c", "userCaches:/home/ada/.cache/a", "userCaches:/home/ada/.cache/c"};
    const auto selected = SelectedCandidates::of(kFound, CleanSelection::byId, ids);
    EXPECT_THAT(namesOf(selected), ElementsAre("a", "c"));
    EXPECT_THAT(selected.unknownIds, IsEmpty());
}

TEST(SelectedCandidates, AnUnknownIdIsToldOnce)
{
    const std::vector<std::string> ids{
        "userCaches:/home/ada/.cache/", "userLogs:/home/ada/.cache/a", "b", "userLogs:/home/ada/.cache/a"};
    const auto selected = SelectedCandidates::of(kFound, CleanSelection::byId, ids);
    EXPECT_THAT(selected.candidates, IsEmpty());
    EXPECT_THAT(selected.unknownIds, ElementsAre(ids[0], ids[1], ids[2]));
}
