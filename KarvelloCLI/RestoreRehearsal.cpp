#include "KarvelloCLI/RestoreRehearsal.h"

#include <fmt/format.h>

namespace KarvelloCLI {

namespace {

using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileOperation;
using Platform::FileURL;

std::unexpected<FileError> refusal(FileErrorKind kind, FileOperation operation, const FileURL& item)
{
    return std::unexpected(FileError{.kind = kind, .operation = operation, .path = item.path()});
}

/// Where a Trash has the record of an item (Trash specification 1.0, "Contents of a trash directory").
FileURL recordOf(const FileURL& trashedItem)
{
    const auto trash = trashedItem.deletingLastPathComponent().deletingLastPathComponent();
    return trash.appending(fmt::format("info/{}.trashinfo", trashedItem.lastPathComponent()));
}

} // namespace

RestoreRehearsal::Move RestoreRehearsal::trashItem(const Platform::ItemAnchor& anchor)
{
    return refusal(FileErrorKind::notSupported, FileOperation::trash, anchor.item);
}

RestoreRehearsal::Outcome RestoreRehearsal::restoreItem(const Platform::RestoreAnchor& anchor)
{
    if (m_fileManager.existence(recordOf(anchor.trashedItem)) == Platform::Existence::missing) {
        return refusal(FileErrorKind::noTrashRecord, FileOperation::restore, anchor.destination);
    }
    return {};
}

RestoreRehearsal::Outcome RestoreRehearsal::removeItem(const Platform::ItemAnchor& anchor)
{
    return refusal(FileErrorKind::notSupported, FileOperation::remove, anchor.item);
}

} // namespace KarvelloCLI
