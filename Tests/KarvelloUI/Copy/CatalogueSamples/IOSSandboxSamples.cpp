#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kIOSSandbox("IOSSandbox",
    {
        {"iOSTagline", &KarvelloCopy::iOSTagline},
        {"iOSAllowsTitle", &KarvelloCopy::iOSAllowsTitle},
        {"iOSAllowsAppCacheOnly", &KarvelloCopy::iOSAllowsAppCacheOnly},
        {"iOSAllowsGuideSettings", &KarvelloCopy::iOSAllowsGuideSettings},
        {"iOSAllowsNoSystemDataPromise", &KarvelloCopy::iOSAllowsNoSystemDataPromise},
        {"iOSSandboxTitle", &KarvelloCopy::iOSSandboxTitle},
        {"iOSReviewAppCacheSelectionHint", &KarvelloCopy::iOSReviewAppCacheSelectionHint},
        {"iOSAppCacheScanPending", &KarvelloCopy::iOSAppCacheScanPending},
        {"iOSAppCacheScanInProgress", &KarvelloCopy::iOSAppCacheScanInProgress},
        {"iOSNoAppCacheCandidates", &KarvelloCopy::iOSNoAppCacheCandidates},
        {"iOSAppCacheCandidateAccessibilityLabel",
            [](const KarvelloCopy& copy) {
                return copy.iOSAppCacheCandidateAccessibilityLabel("Karvello", "~/Karvello", 1536);
            }},
        {"iOSAppCacheCandidateAccessibilityHint selected",
            [](const KarvelloCopy& copy) { return copy.iOSAppCacheCandidateAccessibilityHint(true); }},
        {"iOSAppCacheCandidateAccessibilityHint not selected",
            [](const KarvelloCopy& copy) { return copy.iOSAppCacheCandidateAccessibilityHint(false); }},
        {"iOSAppCacheCandidateBusyAccessibilityHint", &KarvelloCopy::iOSAppCacheCandidateBusyAccessibilityHint},
    });

} // namespace
} // namespace KarvelloUI
