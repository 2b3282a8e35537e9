#include "CleanerCore/Scan/CleanupCategory.h"

namespace CleanerCore {

namespace {

enum class ManualReview : std::uint8_t { no, yes };

struct Description {
    std::string_view displayName;
    std::string_view explanation;
    ManualReview manualReviewByDefault;
};

constexpr std::array<Description, Platform::RawValues<CleanupCategory>::names.size()> kDescriptions{{
    {"User Caches", "Regenerable files stored by macOS apps in the current user's Library/Caches folder.",
        ManualReview::no},
    {"User Logs",
        "Diagnostic logs in the current user's Library/Logs folder. Useful for debugging, but often safe to archive or "
        "remove.",
        ManualReview::no},
    {"Xcode DerivedData",
        "Xcode DerivedData stores project indexes and build artifacts that Xcode can rebuild; removing them may make "
        "the "
        "next indexing pass or build slower.",
        ManualReview::no},
    {"Simulator Caches",
        "Regenerable iOS Simulator cache files under CoreSimulator. Quit running simulators before reviewing or moving "
        "them to Trash.",
        ManualReview::no},
    {"This App's Caches",
        "Only cache files owned by this app's sandbox. This is the main cleanup scope available on iOS.",
        ManualReview::no},
    {"App Container Caches",
        "Caches inside sandboxed macOS app containers. Review carefully because apps may recreate them while running.",
        ManualReview::no},
    {"Group Container Caches",
        "Caches inside shared app group containers. Review carefully because multiple apps may depend on the same "
        "container.",
        ManualReview::no},
    {"Xcode DeviceSupport",
        "DeviceSupport files used by Xcode for physical-device debugging. They can often be regenerated or "
        "re-downloaded, but removal may slow the next device debugging setup.",
        ManualReview::no},
    {"Developer Tool Caches",
        "Caches and intermediate files from developer tools. Review paths carefully because active projects and "
        "running "
        "tools may still rely on them.",
        ManualReview::yes},
    {"Package Manager Caches",
        "Package-manager caches that can often be downloaded again. Review offline or pinned dependency needs before "
        "cleaning.",
        ManualReview::yes},
    {"Build Archives",
        "Build archives and exported artifacts. They may be needed for symbolication, release history, or "
        "re-distribution.",
        ManualReview::yes},
    {"Temporary Files", "Temporary files that are not expected to persist between launches.", ManualReview::no},
    {"Custom Folder", "A user-selected folder. Review contents carefully before cleaning.", ManualReview::yes},
}};

const Description& descriptionOf(CleanupCategory category)
{
    return kDescriptions[static_cast<std::size_t>(category)];
}

} // namespace

std::string_view displayName(CleanupCategory category)
{
    return descriptionOf(category).displayName;
}

std::string_view explanation(CleanupCategory category)
{
    return descriptionOf(category).explanation;
}

bool requiresManualReviewByDefault(CleanupCategory category)
{
    return descriptionOf(category).manualReviewByDefault == ManualReview::yes;
}

} // namespace CleanerCore
