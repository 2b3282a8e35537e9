#include "CleanerCore/Relief/ResourceReliefCoding.h"

#include <gtest/gtest.h>

namespace CleanerCore {

namespace {

template <typename Record>
std::string jsonOf(const Record& record)
{
    return Platform::encodeJSON(record).value_or("");
}

const Platform::UUID kId = *Platform::UUID::fromString("11111111-2222-3333-4444-555555555555");

} // namespace

TEST(ResourceReliefCoding, ACandidateIsTheSameAfterAWayThroughJSON)
{
    const ResourceReliefCandidate candidate{.id = ResourceReliefCandidateID("editor:42"),
        .displayName = "Editor",
        .bundleIdentifier = "editor",
        .processIdentifier = 42,
        .isFrontmost = true,
        .launchDate = Platform::Date{1.5},
        .usage = {.cpuFractionOfTotalCapacity = 0.25,
            .residentMemoryBytes = UINT64_MAX,
            .memoryFractionOfPhysicalMemory = 0.5},
        .eligibility =
            ResourceReliefEligibility::unavailable(ResourceReliefProtectionReason::protectedSystemApplication)};
    EXPECT_EQ(Platform::decodeJSON<ResourceReliefCandidate>(jsonOf(candidate)), candidate);
}

TEST(ResourceReliefCoding, WhatIsAbsentIsLeftOut)
{
    const ResourceReliefCandidate candidate{.id = ResourceReliefCandidateID("pid:42"),
        .displayName = "Tool",
        .processIdentifier = 42,
        .eligibility = ResourceReliefEligibility::actionable()};
    const auto json = jsonOf(candidate);
    for (const auto* const key : {"bundleIdentifier", "launchDate", "reason", "residentMemoryBytes",
             "cpuFractionOfTotalCapacity", "memoryFractionOfPhysicalMemory"}) {
        EXPECT_EQ(json.find(key), std::string::npos) << key;
    }
    EXPECT_EQ(Platform::decodeJSON<ResourceReliefCandidate>(json), candidate);
}

TEST(ResourceReliefCoding, AResultTellsItsStatusByItsName)
{
    const ResourceReliefActionResult result{.id = kId,
        .candidateID = ResourceReliefCandidateID("editor:42"),
        .displayName = "Editor",
        .status = ResourceReliefActionStatus::isProtected,
        .occurredAt = {7}};
    const auto json = jsonOf(result);
    EXPECT_NE(json.find("\"status\" : \"protected\""), std::string::npos) << json;
    EXPECT_NE(json.find("\"candidateID\" : \"editor:42\""), std::string::npos) << json;
    EXPECT_EQ(Platform::decodeJSON<ResourceReliefActionResult>(json), result);
}

TEST(ResourceReliefCoding, ACapabilityTellsItsReasonByItsName)
{
    for (const auto& capability : {ResourceReliefCapability::supported(), ResourceReliefCapability::appSandbox(),
             ResourceReliefCapability::unknown()}) {
        EXPECT_EQ(Platform::decodeJSON<ResourceReliefCapability>(jsonOf(capability)), capability);
    }
    EXPECT_TRUE(ResourceReliefCapability::supported().canRequestQuitOtherApplications);
    EXPECT_FALSE(ResourceReliefCapability::appSandbox().canRequestQuitOtherApplications);
    EXPECT_FALSE(ResourceReliefCapability::unknown().canRequestQuitOtherApplications);
    EXPECT_NE(jsonOf(ResourceReliefCapability::appSandbox()).find("\"appSandbox\""), std::string::npos);
}

TEST(ResourceReliefCoding, AnIdThatIsNoTextIsAnError)
{
    EXPECT_FALSE(Platform::decodeJSON<ResourceReliefActionResult>(
        R"({"id": "11111111-2222-3333-4444-555555555555", "candidateID": 3, "displayName": "x",
            "status": "protected", "occurredAt": 1})"));
}

} // namespace CleanerCore
