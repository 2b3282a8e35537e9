#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"
#include "Platform/Files/ItemReference.h"
#include "Platform/Files/ResourceValues.h"

#include <cstdint>
#include <expected>
#include <functional>
#include <string_view>

namespace Platform {

/// What an enumeration leaves out. A hidden item has a name that begins with a point; a package is a folder with the
/// extension of a bundle.
struct EnumerationOptions {
    bool skipsSubdirectoryDescendants = false;
    bool skipsPackageDescendants = false;
    bool skipsHiddenFiles = false;
};

enum class EnumerationErrorAnswer : std::uint8_t { goOn, stop };

/// Told of each item that could not be listed or entered.
using EnumerationErrorHandler = std::function<EnumerationErrorAnswer(const FileURL&, const FileError&)>;

/// What a listing says of an entry's type; `unknown` where the file system keeps no types in its folders.
enum class ListedType : std::uint8_t { folder, other, unknown };

/// Walks what lies below a folder. Each item comes once, a folder before what it holds, in the order of the file
/// system; the entries of one folder come together. Symbolic links are items and are never followed, and no other
/// volume is entered: trying is an error of kind `crossesVolume`.
///
/// The current item is the one of the last `next` that gave true; its views die with the following `next`. An
/// enumerator belongs to one thread. It holds a few folders open, whatever the depth of the tree.
class DirectoryEnumerator {
public:
    virtual ~DirectoryEnumerator() = default;

    /// Moves to the next item; false at the end, and from then on.
    virtual bool next() = 0;

    [[nodiscard]] virtual std::string_view name() const = 0;
    /// 1 for the entries of the folder that is walked, 2 for theirs, and so on.
    [[nodiscard]] virtual std::size_t level() const = 0;
    /// What the listing says of the item, before any look at it.
    [[nodiscard]] virtual ListedType listedType() const = 0;
    /// The current item's values, read on the first call and kept until the next item.
    virtual const std::expected<ResourceValues, FileError>& resourceValues() = 0;
    [[nodiscard]] virtual FileURL url() const = 0;
    [[nodiscard]] virtual ItemReference reference() const = 0;

    /// The current item is not entered.
    virtual void skipDescendants() = 0;
    /// Gives the current item, a folder, a value that `folderContext` returns for each of its entries. A caller hands
    /// down the tree with it what it knows of a folder, without looking at its path again.
    virtual void setContextOfDescendants(std::uint64_t context) = 0;
    /// The value of the folder that holds the current item; 0 where none was given.
    [[nodiscard]] virtual std::uint64_t folderContext() const = 0;

protected:
    DirectoryEnumerator() = default;
    DirectoryEnumerator(const DirectoryEnumerator&) = default;
    DirectoryEnumerator& operator=(const DirectoryEnumerator&) = default;
};

} // namespace Platform
