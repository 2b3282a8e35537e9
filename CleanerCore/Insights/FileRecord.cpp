#include "CleanerCore/Insights/FileRecord.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

namespace {

/// What follows the folder's first `skipped` bytes in the path of an item.
std::string tail(std::string_view folder, std::size_t skipped, std::string_view name)
{
    std::string rest(folder.substr(skipped));
    rest.append("/").append(name);
    return rest;
}

/// A folder's path as it stands before the slash of its entries.
std::string_view prefix(const FileRecord& record)
{
    const std::string_view path = record.folderPath ? std::string_view(*record.folderPath) : std::string_view();
    return path == "/" ? std::string_view() : path;
}

} // namespace

FileRecord::FileRecord(const Platform::FileURL& url)
    : FileRecord(std::make_shared<const std::string>(url.deletingLastPathComponent().path()), url.lastPathComponent())
{
}

Platform::FileURL FileRecord::url() const
{
    const auto hint = isDirectory ? Platform::DirectoryHint::isFolder : Platform::DirectoryHint::isFile;
    return Platform::FileURL::entry(prefix(*this), name, hint);
}

std::strong_ordering FileRecord::comparePath(const FileRecord& other) const
{
    if (folderPath == other.folderPath) {
        return name <=> other.name;
    }
    const auto left = prefix(*this);
    const auto right = prefix(other);
    const auto common = std::min(left.size(), right.size());
    if (const auto order = left.substr(0, common) <=> right.substr(0, common); order != std::strong_ordering::equal) {
        return order;
    }
    return left.size() == right.size() ? name <=> other.name
                                       : tail(left, common, name) <=> tail(right, common, other.name);
}

} // namespace CleanerCore
