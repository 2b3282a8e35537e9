#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kHomeAccess("HomeAccess",
    {
        {"homeAccessOnboardingTitle", &KarvelloCopy::homeAccessOnboardingTitle},
        {"homeAccessOnboardingMessage", &KarvelloCopy::homeAccessOnboardingMessage},
        {"homeAccessGrantButton", &KarvelloCopy::homeAccessGrantButton},
        {"homeAccessGrantedStatus", &KarvelloCopy::homeAccessGrantedStatus, SampleCoverage::assembled},
        {"homeAccessRevokeButton", &KarvelloCopy::homeAccessRevokeButton},
        {"homeAccessPendingHintFromBanner", &KarvelloCopy::homeAccessPendingHintFromBanner},
        {"homeAccessPanelPrompt", &KarvelloCopy::homeAccessPanelPrompt},
        {"homeAccessPanelMessage", &KarvelloCopy::homeAccessPanelMessage},
        {"homeAccessBookmarkLoadFailedMessage",
            [](const KarvelloCopy& copy) { return copy.homeAccessBookmarkLoadFailedMessage("ENOSPC"); }},
        {"homeAccessBookmarkSaveFailedMessage",
            [](const KarvelloCopy& copy) { return copy.homeAccessBookmarkSaveFailedMessage("ENOSPC"); }},
        {"homeAccessBookmarkResolveFailedMessage",
            [](const KarvelloCopy& copy) { return copy.homeAccessBookmarkResolveFailedMessage("ENOSPC"); }},
        {"homeAccessBookmarkStaleMessage", &KarvelloCopy::homeAccessBookmarkStaleMessage},
        {"customScanFoldersLoadFailedMessage",
            [](const KarvelloCopy& copy) { return copy.customScanFoldersLoadFailedMessage("ENOSPC"); }},
        {"customScanFoldersSaveFailedMessage",
            [](const KarvelloCopy& copy) { return copy.customScanFoldersSaveFailedMessage("ENOSPC"); }},
    });

} // namespace
} // namespace KarvelloUI
