#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/RestoreResult.h"
#include "CleanerCore/Scan/ScanCoding.h"
#include "Platform/Base/JSONCoding.h"

/// What a clean or a restore did, in JSON: the keys are the names of the fields.
namespace Platform {

template <>
struct JSONFields<CleanerCore::CleanedItem> {
    static void code(auto& coder, auto& item)
    {
        coder.field("candidate", item.candidate);
        coder.field("destinationURL", item.destinationURL);
        coder.field("restoreSourceIdentity", item.restoreSourceIdentity);
        coder.field("restoreSourceRootURL", item.restoreSourceRootURL);
    }
};

template <>
struct JSONFields<CleanerCore::FailedCleanItem> {
    static void code(auto& coder, auto& item)
    {
        coder.field("candidate", item.candidate);
        coder.text("reason", item.reason);
    }
};

template <>
struct JSONFields<CleanerCore::CleanResult> {
    static void code(auto& coder, auto& result)
    {
        coder.field("cleanedItems", result.cleanedItems);
        coder.field("failedItems", result.failedItems);
        coder.field("wasCancelled", result.wasCancelled);
    }
};

template <>
struct JSONFields<CleanerCore::RestoredCleanedItem> {
    static void code(auto& coder, auto& item)
    {
        coder.field("cleanedItem", item.cleanedItem);
        coder.field("restoredURL", item.restoredURL);
    }
};

template <>
struct JSONFields<CleanerCore::FailedRestoreItem> {
    static void code(auto& coder, auto& item)
    {
        coder.field("cleanedItem", item.cleanedItem);
        coder.text("reason", item.reason);
    }
};

template <>
struct JSONFields<CleanerCore::RestoreResult> {
    static void code(auto& coder, auto& result)
    {
        coder.field("failedItems", result.failedItems);
        coder.field("restoredItems", result.restoredItems);
        coder.field("wasCancelled", result.wasCancelled);
    }
};

} // namespace Platform
