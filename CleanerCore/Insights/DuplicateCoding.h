#pragma once

#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "CleanerCore/Insights/DuplicateKeeperRecommendation.h"
#include "CleanerCore/Insights/InsightCoding.h"
#include "Platform/Base/JSONCoding.h"

#include <algorithm>

/// The records of duplicates in JSON: the keys are the names of the fields. Reading keeps the order of the files as it
/// is stored.
namespace Platform {

template <>
struct JSONFields<CleanerCore::DuplicateFileGroup> {
    static void code(auto& coder, auto& group)
    {
        coder.field("id", group.id);
        coder.field("sizeBytes", group.sizeBytes);
        coder.field("files", group.files);
    }
    static void normalize(CleanerCore::DuplicateFileGroup& group)
    {
        group.sizeBytes = std::max<std::int64_t>(group.sizeBytes, 0);
    }
};

template <>
struct JSONFields<CleanerCore::DuplicateKeeperRecommendation> {
    static void code(auto& coder, auto& recommendation)
    {
        coder.field("groupID", recommendation.groupID);
        coder.field("keeperID", recommendation.keeperID);
        coder.text("keeperPath", recommendation.keeperPath);
        coder.field("duplicateCount", recommendation.duplicateCount);
        coder.field("reasons", recommendation.reasons);
    }
};

} // namespace Platform
