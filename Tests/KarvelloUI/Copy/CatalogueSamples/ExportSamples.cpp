#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kExport("Export",
    {
        {"scanExportTitle", &KarvelloCopy::scanExportTitle},
        {"scanExportBody", &KarvelloCopy::scanExportBody},
        {"scanExportPanelMessage", &KarvelloCopy::scanExportPanelMessage},
        {"scanExportFailedTitle", &KarvelloCopy::scanExportFailedTitle},
        {"scanExportFailedMessage", [](const KarvelloCopy& copy) { return copy.scanExportFailedMessage("ENOSPC"); }},
        {"exportJSON", &KarvelloCopy::exportJSON},
        {"exportCSV", &KarvelloCopy::exportCSV},
        {"exportRedactedJSON", &KarvelloCopy::exportRedactedJSON},
        {"exportRedactedCSV", &KarvelloCopy::exportRedactedCSV},
        {"redactedExportHint", &KarvelloCopy::redactedExportHint},
    });

} // namespace
} // namespace KarvelloUI
