#include "CleanerCore/Insights/PackageInventory.h"

#include "CleanerCore/Scan/AllocatedSize.h"

#include <string>
#include <utility>

namespace CleanerCore {

VisitLog takePackageInventory(const Platform::ItemReference& package, std::int64_t maximumVisits,
    const Platform::FileManager& fileManager, const std::stop_token& stop)
{
    VisitLog log;
    const auto onError = [&](const Platform::FileURL& url, const Platform::FileError& error) {
        log.addEnumerationError({url, error.localizedDescription()});
        return Platform::EnumerationErrorAnswer::goOn;
    };
    const auto items = fileManager.enumerator(package, {.skipsHiddenFiles = true}, onError);
    if (!items) {
        log.addEnumerationError({package.url(), "Could not enumerate package"});
        return log;
    }
    while (!stop.stop_requested() && items->next()) {
        if (std::cmp_greater_equal(log.visits(), maximumVisits)) {
            log.addUncounted();
            break;
        }
        const auto& values = items->resourceValues();
        if (!values) {
            log.addFailure({items->url(), values.error().localizedDescription()});
        } else if (values->isSymbolicLink.value_or(false)) {
            items->skipDescendants();
            log.addUncounted();
        } else {
            log.addItem(values->isDirectory.value_or(false) ? 0 : allocatedSizeOf(*values));
        }
    }
    return log;
}

} // namespace CleanerCore
