#pragma once

#include "CleanerCore/Scan/AppCacheContext.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/FileResourceIdentity.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/ScanReport.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "CleanerCore/Scan/StorageScanProgress.h"
#include "Platform/Base/JSONCoding.h"

/// The records of a scan in JSON: the keys are the names of the fields. Reading keeps the limits of the constructors,
/// but takes the id of a candidate and the order of a report as they are stored.
namespace Platform {

template <>
struct JSONFields<CleanerCore::AppCacheContext> {
    static void code(auto& coder, auto& context)
    {
        coder.field("containerKind", context.containerKind);
        coder.text("containerIdentifier", context.containerIdentifier);
        coder.text("possibleBundleIdentifier", context.possibleBundleIdentifier);
        coder.text("matchedRunningBundleIdentifier", context.matchedRunningBundleIdentifier);
        coder.text("matchedRunningDisplayName", context.matchedRunningDisplayName);
        coder.field("runningState", context.runningState);
        coder.field("identitySource", context.identitySource);
    }
};

template <>
struct JSONFields<CleanerCore::FileResourceIdentity> {
    static void code(auto& coder, auto& identity)
    {
        coder.field("fileResourceIdentifier", identity.fileResourceIdentifier);
        coder.field("volumeIdentifier", identity.volumeIdentifier);
        coder.field("isDirectory", identity.isDirectory);
        coder.field("fileSize", identity.fileSize);
        coder.field("totalFileAllocatedSize", identity.totalFileAllocatedSize);
        coder.field("systemFileNumber", identity.systemFileNumber);
        coder.field("systemNumber", identity.systemNumber);
        coder.field("creationDate", identity.creationDate);
        coder.field("modificationDate", identity.modificationDate);
    }
};

template <>
struct JSONFields<CleanerCore::CleanupCandidate> {
    static void code(auto& coder, auto& candidate)
    {
        coder.field("id", candidate.id);
        coder.field("url", candidate.url);
        coder.text("displayName", candidate.displayName);
        coder.field("category", candidate.category);
        coder.field("sizeBytes", candidate.sizeBytes);
        coder.field("lastModified", candidate.lastModified);
        coder.field("resourceIdentity", candidate.resourceIdentity);
        coder.field("isSelectedByDefault", candidate.isSelectedByDefault);
        coder.field("safety", candidate.safety);
        coder.defaulted("requiresManualReviewBySource", candidate.requiresManualReviewBySource, false);
        coder.field("appCacheContext", candidate.appCacheContext);
    }
    static void normalize(CleanerCore::CleanupCandidate& candidate);
};

template <>
struct JSONFields<CleanerCore::SkippedItem> {
    static void code(auto& coder, auto& item)
    {
        coder.field("url", item.url);
        coder.text("reason", item.reason);
    }
};

template <>
struct JSONFields<CleanerCore::ScanLocation> {
    static void code(auto& coder, auto& location)
    {
        coder.field("rootURL", location.rootURL);
        coder.field("category", location.category);
        coder.text("displayName", location.displayName);
        coder.field("depth", location.depth);
        coder.field("isSelectedByDefault", location.isSelectedByDefault);
        coder.field("safety", location.safety);
        coder.field("minimumModificationAge", location.minimumModificationAge);
        coder.field("includesHiddenFiles", location.includesHiddenFiles);
        coder.field("includesPackageDescendants", location.includesPackageDescendants);
        coder.field("appCacheContext", location.appCacheContext);
    }
    static void normalize(CleanerCore::ScanLocation& location);
};

template <>
struct JSONFields<CleanerCore::ScanReport> {
    static void code(auto& coder, auto& report)
    {
        coder.field("scannedAt", report.scannedAt);
        coder.field("candidates", report.candidates);
        coder.field("skippedItems", report.skippedItems);
    }
};

template <>
struct JSONFields<CleanerCore::StorageScanProgress> {
    static void code(auto& coder, auto& progress)
    {
        coder.field("currentURL", progress.currentURL);
        coder.field("completedLocations", progress.completedLocations);
        coder.field("totalLocations", progress.totalLocations);
        coder.field("completedItems", progress.completedItems);
        coder.field("completedItemsInCurrentLocation", progress.completedItemsInCurrentLocation);
        coder.field("totalItemsInCurrentLocation", progress.totalItemsInCurrentLocation);
        coder.field("foundCandidates", progress.foundCandidates);
        coder.field("skippedItems", progress.skippedItems);
        coder.field("fractionCompleted", progress.fractionCompleted);
    }
    static void normalize(CleanerCore::StorageScanProgress& progress) { progress = progress.normalized(); }
};

} // namespace Platform
