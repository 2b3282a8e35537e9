#pragma once

#include "CleanerCore/Relief/ResourceReliefActionResult.h"
#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "Platform/Base/JSONCoding.h"

#include <expected>
#include <string>
#include <utility>

/// The list of running applications and what became of requests to them, in JSON: the keys are the names of the fields,
/// and an id is its text.
namespace Platform {

template <>
struct JSONCoding<CleanerCore::ResourceReliefCandidateID> {
    static void write(JSONWriter& writer, const CleanerCore::ResourceReliefCandidateID& id)
    {
        writer.string(id.rawValue);
    }
    static std::expected<CleanerCore::ResourceReliefCandidateID, JSONError> read(const JSONValue& value)
    {
        auto raw = JSONCoding<std::string>::read(value);
        if (!raw) {
            return std::unexpected(std::move(raw.error()));
        }
        return CleanerCore::ResourceReliefCandidateID(*std::move(raw));
    }
};

template <>
struct JSONFields<CleanerCore::ResourceReliefUsageMetrics> {
    static void code(auto& coder, auto& usage)
    {
        coder.field("cpuFractionOfTotalCapacity", usage.cpuFractionOfTotalCapacity);
        coder.field("residentMemoryBytes", usage.residentMemoryBytes);
        coder.field("memoryFractionOfPhysicalMemory", usage.memoryFractionOfPhysicalMemory);
    }
};

template <>
struct JSONFields<CleanerCore::ResourceReliefEligibility> {
    static void code(auto& coder, auto& eligibility)
    {
        coder.field("isActionable", eligibility.isActionable);
        coder.field("reason", eligibility.reason);
    }
};

template <>
struct JSONFields<CleanerCore::ResourceReliefCapability> {
    static void code(auto& coder, auto& capability)
    {
        coder.field("canRequestQuitOtherApplications", capability.canRequestQuitOtherApplications);
        coder.field("reason", capability.reason);
    }
};

template <>
struct JSONFields<CleanerCore::ResourceReliefCandidate> {
    static void code(auto& coder, auto& candidate)
    {
        coder.field("id", candidate.id);
        coder.text("displayName", candidate.displayName);
        coder.text("bundleIdentifier", candidate.bundleIdentifier);
        coder.field("processIdentifier", candidate.processIdentifier);
        coder.field("isFrontmost", candidate.isFrontmost);
        coder.field("launchDate", candidate.launchDate);
        coder.field("usage", candidate.usage);
        coder.field("eligibility", candidate.eligibility);
    }
};

template <>
struct JSONFields<CleanerCore::ResourceReliefActionResult> {
    static void code(auto& coder, auto& result)
    {
        coder.field("id", result.id);
        coder.field("candidateID", result.candidateID);
        coder.text("displayName", result.displayName);
        coder.field("status", result.status);
        coder.field("occurredAt", result.occurredAt);
    }
};

} // namespace Platform
