#include "CleanerCore/Scan/DirectoryInventory.h"

#include "CleanerCore/Safety/NoTouchWalk.h"
#include "CleanerCore/Scan/AllocatedSize.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "Platform/Base/CheckedMath.h"

namespace CleanerCore {

using Platform::EnumerationErrorAnswer;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;

DirectoryInventory DirectoryInventory::take(const Platform::ItemReference& item, const Platform::ResourceValues& values,
    NoTouchPathPolicy::State state, SizeCollection sizes, const InventoryRules& rules,
    const Platform::FileManager& fileManager, InventoryEvents& events, const std::stop_token& stop)
{
    DirectoryInventory inventory;
    inventory.latestModificationDate = values.contentModificationDate;
    if (values.isSymbolicLink.value_or(false)) {
        return inventory;
    }
    if (!values.isDirectory.value_or(false)) {
        inventory.byteSize = sizes == SizeCollection::collect ? allocatedSizeOf(values) : 0;
        inventory.containsRecentlyModifiedItem = rules.isYoung(values.contentModificationDate);
        return inventory;
    }

    std::int64_t number = 0;
    const auto onError = [&](const FileURL& url, const FileError& error) {
        if (error.kind == FileErrorKind::crossesVolume) {
            inventory.noTouchDescendantURL = url;
            return EnumerationErrorAnswer::stop;
        }
        events.failed(InventoryFailure::enumeration, number, {url, error.localizedDescription()});
        return EnumerationErrorAnswer::goOn;
    };
    const Platform::EnumerationOptions options{
        .skipsPackageDescendants = !rules.includesPackageDescendants,
        .skipsHiddenFiles = !rules.includesHiddenFiles,
    };
    const auto items = fileManager.enumerator(item, options, onError);
    if (!items) {
        events.failed(InventoryFailure::item, number,
            {item.url(), std::string(StorageScannerSkipReason::couldNotEnumerateFolder)});
        return inventory;
    }

    const bool wantsProgress = events.wantsProgress();
    while (items->next()) {
        if (stop.stop_requested()) {
            break;
        }
        ++number;
        if (wantsProgress && (number == 1 || number % rules.progressInterval == 0)) {
            events.walkingAt(number, items->url());
        }
        if (meetsNoTouch(*items, state)) {
            items->skipDescendants();
            inventory.noTouchDescendantURL = items->url();
            break;
        }
        if (number > rules.maximumItems) {
            inventory.exceededItemLimit = true;
            break;
        }
        const auto& found = items->resourceValues();
        if (!found) {
            events.failed(InventoryFailure::item, number, {items->url(), found.error().localizedDescription()});
            continue;
        }
        // What is mounted or kept on a volume of its own inside a cache was put there by somebody.
        if (found->isOnOtherVolume) {
            items->skipDescendants();
            inventory.noTouchDescendantURL = items->url();
            break;
        }
        if (found->isSymbolicLink.value_or(false)) {
            items->skipDescendants();
            continue;
        }
        const auto& date = found->contentModificationDate;
        if (date && (!inventory.latestModificationDate || *date > *inventory.latestModificationDate)) {
            inventory.latestModificationDate = date;
        }
        if (rules.isYoung(date)) {
            inventory.containsRecentlyModifiedItem = true;
            continue;
        }
        // Once something young was seen the sum is of no use; the walk goes on, for what is protected outranks age.
        if (sizes == SizeCollection::omit || found->isDirectory.value_or(false)
            || inventory.containsRecentlyModifiedItem) {
            continue;
        }
        inventory.byteSize = Platform::checkedAdd(inventory.byteSize, allocatedSizeOf(*found));
    }
    return inventory;
}

} // namespace CleanerCore
